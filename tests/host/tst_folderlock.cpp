// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/lockplace.h"

#include "host/safety/folderlock.h"
#include "host/safety/runtimefolder.h"
#include "tests/support/files.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QSysInfo>
#include <QTest>

#include <sys/stat.h>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class FolderLockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theFolderIsMadeWithItsParentsAndLockedInside();
    void theEndLeavesNothing();
    void aSecondInstanceIsToldAtOnceThatItIsOpenHere();
    void aFolderIsOneInEachSpelling();
    void foldersWhoseDataFileIsOneAreOne_data();
    void foldersWhoseDataFileIsOneAreOne();
    void theSecondLockLiesInTheUsersOwnPlace_data();
    void theSecondLockLiesInTheUsersOwnPlace();
    void whatADeadInstanceLeftIsTakenOver_data();
    void whatADeadInstanceLeftIsTakenOver();
    void theLockOfAKilledInstanceIsTakenOver();
    void whatIsNoRegularFileIsNeverOpened_data();
    void whatIsNoRegularFileIsNeverOpened();
    void anotherMachinesLockIsTakenOverOnlyWhenTold_data();
    void anotherMachinesLockIsTakenOverOnlyWhenTold();
    void whatTheUserWasNotToldOfIsNotTakenOver();
    void aProgramThatCertainlyRunsIsNotTakenOver();
    void anInstanceThatWasTakenOverLeavesTheNewLock();
    void aTextFromALockIsPlain();

private:
    std::unique_ptr<Instance> start() const { return m_place->start(m_place->log()); }
    QString lock() const { return m_place->log() + u"/voltbok.lock"_s; }
    QString path(const QString &name) const { return m_place->path(name); }

    std::unique_ptr<LockPlace> m_place;
};

void FolderLockTest::init()
{
    m_place = std::make_unique<LockPlace>();
}

void FolderLockTest::theFolderIsMadeWithItsParentsAndLockedInside()
{
    const QString folder = path(u"a/b/c"_s);
    const auto first = m_place->start(folder);
    QCOMPARE(first->ask("take"), u"taken"_s);
    QVERIFY(Test::contents(folder + u"/voltbok.lock"_s).startsWith(QByteArray::number(first->process())));
    m_place->environment.insert(u"XDG_RUNTIME_DIR"_s, path(u"cache"_s)); // as on another machine
    QVERIFY(m_place->start(folder)->ask("take").startsWith(u"here "_s));
}

void FolderLockTest::theEndLeavesNothing()
{
    const auto first = start();
    QCOMPARE(first->ask("take"), u"taken"_s);
    QCOMPARE(m_place->files(u"run/voltbok"_s).size(), 1);
    QVERIFY(first->quit());
    QCOMPARE(m_place->files(u"log"_s), QStringList());
    QCOMPARE(m_place->files(u"run/voltbok"_s), QStringList());
    QCOMPARE(first->errors(), QByteArray());
}

void FolderLockTest::aSecondInstanceIsToldAtOnceThatItIsOpenHere()
{
    const auto first = start();
    QCOMPARE(first->ask("take"), u"taken"_s);
    QFile file(lock()); // age makes nothing stale
    QVERIFY(file.open(QFile::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-3), QFile::FileModificationTime));
    file.close();

    QCOMPARE(first->ask("take"), u"taken"_s); // it is, and stays so
    const auto second = start();
    QElapsedTimer time;
    time.start();
    const QString answer = second->ask("take");
    QVERIFY2(time.elapsed() < 1000, qPrintable(QString::number(time.elapsed())));
    QVERIFY2(answer.startsWith(u"here The logbook in “%1” is open already"_s.arg(m_place->log())),
             qPrintable(answer));
    QVERIFY2(answer.contains(u"process %1"_s.arg(first->process())), qPrintable(answer));
    QVERIFY(second->ask("break").startsWith(u"here "_s));
    QVERIFY(first->quit());
    QCOMPARE(second->ask("take"), u"taken"_s);
}

