// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/formats.h"

#include <QDate>
#include <QTest>

class FormatsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCurrentHasACommaAndUnpaddedHundredthsOnPurpose_data();
    void aCurrentHasACommaAndUnpaddedHundredthsOnPurpose();
    void aTemperatureIsUnsignedOnPurpose_data();
    void aTemperatureIsUnsignedOnPurpose();
    void aYearOfAgeHas365Days_data();
    void aYearOfAgeHas365Days();
};

void FormatsTest::aCurrentHasACommaAndUnpaddedHundredthsOnPurpose_data()
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

void FormatsTest::aCurrentHasACommaAndUnpaddedHundredthsOnPurpose()
{
    QFETCH(unsigned int, hundredths);
    QTEST(Formats::current(hundredths), "expected");
}

void FormatsTest::aTemperatureIsUnsignedOnPurpose_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QString>("expected");

    QTest::newRow("21") << 21 << QStringLiteral(u"21°");
    QTest::newRow("0") << 0 << QStringLiteral(u"0°");
    QTest::newRow("-5") << -5 << QStringLiteral(u"4294967291°");
    QTest::newRow("-99") << -99 << QStringLiteral(u"4294967197°");
}

void FormatsTest::aTemperatureIsUnsignedOnPurpose()
{
    QFETCH(int, degrees);
    QTEST(Formats::temperature(degrees), "expected");
}

void FormatsTest::aYearOfAgeHas365Days_data()
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

void FormatsTest::aYearOfAgeHas365Days()
{
    QFETCH(QDate, purchase);
    QTEST(Formats::ageInYears(purchase, QDate(2026, 11, 21)), "expected");
}

QTEST_APPLESS_MAIN(FormatsTest)
#include "tst_formats.moc"
