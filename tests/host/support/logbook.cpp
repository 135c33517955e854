// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/logbook.h"
#include "tests/support/datafile.h"
#include "tests/support/files.h"

#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

QString isoTime(const QXmlStreamReader &reader)
{
    const QString text = reader.attributes().value(u"Date"_s).toString();
    return QDateTime::fromString(text, Qt::TextDate).toString(Qt::ISODate);
}

QString attribute(const QXmlStreamReader &reader, const QString &name)
{
    return reader.attributes().value(name).toString();
}

void readBattery(QXmlStreamReader &reader, Logbook &logbook)
{
    Logbook::Battery battery;
    while (reader.readNextStartElement()) {
        const QString name = reader.name().toString();
        if (name != u"Data") {
            battery.figures.insert(name, reader.readElementText());
            continue;
        }
        while (reader.readNextStartElement()) {
            battery.discharges.append(isoTime(reader) + u' ' + attribute(reader, u"Discharged"_s));
            reader.skipCurrentElement();
        }
    }
    battery.figures.remove(u"LastUse"_s);
    logbook.batteries.insert(battery.figures.value(u"Name"_s), battery);
}

void readModel(QXmlStreamReader &reader, Logbook &logbook)
{
    Logbook::Model model;
    while (reader.readNextStartElement()) {
        const QString name = reader.name().toString();
        if (name == u"Battery") {
            model.batteries.append(reader.readElementText());
            continue;
        }
        if (name != u"FlightLog") {
            model.figures.insert(name, reader.readElementText());
            continue;
        }
        while (reader.readNextStartElement()) {
            model.flights.append(isoTime(reader) + u' ' + attribute(reader, u"Location"_s));
            reader.skipCurrentElement();
        }
    }
    model.figures.remove(u"LastUpdate"_s);
    logbook.models.insert(model.figures.value(u"Name"_s), model);
}

} // namespace

Logbook Logbook::read(const QByteArray &document)
{
    Logbook logbook;
    QXmlStreamReader reader(document);
    if (!reader.readNextStartElement() || reader.name() != u"Voltbok")
        return logbook;
    while (reader.readNextStartElement()) {
        if (reader.name() == u"Battery")
            readBattery(reader, logbook);
        else if (reader.name() == u"Model")
            readModel(reader, logbook);
        else if (reader.name() == u"Location") // without their container
            reader.skipCurrentElement();
        else {
            while (reader.readNextStartElement()) {
                logbook.locations.append(attribute(reader, u"Name"_s));
                reader.skipCurrentElement();
            }
        }
    }
    while (!reader.atEnd())
        reader.readNext();
    logbook.whole = !reader.hasError();
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
