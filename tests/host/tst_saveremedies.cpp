// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons of the message about a save that failed: what they put back, and where.
#include "tests/host/support/brokensaves.h"
#include "tests/support/files.h"

using namespace Qt::Literals::StringLiterals;
using namespace Faults;

class SaveRemediesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void restoringWhileTheWindowHoldsMoreLosesNothing();
    void clicksOnAFullDiskAreRestoredAfterAnEditThere_data();
    void clicksOnAFullDiskAreRestoredAfterAnEditThere();
    void aRestoreThatFailsChangesNothing();
    void keptElsewhereTheLogbookIsWhole_data();
    void keptElsewhereTheLogbookIsWhole();
    void noLogbookIsKeptOnTopOfAnother_data();
    void noLogbookIsKeptOnTopOfAnother();

private:
    HostWindow &window() { return *m_window; }

    std::unique_ptr<HostWindow> m_window;
};

void SaveRemediesTest::init()
{
    m_window = std::make_unique<HostWindow>();
}

void SaveRemediesTest::cleanup()
{
    m_window->close();
    QVERIFY(m_window->questions.isDone());
    m_window.reset();
}

void SaveRemediesTest::restoringWhileTheWindowHoldsMoreLosesNothing()
{
    Fault fault = fullDisk(300)(window());
    window().clickCard(u"Pack A"_s);
    window().settle();
    fault.reset();
    const QByteArray cut = window().bytes();
    window().press(u"Restore Last State"_s);
    window().settle();
    QCOMPARE(window().loss(), QString());
    QCOMPARE(window().bytes().count("<LogData"), 1);
    QVERIFY(!window().battery(u"Pack A"_s)->getBatteryCharged());
    const QStringList asides = Host::StorageFolder(window().path()).asides();
    QCOMPARE(asides.size(), 1);
    QCOMPARE(Test::contents(asides.constFirst()), cut);
    QVERIFY(window().message(u"restored"_s).contains(asides.constFirst()));
}

void SaveRemediesTest::clicksOnAFullDiskAreRestoredAfterAnEditThere_data()
{
    QTest::addColumn<MakeFault>("fault");
    QTest::newRow("a read-only file") << MakeFault(readOnlyFile);
    if (Mount::allowed())
        QTest::newRow("a small disk") << MakeFault(smallDiskThatIsFull);
}

void SaveRemediesTest::clicksOnAFullDiskAreRestoredAfterAnEditThere()
{
    QFETCH(MakeFault, fault);
    Fault present = fault(window());
    QVERIFY2(present.use_count() > 0, "the fault cannot be made here");
    int flights = 0;
    while (window().loss().isEmpty()) { // what is on the disk already can be written once more
        window().clickCard(u"Pack A"_s);
        ++flights;
        window().clickCard(u"Pack A"_s);
        window().settle();
        QVERIFY2(flights < 200, "nothing failed");
    }
    QVERIFY(window().gui().isEnabled());
    window().addLocation(u"Hill"_s); // reads back what the file holds: without the flights
    QVERIFY(!window().gui().isEnabled());
    QVERIFY(window().loss().contains(u"less than you have recorded"_s));
    present.reset();
    window().press(u"Restore Last State"_s);
    window().settle();
    QCOMPARE(window().questions.told(), QStringList());
    QCOMPARE(window().bytes().count("<LogData"), flights);
    QCOMPARE(window().gui().modelList.constFirst()->getLogData().size(), flights);
    QVERIFY(window().gui().isEnabled());
    window().addLocation(u"Hill"_s);
    window().settle();
    QCOMPARE(window().loss(), QString());
    QCOMPARE(window().bytes().count("<LogData"), flights);
}

