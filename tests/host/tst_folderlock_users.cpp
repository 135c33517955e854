// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/lockplace.h"
#include "tests/support/files.h"

#include <QSysInfo>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr uid_t Nobody = 65534;
}

/** What somebody else put into a shared folder. Runs as root, who can become somebody else. */
class FolderLockUsersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aFriendsAbandonedLockIsTakenOver_data();
    void aFriendsAbandonedLockIsTakenOver();
    void whatCannotBeRemovedIsNamed();
    void aFriendWhoHasItOpenIsNamed();
    void aLockThatCannotBeReadIsTakenOverOnlyWhenTold();
    void aFolderOfLocksThatEverybodyMayWriteIsNotUsed();

private:
    QString lock() const { return m_place->log() + u"/voltbok.lock"_s; }
    bool leave(const QByteArray &content, mode_t mode) const
    {
        return Test::write(lock(), content) && chmod(qPrintable(lock()), mode) == 0;
    }
    std::unique_ptr<Instance> startFriend()
    {
        m_place->environment.insert(u"LOCKHOLDER_USER"_s, QString::number(Nobody));
        m_place->environment.insert(u"XDG_RUNTIME_DIR"_s, m_place->path(u"friend"_s));
        return m_place->start(m_place->log());
    }

    std::unique_ptr<LockPlace> m_place;
};

void FolderLockUsersTest::init()
{
    m_place = std::make_unique<LockPlace>();
    QVERIFY(QDir().mkdir(m_place->log()) && QDir().mkdir(m_place->path(u"friend"_s)));
    QCOMPARE(chmod(qPrintable(m_place->path(u"."_s)), 0755), 0);
    QCOMPARE(chmod(qPrintable(m_place->log()), 0777), 0);
    QCOMPARE(chmod(qPrintable(m_place->path(u"friend"_s)), 0700), 0);
    QCOMPARE(chown(qPrintable(m_place->path(u"friend"_s)), Nobody, Nobody), 0);
    QCOMPARE(chown(qPrintable(m_place->path(u"cache"_s)), Nobody, Nobody), 0);
}

void FolderLockUsersTest::aFriendsAbandonedLockIsTakenOver_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray machine = QSysInfo::machineHostName().toUtf8() + '\n' + QSysInfo::machineUniqueId() +
                               '\n' + QSysInfo::bootUniqueId() + '\n';
    QTest::newRow("a process that is gone") << "999999\nvoltbok\n" + machine;
    QTest::newRow("process 1") << "1\nvoltbok\n" + machine;
    QTest::newRow("empty") << QByteArray();
}

void FolderLockUsersTest::aFriendsAbandonedLockIsTakenOver()
{
    QFETCH(QByteArray, content);
    for (const mode_t mode : {0644U, 0666U}) {
        QVERIFY(leave(content, mode));
        const auto instance = startFriend();
        QCOMPARE(instance->ask("take"), u"taken"_s);
    }
}

void FolderLockUsersTest::whatCannotBeRemovedIsNamed()
{
    QCOMPARE(chmod(qPrintable(m_place->log()), 01777), 0);
    QVERIFY(leave(QByteArray(), 0644));
    const QString answer = startFriend()->ask("take");
    QVERIFY2(answer.startsWith(u"refused "_s) && answer.contains(lock()), qPrintable(answer));
    QVERIFY2(answer.contains(u"Operation not permitted"_s), qPrintable(answer));
}

void FolderLockUsersTest::aFriendWhoHasItOpenIsNamed()
{
    const auto first = m_place->start(m_place->log());
    QCOMPARE(first->ask("take"), u"taken"_s);
    const auto second = startFriend();
    for (const char *word : {"take", "break"}) {
        const QString answer = second->ask(word);
        QVERIFY2(answer.startsWith(u"refused "_s) && answer.contains(u"“root”"_s), qPrintable(answer));
        QVERIFY2(answer.contains(u"process %1"_s.arg(first->process())), qPrintable(answer));
    }
}

void FolderLockUsersTest::aLockThatCannotBeReadIsTakenOverOnlyWhenTold()
{
    QVERIFY(leave("1\nvoltbok\nhere\n", 0600));
    const auto second = startFriend();
    const QString answer = second->ask("take");
    QVERIFY2(answer.startsWith(u"takeover "_s) && answer.contains(u"“root”"_s), qPrintable(answer));
    QVERIFY2(answer.contains(lock()), qPrintable(answer));
    QCOMPARE(second->ask("break"), u"taken"_s);
}

void FolderLockUsersTest::aFolderOfLocksThatEverybodyMayWriteIsNotUsed()
{
    const auto instance = startFriend();
    m_place->environment.insert(u"XDG_RUNTIME_DIR"_s, m_place->path(u"run"_s)); // root's
    const auto another = m_place->start(m_place->path(u"log/inner"_s));
    QCOMPARE(another->ask("take"), u"taken"_s);
    QCOMPARE(m_place->files(u"run"_s), QStringList());
    QCOMPARE(m_place->files(u"cache/voltbok"_s).size(), 1);
}

QTEST_MAIN(FolderLockUsersTest)
#include "tst_folderlock_users.moc"
