// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/statistics/history.h"

#include "host/statistics/measuredfigures.h"

#include <QHash>

#include <algorithm>
#include <cmath>

namespace Host {
namespace {

constexpr double Hundredths = 100.0;
constexpr double MilliampereHours = 1000.0; // of an ampere-hour

bool isEarlier(const HistoryPoint &one, const HistoryPoint &other)
{
    return one.time < other.time;
}

bool isLower(const HistoryPoint &one, const HistoryPoint &other)
{
    return one.value < other.value;
}

std::optional<double> limitOf(const Battery &battery, Quantity quantity)
{
    if (battery.capacity == 0 || quantity == Quantity::Resistance)
        return std::nullopt;
    if (quantity == Quantity::CapacityUsed || quantity == Quantity::Capacity)
        return battery.capacity;
    if (battery.rating == 0)
        return std::nullopt;
    if (quantity == Quantity::Load)
        return battery.rating;
    return battery.rating * (battery.capacity / MilliampereHours);
}

void addDischarges(History &history, const Battery &battery, Quantity quantity)
{
    for (const Discharge &discharge : battery.discharges) {
        const std::optional<double> value = valueOf(battery, discharge, quantity);
        if (!value)
            continue;
        if (discharge.time.isValid())
            history.points.append({discharge.time, *value, sourceOf(battery, discharge)});
        else
            ++history.withoutTime;
    }
}

/** What the logs of a battery's flights tell of one of the two quantities that they alone know. */
QList<HistoryPoint> pointsOfLogs(const Battery &battery, Quantity quantity, const Measured &measured)
{
    QList<HistoryPoint> points;
    const QList<Measurement> measurements = measurementsOf(battery, measured);
    for (const Measurement &measurement : measurements) {
        const std::optional<double> value =
            quantity == Quantity::Resistance ? measurement.resistance : measurement.capacity;
        if (value && measurement.time.isValid())
            points.append({measurement.time, *value, Source::Measured});
    }
    return points.size() < FewestFlights ? QList<HistoryPoint>() : points;
}

/** In which of so many equal parts of a span a value lies. */
int partOf(double value, double from, double to, int parts)
{
    return to > from ? std::min(static_cast<int>((value - from) / (to - from) * parts), parts - 1) : 0;
}

} // namespace

bool isOfLogs(Quantity quantity)
{
    return quantity == Quantity::Resistance || quantity == Quantity::Capacity;
}

std::optional<double> valueOf(const Battery &battery, const Discharge &discharge, Quantity quantity)
{
    if (isOfLogs(quantity))
        return std::nullopt;
    if (quantity == Quantity::CapacityUsed)
        return discharge.discharged > 0 ? std::optional<double>(discharge.discharged) : std::nullopt;
    if (discharge.current == 0)
        return std::nullopt;
    const double amperes = discharge.current / Hundredths;
    if (quantity == Quantity::Current)
        return amperes;
    return battery.capacity > 0 ? std::optional(amperes * MilliampereHours / battery.capacity) : std::nullopt;
}

History historyOf(const Battery &battery, Quantity quantity, const Measured &measured)
{
    History history;
    history.limit = limitOf(battery, quantity);
    if (isOfLogs(quantity))
        history.points = pointsOfLogs(battery, quantity, measured);
    else
        addDischarges(history, battery, quantity);
    std::stable_sort(history.points.begin(), history.points.end(), isEarlier);
    return history;
}

QList<HistoryPoint> thinned(const QList<HistoryPoint> &points, int columns, int rows)
{
    if (points.size() <= qsizetype(columns) * rows)
        return points;
    const auto [lowest, highest] = std::minmax_element(points.cbegin(), points.cend(), isLower);
    const auto first = static_cast<double>(points.constFirst().time.toMSecsSinceEpoch());
    const auto last = static_cast<double>(points.constLast().time.toMSecsSinceEpoch());
    QList<HistoryPoint> kept;
    QHash<int, qsizetype> places; // of what is kept, by source and place in the plot
    for (const HistoryPoint &point : points) {
        const auto moment = static_cast<double>(point.time.toMSecsSinceEpoch());
        const int column = partOf(moment, first, last, columns);
        const int row = partOf(point.value, lowest->value, highest->value, rows);
        const int place = (static_cast<int>(point.source) * columns + column) * rows + row;
        const auto found = places.constFind(place);
        if (found == places.cend()) {
            places.insert(place, kept.size());
            kept.append(point);
        } else if (kept.at(*found).value < point.value) {
            kept[*found] = point;
        }
    }
    return kept;
}

} // namespace Host
