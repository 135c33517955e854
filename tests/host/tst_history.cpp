// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/moments.h"
#include "host/statistics/history.h"

#include <QSet>
#include <QTest>

#include <algorithm>

using Host::Battery;
using Host::Discharge;
using Host::HistoryPoint;
using Host::Quantity;
using Host::Source;

class HistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesHaveTheirUnits();
    void whatWasNotEnteredIsLeftOut();
    void pointsAreInTheOrderOfTime();
    void theLimitIsWhatTheBatteryPermits_data();
    void theLimitIsWhatTheBatteryPermits();
    void whatLogsTellIsShownFromFiveFlightsOn();
    void aFewPointsAreAllKept();
    void ofManyPointsTheHighestInEachPlaceIsKept();
    void sourcesNeverHideEachOther();

private:
    static QDateTime day(int number) { return QDateTime(QDate(2026, 1, 1).addDays(number), QTime(12, 0)); }
    static Battery pack(const QList<Discharge> &discharges);
    static QList<HistoryPoint> many(int count);
};

Battery HistoryTest::pack(const QList<Discharge> &discharges)
{
    Battery battery;
    battery.capacity = 2000;
    battery.rating = 25;
    battery.discharges = discharges;
    return battery;
}

QList<HistoryPoint> HistoryTest::many(int count)
{
    QList<HistoryPoint> points;
    for (int i = 0; i < count; ++i)
        points.append({day(0).addSecs(i * 60), static_cast<double>(i * 37 % 1000), Source::Entered});
    return points;
}

void HistoryTest::valuesHaveTheirUnits()
{
    const Battery battery = pack({{day(0), 1500, 4050}});
    QCOMPARE(historyOf(battery, Quantity::CapacityUsed).points.constFirst().value, 1500.0); // mAh
    QCOMPARE(historyOf(battery, Quantity::Current).points.constFirst().value, 40.5);        // A
    QCOMPARE(historyOf(battery, Quantity::Load).points.constFirst().value, 20.25);          // C
}

void HistoryTest::whatWasNotEnteredIsLeftOut()
{
    Battery battery = pack({{day(0), 0, 0}, {day(1), 900, 0}, {day(2), 0, 3000}, {QDateTime(), 800, 2000}});
    const Host::History used = historyOf(battery, Quantity::CapacityUsed);
    QCOMPARE(used.points.size(), 1);
    QCOMPARE(used.withoutTime, 1);
    QCOMPARE(historyOf(battery, Quantity::Current).points.constFirst().value, 30.0);
    battery.capacity = 0;
    QVERIFY(historyOf(battery, Quantity::Load).points.isEmpty());
    QCOMPARE(historyOf(battery, Quantity::Load).withoutTime, 0);
}

void HistoryTest::pointsAreInTheOrderOfTime()
{
    const Host::History history =
        historyOf(pack({{day(5), 500, 1}, {day(1), 100, 1}, {day(3), 300, 1}}), Quantity::CapacityUsed);
    QList<double> values;
    for (const HistoryPoint &point : history.points)
        values.append(point.value);
    QCOMPARE(values, (QList<double>{100, 300, 500}));
}

void HistoryTest::theLimitIsWhatTheBatteryPermits_data()
{
    QTest::addColumn<unsigned int>("capacity");
    QTest::addColumn<unsigned int>("rating");
    QTest::addColumn<int>("quantity");
    QTest::addColumn<double>("limit"); // 0 for none
    const auto add = [](const char *name, unsigned int capacity, unsigned int rating, Quantity quantity,
                        double limit) {
        QTest::newRow(name) << capacity << rating << static_cast<int>(quantity) << limit;
    };
    add("capacity", 2000, 25, Quantity::CapacityUsed, 2000);
    add("current", 450, 45, Quantity::Current, 20.25);
    add("load", 2000, 25, Quantity::Load, 25);
    add("no capacity", 0, 25, Quantity::CapacityUsed, 0);
    add("no capacity for the current", 0, 25, Quantity::Current, 0);
    add("no rating", 2000, 0, Quantity::Current, 0);
    add("capacity without a rating", 2000, 0, Quantity::CapacityUsed, 2000);
    add("no rating for the load", 2000, 0, Quantity::Load, 0);
}

