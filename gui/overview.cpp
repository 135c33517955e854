// SPDX-License-Identifier: GPL-3.0-or-later
// The overview, and the window's rhythm: write the whole file, read it back, rebuild every view from it.
#include "gui/preferences.h"
#include "gui/recordlookup.h"
#include "gui/voltbokgui.h"
#include "ui_voltbokgui.h"

#include <QGridLayout>
#include <QSignalBlocker>

#include <algorithm>
#include <iterator>
#include <utility>

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
        return; // meant as it is: without any location in the file, both choosers keep what they offer
    refill(ui->cb_log_location, names);
    refill(ui->cb_location_delete, names);
}

void VoltbokGui::reloadModels()
{
    qDeleteAll(std::exchange(modelList, {}));
    dataProcessor.getModelWidgetsFromData(modelList);
    const QVariant preselected = Preferences::read(Preferences::PreselectedModel);
    if (modelList.isEmpty())
        return; // meant as it is: the choosers go on offering the names of models that are gone
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
    qDeleteAll(std::exchange(batteryList, {}));
    dataProcessor.getBatteryWidgetsFromData(batteryList);
    ui->pb_chart->setEnabled(!batteryList.isEmpty());
    if (batteryList.isEmpty())
        return; // meant as it is: the choosers go on offering the names of batteries that are gone
    const QStringList names = RecordLookup::names(batteryList);
    for (QComboBox *chooser : {ui->cb_batteryData, ui->cb_batteryList_delete, ui->cb_bat_choose_model}) {
        const QSignalBlocker quiet(chooser);
        refill(chooser, names);
    }
    on_cb_bat_choose_model_currentIndexChanged(ui->cb_bat_choose_model->currentIndex());
}

ModelWidget *VoltbokGui::selectedModel() const
{
    return RecordLookup::last(modelList, ui->cb_select_model->currentText());
}

void VoltbokGui::rebuildOverview()
{
    QWidget *content = renewContent();
    if (batteryList.isEmpty()) {
        ui->lo_overview->addWidget(ui->lbl_welcome, 0, 0);
        placeHint(1);
    } else {
        if (modelList.isEmpty()) {
            overviewCardCount = -1; // without the selector the first card takes row 0
        } else {
            ui->lo_overview->addWidget(ui->cb_select_model, 0, 0);
        }
        placeCards();
        if (!modelList.isEmpty() && overviewCardCount == 0)
            placeHint(1);
        else
            placeSpacer(overviewCardCount + 1);
    }
    ui->scrollArea->setWidget(content);
}

void VoltbokGui::on_cb_select_model_currentIndexChanged(int index)
{
    Q_UNUSED(index)
    const bool hadFocus = focusWidget() == ui->cb_select_model; // moving to the new grid takes it away
    QWidget *content = renewContent();
    ui->lo_overview->addWidget(ui->cb_select_model, 0, 0);
    overviewCardCount = 0;
    placeCards();
    if (selectedModel() && overviewCardCount == 0)
        placeHint(1);
    else
        placeSpacer(overviewCardCount + 1);
    ui->scrollArea->setWidget(content);
    if (hadFocus)
        ui->cb_select_model->setFocus();
    ui->cb_model_choose_bat->setCurrentText(ui->cb_select_model->currentText());
    ui->cb_logview_model->setCurrentText(ui->cb_select_model->currentText());
}

QWidget *VoltbokGui::renewContent()
{
    // The old content stays alive until the window goes: it may still hold widgets of the form and cards that
    // are not on show. It gives up its names, so that they lead to the content on show.
    ui->lo_overview->removeItem(ui->verticalSpacer_overview);
    ui->lo_overview->setObjectName(QString());
    QWidget *old = ui->scrollArea->takeWidget();
    old->setObjectName(QString());
    old->hide();
    old->setParent(this);

    auto *content = new QWidget;
    content->setObjectName(QStringLiteral("scrollView"));
    content->setGeometry(0, 0, 271, 319);
    ui->scrollView = content;
    ui->lo_overview = new QGridLayout(content);
    ui->lo_overview->setObjectName(QStringLiteral("lo_overview"));
    return content;
}

void VoltbokGui::placeCards()
{
    const ModelWidget *selected = selectedModel();
    QList<BatteryWidget *> cards;
    std::copy_if(batteryList.cbegin(), batteryList.cend(), std::back_inserter(cards),
                 [selected](const BatteryWidget *card) {
                     return !selected || selected->containsBattery(card->getBatteryName());
                 });
    // Grids outlive their time on show: each gets its rows at once, and not as many again to spare.
    const auto lastRow = overviewCardCount + static_cast<int>(cards.size()) + 1;
    ui->lo_overview->setRowStretch(lastRow, 0);
    for (BatteryWidget *card : std::as_const(cards)) {
        // Meant as it is: a card that is placed again is connected again, and its earlier connections stay.
        connect(card, SIGNAL(dataChanged()), this, SLOT(writeDataWithDataprocessor()));
        connect(card, SIGNAL(chargeBatteryClicked()), this, SLOT(showBatteryCharge()));
        ui->lo_overview->addWidget(card, ++overviewCardCount, 0);
    }
}

void VoltbokGui::placeHint(int row)
{
    ui->lo_overview->addWidget(ui->lbl_optionshint, row, 0);
    placeSpacer(row + 1);
}

void VoltbokGui::placeSpacer(int row)
{
    ui->lo_overview->addItem(ui->verticalSpacer_overview, row, 0);
}
