// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/backups.h"
#include "host/safety/storagefolder.h"
#include "tests/host/support/faultrun.h"
#include "tests/host/support/session.h"
#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int AtOnce = 6; // most of a run is waiting for copies

/** The small logbook after one more flight. */
QByteArray laterLogbook()
{
    return smallLogbook().replace("\"Meadow\"/>", "\"Meadow\"/>\n        <Location Name=\"Slope\"/>");
}

QByteArray damaged(const QByteArray &document)
{
    return document.left(document.size() * 2 / 3);
}

void addCopies(const Home &home)
{
    const StorageFolder folder(home.logbook());
    const QDateTime now = QDateTime::currentDateTimeUtc();
    Backups::add(folder, smallLogbook(), now.addSecs(-3600));
    Backups::add(folder, laterLogbook(), now.addSecs(-1800));
}

/** Nobody fills in a form within the tick of the file's clock in which the file was saved before. */
const QStringList AsAPilot{u"wait"_s, u"100"_s};

Scenario session()
{
    return {u"session"_s,
            [](const Home &home) { home.makeLogbook(smallLogbook()); },
            {{u"click"_s, u"3S A"_s},
             {u"click"_s, u"3S A"_s},
             AsAPilot,
             {u"add-location"_s, u"Slope"_s},
             {u"click"_s, u"3S B"_s}},
            Logbook::read(smallLogbook())};
}

Scenario recovery()
{
    return {u"recovery"_s,
            [](const Home &home) {
                home.makeLogbook(damaged(laterLogbook()));
                addCopies(home);
            },
            {{u"press"_s, u"Restore"_s}, {u"click"_s, u"3S A"_s}},
            Logbook::read(laterLogbook())};
}

Scenario restoreOfAMissingFile()
{
    return {u"missing file"_s,
            [](const Home &home) {
                home.makeLogbook(QByteArray());
                addCopies(home);
            },
            {{u"press"_s, u"Restore"_s}, {u"click"_s, u"3S A"_s}},
            Logbook::read(laterLogbook())};
}

/** A copy with other measured values is restored. */
Scenario restoreFromTheMenu()
{
    return {u"copy from the menu"_s,
            [](const Home &home) {
                home.makeLogbook(smallLogbook());
                const QString beside = home.logbook() + u"/voltbok-measured.json"_s;
                QVERIFY(Test::write(beside, measuredOf(u"3S A"_s)));
                addCopies(home);
                QVERIFY(Test::write(beside, measuredOf(u"3S B"_s)));
            },
            {{u"menu"_s, u"Backups…"_s},
             {u"select"_s, u"1"_s},
             {u"answer"_s, u"Restore"_s},
             {u"leave"_s},
             {u"click"_s, u"3S A"_s}},
            Logbook::read(smallLogbook()),
            u"voltbok-measured.json"_s};
}

/** Another version of the logbook, which a file synchroniser has left, is merged. */
Scenario merge()
{
    static const QString conflict = u"voltbok.sync-conflict-20261121-101112-ABCDEFG.xml"_s;
    return {u"merge"_s,
            [](const Home &home) {
                home.makeLogbook(smallLogbook());
                QVERIFY(Test::write(home.logbook() + u'/' + conflict, laterLogbook()));
            },
            {{u"press-for-box"_s, u"Merge…"_s}, {u"answer"_s, u"Merge"_s}, AsAPilot, {u"click"_s, u"3S A"_s}},
            Logbook::read(smallLogbook()),
            conflict};
}

Scenario emptyStart()
{
    return {u"empty start"_s,
            [](const Home &home) { home.makeLogbook(damaged(smallLogbook())); },
            {{u"press"_s, u"Start with an Empty"_s}, AsAPilot, {u"add-location"_s, u"Slope"_s}},
            Logbook()};
}

} // namespace

class FileFaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void whateverOperationFailsNothingIsLostAndNothingIsSilent_data();
    void whateverOperationFailsNothingIsLostAndNothingIsSilent();
    void theNewestCopyIsTheNewestStateWhereverTheClockJumps_data();
    void theNewestCopyIsTheNewestStateWhereverTheClockJumps();

private:
    QProcess m_screen;
    QString m_display;
    QStringList m_leftBefore;
};

void FileFaultsTest::initTestCase()
{
    m_leftBefore = Harness::sharedLeftovers();
    m_screen.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x800x24"_s,
                               u"-nolisten"_s, u"tcp"_s});
    QTRY_VERIFY_WITH_TIMEOUT(m_screen.canReadLine(), 20'000);
    m_display = u':' + QString::fromLatin1(m_screen.readLine().trimmed());
}

