// SPDX-License-Identifier: GPL-3.0-or-later
// The window's shell: what a host holds in its hand.
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

#include <QChartView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewWindowShowsAnEmptyOverview();
    void aNewWindowReadsNothing();
    void aNewWindowHidesTwoOfThreeQuestionsOnPurpose();
    void theStoragePathFillsTheWindow();
    void aPathWithoutADataFileGivesAnEmptyCatalogue();
    void theMethodsOfTheWindowAreWhereAHostCallsThem_data();
    void theMethodsOfTheWindowAreWhereAHostCallsThem();
    void theMethodTableHasNoMore();
    void aHostCanCallASlotByItsIndex();
    void theHomeButtonEmitsItsSignalAndChangesNothingElse();
    void theHostMayDeleteTheWindowWhenItWantsToClose();
    void aKeyOnTheWindowDoesNothing_data();
    void aKeyOnTheWindowDoesNothing();
    void aKeyEventIsNeitherAcceptedNorIgnoredOnPurpose();
    void theWindowTakesItsRecordsChartsAndOldContentsWithIt();
    void theWindowGoesWithItsParent();
    void everyReloadDeletesTheRecordsBefore();
    void aReloadForgetsTheBatteryBeingDischarged();
    void theWindowMayGoWhileABatteryIsBeingDischarged();
};

namespace {
/** Opens the discharge page for battery "Pack", in full mode. */
void openDischargePage(LogbookWindow &window)
{
    LogbookWindow::storeFullMode();
    window.load(hangar());
    window.clickCard(window.battery("Pack"));
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().dischargeView);
    QCOMPARE(window->chargeBattery, window.battery("Pack"));
}
} // namespace

void WindowTest::aNewWindowShowsAnEmptyOverview()
{
    failOnWarnings();
    VoltbokGui window;
    QCOMPARE(window.windowTitle(), u"Rotavex 15.7.0 64-bit"_s);
    QCOMPARE(window.ui->stackedWidget->currentWidget(), window.ui->scrollLayout);
    QCOMPARE(window.ui->stackedWidget->count(), 15);
    QCOMPARE(window.currentPage, 0);
    QCOMPARE(window.overviewCardCount, 0);
    QVERIFY(!window.chartView);
    QVERIFY(!window.chargeBattery);
    QVERIFY(window.batteryList.isEmpty());
    QVERIFY(window.modelList.isEmpty());
    QCOMPARE(window.dataProcessor.parent(), &window);
}

void WindowTest::aNewWindowReadsNothing()
{
    QTemporaryDir directory; // without a storage path, the working directory is where a loader would look
    QVERIFY(write(dataFile(directory.path()), hangar()));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(directory.path()));
    const VoltbokGui window;
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(window.batteryList.isEmpty());
    QVERIFY(window.modelList.isEmpty());
    QCOMPARE(window.ui->cb_log_location->count(), 0);
    QVERIFY(window.dataProcessor.basePath.isEmpty() && !window.dataProcessor.basePath.isNull());
}

void WindowTest::aNewWindowHidesTwoOfThreeQuestionsOnPurpose()
{
    const VoltbokGui window;
    QVERIFY(window.ui->lbl_really->isHidden());
    QVERIFY(window.ui->lbl_reallydelete_model->isHidden());
    QVERIFY(!window.ui->lbl_reallydelete_location->isHidden());
}

void WindowTest::theStoragePathFillsTheWindow()
{
    LogbookWindow window;
    window.load(hangar());
    QCOMPARE(window->batteryList.size(), 4);
    QCOMPARE(window->modelList.size(), 2);
    QCOMPARE(window->locations(), QStringList({"Meadow", "Hill"}));
    QCOMPARE(window.cardsOnShow(), QStringList({"Pack", "Flat"}));
    QCOMPARE(window->windowTitle(), u"Rotavex 15.7.0 64-bit"_s);
    QCOMPARE(window.fileBytes(), hangar()); // only a change writes
}

void WindowTest::aPathWithoutADataFileGivesAnEmptyCatalogue()
{
    LogbookWindow window;
    window.load(hangar());
    const QTemporaryDir empty;
    window->changeStoragePath(empty.path());
    QVERIFY(window->batteryList.isEmpty());
    QVERIFY(window->modelList.isEmpty());
    QVERIFY(QDir(empty.path()).isEmpty());
    window->changeStoragePath(u"/nowhere/at all"_s);
    QVERIFY(window->batteryList.isEmpty());
}

