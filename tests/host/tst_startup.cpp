// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/cataloguefile.h"
#include "tests/host/support/logbookfiles.h"
#include "tests/host/support/starttest.h"
#include "tests/support/brokendisk.h"

#include <QTest>

#include <sys/stat.h>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

const QString Restore = u"Restore"_s;
const QString StartEmpty = u"Start with an Empty Logbook"_s;

/** With an element in its first battery that no save writes. */
QByteArray strange()
{
    return Test::sample().replace("<Cycles>42</Cycles>", "<Cycles>42</Cycles><Chemistry>LiPo</Chemistry>");
}

} // namespace

class StartupTest : public StartTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { prepare(); }
    void aWholeLogbookOpensWithoutAWord();
    void aDamagedFileIsReplacedByTheNewestCopy();
    void aDamagedFileIsReplacedByTheChosenCopy();
    void aDamagedFileIsReplacedByAnEmptyLogbook();
    void aDamagedFileStaysWhereItIsWhenTheUserQuits();
    void aMissingFileIsRestoredFromACopy();
    void aMissingFileIsReplacedByAnEmptyLogbook();
    void aMissingFileStaysMissingWhenTheUserQuits();
    void aRestoreThatFailsChangesNothing();
    void aVersionThatIsGoneMeanwhileChangesNothing();
    void anInterruptedRestoreIsFinished();
    void whatIsNotUnderstoodIsPutAsideOnce();
    void whatIsNotUnderstoodIsNotOpenedWhereItCannotBePutAside();
    void whatCannotBeCheckedIsNotOpened();
    void whatCannotBeReadIsToldAndNeverReplaced_data();
    void whatCannotBeReadIsToldAndNeverReplaced();
};

void StartupTest::aWholeLogbookOpensWithoutAWord()
{
    m_log->save(Test::sample());
    const Started started = run();
    QCOMPARE(started.status, 0);
    QVERIFY(started.hasWindow);
    QCOMPARE(started.messages, QStringList());
    QVERIFY(started.batteries > 0);
    QVERIFY(data() == Test::sample());
    QCOMPARE(m_answers.asked.size() + m_answers.told.size(), 0);
    QVERIFY(asides().isEmpty());
}

void StartupTest::aDamagedFileIsReplacedByTheNewestCopy()
{
    m_log->copy(LogbookFolder::document(u"old"_s));
    m_log->copy(LogbookFolder::document(u"new"_s));
    m_log->save("half");
    m_answers.pressReturn();
    const Started started = run();
    QCOMPARE(started.status, 0);
    QVERIFY(started.hasWindow);
    QCOMPARE(data(), LogbookFolder::document(u"new"_s));
    QCOMPARE(asides(), QByteArrayList{"half"});
    QCOMPARE(m_log->folder().backups().entryList({u"*-kept-*"_s}).size(), 1); // made before the damage
}

void StartupTest::aDamagedFileIsReplacedByTheChosenCopy()
{
    m_log->copy(LogbookFolder::document(u"old"_s));
    m_log->copy(LogbookFolder::document(u"new"_s));
    m_log->save("half");
    m_answers.press(Restore, 1);
    QCOMPARE(run().status, 0);
    QCOMPARE(data(), LogbookFolder::document(u"old"_s));
    QCOMPARE(asides(), QByteArrayList{"half"});
}

void StartupTest::aDamagedFileIsReplacedByAnEmptyLogbook()
{
    m_log->copy(LogbookFolder::document(u"old"_s));
    m_log->save("half");
    m_answers.press(StartEmpty);
    const Started started = run();
    QCOMPARE(started.status, 0);
    QVERIFY(started.hasWindow);
    QCOMPARE(data(), CatalogueFile::emptyDocument());
    QCOMPARE(asides(), QByteArrayList{"half"});
}

void StartupTest::aDamagedFileStaysWhereItIsWhenTheUserQuits()
{
    m_log->copy(LogbookFolder::document(u"old"_s));
    m_log->save("half");
    const auto before = m_log->snapshot();
    const Started started = run();
    QCOMPARE(started.status, 1);
    QVERIFY(!started.hasWindow);
    QCOMPARE(m_answers.asked.size(), 1);
    QCOMPARE(m_log->snapshot(), before); // the lock is gone, too
}

