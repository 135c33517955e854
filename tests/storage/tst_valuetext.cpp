// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/textdate.h"
#include "storage/valuetext.h"
#include "tests/support/warnings.h"

#include <QTest>

#include <climits>

using namespace Qt::Literals::StringLiterals;

using namespace TextDate;
using namespace ValueText;

class ValueTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void numbersAreUnsignedDecimals_data();
    void numbersAreUnsignedDecimals();
    void onlyOneIsTrue_data();
    void onlyOneIsTrue();
    void datesAreYearMonthDay_data();
    void datesAreYearMonthDay();
    void otherDatesAreInvalid_data();
    void otherDatesAreInvalid();
    void dateTimesAreEnglishText_data();
    void dateTimesAreEnglishText();
    void otherDateTimesAreInvalid_data();
    void otherDateTimesAreInvalid();
    void aTimeThatTheClocksSkippedIsNotKept();
    void everyDayIsReadAsItWasWritten();
    void timesHaveTwoDigitsEach_data();
    void timesHaveTwoDigitsEach();
    void aNegativeTemperatureIsWrittenUnsignedOnPurpose_data();
    void aNegativeTemperatureIsWrittenUnsignedOnPurpose();
    void onlyWhatXmlCannotHoldIsDropped_data();
    void onlyWhatXmlCannotHoldIsDropped();
    void everyCodeUnitIsKeptOrDropped();
};

void ValueTextTest::init()
{
    Test::failOnWarnings();
}

void ValueTextTest::numbersAreUnsignedDecimals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<unsigned int>("value");
    QTest::newRow("zero") << "0" << 0U;
    QTest::newRow("digits") << "2200" << 2200U;
    QTest::newRow("largest") << "4294967295" << UINT_MAX;
    QTest::newRow("too large") << "4294967296" << 0U;
    QTest::newRow("far too large") << "99999999999999999999999" << 0U;
    QTest::newRow("negative") << "-1" << 0U;
    QTest::newRow("fraction") << "1.5" << 0U;
    QTest::newRow("decimal comma") << "1,5" << 0U;
    QTest::newRow("hexadecimal") << "0x10" << 0U;
    QTest::newRow("exponent") << "1e3" << 0U;
    QTest::newRow("word") << "many" << 0U;
    QTest::newRow("unit behind") << "2200mAh" << 0U;
    QTest::newRow("empty") << "" << 0U;
    QTest::newRow("leading zeros are decimal") << "0010" << 10U;
    QTest::newRow("space around") << " 12\n" << 12U;
}

void ValueTextTest::numbersAreUnsignedDecimals()
{
    QFETCH(QString, text);
    QFETCH(unsigned int, value);
    QCOMPARE(toUnsigned(text), value);
    QCOMPARE(toUnsigned(fromUnsigned(value)), value);
    QCOMPARE(fromUnsigned(value), QString::number(value));
}

void ValueTextTest::onlyOneIsTrue_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("value");
    QTest::newRow("1") << "1" << true;
    QTest::newRow("0") << "0" << false;
    QTest::newRow("2") << "2" << false;
    QTest::newRow("word") << "true" << false;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("negative") << "-1" << false;
}

void ValueTextTest::onlyOneIsTrue()
{
    QFETCH(QString, text);
    QTEST(toBoolean(text), "value");
    QCOMPARE(fromBoolean(true), u"1"_s);
    QCOMPARE(fromBoolean(false), u"0"_s);
}

void ValueTextTest::datesAreYearMonthDay_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("text");
    QTest::newRow("two digits each") << QDate(2026, 1, 5) << "2026/01/05";
    QTest::newRow("leap day") << QDate(2024, 2, 29) << "2024/02/29";
    QTest::newRow("first year") << QDate(1, 1, 1) << "0001/01/01";
    QTest::newRow("last year of four digits") << QDate(9999, 12, 31) << "9999/12/31";
    QTest::newRow("invalid") << QDate() << "";
}

void ValueTextTest::datesAreYearMonthDay()
{
    QFETCH(QDate, date);
    QFETCH(QString, text);
    QCOMPARE(fromDate(date), text);
    QCOMPARE(toDate(text), date);
}

