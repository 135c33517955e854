// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/datafile.h"

/** Catalogues and records that several tests start from. */
namespace Test {

/** The moment of flight @p number of a pilot who flies every hour from 15 November 2026, 12:04:22. */
inline QDateTime moment(int number)
{
    return QDateTime(QDate(2026, 11, 15), QTime(12, 4, 22)).addSecs(number * 3600);
}

/** Flights 0 to @p count - 1, each with its number as its notes. */
inline QList<Flight> flights(int count)
{
    QList<Flight> result;
    for (int i = 0; i < count; ++i) {
        Flight flight{moment(i)};
        flight.notes = QString::number(i);
        result.append(flight);
    }
    return result;
}

/** A charged battery that was flown once. */
inline Battery flownBattery(const QString &name, unsigned int capacity = 2200, unsigned int chargeRate = 20)
{
    return {name, true, {{QDateTime(QDate(2025, 11, 8), QTime(10, 30)), 1500, 4550}}, capacity, chargeRate};
}

/** A model that was flown once, with its batteries' names. */
inline Model flownModel(const QString &name, const QStringList &batteries = {}, unsigned int weight = 150)
{
    const QDateTime date(QDate(2025, 11, 8), QTime(10, 30));
    return {name, batteries, {{date, u"Meadow"_s, QTime(0, 7, 30), -5, u"windy"_s}}, weight};
}

/** Two locations and two models: "Heli" flies "Pack" and "Flat", "Plane" flies "Spare", nobody flies "Old".
 */
inline QByteArray hangar()
{
    Battery old{u"Old"_s};
    old.purchase = QDate();
    return document({{{u"Pack"_s, true}, {u"Spare"_s, true}, {u"Flat"_s}, old},
                     {{u"Heli"_s, {u"Pack"_s, u"Flat"_s}}, {u"Plane"_s, {u"Spare"_s}}},
                     {u"Meadow"_s, u"Hill"_s}});
}

} // namespace Test
