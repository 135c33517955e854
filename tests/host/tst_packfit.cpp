// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/packfit.h"
#include "tests/host/support/readlog.h"

#include <QTest>

#include <cmath>
#include <random>

using namespace Host;

class PackFitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePlantedResistanceIsFound_data();
    void thePlantedResistanceIsFound();
    void theVoltageMayFallAsItLikes();
    void whereTheCounterBeganDoesNotMatter();
    void fewSamplesTellNoResistance();
    void singleWrongSamplesDoNotMatter();
    void aSteadyCurrentTellsNoResistance();
    void aFitThatIsFarFromItsSamplesTellsNone();
    void aResistanceIsNotNegative();
    void samplesThatSayNothingAreNoError();
    void thePlantedCapacityIsFound_data();
    void thePlantedCapacityIsFound();
    void aQuarterOfTheChargeAtLeastTellsACapacity();
    void theRestTableIsReadBetweenItsLines();
    void cellsAreCountedAtRest_data();
    void cellsAreCountedAtRest();

private:
    static double noise(std::minstd_rand &random) { return static_cast<double>(random() % 2001) / 1000 - 1; }
    /** Samples of 40 mOhm with a throttle that moves between two currents. */
    static std::vector<PackSample> samples(double least, double most, double noisyVolts);
    static bool isNear(const std::optional<double> &found, double planted);
};

/** Within ten percent, or not there in a build that cannot fit. */
bool PackFitTest::isNear(const std::optional<double> &found, double planted)
{
#ifdef VOLTBOK_WITH_GSL
    return found && std::abs(*found - planted) <= 0.1 * planted;
#else
    return !found;
#endif
}

std::vector<PackSample> PackFitTest::samples(double least, double most, double noisyVolts)
{
    std::minstd_rand random(7);
    std::vector<PackSample> made;
    for (int i = 0; i < 400; ++i) {
        const double current = least + (most - least) * (0.5 + 0.5 * std::sin(i * 0.37));
        made.push_back({i * 4.0, current, 12.4 - i * 0.002 - current * 0.040 + noisyVolts * noise(random)});
    }
    return made;
}

void PackFitTest::thePlantedResistanceIsFound_data()
{
    QTest::addColumn<int>("cells");
    QTest::addColumn<double>("ohm");
    QTest::addColumn<double>("current");
    for (const int cells : {1, 2, 3, 4, 6, 12}) {
        for (const double cell : {0.006, 0.010, 0.020}) {
            for (const double current : {12.0, 25.0})
                QTest::addRow("%d cells, %.0f mOhm, %.0f A", cells, cell * cells * 1000, current)
                    << cells << cell * cells << current;
        }
    }
}

void PackFitTest::thePlantedResistanceIsFound()
{
    QFETCH(int, cells);
    QFETCH(double, ohm);
    QFETCH(double, current);
    for (unsigned int seed = 1; seed <= 5; ++seed) {
        MadeLogs::Plan plan;
        plan.current = current;
        plan.seed = seed;
        const Session session = MadeLogs::readSession(MadeLogs::flight({cells, current * 150, ohm, 1}, plan));
        QVERIFY2(isNear(session.resistance, ohm * 1000),
                 qPrintable(QString::number(session.resistance.value_or(0))));
    }
}

void PackFitTest::theVoltageMayFallAsItLikes()
{
    // The pilot takes less and less out of the battery, while its voltage falls at both ends, and in between
    // not.
    std::vector<PackSample> made;
    for (int i = 0; i < 400; ++i) {
        const double q = i / 400.0;
        const double current = 30 * (1 - q) * (1 - q) * (1 - q) + 2 * std::sin(i * 0.37);
        const double fall = 4 * (q - 0.5) * (q - 0.5) * (q - 0.5);
        made.push_back({i * 5.0, current, 12 - fall - current * 0.040});
    }
    const std::optional<double> found = packResistance(made);
    QVERIFY2(isNear(found, 40), qPrintable(QString::number(found.value_or(0))));
    for (PackSample &sample : made) // whatever it is counted from
        sample.charge += 1'000'000'000;
    const std::optional<double> later = packResistance(made);
    QVERIFY2(isNear(later, 40), qPrintable(QString::number(later.value_or(0))));
}

void PackFitTest::whereTheCounterBeganDoesNotMatter()
{
    std::vector<PackSample> made = samples(2, 20, 0.02);
    const std::optional<double> found = packResistance(made);
    for (PackSample &sample : made)
        sample.charge += 100'000;
    QVERIFY(isNear(found, 40));
    QVERIFY(std::abs(packResistance(made).value_or(0) - found.value_or(0)) < 1e-3);
}

void PackFitTest::fewSamplesTellNoResistance()
{
    std::vector<PackSample> made = samples(2, 20, 0.001);
    made.resize(30);
    QVERIFY(isNear(packResistance(made), 40));
    made.pop_back();
    QVERIFY(!packResistance(made));
}

void PackFitTest::singleWrongSamplesDoNotMatter()
{
    std::vector<PackSample> made = samples(2, 20, 0.02);
    QVERIFY(isNear(packResistance(made), 40));
    for (size_t i = 0; i < made.size(); i += 19)
        made[i].voltage -= 6;
    QVERIFY(isNear(packResistance(made), 40));
}