void StartupTest::aMissingFileIsRestoredFromACopy()
{
    m_log->copy(LogbookFolder::document(u"old"_s));
    m_answers.pressReturn();
    const Started started = run();
    QCOMPARE(started.status, 0);
    QCOMPARE(m_answers.asked.size(), 1);
    QCOMPARE(data(), LogbookFolder::document(u"old"_s));
    QVERIFY(asides().isEmpty());
}

void StartupTest::aMissingFileIsReplacedByAnEmptyLogbook()
{
    m_log->copy(LogbookFolder::document(u"old"_s));
    m_answers.press(StartEmpty);
    QCOMPARE(run().status, 0);
    QCOMPARE(data(), CatalogueFile::emptyDocument());
}

void StartupTest::aMissingFileStaysMissingWhenTheUserQuits()
{
    m_log->copy(LogbookFolder::document(u"old"_s));
    const auto before = m_log->snapshot();
    const Started started = run();
    QCOMPARE(started.status, 1);
    QVERIFY(!started.hasWindow);
    QCOMPARE(m_log->snapshot(), before);
}

void StartupTest::aRestoreThatFailsChangesNothing()
{
    const QByteArray large = LogbookFolder::document(QString(20'000, u'x'));
    m_log->copy(large);
    m_log->save("half");
    m_answers.pressReturn();
    {
        const FullDisk disk(10'000); // enough for a lock
        const Started started = run();
        QCOMPARE(started.status, 1);
        QVERIFY(!started.hasWindow);
    }
    QCOMPARE(m_answers.told.size(), 1);
    QVERIFY2(m_answers.told.constFirst().contains(u"the file would be too large. All is as it was."_s),
             qPrintable(m_answers.told.constFirst()));
    QCOMPARE(m_log->snapshot().values(), (QList<QByteArray>{large, "half"}));
}

void StartupTest::aVersionThatIsGoneMeanwhileChangesNothing()
{
    const QString copy = m_log->copy(LogbookFolder::document(u"old"_s));
    m_log->save("half");
    m_answers.pressReturn();
    m_answers.whenAsked = [&] { QVERIFY(Test::write(copy, "damaged now")); };
    const Started started = run();
    QCOMPARE(started.status, 1);
    QVERIFY(!started.hasWindow);
    QCOMPARE(m_log->snapshot().values(), (QList<QByteArray>{"damaged now", "half"}));
    QVERIFY(m_answers.told.value(0).contains(u"cannot be read any more"_s));
}

void StartupTest::anInterruptedRestoreIsFinished()
{
    QVERIFY(Test::write(m_log->file(u"voltbok-new.xml"_s), LogbookFolder::document(u"new"_s)));
    QVERIFY(Test::write(m_log->file(u"voltbok-broken-20261120-120000-000Z.xml"_s), "half"));
    const Started started = run();
    QCOMPARE(started.status, 0);
    QVERIFY(started.hasWindow);
    QCOMPARE(m_answers.asked.size(), 0);
    QCOMPARE(data(), LogbookFolder::document(u"new"_s));
}

void StartupTest::whatIsNotUnderstoodIsPutAsideOnce()
{
    m_log->save(strange());
    QByteArray held;
    const Started started = Started::run(commandLine(), m_answers, [&](MainWindow &window) {
        held = CatalogueFile::heldBy(*window.findChild<VoltbokGui *>(), m_log->path()).document;
    });
    QCOMPARE(started.status, 0);
    QCOMPARE(held, CatalogueFile::loadAndSave(strange()).document); // what is understood
    QCOMPARE(asides(), QByteArrayList{strange()});
    QVERIFY(data() == strange()); // nothing was changed: nothing is saved
    QCOMPARE(started.messages.size(), 1);
    const QString message = started.messages.constFirst();
    QVERIFY2(message.contains(u"the element “Chemistry” in line 18"_s), qPrintable(message));
    QVERIFY2(message.contains(u"and"_s) && message.contains(u" more"_s), qPrintable(message));
    QVERIFY2(message.contains(m_log->folder().asides().constFirst()), qPrintable(message));

    QCOMPARE(run().messages, started.messages);
    QCOMPARE(asides().size(), 1);
}

void StartupTest::whatIsNotUnderstoodIsNotOpenedWhereItCannotBePutAside()
{
    // The file is a link into a folder that nothing can be added to.
    const QDir sync(QDir(m_log->root()).filePath(u"sync"_s));
    QVERIFY(sync.mkpath(u"."_s));
    QVERIFY(Test::write(sync.filePath(u"voltbok.xml"_s), strange()));
    QVERIFY(QFile::link(sync.filePath(u"voltbok.xml"_s), m_log->dataFile()));
    qputenv("XDG_CACHE_HOME", QFile::encodeName(m_log->root())); // where another user's locks go
    QFile::setPermissions(sync.filePath(u"voltbok.xml"_s), QFile::Permissions(0x6666));
    QFile::setPermissions(m_log->root(), QFile::Permissions(0x7777));
    QFile::setPermissions(m_log->path(), QFile::Permissions(0x7777));
    const auto before = m_log->snapshot();
    {
        const Refusal closed(sync.path(), 0555);
        QVERIFY(closed.works());
        const Started started = run();
        QCOMPARE(started.status, 1);
        QVERIFY(!started.hasWindow);
    }
    QVERIFY2(m_answers.told.value(0).contains(u"no copy of it can be put aside: permission denied. Nothing "
                                              "was changed."_s),
             qPrintable(m_answers.told.value(0)));
    qunsetenv("XDG_CACHE_HOME");
    QCOMPARE(m_log->snapshot(), before);
}

void StartupTest::whatCannotBeCheckedIsNotOpened()
{
    m_log->save(Test::sample());
    const auto before = m_log->snapshot();
    {
        const FullDisk disk(10'000);
        const Started started = run();
        QCOMPARE(started.status, 1);
        QVERIFY(!started.hasWindow);
    }
    QVERIFY2(m_answers.told.value(0).contains(u"cannot be checked before it is opened: "_s),
             qPrintable(m_answers.told.value(0)));
    QCOMPARE(m_log->snapshot(), before);
}

void StartupTest::whatCannotBeReadIsToldAndNeverReplaced_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : {"pipe", "folder", "link to nothing", "link to a pipe", "large"})
        QTest::newRow(kind) << QByteArray(kind);
}

void StartupTest::whatCannotBeReadIsToldAndNeverReplaced()
{
    QFETCH(QByteArray, kind);
    m_log->copy(LogbookFolder::document(u"old"_s));
    const QString path = m_log->dataFile();
    // Nothing of the machine's own: a program that is wrong would put a logbook in its place.
    if (kind == "pipe")
        QCOMPARE(mkfifo(QFile::encodeName(path), 0600), 0);
    else if (kind == "folder")
        QVERIFY(QDir().mkdir(path));
    else if (kind == "large")
        QVERIFY(QFile(path).open(QFile::WriteOnly) && QFile::resize(path, 300'000'000));
    else
        QVERIFY(QFile::link(m_log->file(u"elsewhere"_s), path));
    if (kind == "link to a pipe")
        QCOMPARE(mkfifo(QFile::encodeName(m_log->file(u"elsewhere"_s)), 0600), 0);
    const QStringList before = QDir(m_log->path()).entryList(QDir::AllEntries | QDir::System);
    m_answers.pressReturn();
    const Started started = run();
    QCOMPARE(started.status, 1);
    QVERIFY(!started.hasWindow);
    QCOMPARE(m_answers.asked.size(), 0);
    QCOMPARE(m_answers.told.size(), 1);
    QVERIFY2(m_answers.told.constFirst().contains(u"cannot be read: it is "_s),
             qPrintable(m_answers.told.constFirst()));
    QCOMPARE(QDir(m_log->path()).entryList(QDir::AllEntries | QDir::System), before);
}

QTEST_MAIN(StartupTest)
#include "tst_startup.moc"