void FolderLockTest::aFolderIsOneInEachSpelling()
{
    QVERIFY(QDir().mkdir(path(u"parent"_s)));
    QVERIFY(QFile::link(path(u"parent"_s), path(u"link"_s)));
    const auto first = m_place->start(path(u"link/log"_s));
    QCOMPARE(first->ask("take"), u"taken"_s);
    QVERIFY(Test::write(path(u"parent/log/voltbok.xml"_s), "<Voltbok/>"));
    QVERIFY(QFile::remove(path(u"parent/log/voltbok.lock"_s))); // the second lock alone must tell, too
    for (const QString &spelling : {u"link/log"_s, u"parent/log"_s, u"parent/../link/log/"_s})
        QVERIFY2(m_place->start(path(spelling))->ask("take").startsWith(u"here "_s), qPrintable(spelling));
}

void FolderLockTest::foldersWhoseDataFileIsOneAreOne_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("a link to the file") << u"log/voltbok.xml"_s << true;
    QTest::newRow("a link to a link") << u"relay"_s << true;
    QTest::newRow("the file is not written yet") << u"log/voltbok.xml"_s << false;
    QTest::newRow("and the link leads to a link") << u"relay"_s << false;
}

void FolderLockTest::foldersWhoseDataFileIsOneAreOne()
{
    QFETCH(QString, target);
    QFETCH(bool, isThere);
    QVERIFY(QDir().mkdir(path(u"log"_s)) && QDir().mkdir(path(u"other"_s)) && QDir().mkdir(path(u"none"_s)));
    QVERIFY(QFile::link(u"log/voltbok.xml"_s, path(u"relay"_s)));
    QVERIFY(QFile::link(path(target), path(u"other/voltbok.xml"_s)));
    QVERIFY(!isThere || Test::write(path(u"log/voltbok.xml"_s), "<Voltbok/>"));
    const auto first = start();
    QCOMPARE(first->ask("take"), u"taken"_s);
    const auto second = m_place->start(path(u"other"_s));
    const QString answer = second->ask("take");
    QVERIFY2(answer.startsWith(u"here "_s) && answer.contains(path(u"log/voltbok.xml"_s)),
             qPrintable(answer));
    QVERIFY2(!QFile::exists(path(u"other/voltbok.lock"_s)), "the lock that was taken first is given back");
    QCOMPARE(m_place->start(path(u"none"_s))->ask("take"), u"taken"_s);
}

void FolderLockTest::theSecondLockLiesInTheUsersOwnPlace_data()
{
    QTest::addColumn<QString>("runtime");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the session's") << u"run"_s << u"run/voltbok"_s;
    QTest::newRow("not set") << QString() << u"cache/voltbok"_s;
    QTest::newRow("missing") << u"missing"_s << u"cache/voltbok"_s;
    QTest::newRow("no folder") << u"file"_s << u"cache/voltbok"_s;
    QTest::newRow("open to everybody") << u"open"_s << u"cache/voltbok"_s;
}

void FolderLockTest::theSecondLockLiesInTheUsersOwnPlace()
{
    QFETCH(QString, runtime);
    QFETCH(QString, expected);
    QVERIFY(Test::write(path(u"file"_s), "x") && QDir().mkdir(path(u"open"_s)));
    QCOMPARE(chmod(qPrintable(path(u"open"_s)), 01777), 0);
    m_place->environment.insert(u"XDG_RUNTIME_DIR"_s, path(runtime));
    if (runtime.isEmpty())
        m_place->environment.remove(u"XDG_RUNTIME_DIR"_s);
    const auto first = start();
    QCOMPARE(first->ask("take"), u"taken"_s);
    QCOMPARE(first->errors(), QByteArray());
    QCOMPARE(m_place->files(expected).size(), 1);
    QCOMPARE(m_place->files(u"tmp"_s), QStringList());
    QCOMPARE(m_place->files(u"open"_s), QStringList());
    struct stat folder = {};
    QCOMPARE(stat(qPrintable(path(expected)), &folder), 0);
    QCOMPARE(folder.st_mode & 0777U, 0700U);
}