void PackFitTest::aSteadyCurrentTellsNoResistance()
{
    QVERIFY(!packResistance(samples(10, 14.9, 0.001)));
    QVERIFY(isNear(packResistance(samples(10, 15.1, 0.001)), 40));
}

void PackFitTest::aFitThatIsFarFromItsSamplesTellsNone()
{
    QVERIFY(isNear(packResistance(samples(2, 20, 0.2)), 40)); // 115 mV
    QVERIFY(!packResistance(samples(2, 20, 0.3)));            // 173 mV
}

void PackFitTest::aResistanceIsNotNegative()
{
    std::vector<PackSample> made = samples(2, 20, 0.01);
    for (PackSample &sample : made)
        sample.current = 22 - sample.current;
    QVERIFY(!packResistance(made));
}

void PackFitTest::samplesThatSayNothingAreNoError()
{
    QVERIFY(!packResistance({}));
    QVERIFY(!packResistance({{0, 1, 12}, {1, 20, 11}}));
    std::vector<PackSample> same(100, {5, 20, 11});
    QVERIFY(!packResistance(same));
    for (size_t i = 0; i < same.size(); i += 2)
        same[i].current = 0;
    const std::optional<double> flat = packResistance(same); // no charge, no change of voltage
    QVERIFY(!flat || *flat < 1);
}

void PackFitTest::thePlantedCapacityIsFound_data()
{
    QTest::addColumn<double>("capacity");
    QTest::addColumn<double>("charge");
    QTest::newRow("full") << 2200.0 << 1.0;
    QTest::newRow("worn") << 1850.0 << 1.0;
    QTest::newRow("not full") << 2200.0 << 0.9;
    QTest::newRow("large") << 3000.0 << 1.0;
}

void PackFitTest::thePlantedCapacityIsFound()
{
    QFETCH(double, capacity);
    QFETCH(double, charge);
    for (unsigned int seed = 1; seed <= 5; ++seed) {
        MadeLogs::Plan plan;
        plan.seed = seed;
        const Session session = MadeLogs::readSession(MadeLogs::flight({3, capacity, 0.040, charge}, plan));
        QCOMPARE(session.cells, 3);
        QVERIFY2(session.capacity && std::abs(*session.capacity - capacity) < 0.1 * capacity,
                 qPrintable(QString::number(session.capacity.value_or(0))));
    }
}

void PackFitTest::aQuarterOfTheChargeAtLeastTellsACapacity()
{
    QVERIFY(!packCapacity(500, 12.60, 3 * 3.981, 3));
    QVERIFY(std::abs(packCapacity(500, 12.60, 3 * 3.98, 3).value_or(0) - 2000) < 0.001);
    QVERIFY(!packCapacity(0, 12.6, 11, 3));
    QVERIFY(!packCapacity(500, 11, 12.6, 3));
    QVERIFY(!packCapacity(500, 12.6, 11, 0));
}

void PackFitTest::theRestTableIsReadBetweenItsLines()
{
    QCOMPARE(stateOfCharge(4.35), 1.0);
    QCOMPARE(stateOfCharge(4.20), 1.0);
    QCOMPARE(stateOfCharge(4.175), 0.975);
    QCOMPARE(stateOfCharge(3.84), 0.50);
    QCOMPARE(stateOfCharge(3.69), 0.10);
    QCOMPARE(stateOfCharge(3.27), 0.0);
    QCOMPARE(stateOfCharge(2.0), 0.0);
    for (int i = 0; i <= 100; ++i)
        QVERIFY(std::abs(stateOfCharge(MadeLogs::restVoltage(i / 100.0)) - i / 100.0) < 1e-9);
}

void PackFitTest::cellsAreCountedAtRest_data()
{
    QTest::addColumn<double>("volts");
    QTest::addColumn<int>("cells");
    QTest::newRow("one full") << 4.2 << 1;
    QTest::newRow("one of high voltage") << 4.35 << 1;
    QTest::newRow("one empty") << 3.3 << 1;
    QTest::newRow("two full") << 8.4 << 2;
    QTest::newRow("two of high voltage") << 8.7 << 2;
    QTest::newRow("three full") << 12.6 << 3;
    QTest::newRow("three of high voltage") << 13.05 << 3;
    QTest::newRow("three half") << 11.5 << 3;
    QTest::newRow("four half") << 15.3 << 4;
    QTest::newRow("five full") << 21.0 << 5;
    QTest::newRow("six half") << 23.0 << 6;
    QTest::newRow("seven half") << 25.8 << 7;
    QTest::newRow("twelve full") << 50.4 << 12;
    QTest::newRow("nothing") << 0.0 << 0;
    QTest::newRow("below nothing") << -1.0 << 0;
}

void PackFitTest::cellsAreCountedAtRest()
{
    QFETCH(double, volts);
    QFETCH(int, cells);
    QCOMPARE(cellsOf(volts).value_or(0), cells);
}

QTEST_GUILESS_MAIN(PackFitTest)

#include "tst_packfit.moc"
