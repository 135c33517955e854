// SPDX-License-Identifier: GPL-3.0-or-later
// Whose folder it is that the program starts in, and whether it is the right one.
#include "host/safety/folderlock.h"
#include "tests/host/support/logbookfolder.h"
#include "tests/host/support/started.h"
#include "tests/support/brokendisk.h"

#include <QTest>

#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class StartFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aFolderThatIsOpenHereIsRefused();
    void theLockOfAnotherMachineIsTakenOverOnlyByAnAnswer();
    void aFolderGivenByNameThatHasNoLogbookIsSaid_data();
    void aFolderGivenByNameThatHasNoLogbookIsSaid();
    void theDemoIsMadeAndOpened();
    void aResetDemoIsKept();
    void aDemoThatCannotBeMadeIsAnError();

private:
    CommandLine commandLine() const
    {
        CommandLine result;
        result.storagePath = m_log->path();
        return result;
    }
    Started run() { return Started::run(commandLine(), m_answers); }
    QByteArray data() const { return Files::read(m_log->dataFile()); }
    QByteArrayList asides() const
    {
        QByteArrayList contents;
        const QStringList paths = m_log->folder().asides();
        for (const QString &path : paths)
            contents.append(Files::read(path));
        return contents;
    }

    QTemporaryDir m_runtime;
    std::unique_ptr<LogbookFolder> m_log;
    Answers m_answers;
};

void StartFolderTest::initTestCase()
{
    QFile::setPermissions(m_runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_runtime.path()));
}

void StartFolderTest::init()
{
    m_log = std::make_unique<LogbookFolder>();
    m_answers.reset();
}

void StartFolderTest::aFolderThatIsOpenHereIsRefused()
{
    m_log->save(LogbookFolder::document("a"));
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
    m_log->save(LogbookFolder::document("a"));
    const QString lock = m_log->folder().lock();
    const QByteArray stranger =
        "123\nvoltbok\nlaptop\n" + QByteArray(32, 'a') + '\n' + QByteArray(36, 'b') + '\n';
    Files::write(lock, stranger);
    const Started refused = run();
    QCOMPARE(refused.status, 1);
    QVERIFY(!refused.hasWindow);
    QCOMPARE(Files::read(lock), stranger);
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
        m_log->save(LogbookFolder::document("a"));
    CommandLine line = commandLine();
    line.dataGiven = given;
    if (!folder)
        line.storagePath = m_log->file(u"typo/log"_s);
    const Started started = Started::run(line, m_answers);
    QCOMPARE(started.status, 0);
    QVERIFY(started.hasWindow);
    QCOMPARE(started.messages,
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
    QVERIFY(Files::read(line.storagePath + u"/voltbok.xml"_s) == Files::sample());
}

void StartFolderTest::aResetDemoIsKept()
{
    CommandLine line = commandLine();
    line.demo = line.resetDemo = true;
    m_log->save(LogbookFolder::document("mine"));
    QCOMPARE(Started::run(line, m_answers).status, 0);
    QVERIFY(data() == Files::sample());
    QVERIFY(m_log->snapshot().values().contains(LogbookFolder::document("mine")));
    m_log->save("half");
    QCOMPARE(Started::run(line, m_answers).status, 0);
    QVERIFY(data() == Files::sample());
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
