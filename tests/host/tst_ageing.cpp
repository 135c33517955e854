// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/statistics/ageing.h"
#include "tests/host/support/readlog.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Host;

class AgeingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromFiveFlightsOnThereIsATrend();
    void medianAndSpreadStandApartFromSingleFlights();
    void theOrderOfMeasurementsDoesNotMatter();
    void whatWasNotMeasuredIsLeftOut();
    void chanceIsNoAgeing_data();
    void chanceIsNoAgeing();
    void aBatteryThatImprovesDoesNotAge();
    void equalValuesAreNoTrend();
    void plantedAgeingIsFoundInLogs();
    void anotherFlightOfTheSameTimeIsNoError();
    void theChangeIsThatFromTheFirstFlightToTheLast();
    void ofVeryManyFlightsTheNewestCount();

private:
    static const QDateTime Start;
    static QList<Measurement> capacities(const QList<double> &values);
};

const QDateTime AgeingTest::Start(QDate(2026, 1, 1), QTime(12, 0));

QList<Measurement> AgeingTest::capacities(const QList<double> &values)
{
    QList<Measurement> made;
    for (const double value : values)
        made.append({Start.addDays(7 * made.size()), std::nullopt, value});
    return made;
}

void AgeingTest::fromFiveFlightsOnThereIsATrend()
{
    QVERIFY(!healthOf(capacities({2000, 2010, 1990, 2000})).capacity);
    const std::optional<Trend> trend = healthOf(capacities({2000, 2010, 1990, 2000, 2020})).capacity;
    QVERIFY(trend);
    QCOMPARE(trend->flights, 5);
    QVERIFY(!healthOf(capacities({2000, 2010, 1990, 2000, 2020})).resistance);
}

void AgeingTest::medianAndSpreadStandApartFromSingleFlights()
{
    const std::optional<Trend> trend = healthOf(capacities({2000, 2010, 1990, 500, 2020, 2030})).capacity;
    QCOMPARE(trend->median, 2005.0);
    QCOMPARE(trend->spread, 15.0);
}

void AgeingTest::theOrderOfMeasurementsDoesNotMatter()
{
    QList<Measurement> made = capacities({2000, 1980, 1960, 1940, 1920, 1900});
    const double perYear = healthOf(made).capacity->perYear;
    QVERIFY(std::abs(perYear + 20 * 365.25 / 7) < 0.5);
    QVERIFY(healthOf(made).capacity->isAgeing);
    std::reverse(made.begin(), made.end());
    QCOMPARE(healthOf(made).capacity->perYear, perYear);
    QVERIFY(healthOf(made).capacity->isAgeing);
}

void AgeingTest::whatWasNotMeasuredIsLeftOut()
{
    QList<Measurement> made = capacities({2000, 2010, 1990, 2000, 2020});
    made[1].capacity.reset();
    QVERIFY(!healthOf(made).capacity);
    made = capacities({2000, 2010, 1990, 2000, 2020});
    made[1].time = QDateTime();
    QVERIFY(!healthOf(made).capacity);
}

void AgeingTest::chanceIsNoAgeing_data()
{
    QTest::addColumn<QList<double>>("values");
    QTest::addColumn<bool>("ageing");
    // Of five flights only a trend without any exception is less likely than one in twenty.
    QTest::newRow("five, all falling") << QList<double>{5, 4, 3, 2, 1} << true;
    QTest::newRow("five, one exchanged") << QList<double>{5, 4, 3, 1, 2} << false;
    QTest::newRow("six, one exchanged") << QList<double>{6, 5, 4, 2, 3, 1} << true;
    QTest::newRow("six, two exchanged") << QList<double>{6, 4, 5, 3, 1, 2} << false;
    // Equal values narrow what chance does: seven different ones with three exchanged are not enough.
    QTest::newRow("seven, two of them equal") << QList<double>{6, 5, 5, 1, 4, 3, 2} << true;
    QTest::newRow("seven, all different") << QList<double>{7, 6, 5, 1, 2, 4, 3} << false;
    QTest::newRow("eight, mostly falling") << QList<double>{8, 7, 5, 6, 4, 2, 3, 1} << true;
    QTest::newRow("eight, hardly falling") << QList<double>{8, 3, 5, 6, 4, 2, 7, 1} << false;
    QTest::newRow("up and down") << QList<double>{4, 1, 3, 2, 4, 1, 3, 2, 4, 1, 3, 2} << false;
}

