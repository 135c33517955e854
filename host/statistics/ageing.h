// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>

#include <optional>
#include <vector>

namespace Host {

/** What fewer flights than these tell of resistance and capacity is chance. */
inline constexpr qsizetype FewestFlights = 5;

/** What a radio's log told about a battery at one flight. */
struct Measurement
{
    QDateTime time;
    std::optional<double> resistance; ///< mOhm
    std::optional<double> capacity;   ///< mAh, an estimate
};

/** What several flights say about one quantity of a battery. */
struct Spread
{
    int flights = 0;   ///< that told it
    double median = 0; ///< of these
    double spread = 0; ///< half of the flights lie within so much around the median
};

/** What became of it over these flights. */
struct Trend : Spread
{
    double perYear = 0;    ///< median slope between any two flights (Theil and Sen)
    double change = 0;     ///< what that comes to from the first flight to the last
    bool isAgeing = false; ///< a Mann-Kendall test finds it getting worse at 5 %, two-sided
};

/**
 * What can be said about a battery from its measured flights, the newest 500 at most; a trend is empty with
 * fewer than five of them.
 */
struct Health
{
    int resistances = 0; ///< flights that told the resistance
    int capacities = 0;
    std::optional<Trend> resistance;
    std::optional<Trend> capacity;
};

/** From measured flights in any order; those without a time are left out. */
Health healthOf(const QList<Measurement> &measurements);

/** Of one value of each flight; of none there are 0 flights. */
Spread spreadOf(const std::vector<double> &values);

} // namespace Host
