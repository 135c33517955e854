// SPDX-License-Identifier: GPL-3.0-or-later
// What the dialog of the copies does not restore, and what it says then.
#include "tests/host/support/showncopies.h"

using namespace Host;
using namespace ShownCopies;
using namespace Qt::Literals::StringLiterals;

class BackupsRefusalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsRestoredWhileAFlightIsEntered();
    void aCopyThatIsNotWholeCannotBeChosenAndSaysWhy_data();
    void aCopyThatIsNotWholeCannotBeChosenAndSaysWhy();
    void aCopyThatBreaksMeanwhileIsNotRestored();
    void whatIsThereAlreadyIsNotRestored();
    void aFailureIsToldAndLeavesEverythingAsItWas_data();
    void aFailureIsToldAndLeavesEverythingAsItWas();
    void aRestoreThatIsCancelledChangesNothing();
    void withoutCopiesThereIsNothingToRestore();
};

void BackupsRefusalsTest::nothingIsRestoredWhileAFlightIsEntered()
{
    HostWindow window;
    putCopy(window, other());
    Shown shown(window);
    QVERIFY(shown.choose(1));
    window.logbook().setCapturing(true);
    QVERIFY(!shown.button(u"Restore"_s)->isEnabled());
    shown.dialog.accept();
    QVERIFY(shown.dialog.isVisible());
    for (QAction *action : window.window().menuBar()->actions().constFirst()->menu()->actions()) {
        if (action->text().remove(u'&') == u"Backups…"_s)
            QVERIFY(!action->isEnabled());
    }
    const QByteArray before = window.bytes();
    QVERIFY(!window.logbook().restore({other(), {}, {}, {}}).problem.isEmpty());
    QCOMPARE(window.bytes(), before);
    window.logbook().setCapturing(false);
    QVERIFY(shown.button(u"Restore"_s)->isEnabled());
}

void BackupsRefusalsTest::aCopyThatIsNotWholeCannotBeChosenAndSaysWhy_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    QTest::newRow("cut off") << other().chopped(30) << u"line "_s;
    QTest::newRow("empty") << QByteArray() << u"it is empty"_s;
    QTest::newRow("something else") << QByteArray("<html/>") << u"it is not a logbook"_s;
}

void BackupsRefusalsTest::aCopyThatIsNotWholeCannotBeChosenAndSaysWhy()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    HostWindow window;
    putCopy(window, bytes);
    Shown shown(window);
    QTRY_VERIFY(shown.isCompared());
    QVERIFY2(shown.text(1).startsWith(u"not whole: "_s) && shown.text(1).contains(reason),
             qPrintable(shown.text(1)));
    QCOMPARE(shown.copies->index(1, 0).flags(), Qt::NoItemFlags);
    QVERIFY(shown.choose(0));
    shown.table->setCurrentIndex(shown.copies->index(1, 0));
    QCOMPARE(shown.table->currentIndex().row(), 0);
    // Nobody knows that it is not whole before it is read.
    QVERIFY(Test::write(
        StorageFolder(window.path()).backups().filePath(u"voltbok-99999999-20990101-000000-000Z.xml"_s),
        bytes));
    Shown again(window);
    QCOMPARE(again.table->currentIndex().row(), 0);
    QTRY_VERIFY(again.isCompared());
    QVERIFY2(!again.texts().filter(u"This copy cannot be restored: "_s).isEmpty(),
             qPrintable(again.texts().join(u'\n')));
    QVERIFY(!again.button(u"Restore"_s)->isEnabled());
    const QByteArray before = window.bytes();
    again.dialog.accept();
    QVERIFY(again.dialog.isVisible());
    QCOMPARE(window.bytes(), before);
}

void BackupsRefusalsTest::aCopyThatBreaksMeanwhileIsNotRestored()
{
    HostWindow window;
    const QString name = putCopy(window, other());
    const QByteArray before = window.bytes();
    Shown shown(window);
    QVERIFY(shown.choose(1));
    QVERIFY(Test::write(StorageFolder(window.path()).backups().filePath(name), other().chopped(30)));
    shown.press(u"Restore"_s);
    QVERIFY(shown.dialog.isVisible());
    QVERIFY(!shown.texts().filter(u"not whole any more"_s).isEmpty());
    QVERIFY(!shown.button(u"Restore"_s)->isEnabled());
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.logbook().canUndo());
}

