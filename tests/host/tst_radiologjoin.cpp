// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/readlog.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;
using namespace Host;
using MadeLogs::Rows;
using MadeLogs::shifted;
using MadeLogs::steady;

constexpr qint64 Minute = 60'000;

class RadioLogJoinTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCounterThatRunsOnIsOneDischarge();
    void theOrderOfFilesDoesNotMatter();
    void halfAnHourIsTooLong();
    void fiveMilliamperehoursAreTheSameCounter_data();
    void fiveMilliamperehoursAreTheSameCounter();
    void anotherModelIsAnotherBattery();
    void sessionsThatOverlapAreTwoDischarges();
    void aCounterThatFellCountsFromPlugIn();
    void aMuteLogBetweenThemDoesNotPartThem();
    void ofDoubtfulPartsTheIntegralIsAdded();
    void aBreakOfLessThanAMinuteIsPartOfTheDuration();
    void anEarlierImportGoesOn();
    void joiningTwiceChangesNothing();
    void aDayFileThatHasGrownGoesOnWithoutACounter();
    void aClockThatRanBackDoesNotPartADischarge();
    void aClockThatRanBackJoinsOnlyWhatRunsOn();
    void clocksThatRunBackAndForthComeToAnEnd();
    void aCounterThatNeverCountsJoinsNothing();
    void theCapacityIsThatOfTheWholeDischarge();
    void whatASessionMeasuredItselfStays();

private:
    static Session session(const Rows &rows, int file, const QString &model = u"Swift"_s,
                           const QByteArray &sensors = MadeLogs::UsualSensors);
    /** A hundred seconds at 36 A: 1000 mAh. */
    static Session part(int file, qint64 after, double used);
};

Session RadioLogJoinTest::session(const Rows &rows, int file, const QString &model, const QByteArray &sensors)
{
    ReadOptions options;
    options.file = file;
    const QByteArray bytes = MadeLogs::Text(sensors).add(rows).bytes();
    const RadioLog log = MadeLogs::readLog(bytes, options, model + u"-2026-05-01-140000.csv"_s);
    return log.sessions.size() == 1 ? log.sessions.first() : Session();
}

Session RadioLogJoinTest::part(int file, qint64 after, double used)
{
    return session(shifted(steady(101, 36, 12, used), after), file);
}

void RadioLogJoinTest::aCounterThatRunsOnIsOneDischarge()
{
    Rows peak = shifted(steady(101, 36, 12, 1000), 10 * Minute);
    peak[50].current = peak[51].current = 50;
    QList<Session> sessions{part(0, 0, 0), session(peak, 1), part(2, 20 * Minute, 2003)};
    const QList<Session> alone = sessions;
    joinDischarges(sessions);
    QCOMPARE(sessions[0].discharged, 3003);
    QCOMPARE(sessions[0].duration, 300);
    QCOMPARE(clockText(*sessions[0].flightStart), u"2026-05-01T14:00:00"_s);
    QCOMPARE(sessions[0].highestCurrent, 50);
    QVERIFY(!sessions[0].continues);
    for (qsizetype i = 1; i < 3; ++i) {
        QCOMPARE(sessions[i].continues, sessions[0].start);
        QVERIFY(!sessions[i].discharged && !sessions[i].duration && !sessions[i].flightStart);
        QVERIFY(!sessions[i].highestCurrent && !sessions[i].capacity);
    }
    for (qsizetype i = 0; i < 3; ++i) {
        QCOMPARE(sessions[i].integral, alone[i].integral);
        QCOMPARE(sessions[i].end, alone[i].end);
        QCOMPARE(sessions[i].maxCurrent, i == 1 ? 50 : 36);
    }
    QCOMPARE(sessions[0].counter, 1000);
    QCOMPARE(sessions[1].counter, 1000);
    QCOMPARE(sessions[2].counter, 1003);
}

