// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/measured.h"
#include "host/data/sources.h"

#include <QDateTime>
#include <QList>

#include <optional>

namespace Host {

/** What a battery's discharges are looked at for. */
enum class Quantity {
    CapacityUsed, ///< mAh
    Current,      ///< A, the highest
    Load,         ///< C: the highest current by the capacity
    Resistance,   ///< mOhm, by a radio's log
    Capacity,     ///< mAh, an estimate from a radio's log
};

/** Whether it is known of measured flights alone. */
bool isOfLogs(Quantity quantity);

/** A discharge with one figure of it. */
struct HistoryPoint
{
    QDateTime time;
    double value = 0.0;
    Source source = Source::None;
};

/** What became of one figure over the discharges of a battery. Those without the figure are left out. */
struct History
{
    QList<HistoryPoint> points;  ///< ascending by time
    int withoutTime = 0;         ///< have the figure, and no place in time
    std::optional<double> limit; ///< what the battery permits, in the unit of the quantity
};

/** What radio logs tell of resistance and capacity is empty with fewer flights than make a trend. */
History historyOf(const Battery &battery, Quantity quantity, const Measured &measured = {});

/** The figure of one discharge; missing where it was not entered, cannot be worked out, or stands in logs. */
std::optional<double> valueOf(const Battery &battery, const Discharge &discharge, Quantity quantity);

/**
 * Of points that a plot would draw on one another only the highest: at most @p columns times @p rows for each
 * source. Fewer points than that are left as they are.
 */
QList<HistoryPoint> thinned(const QList<HistoryPoint> &points, int columns, int rows);

} // namespace Host
