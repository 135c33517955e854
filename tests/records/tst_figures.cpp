// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/figures.h"

#include <QDate>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class FiguresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ratesAreFormatted_data();
    void ratesAreFormatted();
    void theFractionOfACurrentIsNotPaddedOnPurpose_data();
    void theFractionOfACurrentIsNotPaddedOnPurpose();
    void aCurrentHasACommaAndUnpaddedHundredthsOnPurpose_data();
    void aCurrentHasACommaAndUnpaddedHundredthsOnPurpose();
    void aTemperatureIsUnsignedOnPurpose_data();
    void aTemperatureIsUnsignedOnPurpose();
    void aYearOfAgeHas365Days_data();
    void aYearOfAgeHas365Days();
};

void FiguresTest::ratesAreFormatted_data()
{
    QTest::addColumn<unsigned int>("rating");
    QTest::addColumn<unsigned int>("chargeRate");
    QTest::addColumn<QString>("text");
    QTest::newRow("no charge rate") << 30U << 0U << "30C";
    QTest::newRow("tenths") << 30U << 15U << "30C/1.5C";
    QTest::newRow("whole") << 25U << 20U << "25C/2.0C";
    QTest::newRow("below one") << 25U << 5U << "25C/0.5C";
    QTest::newRow("nothing") << 0U << 0U << "0C";
    QTest::newRow("largest") << 4294967295U << 4294967295U << "4294967295C/429496729.5C";
}

void FiguresTest::ratesAreFormatted()
{
    QFETCH(unsigned int, rating);
    QFETCH(unsigned int, chargeRate);
    QTEST(Figures::rates(rating, chargeRate), "text");
}

void FiguresTest::theFractionOfACurrentIsNotPaddedOnPurpose_data()
{
    QTest::addColumn<unsigned int>("hundredths");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0U << "0.0A";
    QTest::newRow("7") << 7U << "0.7A";
    QTest::newRow("100") << 100U << "1.0A";
    QTest::newRow("110") << 110U << "1.10A";
    QTest::newRow("199") << 199U << "1.99A";
    QTest::newRow("1205") << 1205U << "12.5A";
    QTest::newRow("4550") << 4550U << "45.50A";
    QTest::newRow("10005") << 10005U << "100.5A";
    QTest::newRow("largest") << 4294967295U << "42949672.95A";
}

void FiguresTest::theFractionOfACurrentIsNotPaddedOnPurpose()
{
    QFETCH(unsigned int, hundredths);
    QTEST(Figures::cardCurrent(hundredths), "text");
}

void FiguresTest::aCurrentHasACommaAndUnpaddedHundredthsOnPurpose_data()
{
    QTest::addColumn<unsigned int>("hundredths");
    QTest::addColumn<QString>("expected");

    QTest::newRow("1205") << 1205U << "12,5";
    QTest::newRow("1250") << 1250U << "12,50";
    QTest::newRow("1207") << 1207U << "12,7";
    QTest::newRow("7") << 7U << "0,7";
    QTest::newRow("0") << 0U << "0,0";
    QTest::newRow("100") << 100U << "1,0";
    QTest::newRow("199") << 199U << "1,99";
    QTest::newRow("largest") << 4294967295U << "42949672,95";
}

void FiguresTest::aCurrentHasACommaAndUnpaddedHundredthsOnPurpose()
{
    QFETCH(unsigned int, hundredths);
    QTEST(Figures::logCurrent(hundredths), "expected");
}

void FiguresTest::aTemperatureIsUnsignedOnPurpose_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QString>("expected");

    QTest::newRow("21") << 21 << u"21°"_s;
    QTest::newRow("0") << 0 << u"0°"_s;
    QTest::newRow("-5") << -5 << u"4294967291°"_s;
    QTest::newRow("-99") << -99 << u"4294967197°"_s;
}

void FiguresTest::aTemperatureIsUnsignedOnPurpose()
{
    QFETCH(int, degrees);
    QTEST(Figures::temperature(degrees), "expected");
}

void FiguresTest::aYearOfAgeHas365Days_data()
{
    QTest::addColumn<QDate>("purchase");
    QTest::addColumn<QString>("expected");

    const QDate today(2026, 11, 21);
    QTest::newRow("today") << today << "0.00";
    QTest::newRow("365 days") << today.addDays(-365) << "1.00";
    QTest::newRow("730 days") << today.addDays(-730) << "2.00";
    QTest::newRow("a leap year is longer") << today.addDays(-366) << "1.00";
    QTest::newRow("a week") << today.addDays(-7) << "0.02";
    QTest::newRow("100 days") << today.addDays(-100) << "0.27";
    QTest::newRow("in the future") << today.addDays(365) << "-1.00";
    QTest::newRow("no valid date") << QDate() << "0.00";
}

void FiguresTest::aYearOfAgeHas365Days()
{
    QFETCH(QDate, purchase);
    QTEST(Figures::ageInYears(purchase, QDate(2026, 11, 21)), "expected");
}

QTEST_APPLESS_MAIN(FiguresTest)
#include "tst_figures.moc"
