// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever the hand-written forms of dates and times give must be what Qt::TextDate gives.
#include "storage/textdate.h"
#include "tests/support/zone.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SecondsOfADay = 24 * 60 * 60;

QTime timeAt(int secondOfTheDay)
{
    return QTime(0, 0).addSecs(secondOfTheDay);
}

/**
 * Whether both write the moment alike, and read what was written alike. Of an hour that comes twice either
 * may be read: the text does not say which.
 */
bool agreesWithQt(const QDateTime &moment)
{
    const QString text = moment.toString(Qt::TextDate);
    if (TextDate::fromDateTime(moment) != text)
        return false;
    const QDateTime qts = QDateTime::fromString(text, Qt::TextDate);
    const QDateTime ours = TextDate::toDateTime(text);
    return ours.date() == qts.date() && ours.time() == qts.time() && ours.isValid() == qts.isValid() &&
           ours.timeSpec() == qts.timeSpec();
}

} // namespace

class TextDateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void everyYearIsWrittenAndReadAsQtDoes();
    void everySecondIsWrittenAndReadAsQtDoes();
    void changesOfTheClockAreWrittenAndReadAsQtDoes_data();
    void changesOfTheClockAreWrittenAndReadAsQtDoes();
    void oddMomentsAreWrittenAsQtDoes_data();
    void oddMomentsAreWrittenAsQtDoes();
    void anInvalidTimeIsEmptyText();
    void oddDateTimeTextsAreReadAsQtDoes_data();
    void oddDateTimeTextsAreReadAsQtDoes();
    void oddTimeTextsAreReadAsQtDoes_data();
    void oddTimeTextsAreReadAsQtDoes();
};

void TextDateTest::everyYearIsWrittenAndReadAsQtDoes()
{
    constexpr int Step = 101; // in the course of the years it comes to each day of the year and of the week
    const QDate last(9999, 12, 31);
    int second = 0;
    for (QDate day(1000, 1, 1); day <= last; day = day.addDays(Step)) {
        second = (second + 7919) % SecondsOfADay;
        const QDateTime moment(day, timeAt(second));
        const QString text = TextDate::fromDateTime(moment);
        if (text != moment.toString(Qt::TextDate))
            QFAIL(qPrintable(moment.toString(Qt::ISODate)));
        if (TextDate::toDateTime(text) != moment)
            QFAIL(qPrintable(text));
    }
    QVERIFY(agreesWithQt(QDateTime(last, timeAt(SecondsOfADay - 1))));
}

void TextDateTest::everySecondIsWrittenAndReadAsQtDoes()
{
    for (int second = 0; second < SecondsOfADay; ++second) {
        const QTime time = timeAt(second);
        const QString text = time.toString(Qt::TextDate);
        if (TextDate::fromTime(time) != text || TextDate::toTime(text) != time)
            QFAIL(qPrintable(text));
    }
    QCOMPARE(TextDate::fromTime(QTime(23, 59, 59, 999)), u"23:59:59"_s);
}

void TextDateTest::changesOfTheClockAreWrittenAndReadAsQtDoes_data()
{
    QTest::addColumn<QByteArray>("zoneName");
    QTest::addColumn<int>("firstYear");
    QTest::addColumn<int>("lastYear");
    for (const char *name : {"Europe/Berlin", "America/St_Johns", "Australia/Lord_Howe", "Pacific/Apia"})
        QTest::newRow(name) << QByteArray(name) << 1990 << 2012;
    QTest::newRow("Asia/Kathmandu") << QByteArray("Asia/Kathmandu") << 1985 << 1986;
    QTest::newRow("UTC") << QByteArray("UTC") << 2012 << 2012;
}

void TextDateTest::changesOfTheClockAreWrittenAndReadAsQtDoes()
{
    QFETCH(QByteArray, zoneName);
    QFETCH(int, firstYear);
    QFETCH(int, lastYear);
    const Zone there(zoneName);
    for (QDate day(firstYear, 1, 1); day.year() <= lastYear; day = day.addDays(1)) {
        for (const QTime &time : {QTime(0, 0), QTime(0, 30), QTime(1, 15), QTime(1, 45), QTime(2, 15),
                                  QTime(2, 45), QTime(3, 30), QTime(23, 59, 59)}) {
            const QDateTime moment(day, time);
            if (!agreesWithQt(moment))
                QFAIL(qPrintable(day.toString(Qt::ISODate) + u' ' + time.toString()));
            if (!agreesWithQt(moment.addSecs(3600))) // also reaches the hour that comes twice
                QFAIL(qPrintable(day.toString(Qt::ISODate) + u" an hour after "_s + time.toString()));
        }
    }
}