void FolderLockTest::whatADeadInstanceLeftIsTakenOver_data()
{
    QTest::addColumn<QByteArray>("left");
    QTest::newRow("its process is gone") << lockOf(deadProcess());
    QTest::newRow("the number is another program's") << lockOf("1");
    QTest::newRow("the number is this program's, on another folder") << QByteArray("LIVE");
    QTest::newRow("the machine was started again") << lockOf("1", "lockholder", "before");
    QTest::newRow("without identifiers")
        << deadProcess() + "\nlockholder\n" + QSysInfo::machineHostName().toUtf8() + '\n';
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not a word") << QByteArray("\xff\x00rubbish\n\n\n", 12);
    QTest::newRow("endless") << QByteArray(1 << 20, '\n');
}

void FolderLockTest::whatADeadInstanceLeftIsTakenOver()
{
    QFETCH(QByteArray, left);
    const auto other = m_place->start(path(u"other"_s));
    QCOMPARE(other->ask("take"), u"taken"_s);
    if (left == "LIVE")
        left = lockOf(QByteArray::number(other->process()));
    QVERIFY(QDir().mkdir(m_place->log()));
    const QString second = path(u"run/voltbok/"_s) + runtimeName(StorageFolder(m_place->log())) + u".lock"_s;
    QVERIFY(Test::write(lock(), left) && Test::write(second, left));
    const auto first = start();
    QCOMPARE(first->ask("take"), u"taken"_s);
    for (const QString &taken : {lock(), second})
        QVERIFY(Test::contents(taken).startsWith(QByteArray::number(first->process())));
    QCOMPARE(first->errors(), QByteArray());
}

void FolderLockTest::theLockOfAKilledInstanceIsTakenOver()
{
    const auto first = start();
    QCOMPARE(first->ask("take"), u"taken"_s);
    first->kill();
    QVERIFY(QFile::exists(lock()));
    QCOMPARE(start()->ask("take"), u"taken"_s);
}

void FolderLockTest::whatIsNoRegularFileIsNeverOpened_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("inFolder");
    for (const char *kind : {"pipe", "folder", "link to a file", "dangling link", "link to a pipe"}) {
        QTest::addRow("%s in the folder", kind) << QString::fromLatin1(kind) << true;
        QTest::addRow("%s in the run-time folder", kind) << QString::fromLatin1(kind) << false;
    }
}

void FolderLockTest::whatIsNoRegularFileIsNeverOpened()
{
    QFETCH(QString, kind);
    QFETCH(bool, inFolder);
    const QString inTheWay = inFolder ? lock() : m_place->runtimeLock(m_place->log());
    QVERIFY(QDir().mkpath(m_place->log()) && !inTheWay.isEmpty());
    QVERIFY(Test::write(path(u"file"_s), lockOf(deadProcess())));
    QCOMPARE(mkfifo(qPrintable(path(u"pipe"_s)), 0666), 0);
    if (kind == "pipe"_L1)
        QVERIFY(QFile::rename(path(u"pipe"_s), inTheWay));
    else if (kind == "folder"_L1)
        QVERIFY(QDir().mkdir(inTheWay));
    else
        QVERIFY(QFile::link(path(kind == "link to a file"_L1   ? u"file"_s
                                 : kind == "link to a pipe"_L1 ? u"pipe"_s
                                                               : u"nothing"_s),
                            inTheWay));
    const auto first = start();
    for (const char *word : {"take", "break"}) {
        const QString answer = first->ask(word);
        QVERIFY2(answer.startsWith(u"refused "_s) && answer.contains(inTheWay), qPrintable(answer));
        QVERIFY2(answer.contains(u"Remove or rename it"_s), qPrintable(answer));
    }
    const QFileInfo left(inTheWay);
    QVERIFY(left.exists() || left.isSymLink());
    QVERIFY(!QFile::exists(path(u"nothing"_s)));
}