void ValueTextTest::otherDatesAreInvalid_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"2026-01-05", "2026/1/5", "05/01/2026", "2026/02/30", "2026/13/01",
                             "2026/01/05 ", "02026/01/05", "12026/01/05", "today", "2026/01"})
        QTest::newRow(text) << text;
}

void ValueTextTest::otherDatesAreInvalid()
{
    QFETCH(QString, text);
    QVERIFY(!toDate(text).isValid());
}

void ValueTextTest::dateTimesAreEnglishText_data()
{
    QTest::addColumn<QDateTime>("when");
    QTest::addColumn<QString>("text");
    QTest::newRow("afternoon") << QDateTime(QDate(2026, 11, 15), QTime(12, 4, 22))
                               << "Sun Nov 15 12:04:22 2026";
    QTest::newRow("day of one digit")
        << QDateTime(QDate(2026, 11, 5), QTime(0, 0)) << "Thu Nov 5 00:00:00 2026";
    QTest::newRow("last second") << QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59))
                                 << "Thu Dec 31 23:59:59 2026";
    QTest::newRow("year of one digit")
        << QDateTime(QDate(5, 1, 2), QTime(1, 2, 3)) << "Sun Jan 2 01:02:03 0005";
    QTest::newRow("year of five digits")
        << QDateTime(QDate(12026, 11, 5), QTime(1, 2, 3)) << "Thu Nov 5 01:02:03 12026";
    QTest::newRow("before our era") << QDateTime(QDate(-44, 3, 15), QTime(1, 2, 3))
                                    << "Fri Mar 15 01:02:03 -044";
    QTest::newRow("UTC") << QDateTime(QDate(2026, 11, 15), QTime(12, 4, 22), Qt::UTC)
                         << "Sun Nov 15 12:04:22 2026 GMT";
    QTest::newRow("invalid") << QDateTime() << "";
}

void ValueTextTest::dateTimesAreEnglishText()
{
    QFETCH(QDateTime, when);
    QFETCH(QString, text);
    QCOMPARE(fromDateTime(when), text);
    QCOMPARE(toDateTime(text), when);
    QCOMPARE(toDateTime(text).timeSpec(), when.timeSpec());
}

void ValueTextTest::otherDateTimesAreInvalid_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"2026-11-15T12:04:22", "2026/11/15", "15 Nov 2026 12:04:22", "Sun Nov 31 12:04:22 2026",
          "Sun Nov 15 24:00:00 2026", "Sun Okt 15 12:04:22 2026", "never", "Sun Nov 15"})
        QTest::newRow(text) << text;
}

void ValueTextTest::otherDateTimesAreInvalid()
{
    QFETCH(QString, text);
    QVERIFY(!toDateTime(text).isValid());
    QCOMPARE(fromDateTime(toDateTime(text)), QString());
}

void ValueTextTest::aTimeThatTheClocksSkippedIsNotKept()
{
    // The clocks of Kathmandu, where the tests run, went from midnight to a quarter past it. Qt takes a time
    // between for none, or for another one, depending on its age.
    const QString text = u"Wed Jan 1 00:07:00 1986"_s;
    QVERIFY(fromDateTime(toDateTime(text)) != text);
}

void ValueTextTest::everyDayIsReadAsItWasWritten()
{
    const QTime time(14, 30, 15);
    for (QDate day(1900, 1, 1); day < QDate(2101, 1, 1); day = day.addDays(1)) {
        const QDateTime when(day, time);
        if (toDateTime(fromDateTime(when)) != when || toDate(fromDate(day)) != day)
            QFAIL(qPrintable(fromDate(day)));
    }
    QCOMPARE(fromDate(QDate(2100, 12, 31)), u"2100/12/31"_s);
}

void ValueTextTest::timesHaveTwoDigitsEach_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QString>("text");
    QTest::newRow("minutes") << QTime(0, 7, 30) << "00:07:30";
    QTest::newRow("midnight") << QTime(0, 0) << "00:00:00";
    QTest::newRow("last second") << QTime(23, 59, 59) << "23:59:59";
    QTest::newRow("invalid") << QTime() << "";
}