void WindowTest::theMethodsOfTheWindowAreWhereAHostCallsThem_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QByteArray>("signature");
    const QByteArrayList signatures = {
        "closeVoltbokGui()",
        "on_pb_update_battery_clicked()",
        "on_pb_update_model_clicked()",
        "on_pb_home_clicked()",
        "on_pb_options_clicked()",
        "on_pb_mode_clicked()",
        "on_pb_edit_data_clicked()",
        "on_pb_choose_addbattery_clicked()",
        "on_pb_choose_addmodel_clicked()",
        "on_pb_choose_addlocation_clicked()",
        "on_pb_addNewBattery_clicked()",
        "on_pb_addNewModel_clicked()",
        "on_pb_add_location_clicked()",
        "on_pb_del_location_clicked()",
        "on_pb_chart_clicked()",
        "on_pb_choose_delbattery_clicked()",
        "on_pb_choose_delmodel_clicked()",
        "on_pb_choose_modify_battery_clicked()",
        "on_pb_choose_modify_model_clicked()",
        "on_pb_choose_dellocation_clicked()",
        "on_pb_logbook_clicked()",
        "on_btnGrp_mode_buttonClicked(QAbstractButton*)",
        "on_btngrp_showData_buttonClicked(QAbstractButton*)",
        "on_cb_batteryData_currentIndexChanged(int)",
        "on_pb_save_discharged_clicked()",
        "on_pb_deleteConfirm_clicked()",
        "on_pb_deleteConfirm_model_clicked()",
        "on_cb_batteryList_delete_currentIndexChanged(int)",
        "on_cb_select_model_currentIndexChanged(int)",
        "on_pb_add_batt_to_model_clicked()",
        "on_pb_rem_batt_from_model_clicked()",
        "keyPressEvent(QKeyEvent*)",
        "changeStoragePath(QString)",
        "on_cb_logview_model_currentIndexChanged(int)",
        "on_cb_bat_choose_model_currentIndexChanged(int)",
        "on_cb_model_choose_bat_currentIndexChanged(int)",
        "on_pb_logview_next_clicked()",
        "on_pb_logview_prev_clicked()",
        "writeDataWithDataprocessor()",
        "showBatteryCharge()",
    };
    for (int i = 0; i < signatures.size(); ++i)
        QTest::newRow(signatures.at(i).constData()) << i << signatures.at(i);
}

void WindowTest::theMethodsOfTheWindowAreWhereAHostCallsThem()
{
    QFETCH(int, index);
    QFETCH(QByteArray, signature);
    const QMetaObject &meta = VoltbokGui::staticMetaObject;
    const QMetaMethod method = meta.method(meta.methodOffset() + index);
    QCOMPARE(method.methodSignature(), signature);
    QCOMPARE(method.methodType(), index == 0 ? QMetaMethod::Signal : QMetaMethod::Slot);
    QCOMPARE(method.access(), QMetaMethod::Public);
    QCOMPARE(method.returnMetaType(), QMetaType::fromType<void>());
    if (signature.endsWith("(QAbstractButton*)"))
        QCOMPARE(method.parameterMetaType(0), QMetaType::fromType<QAbstractButton *>());
    else if (signature.endsWith("(QKeyEvent*)"))
        QCOMPARE(method.parameterMetaType(0), QMetaType::fromType<QKeyEvent *>());
    else if (signature.endsWith("(int)"))
        QCOMPARE(method.parameterMetaType(0), QMetaType::fromType<int>());
    else if (signature.endsWith("(QString)"))
        QCOMPARE(method.parameterMetaType(0), QMetaType::fromType<QString>());
    else
        QCOMPARE(method.parameterCount(), 0);
}

void WindowTest::theMethodTableHasNoMore()
{
    const QMetaObject &meta = VoltbokGui::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 40);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 0);
    QCOMPARE(meta.className(), "VoltbokGui");
    QCOMPARE(meta.superClass(), &QMainWindow::staticMetaObject);
}

void WindowTest::aHostCanCallASlotByItsIndex()
{
    LogbookWindow window;
    const QMetaObject *meta = window->metaObject();
    QVERIFY(meta->method(meta->methodOffset() + 5).invoke(&window.gui()));
    QCOMPARE(window->currentPage, 2);

    QVERIFY(write(window.filePath(), hangar()));
    QVERIFY(meta->method(meta->methodOffset() + 32).invoke(&window.gui(), Q_ARG(QString, window.folder())));
    QCOMPARE(window->batteryList.size(), 4);
}

void WindowTest::theHomeButtonEmitsItsSignalAndChangesNothingElse()
{
    LogbookWindow window;
    window.click(window.ui().pb_options);
    const QSignalSpy closing(&window.gui(), &VoltbokGui::closeVoltbokGui);
    window.click(window.ui().pb_home);
    QCOMPARE(closing.count(), 1);
    QVERIFY(window->isVisible());
    QCOMPARE(window->currentPage, 1);
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().optionsView);
    QVERIFY(!QFile::exists(window.filePath()));
}

void WindowTest::theHostMayDeleteTheWindowWhenItWantsToClose()
{
    const QTemporaryDir directory;
    QPointer<VoltbokGui> window = new VoltbokGui;
    window->changeStoragePath(directory.path());
    window->show();
    connect(window, &VoltbokGui::closeVoltbokGui, window, &QObject::deleteLater);
    LogbookWindow::click(window->ui->pb_home);
    QTRY_VERIFY(!window);
}

