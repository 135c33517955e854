// SPDX-License-Identifier: GPL-3.0-or-later
// Commands that read, as processes: what they do about each kind of folder and file, and about where their
// output goes.
#include "tests/host/support/harness.h"
#include "tests/host/support/logbook.h"
#include "tests/host/support/oddfiles.h"
#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList Commands{u"list batteries"_s,  u"list models --json"_s,   u"list flights"_s,
                           u"list discharges"_s, u"list flights --json"_s,  u"list locations"_s,
                           u"statistics"_s,      u"statistics --json"_s,    u"due"_s,
                           u"due --json"_s,      u"export --format json"_s, u"backups"_s,
                           u"backups --json"_s};

struct Result
{
    int status = -1;
    QByteArray output;
    QString errors;
    qint64 elapsed = 0;
};

bool isOneLine(const QString &text)
{
    return text.startsWith(u"voltbok: "_s) && text.indexOf(u'\n') == text.size() - 1;
}

/** What failed where this is not what a command says about a logbook that it cannot read; empty when it is.
 */
QString unlikeAnError(const Result &result)
{
    return result.status == 1 && result.output.isEmpty() && isOneLine(result.errors)
               ? QString()
               : u"%1 %2 %3"_s.arg(QString::number(result.status), QString::fromUtf8(result.output),
                                   result.errors);
}

} // namespace

class ReadingCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<Home>(); }
    void aLogbookIsReadAndNothingIsWritten_data() { eachCommand(); }
    void aLogbookIsReadAndNothingIsWritten();
    void aFolderWithoutALogbookIsAnEmptyOne_data() { eachCommand(); }
    void aFolderWithoutALogbookIsAnEmptyOne();
    void theOwnFolderBeforeItsFirstUseIsAnEmptyLogbook();
    void aFolderThatDoesNotExistIsAnErrorAndIsNotMade_data() { eachCommand(); }
    void aFolderThatDoesNotExistIsAnErrorAndIsNotMade();
    void theSampleIsReadBeforeItWasEverOpened();
    void theSampleIsTheUsersOnceItWasOpened();
    void aFileInTheMiddleOfASaveIsWaitedFor();
    void aFileThatNobodyCompletesIsAnErrorAfterTwoSeconds_data();
    void aFileThatNobodyCompletesIsAnErrorAfterTwoSeconds();
    void whatIsNoFileToReadIsAnErrorAtOnce_data();
    void whatIsNoFileToReadIsAnErrorAtOnce();
    void aMissingFileBesideItsCopiesIsNoEmptyLogbook();
    void aFolderThatMayOnlyBeReadIsRead_data() { eachCommand(); }
    void aFolderThatMayOnlyBeReadIsRead();
    void aFolderThatSomebodyElseHasOpenIsRead();
    void outputThatIsFullIsStatus1AndOneLine_data() { eachCommand(); }
    void outputThatIsFullIsStatus1AndOneLine();
    void aReaderThatGoesAwayHearsNoNoise_data();
    void aReaderThatGoesAwayHearsNoNoise();
    void standardErrorThatIsFullChangesNoStatus();
    void surroundingsOfADesktopDoNotMatter_data();
    void surroundingsOfADesktopDoNotMatter();

private:
    static void eachCommand()
    {
        QTest::addColumn<QStringList>("arguments");
        for (const QString &command : Commands)
            QTest::newRow(qPrintable(command)) << command.split(u' ');
    }
    static Result finish(QProcess &process);
    Result run(const QStringList &arguments) const;
    /** A line of the shell, in which "$0" is the program. */
    Result shell(const QString &line) const;
    QStringList data() const { return {u"--data"_s, m_home->logbook()}; }

    std::unique_ptr<Home> m_home;
};

