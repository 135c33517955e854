// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/storagefolder.h"

#include "tests/host/support/logbookfiles.h"
#include "tests/support/files.h"

#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class StorageFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<QTemporaryDir>(); }
    void everyNameIsInTheFolder();
    void aPathIsMadeAbsoluteAndClean();
    void theDemoLiesBesideTheUsersOwn();
    void aLinkedLogbookIsReplacedWhereItLies();
    void aNameAsideIsNeverTaken();
    void aFolderThatCannotHoldALogbookSaysWhy();
    void nothingIsMade();

private:
    std::unique_ptr<QTemporaryDir> m_home;
};

void StorageFolderTest::everyNameIsInTheFolder()
{
    const StorageFolder folder(m_home->path());
    QCOMPARE(folder.path(), m_home->path());
    QCOMPARE(folder.dataFile(), m_home->filePath(u"voltbok.xml"_s));
    QCOMPARE(folder.dataFileTarget(), folder.dataFile());
    QCOMPARE(folder.backups().path(), m_home->filePath(u"backups"_s));
    QCOMPARE(folder.lock(), m_home->filePath(u"voltbok.lock"_s));
    QCOMPARE(folder.replacement(), m_home->filePath(u"voltbok-new.xml"_s));
}

void StorageFolderTest::aPathIsMadeAbsoluteAndClean()
{
    const QString here = QDir::currentPath();
    QCOMPARE(StorageFolder(u"log"_s).path(), QDir::cleanPath(here + u"/log"_s));
    QCOMPARE(StorageFolder(u"/a//b/../c/"_s).path(), u"/a/c"_s);
    QCOMPARE(StorageFolder(u"/"_s).dataFile(), u"/voltbok.xml"_s);
}

void StorageFolderTest::theDemoLiesBesideTheUsersOwn()
{
    QCOMPARE(StorageFolder::ofUser().path(),
             QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    QCOMPARE(StorageFolder::ofDemo().path(), StorageFolder::ofUser().path() + u"-demo"_s);
}

void StorageFolderTest::aLinkedLogbookIsReplacedWhereItLies()
{
    const StorageFolder folder(m_home->filePath(u"log"_s));
    QVERIFY(QDir(m_home->path()).mkdir(u"log"_s) && QDir(m_home->path()).mkdir(u"synchronised"_s));
    const QString target = QFileInfo(m_home->path()).canonicalFilePath() + u"/synchronised/mine.xml"_s;
    QVERIFY(Test::write(target, logbook(1)));
    QVERIFY(QFile::link(target, folder.dataFile()));
    QCOMPARE(folder.dataFileTarget(), target);
    QCOMPARE(folder.replacement(), QFileInfo(target).dir().filePath(u"voltbok-new.xml"_s));
    const QDateTime now(QDate(2026, 11, 21), QTime(12, 0), Qt::UTC);
    QCOMPARE(QFileInfo(folder.aside(now)).path(), QFileInfo(target).path());

    QVERIFY(QFile::remove(target)); // a link that leads nowhere is itself the place
    QCOMPARE(folder.dataFileTarget(), folder.dataFile());
}

void StorageFolderTest::aNameAsideIsNeverTaken()
{
    const Zone there("Asia/Kathmandu");
    const StorageFolder folder(m_home->path());
    const QDateTime now(QDate(2026, 11, 21), QTime(12, 0));
    const QString first = m_home->filePath(u"voltbok-broken-20261121-061500-000Z.xml"_s);
    QCOMPARE(folder.aside(now), first);
    QVERIFY(Test::write(first, "mine"));
    const QString second = m_home->filePath(u"voltbok-broken-20261121-061500-001Z.xml"_s);
    QCOMPARE(folder.aside(now), second);
    QVERIFY(QFile::link(u"/nowhere"_s, second));
    QCOMPARE(folder.aside(now), m_home->filePath(u"voltbok-broken-20261121-061500-002Z.xml"_s));
}

void StorageFolderTest::aFolderThatCannotHoldALogbookSaysWhy()
{
    const auto problem = [&](const QString &name) { return StorageFolder(m_home->filePath(name)).problem(); };
    QCOMPARE(problem(QString()), QString());
    QCOMPARE(problem(u"new/folder"_s), QString());
    QVERIFY(Test::write(m_home->filePath(u"file"_s), "mine"));
    QVERIFY(problem(u"file"_s).contains(u"is not a directory. Choose another folder."));
    QVERIFY(problem(u"file/folder"_s).contains(m_home->filePath(u"file"_s) + u"” is not a directory"_s));
    QVERIFY(QFile::link(u"/nowhere"_s, m_home->filePath(u"dangling"_s)));
    QVERIFY(problem(u"dangling/folder"_s).contains(u"is not a directory"));
    QVERIFY(QDir(m_home->path()).mkdir(u"100%2"_s));
    QVERIFY(problem(u"file/100%2"_s)
                .startsWith(u"A logbook cannot be kept in “"_s + m_home->filePath(u"file/100%2"_s)));

    for (const mode_t mode : {0555, 0, 0444}) {
        const Refusal refusal(m_home->path(), mode);
        QVERIFY(refusal.works());
        QVERIFY2(problem(u"."_s).contains(u"there is no permission"), qPrintable(problem(u"."_s)));
        QVERIFY2(!problem(u"new"_s).isEmpty(), qPrintable(QString::number(mode, 8)));
    }
}

void StorageFolderTest::nothingIsMade()
{
    const StorageFolder folder(m_home->filePath(u"new"_s));
    QVERIFY(folder.problem().isEmpty() && !folder.aside(QDateTime::currentDateTime()).isEmpty());
    QVERIFY(QDir(m_home->path()).isEmpty());
}

QTEST_GUILESS_MAIN(StorageFolderTest)
#include "tst_storagefolder.moc"
