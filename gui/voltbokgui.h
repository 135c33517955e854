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
    /** An empty logbook: nothing is read before changeStoragePath(). The window owns all its records. */
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
    /** Takes the battery over from the page that modifies it, saves, and shows the overview. */
    void on_pb_update_battery_clicked();
    /** Takes the model over from the page that modifies it, saves, and shows the overview. */
    void on_pb_update_model_clicked();
    /** Emits closeVoltbokGui(); nothing else happens. */
    void on_pb_home_clicked();
    /** One page back: from the overview to the menu, from pages of the menu to it, else to the overview. */
    void on_pb_options_clicked();
    /** Shows the page that chooses how flights are recorded. */
    void on_pb_mode_clicked();
    /** Shows the page from which batteries, models and locations are edited. */
    void on_pb_edit_data_clicked();
    /** Shows the page that adds a battery, bought today until something else is entered. */
    void on_pb_choose_addbattery_clicked();
    /** Shows the page that adds a model, bought today until something else is entered. */
    void on_pb_choose_addmodel_clicked();
    /** Shows the page that adds a location. */
    void on_pb_choose_addlocation_clicked();
    /** Adds the battery that was entered and saves; without a name nothing happens, a name in use gets a
     * number. */
    void on_pb_addNewBattery_clicked();
    /** Adds the model that was entered and saves; without a name nothing happens, a name in use gets a
     * number. */
    void on_pb_addNewModel_clicked();
    /** Adds the location that was entered and saves; without a name nothing happens, a name in use gets a
     * number. */
    void on_pb_add_location_clicked();
    /** Asks at the first call, deletes the chosen location and saves at the second. */
    void on_pb_del_location_clicked();
    /** Shows the chart of the chosen battery. */
    void on_pb_chart_clicked();
    /** Shows the page that deletes a battery, with the one that was chosen. */
    void on_pb_choose_delbattery_clicked();
    /** Shows the page that deletes a model, with the one that was chosen. */
    void on_pb_choose_delmodel_clicked();
    /** Shows the chosen battery on the page that modifies it; nothing happens where there is none. */
    void on_pb_choose_modify_battery_clicked();
    /** Shows the chosen model on the page that modifies it; nothing happens where there is none. */
    void on_pb_choose_modify_model_clicked();
    /** Shows the page that deletes a location. */
    void on_pb_choose_dellocation_clicked();
    /** Shows the flight log of the chosen model at its newest flight. */
    void on_pb_logbook_clicked();
    /** Keeps the capture mode of @p button in the shared settings store and gives it to every card. */
    void on_btnGrp_mode_buttonClicked(QAbstractButton *button);
    /** Draws the chart anew, of the figure that is chosen now. */
    void on_btngrp_showData_buttonClicked(QAbstractButton *button);
    /** Draws the chart of the battery at @p index of the chooser; outside the list nothing happens. */
    void on_cb_batteryData_currentIndexChanged(int index);
    /** Records the flight and the discharge of the discharge page with one and the same time, and saves. */
    void on_pb_save_discharged_clicked();
    /** Asks at the first call, deletes the chosen battery and saves at the second. */
    void on_pb_deleteConfirm_clicked();
    /** Asks at the first call, deletes the chosen model and saves at the second. */
    void on_pb_deleteConfirm_model_clicked();
    /** Another battery was chosen for deletion: it has to be asked for again. */
    void on_cb_batteryList_delete_currentIndexChanged(int index);
    /** Places the cards of the chosen model's batteries on the overview. */
    void on_cb_select_model_currentIndexChanged(int index);
    /** Assigns the chosen battery to the chosen model and saves. */
    void on_pb_add_batt_to_model_clicked();
    /** Takes the chosen battery from the chosen model and saves. */
    void on_pb_rem_batt_from_model_clicked();
    /** Swallows every key pressed on the window itself: no key does anything at the window level. */
    void keyPressEvent(QKeyEvent *event) override;
    /** Reads the catalogue from the data file in @p path; nothing is written there before the next change. */
    void changeStoragePath(const QString &path);
    /** Shows the newest flight of the model that is chosen in the flight log. */
    void on_cb_logview_model_currentIndexChanged(int index);
    /** Offers to assign the chosen battery to the chosen model, or to take it away. */
    void on_cb_bat_choose_model_currentIndexChanged(int index);
    /** The same after another model was chosen. */
    void on_cb_model_choose_bat_currentIndexChanged(int index);
    /** Shows the next newer flight; in an empty log nothing happens. */
    void on_pb_logview_next_clicked();
    /** Shows the next older flight; in an empty log nothing happens. */
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
