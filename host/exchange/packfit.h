// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

namespace Host {

/** One row of a flight, for the fit of the resistance. */
struct PackSample
{
    double charge;  ///< mAh used until then
    double current; ///< A
    double voltage; ///< V, of the whole battery
};

/**
 * Inner resistance in mOhm: the R of V = a + b q + c q² + d q³ - R I, fitted to all samples so that single
 * wrong ones do not matter. Nothing where the current varies by less than 5 A, or the fit is further than 150
 * mV from the samples; nothing in a build without GSL.
 */
std::optional<double> packResistance(const std::vector<PackSample> &samples);

/** How many cells a battery of this voltage at rest has; nothing where none makes sense of 2.5 to 4.5 V each.
 */
std::optional<int> cellsOf(double restVoltage);

/** State of charge, 0 to 1, of a LiPo cell that shows this voltage at rest. */
double stateOfCharge(double cellVoltage);

/**
 * Capacity in mAh of a battery whose voltages at rest were these before and after @p charge mAh were taken
 * out; nothing where the states of charge are less than a quarter apart.
 */
std::optional<double> packCapacity(double charge, double restBefore, double restAfter, int cells);

} // namespace Host
