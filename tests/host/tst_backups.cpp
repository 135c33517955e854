// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/logbookfiles.h"
#include "tests/support/brokendisk.h"
#include "tests/support/files.h"

#include <QTemporaryDir>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {
const QDateTime Noon(QDate(2026, 11, 21), QTime(12, 0), Qt::UTC);
const auto First = u"voltbok-00000001-20261121-120000-000Z.xml"_s;
} // namespace

class BackupsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNameSaysNumberTimeAndMark_data();
    void aNameSaysNumberTimeAndMark();
    void otherNamesAreNoCopies_data();
    void otherNamesAreNoCopies();
    void aLocalTimeThatTheZoneSkipsIsListed_data();
    void aLocalTimeThatTheZoneSkipsIsListed();
    void theOrderIsByNumberThenTimeThenName();
    void onlyRegularFilesAreListed();
    void aCopyHoldsTheSameBytesUnderTheNextNumber();
    void whatEqualsTheNewestWholeCopyIsNotCopied();
    void theNewestIsTheOneMadeLast_data();
    void theNewestIsTheOneMadeLast();
    void theModesAreTheLogbooks_data();
    void theModesAreTheLogbooks();
    void aLogbookBelowHalfMarksTheCopyBefore_data();
    void aLogbookBelowHalfMarksTheCopyBefore();
    void theNewestWholeCopyIsMarkedByOneRename();
    void aCopyThatDoesNotFitLeavesNothing();
    void aNameThatIsTakenByALinkIsNotWrittenTo();
    void thinningTouchesOnlyCopies();
    void leftoversAreRemovedAndNothingElse();

private:
    QString path(const QString &name) const { return m_folder->backups().filePath(name); }
    QString newestName() const { return Backups::newestWhole(*m_folder).value_or(Copy()).name; }
    QString add(int number, const QDateTime &now) const
    {
        return Backups::add(*m_folder, logbook(number), now);
    }

    std::unique_ptr<QTemporaryDir> m_home;
    std::optional<StorageFolder> m_folder;
};

void BackupsTest::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_folder.emplace(m_home->path());
    QVERIFY(Test::write(m_folder->dataFile(), logbook(0)));
}

void BackupsTest::aNameSaysNumberTimeAndMark_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<quint64>("number");
    QTest::addColumn<QString>("time"); // in UTC
    QTest::addColumn<bool>("kept");

    const auto row = [](const char *name, quint64 number, const char *time, bool kept) {
        QTest::newRow(name) << QString::fromLatin1(name) << number << QString::fromLatin1(time) << kept;
    };
    row("voltbok-00000042-20261121-195112-123Z.xml", 42, "2026-11-21T19:51:12.123Z", false);
    row("voltbok-00000042-kept-20261121-195112-123Z.xml", 42, "2026-11-21T19:51:12.123Z", true);
    row("voltbok-123456789-20261121-195112-123Z.xml", 123456789, "2026-11-21T19:51:12.123Z", false);
    row("voltbok-20261121-225131-123Z.xml", 0, "2026-11-21T22:51:31.123Z", false);
    row("voltbok-20261121-195112-123.xml", 0, "2026-11-21T14:06:12.123Z", false); // local: 5:45 hours ahead
    row("voltbok-00000000-kept-20261121-195112-123Z.xml", 0, "2026-11-21T19:51:12.123Z", true);
}

void BackupsTest::aNameSaysNumberTimeAndMark()
{
    QFETCH(QString, name);
    const Zone there("Asia/Kathmandu");
    const std::optional<Copy> copy = Backups::parse(name);
    QVERIFY(copy);
    QCOMPARE(copy->name, name);
    QTEST(copy->number, "number");
    QTEST(copy->time.toUTC().toString(Qt::ISODateWithMs), "time");
    QTEST(copy->kept, "kept");
    if (copy->number > 0)
        QCOMPARE(Backups::fileName(*copy), name);
}

void BackupsTest::otherNamesAreNoCopies_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"", "notes.txt", "voltbok.xml", "voltbok-old.xml", "voltbok-20261121-225131-123Z.xml.AbCdEf",
          "voltbok-20261121-225131-123Z.xml\n", "x-voltbok-20261121-225131-123Z.xml",
          "voltbok-20261121-225131.xml", "voltbok-20261321-225131-123Z.xml",
          "voltbok-20261121-245131-123Z.xml", "voltbok-20260229-225131-123.xml",
          "voltbok-42-20261121-225131-123Z.xml", "voltbok-9999999999999-20261121-225131-123Z.xml",
          "voltbok-00000042-20261121-225131-123.xml", "voltbok-kept-20261121-225131-123Z.xml",
          "voltbok-broken-20261121-225131-123Z.xml"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void BackupsTest::otherNamesAreNoCopies()
{
    QFETCH(QString, name);
    QVERIFY(!Backups::parse(name));
}

