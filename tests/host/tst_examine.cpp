// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"
#include "tests/host/support/logbookfiles.h"
#include "tests/host/support/logbookfolder.h"
#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QTest>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <cstring>
#include <functional>
#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

using Maker = std::function<void(const QString &path)>;

void makeFifo(const QString &path)
{
    QCOMPARE(mkfifo(QFile::encodeName(path), 0600), 0);
}

void makeSocket(const QString &path)
{
    const int handle = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    QVERIFY(name.size() < static_cast<qsizetype>(sizeof address.sun_path));
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    QCOMPARE(bind(handle, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
    ::close(handle);
}

Maker linkTo(const QString &target)
{
    return [target](const QString &path) { QVERIFY(QFile::link(target, path)); };
}

/** While it lives, this process cannot open another file. */
class NoMoreFiles
{
    Q_DISABLE_COPY_MOVE(NoMoreFiles)

public:
    NoMoreFiles()
    {
        getrlimit(RLIMIT_NOFILE, &m_limit);
        const int next = ::open("/dev/null", O_RDONLY);
        ::close(next);
        const rlimit limit{static_cast<rlim_t>(next), m_limit.rlim_max};
        setrlimit(RLIMIT_NOFILE, &limit);
    }
    ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &m_limit); }

private:
    rlimit m_limit{};
};

} // namespace

Q_DECLARE_METATYPE(Maker)

class ExamineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_log = std::make_unique<LogbookFolder>(); }
    void nothingIsANewLogbook();
    void aFolderThatDoesNotExistIsANewLogbook();
    void aWholeFileIsRead();
    void nothingBesideCopiesIsMissing();
    void nothingBesideAFileThatWasPutAsideIsMissing();
    void nothingBesideCopiesThatCannotBeListedIsUnreadable();
    void whatCannotBeUnderstoodIsDamaged();
    void declaredEntitiesAreNotLoaded();
    void whatIsNoFileIsUnreadableAtOnce_data();
    void whatIsNoFileIsUnreadableAtOnce();
    void aLargeFileIsNotRead();
    void aFileWithoutPermissionIsUnreadable();
    void aFileInAClosedFolderIsUnreadable();
    void tooManyOpenFilesAreNoDamage();
    void aLinkToAWholeFileIsWhole();

private:
    FileState state() const { return Recovery::examine(m_log->folder()); }

    std::unique_ptr<LogbookFolder> m_log;
};

void ExamineTest::nothingIsANewLogbook()
{
    QVERIFY(QDir(m_log->path()).mkdir(u"backups"_s));
    QVERIFY(Test::write(m_log->file(u"backups/notes.txt"_s), "hers"));
    QVERIFY(Test::write(m_log->file(u"voltbok.xml.old"_s), "hers"));
    QCOMPARE(state().kind, FileState::New);
    QCOMPARE(state().problem, QString());
}

void ExamineTest::aFolderThatDoesNotExistIsANewLogbook()
{
    QCOMPARE(Recovery::examine(StorageFolder(m_log->file(u"a/b"_s))).kind, FileState::New);
}

void ExamineTest::aWholeFileIsRead()
{
    m_log->save(LogbookFolder::document(u"a"_s));
    QCOMPARE(state().kind, FileState::Whole);
    QCOMPARE(state().problem, QString());
    QCOMPARE(state().bytes, LogbookFolder::document(u"a"_s));
}

void ExamineTest::nothingBesideCopiesIsMissing()
{
    m_log->copy(LogbookFolder::document(u"a"_s));
    QCOMPARE(state().kind, FileState::Missing);
    QCOMPARE(state().problem, u"it is missing"_s);
}

void ExamineTest::nothingBesideAFileThatWasPutAsideIsMissing()
{
    QVERIFY(Test::write(m_log->file(u"voltbok-broken-20261120-120000-000Z.xml"_s), "half"));
    QCOMPARE(state().kind, FileState::Missing);
}

void ExamineTest::nothingBesideCopiesThatCannotBeListedIsUnreadable()
{
    m_log->copy(LogbookFolder::document(u"a"_s));
    QFile::setPermissions(m_log->root(), QFile::Permissions(0x7777));
    const Refusal closed(m_log->file(u"backups"_s), 0);
    QVERIFY(closed.works());
    QCOMPARE(state().kind, FileState::Unreadable);
    QCOMPARE(state().problem, u"it is missing, and the folder of its copies cannot be read"_s);
}

void ExamineTest::whatCannotBeUnderstoodIsDamaged()
{
    const QByteArray whole = LogbookFolder::document(u"a"_s);
    m_log->copy(whole);
    for (const QByteArray &document :
         {QByteArray(), whole.first(whole.size() / 2), "<html/>"_ba, QByteArray(512, '\0')}) {
        m_log->save(document);
        const FileState found = state();
        QCOMPARE(found.kind, FileState::Damaged);
        QCOMPARE(found.bytes, document);
        QVERIFY(found.mayBeLoaded);
        QVERIFY(!found.problem.isEmpty());
    }
}

