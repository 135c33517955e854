// SPDX-License-Identifier: GPL-3.0-or-later
// What is said of a battery from its measured flights.
#include "host/data/moments.h"
#include "host/statistics/measuredfigures.h"

#include <QLocale>
#include <QTest>

#include <cmath>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

const QDateTime Start(QDate(2026, 1, 1), QTime(12, 0));

/** A battery whose discharges, one a week, were measured. */
struct Pack
{
    explicit Pack(int flights)
    {
        battery.name = u"Pack A"_s;
        battery.capacity = 2200;
        for (int i = 0; i < flights; ++i)
            add(i);
    }

    void add(int week)
    {
        const QDateTime time = Start.addDays(7 * week);
        battery.discharges.append({time, 1500, 3000, true});
        MeasuredDischarge entry;
        entry.battery = battery.name;
        entry.moment = momentOf(time);
        measured.discharges.append(entry);
    }

    Pack &with(std::optional<double> MeasuredDischarge::*value, const QList<double> &values)
    {
        for (qsizetype i = 0; i < values.size(); ++i)
            measured.discharges[i].*value = values.at(i);
        return *this;
    }

    MeasuredFigures figures() const { return measuredFigures(battery, measured); }
    QStringList texts() const { return healthTexts(battery, figures()); }

    Battery battery;
    Measured measured;
};

} // namespace

class MeasuredFiguresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }
    void eachQuantityHasItsMedianAndSpread();
    void onlyWhatWasMeasuredCounts();
    void twoDischargesOfOneTimeAreOneFlight();
    void withoutMeasuredFlightsItSaysHowToGetThem();
    void withFewerThanFiveFlightsItSaysThatAlone_data();
    void withFewerThanFiveFlightsItSaysThatAlone();
    void fromFiveFlightsOnItSaysHowMuchAndFromHowMany();
    void ageingIsSaidOnlyWhereItStandsOut_data();
    void ageingIsSaidOnlyWhereItStandsOut();
    void numbersHaveAsManyDigitsAsTheyDeserve_data();
    void numbersHaveAsManyDigitsAsTheyDeserve();
};

void MeasuredFiguresTest::eachQuantityHasItsMedianAndSpread()
{
    const Pack pack = Pack(4)
                          .with(&MeasuredDischarge::counter, {1400, 1500, 1600, 1900})
                          .with(&MeasuredDischarge::integral, {1401, 1502, 1603})
                          .with(&MeasuredDischarge::restBefore, {12.5, 12.6})
                          .with(&MeasuredDischarge::restAfter, {11.4, 11.6})
                          .with(&MeasuredDischarge::minVoltage, {10.1, 10.2, 10.9})
                          .with(&MeasuredDischarge::resistance, {40})
                          .with(&MeasuredDischarge::capacity, {2100, 2000});
    const MeasuredFigures figures = pack.figures();
    const auto compare = [](const Spread &spread, int flights, double median, double width) {
        QCOMPARE(spread.flights, flights);
        QCOMPARE(spread.median, median);
        QVERIFY(std::abs(spread.spread - width) < 1e-9);
    };
    QCOMPARE(figures.flights, 4);
    compare(figures.counter, 4, 1550, 100);
    compare(figures.integral, 3, 1502, 101);
    compare(figures.restBefore, 2, 12.55, 0.05);
    compare(figures.restAfter, 2, 11.5, 0.1);
    compare(figures.minVoltage, 3, 10.2, 0.1);
    QCOMPARE(figures.health.resistances, 1);
    QCOMPARE(figures.health.capacities, 2);
    QVERIFY(!figures.health.resistance && !figures.health.capacity);
    QCOMPARE(Pack(4).figures().counter.flights, 0);
}

void MeasuredFiguresTest::onlyWhatWasMeasuredCounts()
{
    Pack pack = Pack(6).with(&MeasuredDischarge::counter, {1, 2, 3, 4, 5, 6});
    pack.battery.discharges[0].isMeasured = false; // guessed, or entered
    pack.battery.discharges.removeAt(1);           // its entry is a leftover
    pack.battery.discharges[1].time = QDateTime();
    pack.measured.discharges[3].battery = u"Pack B"_s;
    const MeasuredFigures figures = pack.figures();
    QCOMPARE(figures.flights, 2);
    QCOMPARE(figures.counter.median, 5.5);
}

void MeasuredFiguresTest::twoDischargesOfOneTimeAreOneFlight()
{
    Pack pack(1);
    pack.add(0);
    QCOMPARE(pack.figures().flights, 1);
}

void MeasuredFiguresTest::withoutMeasuredFlightsItSaysHowToGetThem()
{
    Pack pack(3);
    pack.measured = Measured();
    QCOMPARE(pack.texts(),
             QStringList{u"No flight of “Pack A” was measured yet: choose Import Radio Logs… in the "
                         "menu Logbook to read what your radio has logged."_s});
}

void MeasuredFiguresTest::withFewerThanFiveFlightsItSaysThatAlone_data()
{
    QTest::addColumn<int>("told");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("four") << 4;
}

