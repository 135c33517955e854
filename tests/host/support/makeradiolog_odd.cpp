// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/makeradiolog.h"

using namespace Qt::Literals::StringLiterals;

namespace MadeLogs {
namespace {

constexpr qint64 Minute = 60'000;
constexpr double Absurd = 162'752'521.4; // A, as a broken frame was once read

/** Half a minute of rest, of flight and of rest, with a row each second. */
Plan shortPlan(double used = 0)
{
    Plan plan;
    plan.restBefore = 10;
    plan.flight = 60;
    plan.restAfter = 10;
    plan.used = used;
    return plan;
}

Rows shortFlight(double used = 0)
{
    return flight({}, shortPlan(used));
}

/** Rows, some of which lack a field or have one too many. */
QByteArray withOtherRows(int others)
{
    Text text;
    const QList<QByteArray> sensors = QByteArray(UsualSensors).split(',');
    int row = 0;
    for (const Row &each : shortFlight()) {
        QByteArray line = Text::line(sensors, each);
        line.chop(1);
        if (row++ < others)
            line = row % 2 == 0 ? line + ",1" : line.left(line.lastIndexOf(','));
        text.addLine(line);
    }
    return text.bytes();
}

Rows withAbsurdValues()
{
    Rows rows = shortFlight();
    rows[20].current = Absurd;
    rows[40].volts = 16'610'796.51;
    return rows;
}

Rows withPoisonedCounter()
{
    Rows rows = withAbsurdValues();
    for (size_t i = 21; i < rows.size(); ++i)
        rows[i].used += 800;
    return rows;
}

Rows offByTen()
{
    Rows rows = shortFlight();
    for (Row &row : rows)
        row.volts /= 10;
    return rows;
}

Rows lost(Rows rows, size_t from, size_t to)
{
    for (size_t i = from; i < to; ++i)
        rows[i].isLost = true;
    return rows;
}

Rows at(QDate date, QTime time)
{
    Plan plan = shortPlan();
    plan.start = QDateTime(date, time);
    return flight({}, plan);
}

/** What a logger writes that is no radio. */
QByteArray otherCsv()
{
    QByteArray bytes = "# Graph Data\nSeconds, Volts, Amps\n";
    for (int i = 0; i < 20; ++i)
        bytes += QByteArray::number(i) + ", 12.1, 20\n";
    return bytes;
}

QByteArray withBytesThatAreNotUtf8()
{
    QByteArray bytes = Text("RSSI(dB),H\xF6he(m),VFAS(V),Curr(A),mAh(mAh),FM").add(shortFlight()).bytes();
    return bytes.replace("ACRO", "H\xF6he\xFF");
}

} // namespace

QList<File> oddFiles()
{
    const Rows usual = shortFlight();
    const double used = usual.back().used;
    const Rows runningOn = shifted(shortFlight(used), 10 * Minute);
    const Rows next = shifted(shortFlight(), 60 * Minute);
    QList<QByteArray> sensors = QByteArray(UsualSensors).split(',');
    return {
        {u"Usual-2026-05-01-140000.csv"_s, Text().add(usual).bytes()},
        {u"Empty-2026-05-01-140000.csv"_s, QByteArray()},
        {u"HeaderOnly-2026-05-01-140000.csv"_s, Text().bytes()},
        {u"CutRow-2026-05-01-140000.csv"_s, Text().add(usual).cut(30).bytes()},
        {u"OtherRows-2026-05-01-140000.csv"_s, withOtherRows(7)},
        {u"MostlyOtherRows-2026-05-01-140000.csv"_s, withOtherRows(50)},
        {u"AbsurdValues-2026-05-01-140000.csv"_s, Text().add(withAbsurdValues()).bytes()},
        {u"PoisonedCounter-2026-05-01-140000.csv"_s, Text().add(withPoisonedCounter()).bytes()},
        {u"RunsOn-2026-05-01-140000.csv"_s, Text().add(usual).bytes()},
        {u"RunsOn-2026-05-01-141000.csv"_s, Text().add(runningOn).bytes()},
        {u"StartsLate-2026-05-01-140000.csv"_s, Text().add(shortFlight(77)).bytes()},
        {u"OffByTen-2026-05-01-140000.csv"_s, Text().add(offByTen()).bytes()},
        {u"AllZero-2026-05-01-140000.csv"_s, Text().add(lost(usual, 0, usual.size())).bytes()},
        {u"TelemetryLost-2026-05-01-140000.csv"_s, Text().add(lost(usual, 30, 50)).bytes()},
        {u"EqualColumns-2026-05-01-140000.csv"_s,
         Text("VFAS(V),VFAS(V),Curr(A),Curr(A),mAh(mAh)").add(usual).bytes()},
        {u"ClockNeverSet-2000-01-01-000000.csv"_s, Text().add(at(QDate(2000, 1, 1), QTime(0, 0))).bytes()},
        {u"Midnight-2026-05-01-235930.csv"_s, Text().add(at(QDate(2026, 5, 1), QTime(23, 59, 30))).bytes()},
        {u"TimeBack-2026-05-01-140000.csv"_s,
         Text().add(usual).add(shifted(shortFlight(), -30 * Minute)).bytes()},
        {u"OtherCsv-2026-05-01-140000.csv"_s, otherCsv()},
        {u"NotUtf8-2026-05-01-140000.csv"_s, withBytesThatAreNotUtf8()},
        {u"Day-with-hyphens-2026-05-01.csv"_s, Text().add(usual).add(next).bytes()},
        {u"OldHeader-2026-05-01-140000.csv"_s,
         Text("SWR,RSSI,A1,Fuel,Current,Consumption,Vfas").add(usual).bytes()},
        {u"CommaInLabel-2026-05-01-140000.csv"_s,
         Text("RSSI(dB),Temp(C),VFAS(V),Curr(A),mAh(mAh)")
             .withHeader(
                 "Date,Time,RSSI(dB),Motor, left(C),VFAS(V),Curr(A),mAh(mAh),Rud,Ele,Thr,Ail,SA,SB,LSW,"
                 "CH1(us),CH2(us),TxBat(V)")
             .add(usual)
             .bytes()},
        {u"QuotedTexts-2026-05-01-140000.csv"_s,
         Text("FM,RSSI(dB),VFAS(V),Curr(A),mAh(mAh)").add(usual).bytes().replace("ACRO", "3D, \"\"low\"\"")},
        {u"UnknownColumns-2026-05-01-140000.csv"_s,
         Text("RSSI(dB),VFAS(V),Curr(A),mAh(mAh)")
             .withHeader(
                 "Date,Time,RSSI(dB),Pack,Amps(A),Drawn(Ah),Rud,Ele,Thr,Ail,SA,SB,LSW,CH1(us),CH2(us),"
                 "TxBat(V)")
             .add(usual)
             .bytes()},
    };
}

} // namespace MadeLogs
