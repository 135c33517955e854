// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"
#include "measure.h"
#include "report.h"

#include "host/exchange/radiolog.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <cmath>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 MiB = 1024 * 1024;

/** The columns of a radio of today: five sensors, sticks, switches, 32 channels. */
QByteArray header()
{
    QByteArray line =
        "Date,Time,RSSI(dB),RxBt(V),VFAS(V),Curr(A),mAh(mAh),Pwr(W),Rud,Ele,Thr,Ail,P1,P2,SA,SB,SC,SD,SE,SF,"
        "SG,SH,LSW,";
    for (int i = 1; i <= 32; ++i)
        line += "CH" + QByteArray::number(i) + "(us),";
    return line + "TxBat(V)\n";
}

/**
 * A log of one long flight, ten rows a second. What is measured is the reading: a session ends with a fit
 * that takes some milliseconds however many rows it has.
 */
void writeLog(const QString &path, qint64 bytes)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(header()) < 0)
        qFatal("The benchmarks cannot write a log.");
    QByteArray rest = ",4.2,22,-893,-406,832,12,-3,-1,-1,-1,-1,-1,1,-1,-1,0x000000000000000C";
    for (int i = 0; i < 32; ++i)
        rest += ",1500";
    rest += ",7.9\n";
    std::array<char, 128> row{};
    double used = 0;
    for (int i = 0; file.pos() < bytes; ++i) {
        const double current = 12 + 10 * std::sin(i / 70.0);
        used += current / 36;
        const int length = std::snprintf(
            row.data(), row.size(), "2026-05-%02d,%02d:%02d:%02d.%d00,92,5.2,%.2f,%.1f,%.0f", 1 + i / 864'000,
            i / 36'000 % 24, i / 600 % 60, i / 10 % 60, i % 10, 12.4 - current * 0.04, current, used);
        file.write(row.data(), length);
        file.write(rest);
    }
}

/** The least that anybody can do who wants the lines of a file. */
double secondsOfLines(const QString &path)
{
    return Measure::threadSeconds([&path] {
        QFile file(path);
        std::array<char, 4096> line{};
        qint64 lines = 0;
        if (file.open(QFile::ReadOnly)) {
            while (file.readLine(line.data(), line.size()) > 0)
                ++lines;
        }
        benchmark::DoNotOptimize(lines);
    });
}

double secondsOfReading(const QString &path)
{
    return Measure::threadSeconds([&path] {
        QFile file(path);
        if (file.open(QFile::ReadOnly))
            benchmark::DoNotOptimize(Host::readRadioLog(file, path));
    });
}

double secondsOfFingerprint(const QString &path)
{
    return Measure::threadSeconds([&path] {
        QFile file(path);
        if (file.open(QFile::ReadOnly))
            benchmark::DoNotOptimize(Host::fingerprint(file));
    });
}

/** The most heap that was in use while a log was read, beyond that before. */
double peakOfReading(const QString &path)
{
    const qint64 before = Measure::heapInUse();
    qint64 most = before;
    Host::ReadOptions options;
    options.goOn = [&most](qint64) {
        most = std::max(most, Measure::heapInUse());
        return true;
    };
    QFile file(path);
    if (file.open(QFile::ReadOnly))
        Host::readRadioLog(file, path, options);
    return static_cast<double>(most - before) / 1024;
}

} // namespace

void Benchmarks::radioLogs(Report &report, const Plan &plan)
{
    const QTemporaryDir folder;
    const QString small = folder.filePath(u"Swift-2026-05-01.csv"_s);
    const QString large = folder.filePath(u"Swift-2026-05-02.csv"_s);
    writeLog(small, 3 * MiB);
    writeLog(large, 300 * MiB);
    const int rounds = plan.quick ? 3 : 9;
    report.compare(
        u"a radio log of 300 MB"_s, u"its lines, one by one"_s, rounds,
        [&] { return secondsOfReading(large); }, [&] { return secondsOfLines(large); }, 2.0);
    report.compare(
        u"a radio log of 3 MB, with its fit"_s, u"its lines, one by one"_s, rounds,
        [&] { return secondsOfReading(small); }, [&] { return secondsOfLines(small); });
    report.compare(
        u"the fingerprint of a radio log of 300 MB"_s, u"its lines, one by one"_s, rounds,
        [&] { return secondsOfFingerprint(large); }, [&] { return secondsOfLines(large); });
    report.addValue(u"heap while a radio log of 3 MB is read"_s, u"the most"_s, peakOfReading(small),
                    u"KiB"_s);
    report.addValue(u"heap while a radio log of 300 MB is read"_s, u"the most"_s, peakOfReading(large),
                    u"KiB"_s, 1024.0);
}
