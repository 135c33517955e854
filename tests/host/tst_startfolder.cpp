// SPDX-License-Identifier: GPL-3.0-or-later
// Whose folder it is that the program starts in, and whether it is the right one.
#include "host/safety/folderlock.h"
#include "tests/host/support/starttest.h"
#include "tests/support/brokendisk.h"

#include <QRegularExpression>
#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class StartFolderTest : public StartTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { prepare(); }
    void aFolderThatIsOpenHereIsRefused();
    void theLockOfAnotherMachineIsTakenOverOnlyByAnAnswer();
    void aFolderGivenByNameThatHasNoLogbookIsSaid_data();
    void aFolderGivenByNameThatHasNoLogbookIsSaid();
    void openingAnotherFolderCanBeCancelled_data();
    void openingAnotherFolderCanBeCancelled();
    void theDemoIsMadeAndOpened();
    void theSampleIsMadeWhenItIsAskedFor();
    void aResetDemoIsKept();
    void aDemoThatCannotBeMadeIsAnError();
};

void StartFolderTest::aFolderThatIsOpenHereIsRefused()
{
    m_log->save(LogbookFolder::document(u"a"_s));
    FolderLock lock;
    QCOMPARE(lock.take(m_log->folder()).problem, QString());
    const Started started = run();
    QCOMPARE(started.status, 1);
    QVERIFY(!started.hasWindow);
    QCOMPARE(m_answers.asked.size(), 0);
    QVERIFY2(m_answers.told.value(0).contains(m_log->path()), qPrintable(m_answers.told.value(0)));
}

void StartFolderTest::theLockOfAnotherMachineIsTakenOverOnlyByAnAnswer()
{
    m_log->save(LogbookFolder::document(u"a"_s));
    const QString lock = m_log->folder().lock();
    const QByteArray stranger =
        "123\nvoltbok\nlaptop\n" + QByteArray(32, 'a') + '\n' + QByteArray(36, 'b') + '\n';
    QVERIFY(Test::write(lock, stranger));
    const Started refused = run();
    QCOMPARE(refused.status, 1);
    QVERIFY(!refused.hasWindow);
    QCOMPARE(Test::contents(lock), stranger);
    QVERIFY2(m_answers.asked.value(0).question.text.contains(u"laptop"_s),
             qPrintable(m_answers.asked.value(0).question.text));
    m_answers.pressReturn();
    QCOMPARE(run().status, 1); // return takes nothing from anybody
    m_answers.press(u"Take the Logbook Over"_s);
    const Started taken = run();
    QCOMPARE(taken.status, 0);
    QVERIFY(taken.hasWindow);
    QVERIFY(!QFile::exists(lock));
}

void StartFolderTest::aFolderGivenByNameThatHasNoLogbookIsSaid_data()
{
    QTest::addColumn<bool>("given");
    QTest::addColumn<bool>("folder");
    QTest::addColumn<bool>("logbook");
    QTest::addColumn<bool>("said");
    QTest::newRow("a new folder") << true << false << false << true;
    QTest::newRow("an empty folder") << true << true << false << true;
    QTest::newRow("a logbook") << true << true << true << false;
    QTest::newRow("the user's own new folder") << false << false << false << false;
}

void StartFolderTest::aFolderGivenByNameThatHasNoLogbookIsSaid()
{
    QFETCH(bool, given);
    QFETCH(bool, folder);
    QFETCH(bool, logbook);
    QFETCH(bool, said);
    if (logbook)
        m_log->save(LogbookFolder::document(u"a"_s));
    CommandLine line = commandLine();
    line.dataGiven = given;
    if (!folder)
        line.storagePath = m_log->file(u"typo/log"_s);
    const Started started = Started::run(line, m_answers);
    QCOMPARE(started.status, 0);
    QVERIFY(started.hasWindow);
    const QStringList others = started.messages.filter(QRegularExpression(u"^(?!This logbook is empty)"_s));
    QCOMPARE(others,
             said ? QStringList{u"A new logbook begins in “%1”: there was none."_s.arg(line.storagePath)}
                  : QStringList());
}

void StartFolderTest::theDemoIsMadeAndOpened()
{
    CommandLine line = commandLine();
    line.demo = true;
    line.storagePath = m_log->file(u"demo"_s);
    const Started started = Started::run(line, m_answers);
    QCOMPARE(started.status, 0);
    QVERIFY(started.batteries > 3);
    QCOMPARE(started.messages, QStringList());
    QVERIFY(Test::contents(line.storagePath + u"/voltbok.xml"_s) == Test::sample());
}

void StartFolderTest::theSampleIsMadeWhenItIsAskedFor()
{
    const StorageFolder sample = StorageFolder::ofDemo();
    QDir(sample.path()).removeRecursively(); // of an earlier run
    QString title;
    Started::run(commandLine(), m_answers, [&](MainWindow &window) {
        Q_EMIT window.folderRequested(sample);
        title = window.windowTitle();
    });
    QCOMPARE(title, u"Voltbok - sample logbook"_s);
    QVERIFY(Test::contents(sample.dataFile()) == Test::sample());
}

void StartFolderTest::openingAnotherFolderCanBeCancelled_data()
{
    QTest::addColumn<int>("patience");
    QTest::addColumn<bool>("isOpened");
    QTest::newRow("before it is compared") << 1 << false;
    QTest::newRow("before it is shown") << 2 << false;
    QTest::newRow("never") << -1 << true;
}

void StartFolderTest::openingAnotherFolderCanBeCancelled()
{
    QFETCH(int, patience);
    QFETCH(bool, isOpened);
    m_log->save(LogbookFolder::document(u"a"_s));
    const LogbookFolder other;
    other.save(LogbookFolder::document(u"b"_s));
    const QMap<QString, QByteArray> before = other.snapshot();
    QString title;
    Started::run(commandLine(), m_answers, [&](MainWindow &window) {
        title = window.windowTitle();
        m_answers.patience = patience;
        Q_EMIT window.folderRequested(other.folder());
        QCOMPARE(m_answers.works.contains(u"The logbook is checked…"_s), true);
        QCOMPARE(window.windowTitle() != title || other.snapshot() != before, isOpened);
        FolderLock lock;
        QCOMPARE(lock.take(other.folder()).problem.isEmpty(), !isOpened);
    });
    QVERIFY(!title.isEmpty());
}

void StartFolderTest::aResetDemoIsKept()
{
    CommandLine line = commandLine();
    line.demo = line.resetDemo = true;
    m_log->save(LogbookFolder::document(u"mine"_s));
    QCOMPARE(Started::run(line, m_answers).status, 0);
    QVERIFY(data() == Test::sample());
    QVERIFY(m_log->snapshot().values().contains(LogbookFolder::document(u"mine"_s)));
    m_log->save("half");
    QCOMPARE(Started::run(line, m_answers).status, 0);
    QVERIFY(data() == Test::sample());
    QCOMPARE(asides(), QByteArrayList{"half"});
    QCOMPARE(m_answers.asked.size() + m_answers.told.size(), 0);
}

void StartFolderTest::aDemoThatCannotBeMadeIsAnError()
{
    CommandLine line = commandLine();
    line.demo = true;
    const FullDisk disk(10'000);
    const Started started = Started::run(line, m_answers);
    QCOMPARE(started.status, 1);
    QVERIFY(!started.hasWindow);
    QVERIFY(m_answers.told.value(0).startsWith(u"The sample logbook "_s));
}

QTEST_MAIN(StartFolderTest)
#include "tst_startfolder.moc"