void RadioLogJoinTest::theOrderOfFilesDoesNotMatter()
{
    QList<Session> sessions{part(0, 0, 0), part(1, 10 * Minute, 1000), part(2, 20 * Minute, 2000),
                            part(3, 28 * Minute, 0)};
    std::sort(sessions.begin(), sessions.end(),
              [](const Session &a, const Session &b) { return a.file < b.file; });
    int orders = 0;
    do {
        QList<Session> joined = sessions;
        joinDischarges(joined);
        for (const Session &each : std::as_const(joined)) {
            const bool isFirst = each.file == 0 || each.file == 3;
            QCOMPARE(each.continues.has_value(), !isFirst);
            QCOMPARE(each.discharged.value_or(-1), each.file == 0 ? 3000 : each.file == 3 ? 1000 : -1);
        }
        ++orders;
    } while (std::next_permutation(sessions.begin(), sessions.end(),
                                   [](const Session &a, const Session &b) { return a.file < b.file; }));
    QCOMPARE(orders, 24);
}

void RadioLogJoinTest::halfAnHourIsTooLong()
{
    constexpr qint64 End = 100'000; // of the first one
    QList<Session> sessions{part(0, 0, 0), part(1, End + 30 * Minute - 1, 1000)};
    joinDischarges(sessions);
    QCOMPARE(sessions.first().discharged, 2000);
    sessions = {part(0, 0, 0), part(1, End + 30 * Minute, 1000)};
    joinDischarges(sessions);
    QCOMPARE(sessions.first().discharged, 1000);
    QCOMPARE(sessions.last().discharged, 2000);
}

void RadioLogJoinTest::fiveMilliamperehoursAreTheSameCounter_data()
{
    QTest::addColumn<double>("first");
    QTest::addColumn<bool>("same");
    QTest::newRow("994") << 994.0 << false;
    QTest::newRow("995") << 995.0 << true;
    QTest::newRow("1005") << 1005.0 << true;
    QTest::newRow("1006") << 1006.0 << false;
}

void RadioLogJoinTest::fiveMilliamperehoursAreTheSameCounter()
{
    QFETCH(double, first);
    QFETCH(bool, same);
    QList<Session> sessions{part(0, 0, 0), part(1, 10 * Minute, first)};
    joinDischarges(sessions);
    QCOMPARE(sessions.last().continues.has_value(), same);
    QCOMPARE(sessions.first().discharged, same ? 1000 + first : 1000);
}

void RadioLogJoinTest::anotherModelIsAnotherBattery()
{
    QList<Session> sessions{part(0, 0, 0),
                            session(shifted(steady(101, 36, 12, 1000), 3 * Minute), 1, u"Heron"_s),
                            part(2, 10 * Minute, 1000)};
    joinDischarges(sessions);
    QVERIFY(!sessions[1].continues);
    QCOMPARE(sessions[1].discharged, 2000);
    QCOMPARE(sessions[2].continues, sessions[0].start);
    sessions = {session(steady(101, 36), 0, u"Heron"_s), part(1, 10 * Minute, 1000)};
    joinDischarges(sessions);
    QVERIFY(!sessions.last().continues);
}