void WindowTest::aKeyOnTheWindowDoesNothing_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("escape") << Qt::Key_Escape;
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
    QTest::newRow("space") << Qt::Key_Space;
    QTest::newRow("menu") << Qt::Key_Menu;
    QTest::newRow("back") << Qt::Key_Back;
    QTest::newRow("delete") << Qt::Key_Delete;
    QTest::newRow("letter") << Qt::Key_Q;
    QTest::newRow("function key") << Qt::Key_F5;
}

void WindowTest::aKeyOnTheWindowDoesNothing()
{
    QFETCH(Qt::Key, key);
    LogbookWindow window;
    window.load(hangar());
    window.click(window.ui().pb_options);
    const QSignalSpy closing(&window.gui(), &VoltbokGui::closeVoltbokGui);
    QTest::keyClick(&window.gui(), key);
    QTest::keyClick(&window.gui(), key, Qt::ControlModifier);
    QCOMPARE(closing.count(), 0);
    QVERIFY(window->isVisible());
    QCOMPARE(window->currentPage, 1);
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().optionsView);
    QCOMPARE(window.fileBytes(), hangar());
}

void WindowTest::aKeyEventIsNeitherAcceptedNorIgnoredOnPurpose()
{
    VoltbokGui window;
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    event.setAccepted(true);
    window.keyPressEvent(&event);
    QVERIFY(event.isAccepted());
    event.setAccepted(false);
    window.keyPressEvent(&event);
    QVERIFY(!event.isAccepted());
}

void WindowTest::theWindowTakesItsRecordsChartsAndOldContentsWithIt()
{
    const QTemporaryDir directory;
    auto window = std::make_unique<VoltbokGui>();
    QVERIFY(write(dataFile(directory.path()), hangar()));
    QList<QPointer<QObject>> belongings = {window->ui->scrollView};
    window->changeStoragePath(directory.path());
    window->on_pb_chart_clicked();
    belongings.append(window->chartView);
    belongings.append(window->ui->scrollView);
    window->ui->cb_select_model->setCurrentText(u"Plane"_s);
    window->on_pb_chart_clicked();
    belongings.append(window->chartView);
    belongings.append(window->ui->scrollView);
    for (BatteryWidget *battery : window->batteryList) // placed once, placed before, never placed
        belongings.append(battery);
    for (ModelWidget *model : window->modelList)
        belongings.append(model);
    for (const QPointer<QObject> &belonging : belongings)
        QVERIFY(belonging);

    window.reset();
    for (const QPointer<QObject> &belonging : belongings)
        QVERIFY(!belonging);
}

void WindowTest::theWindowGoesWithItsParent()
{
    auto host = std::make_unique<QWidget>();
    const QPointer<VoltbokGui> window = new VoltbokGui(host.get());
    QCOMPARE(window->parentWidget(), host.get());
    host.reset();
    QVERIFY(!window);
}

void WindowTest::everyReloadDeletesTheRecordsBefore()
{
    LogbookWindow window;
    window.load(hangar());
    for (int i = 0; i < 2; ++i) {
        QList<QPointer<QObject>> before;
        for (BatteryWidget *battery : window->batteryList)
            before.append(battery);
        for (ModelWidget *model : window->modelList)
            before.append(model);
        window->changeStoragePath(window.folder());
        for (const QPointer<QObject> &record : before)
            QVERIFY(!record);
        QCOMPARE(window->batteryList.size(), 4);
        QCOMPARE(window->modelList.size(), 2);
    }
}

void WindowTest::aReloadForgetsTheBatteryBeingDischarged()
{
    LogbookWindow window;
    openDischargePage(window);
    window->changeStoragePath(window.folder());
    QVERIFY(!window->chargeBattery);
    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().dischargeView);

    window.click(window.ui().pb_save_discharged);
    QVERIFY(window.battery("Pack")->getBatteryCharged());
    QCOMPARE(window.battery("Pack")->getBatteryCycles(), 7U);
    QVERIFY(window.battery("Pack")->getDates().isEmpty());
    QCOMPARE(window->currentPage, 12);
    QCOMPARE(window.model("Heli")->getLogData().size(), 1); // the flight does not depend on the battery
    QCOMPARE(window.fileBytes(), hangar());
}

void WindowTest::theWindowMayGoWhileABatteryIsBeingDischarged()
{
    LogbookWindow window;
    openDischargePage(window);
    const QPointer<BatteryWidget> charged = window->chargeBattery;
    window.restart(); // the sanitizers would speak up if the battery went twice
    QVERIFY(!charged);
    QVERIFY(!window->chargeBattery);
    QVERIFY(window.battery("Pack")->getBatteryCharged());
}

QTEST_MAIN(WindowTest)
#include "tst_window.moc"