Result ReadingCommandsTest::finish(QProcess &process)
{
    QElapsedTimer clock;
    clock.start();
    const bool isOver = process.waitForFinished(20'000) && process.exitStatus() == QProcess::NormalExit;
    return {isOver ? process.exitCode() : -1, process.readAllStandardOutput(),
            QString::fromUtf8(process.readAllStandardError()), clock.elapsed()};
}

Result ReadingCommandsTest::run(const QStringList &arguments) const
{
    QProcess process;
    process.setProcessEnvironment(m_home->environment());
    process.start(QStringLiteral(PROGRAM), arguments);
    return finish(process);
}

Result ReadingCommandsTest::shell(const QString &line) const
{
    QProcess process;
    process.setProcessEnvironment(m_home->environment());
    process.setWorkingDirectory(m_home->path());
    process.start(u"bash"_s, {u"-c"_s, line, QStringLiteral(PROGRAM)});
    return finish(process);
}

void ReadingCommandsTest::aLogbookIsReadAndNothingIsWritten()
{
    QFETCH(QStringList, arguments);
    m_home->makeLogbook(smallLogbook());
    const QStringList before = OddFiles::listing(m_home->path());
    const Result result = run(arguments + data());
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.endsWith('\n'));
    if (arguments.last().endsWith(u"json"_s))
        QVERIFY(!QJsonDocument::fromJson(result.output).isNull());
    if (arguments.first() == u"list"_s && arguments.at(1) != u"locations"_s)
        QVERIFY2(result.output.contains("3S A"), result.output.constData());
    QCOMPARE(OddFiles::listing(m_home->path()), before);
}

void ReadingCommandsTest::aFolderWithoutALogbookIsAnEmptyOne()
{
    QFETCH(QStringList, arguments);
    m_home->makeLogbook(QByteArray());
    const Result result = run(arguments + data());
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    const QJsonDocument document = QJsonDocument::fromJson(result.output);
    if (document.isArray())
        QCOMPARE(document.array(), QJsonArray());
    QVERIFY(OddFiles::listing(m_home->logbook()).isEmpty());
}

void ReadingCommandsTest::theOwnFolderBeforeItsFirstUseIsAnEmptyLogbook()
{
    const QStringList before = OddFiles::listing(m_home->path());
    const Result result = run({u"list"_s, u"batteries"_s, u"--json"_s});
    QCOMPARE(result.output, "[]\n"_ba);
    QVERIFY(result.status == 0 && result.errors.isEmpty());
    QCOMPARE(OddFiles::listing(m_home->path()), before);
}

void ReadingCommandsTest::aFolderThatDoesNotExistIsAnErrorAndIsNotMade()
{
    QFETCH(QStringList, arguments);
    for (const QString &folder : {m_home->path() + u"/none"_s, QStringLiteral(PROGRAM)}) {
        const Result result = run(arguments + QStringList{u"--data"_s, folder});
        QCOMPARE(unlikeAnError(result), QString());
        QVERIFY2(result.errors.contains(folder), qPrintable(result.errors));
        QVERIFY(result.elapsed < 2000);
    }
    QVERIFY(!QFile::exists(m_home->path() + u"/none"_s));
}

void ReadingCommandsTest::theSampleIsReadBeforeItWasEverOpened()
{
    const QStringList before = OddFiles::listing(m_home->path());
    const Result result = run({u"--demo"_s, u"list"_s, u"batteries"_s, u"--json"_s});
    QCOMPARE(result.status, 0);
    QCOMPARE(QJsonDocument::fromJson(result.output).array().size(), 12);
    QCOMPARE(OddFiles::listing(m_home->path()), before);
}

void ReadingCommandsTest::theSampleIsTheUsersOnceItWasOpened()
{
    const QString folder = m_home->path() + u"/home/Voltbok-demo"_s;
    QVERIFY(QDir().mkpath(folder));
    QCOMPARE(QJsonDocument::fromJson(run({u"--demo"_s, u"list"_s, u"batteries"_s, u"--json"_s}).output)
                 .array()
                 .size(),
             12);
    QVERIFY(Test::write(Test::dataFile(folder), smallLogbook()));
    const QJsonArray batteries =
        QJsonDocument::fromJson(run({u"--demo"_s, u"list"_s, u"batteries"_s, u"--json"_s}).output).array();
    QCOMPARE(batteries.size(), 3);
    QCOMPARE(batteries[0][u"name"], u"3S A"_s);
}

