// SPDX-License-Identifier: GPL-3.0-or-later
// Other programs remove or damage the file of an open logbook: nothing is written over it without an answer.
#include "host/window/openlogbook.h"
#include "tests/host/support/brokensaves.h"
#include "tests/host/support/otherprograms.h"

using namespace Host;
using namespace OtherPrograms;
using namespace Qt::Literals::StringLiterals;

class DamagedByOthersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<HostWindow>(); }
    void cleanup();
    void aDamagedFileIsNotWrittenOver_data() { addDamages(); }
    void aDamagedFileIsNotWrittenOver();
    void aDamagedFileIsPutBack_data() { addDamages(); }
    void aDamagedFileIsPutBack();
    void aDamagedFileThatIsPutRightIsOnShow_data() { addDamages(); }
    void aDamagedFileThatIsPutRightIsOnShow();
    void whatLiesInThePlaceOfTheFileIsNotWrittenOver_data();
    void whatLiesInThePlaceOfTheFileIsNotWrittenOver();
    void aClickOnAFileThatIsHalfWrittenIsHeld();
    void closingOverADamagedFileAsks();
    void aFullDiskInTheMiddleIsWaitedFor();

private:
    static void addDamages();
    HostWindow &window() { return *m_window; }
    bool shows(const QString &location) { return window().gui().locations().contains(location); }

    std::unique_ptr<HostWindow> m_window;
};

void DamagedByOthersTest::cleanup()
{
    QVERIFY(m_window->questions.isDone());
    m_window.reset();
}

void DamagedByOthersTest::addDamages()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("truncate") << u"truncate -s 100 $F"_s;
    QTest::newRow("truncate to nothing") << u"truncate -s 0 $F"_s;
    QTest::newRow("rm") << u"rm $F"_s;
    QTest::newRow("mv away") << u"mv $F other.xml"_s;
    QTest::newRow("a rsync that was cut") << u"head -c 500 $T > $T.part; rsync --inplace $T.part $F"_s;
    QTest::newRow("a limit in the middle") << u"(ulimit -f 1; cat $T > $F) 2> /dev/null || true"_s;
    QTest::newRow("sed -i") << u"sed -i 's/<\\/Battery>//' $F"_s;
    QTest::newRow("another document") << u"echo '<html/>' > $F"_s;
    QTest::newRow("zero bytes") << u"dd if=/dev/zero of=$F bs=100 count=10 status=none"_s;
    QTest::newRow("entities")
        << u"sed -i 's/<!DOCTYPE Voltbok>/<!DOCTYPE Voltbok [<!ENTITY a \"b\">]>/' $F"_s;
}

void DamagedByOthersTest::aDamagedFileIsNotWrittenOver()
{
    QFETCH(QString, line);
    makeImpatient(window());
    window().clickCard(u"Pack B"_s);
    window().settle();
    const QByteArray ours = window().bytes();
    QCOMPARE(run(window(), line, ours), QByteArray());
    const QByteArray damaged = window().bytes();
    QVERIFY(damaged != ours);
    QTRY_VERIFY(!window().others().isEmpty());
    QVERIFY(window().others().contains(window().filePath()));
    QVERIFY(!window().gui().isEnabled());
    QVERIFY(window().battery(u"Pack B"_s)->getBatteryCharged()); // as before
    QTest::mouseClick(window().battery(u"Pack A"_s)->findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(!window().logbook().mayChange());
    QVERIFY(!window().logbook().undo().isEmpty() || !window().logbook().canUndo());
    window().settle();
    QTest::qWait(400);
    QCOMPARE(window().bytes(), damaged);
    QCOMPARE(window().told.size(), 1);
    QCOMPARE(window().loss(), QString());
    const QList<Copy> copies = Backups::list(StorageFolder(window().path()));
    QVERIFY(copies.constFirst().kept);
    QCOMPARE(window().copies().constFirst(), ours);
    window().close(); // as when the session ends
    QCOMPARE(window().bytes(), damaged);
}

void DamagedByOthersTest::aDamagedFileIsPutBack()
{
    QFETCH(QString, line);
    makeImpatient(window());
    window().clickCard(u"Pack B"_s);
    window().settle();
    const QByteArray ours = window().bytes();
    QCOMPARE(run(window(), line, ours), QByteArray());
    const QByteArray damaged = window().bytes();
    QTRY_VERIFY(!window().others().isEmpty());
    window().press(u"Put the File Back"_s);
    window().settle();
    QCOMPARE(window().bytes(), ours);
    QCOMPARE(window().others(), QString());
    QVERIFY(window().gui().isEnabled());
    QVERIFY(window().logbook().mayChange());
    QVERIFY(window().logbook().canUndo());
    const QStringList asides = StorageFolder(window().path()).asides();
    const bool wasThere = damaged != Test::contents(u"/not/there"_s);
    QCOMPARE(asides.size(), wasThere ? 1 : 0);
    QVERIFY(!wasThere || Test::contents(asides.constFirst()) == damaged);
    window().clickCard(u"Pack B"_s);
    window().settle();
    QVERIFY(window().bytes() != ours);
}

void DamagedByOthersTest::aDamagedFileThatIsPutRightIsOnShow()
{
    QFETCH(QString, line);
    makeImpatient(window());
    const QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s);
    QCOMPARE(run(window(), line, theirs), QByteArray());
    QTRY_VERIFY(!window().others().isEmpty());
    QCOMPARE(run(window(), u"cp $T $F"_s, theirs), QByteArray());
    QTRY_VERIFY(shows(u"Their Hill"_s));
    QCOMPARE(window().others(), QString());
    QVERIFY(window().gui().isEnabled());
    QCOMPARE(run(window(), line, theirs), QByteArray());
    QTRY_VERIFY(!window().others().isEmpty());
    QCOMPARE(run(window(), u"cp $T new; mv new $F"_s, theirs), QByteArray()); // as it was
    QTRY_COMPARE(window().others(), QString());
    QVERIFY(window().gui().isEnabled());
    window().clickCard(u"Pack B"_s);
    QVERIFY(window().bytes().contains("Their Hill"));
}

