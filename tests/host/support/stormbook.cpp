// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/stormbook.h"

#include "tests/host/support/makeradiolog.h"
#include "tests/support/datafile.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Spare = u"6S spare"_s;
const QString Tug = u"Tug"_s;

QDateTime theirTime(int number)
{
    return QDateTime(QDate(2026, 6, 2), QTime(10, 0)).addDays(number);
}

Test::Catalogue catalogue()
{
    const QDateTime first(QDate(2026, 10, 25), QTime(15, 40, 28));
    const QDateTime second(QDate(2026, 11, 8), QTime(11, 2, 10));
    const QDateTime towed(QDate(2026, 6, 1), QTime(12, 0));
    return {{{u"3S A"_s, true, {{first, 1040, 2750}, {second, 990, 3100}}, 1300},
             {u"3S B"_s, false, {}, 1300},
             {Spare, true, {{towed, 3900, 4200}}, 5000}},
            {{u"Glider"_s, {u"3S A"_s, u"3S B"_s}, {{first, u"Club field"_s}, {second, u"Meadow"_s}}},
             {Tug, {Spare}, {{towed, u"Club field"_s}}}},
            {u"Club field"_s, u"Meadow"_s}};
}

} // namespace

QByteArray StormBook::document()
{
    return Test::document(catalogue());
}

QByteArray StormBook::theirs(int number)
{
    Test::Catalogue version = catalogue();
    version.locations.append(theirPlace(number));
    version.batteries.last().history.append({theirTime(number), 4000, 3000});
    version.batteries.last().cycles += 1;
    version.models.last().flights.append({theirTime(number), theirPlace(number)});
    version.models.last().flightsUsed += 1;
    return Test::document(version);
}

QString StormBook::theirPlace(int number)
{
    return u"Theirs %1"_s.arg(number);
}

QString StormBook::conflictName(int number)
{
    return u"voltbok.sync-conflict-20261101-%1.xml"_s.arg(number, 6, 10, QChar(u'0'));
}

int StormBook::numberIn(const QString &conflictName)
{
    static const QRegularExpression number(u"sync-conflict-\\d{8}-(\\d{6})"_s);
    return number.match(conflictName).captured(1).toInt();
}

void StormBook::addOne(QMap<QString, QString> *figures, const QString &counter)
{
    figures->insert(counter, QString::number(figures->value(counter).toInt() + 1));
}

void StormBook::merge(Logbook *logbook, int number)
{
    const QString time = theirTime(number).toString(Qt::ISODate);
    Logbook::Battery &spare = logbook->batteries[Spare];
    if (spare.discharges.contains(time + u" 4000"_s))
        return;
    logbook->locations.append(theirPlace(number));
    spare.discharges.append(time + u" 4000"_s);
    addOne(&spare.figures, u"Cycles"_s);
    addOne(&logbook->models[Tug].figures, u"Flights"_s);
    logbook->models[Tug].flights.append(time + u' ' + theirPlace(number));
}

QString StormBook::logName(int number)
{
    return Tug + u"-2026-05-%1-140000.csv"_s.arg(number + 1, 2, 10, QChar(u'0'));
}

QByteArray StormBook::log(int number)
{
    MadeLogs::Plan plan;
    plan.start = QDateTime(QDate(2026, 5, number + 1), QTime(14, 0));
    plan.restBefore = RestSeconds;
    plan.flight = 120;
    return MadeLogs::Text().add(MadeLogs::flight({6, 5000, 0.02, 1}, plan)).bytes();
}
