// SPDX-License-Identifier: GPL-3.0-or-later
// Work that takes long: it shows how far it is, can be cancelled, and leaves nothing half done.
#include "host/window/openlogbook.h"
#include "host/window/progress.h"
#include "host/window/sidepanel.h"
#include "tests/host/support/panel.h"

#include <QListWidget>
#include <QProgressBar>
#include <QTimer>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class ProgressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChangeIsCancelledWithNothingDone_data();
    void aChangeIsCancelledWithNothingDone();
    void whatIsWrittenCannotBeCancelled();
    void undoIsCancelledWithNothingDone();
    void aChangeMeetsNoVersionOfSomebodyElse_data() { addSteps(); }
    void aChangeMeetsNoVersionOfSomebodyElse();
    void aChangeMeetsNoFlightThatIsBeingEntered();
    void undoMeetsNoVersionOfSomebodyElse();
    void whatWasChangedIsNotReadAgain();
    void quickWorkShowsNothing();
    void longWorkShowsHowFarItIs();
    void longWorkIsCancelled_data();
    void longWorkIsCancelled();
    void workThatIsCommittedIsNotCancelled();
    void aLongReadingOfThePanelIsPutOff();
    void aLongReadingOfThePanelWaitsForAPause();

private:
    static constexpr int LastStep = 5; // before the file is written
    static void addSteps();
    static QString rename(HostWindow &window);
};

void ProgressTest::addSteps()
{
    QTest::addColumn<int>("step");
    for (int step = 1; step <= LastStep; ++step)
        QTest::addRow("step %d", step) << step;
}

QString ProgressTest::rename(HostWindow &window)
{
    return window.logbook().change(u"Renamed"_s, [](Catalogue &catalogue) {
        catalogue.batteries[0].name = u"Pack Z"_s;
        return QString();
    });
}

void ProgressTest::aChangeIsCancelledWithNothingDone_data()
{
    addSteps();
}

void ProgressTest::aChangeIsCancelledWithNothingDone()
{
    QFETCH(int, step);
    HostWindow window;
    const QByteArray before = window.bytes();
    window.questions.cancelAfter(step);
    QVERIFY(rename(window).contains(u"you have cancelled it"_s));
    QCOMPARE(window.questions.works(),
             (QStringList{u"The logbook is opened…"_s, u"The logbook is changed…"_s}));
    QCOMPARE(window.bytes(), before);
    QVERIFY(window.battery(u"Pack A"_s));
    QVERIFY(!window.logbook().canUndo());
    QCOMPARE(window.logbook().catalogue()->batteries.at(0).name, u"Pack A"_s);
    window.questions.cancelAfter(0);
    QCOMPARE(rename(window), QString());
    QVERIFY(window.battery(u"Pack Z"_s));
}

void ProgressTest::whatIsWrittenCannotBeCancelled()
{
    HostWindow window;
    window.questions.cancelAfter(LastStep + 1);
    QCOMPARE(rename(window), QString());
    QVERIFY(window.battery(u"Pack Z"_s));
    QCOMPARE(window.logbook().undoName(), u"Renamed"_s);
}

void ProgressTest::undoIsCancelledWithNothingDone()
{
    HostWindow window;
    QCOMPARE(rename(window), QString());
    const QByteArray after = window.bytes();
    window.questions.cancelAfter(1);
    QVERIFY(window.logbook().undo().contains(u"you have cancelled it"_s));
    QCOMPARE(window.bytes(), after);
    QVERIFY(window.logbook().canUndo() && !window.logbook().canRedo());
    window.questions.cancelAfter(2);
    QCOMPARE(window.logbook().undo(), QString());
    QVERIFY(window.battery(u"Pack A"_s));
}

void ProgressTest::aChangeMeetsNoVersionOfSomebodyElse()
{
    QFETCH(int, step);
    HostWindow window;
    const QByteArray theirs = HostWindow::theirs(u"Pack T"_s);
    int done = 0;
    window.questions.atEachStep([&] {
        if (++done == step)
            window.put(theirs);
    });
    QVERIFY(rename(window).contains(u"changed meanwhile"_s));
    QCOMPARE(window.bytes(), theirs);
}

void ProgressTest::aChangeMeetsNoFlightThatIsBeingEntered()
{
    HostWindow window;
    const QByteArray before = window.bytes();
    window.questions.atEachStep([&] { window.logbook().setCapturing(true); });
    QVERIFY(rename(window).contains(u"changed meanwhile"_s));
    QCOMPARE(window.bytes(), before);
}

void ProgressTest::undoMeetsNoVersionOfSomebodyElse()
{
    HostWindow window;
    QCOMPARE(rename(window), QString());
    const QByteArray theirs = HostWindow::theirs(u"Pack T"_s);
    window.questions.atEachStep([&] { window.put(theirs); });
    QVERIFY(window.logbook().undo().contains(u"changed meanwhile"_s));
    QCOMPARE(window.bytes(), theirs);
}

