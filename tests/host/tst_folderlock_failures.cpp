// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/lockplace.h"
#include "tests/support/brokendisk.h"

#include "host/safety/folderlock.h"
#include "tests/support/files.h"

#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

/** Each refusal tells the reason, as the system words it, and the file. */
class FolderLockFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aFullDiskIsNamed();
    void aFolderThatMayNotBeWrittenIsNamed();
    void aFolderThatCannotBeMadeIsNamed_data();
    void aFolderThatCannotBeMadeIsNamed();
    void aRuntimeFolderThatCannotBeMadeIsNamed();

private:
    QString problem(const QString &folder) const
    {
        FolderLock lock;
        return lock.take(StorageFolder(folder)).problem;
    }

    std::unique_ptr<LockPlace> m_place;
};

void FolderLockFailuresTest::init()
{
    m_place = std::make_unique<LockPlace>();
    QVERIFY(QDir().mkdir(m_place->log()));
    qputenv("XDG_RUNTIME_DIR", m_place->path(u"run"_s).toLocal8Bit());
    qputenv("XDG_CACHE_HOME", m_place->path(u"cache"_s).toLocal8Bit());
}

void FolderLockFailuresTest::aFullDiskIsNamed()
{
    QString found;
    {
        const FullDisk disk(0);
        QVERIFY(disk.works());
        found = problem(m_place->log());
    }
    QVERIFY2(found.contains(m_place->log() + u"/voltbok.lock"_s), qPrintable(found));
    QVERIFY2(found.contains(u"(File too large)"_s), qPrintable(found));
    QCOMPARE(m_place->files(u"log"_s), QStringList());
    QCOMPARE(problem(m_place->log()), QString());
}

void FolderLockFailuresTest::aFolderThatMayNotBeWrittenIsNamed()
{
    QFile::setPermissions(QFileInfo(m_place->log()).path(), QFile::Permissions(0x7755));
    QString found;
    {
        const auto everybody = QFile::Permissions(0x7777);
        QFile::setPermissions(m_place->path(u"run"_s), everybody);
        QFile::setPermissions(m_place->path(u"cache"_s), everybody);
        const Permissions folder(m_place->log(), QFile::Permissions(0x5555));
        QVERIFY(folder.works());
        found = problem(m_place->log());
    }
    QVERIFY2(found.contains(m_place->log() + u"/voltbok.lock"_s), qPrintable(found));
    QVERIFY2(found.contains(u"(Permission denied)"_s), qPrintable(found));
}

void FolderLockFailuresTest::aFolderThatCannotBeMadeIsNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("below a file") << u"file/log"_s << u"Not a directory"_s;
    QTest::newRow("a name too long") << QString(300, u'x') << u"File name too long"_s;
    QTest::newRow("a link to nothing") << u"dangling"_s << u"exists"_s;
}

void FolderLockFailuresTest::aFolderThatCannotBeMadeIsNamed()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QVERIFY(Test::write(m_place->path(u"file"_s), "x"));
    QVERIFY(QFile::link(m_place->path(u"nowhere"_s), m_place->path(u"dangling"_s)));
    const QString found = problem(m_place->path(name));
    QVERIFY2(found.contains(m_place->path(name)) && found.contains(reason), qPrintable(found));
}

void FolderLockFailuresTest::aRuntimeFolderThatCannotBeMadeIsNamed()
{
    QVERIFY(Test::write(m_place->path(u"run/voltbok"_s), "in the way"));
    const QString found = problem(m_place->log());
    QVERIFY2(found.contains(m_place->path(u"run/voltbok"_s)), qPrintable(found));
    QCOMPARE(m_place->files(u"log"_s), QStringList());
}

QTEST_MAIN(FolderLockFailuresTest)
#include "tst_folderlock_failures.moc"
