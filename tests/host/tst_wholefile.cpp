// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/wholefile.h"

#include "tests/host/support/logbookfiles.h"
#include "tests/host/support/lyingdisk.h"
#include "tests/support/brokendisk.h"
#include "tests/support/files.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Private = QFile::ReadOwner | QFile::WriteOwner;

QByteArray utf16(const QString &text, bool mark)
{
    QByteArray bytes = mark ? QByteArray("\xFF\xFE") : QByteArray();
    for (const QChar c : text)
        bytes.append(char(c.cell())).append(char(c.row()));
    return bytes;
}

} // namespace

class WholeFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup();
    void aDocumentIsWholeWhenItIsOneLogbook_data();
    void aDocumentIsWholeWhenItIsOneLogbook();
    void theContentsAreCounted();
    void aFileIsReadAsItIs();
    void whatIsNoFileIsNamedAndNeverOpened_data();
    void whatIsNoFileIsNamedAndNeverOpened();
    void onlyANameWithNothingIsMissing();
    void whatMayNotBeReadIsNamed();
    void aFileIsWrittenWhole();
    void aFileThatDoesNotFitLeavesTheOldOne_data();
    void aFileThatDoesNotFitLeavesTheOldOne();
    void aFullDiskIsNamed();
    void aReadOnlyDiskOrFolderIsNamed();
    void thePermissionsAreThoseGivenOrThoseBefore();
    void aDiskThatLiesIsFoundOut();
    void aDiskThatCannotKeepItIsNamed();
    void aFileIsWaitedFor();

private:
    QString path(const char *name = "file") const { return m_folder->filePath(QLatin1StringView(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void WholeFileTest::cleanup()
{
    LyingDisk::corrupts = false;
    LyingDisk::syncError = 0;
}

void WholeFileTest::aDocumentIsWholeWhenItIsOneLogbook_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("problem"); // its beginning

    const QByteArray document = logbook(1);
    const auto row = [](const char *name, const QByteArray &bytes, const char *problem) {
        QTest::newRow(name) << bytes << QString::fromLatin1(problem);
    };
    row("whole", document, "");
    row("the root alone", "<Voltbok/>", "");
    row("with a byte order mark", "\xEF\xBB\xBF" + document, "");
    row("UTF-16 with its mark", utf16(u"<Voltbok/>"_s, true), "");
    row("cut off", document.left(document.size() - 4), "line");
    row("empty", {}, "it is empty");
    row("no XML", "hello", "line 1");
    row("something behind the end", document + "<Voltbok/>", "line 8");
    row("zeros", QByteArray(4096, '\0'), "it contains zero bytes");
    row("one zero in a name", QByteArray(document).replace("Location ", QByteArray("Loca\0ion ", 9)),
        "it contains zero bytes");
    row("a page", "<html/>", "it is not a logbook: its root element is “html”");
    row("entities of its own", "<!DOCTYPE Voltbok [<!ENTITY a \"b\">]><Voltbok/>",
        "it brings a document type of its own");
}

void WholeFileTest::aDocumentIsWholeWhenItIsOneLogbook()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, problem);
    if (problem.startsWith(u"it is not a logbook"))
        problem = QString::fromUtf8("it is not a logbook: its root element is “html”");
    const QString found = WholeFile::inspect(document).problem;
    QVERIFY2(found.left(problem.size()) == problem && found.isEmpty() == problem.isEmpty(),
             qPrintable(found));
    QCOMPARE(WholeFile::isWhole(document), problem.isEmpty());
}

void WholeFileTest::theContentsAreCounted()
{
    const Contents contents = WholeFile::inspect(Test::contents(QStringLiteral(SAMPLE)));
    QCOMPARE(contents.problem, QString());
    QCOMPARE(contents.locations, 6);
    QCOMPARE(contents.batteries, 12);
    QCOMPARE(contents.discharges, 457);
    QCOMPARE(contents.models, 4);
    QCOMPARE(contents.flights, 384);
}

