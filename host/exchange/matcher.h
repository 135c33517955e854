// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/matching.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

namespace Host {

template <typename Record>
qsizetype indexOfName(const QList<Record> &records, const QString &name)
{
    const auto found = std::find_if(records.cbegin(), records.cend(),
                                    [&](const Record &record) { return record.name == name; });
    return found == records.cend() ? -1 : found - records.cbegin();
}

/** The reason for what is done stands first. */
inline void decide(ImportedDischarge &discharge, ImportAction action, ImportReason reason)
{
    discharge.action = action;
    discharge.reasons.prepend(reason);
}

/** Finds the flights that the discharges of an import were. */
class Matcher
{
public:
    /** All of these outlive it. */
    Matcher(const Catalogue &catalogue, const Measured &measured, const MatchOptions &options)
        : m_catalogue(catalogue)
        , m_measured(measured)
        , m_options(options)
        , m_moments(catalogue)
    {
    }

    /** Completes discharges of which the sessions are known. */
    void match(QList<ImportedDischarge> &discharges);

private:
    enum class Candidate { Fillable, Entered, WithoutDischarge, SeveralBatteries };

    /** A flight in the window of a discharge. */
    struct Pair
    {
        qint64 distance = 0; ///< s from the discharge's span
        qint64 moment = 0;
        qsizetype flight = 0;    ///< in its model's log
        qsizetype discharge = 0; ///< of the import
        Candidate kind = Candidate::Fillable;
        std::optional<DischargePlace> place;

        bool operator<(const Pair &other) const
        {
            return std::tie(distance, moment, flight, discharge) <
                   std::tie(other.distance, other.moment, other.flight, other.discharge);
        }
    };

    /** A time, and where the flight of it stands in its model's log. */
    using TimedFlight = std::pair<qint64, qsizetype>;

    bool isDecided(ImportedDischarge &discharge) const;
    bool goesOn(ImportedDischarge &discharge) const;
    const std::vector<TimedFlight> &logOf(qsizetype model);
    QList<qsizetype> flightsBetween(qsizetype model, qint64 from, qint64 to);
    QList<Pair> pairsOf(const ImportedDischarge &discharge, qsizetype index);
    bool saysTheSame(const ImportedDischarge &discharge, const Flight &flight, const Discharge &found) const;
    void fill(ImportedDischarge &discharge, const Pair &pair) const;
    void leave(ImportedDischarge &discharge, const QList<Pair> &pairs);
    void offer(ImportedDischarge &discharge);
    qsizetype proposedBattery(const ImportedDischarge &discharge) const;

    const Catalogue &m_catalogue;
    const Measured &m_measured;
    const MatchOptions &m_options;
    const Moments m_moments;
    QHash<qsizetype, std::vector<TimedFlight>> m_logs; ///< of the models that were asked for, sorted
    QSet<qsizetype> m_proposed;                        ///< batteries
};

} // namespace Host
