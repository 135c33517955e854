// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/importing.h"

#include "host/data/edits.h"
#include "host/exchange/sessionvalues.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <utility>

namespace Host {
namespace {

template <typename Value>
void add(std::optional<Value> &sum, const std::optional<Value> &value)
{
    if (value)
        sum = sum.value_or(0) + *value;
}

/** What is known of a discharge beyond what the logbook holds. */
MeasuredDischarge entryOf(const ImportedDischarge &discharge, const QList<ImportedLog> &logs,
                          const Measured &measured)
{
    MeasuredDischarge entry;
    entry.sha256 = discharge.whole.sha256;
    entry.capacity = discharge.whole.capacity;
    for (const Session &part : discharge.parts) {
        add(entry.counter, part.counter);
        add(entry.integral, part.integral);
        entry.rejectedCurrents += part.rejectedCurrents;
        entry.rejectedVoltages += part.rejectedVoltages;
        if (!entry.restBefore)
            entry.restBefore = part.restBefore;
        if (part.restAfter)
            entry.restAfter = part.restAfter;
        if (part.minVoltage)
            entry.minVoltage = std::min(entry.minVoltage.value_or(*part.minVoltage), *part.minVoltage);
        if (!entry.resistance)
            entry.resistance = part.resistance;
        entry.sessions.append(sessionId(part));
    }
    if (const KnownLog *known = measured.logOf(entry.sha256))
        entry.log = known->name;
    for (const ImportedLog &log : logs) {
        if (log.sha256 == entry.sha256)
            entry.log = QFileInfo(log.path).fileName();
    }
    return entry;
}

/** Does one import after the other to values that nobody else sees yet. */
class Importer
{
public:
    Importer(const Catalogue &catalogue, const Measured &measured, const QList<ImportedLog> &logs)
        : m_catalogue(catalogue)
        , m_measured(measured)
        , m_logs(logs)
    {
    }

    QString apply(const ImportedDischarge &discharge);
    void learn(const ImportPlan &plan);
    const Catalogue &catalogue() const { return m_catalogue; }
    const Measured &measured() const { return m_measured; }

private:
    QString fill(const ImportedDischarge &discharge);
    QString addNew(const ImportedDischarge &discharge);
    QDateTime settledTime(const QDateTime &present, qint64 wanted, qsizetype battery) const;
    void remember(const ImportedDischarge &discharge, const QString &battery, qint64 before, qint64 after);

