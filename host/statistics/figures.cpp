// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/statistics/figures.h"

#include "host/data/flightindex.h"
#include "host/data/moments.h"
#include "host/data/sources.h"

#include <QHash>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr double SecondsOfAMinute = 60.0;
constexpr QStringView MonthFormat = u"yyyy-MM";

/** The first day of the month: far cheaper than its name, which is wanted once for many entries. */
QDate monthOf(const QDateTime &time)
{
    return time.date().addDays(1 - time.date().day());
}

double minutesOf(const Flight &flight)
{
    return flight.seconds() / SecondsOfAMinute;
}

std::optional<double> quotient(double dividend, double divisor)
{
    return divisor > 0.0 ? std::optional(dividend / divisor) : std::nullopt;
}

/** Counts names in the order in which they come. */
class Counter
{
public:
    void count(const QString &name)
    {
        const auto found = m_rows.constFind(name);
        if (found != m_rows.cend()) {
            ++m_counts[*found].second;
            return;
        }
        m_rows.insert(name, m_counts.size());
        m_counts.append({name, 1});
    }

    const Counts &counts() const { return m_counts; }

private:
    QHash<QString, qsizetype> m_rows;
    Counts m_counts;
};

/** Adds up what the flights and discharges of a range come to. */
class Totals
{
public:
    void add(const Flight &flight)
    {
        addTo(flight.time, [&](MonthFigures &figures) {
            ++figures.flights;
            figures.minutes += minutesOf(flight);
        });
    }

    void add(const Discharge &discharge)
    {
        addTo(discharge.time, [&](MonthFigures &figures) { figures.discharged += discharge.discharged; });
    }

    QList<MonthFigures> months() const
    {
        QMap<QDate, MonthFigures> named = m_months;
        for (auto month = named.begin(); month != named.end(); ++month)
            month->month = month.key().toString(MonthFormat);
        return named.values();
    }
    const MonthFigures &total() const { return m_total; }

private:
    template <typename Add>
    void addTo(const QDateTime &time, Add add)
    {
        add(m_total);
        if (!time.isValid())
            return;
        add(m_months[monthOf(time)]);
    }

    QMap<QDate, MonthFigures> m_months;
    MonthFigures m_total;
};

/** The flights at the times of a battery's discharges, each time once. */
class FlownTimes
{
public:
    explicit FlownTimes(const FlightIndex &index)
        : m_index(index)
    {
    }

    void add(const QDateTime &time, BatteryFigures &figures)
    {
        if (!time.isValid() || m_seen.contains(momentOf(time)))
            return;
        m_seen.insert(momentOf(time));
        const QList<FlightIndex::Entry> flights = m_index.flightsAt(time);
        for (const FlightIndex::Entry &entry : flights) {
            ++figures.flights;
            figures.minutes += minutesOf(*entry.flight);
            ++m_months[monthOf(time)];
        }
    }

    QMap<QString, int> months() const
    {
        QMap<QString, int> named;
        for (auto month = m_months.cbegin(); month != m_months.cend(); ++month)
            named.insert(month.key().toString(MonthFormat), month.value());
        return named;
    }

private:
    const FlightIndex &m_index;
    QSet<qint64> m_seen;
    QMap<QDate, int> m_months;
};

BatteryFigures figuresOfBattery(const Battery &battery, const FlightIndex &index, const DateRange &range,
                                QDate today)
{
    BatteryFigures figures;
    figures.name = battery.name;
    QList<double> depths;
    double countedCharge = 0.0; // mAh of the flights with a duration, and their minutes
    double countedMinutes = 0.0;
    unsigned int highest = 0;
    FlownTimes flown(index);
    for (const Discharge &discharge : battery.discharges) {
        if (!range.contains(discharge.time))
            continue;
        ++figures.discharges;
        figures.dischargedTotal += discharge.discharged;
        flown.add(discharge.time, figures);
        const Source source = sourceOf(battery, discharge);
        if (source == Source::Guessed)
            figures.dischargedGuessed += discharge.discharged;
        if (source == Source::Guessed || source == Source::None)
            continue;
        ++figures.counted;
        highest = std::max(highest, discharge.current);
        if (discharge.discharged == 0)
            continue;
        depths.append(discharge.discharged);
        if (const Flight *flight = index.timedFlightAt(discharge.time).flight) {
            countedCharge += discharge.discharged;
            countedMinutes += minutesOf(*flight);
        }
    }
    const double capacity = battery.capacity;
    figures.equivalentFullCycles = quotient(static_cast<double>(figures.dischargedTotal), capacity);
    if (!depths.isEmpty()) {
        figures.maxDepth = quotient(*std::max_element(depths.cbegin(), depths.cend()), capacity);
        figures.medianDepth = quotient(*median(depths), capacity);
    }
    if (highest > 0)
        figures.maxLoad = quotient(highest * 10.0, capacity); // hundredths of A by mAh
    figures.ageDays = ageInDays(battery, today);
    figures.daysSinceUse = daysSinceUse(battery, today);
    figures.flightsPerMonth = flown.months();
    figures.chargePerMinute = quotient(countedCharge, countedMinutes);
    return figures;
}