void BackupsRefusalsTest::whatIsThereAlreadyIsNotRestored()
{
    HostWindow window;
    const auto copies = window.copies();
    Shown shown(window);
    QVERIFY(shown.choose(0));
    shown.press(u"Restore"_s);
    QVERIFY(shown.dialog.isVisible());
    QVERIFY(!shown.texts().filter(u"already. Nothing was changed."_s).isEmpty());
    QVERIFY(!window.logbook().canUndo());
    QCOMPARE(window.copies(), copies);
}

void BackupsRefusalsTest::aFailureIsToldAndLeavesEverythingAsItWas_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("full disk") << 0;
    QTest::newRow("copies cannot be written") << 1;
    QTest::newRow("the measured values cannot be written") << 2;
}

void BackupsRefusalsTest::aFailureIsToldAndLeavesEverythingAsItWas()
{
    QFETCH(int, kind);
    HostWindow window;
    Measured measured;
    measured.discharges.append(MeasuredDischarge());
    putCopy(window, other(), kind == 2 ? MeasuredFile::save(measured) : QByteArray());
    window.clickCard(u"Pack B"_s);
    window.settle();
    const QByteArray before = window.bytes();
    const StorageFolder folder(window.path());
    Shown shown(window);
    QVERIFY(shown.choose(2));
    std::shared_ptr<void> fault;
    if (kind == 0)
        fault = std::make_shared<FullDisk>(500);
    if (kind == 1) {
        // The newest copy is broken by somebody, so that another one is needed.
        QVERIFY(Test::write(folder.backups().filePath(Backups::list(folder).constFirst().name), "half"));
        fault = std::make_shared<Refusal>(folder.backups().path(), 0555);
    }
    if (kind == 2) // where there was nothing at the start, somebody puts what is no file
        QVERIFY(QFile::link(u"/nowhere/at/all"_s, folder.measuredFile()));
    shown.press(u"Restore"_s);
    fault.reset();
    QVERIFY2(shown.dialog.isVisible(), qPrintable(shown.dialog.report()));
    QVERIFY2(!shown.texts().filter(u"Nothing was changed: "_s).isEmpty(),
             qPrintable(shown.texts().join(u'\n')));
    QCOMPARE(window.bytes(), before);
    QCOMPARE(window.logbook().catalogue()->locations.size(), 1);
    QVERIFY(window.logbook().undoName() != u"Copy restored"_s);
}

void BackupsRefusalsTest::aRestoreThatIsCancelledChangesNothing()
{
    for (int steps = 1; steps <= 4; ++steps) {
        HostWindow window;
        putCopy(window, other());
        const QByteArray before = window.bytes();
        Shown shown(window);
        QVERIFY(shown.choose(1));
        window.questions.cancelAfter(steps);
        shown.press(u"Restore"_s);
        QVERIFY(!shown.texts().filter(u"you have cancelled it"_s).isEmpty());
        QCOMPARE(window.bytes(), before);
        QVERIFY(!window.logbook().canUndo());
        window.questions.cancelAfter(0);
        QVERIFY(shown.choose(1));
        shown.press(u"Restore"_s);
        QCOMPARE(window.bytes(), other());
    }
}

void BackupsRefusalsTest::withoutCopiesThereIsNothingToRestore()
{
    HostWindow window;
    QVERIFY(StorageFolder(window.path()).backups().removeRecursively());
    Shown shown(window);
    QVERIFY(!shown.texts().filter(u"There is no copy yet."_s).isEmpty());
    QVERIFY(!shown.button(u"Restore"_s)->isEnabled());
    shown.dialog.accept();
    QVERIFY(shown.dialog.isVisible());
}

QTEST_MAIN(BackupsRefusalsTest)
#include "tst_backupsrefusals.moc"
