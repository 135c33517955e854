// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/lockplace.h"
#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;

/** Several instances at the same moment. */
class FolderLockRaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ofManyThatStartAtOnceOneGetsTheFolder_data();
    void ofManyThatStartAtOnceOneGetsTheFolder();
    void aLockIsGivenBackBeforeTheNextIsTaken();
    void aFolderThatSomebodyKeepsLockedIsRefusedInTime();

private:
    LockPlace m_place;
};

void FolderLockRaceTest::ofManyThatStartAtOnceOneGetsTheFolder_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::addColumn<QByteArray>("word");
    QTest::newRow("no folder") << QByteArray("NONE") << QByteArray("take");
    QTest::newRow("a new folder") << QByteArray("NEW") << QByteArray("take");
    QTest::newRow("a lock that was left") << lockOf(deadProcess()) << QByteArray("take");
    QTest::newRow("an empty lock") << QByteArray() << QByteArray("take");
    QTest::newRow("another machine's lock") << QByteArray(Stranger) << QByteArray("break");
}

void FolderLockRaceTest::ofManyThatStartAtOnceOneGetsTheFolder()
{
    QFETCH(QByteArray, left);
    QFETCH(QByteArray, word);
    m_place.environment.insert(u"LOCKHOLDER_PAUSE"_s, u"20000"_s);
    for (int round = 0; round < 3; ++round) {
        const QString folder =
            m_place.path(QString::fromLatin1(QTest::currentDataTag()) + QString::number(round));
        const QString file = folder + u"/voltbok.lock"_s;
        QVERIFY(left == "NONE" || QDir().mkdir(folder));
        QVERIFY(left == "NONE" || left == "NEW" || Test::write(file, left));
        std::vector<std::unique_ptr<Instance>> instances;
        for (int i = 0; i < 10; ++i) {
            // Each is somebody else, so that nothing but the lock in the folder keeps them apart.
            const QString runtime = m_place.path(u"run%1"_s.arg(i));
            QDir().mkdir(runtime);
            QFile::setPermissions(runtime, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
            m_place.environment.insert(u"XDG_RUNTIME_DIR"_s, runtime);
            instances.push_back(m_place.start(folder));
            QVERIFY(instances.back()->ask("serve") ==
                    u"serving"_s); // all run and wait before the first starts
        }
        for (const auto &instance : instances)
            instance->order(word.constData());
        int taken = 0;
        for (const auto &instance : instances) {
            const QString answer = instance->answer();
            QVERIFY2(answer == u"taken"_s || answer.startsWith(u"here "_s), qPrintable(answer));
            taken += answer == u"taken"_s ? 1 : 0;
        }
        QCOMPARE(taken, 1);
    }
}

void FolderLockRaceTest::aLockIsGivenBackBeforeTheNextIsTaken()
{
    m_place.environment.insert(u"LOCKHOLDER_PAUSE"_s, u"200000"_s);
    const auto first = m_place.start(m_place.log());
    m_place.environment.remove(u"LOCKHOLDER_PAUSE"_s);
    const auto second = m_place.start(m_place.log());
    const auto third = m_place.start(m_place.log());
    QCOMPARE(first->ask("take"), u"taken"_s);
    QVERIFY(third->ask("take").startsWith(u"here "_s));
    first->beginToQuit();
    QTRY_COMPARE(second->ask("take"), u"taken"_s);
    QVERIFY(first->quit());
    QVERIFY(third->ask("take").startsWith(u"here "_s));
}

void FolderLockRaceTest::aFolderThatSomebodyKeepsLockedIsRefusedInTime()
{
    QVERIFY(QDir().mkpath(m_place.log()));
    const int folder = open(qPrintable(m_place.log()), O_RDONLY | O_CLOEXEC);
    QCOMPARE(flock(folder, LOCK_EX), 0);
    QElapsedTimer time;
    time.start();
    const auto first = m_place.start(m_place.log());
    const QString answer = first->ask("take");
    QVERIFY2(time.elapsed() < 4000, qPrintable(QString::number(time.elapsed())));
    QVERIFY2(answer.startsWith(u"refused "_s) && answer.contains(m_place.log()), qPrintable(answer));
    close(folder);
    QCOMPARE(first->ask("take"), u"taken"_s);
}

QTEST_GUILESS_MAIN(FolderLockRaceTest)
#include "tst_folderlock_race.moc"
