// SPDX-License-Identifier: GPL-3.0-or-later
// Which copies may go. Times in the tables are those of the clock on the wall unless a Z follows.
#include "tests/host/support/logbookfiles.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTimeZone>

#include <algorithm>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 Megabyte = 1000 * 1000;

QDateTime at(const QString &text)
{
    QDateTime time = QDateTime::fromString(text.left(19), u"yyyy-MM-dd HH:mm:ss");
    if (text.endsWith(u'Z'))
        time.setTimeSpec(Qt::UTC);
    return time.toUTC();
}

/** A copy named by its time in the table; "kept" may stand before it. */
Copy copyAt(const QString &text, quint64 number, qint64 size = 1)
{
    const bool kept = text.startsWith(u"kept ");
    return {text, number, at(kept ? text.mid(5) : text), size, kept, {}};
}

/** Newest first, from times in the order in which the copies were made. */
QList<Copy> copiesAt(const QStringList &oldestFirst)
{
    QList<Copy> copies;
    for (const QString &text : oldestFirst)
        copies.prepend(copyAt(text, quint64(copies.size() + 1)));
    return copies;
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

QStringList lines(const char *text)
{
    return QString::fromLatin1(text).split(u',', Qt::SkipEmptyParts);
}

/** What stays, said of one copy at a time, with days from the zone's own table. */
class Oracle
{
public:
    Oracle(const QList<Copy> &newestFirst, const QDateTime &now, const QTimeZone &zone)
        : m_copies(newestFirst)
        , m_now(now)
        , m_today(now.toTimeZone(zone).date())
    {
        for (const Copy &copy : newestFirst) {
            const QString utc = copy.time.toString(u"yyyyMMddHHmm");
            const QString day = copy.time.toTimeZone(zone).date().toString(Qt::ISODate);
            m_slots.append(utc.chopped(1)); // ten minutes share all but the last digit
            m_days.append(day);
            m_months.append(day.left(7));
        }
    }

    bool stays(qsizetype i) const
    {
        const double minutes = double(m_copies[i].time.msecsTo(m_now)) / 60000.0;
        if (m_copies[i].kept || minutes <= 10)
            return true;
        const bool endsDay = isLast(i, m_days) || m_days.lastIndexOf(m_days[i]) == i;
        if (minutes <= 24 * 60)
            return endsDay || isLast(i, m_slots);
        if (QDate::fromString(m_days[i], Qt::ISODate).addDays(31) >= m_today)
            return endsDay;
        return isLast(i, m_months);
    }

private:
    static bool isLast(qsizetype i, const QStringList &groups) { return groups.indexOf(groups[i]) == i; }

    const QList<Copy> &m_copies; // none of the future
    const QDateTime m_now;
    const QDate m_today;
    QStringList m_slots;
    QStringList m_days;
    QStringList m_months;
};

} // namespace

class ThinningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesGoWithAge_data();
    void copiesGoWithAge();
    void theOldestGoBeyondTheLimit_data();
    void theOldestGoBeyondTheLimit();
    void tenThousandVersionsOfAnAfternoonBecomeFew();
    void tenThousandVersionsOfTenMinutesStayWithinTheLimit();
    void yearsOfUseAreThinnedByTheRule_data();
    void yearsOfUseAreThinnedByTheRule();
    void aClockAgreesWithinADay_data();
    void aClockAgreesWithinADay();
};