void WholeFileTest::aFileIsReadAsItIs()
{
    QVERIFY(Test::write(path(), QByteArray("a\0\r\n", 4)));
    QCOMPARE(WholeFile::read(path()).bytes, QByteArray("a\0\r\n", 4));
    QVERIFY(QFile::link(path(), path("link")));
    QCOMPARE(WholeFile::read(path("link")).bytes.size(), 4);
    QVERIFY(Test::write(path("empty"), ""));
    QCOMPARE(WholeFile::read(path("empty")).problem, QString());
    QFile large(path("large"));
    QVERIFY(large.open(QFile::WriteOnly) && large.resize(WholeFile::MaximumSize + 1));
    QCOMPARE(WholeFile::read(path("large")).problem, u"it is larger than 256 MB"_s);
}

void WholeFileTest::whatIsNoFileIsNamedAndNeverOpened_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("problem");
    QTest::newRow("a folder") << u"folder"_s << u"it is a folder"_s;
    QTest::newRow("a pipe") << u"pipe"_s << u"it is not a regular file"_s;
    QTest::newRow("a link to a pipe") << u"link to pipe"_s << u"it is not a regular file"_s;
    QTest::newRow("a device") << u"/dev/zero"_s << u"it is not a regular file"_s;
    QTest::newRow("a full device") << u"/dev/full"_s << u"it is not a regular file"_s;
    QTest::newRow("a link to nothing")
        << u"/nowhere"_s << u"it is a link to “/nowhere”, which does not exist"_s;
}

void WholeFileTest::whatIsNoFileIsNamedAndNeverOpened()
{
    QFETCH(QString, kind);
    if (kind == u"folder") {
        QVERIFY(QDir().mkdir(path()));
    } else if (kind == u"pipe") {
        QCOMPARE(mkfifo(QFile::encodeName(path()), 0600), 0);
    } else if (kind == u"link to pipe") {
        QCOMPARE(mkfifo(QFile::encodeName(path("pipe")), 0600), 0);
        QVERIFY(QFile::link(path("pipe"), path()));
    } else {
        QVERIFY(QFile::link(kind, path()));
    }
    const WholeFile::Reading reading = WholeFile::read(path());
    QTEST(reading.problem, "problem");
    QVERIFY(!reading.isMissing && reading.bytes.isEmpty());
    QTEST(WholeFile::sync(path()), "problem");
}

void WholeFileTest::onlyANameWithNothingIsMissing()
{
    QVERIFY(WholeFile::read(path()).isMissing);
    QCOMPARE(WholeFile::read(path()).problem, u"there is no such file"_s);
    QVERIFY(WholeFile::read(path("folder/file")).isMissing);
    QVERIFY(Test::write(path(), ""));
    QVERIFY(!WholeFile::read(path()).isMissing);
    QVERIFY(QFile::link(path("loop"), path("loop")));
    QVERIFY(!WholeFile::read(path("loop")).isMissing);
}

void WholeFileTest::whatMayNotBeReadIsNamed()
{
    QVERIFY(Test::write(path(), "text"));
    {
        const Refusal closed(m_folder->path(), 0);
        QVERIFY(closed.works());
        QCOMPARE(WholeFile::read(path()).problem, u"permission denied"_s);
        QVERIFY(!WholeFile::read(path()).isMissing);
    }
    QCOMPARE(chmod(QFile::encodeName(m_folder->path()), 0755), 0);
    const Refusal closed(path(), 0);
    QVERIFY(closed.works());
    QCOMPARE(WholeFile::read(path()).problem, u"permission denied"_s);
}

void WholeFileTest::aFileIsWrittenWhole()
{
    for (const QByteArray &bytes : {QByteArray("first"), QByteArray(100000, 'x'), QByteArray()}) {
        QCOMPARE(WholeFile::write(path(), bytes), QString());
        QCOMPARE(Test::contents(path()), bytes);
    }
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 1);
    QVERIFY(!WholeFile::write(path("folder/file"), "text").isEmpty());
}

