// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QHash>
#include <QList>

namespace Host {

/**
 * Which flights and which batteries' discharges belong together: those at the identical valid time.
 *
 * Refers to the catalogue, which must neither change nor go.
 */
class FlightIndex
{
public:
    struct Entry
    {
        const Model *model;
        const Flight *flight;
    };

    explicit FlightIndex(const Catalogue &catalogue);

    /** The flights of all models at a time, in the order of the file. */
    QList<Entry> flightsAt(const QDateTime &time) const;
    /** The first of them that has a duration; its members are null when there is none. */
    Entry timedFlightAt(const QDateTime &time) const;
    /** The batteries with a discharge at a time, each once, in the order of the file. */
    QList<const Battery *> batteriesAt(const QDateTime &time) const;

private:
    QHash<qint64, QList<Entry>> m_flights; // by momentOf()
    QHash<qint64, QList<const Battery *>> m_batteries;
};

} // namespace Host
