// SPDX-License-Identifier: GPL-3.0-or-later
#include "backupkeeper.h"
#include "backups.h"
#include "folderlock.h"
#include "recovery.h"
#include "storagefolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {
const char Whole[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE Voltbok>\n<Voltbok/>\n";

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

QString copyName(const QDate &day, int hour)
{
    return QDateTime(day, QTime(hour, 0)).toString(u"'voltbok-'yyyyMMdd-HHmmss-zzz'.xml'");
}
} // namespace

class BackupsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aDocumentIsWholeWhenItEndsWell_data();
    void aDocumentIsWholeWhenItEndsWell();
    void copiesAreThinnedWithAge();
    void namesThatAreNoCopiesAreLeftAlone();
    void aCopyHoldsTheSameBytes();
    void anUnchangedFileIsNotCopiedTwice();
    void aBrokenOrMissingFileIsNotCopied();
    void aFailureIsToldInOneLine();
    void theNewestWholeCopyIsFoundBehindABrokenOne();
    void theKeeperCopiesAtTheStartAndAfterAChange();
    void theKeeperCopiesTheLastChangeWhenItGoes();
    void aBrokenFileIsKeptAsideAndReplacedByACopy();
    void withoutACopyTheBrokenFileIsStillKept();
    void aFolderIsLockedAgainstASecondInstance();
    void aFolderThatDoesNotExistYetIsLockedWithoutMakingIt();
    void aLockWithoutANameInItIsTakenOver();