void HistoryTest::theLimitIsWhatTheBatteryPermits()
{
    QFETCH(unsigned int, capacity);
    QFETCH(unsigned int, rating);
    QFETCH(int, quantity);
    QFETCH(double, limit);
    Battery battery = pack({});
    battery.capacity = capacity;
    battery.rating = rating;
    const Host::History history = historyOf(battery, static_cast<Quantity>(quantity));
    QCOMPARE(history.limit.has_value(), limit > 0.0);
    QCOMPARE(history.limit.value_or(0.0), limit);
}

void HistoryTest::whatLogsTellIsShownFromFiveFlightsOn()
{
    Battery battery;
    battery.name = QStringLiteral("Pack A");
    battery.capacity = 2000;
    battery.rating = 25;
    Host::Measured measured;
    for (int i = 5; i > 0; --i) { // the newest first
        battery.discharges.append({day(i), 1500, 3000, true});
        Host::MeasuredDischarge entry;
        entry.battery = battery.name;
        entry.moment = Host::momentOf(day(i));
        entry.resistance = 30 + i;
        if (i > 1)
            entry.capacity = 1900 + i;
        measured.discharges.append(entry);
    }
    const Host::History resistance = historyOf(battery, Quantity::Resistance, measured);
    QCOMPARE(resistance.points.size(), 5);
    QCOMPARE(resistance.points.constFirst().value, 31.0);
    QCOMPARE(resistance.points.constFirst().time, day(1));
    QCOMPARE(resistance.points.constFirst().source, Source::Measured);
    QVERIFY(!resistance.limit);
    QVERIFY(historyOf(battery, Quantity::Capacity, measured).points.isEmpty());
    measured.discharges.last().capacity = 1950;
    const Host::History capacity = historyOf(battery, Quantity::Capacity, measured);
    QCOMPARE(capacity.points.size(), 5);
    QCOMPARE(capacity.points.constFirst().value, 1950.0);
    QCOMPARE(capacity.limit, 2000.0);
    QVERIFY(historyOf(battery, Quantity::Capacity).points.isEmpty());
    battery.discharges.last().isMeasured = false;
    QVERIFY(historyOf(battery, Quantity::Resistance, measured).points.isEmpty());
}

void HistoryTest::aFewPointsAreAllKept()
{
    QCOMPARE(Host::thinned(many(2000), 80, 25).size(), 2000);
    QCOMPARE(Host::thinned({}, 80, 25).size(), 0);
}

void HistoryTest::ofManyPointsTheHighestInEachPlaceIsKept()
{
    QList<HistoryPoint> points = many(30'000);
    points[12'345].value = 5000.0;
    const QList<HistoryPoint> kept = Host::thinned(points, 80, 25);
    QVERIFY(kept.size() <= 80 * 25 && kept.size() > 100);
    const auto highest = std::max_element(kept.cbegin(), kept.cend(), [](const auto &one, const auto &other) {
        return one.value < other.value;
    });
    QCOMPARE(highest->value, 5000.0);
    QCOMPARE(Host::thinned(points, 1, 1).constFirst().value, 5000.0);
    QVERIFY(kept.constFirst().time < points.at(30'000 / 80).time);
    QVERIFY(kept.constLast().time > points.at(30'000 - 30'000 / 80).time);

    QList<HistoryPoint> same(5000, points.constFirst()); // no span to divide
    QCOMPARE(Host::thinned(same, 80, 25).size(), 1);
}

void HistoryTest::sourcesNeverHideEachOther()
{
    QList<HistoryPoint> points = many(30'000);
    points[100].source = Source::Guessed;
    points[29'000].source = Source::Measured;
    QSet<int> sources;
    const QList<HistoryPoint> kept = Host::thinned(points, 80, 25);
    for (const HistoryPoint &point : kept)
        sources.insert(static_cast<int>(point.source));
    QCOMPARE(sources.size(), 3);
}

QTEST_GUILESS_MAIN(HistoryTest)
#include "tst_history.moc"
