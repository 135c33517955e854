// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/statistics/advice.h"

#include "host/data/flightindex.h"
#include "host/data/sources.h"
#include "host/statistics/advicetexts.h"
#include "host/statistics/figures.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr double Tenths = 10.0; // hundredths of an ampere and mAh give C
constexpr double Tiny = 1e-6;   // seconds that are lost in the arithmetic alone

/** Works the advice of one day out. */
class Adviser
{
public:
    Adviser(const Catalogue &catalogue, QDate today, const AdviceLimits &limits)
        : m_catalogue(catalogue)
        , m_today(today)
        , m_limits(limits)
        , m_index(catalogue)
    {
    }

    QList<Advice> work();

private:
    void storage(const Battery &battery);
    void deep(const Battery &battery);
    void load(const Battery &battery);
    void cold(const Battery &battery);
    void idle(const Battery &battery);
    void age(const Battery &battery);
    void timers(const Battery &battery);

    bool isOver(const QDateTime &time) const { return time.isValid() && time.date() <= m_today; }
    QList<Discharge> lastCounted(const Battery &battery) const;
    void add(const Battery &battery, AdviceKind kind, Severity severity, double value, const QString &text)
    {
        m_advice.append({battery.name, QString(), kind, severity, value, text});
    }

    const Catalogue &m_catalogue;
    const QDate m_today;
    const AdviceLimits m_limits;
    const FlightIndex m_index;
    QList<Advice> m_advice;
};

/** The battery as it was known at the end of the day. */
Battery asOf(const Battery &battery, QDate today)
{
    Battery known = battery;
    known.discharges.removeIf([&](const Discharge &discharge) {
        return discharge.time.isValid() && discharge.time.date() > today;
    });
    if (known.lastUse.isValid() && known.lastUse.date() > today)
        known.lastUse = QDateTime();
    return known;
}

QList<Advice> Adviser::work()
{
    for (const Battery &battery : m_catalogue.batteries) {
        const Battery known = asOf(battery, m_today);
        storage(known);
        deep(known);
        load(known);
        cold(known);
        idle(known);
        age(known);
        timers(known);
    }
    const auto rank = [](const Advice &advice) {
        return std::make_tuple(advice.severity == Severity::Warning ? 0 : 1, advice.kind, -advice.value);
    };
    std::stable_sort(m_advice.begin(), m_advice.end(), [&](const Advice &a, const Advice &b) {
        if (rank(a) != rank(b))
            return rank(a) < rank(b);
        return std::make_pair(a.battery.toUcs4(), a.model.toUcs4()) <
               std::make_pair(b.battery.toUcs4(), b.model.toUcs4());
    });
    return m_advice;
}

/** The last counted discharges by time, the newest first; those without a time are not among them. */
QList<Discharge> Adviser::lastCounted(const Battery &battery) const
{
    QList<Discharge> counted;
    std::copy_if(battery.discharges.cbegin(), battery.discharges.cend(), std::back_inserter(counted),
                 [&](const Discharge &discharge) {
                     return discharge.time.isValid() && isCounted(battery, discharge);
                 });
    std::stable_sort(counted.begin(), counted.end(),
                     [](const Discharge &a, const Discharge &b) { return a.time > b.time; });
    return counted.first(std::min<qsizetype>(counted.size(), m_limits.lastDischarges));
}

void Adviser::storage(const Battery &battery)
{
    const std::optional<qint64> days = daysSinceUse(battery, m_today);
    if (!battery.charged || !days || *days < m_limits.storageNoticeDays)
        return;
    const bool isLong = *days >= m_limits.storageWarningDays;
    add(battery, AdviceKind::Storage, isLong ? Severity::Warning : Severity::Notice,
        static_cast<double>(*days), AdviceTexts::storage(battery.name, *days));
}

void Adviser::deep(const Battery &battery)
{
    const quint64 capacity = battery.capacity;
    if (capacity == 0)
        return;
    quint64 deepest = 0;
    int veryDeep = 0;
    for (const Discharge &discharge : lastCounted(battery)) {
        const quint64 percents = quint64(discharge.discharged) * 100;
        deepest = std::max<quint64>(deepest, discharge.discharged);
        veryDeep += percents > capacity * static_cast<quint64>(m_limits.veryDeepPercent) ? 1 : 0;
    }
    if (deepest * 100 <= capacity * static_cast<quint64>(m_limits.deepPercent))
        return;
    const double share = static_cast<double>(deepest) / static_cast<double>(capacity);
    const bool isOften = veryDeep >= m_limits.veryDeepCount;
    add(battery, AdviceKind::Deep, isOften ? Severity::Warning : Severity::Notice, share,
        AdviceTexts::deep(battery.name, share));
}

