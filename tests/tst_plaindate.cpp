// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever the hand-written forms of dates and times give must be what Qt::TextDate gives.
#include "storage/plaindate.h"

#include <QTest>

#include <time.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SecondsOfADay = 24 * 60 * 60;

QTime timeAt(int secondOfTheDay)
{
    return QTime(0, 0).addSecs(secondOfTheDay);
}

/**
 * Whether both write the moment alike, and read what was written alike; both may refuse it, too. Of an hour
 * that comes twice either may be read: the text does not say which.
 */
bool agreesWithQt(const QDateTime &moment)
{
    const QString text = moment.toString(Qt::TextDate);
    if (PlainDate::fromDateTime(moment).value_or(text) != text)
        return false;
    const QDateTime read = QDateTime::fromString(text, Qt::TextDate);
    const QDateTime plain = PlainDate::toDateTime(text).value_or(read);
    return plain.date() == read.date() && plain.time() == read.time() && plain.isValid() == read.isValid() &&
           plain.timeSpec() == read.timeSpec();
}

} // namespace

class tst_PlainDate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void everyYearIsWrittenAndReadAsQtDoes();
    void everySecondIsWrittenAndReadAsQtDoes();
    void changesOfTheClockAreWrittenAndReadAsQtDoes_data();
    void changesOfTheClockAreWrittenAndReadAsQtDoes();
    void everythingElseIsLeftToQt();
    void oddDateTimeTextsAreReadAsQtDoes_data();
    void oddDateTimeTextsAreReadAsQtDoes();
    void oddTimeTextsAreReadAsQtDoes_data();
    void oddTimeTextsAreReadAsQtDoes();

private:
    const QByteArray zone = qgetenv("TZ");
};

void tst_PlainDate::cleanup()
{
    qputenv("TZ", zone);
    tzset();
}

void tst_PlainDate::everyYearIsWrittenAndReadAsQtDoes()
{
    constexpr int Step = 101; // in the course of the years it comes to each day of the year and of the week
    const QDate last(9999, 12, 31);
    int second = 0;
    for (QDate day(1000, 1, 1); day <= last; day = day.addDays(Step)) {
        second = (second + 7919) % SecondsOfADay;
        const QDateTime moment(day, timeAt(second));
        const std::optional<QString> text = PlainDate::fromDateTime(moment);
        if (!text || *text != moment.toString(Qt::TextDate))
            QFAIL(qPrintable(moment.toString(Qt::ISODate)));
        if (PlainDate::toDateTime(*text) != std::optional(moment))
            QFAIL(qPrintable(*text));
    }
    QVERIFY(agreesWithQt(QDateTime(last, timeAt(SecondsOfADay - 1))));
}

void tst_PlainDate::everySecondIsWrittenAndReadAsQtDoes()
{
    for (int second = 0; second < SecondsOfADay; ++second) {
        const QTime time = timeAt(second);
        const QString text = time.toString(Qt::TextDate);
        if (PlainDate::fromTime(time) != std::optional(text) ||
            PlainDate::toTime(text) != std::optional(time))
            QFAIL(qPrintable(text));
    }
    QCOMPARE(PlainDate::fromTime(QTime(23, 59, 59, 999)), std::optional(u"23:59:59"_s));
}

void tst_PlainDate::changesOfTheClockAreWrittenAndReadAsQtDoes_data()
{
    QTest::addColumn<QByteArray>("zoneName");
    QTest::addColumn<int>("firstYear");
    QTest::addColumn<int>("lastYear");
    for (const char *name : {"Europe/Berlin", "America/St_Johns", "Australia/Lord_Howe", "Pacific/Apia"})
        QTest::newRow(name) << QByteArray(name) << 1990 << 2012;
    QTest::newRow("Asia/Kathmandu") << QByteArray("Asia/Kathmandu") << 1985 << 1986;
    QTest::newRow("UTC") << QByteArray("UTC") << 2012 << 2012;
}