void DamagedByOthersTest::whatLiesInThePlaceOfTheFileIsNotWrittenOver_data()
{
    QTest::addColumn<MakeFault>("fault");
    QTest::newRow("a folder") << MakeFault(Faults::folderInItsPlace);
    QTest::newRow("a link to nowhere") << MakeFault(Faults::linkToNowhereInItsPlace);
    QTest::newRow("a file in the folder's place") << MakeFault(Faults::fileInTheFoldersPlace);
}

void DamagedByOthersTest::whatLiesInThePlaceOfTheFileIsNotWrittenOver()
{
    QFETCH(MakeFault, fault);
    Fault present = fault(window());
    QVERIFY2(present.use_count() > 0, "the fault cannot be made here");
    window().clickCard(u"Pack B"_s); // told at once
    QVERIFY(!window().others().isEmpty());
    QVERIFY(!window().gui().isEnabled());
    QVERIFY(!window().battery(u"Pack B"_s)->getBatteryCharged());
    present.reset();
    QTRY_COMPARE(window().others(), QString());
    QVERIFY(window().gui().isEnabled());
    QCOMPARE(window().bytes(), HostWindow::sample());
    window().clickCard(u"Pack B"_s);
    window().settle();
    QVERIFY(window().bytes().count("<Charged>1<") == 2);
    QCOMPARE(window().loss(), QString());
}

void DamagedByOthersTest::aClickOnAFileThatIsHalfWrittenIsHeld()
{
    const QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s);
    window().put(theirs.left(400));
    window().clickCard(u"Pack B"_s);
    QCOMPARE(window().bytes(), theirs.left(400));
    QVERIFY(!window().others().isEmpty());
    window().put(theirs);
    QTRY_VERIFY(shows(u"Their Hill"_s));
    QVERIFY(window().gui().isEnabled());
    QVERIFY(!window().battery(u"Pack B"_s)->getBatteryCharged());
}

void DamagedByOthersTest::closingOverADamagedFileAsks()
{
    makeImpatient(window());
    QVERIFY(QFile::remove(window().filePath()));
    QTRY_VERIFY(window().others().contains(u"is gone"_s));
    window().questions.answer(u"Go Back"_s);
    QVERIFY(!window().window().close());
    window().questions.answer(u"Quit Anyway"_s);
    QVERIFY(window().window().close());
    window().close();
    QVERIFY(!QFileInfo::exists(window().filePath())); // not without an answer
    QCOMPARE(window().copies(), QByteArrayList{HostWindow::sample()});
}

void DamagedByOthersTest::aFullDiskInTheMiddleIsWaitedFor()
{
    if (!Mount::allowed()) // the same without a disk of its own is a row above
        return;
    const Fault filled = Faults::smallDiskThatIsFull(window());
    QVERIFY(filled != nullptr);
    makeImpatient(window());
    const QByteArray before = window().bytes();
    QByteArray theirs = HostWindow::withLocation(u"Their Hill"_s);
    theirs.insert(theirs.indexOf("<Locations>"), "<!--" + QByteArray(30000, 'x') + "-->");
    QVERIFY(!run(window(), u"cp $T $F"_s, theirs).isEmpty());
    QTRY_VERIFY(!window().others().isEmpty());
    QVERIFY(!window().gui().isEnabled());
    QVERIFY(window().battery(u"Pack B"_s));
    QCOMPARE(run(window(), u"rm filler; cp $T $F"_s, HostWindow::withLocation(u"Their Hill"_s)),
             QByteArray());
    QTRY_VERIFY(shows(u"Their Hill"_s));
    QVERIFY(window().gui().isEnabled());
    QCOMPARE(window().others(), QString());
}

QTEST_MAIN(DamagedByOthersTest)
#include "tst_damagedbyothers.moc"