void ThinningTest::copiesGoWithAge_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("now");
    QTest::addColumn<QStringList>("made"); // oldest first; those after the bar may go
    QTest::addColumn<QStringList>("gone");

    const auto row = [](const char *name, const char *zone, const char *now, const char *made,
                        const char *gone) {
        QTest::newRow(name) << QByteArray(zone) << QString::fromLatin1(now) << lines(made) << lines(gone);
    };
    row("nothing", "UTC", "2026-11-21 12:00:00", "", "");
    row("all of the last ten minutes", "UTC", "2026-11-21 12:09:59",
        "2026-11-21 12:00:00,2026-11-21 12:01:00,2026-11-21 12:02:00,2026-11-21 12:09:58", "");
    row("exactly ten minutes", "UTC", "2026-11-21 12:15:00",
        "2026-11-21 10:00:00,2026-11-21 12:04:59,2026-11-21 12:05:00,2026-11-21 12:05:01",
        "2026-11-21 12:04:59");
    row("the last of each ten minutes", "UTC", "2026-11-21 18:00:00",
        "2026-11-21 00:00:00,2026-11-21 12:00:00,2026-11-21 12:09:59,2026-11-21 12:10:00,2026-11-21 "
        "12:10:01,2026-11-21 17:00:00",
        "2026-11-21 12:00:00,2026-11-21 12:10:00");
    row("ten minutes are those of UTC", "Australia/Eucla", "2026-11-21 18:00:00", // 8:45 hours ahead
        "2026-11-21 00:00:00,2026-11-21 12:04:00,2026-11-21 12:06:00,2026-11-21 12:14:00,2026-11-21 17:00:00",
        "2026-11-21 12:06:00");
    row("exactly a day", "UTC", "2026-11-21 12:00:00",
        "2026-11-20 08:00:00,2026-11-20 11:59:59,2026-11-20 12:00:00,2026-11-20 12:30:00,2026-11-20 13:00:00",
        "2026-11-20 11:59:59");
    row("the first of a day outlives its slot", "UTC", "2026-11-21 18:00:00",
        "2026-11-21 12:00:00,2026-11-21 12:01:00,2026-11-21 12:02:00,2026-11-21 17:00:00",
        "2026-11-21 12:01:00");
    row("the first and the last of each day", "UTC", "2026-11-21 12:00:00",
        "2026-11-18 08:00:00,2026-11-18 09:00:00,2026-11-18 22:00:00,2026-11-19 23:59:59",
        "2026-11-18 09:00:00");
    row("the 31st day is inside", "UTC", "2026-11-21 12:00:00",
        "2026-10-20 08:00:00,2026-10-20 22:00:00,2026-10-21 00:00:00,2026-10-21 12:00:00,2026-10-21 22:00:00,"
        "2026-10-31 12:00:00",
        "2026-10-20 08:00:00,2026-10-20 22:00:00,2026-10-21 12:00:00");
    row("the last of each month", "UTC", "2026-11-21 12:00:00",
        "2019-01-01 01:00:00,2019-01-30 23:00:00,2019-01-31 23:00:00,2026-09-01 20:00:00,2026-09-30 19:00:00,"
        "2026-09-30 20:00:00",
        "2019-01-01 01:00:00,2019-01-30 23:00:00,2026-09-01 20:00:00,2026-09-30 19:00:00");
    row("a copy that is kept", "UTC", "2026-11-21 12:00:00",
        "2019-01-01 01:00:00,kept 2019-01-02 01:00:00,2019-01-31 23:00:00,2026-11-18 08:00:00,"
        "kept 2026-11-18 09:00:00,2026-11-18 10:00:00,kept 2026-11-21 10:00:00,2026-11-21 10:01:00",
        "2019-01-01 01:00:00");
    row("copies from a clock ahead", "UTC", "2026-11-21 12:00:00",
        "2026-11-21 11:45:00,2036-01-01 00:00:00,2036-01-01 00:00:01,2026-11-21 11:46:00,2026-11-21 12:00:01",
        "");
    row("a clock ahead stands for no day", "UTC", "2026-11-21 12:00:00",
        "2026-11-21 22:00:00,2026-11-21 08:00:00,2026-11-21 08:01:00,2026-11-21 11:45:00", "");
    row("set back two hours, made later", "UTC", "2026-11-21 12:30:00",
        "2026-11-21 09:00:00,2026-11-21 12:05:01,2026-11-21 12:06:00,2026-11-21 12:05:00,2026-11-21 12:10:00",
        "2026-11-21 12:05:01,2026-11-21 12:06:00");
    row("an hour that comes twice", "Europe/Oslo", "2026-10-26 20:00:00",
        "2026-10-25 00:10:00Z,2026-10-25 00:30:00Z,2026-10-25 01:30:00Z", "2026-10-25 00:30:00Z");
    row("a day of 25 hours", "America/New_York", "2026-11-01 23:59:00",
        "2026-11-01 04:00:00Z,2026-11-01 04:30:00Z,2026-11-01 05:00:00Z,2026-11-02 04:00:00Z",
        "2026-11-01 04:30:00Z");
    row("a day is local in the west", "America/New_York", "2026-11-21 12:00:00",
        "2026-11-18 04:00:00Z,2026-11-18 04:59:59Z,2026-11-18 05:00:00Z,2026-11-19 04:00:00Z", "");
    row("a day is local in the east", "Pacific/Kiritimati", "2026-11-21 12:00:00",
        "2026-11-18 09:00:00Z,2026-11-18 09:30:00Z,2026-11-18 09:59:59Z,2026-11-18 10:00:00Z",
        "2026-11-18 09:30:00Z");
    row("a month is local", "America/New_York", "2026-11-21 12:00:00",
        "2026-09-30 10:00:00Z,2026-10-01 03:59:59Z,2026-10-01 04:00:00Z,2026-10-31 12:00:00Z",
        "2026-09-30 10:00:00Z,2026-10-01 04:00:00Z");
}

