// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/packfit.h"

#include <algorithm>
#include <array>
#include <cmath>

#ifdef VOLTBOK_WITH_GSL
#include <gsl/gsl_errno.h>
#include <gsl/gsl_multifit.h>

#include <memory>
#endif

namespace Host {
namespace {

constexpr double LowestCell = 2.5; // V at rest
constexpr double HighestCell = 4.5;
constexpr double FullCell = 4.25; // with what sensors are wrong by
constexpr double FullHighVoltageCell = 4.4;
constexpr double LowCell = 3.4; // nobody takes off with less
constexpr double SmallestDifference = 0.25;

struct RestPoint
{
    double volts;
    double charge;
};

/**
 * Voltage of a LiPo cell at rest against its state of charge, in steps of a twentieth, from the chart that
 * hobby pages print most, https://blog.ampow.com/lipo-voltage-chart/.
 */
constexpr std::array<RestPoint, 21> RestTable{
    {{3.27, 0.00}, {3.61, 0.05}, {3.69, 0.10}, {3.71, 0.15}, {3.73, 0.20}, {3.75, 0.25}, {3.77, 0.30},
     {3.79, 0.35}, {3.80, 0.40}, {3.82, 0.45}, {3.84, 0.50}, {3.85, 0.55}, {3.87, 0.60}, {3.91, 0.65},
     {3.95, 0.70}, {3.98, 0.75}, {4.02, 0.80}, {4.08, 0.85}, {4.11, 0.90}, {4.15, 0.95}, {4.20, 1.00}}};

#ifdef VOLTBOK_WITH_GSL
constexpr size_t Parameters = 5;
constexpr size_t FewestSamples = 30;
constexpr double SmallestSwing = 5;      // A
constexpr double LargestResidual = 0.15; // V

struct Free
{
    void operator()(gsl_matrix *matrix) const { gsl_matrix_free(matrix); }
    void operator()(gsl_vector *vector) const { gsl_vector_free(vector); }
    void operator()(gsl_multifit_robust_workspace *workspace) const { gsl_multifit_robust_free(workspace); }
};
using Matrix = std::unique_ptr<gsl_matrix, Free>;
using Vector = std::unique_ptr<gsl_vector, Free>;

bool isWideEnough(const std::vector<PackSample> &samples)
{
    if (samples.size() < FewestSamples)
        return false;
    const auto [least, most] = std::minmax_element(
        samples.begin(), samples.end(),
        [](const PackSample &left, const PackSample &right) { return left.current < right.current; });
    return most->current - least->current >= SmallestSwing;
}

/** The charge of the first and the last sample become 0 and 1: powers of thousands of mAh would drown the
 * rest. */
void fillEquations(const std::vector<PackSample> &samples, gsl_matrix *terms, gsl_vector *volts)
{
    const double first = samples.front().charge;
    const double range = std::max(samples.back().charge - first, 1.0);
    for (size_t i = 0; i < samples.size(); ++i) {
        const double q = (samples.at(i).charge - first) / range;
        const std::array<double, Parameters> row{1, q, q * q, q * q * q, -samples.at(i).current};
        for (size_t j = 0; j < Parameters; ++j)
            gsl_matrix_set(terms, i, j, row.at(j));
        gsl_vector_set(volts, i, samples.at(i).voltage);
    }
}
#endif

} // namespace

std::optional<double> packResistance(const std::vector<PackSample> &samples)
{
#ifdef VOLTBOK_WITH_GSL
    if (!isWideEnough(samples))
        return std::nullopt;
    // GSL ends the process on an error unless told otherwise.
    static gsl_error_handler_t *const before = gsl_set_error_handler_off();
    static_cast<void>(before);
    const Matrix terms(gsl_matrix_alloc(samples.size(), Parameters));
    const Vector volts(gsl_vector_alloc(samples.size()));
    const Vector fitted(gsl_vector_alloc(Parameters));
    const Matrix covariance(gsl_matrix_alloc(Parameters, Parameters));
    const std::unique_ptr<gsl_multifit_robust_workspace, Free> workspace(
        gsl_multifit_robust_alloc(gsl_multifit_robust_bisquare, samples.size(), Parameters));
    fillEquations(samples, terms.get(), volts.get());
    const int status =
        gsl_multifit_robust(terms.get(), volts.get(), fitted.get(), covariance.get(), workspace.get());
    if (status != GSL_SUCCESS && status != GSL_EMAXITER) // some fits never settle to the last digit
        return std::nullopt;
    const double residual = gsl_multifit_robust_statistics(workspace.get()).sigma_rob; // wrong samples aside
    const double ohm = gsl_vector_get(fitted.get(), Parameters - 1);
    if (!(residual <= LargestResidual) || !(ohm > 0)) // not a number is none of both
        return std::nullopt;
    return ohm * 1000;
#else
    static_cast<void>(samples);
    return std::nullopt;
#endif
}

std::optional<int> cellsOf(double restVoltage)
{
    int cells = static_cast<int>(std::ceil(restVoltage / FullCell));
    if (cells < 1)
        return std::nullopt;
    // A pack of cells for high voltages, charged, rather than one of more cells, nearly empty.
    if (cells > 1 && restVoltage / cells < LowCell && restVoltage / (cells - 1) <= FullHighVoltageCell)
        --cells;
    const auto makesSense = [restVoltage](int count) {
        return restVoltage >= LowestCell * count && restVoltage <= HighestCell * count;
    };
    if (!makesSense(cells) && cells > 1)
        --cells;
    return makesSense(cells) ? std::optional(cells) : std::nullopt;
}

double stateOfCharge(double cellVoltage)
{
    const auto above =
        std::find_if(RestTable.begin(), RestTable.end(),
                     [cellVoltage](const RestPoint &point) { return point.volts > cellVoltage; });
    if (above == RestTable.begin())
        return RestTable.front().charge;
    if (above == RestTable.end())
        return RestTable.back().charge;
    const RestPoint &below = *std::prev(above);
    return below.charge +
           (cellVoltage - below.volts) / (above->volts - below.volts) * (above->charge - below.charge);
}

std::optional<double> packCapacity(double charge, double restBefore, double restAfter, int cells)
{
    if (cells < 1 || charge <= 0)
        return std::nullopt;
    const double difference = stateOfCharge(restBefore / cells) - stateOfCharge(restAfter / cells);
    // What a table of two decimals says is not a quarter less by the last bit of a number.
    if (difference < SmallestDifference - 1e-9)
        return std::nullopt;
    return charge / difference;
}

} // namespace Host
