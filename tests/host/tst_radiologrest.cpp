// SPDX-License-Identifier: GPL-3.0-or-later
// What a log tells of the battery at rest, and of its resistance.
#include "tests/host/support/readlog.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Host;
using MadeLogs::readSession;
using MadeLogs::Rows;
using MadeLogs::shifted;
using MadeLogs::steady;

namespace {

/** One after the other, without a gap. */
Rows joined(const QList<Rows> &parts)
{
    Rows all;
    for (const Rows &part : parts)
        all = all + shifted(part, static_cast<qint64>(all.size()) * 1000);
    return all;
}

constexpr const char *WithoutCounter = "VFAS(V),Curr(A)";

} // namespace

class RadioLogRestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void twentySamplesAreARest();
    void lessThanAnAmpereIsRest();
    void afterTheFirstFewMilliamperehoursItIsNoRestBefore_data();
    void afterTheFirstFewMilliamperehoursItIsNoRestBefore();
    void aDoubtfulCounterDoesNotSayWhereTheRestIs();
    void theCounterSaysWhereTheRestIsInASparseLog();
    void theCellsAreCountedBeforeTheFlight();
    void theCapacityIsThatBetweenTheRests();
    void aCounterThatShowsNoughtAgainHasLostItsSensor();
    void ofALongLogAllPartsTellTheResistance();
    void ofALongLogAllPartsWeighTheSame();
};

void RadioLogRestTest::twentySamplesAreARest()
{
    const Rows rows = joined({steady(10, 0.1, 12.5), steady(30, 0.1, 12.3), steady(100, 20, 11),
                              steady(30, 0.1, 11.4), steady(10, 0.1, 11.6)});
    const Session session = readSession(rows, WithoutCounter);
    QCOMPARE(session.restBefore, (12.5 + 12.3) / 2);
    QCOMPARE(session.restAfter, (11.4 + 11.6) / 2);
}

void RadioLogRestTest::lessThanAnAmpereIsRest()
{
    const auto rest = [](double current) {
        return readSession(joined({steady(5, current, 12.5), steady(100, 20, 11)}), WithoutCounter)
            .restBefore;
    };
    QCOMPARE(rest(0.9), 12.5);
    QVERIFY(!rest(1));
}

void RadioLogRestTest::afterTheFirstFewMilliamperehoursItIsNoRestBefore_data()
{
    QTest::addColumn<double>("current"); // of the first second
    QTest::addColumn<int>("seconds");    // of 36 A, 10 mAh each
    QTest::addColumn<double>("rest");
    QTest::newRow("4 mAh of a hundred") << 14.4 << 10 << 12.3;
    QTest::newRow("6 mAh of a hundred") << 21.6 << 10 << 12.5;
    QTest::newRow("1.9 percent of a thousand") << 68.4 << 98 << 12.3;
    QTest::newRow("2.1 percent of a thousand") << 75.6 << 98 << 12.5;
}

void RadioLogRestTest::afterTheFirstFewMilliamperehoursItIsNoRestBefore()
{
    QFETCH(double, current);
    QFETCH(int, seconds);
    QFETCH(double, rest);
    const auto flown = [&](bool isAtTheEnd) {
        QList<Rows> parts{steady(3, 0, 12.5), steady(1, current, 11), steady(10, 0, 12.3),
                          steady(seconds, 36, 11)};
        if (isAtTheEnd)
            std::reverse(parts.begin(), parts.end());
        return readSession(joined(parts), WithoutCounter);
    };
    QCOMPARE(flown(false).restBefore, rest);
    QCOMPARE(flown(true).restAfter, rest);
}

void RadioLogRestTest::aDoubtfulCounterDoesNotSayWhereTheRestIs()
{
    Rows rows = joined({steady(25, 0.1, 12.5), steady(100, 20, 11), steady(10, 0.1, 11.4)});
    for (size_t i = 125; i < rows.size(); ++i) // it runs away after the landing
        rows[i].used = 1000.0 + 100.0 * static_cast<double>(i - 125);
    const Session session = readSession(rows);
    QCOMPARE(session.doubtful, true);
    QCOMPARE(session.restAfter, 11.4);
}

