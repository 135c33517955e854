// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/readlog.h"

#include <QTest>

#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace Host;
using MadeLogs::readSession;
using MadeLogs::Rows;
using MadeLogs::shifted;
using MadeLogs::steady;

class RadioLogSessionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aGapOfMoreThanAMinuteStartsASession();
    void timeRunningBackStartsASession();
    void theEndIsTheLastRowsOwn();
    void currentsOfNoBatteryAreRejectedAndCounted();
    void voltsOfNoBatteryAreRejectedAndCounted();
    void zeroVoltsAreNoMeasurement();
    void voltsThatNoCellsMakeAreNone_data();
    void voltsThatNoCellsMakeAreNone();
    void aSinglePeakIsNotTheMaximum();
    void stepsOfMoreThanFiveSecondsAreNotCovered();
    void aStepWeighsByItsEarlierCurrent();
    void aCounterHasBegunAtPlugIn();
    void aCounterIsDoubtfulByThreePercentAndTwentyMilliamperehours_data();
    void aCounterIsDoubtfulByThreePercentAndTwentyMilliamperehours();
    void aSparseLogSaysNothingAgainstTheCounter();
    void lostTelemetrySaysNothingAgainstTheCounter();
    void withoutACounterTheIntegralCounts();
    void aLogWithoutCurrentHasNoDuration();
    void neverOverAnAmpereIsADurationOfNone();
    void pausesOfAMinuteDoNotCount();
    void aFlightBeginsAtItsFirstRowOverAnAmpere();
    void rowsOfNothingButZerosAreNoSamples();
    void restIsBeforeAndAfterTheDischarge();
    void threeSamplesAtLeastAreARest();
    void aMuteSessionTellsNothing();
    void aLongSessionKeepsItsResistance();
};