    Catalogue m_catalogue;
    Measured m_measured;
    const QList<ImportedLog> &m_logs;
    QSet<QString> m_applied; ///< SHA-256 of logs
};

QString Importer::apply(const ImportedDischarge &discharge)
{
    const QString problem = discharge.action == ImportAction::Fill ? fill(discharge) : addNew(discharge);
    for (const Session &part : discharge.parts)
        m_applied.insert(part.sha256);
    return problem;
}

/** A flight that stands later only because its time is taken stays there, however often it is filled. */
QDateTime Importer::settledTime(const QDateTime &present, qint64 wanted, qsizetype battery) const
{
    const Moments moments(m_catalogue);
    const auto isTaken = [&](qint64 moment) {
        const QList<DischargePlace> there = moments.dischargesAt(moment);
        return moments.flightsAt(moment) > 0 ||
               std::any_of(there.cbegin(), there.cend(),
                           [&](const DischargePlace &place) { return place.battery == battery; });
    };
    qint64 moment = wanted;
    while (moment < momentOf(present) && (isTaken(moment) || !timeOf(moment).isValid()))
        ++moment;
    while (moment != momentOf(present) && !timeOf(moment).isValid())
        ++moment;
    return moment == momentOf(present) ? present : timeOf(moment);
}

QString Importer::fill(const ImportedDischarge &discharge)
{
    const DischargePlace place = *discharge.discharge;
    const auto found = [&]() -> Discharge & {
        return m_catalogue.batteries[place.battery].discharges[place.discharge];
    };
    const qint64 before = momentOf(found().time);
    if (discharge.flight) {
        Flight flight = m_catalogue.models.at(discharge.flight->model).log.at(discharge.flight->flight);
        flight.duration = discharge.duration.value_or(flight.duration);
        if (discharge.moment)
            flight.time = settledTime(flight.time, *discharge.moment, place.battery);
        if (const QString problem = Edits::editFlight(m_catalogue, *discharge.flight, flight);
            !problem.isEmpty())
            return problem;
    }
    const QString problem = Edits::editDischarge(m_catalogue, place, *discharge.discharged,
                                                 discharge.current.value_or(found().current));
    if (problem.isEmpty())
        remember(discharge, m_catalogue.batteries.at(place.battery).name, before, momentOf(found().time));
    return problem;
}

QString Importer::addNew(const ImportedDischarge &discharge)
{
    const Edits::NewDischarge values{discharge.batteryIndex, *discharge.discharged,
                                     discharge.current.value_or(0)};
    qint64 moment = *discharge.moment;
    while (!timeOf(moment).isValid())
        ++moment;
    const auto named = [&](const Model &model) { return model.name == discharge.model; };
    const auto model = std::find_if(m_catalogue.models.cbegin(), m_catalogue.models.cend(), named);
    QString problem;
    if (model != m_catalogue.models.cend()) {
        const Flight flight{timeOf(moment), discharge.duration.value_or(QTime(0, 0)), {}, 0, {}};
        problem = Edits::addFlight(m_catalogue, model - m_catalogue.models.cbegin(), flight, values);
    } else {
        problem = Edits::addDischarge(m_catalogue, timeOf(moment), values);
    }
    const Battery &battery = m_catalogue.batteries.at(discharge.batteryIndex);
    if (problem.isEmpty())
        remember(discharge, battery.name, NoMoment, momentOf(battery.discharges.constLast().time));
    return problem;
}

void Importer::remember(const ImportedDischarge &discharge, const QString &battery, qint64 before,
                        qint64 after)
{
    MeasuredDischarge entry = entryOf(discharge, m_logs, m_measured);
    entry.battery = battery;
    entry.moment = after;
    m_measured.discharges.removeIf([&](const MeasuredDischarge &gone) { // of one that is no longer there
        return after != before && gone.battery == battery && gone.moment == after;
    });
    for (MeasuredDischarge &known : m_measured.discharges) {
        if (known.battery != battery || known.moment != before)
            continue;
        entry.others = known.others;
        known = entry;
        return;
    }
    m_measured.discharges.append(entry);
}

/** The logs of what was done are known now, with all of their sessions. */
void Importer::learn(const ImportPlan &plan)
{
    for (qsizetype i = 0; i < m_logs.size(); ++i) {
        const ImportedLog &log = m_logs.at(i);
        if (log.isKnown || !m_applied.contains(log.sha256) || m_measured.logOf(log.sha256))
            continue;
        KnownLog known{QFileInfo(log.path).fileName(),
                       log.sha256,
                       log.log.bytes,
                       log.log.rows,
                       log.log.skippedRows,
                       log.beginsWith,
                       {},
                       {}};
        for (const ImportedSession &session : plan.sessions.at(i))
            known.sessions.append(storedSession(session.session));
        m_measured.logs.append(known);
        const QString model =
            plan.sessions.at(i).isEmpty() ? QString() : plan.sessions.at(i).constFirst().session.model;
        const bool isName = std::any_of(m_catalogue.models.cbegin(), m_catalogue.models.cend(),
                                        [&](const Model &other) { return other.name == log.log.model; });
        if (!isName && !log.log.model.isEmpty() && model != log.log.model)
            m_measured.models.insert(log.log.model, model);
    }
}

} // namespace

QString applyImport(Catalogue &catalogue, Measured &measured, const QList<ImportedLog> &logs,
                    const ImportPlan &plan, const QList<qsizetype> &chosen)
{
    Importer importer(catalogue, measured, logs);
    for (qsizetype i = 0; i < plan.discharges.size();
         ++i) { // in the order of time, whatever was chosen first
        const ImportedDischarge &discharge = plan.discharges.at(i);
        const bool isNew = discharge.action == ImportAction::New && discharge.batteryIndex >= 0;
        if (!chosen.contains(i) || (discharge.action != ImportAction::Fill && !isNew))
            continue;
        if (const QString problem = importer.apply(discharge); !problem.isEmpty())
            return problem;
    }
    importer.learn(plan);
    catalogue = importer.catalogue();
    measured = importer.measured();
    MeasuredFile::mark(catalogue, measured);
    return QString();
}

} // namespace Host