void ThinningTest::copiesGoWithAge()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, now);
    QFETCH(QStringList, made);
    QFETCH(QStringList, gone);
    const Zone there(zone);
    const QList<Copy> copies = copiesAt(made);
    QCOMPARE(sorted(Backups::superfluous(copies, at(now))), sorted(gone));

    QList<Copy> rest = copies;
    rest.removeIf([&](const Copy &copy) { return gone.contains(copy.name); });
    QCOMPARE(Backups::superfluous(rest, at(now)), QStringList());
}

void ThinningTest::theOldestGoBeyondTheLimit_data()
{
    QTest::addColumn<QStringList>("made"); // ten bytes each
    QTest::addColumn<int>("limit");
    QTest::addColumn<QStringList>("gone");

    const QStringList days = lines("2026-11-17 12:00:00,2026-11-18 12:00:00,2026-11-19 12:00:00,2026-11-21 "
                                   "11:58:00,2026-11-21 11:59:00");
    QTest::newRow("all fit") << days << 50 << QStringList();
    QTest::newRow("one byte less") << days << 49 << days.mid(0, 1);
    QTest::newRow("two") << days << 30 << days.mid(0, 2);
    QTest::newRow("the newest before today stays") << days << 20 << (days.mid(0, 2) + days.mid(3, 1));
    QTest::newRow("the newest stays") << days << 0 << (days.mid(0, 2) + days.mid(3, 1));
    const QStringList kept =
        lines("kept 2026-11-16 12:00:00,2026-11-17 12:00:00,2026-11-19 12:00:00,2026-11-21 11:59:00");
    QTest::newRow("one that is kept stays") << kept << 0 << kept.mid(1, 1);
    const QStringList ahead =
        lines("2036-11-16 12:00:00,2026-11-17 12:00:00,2026-11-19 12:00:00,2026-11-21 11:59:00");
    QTest::newRow("one dated later stays") << ahead << 0 << ahead.mid(1, 1);
    const QStringList back = lines("2026-11-19 12:00:00,2026-11-18 12:00:00,2026-11-21 11:59:00");
    QTest::newRow("the oldest is the one made first") << back << 20 << back.mid(0, 1);
}

void ThinningTest::theOldestGoBeyondTheLimit()
{
    QFETCH(QStringList, made);
    QFETCH(int, limit);
    QFETCH(QStringList, gone);
    QList<Copy> copies = copiesAt(made);
    for (Copy &copy : copies)
        copy.size = 10;
    QCOMPARE(Backups::superfluous(copies, at(u"2026-11-21 12:00:00"_s), limit), gone);
}

void ThinningTest::tenThousandVersionsOfAnAfternoonBecomeFew()
{
    const QDateTime noon = at(u"2026-11-21 12:00:00"_s);
    QList<Copy> copies;
    for (int i = 0; i < 10000; ++i) // one each two seconds
        copies.prepend({QString::number(i), quint64(i + 1), noon.addSecs(2 * i), Megabyte, false, {}});
    const QStringList gone = Backups::superfluous(copies, copies.first().time);
    const qsizetype left = copies.size() - gone.size();
    QVERIFY2(left > 300 && left <= 301 + 20000 / 600 + 2, qPrintable(QString::number(left)));
    QVERIFY(!gone.contains(u"9999"_s) && !gone.contains(u"0"_s));
}

