// SPDX-License-Identifier: GPL-3.0-or-later
// A page that comes on show waits for the keyboard at the right place.
#include "gui/pages.h"
#include "tests/support/datafile.h"
#include "tests/support/editingwindow.h"

using namespace Qt::Literals::StringLiterals;

class PageEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }
    void everyPageHasTheFocusInTheRightPlace_data();
    void everyPageHasTheFocusInTheRightPlace();
    void everyLaterVisitDoesTheSame_data() { everyPageHasTheFocusInTheRightPlace_data(); }
    void everyLaterVisitDoesTheSame();
    void typingAtOnceReplacesTheDefaultName();
    void theNameJustAddedIsReplacedOnTheNextVisit();
    void aQuestionLeftOpenIsNotAnsweredBySpace();
    void spaceOnALaterVisitAddsNothing();
    void typingAtOnceReplacesTheDateOfADischarge();
    void theFocusOfTheOverviewStaysWhereItIsUsed();
    void aWindowInTheBackgroundStaysThere();
    void tabLeavesTheNotes_data();
    void tabLeavesTheNotes();

private:
    std::unique_ptr<EditingWindow> m_window;

    void visit(const QString &page);
    QString nameInFocus();
};

void PageEntryTest::init()
{
    m_window = std::make_unique<EditingWindow>();
    RotavexPlugin::rotavexSettings->setValue(u"SETTINGS/voltbok"_s, u"Complex"_s);
    Test::Model heli{u"Heli"_s, {u"Pack"_s}};
    heli.type.clear();
    heli.notes.clear();
    m_window->load(Test::document({{{u"Pack"_s, true}, {u"Spare"_s}}, {heli}, {u"Meadow"_s}}));
    QVERIFY(QTest::qWaitForWindowActive(&m_window->gui()));
}

/** Goes to a page as a user does. */
void PageEntryTest::visit(const QString &page)
{
    Ui_VoltbokGui &ui = m_window->ui();
    m_window->goToOverview();
    if (page == ui.dischargeView->objectName())
        return LogbookWindow::clickCard(m_window->battery(u"Pack"_s));
    const QMap<QString, QAbstractButton *> ofMenu{{u"logView"_s, ui.pb_logbook},
                                                  {u"dataView"_s, ui.pb_chart},
                                                  {u"editDataView"_s, ui.pb_edit_data},
                                                  {u"modeView"_s, ui.pb_mode}};
    const QMap<QString, QPushButton *> ofEditPage{{u"addLocationView"_s, ui.pb_choose_addlocation},
                                                  {u"addView"_s, ui.pb_choose_addbattery},
                                                  {u"addModelView"_s, ui.pb_choose_addmodel},
                                                  {u"deleteView"_s, ui.pb_choose_delbattery},
                                                  {u"deleteModelView"_s, ui.pb_choose_delmodel},
                                                  {u"deleteLocationView"_s, ui.pb_choose_dellocation},
                                                  {u"modBatteryView"_s, ui.pb_choose_modify_battery},
                                                  {u"modModelView"_s, ui.pb_choose_modify_model}};
    if (page == u"optionsView" || page == u"scrollLayout" || ofMenu.contains(page))
        LogbookWindow::click(ui.pb_options);
    if (page == u"scrollLayout")
        LogbookWindow::click(ui.pb_options);
    else if (ofMenu.contains(page))
        LogbookWindow::click(ofMenu.value(page));
    else if (ofEditPage.contains(page))
        m_window->goTo(ofEditPage.value(page));
}

QString PageEntryTest::nameInFocus()
{
    const QWidget *focused = (*m_window)->focusWidget();
    return focused && focused->hasFocus() ? focused->objectName() : QString();
}

void PageEntryTest::everyPageHasTheFocusInTheRightPlace_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("focus");
    QTest::addColumn<QString>("selected");
    QTest::newRow("overview") << u"scrollLayout"_s << u"scrollArea"_s << QString();
    QTest::newRow("menu") << u"optionsView"_s << u"pb_logbook"_s << QString();
    QTest::newRow("mode") << u"modeView"_s << u"rb_modeAdvanced"_s << QString();
    QTest::newRow("chart") << u"dataView"_s << u"cb_batteryData"_s << QString();
    QTest::newRow("edit") << u"editDataView"_s << u"pb_choose_addlocation"_s << QString();
    QTest::newRow("add battery") << u"addView"_s << u"ledt_name"_s << u"MyBattery"_s;
    QTest::newRow("add model") << u"addModelView"_s << u"ledt_addheli_name"_s << u"MyHeli"_s;
    QTest::newRow("add location") << u"addLocationView"_s << u"ledt_location_new"_s << u"MyLocation"_s;
    QTest::newRow("delete battery") << u"deleteView"_s << u"cb_batteryList_delete"_s << QString();
    QTest::newRow("delete model") << u"deleteModelView"_s << u"cb_modelList_delete"_s << QString();
    QTest::newRow("delete location") << u"deleteLocationView"_s << u"cb_location_delete"_s << QString();
    QTest::newRow("log book") << u"logView"_s << u"cb_logview_model"_s << QString();
    QTest::newRow("discharge") << u"dischargeView"_s << u"dedt_dischargeDate"_s
                               << QDate::currentDate().toString(u"yyyy"_s);
    QTest::newRow("modify battery") << u"modBatteryView"_s << u"ledt_modifyBattery_capacity"_s << u"2200 "_s;
    QTest::newRow("modify model") << u"modModelView"_s << u"ledt_modifyheli_type"_s << QString();
}

