// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/backups.h"
#include "host/safety/storagefolder.h"
#include "tests/host/support/harness.h"
#include "tests/host/support/logbook.h"
#include "tests/host/support/oddfiles.h"
#include "tests/host/support/session.h"
#include "tests/support/files.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Result
{
    int status = -1;
    QString output;
    QString errors;
};

bool isOneLine(const QString &text)
{
    return text.startsWith(u"voltbok: "_s) && text.indexOf(u'\n') == text.size() - 1;
}

} // namespace

class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void helpAndVersionNeedNoDisplay_data();
    void helpAndVersionNeedNoDisplay();
    void aMistakeIsOneLineOnStandardErrorAndAStatus_data();
    void aMistakeIsOneLineOnStandardErrorAndAStatus();
    void withoutADisplayItSaysWhatToDo();
    void aScreenshotShowsTheWindow();
    void aScreenshotMakesNoFolderAndWritesNoData();
    void theDemoIsCopiedToAFolderOfItsOwnAndKept();
    void aSecondStartLeavesTheFolderToTheFirst();
    void aSecondInstanceThatCannotReachTheFirstIsRefusedAndTheHolderNamed();
    void theLockOfAKilledInstanceIsTakenOver();
    void whatIsNoLogbookIsSaidAndLeftAlone_data();
    void whatIsNoLogbookIsSaidAndLeftAlone();
    void aSignalEndsItInOrder_data();
    void aSignalEndsItInOrder();
    void itLivesOnWhenNobodyReadsWhatItSays_data();
    void itLivesOnWhenNobodyReadsWhatItSays();

private:
    std::unique_ptr<QProcess> start(const QStringList &arguments, bool display = true) const;
    static Result finish(QProcess &process);
    Result run(const QStringList &arguments, bool display = true) const;
    QString file(const QString &name) const { return m_home->path() + u'/' + name; }
    QString lock() const { return m_home->logbook() + u"/voltbok.lock"_s; }

    std::unique_ptr<Home> m_home;
    QStringList m_leftBefore;
};

void ProgramTest::init()
{
    m_leftBefore = Harness::sharedLeftovers();
    m_home = std::make_unique<Home>();
}

void ProgramTest::cleanup()
{
    m_home.reset();
    QTRY_VERIFY_WITH_TIMEOUT(Harness::sharedLeftovers(m_leftBefore).isEmpty(), 10'000);
}

std::unique_ptr<QProcess> ProgramTest::start(const QStringList &arguments, bool display) const
{
    QProcessEnvironment environment = m_home->environment();
    if (display)
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->start(QStringLiteral(PROGRAM), arguments);
    return process;
}

Result ProgramTest::finish(QProcess &process)
{
    const bool finished = process.state() == QProcess::NotRunning || process.waitForFinished();
    if (!finished || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

Result ProgramTest::run(const QStringList &arguments, bool display) const
{
    return finish(*start(arguments, display));
}

void ProgramTest::helpAndVersionNeedNoDisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("expected");

    QTest::newRow("--version") << u"--version"_s << u"Voltbok 1"_s;
    QTest::newRow("-v") << u"-v"_s << u"Voltbok 1"_s;
    QTest::newRow("--help") << u"--help"_s << u"--reset-demo"_s;
    QTest::newRow("-h") << u"-h"_s << u"--screenshot"_s;
}

void ProgramTest::helpAndVersionNeedNoDisplay()
{
    QFETCH(QString, option);
    QFETCH(QString, expected);
    const Result result = run({option}, false);
    QCOMPARE(result.status, 0);
    QVERIFY2(result.output.contains(expected), qPrintable(result.output));
    QCOMPARE(result.errors, QString());
}

void ProgramTest::aMistakeIsOneLineOnStandardErrorAndAStatus_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("expected");

    const QString program = QStringLiteral(PROGRAM);
    QTest::newRow("unknown option") << QStringList{u"--frobnicate"_s} << 2 << u"frobnicate"_s;
    QTest::newRow("unknown command") << QStringList{u"fly"_s} << 2 << u"fly"_s;
    QTest::newRow("missing value") << QStringList{u"--data"_s} << 2 << u"data"_s;
    QTest::newRow("empty value") << QStringList{u"--data"_s, QString()} << 2 << u"--data"_s;
    QTest::newRow("demo and data") << QStringList{u"--demo"_s, u"--data"_s, u"."_s} << 2 << u"--data"_s;
    QTest::newRow("a file as the folder") << QStringList{u"--data"_s, program} << 1 << u"not a directory"_s;
    QTest::newRow("a folder below a file")
        << QStringList{u"--data"_s, program + u"/below"_s} << 1 << u"not a directory"_s;
    QTest::newRow("picture that cannot be written")
        << QStringList{u"--demo"_s, u"--screenshot"_s, u"/nowhere/window.png"_s} << 1
        << u"/nowhere/window.png"_s;
}

void ProgramTest::aMistakeIsOneLineOnStandardErrorAndAStatus()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);
    const Result result = run(arguments, false);
    QTEST(result.status, "status");
    QCOMPARE(result.output, QString());
    QVERIFY2(isOneLine(result.errors) && result.errors.contains(expected), qPrintable(result.errors));
}

