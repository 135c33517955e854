// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/dataprocessor.h"
#include "voltbok_export.h"

#include <QList>
#include <QMainWindow>
#include <QPointF>
#include <QString>
#include <QStringList>

class BatteryWidget;
class LogData;
class ModelWidget;
class QAbstractButton;
class QChart;
class QChartView;
class QDateTime;
class QKeyEvent;
class QLabel;
class QPushButton;
class Ui_VoltbokGui;
namespace Page {
enum Id : int;
}

/**
 * The logbook's main window: fifteen pages over one data file.
 *
 * A host constructs it, connects closeVoltbokGui(), names the directory of the data file with
 * changeStoragePath(), and shows it. Nothing is read before that. Every change rewrites the data file at
 * once, so the host may close or delete the window at any time. User-interface thread only.
 */
class VOLTBOK_EXPORT VoltbokGui : public QMainWindow
{
    Q_OBJECT
    // With complete types the meta-object knows the slots' parameters by type, not by name alone.
    Q_MOC_INCLUDE(<QAbstractButton>)
    Q_MOC_INCLUDE(<QKeyEvent>)
    Q_DISABLE_COPY_MOVE(VoltbokGui)

public:
    explicit VoltbokGui(QWidget *parent = nullptr);
    ~VoltbokGui() override;

    /** Reads the whole catalogue from the data file and rebuilds the overview and every chooser. */
    void updateBatteryGui();

Q_SIGNALS:
    /** The user pressed the home button; the host closes, hides or deletes the window. */
    void closeVoltbokGui();

    // The slots are public and in one block because their order is part of the interface: a host may call
    // them through their indices in the meta-object. Slots named after a widget are connected by name.
public Q_SLOTS:
    void on_pb_update_battery_clicked();
    void on_pb_update_model_clicked();
    void on_pb_home_clicked();
    void on_pb_options_clicked();
    void on_pb_mode_clicked();
    void on_pb_edit_data_clicked();
    void on_pb_choose_addbattery_clicked();
    void on_pb_choose_addmodel_clicked();
    void on_pb_choose_addlocation_clicked();
    void on_pb_addNewBattery_clicked();
    void on_pb_addNewModel_clicked();
    void on_pb_add_location_clicked();
    void on_pb_del_location_clicked();
    void on_pb_chart_clicked();
    void on_pb_choose_delbattery_clicked();
    void on_pb_choose_delmodel_clicked();
    void on_pb_choose_modify_battery_clicked();
    void on_pb_choose_modify_model_clicked();
    void on_pb_choose_dellocation_clicked();
    void on_pb_logbook_clicked();
    void on_btnGrp_mode_buttonClicked(QAbstractButton *button);
    void on_btngrp_showData_buttonClicked(QAbstractButton *button);
    void on_cb_batteryData_currentIndexChanged(int index);
    void on_pb_save_discharged_clicked();
    void on_pb_deleteConfirm_clicked();
    void on_pb_deleteConfirm_model_clicked();
    void on_cb_batteryList_delete_currentIndexChanged(int index);
    void on_cb_select_model_currentIndexChanged(int index);
    void on_pb_add_batt_to_model_clicked();
    void on_pb_rem_batt_from_model_clicked();
    /** Swallows every key pressed on the window itself: no key does anything at the window level. */
    void keyPressEvent(QKeyEvent *event) override;
    /** Reads the catalogue from the data file in @p path; nothing is written there before the next change. */
    void changeStoragePath(const QString &path);
    void on_cb_logview_model_currentIndexChanged(int index);
    void on_cb_bat_choose_model_currentIndexChanged(int index);
    void on_cb_model_choose_bat_currentIndexChanged(int index);
    void on_pb_logview_next_clicked();
    void on_pb_logview_prev_clicked();
    /** Rewrites the data file from the records and the locations in the choosers. */
    void writeDataWithDataprocessor();
    /** Presets the discharge of the card that sent the signal, and shows or records it. */
    void showBatteryCharge();

protected:
    /** Answers a change of language: every text is translated anew, everything the user entered stays. */
    void changeEvent(QEvent *event) override;

private:
    enum class OtherBatteries { Clear, Keep };

    void retranslate();
    void easeInput();
    void adaptForms();

    // navigation
    QWidget *widgetOf(Page::Id page) const;
    void showPage(Page::Id page);
    void showOverview();

    // overview
    QStringList locations() const;
    void saveAndReload();
    void reloadLocations();
    void reloadModels();
    void reloadBatteries();
    void rebuildOverview();
    ModelWidget *selectedModel() const;
    QWidget *renewContent();
    void placeCards();
    void placeHint(int row);
    void placeSpacer(int row);

    // capture
    void recordFlight(const QDateTime &moment);
    void recordDischarge(QDateTime &moment);
    void restoreCaptureMode();

    // editing
    static bool confirmed(QPushButton *button, QLabel *question);
    static void resetConfirmation(QPushButton *button, QLabel *question);
    static void showConfirmationText(QPushButton *button);
    void changeAssignment(void (ModelWidget::*change)(const QString &));

    // log book
    ModelWidget *loggedModel() const;
    void stepThroughLog(bool (ModelWidget::*step)(LogData &), QPushButton *onwards, QPushButton *back);
    void showFlight(const LogData &flight);
    void showFlownBatteries(LogData &flight, OtherBatteries others);

    // chart
    QList<QPointF> chartPoints(BatteryWidget &battery) const;
    void showChart(QChart *chart);

    Ui_VoltbokGui *ui;
    DataProcessor dataProcessor;
    int currentPage = 0;       // identifier of the page on show, see gui/pages.h
    int overviewCardCount = 0; // row of the last card on the overview
    QChartView *chartView = nullptr;
    QList<BatteryWidget *> batteryList;
    QList<ModelWidget *> modelList;
    BatteryWidget *chargeBattery = nullptr; // the charged card clicked last; one of batteryList or null
};
