// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/decimalinput.h"

#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class DecimalInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsScaledAndTruncated_data();
    void textIsScaledAndTruncated();
    void aValueIsScaledAndTruncated_data();
    void aValueIsScaledAndTruncated();
    void everyChargeRateThatTheMaskAdmitsIsItsTenths();
    void everyWeightThatTheMaskAdmitsIsTruncated();
    void everyCurrentThatCanBeRecordedIsTruncated();

private:
    static unsigned int digit(QChar typed) { return typed == u' ' ? 0 : typed.unicode() - u'0'; }
};

namespace {
const QString Digits = u" 0123456789"_s; // a blank leaves its place in the mask empty

/** Those hundredths below ten whose hundredfold falls short of the whole number in double arithmetic. */
const QList<unsigned int> FallingShort{29,  57,  58,  113, 114, 115, 116, 201, 203, 205, 207, 226, 228, 230,
                                       232, 251, 253, 255, 402, 406, 410, 414, 427, 431, 435, 439, 452, 456,
                                       460, 464, 477, 481, 485, 489, 502, 506, 510, 803, 804, 812, 820, 828,
                                       829, 837, 845, 853, 854, 862, 870, 878, 879, 887, 895, 903, 904, 912,
                                       920, 928, 929, 937, 945, 953, 954, 962, 970, 978, 979, 987, 995};
} // namespace

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
    QLineEdit field;
    field.setInputMask(u"0.0"_s);
    for (const QChar whole : Digits) {
        for (const QChar tenth : Digits) {
            field.setText({});
            field.setCursorPosition(0);
            QTest::keyClicks(&field, QString(whole) + tenth);
            QCOMPARE(field.displayText(), QString(whole) + u'.' + tenth);
            QCOMPARE(scaledTruncated(field.text(), 10.0), digit(whole) * 10 + digit(tenth));
        }
    }
}

void DecimalInputTest::everyWeightThatTheMaskAdmitsIsTruncated()
{
    QLineEdit field;
    field.setInputMask(u"0.00"_s);
    for (const QChar whole : Digits) {
        for (const QChar tenth : Digits) {
            for (const QChar hundredth : Digits) {
                field.setText({});
                field.setCursorPosition(0);
                QTest::keyClicks(&field, QString(whole) + tenth + hundredth);
                // A blank among the decimals is left out, and what follows moves up.
                const bool movesUp = tenth == u' ';
                unsigned int expected = digit(whole) * 100 + (movesUp ? digit(hundredth) * 10
                                                                      : digit(tenth) * 10 + digit(hundredth));
                if (FallingShort.contains(expected))
                    --expected;
                QCOMPARE(scaledTruncated(field.text(), 100.0), expected);
            }
        }
    }
}

void DecimalInputTest::everyCurrentThatCanBeRecordedIsTruncated()
{
    int fallingShort = 0;
    for (unsigned int hundredths = 0; hundredths <= 30000; ++hundredths) {
        const double amperes =
            u"%1.%2"_s.arg(hundredths / 100).arg(hundredths % 100, 2, 10, QChar(u'0')).toDouble();
        const unsigned int stored = scaledTruncated(amperes, 100.0);
        if (stored == hundredths)
            continue;
        ++fallingShort;
        QCOMPARE(stored, hundredths - 1);
        if (hundredths < 1000)
            QVERIFY(FallingShort.contains(hundredths));
    }
    QCOMPARE(fallingShort, 1849);
}

QTEST_MAIN(DecimalInputTest)
#include "tst_decimalinput.moc"
