// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure.h"

#include <algorithm>
#include <cmath>

#include <malloc.h>
#include <sys/resource.h>
#include <time.h>

double Measure::processorTime()
{
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
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

Measure::Pair Measure::compare(int rounds, const Run &run, const Run &against)
{
    run();
    against();
    QList<double> times;
    QList<double> othersTimes;
    QList<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        const bool first = round % 2 == 0; // neither always profits from the caches the other leaves
        const double before = first ? 0.0 : against();
        const double time = run();
        const double other = first ? against() : before;
        times.append(time);
        othersTimes.append(other);
        ratios.append(time / other);
    }
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