void ReadingCommandsTest::aFileInTheMiddleOfASaveIsWaitedFor()
{
    const QByteArray document = smallLogbook();
    m_home->makeLogbook(document.left(document.size() / 2));
    QVERIFY(Test::write(m_home->path() + u"/rest"_s, document.mid(document.size() / 2)));
    QProcess writer;
    writer.start(u"bash"_s, {u"-c"_s, u"sleep 1; cat \"$0\" >> \"$1\""_s, m_home->path() + u"/rest"_s,
                             m_home->dataFile()});
    const Result result = run(QStringList{u"list"_s, u"batteries"_s, u"--json"_s} + data());
    QVERIFY(writer.waitForFinished());
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(QJsonDocument::fromJson(result.output).array().size(), 3);
}

void ReadingCommandsTest::aFileThatNobodyCompletesIsAnErrorAfterTwoSeconds_data()
{
    QTest::addColumn<QByteArray>("document");
    const QByteArray document = smallLogbook();
    QTest::newRow("cut") << document.left(document.size() - 12);
    QTest::newRow("empty") << ""_ba;
    QTest::newRow("zeros behind the cut")
        << document.left(document.size() / 2) + QByteArray(document.size() / 2, '\0');
    QTest::newRow("another kind of document") << "<html/>\n"_ba;
    QTest::newRow("declarations") << QByteArray(document).replace("<!DOCTYPE Voltbok>",
                                                                  "<!DOCTYPE Voltbok [<!ENTITY a \"b\">]>");
}

void ReadingCommandsTest::aFileThatNobodyCompletesIsAnErrorAfterTwoSeconds()
{
    QFETCH(QByteArray, document);
    m_home->makeLogbook(document);
    const QStringList before = OddFiles::listing(m_home->path());
    const Result result = run(QStringList{u"list"_s, u"flights"_s} + data());
    QCOMPARE(unlikeAnError(result), QString());
    QVERIFY2(result.errors.contains(m_home->dataFile()), qPrintable(result.errors));
    QVERIFY2(result.elapsed >= 1900 && result.elapsed < 5000, qPrintable(QString::number(result.elapsed)));
    QCOMPARE(OddFiles::listing(m_home->path()), before);
}

void ReadingCommandsTest::whatIsNoFileToReadIsAnErrorAtOnce_data()
{
    QTest::addColumn<OddFiles::Kind>("kind");
    QTest::newRow("a pipe") << OddFiles::Pipe;
    QTest::newRow("a folder") << OddFiles::Folder;
    QTest::newRow("a link to nothing") << OddFiles::DanglingLink;
    QTest::newRow("10 GB") << OddFiles::TenGigabytes;
    QTest::newRow("endless zeros") << OddFiles::Zeros;
    QTest::newRow("a socket") << OddFiles::Socket;
}

void ReadingCommandsTest::whatIsNoFileToReadIsAnErrorAtOnce()
{
    QFETCH(OddFiles::Kind, kind);
    m_home->makeLogbook(QByteArray());
    QVERIFY(OddFiles::make(kind, m_home->dataFile()));
    const Result result = run(QStringList{u"due"_s} + data());
    QCOMPARE(unlikeAnError(result), QString());
    QVERIFY2(result.elapsed < 1900, qPrintable(QString::number(result.elapsed)));
}

void ReadingCommandsTest::aMissingFileBesideItsCopiesIsNoEmptyLogbook()
{
    m_home->makeLogbook(QByteArray());
    QVERIFY(QDir(m_home->logbook()).mkdir(u"backups"_s));
    QVERIFY(Test::write(m_home->logbook() + u"/backups/voltbok-00000001-20261121-195112-123Z.xml"_s,
                        smallLogbook()));
    QCOMPARE(unlikeAnError(run(QStringList{u"list"_s, u"flights"_s} + data())), QString());
}

void ReadingCommandsTest::aFolderThatMayOnlyBeReadIsRead()
{
    QFETCH(QStringList, arguments);
    m_home->makeLogbook(smallLogbook());
    OddFiles::giveAway(m_home->path());
    QCOMPARE(::chmod(qPrintable(m_home->logbook()), 0555), 0);
    const QTemporaryDir everybodys(u"/var/tmp/voltbok-XXXXXX"_s); // where programs may be run
    QVERIFY(OddFiles::giveProgram(everybodys.path()));
    QProcess process;
    QProcessEnvironment environment = m_home->environment();
    environment.insert(u"LD_LIBRARY_PATH"_s, everybodys.path());
    process.setProcessEnvironment(environment);
    process.setChildProcessModifier(&OddFiles::becomeNobody);
    process.start(everybodys.filePath(u"voltbok"_s), arguments + data());
    const Result result = finish(process);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
}

