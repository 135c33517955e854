// SPDX-License-Identifier: GPL-3.0-or-later
// A double click, the commonest slip of the hand, where it would change the logbook twice.
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"

#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

/** Two models, both without batteries but for the first, which has the charged "One". */
QByteArray hangar()
{
    return Test::document(
        {{{u"One"_s, true}, {u"Two"_s}, {u"Three"_s}}, {{u"Firebrand"_s, {u"One"_s}}, {u"Skylark"_s}}});
}

void doubleClick(LogbookWindow &window, QWidget *target)
{
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {},
                       target->mapTo(&window.gui(), target->rect().center()));
}

/** What the window's system sends as the second half of a double click. */
void secondPress(QWidget *target, QPoint place = {})
{
    if (place.isNull())
        place = target->rect().center();
    QMouseEvent second(QEvent::MouseButtonDblClick, place, target->mapToGlobal(place), Qt::LeftButton,
                       Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &second);
    QTest::mouseRelease(target, Qt::LeftButton, {}, place);
}

void openEditPage(LogbookWindow &window)
{
    window.load(hangar());
    window.click(window.ui().pb_options);
    window.click(window.ui().pb_edit_data);
}

void openDischargePage(LogbookWindow &window)
{
    RotavexPlugin::rotavexSettings->setValue(u"SETTINGS/voltbok"_s, u"Complex"_s);
    window.load(hangar());
    window.clickCard(window.battery(u"One"_s));
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().dischargeView);
}

} // namespace

class DoubleClicksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onACardItRecordsOneFlight();
    void onAddItAssignsOneBattery();
    void onRemoveItTakesOneBatteryAway();
    void aSecondPressDoesNothingToTheOtherAssignmentButton();
    void twoClicksOnAddAreTwo();
    void theSpaceKeyTwiceOnAddIsTwoClicks();
    void onACardItLeavesTheDischargePageAsItCameUp();
    void thatBeganOnAnEarlierVisitItLeavesTheDischargePageAlone();
    void inAFieldOfTheDischargePageItSelects();
    void inTheLogBookItGoesTwoFlightsBack();
};

void DoubleClicksTest::onACardItRecordsOneFlight()
{
    LogbookWindow window;
    window.load(hangar());
    doubleClick(window, window.battery(u"One"_s)->findChild<QPushButton *>());
    QVERIFY(!window.battery(u"One"_s)->getBatteryCharged());
    QCOMPARE(window.model(u"Firebrand"_s)->getLogData().size(), 1);
    QCOMPARE(window.battery(u"One"_s)->getDates().size(), 1);
}

void DoubleClicksTest::onAddItAssignsOneBattery()
{
    LogbookWindow window;
    openEditPage(window);
    window.choose(window.ui().cb_model_choose_bat, u"Skylark"_s);
    window.choose(window.ui().cb_bat_choose_model, u"Two"_s);
    doubleClick(window, window.ui().pb_add_batt_to_model);
    QCOMPARE(window.model(u"Skylark"_s)->getBatteries(), QStringList(u"Two"_s));
    QCOMPARE(window.model(u"Firebrand"_s)->getBatteries(), QStringList(u"One"_s));
    secondPress(window.ui().pb_rem_batt_from_model); // enabled now: One belongs to Firebrand
    QCOMPARE(window.model(u"Firebrand"_s)->getBatteries(), QStringList(u"One"_s));
}

void DoubleClicksTest::onRemoveItTakesOneBatteryAway()
{
    LogbookWindow window;
    openEditPage(window);
    window.load(Test::document(
        {{{u"One"_s}, {u"Two"_s}}, {{u"Firebrand"_s, {u"One"_s, u"Two"_s}}, {u"Skylark"_s, {u"Two"_s}}}}));
    window.choose(window.ui().cb_model_choose_bat, u"Skylark"_s);
    window.choose(window.ui().cb_bat_choose_model, u"Two"_s);
    doubleClick(window, window.ui().pb_rem_batt_from_model);
    QVERIFY(window.model(u"Skylark"_s)->getBatteries().isEmpty());
    QCOMPARE(window.model(u"Firebrand"_s)->getBatteries().size(), 2);
}

