// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/decimalinput.h"

#include <QTest>

class DecimalInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsScaledAndTruncated_data();
    void textIsScaledAndTruncated();
    void aValueIsScaledAndTruncated_data();
    void aValueIsScaledAndTruncated();
    void everyChargeRateThatTheMaskAdmitsIsItsTenths();
    void everyWeightThatTheMaskAdmitsIsNeverRoundedUp();
};

void DecimalInputTest::textIsScaledAndTruncated_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("scale");
    QTest::addColumn<unsigned int>("expected");

    QTest::newRow("2.0 C") << "2.0" << 10.0 << 20U;
    QTest::newRow("1.5 C") << "1.5" << 10.0 << 15U;
    QTest::newRow("0.3 C") << "0.3" << 10.0 << 3U;
    QTest::newRow("weight 1.00") << "1.00" << 100.0 << 100U;
    QTest::newRow("weight 1.15 is truncated on purpose") << "1.15" << 100.0 << 114U;
    QTest::newRow("only a fraction") << ".5" << 10.0 << 5U;
    QTest::newRow("only a whole number") << "3." << 10.0 << 30U;
    QTest::newRow("an emptied mask") << "." << 10.0 << 0U;
    QTest::newRow("empty") << "" << 10.0 << 0U;
    QTest::newRow("words") << "two" << 10.0 << 0U;
    QTest::newRow("a comma") << "1,5" << 10.0 << 0U;
    QTest::newRow("negative") << "-1.5" << 10.0 << 0U;
    QTest::newRow("infinite") << "inf" << 10.0 << 0U;
    QTest::newRow("not a number") << "nan" << 10.0 << 0U;
    QTest::newRow("too large") << "1e12" << 10.0 << 0U;
    QTest::newRow("the largest") << "4294967295" << 1.0 << 4294967295U;
}

void DecimalInputTest::textIsScaledAndTruncated()
{
    QFETCH(QString, text);
    QFETCH(double, scale);
    QTEST(scaledTruncated(text, scale), "expected");
}

void DecimalInputTest::aValueIsScaledAndTruncated_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<unsigned int>("expected");

    QTest::newRow("0.29 A is truncated on purpose") << 0.29 << 28U;
    QTest::newRow("45.5 A") << 45.5 << 4550U;
    QTest::newRow("55 A") << 55.0 << 5500U;
    QTest::newRow("300 A") << 300.0 << 30000U;
    QTest::newRow("0 A") << 0.0 << 0U;
}

void DecimalInputTest::aValueIsScaledAndTruncated()
{
    QFETCH(double, value);
    QTEST(scaledTruncated(value, 100.0), "expected");
}

void DecimalInputTest::everyChargeRateThatTheMaskAdmitsIsItsTenths()
{
    for (unsigned int tenths = 0; tenths <= 99; ++tenths) {
        const QString text = QStringLiteral("%1.%2").arg(tenths / 10).arg(tenths % 10);
        QCOMPARE(scaledTruncated(text, 10.0), tenths);
    }
}

void DecimalInputTest::everyWeightThatTheMaskAdmitsIsNeverRoundedUp()
{
    QList<unsigned int> truncated;
    for (unsigned int hundredths = 0; hundredths <= 999; ++hundredths) {
        const QString text =
            QStringLiteral("%1.%2").arg(hundredths / 100).arg(hundredths % 100, 2, 10, QChar(u'0'));
        const unsigned int stored = scaledTruncated(text, 100.0);
        if (stored != hundredths) {
            QCOMPARE(stored, hundredths - 1);
            truncated.append(hundredths);
        }
    }
    QVERIFY(truncated.contains(29U));
    QVERIFY(truncated.contains(115U));
    QVERIFY(!truncated.contains(100U));
    QVERIFY(!truncated.contains(150U));
}

QTEST_APPLESS_MAIN(DecimalInputTest)
#include "tst_decimalinput.moc"
