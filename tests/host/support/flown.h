// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/datafile.h"

/** A logbook of two batteries that were flown and one that was not, in known figures. */
namespace Flown {

using namespace Qt::Literals::StringLiterals;

inline QDateTime noon(int year, int month, int day)
{
    return QDateTime(QDate(year, month, day), QTime(12, 0));
}

inline Test::Battery battery(const QString &name, unsigned int capacity,
                             const QList<Test::Discharge> &history)
{
    Test::Battery battery;
    battery.name = name;
    battery.capacity = capacity;
    battery.history = history;
    battery.lastUse = QDateTime();
    return battery;
}

inline Test::Flight flight(const QDateTime &time, const QString &location, int minutes)
{
    Test::Flight flight;
    flight.date = time;
    flight.location = location;
    flight.duration = QTime(0, minutes);
    return flight;
}

inline Test::Model model(const QString &name, const QList<Test::Flight> &flights)
{
    Test::Model model;
    model.name = name;
    model.flights = flights;
    return model;
}

/**
 * Pack A, 2,000 mAh at 25 C: 1,000 and 1,400 mAh entered, 1,600 mAh guessed. Pack B: one discharge that is
 * guessed. Pack C: none. One flight for each discharge, of two models at two places.
 */
inline Test::Catalogue catalogue()
{
    Test::Catalogue all;
    all.batteries = {
        battery(
            u"Pack A"_s, 2000,
            {{noon(2026, 3, 1), 1000, 2000}, {noon(2026, 5, 1), 1400, 4000}, {noon(2026, 5, 2), 1600, 5000}}),
        battery(u"Pack B"_s, 1000, {{noon(2026, 5, 3), 800, 2500}}), battery(u"Pack C"_s, 1300, {})};
    all.models = {
        model(u"Kestrel"_s, {flight(noon(2026, 3, 1), u"Meadow"_s, 5), flight(noon(2026, 5, 1), u"Hill"_s, 7),
                             flight(noon(2026, 5, 2), u"Meadow"_s, 8)}),
        model(u"Wren"_s, {flight(noon(2026, 5, 3), u"Meadow"_s, 9)})};
    return all;
}

inline QByteArray logbook()
{
    return Test::document(catalogue());
}

} // namespace Flown
