// SPDX-License-Identifier: GPL-3.0-or-later
// What the keeper of the copies does and says when the disk fails it.
#include "tests/host/support/keeperears.h"
#include "tests/host/support/logbookfiles.h"
#include "tests/host/support/lyingdisk.h"
#include "tests/support/brokendisk.h"
#include "tests/support/files.h"

#include <QTemporaryDir>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class CopyFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Mount::allowed(); } // before there are threads
    void init();
    void cleanup();
    void whatIsNoFileIsNeverOpened_data();
    void whatIsNoFileIsNeverOpened();
    void aCopyThatCannotBeKeptSaysWhy_data();
    void aCopyThatCannotBeKeptSaysWhy();
    void aFullDiskIsToldOnceAndRecovers();
    void anotherReasonIsToldAnew();
    void aFailureIsTriedAgainLessAndLessOften();

private:
    QString path(const QString &name) const { return m_folder->backups().filePath(name); }
    QByteArray newest() const { return newestCopy(*m_folder); }

    std::unique_ptr<QTemporaryDir> m_home;
    std::optional<StorageFolder> m_folder;
};

void CopyFailuresTest::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_folder.emplace(m_home->path());
    QVERIFY(Test::write(m_folder->dataFile(), logbook(1)));
    // Another user may write, too: what is refused is refused by the test.
    QCOMPARE(chmod(QFile::encodeName(m_home->path()), 0777), 0);
    QCOMPARE(chmod(QFile::encodeName(m_folder->dataFile()), 0666), 0);
}

void CopyFailuresTest::cleanup()
{
    LyingDisk::corrupts = false;
    LyingDisk::syncError = 0;
}

void CopyFailuresTest::whatIsNoFileIsNeverOpened_data()
{
    QTest::addColumn<QString>("target"); // of a link in the data file's place; else a pipe
    QTest::newRow("a pipe") << QString();
    QTest::newRow("a device") << u"/dev/zero"_s;
    QTest::newRow("a full device") << u"/dev/full"_s;
    QTest::newRow("a folder") << u"/tmp"_s;
    QTest::newRow("nothing") << u"/nowhere"_s;
    QTest::newRow("a file that may not be read") << u"/unreadable"_s;
}

void CopyFailuresTest::whatIsNoFileIsNeverOpened()
{
    QFETCH(QString, target);
    BackupKeeper keeper(*m_folder);
    Ears ears(keeper);
    lookAndHear(keeper);
    std::unique_ptr<Refusal> refusal;
    if (target == u"/unreadable") {
        refusal = std::make_unique<Refusal>(m_folder->dataFile(), 0);
    } else {
        QVERIFY(QFile::remove(m_folder->dataFile()));
        if (target.isEmpty())
            QCOMPARE(mkfifo(QFile::encodeName(m_folder->dataFile()), 0600), 0);
        else
            QVERIFY(QFile::link(target, m_folder->dataFile()));
    }
    QVERIFY(symlink("/dev/zero", QFile::encodeName(path(u"voltbok-00000009-20261121-120000-000Z.xml"_s))) ==
                0 ||
            refusal);
    lookAndHear(keeper);
    QCOMPARE(ears.broken.size(), 1);
    QCOMPARE(Backups::list(*m_folder).size(), 1);
}

void CopyFailuresTest::aCopyThatCannotBeKeptSaysWhy_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("advice");
    const auto row = [](const char *fault, const char *reason, const char *advice) {
        QTest::newRow(fault) << QString::fromLatin1(fault) << QString::fromLatin1(reason)
                             << QString::fromLatin1(advice);
    };
    const char *away = "Rename or remove it; the program tries again by itself.";
    const char *rights = "See that the program can write there; it tries again by itself.";
    row("file", "it is not a folder", away);
    row("pipe", "it is not a folder", away);
    row("dangling", "it is a link that leads nowhere", away);
    row("loop", "it is a link that leads nowhere", away);
    row("read-only folder", "permission denied", rights);
    row("closed folder", "permission denied", rights);
    row("folder that cannot be made", "permission denied", rights);
    row("lying disk", "it was written, but reads differently", rights);
    row("full disk", "no space left on device", "Free some space; the program tries again by itself.");
}

