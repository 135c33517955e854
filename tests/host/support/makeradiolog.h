// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <vector>

/** Writes logs as a radio does, of flights whose truth is known. */
namespace MadeLogs {

/** What the sensors of a usual log measure; values by the name of the column. */
inline constexpr const char *UsualSensors = "RSSI(dB),RxBt(V),VFAS(V),Curr(A),mAh(mAh)";

/** A battery as it really is. */
struct Pack
{
    int cells = 3;
    double capacity = 2200; ///< mAh
    double ohm = 0.040;
    double charge = 1; ///< 0 to 1, before the flight
};

/** A flight as it really was. */
struct Plan
{
    QDateTime start{QDate(2026, 5, 1), QTime(14, 0)};
    qint64 step = 1000;  ///< ms between rows
    int restBefore = 25; ///< rows without current
    int flight = 240;    ///< rows
    int restAfter = 25;
    double current = 18; ///< A, about the mean; the throttle moves
    double used = 0;     ///< mAh, before the first row
    unsigned int seed = 1;
};

/** What sensors say at a moment. */
struct Row
{
    qint64 time = 0; ///< ms since the midnight that begins 2026-05-01
    double current = 0;
    double used = 0;
    double volts = 0;
    bool isLost = false; ///< no telemetry: everything is 0
};
using Rows = std::vector<Row>;

/** Voltage of a cell at rest, from the printed chart. */
double restVoltage(double charge);

Rows flight(const Pack &pack, const Plan &plan);
/** Rows of a steady current, one a second from 14:00. */
Rows steady(int rows, double current, double volts = 12, double used = 0);
Rows shifted(Rows rows, qint64 milliseconds);
Rows operator+(Rows rows, const Rows &others);

/** A log of these columns. */
class Text
{
public:
    explicit Text(const QByteArray &sensors = UsualSensors);
    /** Another first line than the one that fits the rows. */
    Text &withHeader(const QByteArray &header);

    Text &add(const Rows &rows);
    Text &add(const Row &row) { return add(Rows{row}); }
    Text &addLine(const QByteArray &line);
    Text &cut(qsizetype bytes); ///< from the end

    QByteArray bytes() const { return m_bytes; }
    static QByteArray line(const QList<QByteArray> &sensors, const Row &row);

private:
    QList<QByteArray> m_sensors;
    QByteArray m_bytes;
};

/** A file of its own for each oddity that logs have. */
struct File
{
    QString name;
    QByteArray bytes;
};
QList<File> oddFiles();

} // namespace MadeLogs
