// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QDateTime>
#include <QList>

#include <limits>
#include <vector>

namespace Host {

/** Where a flight stands: in which model, and where in its log. */
struct FlightPlace
{
    qsizetype model = -1;
    qsizetype flight = -1;

    bool operator==(const FlightPlace &other) const { return model == other.model && flight == other.flight; }
    bool operator<(const FlightPlace &other) const
    {
        return model != other.model ? model < other.model : flight < other.flight;
    }
};

/** Where a discharge stands: in which battery, and where in its history. */
struct DischargePlace
{
    qsizetype battery = -1;
    qsizetype discharge = -1;

    bool operator==(const DischargePlace &other) const
    {
        return battery == other.battery && discharge == other.discharge;
    }
};

inline constexpr qint64 NoMoment = std::numeric_limits<qint64>::min();

/**
 * A local time as a number of seconds: what calendar and clock show, not an instant. Two times of a data file
 * are identical where these are, and no time zone is asked for them.
 *
 * @return NoMoment for an invalid time.
 */
qint64 momentOf(const QDateTime &time);

/** The time as it comes back from a data file; invalid where the clock does not show it. */
QDateTime timeOf(qint64 moment);
QDateTime timeOf(QDate date, QTime clock);

/**
 * Which flights and discharges stand at which time, by their places. Those at the identical valid time belong
 * together.
 */
class Moments
{
public:
    explicit Moments(const Catalogue &catalogue);

    /** How many flights of all models stand at a time. */
    qsizetype flightsAt(qint64 moment) const;
    /** The discharges at a time, in the order of the file. A battery may have several. */
    QList<DischargePlace> dischargesAt(qint64 moment) const;
    /** The first discharge of each battery at a time: those of the flight there. */
    QList<DischargePlace> firstDischargesAt(qint64 moment) const;

private:
    struct Entry
    {
        qint64 moment;
        DischargePlace place;
    };

    std::vector<qint64> m_flights; // sorted, both
    std::vector<Entry> m_discharges;
};

} // namespace Host
