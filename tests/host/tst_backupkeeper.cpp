// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/backupkeeper.h"

#include "tests/host/support/keeperears.h"
#include "tests/host/support/logbookfiles.h"
#include "tests/host/support/lyingdisk.h"
#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <atomic>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

/** A clock that stands until it is set. */
class TestClock
{
public:
    explicit TestClock(const char *utc) { set(utc); }
    void set(const char *utc)
    {
        m_ms = QDateTime::fromString(QLatin1String(utc), Qt::ISODate).toMSecsSinceEpoch();
    }
    void addSecs(qint64 seconds) { m_ms += 1000 * seconds; }
    BackupKeeper::Clock function() const
    {
        return [this] { return QDateTime::fromMSecsSinceEpoch(m_ms, Qt::UTC); };
    }

private:
    std::atomic<qint64> m_ms = 0;
};

} // namespace

class BackupKeeperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { LyingDisk::syncError = 0; }
    void theFileIsCopiedAtTheStartAndAtALook();
    void theLastChangeIsCopiedAtTheEnd();
    void twoChangesWithinOneTickOfTheFilesClockAreBothCopied();
    void looksBeforeTheThreadComesToThemAreOne();
    void aLookCostsNothing();
    void anIdleKeeperSleeps();
    void leftoversGoAtTheStart();
    void theDataFileIsOnTheDiskWhenItWasSeen();
    void aMissingFileIsNoComplaintUntilItWasSeen();
    void aBrokenFileIsToldAndMarksTheCopyBefore();
    void aFileInTheMiddleOfASaveIsNotBroken();
    void marksSurviveTheThinning();
    void copiesAreThinnedWhenOneIsMade();
    void aClockThatJumpsThinsNothing();
    void anEarlierClockThinsNothing();

private:
    QString path(const QString &name) const { return m_folder->backups().filePath(name); }
    QByteArray newest() const { return newestCopy(*m_folder); }
    qsizetype count() const { return Backups::list(*m_folder).size(); }

    std::unique_ptr<QTemporaryDir> m_home;
    std::optional<StorageFolder> m_folder;
};

void BackupKeeperTest::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_folder.emplace(m_home->path());
    QVERIFY(Test::write(m_folder->dataFile(), logbook(1)));
}

void BackupKeeperTest::theFileIsCopiedAtTheStartAndAtALook()
{
    BackupKeeper keeper(*m_folder);
    Ears ears(keeper);
    QTRY_COMPARE(count(), 1);
    QCOMPARE(newest(), logbook(1));
    QVERIFY(Test::write(m_folder->dataFile(), logbook(2)));
    keeper.look();
    QTRY_COMPARE(count(), 2);
    QCOMPARE(newest(), logbook(2));
    keeper.lookAndWait(); // nothing new
    QCOMPARE(count(), 2);
    QTRY_COMPARE(ears.whole.size(), 3);
    QCOMPARE(ears.failed.size() + ears.recovered.size() + ears.broken.size(), 0);
}

void BackupKeeperTest::theLastChangeIsCopiedAtTheEnd()
{
    {
        BackupKeeper keeper(*m_folder);
        keeper.lookAndWait();
        QVERIFY(Test::write(m_folder->dataFile(), logbook(2)));
    }
    QCOMPARE(newest(), logbook(2));
    QCOMPARE(count(), 2);
}

void BackupKeeperTest::twoChangesWithinOneTickOfTheFilesClockAreBothCopied()
{
    const QDateTime tick(QDate(2026, 11, 21), QTime(12, 0), Qt::UTC);
    BackupKeeper keeper(*m_folder);
    keeper.lookAndWait();
    for (const int number : {2, 3, 2, 3}) { // equal sizes
        QVERIFY(Test::write(m_folder->dataFile(), logbook(number)));
        QFile file(m_folder->dataFile());
        QVERIFY(file.open(QFile::ReadWrite) && file.setFileTime(tick, QFile::FileModificationTime));
        file.close();
        keeper.look();
        QTRY_COMPARE(newest(), logbook(number));
    }
    QCOMPARE(count(), 5);
}

void BackupKeeperTest::looksBeforeTheThreadComesToThemAreOne()
{
    BackupKeeper keeper(*m_folder);
    lookAndHear(keeper);
    Ears ears(keeper);
    inThread(keeper, [&] {
        for (int i = 0; i < 1000; ++i)
            keeper.look();
    });
    lookAndHear(keeper);
    QCOMPARE(ears.whole.size(), 2); // theirs, and the one that was waited for
}