private:
    void save(const QByteArray &bytes) const;
    QString path() const { return m_folder->path(); }
    QStringList copies() const
    {
        return QDir(m_folder->filePath(QStringLiteral("backups"))).entryList(QDir::Files, QDir::Name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void BackupsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void BackupsTest::save(const QByteArray &bytes) const
{
    QFile file(dataFileName(path()));
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

void BackupsTest::aDocumentIsWholeWhenItEndsWell_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<bool>("whole");

    const QByteArray document(Whole);
    QTest::newRow("whole") << document << true;
    QTest::newRow("cut off") << document.left(document.size() - 4) << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("no XML") << QByteArray("hello") << false;
    QTest::newRow("something behind the end") << document + "<Voltbok/>" << false;
    QTest::newRow("zeros") << QByteArray(4096, '\0') << false;
}

void BackupsTest::aDocumentIsWholeWhenItEndsWell()
{
    QFETCH(QByteArray, document);
    QTEST(Backups::isWhole(document), "whole");
}

void BackupsTest::copiesAreThinnedWithAge()
{
    const QDate today(2026, 11, 21);
    const QStringList kept{copyName(today, 8),
                           copyName(today, 9),
                           copyName(today.addDays(-1), 20),
                           copyName(today.addDays(-31), 20),
                           copyName({2026, 9, 30}, 20),
                           copyName({2026, 8, 2}, 7),
                           copyName({2019, 1, 31}, 23)};
    const QStringList gone{copyName(today.addDays(-1), 8), copyName(today.addDays(-31), 8),
                           copyName({2026, 9, 30}, 19),    copyName({2026, 9, 1}, 20),
                           copyName({2019, 1, 30}, 23),    copyName({2019, 1, 1}, 1)};
    QStringList result = Backups::superfluous(kept + gone, today);
    QStringList expected = gone;
    result.sort();
    expected.sort();
    QCOMPARE(result, expected);
    QCOMPARE(Backups::superfluous(kept, today), QStringList());
}

void BackupsTest::namesThatAreNoCopiesAreLeftAlone()
{
    const QStringList names{QStringLiteral("notes.txt"), QStringLiteral("voltbok-old.xml"), QString()};
    QCOMPARE(Backups::superfluous(names, QDate(2026, 11, 21)), QStringList());
}

void BackupsTest::aCopyHoldsTheSameBytes()
{
    save(Whole);
    const QDateTime now(QDate(2026, 11, 21), QTime(12, 30, 15, 250));
    QCOMPARE(Backups::copy(path(), now), QString());
    QCOMPARE(copies(), QStringList{QStringLiteral("voltbok-20261121-123015-250.xml")});
    QCOMPARE(read(Backups::newestWhole(path())), QByteArray(Whole));
    QCOMPARE(Backups::timeOf(copies().first()), now);
}

void BackupsTest::anUnchangedFileIsNotCopiedTwice()
{
    save(Whole);
    const QDateTime now = QDateTime::currentDateTime();
    QCOMPARE(Backups::copy(path(), now), QString());
    QCOMPARE(Backups::copy(path(), now.addSecs(1)), QString());
    QCOMPARE(copies().size(), 1);
}

void BackupsTest::aBrokenOrMissingFileIsNotCopied()
{
    QCOMPARE(Backups::copy(path(), QDateTime::currentDateTime()), QString());
    save("<Voltbok>");
    QCOMPARE(Backups::copy(path(), QDateTime::currentDateTime()), QString());
    QCOMPARE(copies(), QStringList());
    QCOMPARE(Backups::newestWhole(path()), QString());
}

void BackupsTest::aFailureIsToldInOneLine()
{
    save(Whole);
    QFile inTheWay(m_folder->filePath(QStringLiteral("backups")));
    QVERIFY(inTheWay.open(QFile::WriteOnly));
    const QString problem = Backups::copy(path(), QDateTime::currentDateTime());
    QVERIFY2(problem.startsWith(QStringLiteral("cannot keep a copy")), qPrintable(problem));
    QVERIFY(!problem.contains(u'\n'));
}

void BackupsTest::theNewestWholeCopyIsFoundBehindABrokenOne()
{
    save(Whole);
    const QDateTime now = QDateTime::currentDateTime();
    QCOMPARE(Backups::copy(path(), now), QString());
    const QString whole = Backups::newestWhole(path());
    QFile later(m_folder->filePath(QStringLiteral("backups/voltbok-29991231-000000-000.xml")));
    QVERIFY(later.open(QFile::WriteOnly));
    later.write("<Volt");
    later.close();
    QCOMPARE(Backups::newestWhole(path()), whole);
}

void BackupsTest::theKeeperCopiesAtTheStartAndAfterAChange()
{
    save(Whole);
    const BackupKeeper keeper(path());
    QCOMPARE(copies().size(), 1);
    QByteArray changed(Whole);
    changed.replace("<Voltbok/>", "<Voltbok></Voltbok>");
    save(changed);
    QTRY_COMPARE_WITH_TIMEOUT(copies().size(), 2, 2000);
    QCOMPARE(read(Backups::newestWhole(path())), changed);
}

void BackupsTest::theKeeperCopiesTheLastChangeWhenItGoes()
{
    {
        const BackupKeeper keeper(path());
        save(Whole);
    }
    QCOMPARE(copies().size(), 1);
}

void BackupsTest::aBrokenFileIsKeptAsideAndReplacedByACopy()
{
    save(Whole);
    QVERIFY(!Recovery::isBroken(path()));
    QCOMPARE(Backups::copy(path(), QDateTime::currentDateTime()), QString());
    save("<Voltbok><Bat");
    QVERIFY(Recovery::isBroken(path()));

    QCOMPARE(Recovery::replaceBroken(path(), Backups::newestWhole(path())), QString());
    QCOMPARE(read(dataFileName(path())), QByteArray(Whole));
    const QStringList aside = QDir(path()).entryList({QStringLiteral("voltbok-broken-*.xml")});
    QCOMPARE(aside.size(), 1);
    QCOMPARE(read(m_folder->filePath(aside.first())), QByteArray("<Voltbok><Bat"));
}

void BackupsTest::withoutACopyTheBrokenFileIsStillKept()
{
    QVERIFY(!Recovery::isBroken(path())); // no file at all is no broken file
    save("");
    QVERIFY(Recovery::isBroken(path()));
    QCOMPARE(Recovery::replaceBroken(path(), QString()), QString());
    QVERIFY(!QFile::exists(dataFileName(path())));
    QCOMPARE(QDir(path()).entryList({QStringLiteral("voltbok-broken-*.xml")}).size(), 1);
}

void BackupsTest::aFolderIsLockedAgainstASecondInstance()
{
    FolderLock second;
    {
        FolderLock first;
        QCOMPARE(first.take(path()), QString());
        const QString problem = second.take(path());
        QVERIFY2(problem.contains(path()), qPrintable(problem));
        QVERIFY2(problem.contains(QString::number(QCoreApplication::applicationPid())), qPrintable(problem));
        QVERIFY(!problem.contains(u'\n'));
    }
    QCOMPARE(FolderLock().take(path()), QString());
}

void BackupsTest::aFolderThatDoesNotExistYetIsLockedWithoutMakingIt()
{
    const QString missing = m_folder->filePath(QStringLiteral("later"));
    FolderLock first;
    QCOMPARE(first.take(missing), QString());
    QVERIFY(!FolderLock().take(missing).isEmpty());
    QVERIFY(!QDir(missing).exists());
}

void BackupsTest::aLockWithoutANameInItIsTakenOver()
{
    QFile lock(m_folder->filePath(QStringLiteral("voltbok.lock")));
    QVERIFY(lock.open(QFile::WriteOnly));
    lock.close();
    QCOMPARE(FolderLock().take(path()), QString());
}

QTEST_GUILESS_MAIN(BackupsTest)
#include "tst_backups.moc"