void MeasuredFiguresTest::withFewerThanFiveFlightsItSaysThatAlone()
{
    QFETCH(int, told);
    QList<double> falling;
    for (int i = 0; i < told; ++i)
        falling.append(2000 - 100 * i);
    const QStringList texts = Pack(7)
                                  .with(&MeasuredDischarge::capacity, falling)
                                  .with(&MeasuredDischarge::resistance, falling)
                                  .texts();
    const QString soFar = QString::number(told) + u'.';
    QCOMPARE(texts, (QStringList{u"Capacity: shown once five measured flights tell it; so far "_s + soFar,
                                 u"Internal resistance: shown once five measured flights tell it; so far "_s +
                                     soFar}));
}

void MeasuredFiguresTest::fromFiveFlightsOnItSaysHowMuchAndFromHowMany()
{
    Pack pack = Pack(6)
                    .with(&MeasuredDischarge::capacity, {2050, 2010, 2090, 2000, 2100, 2050})
                    .with(&MeasuredDischarge::resistance, {38, 40, 39, 37, 41});
    QCOMPARE(pack.texts(), (QStringList{u"Capacity: about 2,050 mAh of 2,200, from 6 flights, half of them "
                                        "within 40 mAh of that. No trend stands out from chance."_s,
                                        u"Internal resistance: about 39 mΩ, from 5 flights, half of them "
                                        "within 1.0 mΩ of that. No trend stands out from chance."_s}));
    pack.battery.capacity = 0;
    QVERIFY2(
        pack.texts().first().startsWith(u"Capacity: about 2,050 mAh, from 6 flights, half of them within 40 "
                                        "mAh of that."_s),
        qPrintable(pack.texts().first()));
}

void MeasuredFiguresTest::ageingIsSaidOnlyWhereItStandsOut_data()
{
    QTest::addColumn<QList<double>>("values");
    QTest::addColumn<QString>("capacity");
    QTest::addColumn<QString>("resistance");
    const QString chance = u"No trend stands out from chance."_s;
    QTest::newRow("falling") << QList<double>{60, 58, 56, 54, 52, 50}
                             << u"Ageing: it has fallen by about 10 mAh over these flights."_s << chance;
    QTest::newRow("rising") << QList<double>{50, 52, 54, 56, 58, 60} << chance
                            << u"Ageing: it has risen by about 10 mΩ over these flights."_s;
    QTest::newRow("hardly") << QList<double>{60, 56, 58, 54, 50, 52} << chance << chance;
    QTest::newRow("steady") << QList<double>{60, 60, 60, 60, 60, 60} << chance << chance;
}

void MeasuredFiguresTest::ageingIsSaidOnlyWhereItStandsOut()
{
    QFETCH(QList<double>, values);
    QFETCH(QString, capacity);
    QFETCH(QString, resistance);
    const QStringList texts = Pack(6)
                                  .with(&MeasuredDischarge::capacity, values)
                                  .with(&MeasuredDischarge::resistance, values)
                                  .texts();
    QVERIFY2(texts.at(0).endsWith(capacity), qPrintable(texts.at(0)));
    QVERIFY2(texts.at(1).endsWith(resistance), qPrintable(texts.at(1)));
}

void MeasuredFiguresTest::numbersHaveAsManyDigitsAsTheyDeserve_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("capacity");
    QTest::addColumn<QString>("resistance");
    QTest::newRow("large") << 21'876.0 << u"21,900 mAh"_s << u"22,000 mΩ"_s;
    QTest::newRow("thousands") << 2128.4 << u"2,130 mAh"_s << u"2,100 mΩ"_s;
    QTest::newRow("hundreds") << 432.4 << u"432 mAh"_s << u"430 mΩ"_s;
    QTest::newRow("tens") << 38.26 << u"38 mAh"_s << u"38 mΩ"_s;
    QTest::newRow("ones") << 5.26 << u"5 mAh"_s << u"5.3 mΩ"_s;
    QTest::newRow("less") << 0.26 << u"0 mAh"_s << u"0.3 mΩ"_s;
    QTest::newRow("nearly ten") << 9.96 << u"10 mAh"_s << u"10.0 mΩ"_s;
}

void MeasuredFiguresTest::numbersHaveAsManyDigitsAsTheyDeserve()
{
    QFETCH(double, value);
    QFETCH(QString, capacity);
    QFETCH(QString, resistance);
    const QList<double> same(5, value);
    const QStringList texts =
        Pack(5).with(&MeasuredDischarge::capacity, same).with(&MeasuredDischarge::resistance, same).texts();
    QVERIFY2(texts.at(0).startsWith(u"Capacity: about %1 of 2,200,"_s.arg(capacity)),
             qPrintable(texts.at(0)));
    QVERIFY2(texts.at(1).startsWith(u"Internal resistance: about %1, from"_s.arg(resistance)),
             qPrintable(texts.at(1)));
    QVERIFY(texts.at(0).contains(u"within 0 mAh"_s)); // all are equal
}

QTEST_GUILESS_MAIN(MeasuredFiguresTest)

#include "tst_measuredfigures.moc"