void BackupKeeperTest::aLookCostsNothing()
{
    const QByteArray document = logbook(1, 15 * 1000 * 1000);
    QVERIFY(Test::write(m_folder->dataFile(), document));
    BackupKeeper keeper(*m_folder);
    keeper.lookAndWait();
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(Test::contents(m_folder->dataFile()).size(), document.size());
    const qint64 reading = timer.nsecsElapsed();
    QList<qint64> looks;
    for (int i = 0; i < 101; ++i) {
        timer.start();
        keeper.look();
        looks.append(timer.nsecsElapsed());
    }
    std::sort(looks.begin(), looks.end());
    QVERIFY2(looks[50] * 20 < reading, qPrintable(u"%1 ns, reading %2 ns"_s.arg(looks[50]).arg(reading)));
}

void BackupKeeperTest::anIdleKeeperSleeps()
{
    BackupKeeper keeper(*m_folder);
    keeper.lookAndWait();
    pid_t thread = 0;
    inThread(keeper, [&] { thread = gettid(); });
    const auto switches = [thread] {
        const QByteArray status = Test::contents(u"/proc/self/task/%1/status"_s.arg(thread));
        const qsizetype start = status.indexOf("voluntary_ctxt_switches:");
        return status.mid(start).simplified().split(' ').value(1).toInt();
    };
    QTest::qSleep(100);
    const int before = switches();
    QVERIFY(before > 0);
    QTest::qSleep(2000);
    QCOMPARE(switches(), before);
}

void BackupKeeperTest::leftoversGoAtTheStart()
{
    QVERIFY(m_folder->backups().mkpath(u"."_s));
    QVERIFY(Test::write(path(u"voltbok-00000001-20261121-120000-000Z.xml.qZvPle"_s), "<Volt"));
    QVERIFY(Test::write(path(u"notes.txt"_s), "mine"));
    BackupKeeper keeper(*m_folder);
    keeper.lookAndWait();
    QCOMPARE(namesIn(*m_folder).size(), 2);
    QCOMPARE(Test::contents(path(u"notes.txt"_s)), QByteArray("mine"));
}

void BackupKeeperTest::theDataFileIsOnTheDiskWhenItWasSeen()
{
    BackupKeeper keeper(*m_folder);
    Ears ears(keeper);
    lookAndHear(keeper);
    QVERIFY(LyingDisk::wasSynced(QFile::encodeName(m_folder->dataFile())));
    QVERIFY(ears.broken.isEmpty());
    LyingDisk::syncError = EIO;
    lookAndHear(keeper);
    QCOMPARE(ears.broken.value(0).value(0).toString(), u"the disk reports an error"_s);
}

void BackupKeeperTest::aMissingFileIsNoComplaintUntilItWasSeen()
{
    QVERIFY(QFile::remove(m_folder->dataFile()));
    BackupKeeper keeper(*m_folder);
    Ears ears(keeper);
    lookAndHear(keeper);
    QVERIFY(!m_folder->backups().exists());
    QCOMPARE(ears.broken.size() + ears.whole.size() + ears.failed.size(), 0);
    QVERIFY(Test::write(m_folder->dataFile(), logbook(1)));
    lookAndHear(keeper);
    QCOMPARE(ears.whole.size(), 1);
    QVERIFY(QFile::remove(m_folder->dataFile()));
    lookAndHear(keeper);
    QCOMPARE(ears.broken.value(0).value(0).toString(), u"it is missing"_s);
    QVERIFY(Backups::list(*m_folder).first().kept);
}

void BackupKeeperTest::aBrokenFileIsToldAndMarksTheCopyBefore()
{
    BackupKeeper keeper(*m_folder);
    Ears ears(keeper);
    lookAndHear(keeper);
    QVERIFY(Test::write(m_folder->dataFile(), ""));
    for (int i = 1; i <= 2; ++i) {
        lookAndHear(keeper);
        QCOMPARE(ears.broken.size(), i);
        QCOMPARE(ears.broken.last().first().toString(), u"it is empty"_s);
    }
    QCOMPARE(count(), 1);
    QVERIFY(Backups::list(*m_folder).first().kept);
    QCOMPARE(newest(), logbook(1));
    QVERIFY(ears.failed.isEmpty());
}

void BackupKeeperTest::aFileInTheMiddleOfASaveIsNotBroken()
{
    BackupKeeper keeper(*m_folder);
    Ears ears(keeper);
    lookAndHear(keeper);
    QVERIFY(Test::write(m_folder->dataFile(), logbook(2).left(50)));
    keeper.look();
    QTest::qSleep(20);
    QVERIFY(Test::write(m_folder->dataFile(), logbook(2)));
    QTRY_COMPARE(newest(), logbook(2));

    QVERIFY(Test::write(m_folder->dataFile(), ""));
    keeper.look();
    QTest::qSleep(60);
    keeper.look(); // starts the wait again
    QTest::qSleep(60);
    QVERIFY(Test::write(m_folder->dataFile(), logbook(3)));
    QTRY_COMPARE(newest(), logbook(3));
    QTest::qWait(150);
    QVERIFY(ears.broken.isEmpty());
    QVERIFY(!Backups::list(*m_folder).last().kept);
}