void CopyFailuresTest::aCopyThatCannotBeKeptSaysWhy()
{
    QFETCH(QString, fault);
    QFETCH(QString, reason);
    QFETCH(QString, advice);
    const QString backups = m_folder->backups().path();
    std::unique_ptr<Refusal> refusal;
    if (fault == u"file")
        QVERIFY(Test::write(backups, "mine"));
    else if (fault == u"pipe")
        QCOMPARE(mkfifo(QFile::encodeName(backups), 0600), 0);
    else if (fault == u"dangling")
        QVERIFY(QFile::link(u"/nowhere"_s, backups));
    else if (fault == u"loop")
        QVERIFY(QFile::link(backups, backups));
    else if (fault == u"folder that cannot be made")
        refusal = std::make_unique<Refusal>(m_home->path(), 0555);
    else
        QVERIFY(QDir().mkdir(backups));
    if (fault.endsWith(u"y folder") || fault.startsWith(u"closed"))
        refusal = std::make_unique<Refusal>(backups, fault.startsWith(u"closed") ? 0 : 0555);
    LyingDisk::corrupts = fault == u"lying disk";
    LyingDisk::syncError = fault == u"full disk" ? ENOSPC : 0;

    BackupKeeper keeper(*m_folder);
    Ears ears(keeper);
    for (int i = 0; i < 3; ++i)
        lookAndHear(keeper);
    QCOMPARE(ears.failed.size(), 1);
    QCOMPARE(
        ears.problem(),
        QString::fromUtf8("No copy of the logbook can be kept in “%1”: %2. %3").arg(backups, reason, advice));
    QVERIFY(ears.recovered.isEmpty());
}

void CopyFailuresTest::aFullDiskIsToldOnceAndRecovers()
{
    // The disk of the copies is full, not the logbook's own.
    QVERIFY(QDir().mkdir(m_folder->backups().path()));
    std::unique_ptr<Mount> disk;
    if (Mount::allowed()) {
        disk = std::make_unique<Mount>(m_folder->backups().path());
        QCOMPARE(
            mount("none", QFile::encodeName(m_folder->backups().path()), nullptr, MS_REMOUNT, "size=64k"), 0);
    }
    BackupKeeper keeper(*m_folder);
    Ears ears(keeper);
    LyingDisk::syncError = disk ? 0 : ENOSPC;
    for (int i = 0; i < 3; ++i) {
        QVERIFY(Test::write(m_folder->dataFile(), logbook(i, 70000)));
        lookAndHear(keeper);
    }
    QCOMPARE(ears.failed.size(), 1);
    QVERIFY2(ears.problem().contains(u": no space left on device. Free some space;"),
             qPrintable(ears.problem()));
    LyingDisk::syncError = 0;
    QVERIFY(Test::write(m_folder->dataFile(), logbook(9)));
    lookAndHear(keeper);
    QCOMPARE(newest(), logbook(9));
    QCOMPARE(ears.recovered.size(), 1);
    lookAndHear(keeper);
    QCOMPARE(ears.recovered.size(), 1);
    QCOMPARE(ears.failed.size(), 1);
    LyingDisk::syncError = ENOSPC; // the same again is a new problem
    QVERIFY(Test::write(m_folder->dataFile(), logbook(10)));
    lookAndHear(keeper);
    QCOMPARE(ears.failed.size(), 2);
}

void CopyFailuresTest::anotherReasonIsToldAnew()
{
    QVERIFY(Test::write(m_folder->backups().path(), "mine"));
    BackupKeeper keeper(*m_folder);
    Ears ears(keeper);
    lookAndHear(keeper);
    QVERIFY(QFile::remove(m_folder->backups().path()));
    LyingDisk::corrupts = true;
    lookAndHear(keeper);
    lookAndHear(keeper);
    QCOMPARE(ears.failed.size(), 2);
    QVERIFY(ears.problem().contains(u"reads differently"));
    QVERIFY(ears.recovered.isEmpty());
}

void CopyFailuresTest::aFailureIsTriedAgainLessAndLessOften()
{
    using namespace std::chrono_literals;
    QVERIFY(Test::write(m_folder->backups().path(), "mine"));
    BackupKeeper keeper(*m_folder);
    Ears ears(keeper);
    lookAndHear(keeper);
    QTimer &timer = keeper.m_worker->m_retry;
    inThread(keeper, [&] {
        for (const auto expected : {30000ms, 60000ms, 120000ms, 240000ms, 480000ms, 600000ms, 600000ms}) {
            QVERIFY(timer.isSingleShot() && timer.isActive());
            QCOMPARE(timer.intervalAsDuration(), expected);
            QTimerEvent passed(timer.timerId());
            QCoreApplication::sendEvent(&timer, &passed);
        }
    });
    QVERIFY(QFile::remove(m_folder->backups().path()));
    inThread(keeper, [&] {
        QTimerEvent passed(timer.timerId());
        QCoreApplication::sendEvent(&timer, &passed);
        QVERIFY(!timer.isActive());
        QCOMPARE(timer.intervalAsDuration(), 30000ms);
    });
    QCoreApplication::processEvents();
    QCOMPARE(newest(), logbook(1));
    QCOMPARE(ears.failed.size(), 1);
    QCOMPARE(ears.recovered.size(), 1);
}

QTEST_GUILESS_MAIN(CopyFailuresTest)
#include "tst_copyfailures.moc"
