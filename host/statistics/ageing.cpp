// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/statistics/ageing.h"

#include "host/data/moments.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace Host {
namespace {

constexpr size_t MostFlights = 500; // of the newest ones: each is compared with each
constexpr double Significance = 0.05;
constexpr double SecondsOfAYear = 365.25 * 86'400;

struct Point
{
    qint64 moment = 0;
    double value = 0;
};

double medianOf(std::vector<double> values)
{
    const size_t middle = values.size() / 2;
    std::sort(values.begin(), values.end());
    return values.size() % 2 == 1 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2;
}

std::vector<double> valuesOf(const std::vector<Point> &points)
{
    std::vector<double> values;
    values.reserve(points.size());
    for (const Point &point : points)
        values.push_back(point.value);
    return values;
}

double yearsBetween(const Point &one, const Point &other)
{
    return static_cast<double>(other.moment - one.moment) / SecondsOfAYear;
}

/** The median of the slopes between all flights of different times, per year. */
double slopeOf(const std::vector<Point> &points)
{
    std::vector<double> slopes;
    slopes.reserve(points.size() * points.size() / 2);
    for (size_t i = 0; i < points.size(); ++i) {
        for (size_t j = i + 1; j < points.size(); ++j) {
            const double years = yearsBetween(points.at(i), points.at(j));
            if (years > 0)
                slopes.push_back((points.at(j).value - points.at(i).value) / years);
        }
    }
    return slopes.empty() ? 0 : medianOf(slopes);
}

int signOf(double difference)
{
    return (difference > 0 ? 1 : 0) - (difference < 0 ? 1 : 0);
}

/** What flights of equal values take from the variance of the sum below. */
double tiesIn(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    double ties = 0;
    for (auto begin = values.cbegin(); begin != values.cend();) {
        const auto end = std::upper_bound(begin, values.cend(), *begin);
        const auto count = static_cast<double>(end - begin);
        ties += count * (count - 1) * (2 * count + 5);
        begin = end;
    }
    return ties;
}

/**
 * Whether the values rise (or fall, where @p isRising is false) by more than chance, by the test of Mann and
 * Kendall with its normal approximation, corrected for ties and continuity. Two-sided: a battery may also
 * seem to recover.
 */
bool isTrend(const std::vector<Point> &points, bool isRising)
{
    int sum = 0;
    for (size_t i = 0; i < points.size(); ++i) {
        for (size_t j = i + 1; j < points.size(); ++j)
            sum += points.at(j).moment > points.at(i).moment ? signOf(points.at(j).value - points.at(i).value)
                                                             : 0;
    }
    if (isRising ? sum <= 0 : sum >= 0)
        return false;
    const auto count = static_cast<double>(points.size());
    const double variance = (count * (count - 1) * (2 * count + 5) - tiesIn(valuesOf(points))) / 18;
    if (variance <= 0)
        return false;
    const double z = (std::abs(sum) - 1) / std::sqrt(variance);
    return std::erfc(z / std::sqrt(2.0)) < Significance; // both tails of the normal distribution
}

std::optional<Trend> trendOf(std::vector<Point> points, bool isWorseWhenRising)
{
    if (static_cast<qsizetype>(points.size()) < FewestFlights)
        return std::nullopt;
    std::stable_sort(points.begin(), points.end(),
                     [](const Point &left, const Point &right) { return left.moment < right.moment; });
    if (points.size() > MostFlights)
        points.erase(points.begin(), points.end() - static_cast<qsizetype>(MostFlights));
    Trend trend{spreadOf(valuesOf(points))};
    trend.perYear = slopeOf(points);
    trend.change = trend.perYear * yearsBetween(points.front(), points.back());
    trend.isAgeing = isTrend(points, isWorseWhenRising);
    return trend;
}

std::vector<Point> pointsOf(const QList<Measurement> &measurements, std::optional<double> Measurement::*value)
{
    std::vector<Point> points;
    for (const Measurement &measurement : measurements) {
        const qint64 moment = momentOf(measurement.time);
        if (moment != NoMoment && measurement.*value)
            points.push_back({moment, *(measurement.*value)});
    }
    return points;
}

} // namespace

Health healthOf(const QList<Measurement> &measurements)
{
    const std::vector<Point> resistances = pointsOf(measurements, &Measurement::resistance);
    const std::vector<Point> capacities = pointsOf(measurements, &Measurement::capacity);
    return {static_cast<int>(resistances.size()), static_cast<int>(capacities.size()),
            trendOf(resistances, true), trendOf(capacities, false)};
}

/** The spread does not widen with one flight on a cold day. */
Spread spreadOf(const std::vector<double> &values)
{
    if (values.empty())
        return {};
    Spread found{static_cast<int>(values.size()), medianOf(values)};
    std::vector<double> distances;
    distances.reserve(values.size());
    for (const double value : values)
        distances.push_back(std::abs(value - found.median));
    found.spread = medianOf(distances);
    return found;
}

} // namespace Host