void BackupKeeperTest::marksSurviveTheThinning()
{
    TestClock clock("2026-11-21T12:00:00Z");
    BackupKeeper keeper(*m_folder, clock.function());
    QVERIFY(Test::write(m_folder->dataFile(), logbook(1, 1000)));
    keeper.lookAndWait();
    for (int i = 2; i < 6; ++i) {
        clock.addSecs(1);
        QVERIFY(Test::write(m_folder->dataFile(), logbook(i, i == 3 ? 300 : 1000))); // the third shrinks
        keeper.lookAndWait();
    }
    QVERIFY(Test::write(m_folder->dataFile(), "<Volt"));
    keeper.lookAndWait(); // marks the fifth
    clock.addSecs(1);
    QVERIFY(Test::write(m_folder->dataFile(), logbook(6, 1000)));
    keeper.lookAndWait();
    for (int i = 7; i < 60; ++i) { // a year, a change each week and one an hour before
        for (const int hours : {7 * 24 - 1, 1}) {
            clock.addSecs(hours * 3600);
            QVERIFY(Test::write(m_folder->dataFile(), logbook(100 * hours + i, 1000)));
            Backups::thin(*m_folder, clock.function()());
            keeper.lookAndWait();
        }
    }
    QByteArrayList kept;
    const QList<Copy> copies = Backups::list(*m_folder);
    for (const Copy &copy : copies) {
        if (copy.kept)
            kept.prepend(Test::contents(path(copy.name)));
    }
    QCOMPARE(kept, (QByteArrayList{logbook(2, 1000), logbook(5, 1000)}));
}

void BackupKeeperTest::copiesAreThinnedWhenOneIsMade()
{
    TestClock clock("2026-11-21T12:00:00Z");
    BackupKeeper keeper(*m_folder, clock.function());
    for (int i = 0; i < 24; ++i) {
        QVERIFY(Test::write(m_folder->dataFile(), logbook(i)));
        keeper.lookAndWait();
        clock.addSecs(120);
    }
    // One for each ten minutes, the first of the day, and all of the last ten minutes.
    const QList<Copy> copies = Backups::list(*m_folder);
    QStringList minutes;
    for (const Copy &copy : copies)
        minutes.prepend(copy.time.toString(u"mm"));
    QCOMPARE(minutes.join(u' '), u"00 08 18 28 36 38 40 42 44 46"_s);
    QCOMPARE(newest(), logbook(23));
}

void BackupKeeperTest::aClockThatJumpsThinsNothing()
{
    TestClock clock("2026-11-21T12:00:00Z");
    int number = 0;
    const auto change = [&](BackupKeeper &keeper) {
        clock.addSecs(7);
        QVERIFY(Test::write(m_folder->dataFile(), logbook(++number)));
        keeper.lookAndWait();
    };
    {
        BackupKeeper keeper(*m_folder, clock.function());
        for (int i = 0; i < 20; ++i)
            change(keeper);
    }
    const qsizetype before = count();
    QVERIFY(before >= 20);
    clock.set("2036-11-21T12:00:00Z");
    {
        BackupKeeper keeper(*m_folder, clock.function());
        for (int i = 0; i < 20; ++i)
            change(keeper);
        QCOMPARE(count(), before + 20);
        QCOMPARE(newest(), logbook(number));
    }
    clock.set("2026-11-21T13:00:00Z");
    BackupKeeper keeper(*m_folder, clock.function());
    for (int i = 0; i < 5; ++i) {
        change(keeper);
        QCOMPARE(newest(), logbook(number));
    }
    QCOMPARE(count(), before + 25);
}

void BackupKeeperTest::anEarlierClockThinsNothing()
{
    TestClock clock("2026-11-21T12:00:00Z");
    BackupKeeper keeper(*m_folder, clock.function());
    for (int i = 0; i < 10; ++i) {
        QVERIFY(Test::write(m_folder->dataFile(), logbook(i)));
        keeper.lookAndWait();
        clock.addSecs(i == 4 ? -48 * 3600 : 300);
    }
    QCOMPARE(count(), 10);
}

QTEST_GUILESS_MAIN(BackupKeeperTest)
#include "tst_backupkeeper.moc"
