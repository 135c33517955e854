// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

/** A small logbook as plain values, for tests of what works on these. */
namespace PlainLogbook {

inline QDateTime at(int hour, int minute, int second = 0)
{
    return QDateTime(QDate(2026, 5, 3), QTime(hour, minute, second));
}

inline Host::Flight flight(const QDateTime &time, const QString &location = QStringLiteral("Meadow"))
{
    return {time, QTime(0, 6, 30), location, 18, QStringLiteral("calm")};
}

inline Host::Battery battery(const QString &name, const QList<Host::Discharge> &discharges = {})
{
    Host::Battery battery;
    battery.name = name;
    battery.capacity = 2200;
    battery.rating = 25;
    battery.cycles = 10;
    battery.charged = true;
    battery.lastUse = at(8, 0);
    battery.discharges = discharges;
    return battery;
}

inline Host::Model model(const QString &name, const QStringList &batteries,
                         const QList<Host::Flight> &log = {})
{
    Host::Model model;
    model.name = name;
    model.flights = 20;
    model.batteries = batteries;
    model.log = log;
    return model;
}

/**
 * Skylark flew at 9:00 with A, at 10:00 with A and B and at 11:00 with nothing that is known; Firebrand at
 * 12:00 with B and once without a time. There is a third battery, C.
 */
inline Host::Catalogue logbook()
{
    const QStringList names{QStringLiteral("A"), QStringLiteral("B")};
    Host::Catalogue catalogue;
    catalogue.locations = {QStringLiteral("Meadow"), QStringLiteral("Hill")};
    catalogue.batteries = {battery(names.at(0), {{at(9, 0), 1500, 3000}, {at(10, 0), 1600, 3100}}),
                           battery(names.at(1), {{at(10, 0), 1650, 3150}, {at(12, 0), 1760, 5500}}),
                           battery(QStringLiteral("C"))};
    catalogue.models = {
        model(QStringLiteral("Skylark"), names,
              {flight(at(9, 0)), flight(at(10, 0), QStringLiteral("Hill")), flight(at(11, 0))}),
        model(QStringLiteral("Firebrand"), names,
              {flight(at(12, 0)), flight(QDateTime(), QStringLiteral("Beach"))})};
    return catalogue;
}

} // namespace PlainLogbook
