// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/logbook.h"
#include "tests/support/datafile.h"
#include "tests/support/filerecords.h"
#include "tests/support/files.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/** The time of a discharge or flight, and one more of its values. */
QString entryText(const QXmlStreamAttributes &entry, const QString &name)
{
    const QDateTime time = QDateTime::fromString(Test::FileRecords::value(entry, u"Date"_s), Qt::TextDate);
    return time.toString(Qt::ISODate) + u' ' + Test::FileRecords::value(entry, name);
}

QStringList entryTexts(const Test::FileRecords::Record &record, const QString &name)
{
    QStringList texts;
    for (const QXmlStreamAttributes &entry : record.entries)
        texts.append(entryText(entry, name));
    return texts;
}

} // namespace

Logbook Logbook::read(const QByteArray &document)
{
    const Test::FileRecords file(document);
    Logbook logbook;
    logbook.whole = file.isWhole;
    logbook.locations = file.locations;
    for (const Test::FileRecords::Record &record : file.batteries) {
        Battery battery{record.fields, entryTexts(record, u"Discharged"_s)};
        battery.figures.remove(u"LastUse"_s);
        logbook.batteries.insert(record.field(u"Name"_s), battery);
    }
    for (const Test::FileRecords::Record &record : file.models) {
        Model model{record.fields, record.batteries, entryTexts(record, u"Location"_s)};
        model.figures.remove(u"LastUpdate"_s);
        logbook.models.insert(record.field(u"Name"_s), model);
    }
    return logbook;
}

Logbook Logbook::readFile(const QString &path)
{
    return read(Test::contents(path));
}

QByteArray smallLogbook()
{
    const auto november = [](int day, QTime time) { return QDateTime(QDate(2026, 11, day), time); };
    const QDate bought(2025, 3, 14);
    const QDateTime first(QDate(2026, 10, 25), QTime(15, 40, 28));
    const QDateTime second = november(8, {11, 2, 10});
    const QList<Test::Discharge> history{{first, 1040, 2750}, {second, 990, 3100}};
    const QList<Test::Flight> log{{first, u"Club field"_s, {0, 8, 30}, 12, u""_s},
                                  {second, u"Meadow"_s, {0, 7, 5}, 4, u"Calm"_s}};
    return Test::document(
        {{{u"3S A"_s, true, history, 1300, 20, 30, 2, bought, november(10, {21, 9, 54})},
          {u"3S B"_s, false, {}, 1300, 20, 30, 0, bought, november(9, {20, 0})},
          {u"6S spare"_s, false, {}, 5000, 10, 40, 7, {2024, 5, 1}, {{2026, 6, 1}, {12, 0}}}},
         {{u"Glider"_s, {u"3S A"_s, u"3S B"_s}, log, 114, 700, 2, u"Plane"_s, u""_s, bought, second}},
         {u"Club field"_s, u"Meadow"_s}});
}