void ProgramTest::withoutADisplayItSaysWhatToDo()
{
    const Result result = run({}, false);
    QCOMPARE(result.status, 1);
    QVERIFY2(isOneLine(result.errors) && result.errors.contains(u"--screenshot"_s),
             qPrintable(result.errors));
}

void ProgramTest::aScreenshotShowsTheWindow()
{
    const QString picture = file(u"window.png"_s);
    const Result result = run({u"--demo"_s, u"--screenshot"_s, picture}, false);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors, QString());
    const QImage image(picture);
    QVERIFY(image.width() > 600 && image.height() > 531); // the logbook, and the panel beside it
    int green = 0;                                        // the buttons of charged batteries
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            green += colour.green() > 200 && colour.red() < 150 && colour.blue() < 150 ? 1 : 0;
        }
    }
    QVERIFY2(green > 2000, qPrintable(QString::number(green)));
}

void ProgramTest::aScreenshotMakesNoFolderAndWritesNoData()
{
    const QString picture = file(u"window.png"_s);
    QCOMPARE(run({u"--data"_s, file(u"new"_s), u"--screenshot"_s, picture}, false).status, 0);
    QVERIFY(QFile::exists(picture));
    QVERIFY(!QDir(file(u"new"_s)).exists());
}

void ProgramTest::theDemoIsCopiedToAFolderOfItsOwnAndKept()
{
    const QStringList draw{u"--screenshot"_s, file(u"window.png"_s)};
    const QString copy = file(u"home/Voltbok-demo/voltbok.xml"_s);
    QCOMPARE(run(QStringList{u"--demo"_s} + draw, false).status, 0);
    QCOMPARE(Test::contents(copy), Test::contents(QStringLiteral(SAMPLE)));

    QVERIFY(Test::write(copy, smallLogbook()));
    QCOMPARE(run(QStringList{u"--demo"_s} + draw, false).status, 0);
    QCOMPARE(Test::contents(copy), smallLogbook());
    QCOMPARE(run(QStringList{u"--reset-demo"_s} + draw, false).status, 0);
    QCOMPARE(Test::contents(copy), Test::contents(QStringLiteral(SAMPLE)));
}

void ProgramTest::aSecondStartLeavesTheFolderToTheFirst()
{
    const QStringList arguments{u"--data"_s, m_home->makeLogbook(smallLogbook())};
    const auto first = start(arguments);
    QTRY_VERIFY(QFile::exists(lock()));
    QTest::qWait(500); // until its window is up
    const Result second = run(arguments);
    QVERIFY2(second.status == 0 && second.errors.isEmpty(), qPrintable(second.errors));
    QCOMPARE(first->state(), QProcess::Running);
    first->kill();
    QVERIFY(first->waitForFinished());
}

void ProgramTest::aSecondInstanceThatCannotReachTheFirstIsRefusedAndTheHolderNamed()
{
    const QString folder = m_home->makeLogbook(smallLogbook());
    const auto first = start({u"--data"_s, folder});
    QTRY_VERIFY(QFile::exists(lock()));
    const Home elsewhere; // another run-time folder, as in a sandbox
    QProcess second;
    QProcessEnvironment environment = elsewhere.environment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    second.setProcessEnvironment(environment);
    second.start(QStringLiteral(PROGRAM), {u"--data"_s, folder});
    const Result result = finish(second);
    QCOMPARE(result.status, 1);
    QVERIFY2(isOneLine(result.errors) && result.errors.contains(QString::number(first->processId())),
             qPrintable(result.errors));
    first->kill();
    QVERIFY(first->waitForFinished());
}

void ProgramTest::theLockOfAKilledInstanceIsTakenOver()
{
    m_home->makeLogbook(smallLogbook());
    {
        Session first(*m_home);
        QVERIFY(first.run({u"click"_s, u"3S A"_s}).isDone());
    } // kills it
    QVERIFY(QFile::exists(lock()));
    Session second(*m_home);
    QVERIFY(second.run({u"click"_s, u"3S A"_s}).isDone());
    second.send({u"quit"_s});
    QCOMPARE(finish(second.process()).status, 0);
    QVERIFY(!QFile::exists(lock()));
}

