// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/packfit.h"
#include "host/exchange/radiolog.h"

#include <array>
#include <deque>
#include <optional>
#include <vector>

namespace Host {

/** What a row tells. Without a value: no such column, or nothing that can be read. */
struct LogSample
{
    ClockTime time = 0;
    std::optional<double> consumed; ///< mAh
    std::optional<double> current;  ///< A
    std::optional<double> volts;
    bool isSilent = false; ///< the telemetry was lost: only the time counts
};

/** Turns rows into sessions, of which it keeps the present one, in memory that does not grow. */
class SessionBuilder
{
public:
    /** Whether a row belongs to the present session, and is not the first of another. */
    bool belongs(ClockTime time) const;
    /** Whether a row is earlier than the last one. */
    bool isAfter(ClockTime time) const { return m_session.end > time; }
    bool isEmpty() const { return m_session.rows == 0; }

    void begin(const Session &origin); ///< a new session, of a file
    void add(const LogSample &sample, qint64 begin, qint64 end);
    Session finish(); ///< the present one, without what its discharge comes to

private:
    struct Charge
    {
        double integral = 0;
        double counter = 0;
    };
    struct Rest
    {
        double volts = 0;
        Charge charge;
    };
    struct FitSample
    {
        Charge charge;
        double current = 0;
        double volts = 0;
    };

    void addCounter(double consumed);
    void addCurrent(ClockTime time, double current);
    void addVolts(double volts, std::optional<double> current);
    void addFitSample(const FitSample &sample);
    void finishCharge();
    void finishVoltages();
    double chargeOf(const Charge &charge) const;
    std::optional<double> restOf(std::vector<Rest> samples, bool isBefore, double &charge) const;

    Session m_session;
    ClockTime m_lastTime = 0;               ///< of the last current
    ClockTime m_covered = 0;                ///< ms that the integral covers
    double m_integral = 0;                  ///< mAh
    std::array<double, 2> m_lastCurrents{}; ///< newest last
    qint64 m_currents = 0;
    std::vector<Rest> m_firstRests;
    std::deque<Rest> m_lastRests;
    std::vector<FitSample> m_fitSamples;
    qint64 m_fitStep = 1;
    qint64 m_rowsToNextFit = 1;
};

} // namespace Host