void ValueTextTest::timesHaveTwoDigitsEach()
{
    QFETCH(QTime, time);
    QFETCH(QString, text);
    QCOMPARE(fromTime(time), text);
    QCOMPARE(toTime(text), time);
    QCOMPARE(fromTime(QTime(1, 2, 3, 999)), u"01:02:03"_s);
    for (const char *other : {"7:30:5x", "24:00:00", "00:60:00", "seven"})
        QVERIFY2(!toTime(QString::fromLatin1(other)).isValid(), other);
}

void ValueTextTest::aNegativeTemperatureIsWrittenUnsignedOnPurpose_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QString>("text");
    QTest::newRow("21") << 21 << "21";
    QTest::newRow("0") << 0 << "0";
    QTest::newRow("-5") << -5 << "4294967291";
    QTest::newRow("-20") << -20 << "4294967276";
    QTest::newRow("-99") << -99 << "4294967197";
    QTest::newRow("lowest") << INT_MIN << "2147483648";
    QTest::newRow("highest") << INT_MAX << "2147483647";
}

void ValueTextTest::aNegativeTemperatureIsWrittenUnsignedOnPurpose()
{
    QFETCH(int, degrees);
    QFETCH(QString, text);
    QCOMPARE(fromSigned(degrees), text);
    QCOMPARE(toSigned(text), degrees);
    QCOMPARE(toSigned(u"-5"_s), 0);
}

void ValueTextTest::onlyWhatXmlCannotHoldIsDropped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kept");
    const QString high(QChar(0xD83D));
    const QString low(QChar(0xDE81));
    QTest::newRow("plain") << "Pack A"
                           << "Pack A";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("white space") << " \t\n\r "
                                 << " \t\n\r ";
    QTest::newRow("null character") << QString(QChar(0)) + QLatin1Char('a') << "a";
    QTest::newRow("bell in the middle") << "a\ab"
                                        << "ab";
    QTest::newRow("form feed at the end") << "ab\f"
                                          << "ab";
    QTest::newRow("nothing but controls") << "\x01\x02\x1f"
                                          << "";
    QTest::newRow("delete and C1 controls stay") << u"\u007f\u0085\u009f"_s << u"\u007f\u0085\u009f"_s;
    QTest::newRow("a pair of surrogates") << high + low << high + low;
    QTest::newRow("lone high surrogate") << high << "";
    QTest::newRow("lone low surrogate") << low << "";
    QTest::newRow("pair the wrong way round") << u"a"_s + low + high + u"b"_s << "ab";
    QTest::newRow("high surrogate before a pair") << high + high + low << high + low;
    QTest::newRow("high surrogate before a letter") << high + QLatin1Char('a') << "a";
    QTest::newRow("noncharacters") << QString(QChar(0xFFFE)) + QChar(0xFFFF) + QChar(0xFFFD)
                                   << QString(QChar(0xFFFD));
    QTest::newRow("outside the first plane all stay")
        << u"\U0001FFFE\U0010FFFF"_s << u"\U0001FFFE\U0010FFFF"_s;
}

void ValueTextTest::onlyWhatXmlCannotHoldIsDropped()
{
    QFETCH(QString, text);
    QTEST(xmlText(text), "kept");
}

void ValueTextTest::everyCodeUnitIsKeptOrDropped()
{
    int kept = 0;
    for (int code = 0; code <= 0xFFFF; ++code) {
        const QChar unit(static_cast<char16_t>(code));
        const bool legal = code == 0x9 || code == 0xA || code == 0xD || (code >= 0x20 && code <= 0xD7FF) ||
                           (code >= 0xE000 && code <= 0xFFFD);
        const QString text = QLatin1Char('a') + QString(unit) + QLatin1Char('b');
        if (xmlText(text) != (legal ? text : u"ab"_s))
            QFAIL(qPrintable(QString::number(code, 16)));
        kept += legal ? 1 : 0;
    }
    QCOMPARE(kept, 3 + (0xD800 - 0x20) + (0xFFFE - 0xE000));
}

QTEST_GUILESS_MAIN(ValueTextTest)
#include "tst_valuetext.moc"