void TextDateTest::oddMomentsAreWrittenAsQtDoes_data()
{
    QTest::addColumn<QDateTime>("moment");
    const QTime noon(12, 0);
    QTest::newRow("invalid") << QDateTime();
    QTest::newRow("a year of three digits") << QDateTime(QDate(999, 12, 31), noon);
    QTest::newRow("before our era") << QDateTime(QDate(-44, 3, 15), noon);
    QTest::newRow("a year of five digits") << QDateTime(QDate(10'000, 1, 1), noon);
    QTest::newRow("Greenwich time") << QDateTime(QDate(2026, 11, 15), noon, Qt::UTC);
    QTest::newRow("an offset") << QDateTime(QDate(2026, 11, 15), noon, Qt::OffsetFromUTC, 3600);
}

void TextDateTest::oddMomentsAreWrittenAsQtDoes()
{
    QFETCH(QDateTime, moment);
    QCOMPARE(TextDate::fromDateTime(moment), moment.toString(Qt::TextDate));
}

void TextDateTest::anInvalidTimeIsEmptyText()
{
    QCOMPARE(TextDate::fromTime(QTime()), QString());
}

void TextDateTest::oddDateTimeTextsAreReadAsQtDoes_data()
{
    QTest::addColumn<QString>("text");
    const auto row = [](const char *what, const char *text) {
        QTest::newRow(what) << QString::fromUtf8(text);
    };
    row("a day of one digit", "Sun Nov 1 12:04:22 2026");
    row("a day with a zero before it", "Sun Nov 01 12:04:22 2026");
    row("another day's name", "Mon Nov 15 12:04:22 2026");
    row("the last of February in a leap year", "Thu Feb 29 12:04:22 2024");
    row("the last of February in another year", "Sun Feb 29 12:04:22 2026");
    row("empty", "");
    row("one space", " ");
    row("as many spaces", "                        ");
    row("no day's name", "xyz Nov 15 12:04:22 2026");
    row("a translated name", "Die Nov 17 12:04:22 2026");
    row("a small month", "Sun nov 15 12:04:22 2026");
    row("a name in another place", "Sun ovD 15 12:04:22 2026");
    row("day 0", "Sun Nov 0 12:04:22 2026");
    row("day 31 of 30", "Sun Nov 31 12:04:22 2026");
    row("a negative day", "Sun Nov -5 12:04:22 2026");
    row("a signed day", "Sun Nov +5 12:04:22 2026");
    row("digits of another script", "Sun Nov ١٥ 12:04:22 2026");
    row("two spaces before the day", "Sun Nov  5 12:04:22 2026");
    row("a space in front", " un Nov 15 12:04:22 2026");
    row("a space behind", "Sun Nov 5 12:04:22 2026 ");
    row("a tab", "Sun\tNov 15 12:04:22 2026");
    row("year before time", "Sun Nov 15 2026 12:04:22");
    row("year of three digits", "Sun Nov 15 12:04:22 926");
    row("year with zeros before it", "Sun Nov 15 12:04:22 0926");
    row("year of five digits", "Sun Nov 5 12:04:22 12026");
    row("a negative year", "Sun Nov 15 12:04:22 -926");
    row("no seconds", "Sun Nov 15 12:04 2026");
    row("milliseconds", "Sun Nov 1 12:04:22.5 2026");
    row("hour 24", "Sun Nov 15 24:00:00 2026");
    row("minute 60", "Sun Nov 15 12:60:22 2026");
    row("leap second", "Sun Nov 15 23:59:60 2026");
    row("points for colons", "Sun Nov 15 12.04.22 2026");
    row("Greenwich time", "Sun Nov 15 12:04:22 2026 GMT");
    row("an offset", "Sun Nov 15 12:04:22 2026 GMT+0100");
    row("the standard's form", "2026-11-15T12:04:22");
    row("characters beyond the first plane", "Sun Nov 15 12:04:22 20😀");
}

void TextDateTest::oddDateTimeTextsAreReadAsQtDoes()
{
    QFETCH(QString, text);
    const QDateTime read = TextDate::toDateTime(text);
    const QDateTime qts = QDateTime::fromString(text, Qt::TextDate);
    QCOMPARE(read, qts);
    QCOMPARE(read.isValid(), qts.isValid());
    QCOMPARE(read.timeSpec(), qts.timeSpec());
}

void TextDateTest::oddTimeTextsAreReadAsQtDoes_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", "00:07", "0:07:30", "00:7:30", "24:00:00", "00:60:00", "00:00:60",
                             "00:07:30.500", " 00:07:3", "00-07-30", "0a:07:30", "-1:07:30", "00:07:30 "})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void TextDateTest::oddTimeTextsAreReadAsQtDoes()
{
    QFETCH(QString, text);
    QCOMPARE(TextDate::toTime(text), QTime::fromString(text, Qt::TextDate));
}

QTEST_APPLESS_MAIN(TextDateTest)
#include "tst_textdate.moc"