void RadioLogJoinTest::sessionsThatOverlapAreTwoDischarges()
{
    QList<Session> sessions{part(0, 0, 0), part(1, 50'000, 1000)};
    joinDischarges(sessions);
    QVERIFY(!sessions.last().continues);
    QCOMPARE(sessions.last().discharged, 2000);
}

/** Another battery, say, plugged in while the radio went on logging. */
void RadioLogJoinTest::aCounterThatFellCountsFromPlugIn()
{
    Rows rows = shifted(steady(101, 36, 12, 1000), 10 * Minute);
    for (size_t i = 50; i < rows.size(); ++i)
        rows[i].used -= 1500;
    QList<Session> sessions{part(0, 0, 0), session(rows, 1)};
    joinDischarges(sessions);
    QCOMPARE(sessions.last().continues, sessions.first().start);
    QCOMPARE(sessions.last().counter, 500);
}

void RadioLogJoinTest::aMuteLogBetweenThemDoesNotPartThem()
{
    QList<Session> sessions{part(0, 0, 0),
                            session(shifted(steady(10, 1), 5 * Minute), 1, u"Swift"_s, "RSSI(dB)"),
                            part(2, 10 * Minute, 1000)};
    joinDischarges(sessions);
    QCOMPARE(sessions[0].discharged, 2000);
    QVERIFY(!sessions[1].continues);
    QCOMPARE(sessions[2].continues, sessions[0].start);
}

void RadioLogJoinTest::ofDoubtfulPartsTheIntegralIsAdded()
{
    Rows poisoned = shifted(steady(101, 36, 12, 1000), 10 * Minute);
    for (size_t i = 50; i < poisoned.size(); ++i)
        poisoned[i].used += 5000;
    QList<Session> sessions{part(0, 0, 0), session(poisoned, 1), part(2, 20 * Minute, 7000)};
    joinDischarges(sessions);
    QCOMPARE(sessions[1].doubtful, true);
    QCOMPARE(sessions[1].counter, 6000);
    QCOMPARE(sessions[0].discharged, 3000);
}

void RadioLogJoinTest::aBreakOfLessThanAMinuteIsPartOfTheDuration()
{
    QList<Session> sessions{part(0, 0, 0), part(1, 100'000 + 59'999, 1000)};
    joinDischarges(sessions);
    QCOMPARE(sessions.first().duration, 259.999);
    sessions.last() = part(1, 100'000 + Minute, 1000);
    joinDischarges(sessions);
    QCOMPARE(sessions.first().duration, 200);
    // Also over a log without load between them.
    sessions = {part(0, 0, 0), session(shifted(steady(10, 0.5, 12, 1000), 110'000), 1),
                part(2, 130'000, 1001)};
    joinDischarges(sessions);
    QCOMPARE(sessions.last().continues, sessions.first().start);
    QCOMPARE(sessions.first().duration, 230);
}

void RadioLogJoinTest::anEarlierImportGoesOn()
{
    QList<Session> earlier{part(0, 0, 0), part(1, 5 * Minute, 1000)};
    joinDischarges(earlier);
    QCOMPARE(earlier.first().discharged, 2000);
    QList<Session> sessions = QList<Session>{part(2, 10 * Minute, 2000)} + earlier;
    joinDischarges(sessions);
    QCOMPARE(sessions[0].continues, sessions[1].start);
    QVERIFY(!sessions[0].discharged);
    QCOMPARE(sessions[1].discharged, 3000);
    QCOMPARE(sessions[1].duration, 300);
}

void RadioLogJoinTest::joiningTwiceChangesNothing()
{
    QList<Session> sessions{part(0, 0, 0), part(1, 5 * Minute, 1000)};
    joinDischarges(sessions);
    joinDischarges(sessions);
    QCOMPARE(sessions.first().discharged, 2000);
    QCOMPARE(sessions.first().duration, 200);
    sessions.removeLast();
    joinDischarges(sessions);
    QCOMPARE(sessions.first().discharged, 1000);
    sessions.append(part(1, 5 * Minute, 1000));
    joinDischarges(sessions);
    sessions.removeFirst();
    joinDischarges(sessions);
    QVERIFY(!sessions.first().continues);
    QCOMPARE(sessions.first().discharged, 2000);
}

void RadioLogJoinTest::aDayFileThatHasGrownGoesOnWithoutACounter()
{
    Session grown = session(shifted(steady(101, 36), 130'000), 1, u"Swift"_s, "Curr(A)");
    QList<Session> sessions{session(steady(101, 36), 0, u"Swift"_s, "Curr(A)"), grown};
    joinDischarges(sessions);
    QVERIFY(!sessions.last().continues);
    sessions.last().isResumed = true;
    joinDischarges(sessions);
    QCOMPARE(sessions.last().continues, sessions.first().start);
    QCOMPARE(sessions.first().discharged, 2000);
    QCOMPARE(sessions.first().duration, 230);
    for (const auto &[pause, isOne] : {std::pair(Minute, true), std::pair(Minute + 1000, false)}) {
        sessions.last() = session(shifted(steady(101, 36), 100'000 + pause), 1, u"Swift"_s, "Curr(A)");
        sessions.last().isResumed = true;
        joinDischarges(sessions);
        QCOMPARE(sessions.last().continues.has_value(), isOne);
    }
}

void RadioLogJoinTest::aClockThatRanBackDoesNotPartADischarge()
{
    const Rows rows = steady(101, 36) + shifted(steady(101, 36, 12, 1000), -60 * Minute);
    QList<Session> sessions = MadeLogs::readLog(MadeLogs::Text().add(rows).bytes()).sessions;
    QCOMPARE(sessions.size(), 2);
    joinDischarges(sessions);
    QCOMPARE(sessions.last().continues, sessions.first().start);
    QCOMPARE(sessions.first().discharged, 2000);
    QCOMPARE(sessions.first().duration, 200);
}

void RadioLogJoinTest::aClockThatRanBackJoinsOnlyWhatRunsOn()
{
    const auto joined = [](const Rows &rows) {
        QList<Session> sessions = MadeLogs::readLog(MadeLogs::Text().add(rows).bytes()).sessions;
        joinDischarges(sessions);
        return sessions;
    };
    // The counter begins again.
    QList<Session> sessions = joined(steady(101, 36) + shifted(steady(101, 36), -60 * Minute));
    QVERIFY(!sessions.last().continues);
    // What stands later in the file is not what went before, whatever the clock shows.
    sessions = joined(shifted(steady(101, 36, 12, 1000), 10 * Minute) + steady(101, 36));
    QVERIFY(!sessions.first().continues && !sessions.last().continues);
    QCOMPARE(sessions.first().discharged, 2000);
    QCOMPARE(sessions.last().discharged, 1000);
    sessions = joined(shifted(steady(101, 36), 20 * Minute) + shifted(steady(101, 36, 12, 1000), 5 * Minute) +
                      steady(101, 36));
    QCOMPARE(sessions.at(1).continues, sessions.at(0).start);
    QVERIFY(!sessions.at(2).continues);
    QCOMPARE(sessions.at(0).discharged, 2000);
}

void RadioLogJoinTest::clocksThatRunBackAndForthComeToAnEnd()
{
    const auto stuck = [](qint64 after) {
        Rows rows = shifted(steady(101, 36), after);
        for (MadeLogs::Row &row : rows)
            row.used = 1000;
        return rows;
    };
    QList<Session> sessions =
        MadeLogs::readLog(MadeLogs::Text().add(stuck(20 * Minute) + stuck(0)).bytes()).sessions;
    sessions.append(session(stuck(10 * Minute), 1));
    joinDischarges(sessions);
    const auto first = std::count_if(sessions.cbegin(), sessions.cend(),
                                     [](const Session &each) { return !each.continues; });
    QCOMPARE(first, 1);
}

void RadioLogJoinTest::aCounterThatNeverCountsJoinsNothing()
{
    Rows dead = steady(101, 36);
    for (MadeLogs::Row &row : dead)
        row.used = 0;
    const Rows rows = dead + shifted(dead, 10 * Minute) + shifted(steady(101, 36, 12, 500), 60 * Minute);
    QList<Session> sessions = MadeLogs::readLog(MadeLogs::Text().add(rows).bytes()).sessions;
    joinDischarges(sessions);
    QCOMPARE(sessions.size(), 3);
    QCOMPARE(sessions.first().discharged, 1000);
    QVERIFY(!sessions.at(1).continues);
}

void RadioLogJoinTest::theCapacityIsThatOfTheWholeDischarge()
{
    MadeLogs::Pack pack;
    pack.capacity = 2000;
    MadeLogs::Plan plan;
    plan.current = 15;
    plan.flight = 120;
    const Rows all = MadeLogs::flight(pack, plan);
    MadeLogs::Plan second = plan;
    pack.charge -= all.back().used / pack.capacity;
    second.used = all.back().used;
    second.start = plan.start.addSecs(600);
    QList<Session> sessions{session(all, 0), session(MadeLogs::flight(pack, second), 1)};
    joinDischarges(sessions);
    QCOMPARE(sessions.last().continues, sessions.first().start);
    QVERIFY(!sessions.last().capacity);
    const double capacity = sessions.first().capacity.value_or(0);
    QVERIFY2(std::abs(capacity - 2000) < 100, qPrintable(QString::number(capacity)));
    sessions.last().restBefore = *sessions.last().restBefore - 0.3; // that of the first one counts
    joinDischarges(sessions);
    QCOMPARE(sessions.first().capacity, capacity);
}

void RadioLogJoinTest::whatASessionMeasuredItselfStays()
{
    QList<Session> sessions{session(steady(101, 36), 0, u"Swift"_s, "Curr(A),mAh(mAh)"),
                            session(shifted(steady(101, 0.5, 12, 1000), 10 * Minute), 1)};
    QCOMPARE(sessions.last().cells, 3);
    joinDischarges(sessions);
    QCOMPARE(sessions.last().continues, sessions.first().start);
    QCOMPARE(sessions.last().cells, 3);
    QVERIFY(!sessions.first().cells);
}

QTEST_GUILESS_MAIN(RadioLogJoinTest)

#include "tst_radiologjoin.moc"