void ProgramTest::whatIsNoLogbookIsSaidAndLeftAlone_data()
{
    QTest::addColumn<OddFiles::Kind>("kind");
    QTest::addColumn<QString>("expected"); // what the message must say of it

    QTest::newRow("another kind of document") << OddFiles::Html << u"html"_s;
    QTest::newRow("cut") << OddFiles::Cut << u"damaged"_s;
    QTest::newRow("a zero byte") << OddFiles::ZeroByte << u"zero byte"_s;
    QTest::newRow("declarations") << OddFiles::Declarations << u"document type"_s;
    QTest::newRow("not readable") << OddFiles::Unreadable << u"ermission"_s;
    QTest::newRow("a pipe") << OddFiles::Pipe << u"not a regular file"_s;
    QTest::newRow("a folder") << OddFiles::Folder << u"folder"_s;
    QTest::newRow("a link to nothing") << OddFiles::DanglingLink << u"/nowhere/voltbok.xml"_s;
    QTest::newRow("10 GB") << OddFiles::TenGigabytes << u"256 MB"_s;
    QTest::newRow("a link to endless zeros") << OddFiles::Zeros << u"not a regular file"_s;
    QTest::newRow("a link to a full device") << OddFiles::Full << u"not a regular file"_s;
    QTest::newRow("a socket") << OddFiles::Socket << u"not a regular file"_s;
}

void ProgramTest::whatIsNoLogbookIsSaidAndLeftAlone()
{
    QFETCH(OddFiles::Kind, kind);
    QFETCH(QString, expected);
    const QString folder = m_home->makeLogbook(QByteArray());
    QVERIFY(OddFiles::make(kind, m_home->dataFile()));
    OddFiles::giveAway(m_home->path());
    const QStringList before = OddFiles::listing(folder);

    QProcess program;
    QProcessEnvironment environment = m_home->environment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    // A superuser may read everything, and nobody else may look into the folders where he builds.
    program.setChildProcessModifier(&OddFiles::becomeNobody);
    const QTemporaryDir everybodys(u"/var/tmp/voltbok-XXXXXX"_s); // where programs may be run
    QVERIFY(OddFiles::giveProgram(everybodys.path()));
    environment.insert(u"LD_LIBRARY_PATH"_s, everybodys.path());
    program.setProcessEnvironment(environment);
    QElapsedTimer clock;
    clock.start();
    program.start(everybodys.filePath(u"voltbok"_s), {u"--data"_s, folder});
    const bool finished = program.waitForFinished(10'000);
    const qint64 elapsed = clock.elapsed();
    program.kill();
    QVERIFY(finished);
    const Result result = finish(program);
    QVERIFY2(elapsed < 2000, qPrintable(QString::number(elapsed)));
    QCOMPARE(result.status, 1);
    QVERIFY2(isOneLine(result.errors) && result.errors.contains(expected), qPrintable(result.errors));
    QCOMPARE(OddFiles::listing(folder), before);
}

void ProgramTest::aSignalEndsItInOrder_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void ProgramTest::aSignalEndsItInOrder()
{
    QFETCH(int, signal);
    m_home->makeLogbook(smallLogbook());
    Session session(*m_home);
    QVERIFY(session.run({u"click"_s, u"3S A"_s}).isDone());
    session.send({u"storm"_s, u"5"_s, u"1"_s});
    const auto changes = [&session] {
        session.readReports();
        return session.record().changes();
    };
    QTRY_VERIFY_WITH_TIMEOUT(changes() > 10, 30'000);
    QCOMPARE(::kill(static_cast<pid_t>(session.process().processId()), signal), 0);
    QVERIFY(session.process().waitForFinished());
    session.readReports();
    QCOMPARE(session.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(session.process().exitCode(), 0);
    const QByteArray kept = Test::contents(m_home->dataFile());
    QVERIFY(Logbook::read(kept).whole);
    QCOMPARE(session.record().missing(Logbook::read(kept)), QStringList());
    QByteArray copy;
    QVERIFY(Host::Backups::newestWhole(Host::StorageFolder(m_home->logbook()), &copy));
    QCOMPARE(copy, kept);
    QVERIFY(!QFile::exists(lock()));
    QCOMPARE(m_home->leftovers(), QStringList());
}

void ProgramTest::itLivesOnWhenNobodyReadsWhatItSays_data()
{
    QTest::addColumn<bool>("closed"); // or read no further, as by "2>&1 | head -1"
    QTest::newRow("closed") << true;
    QTest::newRow("read no further") << false;
}

void ProgramTest::itLivesOnWhenNobodyReadsWhatItSays()
{
    QFETCH(bool, closed);
    m_home->makeLogbook(smallLogbook());
    QVERIFY(Test::write(m_home->logbook() + u"/backups"_s, {})); // so that it has something to say
    Session session(*m_home);
    if (closed)
        session.process().setChildProcessModifier([] { ::close(STDERR_FILENO); });
    else
        session.process().closeReadChannel(QProcess::StandardError);
    QVERIFY(session.run({u"click"_s, u"3S A"_s}).isDone());
    QTest::qWait(300);
    QVERIFY(session.run({u"messages"_s}).words.size() > 1);
    session.send({u"quit"_s});
    QVERIFY(session.process().waitForFinished());
    QCOMPARE(session.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(session.process().exitCode(), 0);
    QCOMPARE(session.record().missing(Logbook::readFile(m_home->dataFile())), QStringList());
}

QTEST_MAIN(ProgramTest)
#include "tst_program.moc"