void WholeFileTest::aFileThatDoesNotFitLeavesTheOldOne_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("small") << 1000;
    QTest::newRow("large") << 300000;
}

void WholeFileTest::aFileThatDoesNotFitLeavesTheOldOne()
{
    QFETCH(int, size);
    QVERIFY(Test::write(path(), "old"));
    {
        const FullDisk disk(300);
        QVERIFY(disk.works());
        QCOMPARE(WholeFile::write(path(), QByteArray(size, 'x')), u"the file would be too large"_s);
        QCOMPARE(WholeFile::write(path("new"), QByteArray(size, 'x')), u"the file would be too large"_s);
    }
    QCOMPARE(Test::contents(path()), QByteArray("old"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList{u"file"_s});
}

void WholeFileTest::aFullDiskIsNamed()
{
    LyingDisk::syncError = ENOSPC; // space that is only asked for when the disk is waited for
    QCOMPARE(WholeFile::write(path(), "text"), u"no space left on device"_s);
    LyingDisk::syncError = 0;
    if (!Mount::allowed())
        return;
    Mount disk(m_folder->path());
    QVERIFY(disk.works());
    QCOMPARE(mount("none", QFile::encodeName(m_folder->path()), nullptr, MS_REMOUNT, "size=64k"), 0);
    for (const int size : {66000, 1000000})
        QCOMPARE(WholeFile::write(path(), QByteArray(size, 'x')), u"no space left on device"_s);
    QCOMPARE(WholeFile::write(path(), QByteArray(30000, 'x')), QString());
}

void WholeFileTest::aReadOnlyDiskOrFolderIsNamed()
{
    if (Mount::allowed()) {
        Mount disk(m_folder->path());
        QVERIFY(disk.works() && disk.setReadOnly(true));
        QCOMPARE(WholeFile::write(path(), "text"), u"the disk is read-only"_s);
    }
    const Refusal readOnly(m_folder->path(), 0555);
    QVERIFY(readOnly.works());
    QCOMPARE(WholeFile::write(path(), "text"), u"permission denied"_s);
}

void WholeFileTest::thePermissionsAreThoseGivenOrThoseBefore()
{
    QCOMPARE(WholeFile::permissionsOf(path()), std::nullopt);
    QCOMPARE(WholeFile::write(path(), "text", Private), QString());
    QCOMPARE(int(modeOf(path())), 0600);
    QCOMPARE(WholeFile::permissionsOf(path()), std::optional<QFile::Permissions>(Private));
    QCOMPARE(WholeFile::write(path(), "other"), QString());
    QCOMPARE(int(modeOf(path())), 0600);
    QCOMPARE(WholeFile::write(path("plain"), "text"), QString());
    QCOMPARE(int(modeOf(path("plain"))), 0644);
}

void WholeFileTest::aDiskThatLiesIsFoundOut()
{
    LyingDisk::corrupts = true;
    QCOMPARE(WholeFile::write(path(), "text"), u"it was written, but reads differently"_s);
}

void WholeFileTest::aDiskThatCannotKeepItIsNamed()
{
    QVERIFY(Test::write(path(), "old"));
    LyingDisk::syncError = EIO;
    QCOMPARE(WholeFile::write(path(), "text"), u"the disk reports an error"_s);
    QCOMPARE(WholeFile::sync(path()), u"the disk reports an error"_s);
    QCOMPARE(Test::contents(path()), QByteArray("old"));
    LyingDisk::syncError = EINVAL; // nothing to wait for
    QCOMPARE(WholeFile::write(path(), "text"), QString());
}

void WholeFileTest::aFileIsWaitedFor()
{
    QVERIFY(Test::write(path(), "text"));
    QVERIFY(!LyingDisk::wasSynced(QFile::encodeName(path())));
    QCOMPARE(WholeFile::sync(path()), QString());
    QVERIFY(LyingDisk::wasSynced(QFile::encodeName(path())));
}

QTEST_GUILESS_MAIN(WholeFileTest)
#include "tst_wholefile.moc"