void FileFaultsTest::cleanupTestCase()
{
    m_screen.terminate();
    QVERIFY(m_screen.waitForFinished());
    QTRY_VERIFY_WITH_TIMEOUT(Harness::sharedLeftovers(m_leftBefore).isEmpty(), 10'000);
}

void FileFaultsTest::whateverOperationFailsNothingIsLostAndNothingIsSilent_data()
{
    QTest::addColumn<Scenario>("scenario");
    for (const Scenario &scenario :
         {session(), recovery(), restoreOfAMissingFile(), restoreFromTheMenu(), merge(), emptyStart()})
        QTest::newRow(qPrintable(scenario.name)) << scenario;
}

void FileFaultsTest::whateverOperationFailsNothingIsLostAndNothingIsSilent()
{
    QFETCH(Scenario, scenario);
    QElapsedTimer clock;
    clock.start();
    QList<Operation> operations;
    {
        FaultRun faultless(scenario, Fault(), m_display);
        QSignalSpy over(&faultless, &FaultRun::over);
        faultless.start();
        QVERIFY(over.wait(30'000));
        QVERIFY2(faultless.problems().isEmpty(), qPrintable(faultless.problems().join(u"; "_s)));
        operations = faultless.operations();
        const bool isWritten =
            std::any_of(operations.cbegin(), operations.cend(), [&](const Operation &operation) {
                return operation.flags.contains(u'c') && operation.path == scenario.written;
            });
        QCOMPARE(isWritten, !scenario.written.isEmpty());
    }
    const QList<Fault> faults = faultsFor(operations);

    QEventLoop loop;
    QStringList problems;
    qsizetype started = 0;
    int running = 0;
    int struck = 0;
    std::function<void()> startOne = [&] {
        if (started == faults.size()) {
            if (running == 0)
                loop.quit();
            return;
        }
        auto *run = new FaultRun(scenario, faults.at(started++), m_display);
        ++running;
        connect(run, &FaultRun::over, &loop, [&, run] {
            struck += run->struck().isEmpty() ? 0 : 1;
            if (!run->problems().isEmpty())
                problems.append(
                    u"%1 (%2): %3"_s.arg(run->fault().name(), run->struck(), run->problems().join(u"; ")));
            run->deleteLater();
            --running;
            startOne();
        });
        run->start();
    };
    for (int i = 0; i < AtOnce; ++i)
        startOne();
    if (running > 0)
        loop.exec();

    qInfo("%s: %lld operations, %lld runs, %d struck, %lld s", qPrintable(scenario.name),
          static_cast<long long>(operations.size()), static_cast<long long>(faults.size()), struck,
          static_cast<long long>(clock.elapsed() / 1000));
    for (const QString &problem : std::as_const(problems))
        qWarning("%s", qPrintable(problem)); // all of them: a failure's own text is cut
    QVERIFY(problems.isEmpty());
    // An operation of the thread that copies may have been one of fewer this time.
    QVERIFY(struck >= faults.size() * 95 / 100);
}

void FileFaultsTest::theNewestCopyIsTheNewestStateWhereverTheClockJumps_data()
{
    QTest::addColumn<QByteArray>("seconds");
    QTest::newRow("ten years ahead") << QByteArray("315360000");
    QTest::newRow("two hours back") << QByteArray("-7200");
}

void FileFaultsTest::theNewestCopyIsTheNewestStateWhereverTheClockJumps()
{
    QFETCH(QByteArray, seconds);
    const Home home;
    home.makeLogbook(smallLogbook());
    const StorageFolder folder(home.logbook());
    QFile clock(home.path() + u"/clock"_s);
    QVERIFY(clock.open(QFile::WriteOnly | QFile::Unbuffered));
    QProcessEnvironment environment;
    Harness::preload(&environment);
    environment.insert(u"VOLTBOK_CLOCK_FILE"_s, clock.fileName());

    Session session(home, environment);
    const auto isCopied = [&] {
        QByteArray copy;
        return Backups::newestWhole(folder, &copy) && copy == Test::contents(home.dataFile());
    };
    QTRY_VERIFY(session.run({u"messages"_s}).isDone() && isCopied());
    QVERIFY(session.run({u"click"_s, u"3S A"_s}).isDone());
    QTRY_VERIFY(isCopied());
    clock.write(seconds);
    const Event click = session.run({u"click"_s, u"3S A"_s});
    QVERIFY(click.isDone());
    QVERIFY(qAbs(click.time - QDateTime::currentMSecsSinceEpoch() - 1000 * seconds.toLongLong()) < 60'000);
    QTRY_VERIFY(isCopied());
    session.send({u"quit"_s});
    QVERIFY(session.process().waitForFinished());
    QVERIFY(isCopied());
    QCOMPARE(Backups::list(folder).size(), 3); // as it was at first, discharged, and charged again
}

QTEST_GUILESS_MAIN(FileFaultsTest)
#include "tst_filefaults.moc"