void BackupsTest::aLocalTimeThatTheZoneSkipsIsListed_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("time");
    const auto row = [](const char *zone, const char *name, const char *time) {
        QTest::newRow(zone) << QByteArray(zone) << QString::fromLatin1(name) << QString::fromLatin1(time);
    };
    row("Europe/Oslo", "voltbok-20260329-023000-000.xml", "2026-03-29T01:30:00Z");
    row("America/New_York", "voltbok-20260308-023000-000.xml", "2026-03-08T07:30:00Z");
    row("Australia/Lord_Howe", "voltbok-20261004-021500-000.xml", "2026-10-03T15:45:00Z");
    row("Pacific/Apia", "voltbok-20111230-120000-000.xml", "2011-12-30T22:00:00Z");
}

void BackupsTest::aLocalTimeThatTheZoneSkipsIsListed()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, name);
    const Zone there(zone);
    QVERIFY(m_folder->backups().mkpath(u"."_s));
    QVERIFY(Test::write(path(name), logbook(1)));
    const QList<Copy> copies = Backups::list(*m_folder);
    QCOMPARE(copies.size(), 1);
    QVERIFY(copies.first().time.isValid());
    QTEST(copies.first().time.toUTC().toString(Qt::ISODate), "time");
    QCOMPARE(newestName(), name);
}

void BackupsTest::theOrderIsByNumberThenTimeThenName()
{
    const QStringList newestFirst{u"voltbok-100000000-20261121-000000-000Z.xml"_s,
                                  u"voltbok-99999999-20261121-000000-001Z.xml"_s,
                                  u"voltbok-00000003-kept-20250101-000000-000Z.xml"_s,
                                  u"voltbok-00000002-20360101-000000-000Z.xml"_s,
                                  u"voltbok-00000001-20261121-000000-001Z.xml"_s,
                                  u"voltbok-00000001-kept-20261121-000000-000Z.xml"_s,
                                  u"voltbok-00000001-20261121-000000-000Z.xml"_s,
                                  u"voltbok-20401121-000000-000.xml"_s,
                                  u"voltbok-20261121-120000-000Z.xml"_s,
                                  u"voltbok-20261121-120000-000.xml"_s};
    QVERIFY(m_folder->backups().mkpath(u"."_s));
    for (const QString &name : newestFirst)
        QVERIFY(Test::write(path(name), logbook(1)));
    QStringList names;
    const QList<Copy> copies = Backups::list(*m_folder);
    for (const Copy &copy : copies)
        names.append(copy.name);
    QCOMPARE(names, newestFirst);
    QCOMPARE(copies.first().size, logbook(1).size());
}

void BackupsTest::onlyRegularFilesAreListed()
{
    QCOMPARE(add(1, Noon), QString());
    const auto name = [](int number) { return u"voltbok-0000000%1-20261121-130000-000Z.xml"_s.arg(number); };
    QVERIFY(m_folder->backups().mkdir(name(2)));
    QCOMPARE(mkfifo(QFile::encodeName(path(name(3))), 0600), 0);
    QVERIFY(Test::write(m_home->filePath(u"elsewhere.xml"_s), logbook(4)));
    QVERIFY(QFile::link(m_home->filePath(u"elsewhere.xml"_s), path(name(4))));
    QVERIFY(QFile::link(path(name(3)), path(name(5))));
    QVERIFY(QFile::link(u"/dev/zero"_s, path(name(6))));
    QVERIFY(QFile::link(u"/nowhere"_s, path(name(7))));
    QVERIFY(QFile::link(path(name(8)), path(name(8))));

    QCOMPARE(Backups::list(*m_folder).size(), 1);
    QCOMPARE(newestName(), First);
    QCOMPARE(add(9, Noon.addSecs(1)), QString());
    QCOMPARE(Backups::list(*m_folder).first().number, 9U); // above every name that is there
    Backups::thin(*m_folder, Noon.addYears(9));
    Backups::removeLeftovers(*m_folder);
    QCOMPARE(namesIn(*m_folder).size(), 8);
}

void BackupsTest::aCopyHoldsTheSameBytesUnderTheNextNumber()
{
    QCOMPARE(add(1, Noon), QString());
    QCOMPARE(namesIn(*m_folder), QStringList{First});
    QCOMPARE(Test::contents(path(First)), logbook(1));
    QCOMPARE(add(2, Noon.addSecs(-7200)), QString());
    QCOMPARE(namesIn(*m_folder).last(), u"voltbok-00000002-20261121-100000-000Z.xml"_s);
}