void AgeingTest::chanceIsNoAgeing()
{
    QFETCH(QList<double>, values);
    QFETCH(bool, ageing);
    QCOMPARE(healthOf(capacities(values)).capacity->isAgeing, ageing);
}

void AgeingTest::aBatteryThatImprovesDoesNotAge()
{
    QList<Measurement> made = capacities({1, 2, 3, 4, 5, 6});
    QVERIFY(!healthOf(made).capacity->isAgeing);
    for (Measurement &measurement : made)
        measurement.resistance = measurement.capacity;
    QVERIFY(healthOf(made).resistance->isAgeing);
    for (Measurement &measurement : made)
        measurement.resistance = -*measurement.capacity;
    QVERIFY(!healthOf(made).resistance->isAgeing);
}

void AgeingTest::equalValuesAreNoTrend()
{
    const std::optional<Trend> trend = healthOf(capacities({7, 7, 7, 7, 7, 7})).capacity;
    QVERIFY(!trend->isAgeing);
    QCOMPARE(trend->perYear, 0.0);
    QCOMPARE(trend->spread, 0.0);
    QVERIFY(!healthOf(capacities({7, 7, 7, 7, 7, 7, 6})).capacity->isAgeing);
}

void AgeingTest::plantedAgeingIsFoundInLogs()
{
    constexpr int Flights = 20;
    constexpr double LostPerYear = 500; // mAh
    constexpr double OhmPerYear = 0.020;
    QList<Measurement> made;
    for (int i = 0; i < Flights; ++i) {
        const double years = i * 14 / 365.25;
        MadeLogs::Plan plan;
        plan.seed = 100 + static_cast<unsigned int>(i);
        const MadeLogs::Pack pack{3, 2200 - LostPerYear * years, 0.030 + OhmPerYear * years, 1};
        const Session session = MadeLogs::readSession(MadeLogs::flight(pack, plan));
        made.append({Start.addDays(14 * i), session.resistance, session.capacity});
    }
    const Health health = healthOf(made);
    QCOMPARE(health.capacity->flights, Flights);
    QVERIFY(health.capacity->isAgeing);
    QVERIFY2(std::abs(health.capacity->perYear + LostPerYear) < 0.1 * LostPerYear,
             qPrintable(QString::number(health.capacity->perYear)));
#ifdef VOLTBOK_WITH_GSL
    QVERIFY(health.resistance->isAgeing);
    QVERIFY2(std::abs(health.resistance->perYear - 1000 * OhmPerYear) < 100 * OhmPerYear,
             qPrintable(QString::number(health.resistance->perYear)));
#endif
}

void AgeingTest::anotherFlightOfTheSameTimeIsNoError()
{
    QList<Measurement> made;
    for (int i = 0; i < 6; ++i)
        made.append({Start, 40, 2000 - i});
    QCOMPARE(healthOf(made).capacity->perYear, 0.0);
    QCOMPARE(healthOf(made).capacity->flights, 6);
    QVERIFY(!healthOf(made).capacity->isAgeing);
}

void AgeingTest::theChangeIsThatFromTheFirstFlightToTheLast()
{
    const QList<Measurement> made = capacities({2000, 1980, 1960, 1940, 1920, 1900});
    QVERIFY(std::abs(healthOf(made).capacity->change + 100) < 1e-6);
    QVERIFY(std::abs(healthOf(made).capacity->perYear + 100 * 365.25 / 35) < 1e-6);
}

void AgeingTest::ofVeryManyFlightsTheNewestCount()
{
    QList<double> values(300, 1000); // long ago
    for (int i = 0; i < 500; ++i)
        values.append(3000 - i);
    const Health health = healthOf(capacities(values));
    QCOMPARE(health.capacities, 800);
    QCOMPARE(health.capacity->flights, 500);
    QCOMPARE(health.capacity->median, 2750.5);
    QVERIFY(std::abs(health.capacity->change + 499) < 1e-6);
}

QTEST_GUILESS_MAIN(AgeingTest)

#include "tst_ageing.moc"
