// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure.h"

#include <malloc.h>
#include <sys/resource.h>
#include <time.h>

namespace {

double secondsOf(clockid_t clock)
{
    timespec now = {};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

} // namespace

double Measure::processorTime()
{
    return secondsOf(CLOCK_PROCESS_CPUTIME_ID);
}

double Measure::threadProcessorTime()
{
    return secondsOf(CLOCK_THREAD_CPUTIME_ID);
}

double Measure::childrenProcessorTime()
{
    rusage usage = {};
    getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

qint64 Measure::heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
}