ModelFigures figuresOfModel(const Model &model, const FlightIndex &index, const DateRange &range)
{
    ModelFigures figures;
    figures.name = model.name;
    int timed = 0;
    Counter locations;
    Counter batteries;
    for (const Flight &flight : model.log) {
        if (!range.contains(flight.time))
            continue;
        ++figures.flights;
        figures.minutes += minutesOf(flight);
        timed += flight.seconds() > 0 ? 1 : 0;
        if (!flight.location.isEmpty())
            locations.count(flight.location);
        const QList<const Battery *> flown = index.batteriesAt(flight.time);
        for (const Battery *battery : flown)
            batteries.count(battery->name);
        if (!flight.time.isValid())
            continue;
        figures.first = figures.first.isValid() ? std::min(figures.first, flight.time) : flight.time;
        figures.last = figures.last.isValid() ? std::max(figures.last, flight.time) : flight.time;
    }
    figures.meanMinutes = quotient(figures.minutes, timed);
    figures.locations = locations.counts();
    figures.batteries = batteries.counts();
    return figures;
}

/** Those of the catalogue, then those that only flights know; each place once. */
QList<LocationFigures> figuresOfLocations(const Catalogue &catalogue, const DateRange &range)
{
    QList<LocationFigures> figures;
    QHash<QString, qsizetype> rows;
    const auto rowOf = [&](const QString &name) {
        const auto found = rows.constFind(name);
        if (found != rows.cend())
            return *found;
        figures.append({name, 0, 0.0});
        return *rows.insert(name, figures.size() - 1);
    };
    for (const QString &name : catalogue.locations)
        rowOf(name);
    for (const Model &model : catalogue.models) {
        for (const Flight &flight : model.log) {
            if (!range.contains(flight.time) || (flight.location.isEmpty() && !rows.contains(QString())))
                continue;
            LocationFigures &location = figures[rowOf(flight.location)];
            ++location.flights;
            location.minutes += minutesOf(flight);
        }
    }
    return figures;
}

} // namespace

std::optional<double> median(QList<double> values)
{
    if (values.isEmpty())
        return std::nullopt;
    std::sort(values.begin(), values.end());
    const qsizetype middle = values.size() / 2;
    if (values.size() % 2 == 1)
        return values.at(middle);
    return (values.at(middle - 1) + values.at(middle)) / 2.0;
}

std::optional<qint64> ageInDays(const Battery &battery, QDate today)
{
    if (!battery.purchase.isValid() || battery.purchase > today)
        return std::nullopt;
    return battery.purchase.daysTo(today);
}

std::optional<qint64> daysSinceUse(const Battery &battery, QDate today)
{
    QDate last = battery.lastUse.isValid() ? battery.lastUse.date() : QDate();
    for (const Discharge &discharge : battery.discharges) {
        if (discharge.time.isValid() && (!last.isValid() || discharge.time.date() > last))
            last = discharge.time.date();
    }
    if (!last.isValid() || last > today)
        return std::nullopt;
    return last.daysTo(today);
}

Figures figuresOf(const Catalogue &catalogue, const DateRange &range, QDate today)
{
    const FlightIndex index(catalogue);
    Figures figures;
    Totals totals;
    for (const Battery &battery : catalogue.batteries) {
        figures.batteries.append(figuresOfBattery(battery, index, range, today));
        for (const Discharge &discharge : battery.discharges) {
            if (range.contains(discharge.time))
                totals.add(discharge);
        }
    }
    for (const Model &model : catalogue.models) {
        figures.models.append(figuresOfModel(model, index, range));
        for (const Flight &flight : model.log) {
            if (range.contains(flight.time))
                totals.add(flight);
        }
    }
    figures.locations = figuresOfLocations(catalogue, range);
    figures.months = totals.months();
    figures.total = totals.total();
    return figures;
}

} // namespace Host
