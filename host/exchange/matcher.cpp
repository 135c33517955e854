// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/matcher.h"

#include "host/data/sources.h"

#include <QHash>

namespace Host {
namespace {

constexpr qint64 Second = 1000;                  // ms, also in the numbers of clocks
constexpr qint64 BeforeStart = qint64(5) * 60;   // s
constexpr qint64 AfterEnd = qint64(3) * 60 * 60; // s
constexpr double LeastShare = 0.02;              // of the capacity

qint64 endOf(const ImportedDischarge &discharge)
{
    qint64 end = discharge.whole.end;
    for (const Session &part : discharge.parts)
        end = std::max(end, part.end);
    return end / Second;
}

/** Whether this says nothing about a battery of that capacity. */
bool isTooLittle(const ImportedDischarge &discharge, unsigned int capacity)
{
    return discharge.discharged == 0U || *discharge.whole.discharged < LeastShare * capacity;
}

} // namespace

/** Whether a flight holds already what it would get: an earlier import filled it, and its record was lost. */
bool Matcher::saysTheSame(const ImportedDischarge &discharge, const Flight &flight,
                          const Discharge &found) const
{
    constexpr qint64 MostDelay = 60; // s, by which a time that was taken may be later
    const qint64 moment = momentOf(flight.time);
    const qint64 meant = discharge.moment.value_or(moment);
    return moment >= meant && moment - meant <= MostDelay &&
           flight.duration == discharge.duration.value_or(flight.duration) &&
           found.discharged == discharge.discharged &&
           found.current == discharge.current.value_or(found.current);
}

const std::vector<Matcher::TimedFlight> &Matcher::logOf(qsizetype model)
{
    const auto known = m_logs.constFind(model);
    if (known != m_logs.cend())
        return *known;
    std::vector<TimedFlight> &sorted = m_logs[model];
    const QList<Flight> &log = m_catalogue.models.at(model).log;
    for (qsizetype i = 0; i < log.size(); ++i)
        sorted.emplace_back(momentOf(log.at(i).time), i);
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

/** In the order of the log. */
QList<qsizetype> Matcher::flightsBetween(qsizetype model, qint64 from, qint64 to)
{
    QList<qsizetype> flights;
    const std::vector<TimedFlight> &log = logOf(model);
    auto flight = std::lower_bound(log.cbegin(), log.cend(), TimedFlight(from, 0));
    for (; flight != log.cend() && flight->first <= to; ++flight)
        flights.append(flight->second);
    std::sort(flights.begin(), flights.end());
    return flights;
}

QList<Matcher::Pair> Matcher::pairsOf(const ImportedDischarge &discharge, qsizetype index)
{
    QList<Pair> pairs;
    const qsizetype model = indexOfName(m_catalogue.models, discharge.model);
    if (model < 0)
        return pairs;
    const QList<Flight> &log = m_catalogue.models.at(model).log;
    const qint64 start = discharge.whole.start / Second;
    const qint64 end = endOf(discharge);
    const QList<qsizetype> near = flightsBetween(model, start - BeforeStart, end + AfterEnd);
    for (const qsizetype i : near) {
        const qint64 moment = momentOf(log.at(i).time);
        Pair pair{std::max<qint64>({start - moment, moment - end, 0}), moment, i, index, {}, {}};
        const QList<DischargePlace> places = m_moments.firstDischargesAt(moment);
        const auto at = [this](const DischargePlace &place) -> const Discharge & {
            return m_catalogue.batteries.at(place.battery).discharges.at(place.discharge);
        };
        if (std::any_of(places.cbegin(), places.cend(),
                        [&](const DischargePlace &place) { return at(place).isMeasured; }))
            continue; // another log has filled it
        if (!places.isEmpty())
            pair.place = places.constFirst();
        if (places.isEmpty())
            pair.kind = Candidate::WithoutDischarge;
        else if (places.size() > 1 || m_moments.flightsAt(moment) > 1)
            pair.kind = Candidate::SeveralBatteries;
        else if (sourceOf(m_catalogue.batteries.at(pair.place->battery), at(*pair.place)) ==
                     Source::Entered &&
                 !m_options.replacesEntered && !saysTheSame(discharge, log.at(i), at(*pair.place)))
            pair.kind = Candidate::Entered;
        pairs.append(pair);
    }
    return pairs;
}

void Matcher::match(QList<ImportedDischarge> &discharges)
{
    QList<Pair> all;
    QHash<qsizetype, QList<Pair>> pairsOfEach;
    for (qsizetype i = 0; i < discharges.size(); ++i) {
        if (isDecided(discharges[i]))
            continue;
        QList<Pair> &pairs = pairsOfEach[i];
        pairs = pairsOf(discharges.at(i), i);
        std::copy_if(pairs.cbegin(), pairs.cend(), std::back_inserter(all), [&](const Pair &pair) {
            return !pair.place ||
                   !isTooLittle(discharges.at(i), m_catalogue.batteries.at(pair.place->battery).capacity);
        });
    }
    std::sort(all.begin(), all.end());
    QSet<std::pair<qsizetype, qsizetype>> flights;
    QSet<qsizetype> done;
    for (const Pair &pair : std::as_const(all)) {
        ImportedDischarge &discharge = discharges[pair.discharge];
        const std::pair place(indexOfName(m_catalogue.models, discharge.model), pair.flight);
        if (done.contains(pair.discharge) || flights.contains(place))
            continue;
        done.insert(pair.discharge);
        flights.insert(place);
        if (pair.kind == Candidate::Fillable)
            fill(discharge, pair);
        else
            leave(discharge, {pair});
    }
    for (qsizetype i = 0; i < discharges.size(); ++i) {
        if (pairsOfEach.contains(i) && !done.contains(i))
            leave(discharges[i], pairsOfEach.value(i));
    }
}

void Matcher::fill(ImportedDischarge &discharge, const Pair &pair) const
{
    const Battery &battery = m_catalogue.batteries.at(pair.place->battery);
    discharge.action = ImportAction::Fill;
    discharge.flight = FlightPlace{indexOfName(m_catalogue.models, discharge.model), pair.flight};
    discharge.discharge = pair.place;
    discharge.battery = battery.name;
    discharge.time = timeOf(pair.moment);
    const Discharge &found = battery.discharges.at(pair.place->discharge);
    if (!discharge.current && sourceOf(battery, found) == Source::Guessed)
        discharge.current = 0; // a guess never passes for a measured value
}

/** A discharge without a flight that it could fill. */
void Matcher::leave(ImportedDischarge &discharge, const QList<Pair> &pairs)
{
    for (const Pair &pair : pairs) {
        if (pair.place && isTooLittle(discharge, m_catalogue.batteries.at(pair.place->battery).capacity)) {
            discharge.battery = m_catalogue.batteries.at(pair.place->battery).name;
            return decide(discharge, ImportAction::Bench, ImportReason::TooLittle);
        }
    }
    for (const Pair &pair : pairs) {
        if (pair.kind == Candidate::Entered)
            return decide(discharge, ImportAction::None, ImportReason::Entered);
        if (pair.kind == Candidate::WithoutDischarge)
            return decide(discharge, ImportAction::None, ImportReason::WithoutDischarge);
        if (pair.kind == Candidate::SeveralBatteries)
            return decide(discharge, ImportAction::None, ImportReason::SeveralBatteries);
    }
    offer(discharge);
}

void Matcher::offer(ImportedDischarge &discharge)
{
    discharge.action = ImportAction::New;
    if (!discharge.moment)
        discharge.moment = discharge.whole.start / Second;
    discharge.batteryIndex = m_options.battery.isEmpty()
                                 ? proposedBattery(discharge)
                                 : indexOfName(m_catalogue.batteries, m_options.battery);
    if (indexOfName(m_catalogue.models, discharge.model) < 0)
        discharge.reasons.append(ImportReason::NoSuchModel);
    if (discharge.batteryIndex < 0) {
        if (isTooLittle(discharge, 0))
            decide(discharge, ImportAction::Bench, ImportReason::TooLittle);
        else
            discharge.reasons.append(ImportReason::NoBattery);
        return;
    }
    const Battery &battery = m_catalogue.batteries.at(discharge.batteryIndex);
    discharge.battery = battery.name;
    if (isTooLittle(discharge, battery.capacity))
        decide(discharge, ImportAction::Bench, ImportReason::TooLittle);
    else
        m_proposed.insert(discharge.batteryIndex);
}

/**
 * The battery that a flight was probably flown with that nobody has recorded: it could give as much, it is
 * still thought to be charged, and it was charged last. One that another such flight has is the last choice.
 */
qsizetype Matcher::proposedBattery(const ImportedDischarge &discharge) const
{
    const qsizetype model = indexOfName(m_catalogue.models, discharge.model);
    if (model < 0)
        return -1;
    const auto worth = [&](qsizetype index) {
        const Battery &battery = m_catalogue.batteries.at(index);
        return std::tuple(!m_proposed.contains(index), *discharge.whole.discharged <= battery.capacity,
                          battery.charged, momentOf(battery.lastUse));
    };
    qsizetype best = -1;
    for (const QString &name : m_catalogue.models.at(model).batteries) {
        const qsizetype index = indexOfName(m_catalogue.batteries, name);
        if (index >= 0 && (best < 0 || worth(index) > worth(best)))
            best = index;
    }
    return best;
}

} // namespace Host