void FolderLockTest::anotherMachinesLockIsTakenOverOnlyWhenTold_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("machine");
    QTest::newRow("another name") << QByteArray(Stranger) << u"laptop"_s;
    QTest::newRow("no identifiers") << QByteArray("123\nvoltbok\nlaptop\n") << u"laptop"_s;
    const QString name = QSysInfo::machineHostName();
    QTest::newRow("the same name") << "123\nvoltbok\n" + name.toUtf8() + "\n0001\nboot\n" << name;
}

void FolderLockTest::anotherMachinesLockIsTakenOverOnlyWhenTold()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, machine);
    const QString second = m_place->runtimeLock(m_place->log());
    for (const QString &place : {lock(), second}) {
        QVERIFY(Test::write(place, content));
        QFile file(place);
        QVERIFY(file.open(QFile::ReadWrite)); // however old it is
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(-30), QFile::FileModificationTime));
        file.close();
        const auto first = start();
        const QString answer = first->ask("take");
        QVERIFY2(answer.startsWith(u"takeover The logbook in “"_s + m_place->log()), qPrintable(answer));
        for (const QString &told : {u"“%1”"_s.arg(machine), u"process 123"_s, place})
            QVERIFY2(answer.contains(told), qPrintable(answer));
        QCOMPARE(Test::contents(place), content);
        QCOMPARE(first->ask("break"), u"taken"_s);
        QVERIFY(Test::contents(place).startsWith(QByteArray::number(first->process())));
        QVERIFY(start()->ask("take").startsWith(u"here "_s));
    }
}

void FolderLockTest::whatTheUserWasNotToldOfIsNotTakenOver()
{
    QVERIFY(QDir().mkdir(m_place->log()) && Test::write(lock(), Stranger));
    const auto first = start();
    QVERIFY(first->ask("take").startsWith(u"takeover "_s));
    QVERIFY(Test::write(lock(), QByteArray(Stranger).replace("laptop", "tablet")));
    const QString answer = first->ask("break");
    QVERIFY2(answer.startsWith(u"takeover "_s) && answer.contains(u"tablet"_s), qPrintable(answer));
    QCOMPARE(first->ask("break"), u"taken"_s);
}

void FolderLockTest::aProgramThatCertainlyRunsIsNotTakenOver()
{
    const auto first = start();
    QCOMPARE(first->ask("take"), u"taken"_s);
    QVERIFY(Test::write(lock(), Stranger)); // as a file server shows it that knows who holds it
    const auto second = start();
    for (const char *word : {"take", "break"}) {
        const QString answer = second->ask(word);
        QVERIFY2(answer.startsWith(u"refused "_s) && answer.contains(u"laptop"_s), qPrintable(answer));
    }
}

void FolderLockTest::anInstanceThatWasTakenOverLeavesTheNewLock()
{
    const auto first = start();
    QCOMPARE(first->ask("take"), u"taken"_s);
    QVERIFY(QFile::remove(lock()) && Test::write(lock(), Stranger));
    QVERIFY(first->quit());
    QCOMPARE(Test::contents(lock()), QByteArray(Stranger));
    QCOMPARE(first->errors(), QByteArray());
}

void FolderLockTest::aTextFromALockIsPlain()
{
    QVERIFY(QDir().mkdir(m_place->log()));
    QVERIFY(Test::write(lock(), QByteArray("123\n\x1b]0;owned\x07voltbok\nlap\xe2\x80\xaetop") +
                                    QByteArray(1000, 'x') + "\n\n\n"));
    const QString answer = start()->ask("take");
    QVERIFY2(answer.startsWith(u"takeover "_s) && answer.contains(u"]0;ownedvoltbok"_s), qPrintable(answer));
    QVERIFY(answer.contains(u"“laptopxxx"_s) && !answer.contains(QString(100, u'x')));
    for (const QChar command : {QChar(0x1b), QChar(0x07), QChar(0x202e)})
        QVERIFY(!answer.contains(command));
}

QTEST_MAIN(FolderLockTest)
#include "tst_folderlock.moc"
