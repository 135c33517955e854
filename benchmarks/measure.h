// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <functional>

/**
 * Measuring on a machine that has other things to do.
 *
 * Times are processor times, never wall-clock times.
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

/** One run of a piece of work, with whatever it has to prepare and to clear away; the seconds that count. */
using Run = std::function<double()>;

} // namespace Measure
