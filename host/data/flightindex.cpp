// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/flightindex.h"

#include "host/data/moments.h"

#include <algorithm>

namespace Host {

FlightIndex::FlightIndex(const Catalogue &catalogue)
{
    for (const Model &model : catalogue.models) {
        for (const Flight &flight : model.log) {
            if (flight.time.isValid())
                m_flights[momentOf(flight.time)].append({&model, &flight});
        }
    }
    for (const Battery &battery : catalogue.batteries) {
        for (const Discharge &discharge : battery.discharges) {
            if (!discharge.time.isValid())
                continue;
            QList<const Battery *> &there = m_batteries[momentOf(discharge.time)];
            if (there.isEmpty() || there.constLast() != &battery)
                there.append(&battery);
        }
    }
}

QList<FlightIndex::Entry> FlightIndex::flightsAt(const QDateTime &time) const
{
    return time.isValid() ? m_flights.value(momentOf(time)) : QList<Entry>();
}

FlightIndex::Entry FlightIndex::timedFlightAt(const QDateTime &time) const
{
    const QList<Entry> flights = flightsAt(time);
    const auto found = std::find_if(flights.cbegin(), flights.cend(),
                                    [](const Entry &entry) { return entry.flight->seconds() > 0; });
    return found == flights.cend() ? Entry{nullptr, nullptr} : *found;
}

QList<const Battery *> FlightIndex::batteriesAt(const QDateTime &time) const
{
    return time.isValid() ? m_batteries.value(momentOf(time)) : QList<const Battery *>();
}

} // namespace Host
