// SPDX-License-Identifier: GPL-3.0-or-later
#include "report.h"

#include <iostream>
#include <utility>

namespace {

constexpr double MillisecondsOfASecond = 1e3;

} // namespace

Report::Report(const std::string &path)
    : m_file(path)
{
    SetOutputStream(&m_file);
}

Report::~Report()
{
    if (m_isBegun)
        JSONReporter::Finalize();
}

void Report::compare(const QString &work, const QString &against, int rounds, const Measure::Run &run,
                     const Measure::Run &other, std::optional<double> limit)
{
    run();
    other();
    bool first = true; // neither always profits from the caches the other leaves
    const Round takeTurns = [&](benchmark::State &state) {
        const double before = first ? 0.0 : other();
        const double time = run();
        const double othersTime = first ? other() : before;
        first = !first;
        state.SetIterationTime(time);
        state.counters["other"] = othersTime * MillisecondsOfASecond;
        state.counters["ratio"] = time / othersTime;
    };
    measure(work, against, rounds, takeTurns, limit);
}

void Report::addValue(const QString &work, const QString &what, double value, const QString &unit,
                      std::optional<double> limit)
{
    const Round say = [&](benchmark::State &state) { state.counters[unit.toStdString()] = value; };
    measure(work, what, 1, say, limit);
}

/** Each repetition is one round; the figures are their medians. */
void Report::measure(const QString &work, const QString &against, int rounds, const Round &round,
                     std::optional<double> limit)
{
    const auto repeat = [&](benchmark::State &state) {
        for ([[maybe_unused]] const auto iteration : state)
            round(state);
        state.SetLabel(against.toStdString());
        if (limit)
            state.counters["limit"] = *limit;
    };
    benchmark::ClearRegisteredBenchmarks();
    benchmark::RegisterBenchmark(qPrintable(work), repeat)
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(rounds)
        ->ReportAggregatesOnly()
        ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks(this);
}

bool Report::ReportContext(const Context &context)
{
    return std::exchange(m_isBegun, true) || JSONReporter::ReportContext(context);
}

void Report::ReportRuns(const std::vector<Run> &runs)
{
    std::cerr << "  " << runs.front().run_name.function_name << std::endl;
    JSONReporter::ReportRuns(runs);
}