void DoubleClicksTest::aSecondPressDoesNothingToTheOtherAssignmentButton()
{
    LogbookWindow window;
    openEditPage(window);
    QVERIFY(window.ui().pb_rem_batt_from_model->isEnabled());
    QTest::mousePress(window.ui().pb_rem_batt_from_model, Qt::LeftButton, {}, QPoint(3, 3));
    QTest::mouseRelease(window.ui().pb_rem_batt_from_model, Qt::LeftButton, {}, QPoint(-30, -30));
    secondPress(window.ui().pb_rem_batt_from_model);
    QCOMPARE(window.model(u"Firebrand"_s)->getBatteries(), QStringList(u"One"_s));
}

void DoubleClicksTest::twoClicksOnAddAreTwo()
{
    LogbookWindow window;
    openEditPage(window);
    for (const QString &name : {u"Two"_s, u"Three"_s}) {
        window.choose(window.ui().cb_bat_choose_model, name);
        window.click(window.ui().pb_add_batt_to_model);
    }
    QCOMPARE(window.model(u"Firebrand"_s)->getBatteries().size(), 3);
}

void DoubleClicksTest::theSpaceKeyTwiceOnAddIsTwoClicks()
{
    LogbookWindow window;
    window.load(Test::document({{{u"One"_s}}, {{u"Firebrand"_s}}}));
    QPushButton *add = window.ui().pb_add_batt_to_model;
    window.click(window.ui().pb_options);
    window.click(window.ui().pb_edit_data);
    const QSignalSpy clicks(add, &QPushButton::clicked);
    QTest::keyClick(add, Qt::Key_Space);
    add->setEnabled(true);
    QTest::keyClick(add, Qt::Key_Space);
    QCOMPARE(clicks.count(), 2);
}

void DoubleClicksTest::onACardItLeavesTheDischargePageAsItCameUp()
{
    LogbookWindow window;
    openDischargePage(window);
    Ui_VoltbokGui &ui = window.ui();
    const int capacity = ui.sb_discharged_capacity->value();
    const QRect arrows = ui.sb_discharged_capacity->rect();
    secondPress(ui.sb_discharged_capacity, QPoint(arrows.right() - 5, arrows.top() + 7));
    QCOMPARE(ui.sb_discharged_capacity->value(), capacity);
    secondPress(ui.pb_save_discharged);
    QCOMPARE(ui.stackedWidget->currentWidget(), ui.dischargeView);
    QVERIFY(window.model(u"Firebrand"_s)->getLogData().isEmpty());
    QVERIFY(window.battery(u"One"_s)->getBatteryCharged());

    window.click(ui.pb_save_discharged);
    QCOMPARE(window.model(u"Firebrand"_s)->getLogData().size(), 1);
}

void DoubleClicksTest::thatBeganOnAnEarlierVisitItLeavesTheDischargePageAlone()
{
    LogbookWindow window;
    openDischargePage(window);
    window.click(window.ui().pb_save_discharged);
    window.clickCard(window.battery(u"One"_s)); // charged again
    window.clickCard(window.battery(u"One"_s));
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().dischargeView);
    secondPress(window.ui().pb_save_discharged);
    QCOMPARE(window.model(u"Firebrand"_s)->getLogData().size(), 1);
}

void DoubleClicksTest::inAFieldOfTheDischargePageItSelects()
{
    LogbookWindow window;
    openDischargePage(window);
    window.ui().ptext_log_notes->setPlainText(u"windy day"_s);
    QWidget *notes = window.ui().ptext_log_notes->viewport();
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {},
                       notes->mapTo(&window.gui(), QPoint(10, 10)));
    QCOMPARE(window.ui().ptext_log_notes->textCursor().selectedText(), u"windy"_s);
}

void DoubleClicksTest::inTheLogBookItGoesTwoFlightsBack()
{
    LogbookWindow window;
    window.load(hangar());
    for (int flight = 0; flight < 4; ++flight) {
        LogData entry;
        entry.date = QDateTime(QDate(2026, 11, 1 + flight), QTime(12, 0));
        window.model(u"Firebrand"_s)->addLogData(entry);
    }
    window.click(window.ui().pb_options);
    window.click(window.ui().pb_logbook);
    QCOMPARE(window.ui().lbl_logview_date->text(), u"Wed Nov 4 2026"_s);
    doubleClick(window, window.ui().pb_logview_prev);
    QCOMPARE(window.ui().lbl_logview_date->text(), u"Mon Nov 2 2026"_s);
}

QTEST_MAIN(DoubleClicksTest)
#include "tst_doubleclicks.moc"