void Adviser::load(const Battery &battery)
{
    if (battery.capacity == 0 || battery.rating == 0)
        return;
    unsigned int highest = 0;
    for (const Discharge &discharge : lastCounted(battery))
        highest = std::max(highest, discharge.current);
    if (highest <= presetCurrent(battery)) // the label's limit as the page shows it
        return;
    const double load = highest * Tenths / battery.capacity;
    add(battery, AdviceKind::Load, Severity::Warning, load,
        AdviceTexts::load(battery.name, load, battery.rating));
}

void Adviser::cold(const Battery &battery)
{
    const Flight *newest = nullptr;
    for (const Discharge &discharge : battery.discharges) {
        const QList<FlightIndex::Entry> flights = m_index.flightsAt(discharge.time);
        if (!flights.isEmpty() && (!newest || discharge.time > newest->time))
            newest = flights.constFirst().flight;
    }
    if (!newest || newest->time.date().daysTo(m_today) > m_limits.coldDays)
        return;
    const int temperature = newest->temperature;
    if (temperature >= m_limits.coldBelow || temperature == 0) // 0 is what an untouched field says
        return;
    add(battery, AdviceKind::Cold, Severity::Notice, temperature,
        AdviceTexts::cold(battery.name, temperature));
}

void Adviser::idle(const Battery &battery)
{
    const std::optional<qint64> days = daysSinceUse(battery, m_today);
    if (days && *days >= m_limits.idleDays)
        add(battery, AdviceKind::Idle, Severity::Notice, static_cast<double>(*days),
            AdviceTexts::idle(battery.name, *days));
}

void Adviser::age(const Battery &battery)
{
    const std::optional<qint64> days = ageInDays(battery, m_today);
    if (days && battery.purchase.addYears(m_limits.ageYears) <= m_today)
        add(battery, AdviceKind::Age, Severity::Notice, static_cast<double>(*days),
            AdviceTexts::age(battery.name, battery.purchase));
}

/** How long each model may fly on the battery. */
void Adviser::timers(const Battery &battery)
{
    if (battery.capacity == 0)
        return;
    struct Draw
    {
        QDateTime time;
        double perMinute; // mAh
    };
    QHash<const Model *, QList<Draw>> draws;
    for (const Discharge &discharge : battery.discharges) {
        const FlightIndex::Entry entry = m_index.timedFlightAt(discharge.time);
        if (!entry.flight || discharge.discharged == 0 || !isCounted(battery, discharge))
            continue;
        draws[entry.model].append({discharge.time, discharge.discharged * 60.0 / entry.flight->seconds()});
    }
    for (auto it = draws.begin(); it != draws.end(); ++it) {
        QList<Draw> &flights = it.value();
        if (flights.size() < m_limits.timerFlights)
            continue;
        std::stable_sort(flights.begin(), flights.end(),
                         [](const Draw &a, const Draw &b) { return a.time > b.time; });
        QList<double> last;
        for (const Draw &draw : flights.first(std::min<qsizetype>(flights.size(), m_limits.lastDischarges)))
            last.append(draw.perMinute);
        const double seconds = m_limits.timerPercent / 100.0 * battery.capacity / *median(last) * 60.0;
        const double set = std::floor((seconds + Tiny) / m_limits.timerStep) * m_limits.timerStep;
        if (set < m_limits.timerStep)
            continue;
        m_advice.append({battery.name, it.key()->name, AdviceKind::Timer, Severity::Notice, set,
                         AdviceTexts::timer(battery.name, it.key()->name, static_cast<int>(set))});
    }
}

} // namespace

QList<Advice> adviceFor(const Catalogue &catalogue, QDate today, const AdviceLimits &limits)
{
    return Adviser(catalogue, today, limits).work();
}

QString adviceKey(AdviceKind kind)
{
    switch (kind) {
    case AdviceKind::Storage:
        return u"storage"_s;
    case AdviceKind::Deep:
        return u"deep"_s;
    case AdviceKind::Load:
        return u"load"_s;
    case AdviceKind::Cold:
        return u"cold"_s;
    case AdviceKind::Idle:
        return u"idle"_s;
    case AdviceKind::Age:
        return u"age"_s;
    case AdviceKind::Timer:
        return u"timer"_s;
    }
    return QString();
}

QString severityKey(Severity severity)
{
    return severity == Severity::Warning ? u"warning"_s : u"notice"_s;
}

} // namespace Host