void SaveRemediesTest::aRestoreThatFailsChangesNothing()
{
    Fault fault = fullDisk(300)(window());
    window().addLocation(u"Hill"_s);
    const QByteArray cut = window().bytes();
    window().press(u"Restore Last State"_s);
    QCOMPARE(window().questions.told().size(), 1);
    QVERIFY(window().questions.told().constFirst().contains(u"Nothing was changed"_s));
    QCOMPARE(window().bytes(), cut);
    QVERIFY(!window().gui().isEnabled());
    fault.reset();
    window().press(u"Restore Last State"_s);
    QCOMPARE(window().bytes(), HostWindow::sample());
}

void SaveRemediesTest::keptElsewhereTheLogbookIsWhole_data()
{
    QTest::addColumn<MakeFault>("fault");
    QTest::addColumn<bool>("edits");
    QTest::newRow("a card, read-only") << MakeFault(readOnlyFile) << false;
    QTest::newRow("a card, cut") << fullDisk(300) << false;
    QTest::newRow("an edit, cut") << fullDisk(300) << true;
    QTest::newRow("an edit, read-only") << MakeFault(readOnlyFile) << true;
}

void SaveRemediesTest::keptElsewhereTheLogbookIsWhole()
{
    QFETCH(MakeFault, fault);
    QFETCH(bool, edits);
    Fault present = fault(window());
    if (edits)
        window().addLocation(u"Hill"_s);
    else
        window().clickCard(u"Pack A"_s);
    window().settle();
    const QByteArray left = window().bytes();
    if (left != HostWindow::sample())
        present.reset(); // a disk without any space takes no logbook elsewhere, either
    const QString elsewhere = window().place() + u"/elsewhere"_s;
    QVERIFY(QDir().mkdir(elsewhere));
    window().questions.choose(QString());
    window().press(u"Keep Elsewhere…"_s);
    QVERIFY(!window().loss().isEmpty()); // nothing was chosen
    window().questions.choose(elsewhere);
    window().press(u"Keep Elsewhere…"_s);
    QCoreApplication::processEvents();
    present.reset();
    window().settle();

    QCOMPARE(window().questions.told(), QStringList());
    const QByteArray kept = Test::contents(elsewhere + u"/voltbok.xml"_s);
    QCOMPARE(kept.count("<Capacity>"), 2);
    QCOMPARE(kept.count("<LogData"), edits ? 0 : 1);
    QCOMPARE(window().loss(), QString());
    QVERIFY(window().gui().isEnabled());
    QVERIFY(window().message(u"moved"_s).contains(elsewhere));
    QVERIFY(window().window().windowTitle().endsWith(u"elsewhere"_s));
    const QByteArray before = window().bytes();
    window().clickCard(u"Pack B"_s);
    window().settle();
    QVERIFY(Test::contents(elsewhere + u"/voltbok.xml"_s).contains("<Charged>1<"));
    QCOMPARE(window().bytes(), before);
}

void SaveRemediesTest::noLogbookIsKeptOnTopOfAnother_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a logbook") << u"voltbok.xml"_s;
    QTest::newRow("copies of one") << u"backups/voltbok-00000001-20261121-195112-123Z.xml"_s;
}

void SaveRemediesTest::noLogbookIsKeptOnTopOfAnother()
{
    QFETCH(QString, path);
    const QString elsewhere = window().place() + u"/elsewhere/"_s;
    QVERIFY(QDir().mkpath(QFileInfo(elsewhere + path).path()));
    QVERIFY(QFile::copy(window().filePath(), elsewhere + path));
    Fault fault = readOnlyFile(window());
    window().clickCard(u"Pack A"_s);
    window().settle();
    window().questions.choose(elsewhere);
    window().press(u"Keep Elsewhere…"_s);
    QVERIFY(window().questions.told().constLast().contains(u"already"_s));
    QCOMPARE(Test::contents(elsewhere + path), HostWindow::sample());
    QVERIFY(!window().loss().isEmpty());
    fault.reset();
    window().press(u"Try Again"_s);
}

QTEST_MAIN(SaveRemediesTest)
#include "tst_saveremedies.moc"