void BackupsTest::whatEqualsTheNewestWholeCopyIsNotCopied()
{
    QCOMPARE(add(1, Noon), QString());
    QVERIFY(
        Test::write(path(u"voltbok-00000007-20261121-110000-000Z.xml"_s), "<Voltbok><Loc")); // cut, and newer
    QCOMPARE(add(1, Noon.addSecs(1)), QString());
    QCOMPARE(namesIn(*m_folder).size(), 2);
    QCOMPARE(add(2, Noon.addSecs(2)), QString());
    QCOMPARE(add(1, Noon.addSecs(3)), QString()); // equals an older one only
    QCOMPARE(namesIn(*m_folder).size(), 4);
    QCOMPARE(Backups::list(*m_folder).first().number, 9U);
}

void BackupsTest::theNewestIsTheOneMadeLast_data()
{
    QTest::addColumn<QByteArrayList>("zones"); // of each copy
    QTest::addColumn<QList<QDateTime>>("times");
    const auto utc = [](const char *text) { return QDateTime::fromString(QLatin1String(text), Qt::ISODate); };

    QTest::newRow("autumn in Oslo") << QByteArrayList(3, "Europe/Oslo")
                                    << QList{utc("2026-10-25T00:40:00Z"), utc("2026-10-25T01:10:00Z"),
                                             utc("2026-10-25T01:50:00Z")};
    QTest::newRow("autumn in New York")
        << QByteArrayList(3, "America/New_York")
        << QList{utc("2026-11-01T05:40:00Z"), utc("2026-11-01T06:10:00Z"), utc("2026-11-01T06:50:00Z")};
    QTest::newRow("travelling west") << QByteArrayList{"Europe/Oslo", "America/New_York", "Pacific/Honolulu"}
                                     << QList{Noon, Noon.addSecs(3600), Noon.addSecs(7200)};
    QTest::newRow("set back two hours")
        << QByteArrayList(3, "UTC") << QList{Noon, Noon.addSecs(-7200), Noon.addSecs(-7100)};
    QTest::newRow("one of 2036") << QByteArrayList(3, "UTC")
                                 << QList{utc("2036-11-18T12:00:00Z"), Noon, Noon.addSecs(60)};
    QTest::newRow("one moment") << QByteArrayList(3, "UTC") << QList{Noon, Noon, Noon};
}

void BackupsTest::theNewestIsTheOneMadeLast()
{
    QFETCH(QByteArrayList, zones);
    QFETCH(QList<QDateTime>, times);
    QVERIFY(m_folder->backups().mkpath(u"."_s));
    QVERIFY(Test::write(path(u"voltbok-20300101-000000-000.xml"_s),
                        logbook(99))); // of an earlier version, and ahead
    for (int i = 0; i < times.size(); ++i) {
        const Zone there(zones[i]);
        QCOMPARE(add(i, times[i]), QString());
        QByteArray newest;
        QVERIFY(Backups::newestWhole(*m_folder, &newest));
        QCOMPARE(newest, logbook(i));
    }
    const Zone there("Asia/Kathmandu");
    QCOMPARE(newestCopy(*m_folder), logbook(int(times.size()) - 1));
    QCOMPARE(Backups::list(*m_folder).size(), times.size() + 1);
}

void BackupsTest::theModesAreTheLogbooks_data()
{
    QTest::addColumn<int>("logbook");
    QTest::addColumn<int>("mask");
    QTest::addColumn<int>("folder");
    QTest::newRow("private") << 0600 << 0022 << 0700;
    QTest::newRow("private in an open process") << 0600 << 0 << 0700;
    QTest::newRow("readable by all") << 0644 << 0022 << 0755;
    QTest::newRow("readable by all in a strict process") << 0644 << 0077 << 0755;
    QTest::newRow("shared by a group") << 0660 << 0022 << 0770;
    QTest::newRow("read by a group") << 0640 << 0022 << 0750;
    QTest::newRow("read-only") << 0444 << 0022 << 0755;
}

void BackupsTest::theModesAreTheLogbooks()
{
    QFETCH(int, logbook);
    QFETCH(int, mask);
    QCOMPARE(chmod(QFile::encodeName(m_folder->dataFile()), mode_t(logbook)), 0);
    const Umask process{mode_t(mask)};
    QCOMPARE(add(1, Noon), QString());
    QCOMPARE(int(modeOf(path(First))), logbook);
    QTEST(int(modeOf(m_folder->backups().path())), "folder");
}

void BackupsTest::aLogbookBelowHalfMarksTheCopyBefore_data()
{
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<bool>("kept");
    QTest::newRow("half") << qsizetype(500) << false;
    QTest::newRow("one byte less") << qsizetype(499) << true;
}

