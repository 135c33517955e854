// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointF>
#include <QString>

#include <functional>

/**
 * Measuring on a machine that has other things to do.
 *
 * Times are processor times, never wall-clock times, and two pieces of work that are compared take turns:
 * what disturbs one disturbs the other.
 */
namespace Measure {

/** Processor seconds that this process has used. */
double processorTime();
/** Processor seconds that the children of this process have used; counts those that have ended. */
double childrenProcessorTime();

/** Processor seconds that this thread has used. */
double threadProcessorTime();

/** Processor seconds that @p work takes in this thread, whatever others do meanwhile. */
template <typename Work>
double threadSeconds(Work work)
{
    const double start = threadProcessorTime();
    work();
    return threadProcessorTime() - start;
}

/** Processor seconds that @p work takes. */
template <typename Work>
double seconds(Work work)
{
    const double start = processorTime();
    work();
    return processorTime() - start;
}

/** Bytes of the heap in use. */
qint64 heapInUse();

double median(QList<double> values);

/** One run of a piece of work, with whatever it has to prepare and to clear away; the seconds that count. */
using Run = std::function<double()>;

struct Pair
{
    double seconds = 0.0; ///< median of the work that is looked at
    double against = 0.0; ///< median of the work it is compared with
    double ratio = 0.0;   ///< median of the ratios of two neighbouring runs
};

/** Has Google Benchmark run both in turn under this name, after one run of each that does not count. */
Pair compare(const QString &name, int rounds, const Run &run, const Run &against);

/** The slope of the straight line through the logarithms of the points: 1 is linear. */
double logLogSlope(const QList<QPointF> &points);

} // namespace Measure
