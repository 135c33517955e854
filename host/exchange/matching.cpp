// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/matcher.h"

#include "host/data/edits.h"
#include "host/exchange/matchinggroups.h"
#include "host/exchange/sessionvalues.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qint64 Second = 1000;       // ms, also in the numbers of clocks
constexpr double ShortestFlight = 20; // s
constexpr int HundredthsOfAmpere = 100;
constexpr qint64 LongestDay = 24 * 60 * 60 - 1; // s, that a duration of the logbook can tell

/** What the logbook would get. */
void setValues(ImportedDischarge &discharge)
{
    const Session &whole = discharge.whole;
    if (whole.flightStart)
        discharge.moment = *whole.flightStart / Second;
    if (whole.duration) {
        const qint64 seconds = std::clamp<qint64>(std::llround(*whole.duration), 0, LongestDay);
        discharge.duration = QTime(0, 0).addSecs(static_cast<int>(seconds));
    }
    if (whole.discharged) {
        const double most = Edits::MostDischarge;
        if (std::round(*whole.discharged) > most)
            discharge.reasons.append(ImportReason::DischargeClamped);
        discharge.discharged =
            static_cast<unsigned int>(std::round(std::clamp(*whole.discharged, 0.0, most)));
    }
    if (whole.highestCurrent) {
        const double hundredths = std::round(*whole.highestCurrent * HundredthsOfAmpere);
        if (hundredths > Edits::MostCurrent)
            discharge.reasons.append(ImportReason::CurrentClamped);
        discharge.current = static_cast<unsigned int>(std::clamp<double>(hundredths, 0, Edits::MostCurrent));
    }
    const bool isDoubtful = std::any_of(discharge.parts.cbegin(), discharge.parts.cend(),
                                        [](const Session &part) { return part.doubtful.value_or(false); });
    if (isDoubtful)
        discharge.reasons.append(ImportReason::Doubtful);
}

} // namespace

/** Whether no flight has to be looked for. */
bool Matcher::isDecided(ImportedDischarge &discharge) const
{
    const Session &whole = discharge.whole;
    setValues(discharge);
    if (!whole.isClockSet())
        decide(discharge, ImportAction::None, ImportReason::ClockNeverSet);
    else if (whole.duration && *whole.duration < ShortestFlight)
        decide(discharge, ImportAction::Bench, ImportReason::TooShort);
    else if (!whole.discharged)
        decide(discharge, ImportAction::None, ImportReason::NothingMeasured);
    else
        return goesOn(discharge);
    return true;
}

/** Whether an earlier import filled a flight from a part of this discharge. */
bool Matcher::goesOn(ImportedDischarge &discharge) const
{
    QSet<QString> ids;
    for (const Session &part : std::as_const(discharge.parts))
        ids.insert(sessionId(part));
    bool found = false;
    for (const MeasuredDischarge &entry : m_measured.discharges) {
        const bool isOfThis = std::any_of(entry.sessions.cbegin(), entry.sessions.cend(),
                                          [&](const QString &id) { return ids.contains(id); });
        const QList<DischargePlace> places =
            isOfThis ? m_moments.dischargesAt(entry.moment) : QList<DischargePlace>();
        const auto place = std::find_if(places.cbegin(), places.cend(), [&](const DischargePlace &candidate) {
            return m_catalogue.batteries.at(candidate.battery).name == entry.battery;
        });
        if (place == places.cend())
            continue;
        if (found) {
            discharge.discharge.reset();
            decide(discharge, ImportAction::None, ImportReason::TwoFlights);
            return true;
        }
        found = true;
        discharge.discharge = *place;
        discharge.battery = entry.battery;
        discharge.time = timeOf(entry.moment);
    }
    if (!found)
        return false;
    decide(discharge, ImportAction::Fill, ImportReason::GoesOn);
    for (qsizetype model = 0; model < m_catalogue.models.size(); ++model) {
        const QList<Flight> &log = m_catalogue.models.at(model).log;
        for (qsizetype i = 0; i < log.size(); ++i) {
            if (momentOf(log.at(i).time) == momentOf(discharge.time) && !discharge.flight)
                discharge.flight = FlightPlace{model, i};
        }
    }
    return true;
}

QString actionKey(ImportAction action)
{
    switch (action) {
    case ImportAction::Fill:
        return u"fill"_s;
    case ImportAction::New:
        return u"new"_s;
    case ImportAction::Known:
        return u"known"_s;
    case ImportAction::Bench:
        return u"bench"_s;
    case ImportAction::None:
        return u"none"_s;
    }
    return QString();
}

QString modelOf(const QString &logged, const Catalogue &catalogue, const Measured &measured)
{
    const QString chosen = measured.models.value(logged);
    if (indexOfName(catalogue.models, chosen) >= 0)
        return chosen;
    const QString spaced = QString(logged).replace(u'_', u' '); // which radios write for a space
    const bool isSpaced =
        indexOfName(catalogue.models, logged) < 0 && indexOfName(catalogue.models, spaced) >= 0;
    return isSpaced ? spaced : logged;
}

ImportPlan matched(const QList<ImportedLog> &logs, const Catalogue &catalogue, const Measured &measured,
                   const MatchOptions &options)
{
    const SessionGroups groups(logs, catalogue, measured, options);
    ImportPlan plan{groups.discharges(), groups.sessions()};
    Matcher(catalogue, measured, options).match(plan.discharges);
    for (QList<ImportedSession> &sessions : plan.sessions) {
        for (ImportedSession &session : sessions) {
            if (session.discharge < 0 || session.session.continues)
                continue;
            session.action = plan.discharges.at(session.discharge).action;
            session.reasons = plan.discharges.at(session.discharge).reasons;
        }
    }
    return plan;
}

} // namespace Host
