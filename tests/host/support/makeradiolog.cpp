// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/makeradiolog.h"

#include <algorithm>
#include <array>
#include <random>

namespace MadeLogs {
namespace {

const QDate FirstDay(2026, 5, 1);
constexpr qint64 Hour = 3'600'000;
constexpr const char *Header = "Date,Time,";
constexpr const char *RestOfHeader = ",Rud,Ele,Thr,Ail,SA,SB,LSW,CH1(us),CH2(us),TxBat(V)\n";
constexpr const char *RestOfRow = ",-3,12,-1024,0,-1,1,0x000000000000000C,1500,988,7.9\n";

QByteArray number(double value, int decimals)
{
    return QByteArray::number(value, 'f', decimals);
}

QByteArray valueOf(const QByteArray &column, const Row &row)
{
    const QByteArray label = column.split('(').first().toLower();
    if (label == "fm")
        return "\"ACRO\"";
    if (row.isLost)
        return "0";
    if (label == "curr" || label == "current" || label == "esca" || label == "ecur")
        return column.endsWith("(mA)") ? number(row.current * 1000, 0) : number(row.current, 1);
    if (label == "mah" || label == "capa" || label == "consumption" || label == "escc" || label == "cnsp")
        return number(row.used, 0);
    if (label == "vfas" || label == "vbat" || label == "escv")
        return number(row.volts, 2);
    if (label == "rb1a" || label == "rb2a")
        return number(row.current / 2, 2);
    if (label == "rb1c" || label == "rb2c")
        return number(row.used / 2, 1);
    if (label == "rxbt")
        return "5.2";
    return "90";
}

} // namespace

double restVoltage(double charge)
{
    static constexpr std::array<double, 21> Chart{3.27, 3.61, 3.69, 3.71, 3.73, 3.75, 3.77,
                                                  3.79, 3.80, 3.82, 3.84, 3.85, 3.87, 3.91,
                                                  3.95, 3.98, 4.02, 4.08, 4.11, 4.15, 4.20};
    const double place = std::clamp(charge, 0.0, 1.0) * 20;
    const auto below = std::min(static_cast<size_t>(place), size_t(19));
    return Chart[below] + (place - static_cast<double>(below)) * (Chart[below + 1] - Chart[below]);
}

Rows flight(const Pack &pack, const Plan &plan)
{
    std::minstd_rand random(plan.seed);
    const auto share = [&random] { return static_cast<double>(random() % 10'000) / 10'000; };
    Rows rows;
    const qint64 start =
        FirstDay.daysTo(plan.start.date()) * 24 * Hour + plan.start.time().msecsSinceStartOfDay();
    double used = plan.used;
    double throttle = 1;
    const int all = plan.restBefore + plan.flight + plan.restAfter;
    for (int i = 0; i < all; ++i) {
        const bool isFlown = i >= plan.restBefore && i < plan.restBefore + plan.flight;
        if (i % 4 == 0)
            throttle = 0.3 + 1.4 * share();
        const double current = isFlown ? plan.current * throttle * (0.95 + 0.1 * share()) : 0.1;
        const double charge = pack.charge - (used - plan.used) / pack.capacity;
        const double noise = 0.02 * (share() - 0.5);
        rows.push_back({start + i * plan.step, current, used,
                        pack.cells * restVoltage(charge) - current * pack.ohm + noise, false});
        used += current * static_cast<double>(plan.step) / 3600;
    }
    return rows;
}

Rows steady(int rows, double current, double volts, double used)
{
    Rows made;
    for (int i = 0; i < rows; ++i)
        made.push_back({14 * Hour + i * 1000, current, used + i * current / 3.6, volts, false});
    return made;
}

Rows shifted(Rows rows, qint64 milliseconds)
{
    for (Row &row : rows)
        row.time += milliseconds;
    return rows;
}

Rows operator+(Rows rows, const Rows &others)
{
    rows.insert(rows.end(), others.begin(), others.end());
    return rows;
}

Text::Text(const QByteArray &sensors)
    : m_sensors(sensors.split(','))
{
    m_bytes = Header + sensors + RestOfHeader;
}

Text &Text::withHeader(const QByteArray &header)
{
    m_bytes = header + '\n' + m_bytes.mid(m_bytes.indexOf('\n') + 1);
    return *this;
}

Text &Text::add(const Rows &rows)
{
    for (const Row &row : rows)
        m_bytes += line(m_sensors, row);
    return *this;
}

Text &Text::addLine(const QByteArray &line)
{
    m_bytes += line + '\n';
    return *this;
}

Text &Text::cut(qsizetype bytes)
{
    m_bytes.chop(bytes);
    return *this;
}

QByteArray Text::line(const QList<QByteArray> &sensors, const Row &row)
{
    const qint64 timeOfDay = (row.time % (24 * Hour) + 24 * Hour) % (24 * Hour);
    const qint64 day = (row.time - timeOfDay) / (24 * Hour);
    const QTime clock = QTime::fromMSecsSinceStartOfDay(static_cast<int>(timeOfDay));
    QByteArray line = FirstDay.addDays(day).toString(Qt::ISODate).toLatin1() + ',' +
                      clock.toString(QStringLiteral("HH:mm:ss.zzz")).toLatin1();
    for (const QByteArray &sensor : sensors)
        line += ',' + valueOf(sensor, row);
    return line + RestOfRow;
}

} // namespace MadeLogs