void ReadingCommandsTest::aFolderThatSomebodyElseHasOpenIsRead()
{
    m_home->makeLogbook(smallLogbook());
    QProcess window;
    QProcessEnvironment environment = m_home->environment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    window.setProcessEnvironment(environment);
    window.start(QStringLiteral(PROGRAM), data());
    const QString lock = m_home->logbook() + u"/voltbok.lock"_s;
    QTRY_VERIFY(QFile::exists(lock));
    for (const QString &command : Commands) {
        const Result result = run(command.split(u' ') + data());
        QVERIFY2(result.status == 0 && result.errors.isEmpty(), qPrintable(result.errors));
    }
    QVERIFY(QFile::exists(lock) && window.state() == QProcess::Running);
    window.kill();
    QVERIFY(window.waitForFinished());
}

void ReadingCommandsTest::outputThatIsFullIsStatus1AndOneLine()
{
    QFETCH(QStringList, arguments);
    m_home->makeLogbook(smallLogbook());
    const Result full = shell(u"\"$0\" %1 --demo > /dev/full"_s.arg(arguments.join(u' ')));
    QCOMPARE(unlikeAnError(full), QString());
    QVERIFY2(full.errors.contains(u"No space left on device"_s), qPrintable(full.errors));
    QCOMPARE(unlikeAnError(shell(u"\"$0\" %1 --demo >&-"_s.arg(arguments.join(u' ')))), QString());
}

void ReadingCommandsTest::aReaderThatGoesAwayHearsNoNoise_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("after a line") << u"\"$0\" list flights --json --demo | head -n 1"_s;
    QTest::newRow("after a line of a table") << u"\"$0\" list discharges --demo | head -n 1"_s;
    QTest::newRow("at once") << u"{ sleep 0.5; \"$0\" statistics --json --demo; } | true"_s;
    QTest::newRow("at once, from a table") << u"{ sleep 0.5; \"$0\" due --demo; } | true"_s;
}

void ReadingCommandsTest::aReaderThatGoesAwayHearsNoNoise()
{
    QFETCH(QString, line);
    const Result result = shell(u"set -o pipefail; "_s + line);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
}

void ReadingCommandsTest::standardErrorThatIsFullChangesNoStatus()
{
    QCOMPARE(shell(u"\"$0\" list flights --data none 2> /dev/full"_s).status, 1);
    QCOMPARE(shell(u"\"$0\" list rockets 2> /dev/full"_s).status, 2);
    QCOMPARE(shell(u"\"$0\" list flights --demo 2> /dev/full"_s).status, 0);
}

void ReadingCommandsTest::surroundingsOfADesktopDoNotMatter_data()
{
    QTest::addColumn<QString>("setting");
    for (const char *setting : {"LC_ALL=C", "LC_ALL=POSIX", "LC_ALL=en_US.ISO-8859-1", "QT_QPA_PLATFORM=xcb",
                                "QT_QPA_PLATFORM=none", "QT_QPA_PLATFORMTHEME=gtk3", "QT_STYLE_OVERRIDE=none",
                                "XDG_RUNTIME_DIR=none", "XDG_RUNTIME_DIR=/tmp", "DISPLAY=:99",
                                "WAYLAND_DISPLAY=none", "SESSION_MANAGER=none", "-i"})
        QTest::newRow(setting) << QString::fromLatin1(setting);
}

void ReadingCommandsTest::surroundingsOfADesktopDoNotMatter()
{
    QFETCH(QString, setting);
    const Result result = shell(u"env %1 \"$0\" list locations --demo"_s.arg(setting));
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.contains("Flugplatz S\xc3\xbc"
                                   "d\n"));
}

QTEST_GUILESS_MAIN(ReadingCommandsTest)
#include "tst_readingcommands.moc"
