// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "measure.h"

#include <QString>

#include <benchmark/benchmark.h>

#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/**
 * Has Google Benchmark measure one piece of work after the other, and writes what it found into one file of
 * JSON.
 *
 * A work that is done at several sizes ends in ", N entries".
 */
class Report : private benchmark::JSONReporter
{
public:
    explicit Report(const std::string &path);
    ~Report() override;
    Q_DISABLE_COPY_MOVE(Report)

    /**
     * Measures two pieces of work in turn, after one run of each that does not count: what disturbs one
     * disturbs the other. The ratio is that of two neighbouring runs; it may be as high as @p limit.
     */
    void compare(const QString &work, const QString &against, int rounds, const Measure::Run &run,
                 const Measure::Run &other, std::optional<double> limit = {});
    void addValue(const QString &work, const QString &what, double value, const QString &unit,
                  std::optional<double> limit = {});

private:
    using Round = std::function<void(benchmark::State &)>;

    void measure(const QString &work, const QString &against, int rounds, const Round &round,
                 std::optional<double> limit);
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override {}

    std::ofstream m_file;
    bool m_isBegun = false;
};