void tst_PlainDate::changesOfTheClockAreWrittenAndReadAsQtDoes()
{
    QFETCH(QByteArray, zoneName);
    QFETCH(int, firstYear);
    QFETCH(int, lastYear);
    qputenv("TZ", zoneName);
    tzset();
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

void tst_PlainDate::everythingElseIsLeftToQt()
{
    const QTime noon(12, 0);
    QVERIFY(!PlainDate::fromDateTime(QDateTime()));
    QVERIFY(!PlainDate::fromDateTime(QDateTime(QDate(999, 12, 31), noon)));
    QVERIFY(!PlainDate::fromDateTime(QDateTime(QDate(-44, 3, 15), noon)));
    QVERIFY(!PlainDate::fromDateTime(QDateTime(QDate(10'000, 1, 1), noon)));
    QVERIFY(!PlainDate::fromDateTime(QDateTime(QDate(2026, 11, 15), noon, Qt::UTC)));
    QVERIFY(!PlainDate::fromDateTime(QDateTime(QDate(2026, 11, 15), noon, Qt::OffsetFromUTC, 3600)));
    QVERIFY(!PlainDate::fromTime(QTime()));
}

void tst_PlainDate::oddDateTimeTextsAreReadAsQtDoes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("plain");
    const auto row = [](const char *what, const char *text, bool plain) {
        QTest::newRow(what) << QString::fromUtf8(text) << plain;
    };
    row("a day of one digit", "Sun Nov 1 12:04:22 2026", true);
    row("a day with a zero before it", "Sun Nov 01 12:04:22 2026", true);
    row("another day's name", "Mon Nov 15 12:04:22 2026", true);
    row("the last of February in a leap year", "Thu Feb 29 12:04:22 2024", true);
    row("the last of February in another year", "Sun Feb 29 12:04:22 2026", false);
    row("empty", "", false);
    row("one space", " ", false);
    row("as many spaces", "                        ", false);
    row("no day's name", "xyz Nov 15 12:04:22 2026", false);
    row("a translated name", "Die Nov 17 12:04:22 2026", false);
    row("a small month", "Sun nov 15 12:04:22 2026", false);
    row("a name in another place", "Sun ovD 15 12:04:22 2026", false);
    row("day 0", "Sun Nov 0 12:04:22 2026", false);
    row("day 31 of 30", "Sun Nov 31 12:04:22 2026", false);
    row("a negative day", "Sun Nov -5 12:04:22 2026", false);
    row("a signed day", "Sun Nov +5 12:04:22 2026", false);
    row("digits of another script", "Sun Nov ١٥ 12:04:22 2026", false);
    row("two spaces before the day", "Sun Nov  5 12:04:22 2026", false);
    row("a space in front", " un Nov 15 12:04:22 2026", false);
    row("a space behind", "Sun Nov 5 12:04:22 2026 ", false);
    row("a tab", "Sun\tNov 15 12:04:22 2026", false);
    row("year before time", "Sun Nov 15 2026 12:04:22", false);
    row("year of three digits", "Sun Nov 15 12:04:22 926", false);
    row("year with zeros before it", "Sun Nov 15 12:04:22 0926", false);
    row("year of five digits", "Sun Nov 5 12:04:22 12026", false);
    row("a negative year", "Sun Nov 15 12:04:22 -926", false);
    row("no seconds", "Sun Nov 15 12:04 2026", false);
    row("milliseconds", "Sun Nov 1 12:04:22.5 2026", false);
    row("hour 24", "Sun Nov 15 24:00:00 2026", false);
    row("minute 60", "Sun Nov 15 12:60:22 2026", false);
    row("leap second", "Sun Nov 15 23:59:60 2026", false);
    row("points for colons", "Sun Nov 15 12.04.22 2026", false);
    row("Greenwich time", "Sun Nov 15 12:04:22 2026 GMT", false);
    row("an offset", "Sun Nov 15 12:04:22 2026 GMT+0100", false);
    row("the standard's form", "2026-11-15T12:04:22", false);
    row("characters beyond the first plane", "Sun Nov 15 12:04:22 20😀", false);
}

void tst_PlainDate::oddDateTimeTextsAreReadAsQtDoes()
{
    QFETCH(QString, text);
    QFETCH(bool, plain);
    const std::optional<QDateTime> read = PlainDate::toDateTime(text);
    QCOMPARE(read.has_value(), plain);
    if (plain)
        QCOMPARE(*read, QDateTime::fromString(text, Qt::TextDate));
}

void tst_PlainDate::oddTimeTextsAreReadAsQtDoes_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"", "00:07", "0:07:30", "00:7:30", "24:00:00", "00:60:00", "00:00:60",
                             "00:07:30.500", " 00:07:3", "00-07-30", "0a:07:30", "-1:07:30", "00:07:30 "})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_PlainDate::oddTimeTextsAreReadAsQtDoes()
{
    QFETCH(QString, text);
    QCOMPARE(PlainDate::toTime(text), std::nullopt);
}

QTEST_APPLESS_MAIN(tst_PlainDate)
#include "tst_plaindate.moc"