void PageEntryTest::everyPageHasTheFocusInTheRightPlace()
{
    QFETCH(QString, page);
    QFETCH(QString, selected);
    visit(page);
    QCOMPARE(m_window->ui().stackedWidget->currentWidget()->objectName(), page);
    QTEST(nameInFocus(), "focus");
    QWidget *focused = (*m_window)->focusWidget();
    auto *field = qobject_cast<QLineEdit *>(focused);
    if (!field)
        field = focused->findChild<QLineEdit *>();
    if (field)
        QCOMPARE(field->selectedText(), selected);
}

void PageEntryTest::everyLaterVisitDoesTheSame()
{
    QFETCH(QString, page);
    visit(page);
    const QWidget *shown = m_window->ui().stackedWidget->currentWidget();
    QTest::keyClick((*m_window)->focusWidget(), Qt::Key_Tab);
    QTest::keyClick((*m_window)->focusWidget(), Qt::Key_Tab);
    QVERIFY(shown->isVisible());
    everyPageHasTheFocusInTheRightPlace();
}

void PageEntryTest::typingAtOnceReplacesTheDefaultName()
{
    visit(u"addView"_s);
    QTest::keyClicks((*m_window)->focusWidget(), u"Pack A"_s);
    QCOMPARE(m_window->ui().ledt_name->text(), u"Pack A"_s);
    LogbookWindow::click(m_window->ui().pb_addNewBattery);
    QVERIFY(m_window->fileBytes().contains("<Name>Pack A</Name>"));
}

void PageEntryTest::theNameJustAddedIsReplacedOnTheNextVisit()
{
    for (const QString &name : {u"Hill"_s, u"Valley"_s}) {
        visit(u"addLocationView"_s);
        QTest::keyClicks((*m_window)->focusWidget(), name);
        LogbookWindow::click(m_window->ui().pb_add_location);
    }
    QCOMPARE(EditingWindow::items(m_window->ui().cb_log_location),
             QStringList({u"Meadow"_s, u"Hill"_s, u"Valley"_s}));
}

void PageEntryTest::aQuestionLeftOpenIsNotAnsweredBySpace()
{
    visit(u"deleteView"_s);
    LogbookWindow::click(m_window->ui().pb_deleteConfirm);
    QCOMPARE(m_window->ui().pb_deleteConfirm->text(), u"Yes"_s);
    const QByteArray before = m_window->fileBytes();
    visit(u"deleteView"_s);
    QVERIFY(!m_window->ui().pb_deleteConfirm->hasFocus());
    QTest::keyClick((*m_window)->focusWidget(), Qt::Key_Space);
    QTest::keyClick((*m_window)->focusWidget(), Qt::Key_Escape);
    QCOMPARE(m_window->fileBytes(), before);
    QCOMPARE(m_window->batteryNames(), QStringList({u"Pack"_s, u"Spare"_s}));
}

void PageEntryTest::spaceOnALaterVisitAddsNothing()
{
    m_window->addBattery(u"New"_s);
    const QByteArray before = m_window->fileBytes();
    visit(u"addView"_s);
    QTest::keyClick((*m_window)->focusWidget(), Qt::Key_Space);
    QCOMPARE(m_window->fileBytes(), before);
}

void PageEntryTest::typingAtOnceReplacesTheDateOfADischarge()
{
    visit(u"dischargeView"_s);
    QTest::keyClicks((*m_window)->focusWidget(), u"2025-02-14"_s);
    QCOMPARE(m_window->ui().dedt_dischargeDate->date(), QDate(2025, 2, 14));
}

void PageEntryTest::theFocusOfTheOverviewStaysWhereItIsUsed()
{
    LogbookWindow::click(m_window->ui().pb_options);
    LogbookWindow::click(m_window->ui().pb_mode);
    LogbookWindow::click(m_window->ui().rb_modeSimple);
    m_window->goToOverview();
    auto *button = m_window->battery(u"Pack"_s)->findChild<QPushButton *>(u"pushButton"_s);
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space); // flown at once
    QVERIFY(!m_window->battery(u"Pack"_s)->getBatteryCharged());
    QVERIFY(button->hasFocus());
}

void PageEntryTest::aWindowInTheBackgroundStaysThere()
{
    QWidget other;
    QLineEdit field(&other);
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    field.setFocus();
    (*m_window)->on_pb_choose_addbattery_clicked();
    QVERIFY(field.hasFocus());
    QCOMPARE((*m_window)->focusWidget(), m_window->ui().ledt_name);
}

void PageEntryTest::tabLeavesTheNotes_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("notes");
    QTest::addColumn<QString>("next");
    QTest::newRow("add model") << u"addModelView"_s << u"ledt_addheli_notes"_s << u"pb_addNewModel"_s;
    QTest::newRow("modify model") << u"modModelView"_s << u"ledt_modifyheli_notes"_s << u"pb_update_model"_s;
    QTest::newRow("discharge") << u"dischargeView"_s << u"ptext_log_notes"_s << u"pb_save_discharged"_s;
}

void PageEntryTest::tabLeavesTheNotes()
{
    QFETCH(QString, page);
    QFETCH(QString, notes);
    visit(page);
    auto *field = (*m_window)->findChild<QPlainTextEdit *>(notes);
    field->setFocus();
    QTest::keyClicks(field, u"Windy"_s);
    QTest::keyClick(field, Qt::Key_Tab);
    QCOMPARE(field->toPlainText(), u"Windy"_s);
    QTEST(nameInFocus(), "next");
}

QTEST_MAIN(PageEntryTest)
#include "tst_pageentry.moc"
