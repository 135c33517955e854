// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <iostream>

#include <malloc.h>
#include <sys/resource.h>
#include <time.h>

namespace {

/** Says on standard error what has been measured; the table is the report. */
class Progress : public benchmark::ConsoleReporter
{
public:
    Progress()
        : ConsoleReporter(OO_None)
    {
        SetOutputStream(&std::cerr);
    }

    bool ReportContext(const Context & /*context*/) override
    {
        return true; // the same for all of them
    }

    void PrintHeader(const Run & /*run*/) override {}
};

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

double Measure::median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype middle = values.size() / 2;
    return values.size() % 2 ? values.at(middle) : (values.at(middle - 1) + values.at(middle)) / 2.0;
}

Measure::Pair Measure::compare(const QString &name, int rounds, const Run &run, const Run &against)
{
    QList<double> times;
    QList<double> othersTimes;
    QList<double> ratios;
    const auto takeTurns = [&](benchmark::State &state) {
        run();
        against();
        bool first = true; // neither always profits from the caches the other leaves
        for ([[maybe_unused]] const auto round : state) {
            const double before = first ? 0.0 : against();
            const double time = run();
            const double other = first ? against() : before;
            first = !first;
            state.SetIterationTime(time);
            times.append(time);
            othersTimes.append(other);
            ratios.append(time / other);
        }
        state.counters["ratio"] = median(ratios);
    };
    benchmark::ClearRegisteredBenchmarks();
    benchmark::RegisterBenchmark(qPrintable(name), takeTurns)
        ->UseManualTime()
        ->Iterations(rounds)
        ->Unit(benchmark::kMillisecond);
    Progress progress;
    benchmark::RunSpecifiedBenchmarks(&progress);
    return {median(times), median(othersTimes), median(ratios)};
}

double Measure::logLogSlope(const QList<QPointF> &points)
{
    const auto count = static_cast<double>(points.size());
    double x = 0.0;
    double y = 0.0;
    double xx = 0.0;
    double xy = 0.0;
    for (const QPointF &point : points) {
        const double logX = std::log(point.x());
        const double logY = std::log(point.y());
        x += logX;
        y += logY;
        xx += logX * logX;
        xy += logX * logY;
    }
    return (count * xy - x * y) / (count * xx - x * x);
}