void ThinningTest::tenThousandVersionsOfTenMinutesStayWithinTheLimit()
{
    const QDateTime noon = at(u"2026-11-21 12:00:00"_s);
    QList<Copy> copies{{u"yesterday"_s, 1, noon.addDays(-1), Megabyte, false, {}}};
    for (int i = 1; i < 10000; ++i)
        copies.prepend({QString::number(i), quint64(i + 1), noon.addMSecs(60 * i), Megabyte, false, {}});
    const QStringList gone = Backups::superfluous(copies, copies.first().time);
    QCOMPARE(copies.size() - gone.size(), Backups::TotalLimit / Megabyte);
    QVERIFY(!gone.contains(u"9999"_s) && !gone.contains(u"9501"_s) && !gone.contains(u"yesterday"_s));
}

void ThinningTest::yearsOfUseAreThinnedByTheRule_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char *zone : {"Europe/Oslo", "America/New_York", "Australia/Lord_Howe"})
        QTest::newRow(zone) << QByteArray(zone);
}

void ThinningTest::yearsOfUseAreThinnedByTheRule()
{
    QFETCH(QByteArray, zone);
    const Zone there(zone);
    QRandomGenerator random(20261121);
    QDateTime now = at(u"2026-11-21 06:00:00Z"_s);
    const QDateTime end = now.addDays(1500);
    QList<Copy> copies;
    QHash<QString, QString> firstOfDay; // of everything that was ever made
    QHash<QString, QString> lastOfDay;
    for (quint64 number = 1; now < end; ++number) {
        now = now.addSecs(random.bounded(12) == 0 ? random.bounded(60, 200000) : random.bounded(1, 500));
        const QString name = QString::number(number);
        copies.prepend({name, number, now, 1, random.bounded(500) == 0, {}});
        const QString day = now.toTimeZone(QTimeZone(zone)).date().toString(Qt::ISODate);
        lastOfDay[day] = name;
        firstOfDay.insert(day, firstOfDay.value(day, name));

        if (number % 8 != 0)
            continue; // some copies come before the next thinning
        const Oracle oracle(copies, now, QTimeZone(zone));
        const QStringList names = Backups::superfluous(copies, now);
        const QSet<QString> gone(names.cbegin(), names.cend());
        for (qsizetype i = 0; i < copies.size(); ++i)
            QVERIFY2(oracle.stays(i) != gone.contains(copies[i].name), qPrintable(copies[i].time.toString()));
        copies.removeIf([&](const Copy &copy) { return gone.contains(copy.name); });
    }
    // Thinned a step at a time, the ends of the days are still those of everything that was made.
    QSet<QString> left;
    for (const Copy &copy : std::as_const(copies))
        left.insert(copy.name);
    for (int ago = 0; ago <= 31; ++ago) {
        const QString day = now.toTimeZone(QTimeZone(zone)).date().addDays(-ago).toString(Qt::ISODate);
        QVERIFY2(!firstOfDay.contains(day) || left.contains(firstOfDay[day]), qPrintable(day));
        QVERIFY2(!lastOfDay.contains(day) || left.contains(lastOfDay[day]), qPrintable(day));
    }
}

void ThinningTest::aClockAgreesWithinADay_data()
{
    QTest::addColumn<QStringList>("made");
    QTest::addColumn<bool>("agrees");
    QTest::newRow("no copies") << QStringList() << true;
    QTest::newRow("exactly a day behind") << lines("2026-11-20 12:00:00") << true;
    QTest::newRow("more than a day behind") << lines("2026-11-20 11:59:59") << false;
    QTest::newRow("exactly a day ahead") << lines("2026-11-22 12:00:00") << true;
    QTest::newRow("more than a day ahead") << lines("2026-11-22 12:00:01") << false;
    QTest::newRow("only the newest counts") << lines("2036-11-20 11:00:00,2026-11-21 11:00:00") << true;
}

void ThinningTest::aClockAgreesWithinADay()
{
    QFETCH(QStringList, made);
    QTEST(Backups::agreesWithClock(copiesAt(made), at(u"2026-11-21 12:00:00"_s)), "agrees");
}

QTEST_GUILESS_MAIN(ThinningTest)
#include "tst_thinning.moc"