void RadioLogRestTest::theCounterSaysWhereTheRestIsInASparseLog()
{
    Rows rows;
    for (int i = 0; i < 50; ++i) { // a row each ten seconds: no step is short enough for the integral
        const bool isFlown = i >= 5 && i < 45;
        rows.push_back({i * 10'000, isFlown ? 9.0 : 0.1, 25.0 * std::clamp(i - 5, 0, 40),
                        isFlown  ? 11
                        : i < 20 ? 12.5
                                 : 11.4,
                        false});
    }
    const Session session = readSession(rows);
    QVERIFY(!session.integral);
    QCOMPARE(session.restBefore, 12.5);
    QCOMPARE(session.restAfter, 11.4);
}

void RadioLogRestTest::theCellsAreCountedBeforeTheFlight()
{
    const Rows rows = joined({steady(5, 0.1, 12.6), steady(100, 20, 9), steady(5, 0.1, 8.7)});
    QCOMPARE(readSession(rows).cells, 3); // two of high voltage, or three that are spoilt
}

/** What is taken out before the rest, and after it, does not count. */
void RadioLogRestTest::theCapacityIsThatBetweenTheRests()
{
    const Rows rows = joined({steady(1, 36, 11), steady(5, 0, 3 * 4.20), steady(101, 36, 11),
                              steady(5, 0, 3 * 3.84), steady(1, 36, 11), steady(1, 0, 11)});
    const Session session = readSession(rows, WithoutCounter);
    QCOMPARE(session.discharged, 1030);
    QVERIFY2(session.capacity && std::abs(*session.capacity - 2020) < 0.01, // 1010 mAh are a half
             qPrintable(QString::number(session.capacity.value_or(0))));
}

void RadioLogRestTest::aCounterThatShowsNoughtAgainHasLostItsSensor()
{
    Rows rows = steady(101, 36);
    rows.back().used = 0;
    QCOMPARE(readSession(rows).counterLast, 990);
    QCOMPARE(readSession(rows).discharged, 990);
}

/** The throttle moves in the middle of a flight of 12,000 rows alone. */
void RadioLogRestTest::ofALongLogAllPartsTellTheResistance()
{
    Rows rows;
    for (int i = 0; i < 12'000; ++i) {
        const double current = i >= 3000 && i < 6000 ? 10 + 8 * std::sin(i * 0.37) : 10;
        rows.push_back({i * 100, current, i * 0.3, 12.4 - i * 0.0001 - current * 0.040, false});
    }
    const std::optional<double> found = readSession(rows).resistance;
#ifdef VOLTBOK_WITH_GSL
    QVERIFY2(found && std::abs(*found - 40) < 4, qPrintable(QString::number(found.value_or(0))));
#else
    QVERIFY(!found);
#endif
}

/** In its last quarter the sensor of the voltage does not follow any more. */
void RadioLogRestTest::ofALongLogAllPartsWeighTheSame()
{
    Rows rows;
    for (int i = 0; i < 12'000; ++i) {
        const double current = 10 + 8 * std::sin(i * 0.37);
        const double fall = i < 9000 ? (current - 10) * 0.040 : 0;
        rows.push_back({i * 100, current, i * 0.3, 12.0 - i * 0.0001 - fall, false});
    }
    const std::optional<double> found = readSession(rows).resistance;
#ifdef VOLTBOK_WITH_GSL
    QVERIFY2(found && std::abs(*found - 40) < 4, qPrintable(QString::number(found.value_or(0))));
#else
    QVERIFY(!found);
#endif
}

QTEST_GUILESS_MAIN(RadioLogRestTest)

#include "tst_radiologrest.moc"