void ProgressTest::whatWasChangedIsNotReadAgain()
{
    HostWindow window;
    QCOMPARE(rename(window), QString());
    QVERIFY(window.logbook().isRead());
    QCOMPARE(window.logbook().catalogue()->batteries.at(0).name, u"Pack Z"_s);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.logbook().catalogue()->batteries.at(0).name, u"Pack A"_s);
}

void ProgressTest::quickWorkShowsNothing()
{
    bool isHandled = false;
    const QObject here; // the event may come when this is over
    QTimer::singleShot(0, &here, [&] { isHandled = true; });
    ProgressBox progress(u"Working…"_s, 4);
    for (int step = 0; step < 4; ++step)
        QVERIFY(progress.step());
    QVERIFY(!isHandled && !progress.m_box.isVisible());
}

void ProgressTest::longWorkShowsHowFarItIs()
{
    bool isHandled = false;
    const QObject here; // the event may come when this is over
    QTimer::singleShot(0, &here, [&] { isHandled = true; });
    ProgressBox progress(u"Working…"_s, 4);
    QTest::qSleep(120); // four of these are more than a moment
    QVERIFY(progress.step());
    QVERIFY(isHandled && progress.m_box.isVisible() && progress.m_box.isModal());
    QCOMPARE(progress.m_box.labelText(), u"Working…"_s);
    QCOMPARE(progress.m_bar->value(), 1);
    QCOMPARE(progress.m_bar->maximum(), 4);
    QCOMPARE(Panel::nameless(progress.m_box), QStringList());
}

void ProgressTest::longWorkIsCancelled_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by the button") << false;
    QTest::newRow("by Escape") << true;
}

void ProgressTest::longWorkIsCancelled()
{
    QFETCH(bool, byKey);
    ProgressBox progress(u"Working…"_s, 4);
    QTest::qSleep(120);
    QVERIFY(progress.step());
    QTimer::singleShot(0, &progress.m_box, [&] {
        if (byKey)
            QTest::keyClick(&progress.m_box, Qt::Key_Escape);
        else
            LogbookWindow::click(progress.m_box.findChild<QPushButton *>());
    });
    QVERIFY(!progress.step());
    QVERIFY(!progress.step());
    QVERIFY(!progress.m_box.isVisible());
}

void ProgressTest::workThatIsCommittedIsNotCancelled()
{
    ProgressBox progress(u"Working…"_s, 4);
    QTest::qSleep(120);
    QVERIFY(progress.step());
    progress.commit();
    QTest::keyClick(&progress.m_box, Qt::Key_Escape);
    QVERIFY(progress.step());
    const auto *button = progress.m_box.findChild<QPushButton *>();
    QVERIFY(!button || !button->isVisible());
}

void ProgressTest::aLongReadingOfThePanelIsPutOff()
{
    HostWindow window;
    QWidget &tab = Panel::open(window, SidePanel::Batteries);
    auto *panel = window.window().findChild<SidePanel *>();
    panel->m_readingTime = 60'000;
    const auto *view = tab.findChild<QAbstractItemView *>();
    QVERIFY(!panel->m_reading->isVisible());
    window.put(HostWindow::theirs(u"Pack T"_s));
    QTRY_VERIFY(panel->m_reading->isVisible());
    QCOMPARE(panel->m_reading->text(), u"Not Now"_s);
    LogbookWindow::click(panel->m_reading);
    QCOMPARE(panel->m_reading->text(), u"Refresh"_s);
    QVERIFY(!panel->m_whenIdle.isActive());
    panel->setCurrentIndex(SidePanel::Today);
    panel->setCurrentIndex(SidePanel::Batteries);
    QCOMPARE(view->model()->rowCount(), 2);
    LogbookWindow::click(panel->m_reading);
    QCOMPARE(view->model()->rowCount(), 1);
    QVERIFY(!panel->m_reading->isVisible());
}

void ProgressTest::aLongReadingOfThePanelWaitsForAPause()
{
    HostWindow window;
    QWidget &tab = Panel::open(window, SidePanel::Batteries);
    auto *panel = window.window().findChild<SidePanel *>();
    panel->m_readingTime = 500;
    const auto *view = tab.findChild<QAbstractItemView *>();
    window.put(HostWindow::theirs(u"Pack T"_s));
    QTRY_VERIFY(panel->m_reading->isVisible());
    QTest::qWait(50);
    QCOMPARE(view->model()->rowCount(), 2);
    QTRY_COMPARE(view->model()->rowCount(), 1);
    QVERIFY(!panel->m_reading->isVisible());
}

QTEST_MAIN(ProgressTest)
#include "tst_progress.moc"
