// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/radiologsession.h"

#include "host/exchange/radiologcolumns.h"

#include <algorithm>
#include <cmath>

namespace Host {
namespace {

constexpr qint64 LongestGap = 60'000; // ms, within a session; also the shortest pause of a flight
constexpr qint64 LongestStep = 5'000; // ms, that the integral covers
constexpr double Load = 1;            // A; below, the battery rests
constexpr double MillisecondsOfAnHour = 3'600'000;
constexpr size_t RestSamples = 20;
constexpr size_t FewestRestSamples = 3;
constexpr size_t MostFitSamples = 2'000;

// A battery that has rested before its discharge, or rests after it, is at most so far into it.
constexpr double RestShare = 0.02;
constexpr double RestCharge = 5; // mAh

double medianOfThree(double a, double b, double c)
{
    return std::max(std::min(a, b), std::min(std::max(a, b), c));
}

} // namespace

bool SessionBuilder::belongs(ClockTime time) const
{
    return time >= m_session.end && time - m_session.end <= LongestGap;
}

void SessionBuilder::begin(const Session &origin)
{
    *this = SessionBuilder();
    m_session = origin;
}

void SessionBuilder::add(const LogSample &sample, qint64 begin, qint64 end)
{
    if (m_session.rows == 0) {
        m_session.start = sample.time;
        m_session.firstByte = begin;
    }
    ++m_session.rows;
    m_session.end = sample.time;
    m_session.endByte = end;
    if (sample.isSilent)
        return;

    std::optional<double> current = sample.current;
    if (current && !isCurrent(*current)) {
        ++m_session.rejectedCurrents;
        current.reset();
    }
    if (sample.consumed)
        addCounter(*sample.consumed);
    if (current)
        addCurrent(sample.time, *current);
    if (!sample.volts)
        return;
    if (!isVoltage(*sample.volts))
        ++m_session.rejectedVoltages;
    else if (*sample.volts > 0)
        addVolts(*sample.volts, current);
}

/** A counter that shows 0 again has lost its sensor, and its last value stands. */
void SessionBuilder::addCounter(double consumed)
{
    if (!m_session.counterFirst)
        m_session.counterFirst = consumed;
    if (consumed > 0 || !m_session.counterLast)
        m_session.counterLast = consumed;
}

void SessionBuilder::addCurrent(ClockTime time, double current)
{
    if (m_currents > 0 && time - m_lastTime <= LongestStep) {
        m_covered += time - m_lastTime;
        m_integral +=
            m_lastCurrents[1] * static_cast<double>(time - m_lastTime) / MillisecondsOfAnHour * 1000;
        m_session.integral = m_integral;
    }
    if (m_currents >= 2) {
        const double median = medianOfThree(m_lastCurrents[0], m_lastCurrents[1], current);
        m_session.maxCurrent = std::max(m_session.maxCurrent.value_or(median), median);
    }
    ++m_currents;
    m_lastTime = time;
    m_lastCurrents = {m_lastCurrents[1], current};

    if (!m_session.loadTime)
        m_session.loadTime = 0;
    if (current <= Load)
        return;
    if (!m_session.firstLoad)
        m_session.firstLoad = time;
    else if (const qint64 since = time - *m_session.lastLoad; since < LongestGap)
        *m_session.loadTime += since;
    m_session.lastLoad = time;
}

void SessionBuilder::addVolts(double volts, std::optional<double> current)
{
    m_session.minVoltage = std::min(m_session.minVoltage.value_or(volts), volts);
    m_session.maxVoltage = std::max(m_session.maxVoltage.value_or(volts), volts);
    if (!current)
        return;
    const Charge charge{m_integral, m_session.counterLast.value_or(0) - m_session.counterFirst.value_or(0)};
    addFitSample({charge, *current, volts});
    if (*current >= Load)
        return;
    if (m_firstRests.size() < RestSamples)
        m_firstRests.push_back({volts, charge});
    m_lastRests.push_back({volts, charge});
    if (m_lastRests.size() > RestSamples)
        m_lastRests.pop_front();
}

/** Of a long session every second row is kept, then every fourth, and so on. */
void SessionBuilder::addFitSample(const FitSample &sample)
{
    if (--m_rowsToNextFit > 0)
        return;
    m_rowsToNextFit = m_fitStep;
    if (m_fitSamples.size() == MostFitSamples) {
        for (size_t i = 0; i < MostFitSamples / 2; ++i)
            m_fitSamples[i] = m_fitSamples[2 * i];
        m_fitSamples.resize(MostFitSamples / 2);
        m_fitStep *= 2;
        m_rowsToNextFit = m_fitStep;
    }
    m_fitSamples.push_back(sample);
}

Session SessionBuilder::finish()
{
    finishCharge();
    finishVoltages();
    return m_session;
}

/** Whether counter and integral contradict each other; one that covers too little says nothing against the
 * other. */
void SessionBuilder::finishCharge()
{
    if (!m_session.counterLast || !m_session.integral)
        return;
    const double rise = *m_session.counterLast - *m_session.counterFirst;
    const double difference = std::abs(rise - m_integral);
    const bool isCovered =
        static_cast<double>(m_covered) >= 0.9 * static_cast<double>(m_session.end - m_session.start);
    m_session.doubtful = isCovered && difference > 20 && difference > 0.03 * std::abs(rise);
}

void SessionBuilder::finishVoltages()
{
    m_session.restBefore = restOf(m_firstRests, true, m_session.chargeAtRestBefore);
    m_session.restAfter =
        restOf({m_lastRests.begin(), m_lastRests.end()}, false, m_session.chargeAtRestAfter);
    const std::optional<double> reference = m_session.restBefore  ? m_session.restBefore
                                            : m_session.restAfter ? m_session.restAfter
                                                                  : m_session.maxVoltage;
    if (reference)
        m_session.cells = cellsOf(*reference);
    if (!m_session.cells) { // a sensor that is wrong by ten
        m_session.minVoltage.reset();
        m_session.maxVoltage.reset();
        m_session.restBefore.reset();
        m_session.restAfter.reset();
        return;
    }
    std::vector<PackSample> samples;
    samples.reserve(m_fitSamples.size());
    for (const FitSample &sample : m_fitSamples)
        samples.push_back({chargeOf(sample.charge), sample.current, sample.volts});
    m_session.resistance = packResistance(samples);
}

double SessionBuilder::chargeOf(const Charge &charge) const
{
    return m_session.counterLast && !m_session.doubtful.value_or(false) ? charge.counter : charge.integral;
}

/** The median of samples at one end of the discharge; a pause in the middle of it is no rest. */
std::optional<double> SessionBuilder::restOf(std::vector<Rest> samples, bool isBefore, double &charge) const
{
    const double all =
        chargeOf({m_integral, m_session.counterLast.value_or(0) - m_session.counterFirst.value_or(0)});
    const double most = std::max(RestShare * all, RestCharge);
    const auto isWithin = [&](const Rest &rest) {
        const double used = chargeOf(rest.charge);
        return (isBefore ? used : all - used) > most;
    };
    samples.erase(std::remove_if(samples.begin(), samples.end(), isWithin), samples.end());
    if (samples.size() < FewestRestSamples)
        return std::nullopt;
    const size_t middle = samples.size() / 2;
    charge = chargeOf(samples.at(middle).charge);
    std::sort(samples.begin(), samples.end(),
              [](const Rest &left, const Rest &right) { return left.volts < right.volts; });
    return samples.size() % 2 == 1 ? samples.at(middle).volts
                                   : (samples.at(middle - 1).volts + samples.at(middle).volts) / 2;
}

} // namespace Host
