// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/statistics/history.h"

#include <QString>

#include <memory>

class QChart;

namespace Host {

/** What a quantity is called, and its unit. */
QString nameOf(Quantity quantity);
QString unitOf(Quantity quantity);

/** Draws one quantity over time; each source has marks of its own shape. Without a point nothing is drawn. */
std::unique_ptr<QChart> batteryChart(Quantity quantity, const History &history);

/** Says in words what such a plot shows. */
QString batteryChartDescription(const Battery &battery, Quantity quantity, const History &history);

} // namespace Host