void RadioLogSessionsTest::aGapOfMoreThanAMinuteStartsASession()
{
    const auto sessions = [](qint64 gap) {
        const Rows rows = steady(10, 5) + shifted(steady(10, 5), 9000 + gap);
        return MadeLogs::readLog(MadeLogs::Text().add(rows).bytes()).sessions.size();
    };
    QCOMPARE(sessions(60'000), 1);
    QCOMPARE(sessions(60'001), 2);
}

void RadioLogSessionsTest::timeRunningBackStartsASession()
{
    const Rows rows = steady(10, 5) + shifted(steady(10, 5), 9000) + shifted(steady(10, 5), 17'999);
    const QList<Session> sessions = MadeLogs::readLog(MadeLogs::Text().add(rows).bytes()).sessions;
    QCOMPARE(sessions.size(), 2);
    QCOMPARE(sessions.first().rows, 20);
    QVERIFY(!sessions.first().clockRanBack);
    QVERIFY(sessions.last().clockRanBack);
}

void RadioLogSessionsTest::theEndIsTheLastRowsOwn()
{
    Rows rows = steady(10, 5);
    rows.back().isLost = true;
    const Session session = readSession(rows);
    QCOMPARE(clockText(session.start), u"2026-05-01T14:00:00"_s);
    QCOMPARE(clockText(session.end), u"2026-05-01T14:00:09"_s);
    QCOMPARE(session.rows, 10);
    QVERIFY(timeOfClock(session.end) == QDateTime(QDate(2026, 5, 1), QTime(14, 0, 9)));
}

void RadioLogSessionsTest::currentsOfNoBatteryAreRejectedAndCounted()
{
    Rows rows = steady(20, 5);
    rows[5].current = -50.1;
    rows[6].current = 500.1;
    rows[7].current = 162'752'521.4;
    QCOMPARE(readSession(rows).rejectedCurrents, 3);
    QCOMPARE(readSession(rows).maxCurrent, 5);
    rows[5].current = -50;
    rows[6].current = rows[7].current = 500;
    QCOMPARE(readSession(rows).rejectedCurrents, 0);
    QCOMPARE(readSession(rows).maxCurrent, 500);
    QCOMPARE(readSession(rows, "VFAS(V)").rejectedCurrents, 0);
}

void RadioLogSessionsTest::voltsOfNoBatteryAreRejectedAndCounted()
{
    Rows rows = steady(20, 5, 12);
    rows[5].volts = -0.01;
    rows[6].volts = 80.01;
    QCOMPARE(readSession(rows).rejectedVoltages, 2);
    QCOMPARE(readSession(rows).maxVoltage, 12);
    QCOMPARE(readSession(rows).minVoltage, 12);
    rows[6].volts = 80;
    QCOMPARE(readSession(rows).rejectedVoltages, 1);
    QCOMPARE(readSession(rows).maxVoltage, 80);
    QCOMPARE(readSession(rows, "Curr(A)").rejectedVoltages, 0);
}

void RadioLogSessionsTest::zeroVoltsAreNoMeasurement()
{
    Rows rows = steady(20, 5, 12);
    rows[5].volts = 0;
    QCOMPARE(readSession(rows).rejectedVoltages, 0);
    QCOMPARE(readSession(rows).minVoltage, 12);
}

void RadioLogSessionsTest::voltsThatNoCellsMakeAreNone_data()
{
    QTest::addColumn<double>("rest");
    QTest::addColumn<int>("cells"); // 0 for none
    QTest::newRow("ten times too low") << 1.22 << 0;
    QTest::newRow("below a cell") << 2.49 << 0;
    QTest::newRow("lowest cell") << 2.5 << 1;
    QTest::newRow("highest cell") << 4.5 << 1;
    QTest::newRow("between one cell and two") << 4.51 << 0;
    QTest::newRow("below two cells") << 4.99 << 0;
    QTest::newRow("two cells") << 5.0 << 2;
    QTest::newRow("three cells") << 12.6 << 3;
    QTest::newRow("six cells") << 22.2 << 6;
}

void RadioLogSessionsTest::voltsThatNoCellsMakeAreNone()
{
    QFETCH(double, rest);
    QFETCH(int, cells);
    const Session session = readSession(steady(10, 0.1, rest));
    QCOMPARE(session.cells.value_or(0), cells);
    QCOMPARE(session.minVoltage.has_value(), cells > 0);
    QCOMPARE(session.maxVoltage.has_value(), cells > 0);
    QCOMPARE(session.restBefore.has_value(), cells > 0);
    QCOMPARE(session.restAfter.has_value(), cells > 0);
}

void RadioLogSessionsTest::aSinglePeakIsNotTheMaximum()
{
    Rows rows = steady(20, 5);
    rows[3].current = 40;
    QCOMPARE(readSession(rows).maxCurrent, 5);
    rows[5].current = 30; // 40, 5, 30
    QCOMPARE(readSession(rows).maxCurrent, 30);
    rows[4].current = 35;
    QCOMPARE(readSession(rows).maxCurrent, 35);
    QVERIFY(!readSession(steady(2, 5)).maxCurrent);
    QCOMPARE(readSession(steady(3, 5)).maxCurrent, 5);
}

void RadioLogSessionsTest::stepsOfMoreThanFiveSecondsAreNotCovered()
{
    const Rows five = steady(2, 36) + shifted(steady(1, 36), 6000);
    QCOMPARE(readSession(five).integral, 60); // 6 s of 36 A
    const Rows more = steady(2, 36) + shifted(steady(1, 36), 6001);
    QCOMPARE(readSession(more).integral, 10);
    Rows rejected = steady(7, 36);
    for (size_t i = 1; i < 5; ++i)
        rejected[i].current = 600;
    QCOMPARE(readSession(rejected).integral, 60);
    rejected[5].current = 600;
    QVERIFY(!readSession(rejected).integral);
    QVERIFY(!readSession(steady(1, 36)).integral);
}

void RadioLogSessionsTest::aStepWeighsByItsEarlierCurrent()
{
    Rows rows = steady(2, 36) + shifted(steady(1, 72), 3000);
    QCOMPARE(readSession(rows).integral, 30);
    rows[0].current = 72;
    QCOMPARE(readSession(rows).integral, 40);
}

void RadioLogSessionsTest::aCounterHasBegunAtPlugIn()
{
    const Session session = readSession(steady(101, 36, 12, 77));
    QCOMPARE(session.counterFirst, 77);
    QCOMPARE(session.counterLast, 1077);
    QCOMPARE(session.counter, 1077);
    QCOMPARE(session.discharged, 1077);
    QCOMPARE(session.doubtful, false);
}

void RadioLogSessionsTest::aCounterIsDoubtfulByThreePercentAndTwentyMilliamperehours_data()
{
    QTest::addColumn<int>("rows"); // of 36 A, 10 mAh each
    QTest::addColumn<double>("rise");
    QTest::addColumn<bool>("doubtful");
    QTest::newRow("20 mAh") << 51 << 480.0 << false;
    QTest::newRow("21 mAh") << 51 << 479.0 << true;
    QTest::newRow("21 mAh, too many") << 51 << 521.0 << true;
    QTest::newRow("30 of 1000") << 98 << 1000.0 << false;
    QTest::newRow("31 of 1000") << 98 << 1001.0 << true;
    QTest::newRow("a few mAh, many percent") << 3 << 38.0 << false;
}

void RadioLogSessionsTest::aCounterIsDoubtfulByThreePercentAndTwentyMilliamperehours()
{
    QFETCH(int, rows);
    QFETCH(double, rise);
    QFETCH(bool, doubtful);
    Rows made = steady(rows, 36);
    made.back().used = rise;
    const Session session = readSession(made);
    const double integral = (rows - 1) * 10.0;
    QCOMPARE(session.doubtful, doubtful);
    QCOMPARE(session.counter, rise);
    QCOMPARE(session.integral, integral);
    QCOMPARE(session.discharged, doubtful ? integral : rise);
}

void RadioLogSessionsTest::aSparseLogSaysNothingAgainstTheCounter()
{
    Rows rows;
    for (int i = 0; i < 30; ++i) { // a row each ten seconds, but for two
        const Rows one = shifted(steady(1, 36, 12, 100.0 * i), 10'000 * i);
        rows = rows + one + (i == 15 ? shifted(one, 1000) : Rows());
    }
    const Session session = readSession(rows);
    QCOMPARE(session.integral, 10);
    QCOMPARE(session.doubtful, false);
    QCOMPARE(session.discharged, 2900);
}

void RadioLogSessionsTest::lostTelemetrySaysNothingAgainstTheCounter()
{
    Rows rows = steady(101, 36);
    const auto lose = [&rows](size_t from, size_t to) {
        for (size_t i = from; i < to; ++i)
            rows[i].isLost = true;
    };
    lose(40, 49); // ten seconds of a hundred, which is just enough left
    rows.back().used = 1100;
    QCOMPARE(readSession(rows).integral, 900);
    QCOMPARE(readSession(rows).doubtful, true);
    lose(40, 50);
    QCOMPARE(readSession(rows).integral, 890);
    QCOMPARE(readSession(rows).doubtful, false);
    QCOMPARE(readSession(rows).discharged, 1100);
}

void RadioLogSessionsTest::withoutACounterTheIntegralCounts()
{
    const Session session = readSession(steady(101, 36), "VFAS(V),Curr(A)");
    QVERIFY(!session.counter);
    QVERIFY(!session.doubtful);
    QCOMPARE(session.discharged, 1000);
}

void RadioLogSessionsTest::aLogWithoutCurrentHasNoDuration()
{
    const Session session = readSession(steady(101, 36), "VFAS(V),mAh(mAh)");
    QVERIFY(!session.duration);
    QVERIFY(!session.flightStart);
    QVERIFY(!session.maxCurrent);
    QVERIFY(!session.integral);
    QVERIFY(!session.doubtful);
    QVERIFY(!session.restBefore);
    QCOMPARE(session.discharged, 1000);
    QCOMPARE(session.maxVoltage, 12);
}

void RadioLogSessionsTest::neverOverAnAmpereIsADurationOfNone()
{
    const Session session = readSession(steady(30, 1));
    QCOMPARE(session.duration, 0);
    QVERIFY(!session.flightStart);
}

void RadioLogSessionsTest::pausesOfAMinuteDoNotCount()
{
    const auto duration = [](qint64 pause, bool isSilent) {
        Rows rows = steady(11, 5);
        for (qint64 i = 1000; i < pause; i += 1000) {
            rows.push_back(shifted(steady(1, 0.5), 10'000 + i).front());
            rows.back().isLost = isSilent;
        }
        return readSession(rows + shifted(steady(11, 5), 10'000 + pause)).duration;
    };
    for (const bool isSilent : {false, true}) {
        QCOMPARE(duration(59'999, isSilent), 79.999);
        QCOMPARE(duration(60'000, isSilent), 20);
        QCOMPARE(duration(600'000, isSilent), 20);
    }
}

void RadioLogSessionsTest::aFlightBeginsAtItsFirstRowOverAnAmpere()
{
    Rows rows =
        shifted(steady(10, 1), 250) + shifted(steady(10, 1.1), 10'250) + shifted(steady(10, 1), 20'250);
    const Session session = readSession(rows);
    QCOMPARE(clockText(*session.flightStart), u"2026-05-01T14:00:10"_s);
    QCOMPARE(*session.flightStart % 1000, 0);
    QCOMPARE(session.duration, 9);
}

void RadioLogSessionsTest::rowsOfNothingButZerosAreNoSamples()
{
    // Volts are missing, the rest are 0: an idle battery, as long as some sensor says anything.
    Rows rows = steady(40, 36);
    for (size_t i = 10; i < 30; ++i)
        rows[i].current = 0;
    QCOMPARE(readSession(rows, "RSSI(dB),Curr(A)").integral, 190);
    for (size_t i = 10; i < 30; ++i)
        rows[i].isLost = true;
    QCOMPARE(readSession(rows, "RSSI(dB),Curr(A)").integral, 180);

    // Current and volts are 0, another sensor repeats its last value.
    for (size_t i = 10; i < 30; ++i) {
        rows[i].isLost = false;
        rows[i].volts = 0;
        rows[i].current = 0;
    }
    QCOMPARE(readSession(rows).integral, 180);
    QCOMPARE(readSession(rows).minVoltage, 12);
}

void RadioLogSessionsTest::restIsBeforeAndAfterTheDischarge()
{
    Rows rows = steady(30, 0.9, 12.5);
    rows = rows + shifted(steady(100, 20, 11.5), 30'000) + shifted(steady(30, 0.9, 11.9), 130'000); // a glide
    rows = rows + shifted(steady(100, 20, 11), 160'000) + shifted(steady(30, 0.9, 11.4), 260'000);
    Session session = readSession(rows, "VFAS(V),Curr(A)");
    QCOMPARE(session.restBefore, 12.5);
    QCOMPARE(session.restAfter, 11.4);
    rows.erase(rows.begin(), rows.begin() + 30);
    rows.erase(rows.end() - 30, rows.end());
    session = readSession(rows, "VFAS(V),Curr(A)");
    QVERIFY(!session.restBefore);
    QVERIFY(!session.restAfter);

    rows = shifted(steady(19, 0.9, 12.5), -21'000) + shifted(steady(10, 0.9, 12.4), -2'000); // 20 of these
    rows = rows + shifted(steady(100, 20, 11), 10'000) + shifted(steady(25, 0.9, 11.5), 110'000);
    rows.back().volts = 11.6;
    session = readSession(rows, "VFAS(V),Curr(A)");
    QCOMPARE(session.restBefore, 12.5);
    QCOMPARE(session.restAfter, 11.5);
}

void RadioLogSessionsTest::threeSamplesAtLeastAreARest()
{
    const auto rest = [](int samples) {
        return readSession(steady(samples, 0.5, 12.5) + shifted(steady(60, 20, 11), samples * 1000LL))
            .restBefore;
    };
    QVERIFY(!rest(2));
    QCOMPARE(rest(3), 12.5);
}

void RadioLogSessionsTest::aMuteSessionTellsNothing()
{
    Rows rows = steady(20, 5);
    Rows lost = shifted(steady(20, 5), 600'000);
    for (MadeLogs::Row &row : lost)
        row.isLost = true;
    const RadioLog log = MadeLogs::readLog(MadeLogs::Text().add(rows).add(lost).bytes());
    QCOMPARE(log.sessions.size(), 2);
    const Session &session = log.sessions.last();
    QCOMPARE(session.rows, 20);
    QVERIFY(!session.counter && !session.integral && !session.doubtful && !session.discharged);
    QVERIFY(!session.duration && !session.maxCurrent && !session.maxVoltage && !session.cells);
}

void RadioLogSessionsTest::aLongSessionKeepsItsResistance()
{
    MadeLogs::Plan plan;
    plan.step = 100;
    plan.flight = 12'000;
    plan.current = 4;
    const Session session = readSession(MadeLogs::flight({}, plan));
#ifdef VOLTBOK_WITH_GSL
    QVERIFY(std::abs(session.resistance.value_or(0) - 40) < 4);
#else
    QVERIFY(!session.resistance);
#endif
    QVERIFY(std::abs(*session.duration - 1199.9) < 0.01);
}

QTEST_GUILESS_MAIN(RadioLogSessionsTest)

#include "tst_radiologsessions.moc"