void ExamineTest::declaredEntitiesAreNotLoaded()
{
    for (const QByteArray &tail : {QByteArray(), QByteArray(1, '\0'), "<"_ba}) {
        m_log->save("<!DOCTYPE Voltbok [<!ENTITY a 'b'>]><Voltbok/>" + tail);
        QCOMPARE(state().kind, FileState::Damaged);
        QVERIFY(!state().mayBeLoaded);
    }
}

void ExamineTest::whatIsNoFileIsUnreadableAtOnce_data()
{
    QTest::addColumn<Maker>("make");
    QTest::addColumn<QString>("expected");

    const QString noFile = u"it is not a regular file"_s;
    QTest::newRow("pipe") << Maker(makeFifo) << noFile;
    QTest::newRow("socket") << Maker(makeSocket) << noFile;
    QTest::newRow("folder") << Maker([](const QString &path) { QDir().mkdir(path); }) << u"it is a folder"_s;
    for (const QString &device : {u"/dev/zero"_s, u"/dev/full"_s, u"/dev/null"_s, u"/dev/stdin"_s})
        QTest::newRow(qPrintable(device)) << linkTo(device) << noFile;
    QTest::newRow("link to a folder") << linkTo(u"/"_s) << u"it is a folder"_s;
    QTest::newRow("link to a pipe") << Maker([](const QString &path) {
        makeFifo(path + u".pipe"_s);
        QVERIFY(QFile::link(path + u".pipe"_s, path));
    }) << noFile;
    QTest::newRow("link to nothing") << linkTo(u"/nowhere/voltbok.xml"_s)
                                     << u"it is a link to “/nowhere/voltbok.xml”, which does not exist"_s;
    QTest::newRow("link to itself") << Maker([](const QString &path) { QVERIFY(QFile::link(path, path)); })
                                    << u"which does not exist"_s;
}

void ExamineTest::whatIsNoFileIsUnreadableAtOnce()
{
    QFETCH(Maker, make);
    QFETCH(QString, expected);
    m_log->copy(LogbookFolder::document(u"a"_s));
    make(m_log->dataFile());
    QElapsedTimer timer;
    timer.start();
    const FileState found = state();
    QVERIFY(timer.elapsed() < 1000);
    QCOMPARE(found.kind, FileState::Unreadable);
    QVERIFY2(found.problem.contains(expected), qPrintable(found.problem));
    QCOMPARE(found.bytes, QByteArray());
}

void ExamineTest::aLargeFileIsNotRead()
{
    m_log->save(LogbookFolder::document(u"a"_s));
    QVERIFY(QFile::resize(m_log->dataFile(), WholeFile::MaximumSize + 1));
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(state().kind, FileState::Unreadable);
    QCOMPARE(state().problem, u"it is larger than 256 MB"_s);
    QVERIFY(timer.elapsed() < 100);
    QVERIFY(QFile::resize(m_log->dataFile(), LogbookFolder::document(u"a"_s).size()));
    QCOMPARE(state().kind, FileState::Whole);
}

void ExamineTest::aFileWithoutPermissionIsUnreadable()
{
    m_log->save(LogbookFolder::document(u"a"_s));
    QFile::setPermissions(m_log->root(), QFile::Permissions(0x7777));
    const Refusal closed(m_log->dataFile(), 0);
    QVERIFY(closed.works());
    QCOMPARE(state().kind, FileState::Unreadable);
    QCOMPARE(state().problem, u"permission denied"_s);
}

void ExamineTest::aFileInAClosedFolderIsUnreadable()
{
    m_log->save(LogbookFolder::document(u"a"_s));
    QFile::setPermissions(m_log->root(), QFile::Permissions(0x7777));
    const Refusal closed(m_log->path(), 0);
    QVERIFY(closed.works());
    QCOMPARE(state().kind, FileState::Unreadable);
    QCOMPARE(state().problem, u"permission denied"_s);
}

void ExamineTest::tooManyOpenFilesAreNoDamage()
{
    m_log->save(LogbookFolder::document(u"a"_s));
    const auto found = [this] {
        const NoMoreFiles limit;
        return state();
    }();
    QCOMPARE(found.kind, FileState::Unreadable);
    QCOMPARE(found.problem, u"too many files are open"_s);
    QCOMPARE(state().kind, FileState::Whole);
}

void ExamineTest::aLinkToAWholeFileIsWhole()
{
    const QString target = QDir(m_log->root()).filePath(u"flights.xml"_s);
    QVERIFY(Test::write(target, LogbookFolder::document(u"a"_s)));
    QVERIFY(QFile::link(target, m_log->dataFile()));
    QCOMPARE(state().kind, FileState::Whole);
}

QTEST_GUILESS_MAIN(ExamineTest)
#include "tst_examine.moc"
