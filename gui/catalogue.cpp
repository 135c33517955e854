// SPDX-License-Identifier: GPL-3.0-or-later
// The window's rhythm: write the whole file, read it back, rebuild every view from it.
#include "gui/deleteall.h"
#include "gui/preferences.h"
#include "gui/recordlookup.h"
#include "gui/voltbokgui.h"
#include "ui_voltbokgui.h"

#include <QSignalBlocker>

namespace {
void refill(QComboBox *chooser, const QStringList &items)
{
    chooser->clear();
    chooser->addItems(items);
}

QStringList itemTexts(const QComboBox *chooser)
{
    QStringList texts;
    for (int i = 0; i < chooser->count(); ++i)
        texts.append(chooser->itemText(i));
    return texts;
}
} // namespace

QStringList VoltbokGui::locations() const
{
    return itemTexts(ui->cb_log_location);
}

void VoltbokGui::writeDataWithDataprocessor()
{
    QStringList names = locations();
    dataProcessor.addData(batteryList, modelList, names);
}

void VoltbokGui::saveAndReload()
{
    writeDataWithDataprocessor();
    updateBatteryGui();
}

void VoltbokGui::updateBatteryGui()
{
    overviewCardCount = 0;
    reloadLocations();
    reloadModels();
    reloadBatteries();
    rebuildOverview();
    restoreCaptureMode();
}

void VoltbokGui::reloadLocations()
{
    QStringList names;
    if (!dataProcessor.getLocationsFromData(names))
        return; // intentional: without any location in the file, both choosers keep what they offer
    refill(ui->cb_log_location, names);
    refill(ui->cb_location_delete, names);
}

void VoltbokGui::reloadModels()
{
    deleteAll(modelList);
    dataProcessor.getModelWidgetsFromData(modelList);
    const QVariant preselected = Preferences::read(Preferences::PreselectedModel);
    if (modelList.isEmpty())
        return; // intentional: the choosers go on offering the names of models that are gone
    const QStringList names = RecordLookup::names(modelList);
    for (QComboBox *chooser :
         {ui->cb_select_model, ui->cb_logview_model, ui->cb_model_choose_bat, ui->cb_modelList_delete}) {
        const QSignalBlocker quiet(chooser);
        refill(chooser, names);
        if (preselected.isValid())
            chooser->setCurrentText(preselected.toString());
    }
}

void VoltbokGui::reloadBatteries()
{
    chargeBattery = nullptr; // it would refer to a record that is deleted here
    deleteAll(batteryList);
    dataProcessor.getBatteryWidgetsFromData(batteryList);
    ui->pb_chart->setEnabled(!batteryList.isEmpty());
    if (batteryList.isEmpty())
        return; // intentional: the choosers go on offering the names of batteries that are gone
    const QStringList names = RecordLookup::names(batteryList);
    for (QComboBox *chooser : {ui->cb_batteryData, ui->cb_batteryList_delete, ui->cb_bat_choose_model}) {
        const QSignalBlocker quiet(chooser);
        refill(chooser, names);
    }
    on_cb_bat_choose_model_currentIndexChanged(ui->cb_bat_choose_model->currentIndex());
}
