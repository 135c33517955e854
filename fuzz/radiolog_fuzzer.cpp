// SPDX-License-Identifier: GPL-3.0-or-later
// A libFuzzer target: any bytes as the log of a radio. docs/fuzzing.md says how to run it.
#include "host/exchange/radiolog.h"

#include <QBuffer>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

using namespace Host;

namespace {

void expect(bool isTrue, const char *what)
{
    if (isTrue)
        return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

bool isNumber(const std::optional<double> &value)
{
    return !value || std::isfinite(*value);
}

void checkSession(const Session &session)
{
    expect(session.rows > 0, "a session without rows");
    expect(session.start <= session.end, "a session that ends before it starts");
    expect(session.firstByte < session.endByte, "a session of no bytes");
    expect(session.duration.value_or(0) >= 0, "a duration below nothing");
    for (const std::optional<double> &value :
         {session.integral, session.maxCurrent, session.minVoltage, session.maxVoltage, session.restBefore,
          session.restAfter, session.resistance, session.counter, session.discharged, session.capacity})
        expect(isNumber(value), "a value that is no number");
    expect(session.minVoltage.has_value() == session.cells.has_value(), "volts without cells");
    expect(session.minVoltage.value_or(0) <= session.maxVoltage.value_or(0), "volts upside down");
    clockText(session.start);
    timeOfClock(session.end);
}

RadioLog readAll(QBuffer &device, qint64 knownBytes)
{
    ReadOptions options;
    options.knownBytes = knownBytes;
    RadioLog log = readRadioLog(device, QStringLiteral("Swift-2026-05-01.csv"), options);
    expect((log.status == LogStatus::Read) == log.reason.isEmpty(), "a reason for no reason");
    qint64 rows = 0;
    for (const Session &session : std::as_const(log.sessions)) {
        checkSession(session);
        rows += session.rows;
    }
    expect(log.sessions.isEmpty() || rows == log.rows, "rows outside sessions");
    joinDischarges(log.sessions);
    for (const Session &session : std::as_const(log.sessions)) {
        checkSession(session);
        expect(!session.continues || !session.discharged, "a discharge that is told twice");
    }
    return log;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QBuffer device(&bytes);
    device.open(QBuffer::ReadOnly);
    const RadioLog log = readAll(device, 0);
    const RadioLog grown = readAll(device, bytes.size() / 2);
    if (log.status == LogStatus::Read && grown.status == LogStatus::Read)
        expect(grown.rows <= log.rows, "more rows in half of a file");
    return 0;
}
