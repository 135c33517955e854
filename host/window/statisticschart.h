// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/statisticsmodel.h"

#include <QString>

#include <memory>

class QChart;

namespace Host {

/** What the bars of a plot stand for. */
enum class Measure { Flights, Minutes, Discharged };

/** A plot of groups. */
struct StatisticsPlot
{
    QList<GroupFigures> groups; ///< those that have a bar, in their order
    Grouping grouping = Grouping::Month;
    Measure measure = Measure::Flights;
    bool isComplete = true; ///< whether every group has a bar
};

/** "Minutes", with the unit where the word is none. */
QString nameOf(Measure measure);

/** Chooses what fits: the newest months, without gaps; of others those with the highest bars. */
StatisticsPlot plotOf(const QList<GroupFigures> &groups, Grouping grouping, Measure measure);

QString statisticsChartName(const StatisticsPlot &plot);
/** Says in words what the plot shows. */
QString statisticsChartDescription(const StatisticsPlot &plot);
std::unique_ptr<QChart> statisticsChart(const StatisticsPlot &plot);

} // namespace Host