void BackupsTest::aLogbookBelowHalfMarksTheCopyBefore()
{
    QFETCH(qsizetype, size);
    const auto ofSize = [](qsizetype wanted) { return logbook(1, wanted - logbook(1).size()); };
    QCOMPARE(Backups::add(*m_folder, ofSize(1000), Noon), QString());
    QCOMPARE(Backups::add(*m_folder, ofSize(size), Noon.addSecs(1)), QString());
    const QList<Copy> copies = Backups::list(*m_folder);
    QCOMPARE(copies.size(), 2);
    QTEST(copies[1].kept, "kept");
    QVERIFY(!copies[0].kept);
    QCOMPARE(Test::contents(path(copies[1].name)), ofSize(1000));
    QCOMPARE(copies[1].number, 1U);
    QCOMPARE(copies[1].time, Noon);
}

void BackupsTest::theNewestWholeCopyIsMarkedByOneRename()
{
    QCOMPARE(Backups::keepNewestWhole(*m_folder), QString()); // there is none
    const Zone there("Asia/Kathmandu");
    QVERIFY(m_folder->backups().mkpath(u"."_s));
    QVERIFY(Test::write(path(u"voltbok-20261121-195112-123.xml"_s), logbook(1)));
    QVERIFY(Test::write(path(u"voltbok-00000001-20261121-195112-123Z.xml"_s), ""));
    struct stat before = {};
    struct stat after = {};
    QCOMPARE(stat(QFile::encodeName(path(u"voltbok-20261121-195112-123.xml"_s)), &before), 0);
    for (int i = 0; i < 2; ++i)
        QCOMPARE(Backups::keepNewestWhole(*m_folder), QString());
    const auto kept = u"voltbok-00000000-kept-20261121-140612-123Z.xml"_s;
    QCOMPARE(namesIn(*m_folder), (QStringList{kept, u"voltbok-00000001-20261121-195112-123Z.xml"_s}));
    QCOMPARE(stat(QFile::encodeName(path(kept)), &after), 0);
    QCOMPARE(after.st_ino, before.st_ino);
}

void BackupsTest::aCopyThatDoesNotFitLeavesNothing()
{
    QCOMPARE(add(1, Noon), QString());
    QString problem;
    {
        const FullDisk disk(300);
        QVERIFY(disk.works());
        problem = Backups::add(*m_folder, logbook(2, 1000), Noon.addSecs(1));
    }
    QCOMPARE(problem, u"the file would be too large"_s);
    QCOMPARE(namesIn(*m_folder), QStringList{First});
}

void BackupsTest::aNameThatIsTakenByALinkIsNotWrittenTo()
{
    const QString precious = m_home->filePath(u"precious"_s);
    QVERIFY(Test::write(precious, "precious"));
    QVERIFY(m_folder->backups().mkpath(u"."_s));
    QVERIFY(QFile::link(precious, path(First)));
    QCOMPARE(add(1, Noon), QString());
    QCOMPARE(Test::contents(precious), QByteArray("precious"));
    QCOMPARE(Backups::list(*m_folder).first().number, 2U);
}

void BackupsTest::thinningTouchesOnlyCopies()
{
    for (int i = 1; i <= 5; ++i)
        QCOMPARE(add(i, Noon.addSecs(i)), QString());
    const QStringList foreign{u"notes.txt"_s, u".hidden"_s, u".voltbok-00000002-20261121-120002-000Z.xml"_s,
                              u"voltbok-copy.xml"_s, u"voltbok.xml"_s};
    for (const QString &name : foreign)
        QVERIFY(Test::write(path(name), logbook(1)));
    QVERIFY(m_folder->backups().mkdir(u"folder"_s));
    Backups::thin(*m_folder, Noon.addYears(1));
    QCOMPARE(Backups::list(*m_folder).size(), 1);
    QCOMPARE(Backups::list(*m_folder).first().number, 5U);
    QCOMPARE(namesIn(*m_folder).size(), 1 + foreign.size() + 1);
}

void BackupsTest::leftoversAreRemovedAndNothingElse()
{
    QCOMPARE(add(1, Noon), QString());
    const QStringList gone{First + u".AbCdEf"_s, First + u".abcdef"_s,
                           u"voltbok-00000002-kept-20261121-120000-000Z.xml.ZZZZZZ"_s};
    const QStringList left{First + u".backup"_s, First + u".AbCdEfG"_s, First + u".Ab1dEf"_s,
                           u"voltbok-notes.xml.AbCdEf"_s, u"voltbok.xml.AbCdEf"_s};
    for (const QString &name : gone)
        QVERIFY(Test::write(path(name), "<Voltbok>"));
    for (const QString &name : left)
        QVERIFY(Test::write(path(name), logbook(1)));
    QCOMPARE(mkfifo(QFile::encodeName(path(First + u".FiFoOo"_s)), 0600), 0);
    Backups::removeLeftovers(*m_folder);
    QStringList expected = left + QStringList{First, First + u".FiFoOo"_s};
    expected.sort();
    QStringList found = namesIn(*m_folder);
    found.sort();
    QCOMPARE(found, expected);
}

QTEST_GUILESS_MAIN(BackupsTest)
#include "tst_backups.moc"
