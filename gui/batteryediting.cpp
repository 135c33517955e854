// SPDX-License-Identifier: GPL-3.0-or-later
// Adding, modifying and deleting batteries.
#include "gui/dateinput.h"
#include "gui/decimalinput.h"
#include "gui/pages.h"
#include "gui/recordlookup.h"
#include "gui/uniquename.h"
#include "gui/voltbokgui.h"
#include "ui_voltbokgui.h"

using DateInput::dateIn;

void VoltbokGui::on_pb_addNewBattery_clicked()
{
    QString name = uniqueName(ui->ledt_name->text(), RecordLookup::names(batteryList));
    if (name.isEmpty())
        return;
    auto *battery = new BatteryWidget(this);
    battery->setBatteryName(name);
    battery->setBatteryCapacity(ui->ledt_capacity->text().toUInt());
    battery->setBatteryChargeRate(scaledTruncated(ui->ledt_chargeRate->text(), TenthsOfC));
    battery->setBatteryCycles(ui->ledt_cyclesused->text().toUInt());
    battery->setBatteryRating(ui->ledt_dischargeRate->text().toUInt());
    battery->setLastUpdated(QDateTime::currentDateTime());
    battery->setBatteryLastMaxCurrent(0);
    battery->setBatteryLastDischarged(0);
    battery->setBatteryCharged(false, false);
    QDate purchase = dateIn(ui->ledt_purchaseDate);
    battery->setDateOfPurchase(purchase);
    batteryList.append(battery);
    saveAndReload();
    showOverview();
}

void VoltbokGui::on_pb_choose_modify_battery_clicked()
{
    const BatteryWidget *battery = RecordLookup::last(batteryList, ui->cb_bat_choose_model->currentText());
    if (!battery)
        return;
    ui->ledt_modifyBattery_name->setText(battery->getBatteryName());
    ui->ledt_modifyBattery_capacity->setText(QString::number(battery->getBatteryCapacity()));
    // Intentional: shown unscaled, for the field's mask sets the point, and read back times ten.
    ui->ledt_modifyBattery_chargeRate->setText(QString::number(battery->getBatteryChargeRate()));
    ui->ledt_modifyBattery_cyclesused->setText(QString::number(battery->getBatteryCycles()));
    ui->ledt_modifyBattery_dischargeRate->setText(QString::number(battery->getBatteryRating()));
    ui->ledt_modifyBattery_purchaseDate->setText(DateInput::text(battery->getdateOfPurchase()));
    showPage(Page::ModifyBattery);
}

void VoltbokGui::on_pb_update_battery_clicked()
{
    BatteryWidget *battery = RecordLookup::last(batteryList, ui->ledt_modifyBattery_name->text());
    if (!battery)
        return;
    battery->setBatteryCapacity(ui->ledt_modifyBattery_capacity->text().toUInt());
    battery->setBatteryChargeRate(scaledTruncated(ui->ledt_modifyBattery_chargeRate->text(), TenthsOfC));
    battery->setBatteryCycles(ui->ledt_modifyBattery_cyclesused->text().toUInt());
    battery->setBatteryRating(ui->ledt_modifyBattery_dischargeRate->text().toUInt());
    battery->setLastUpdated(QDateTime::currentDateTime());
    QDate purchase = dateIn(ui->ledt_modifyBattery_purchaseDate);
    battery->setDateOfPurchase(purchase);
    saveAndReload();
    showOverview();
}

void VoltbokGui::on_pb_deleteConfirm_clicked()
{
    if (!confirmed(ui->pb_deleteConfirm, ui->lbl_really))
        return;
    // Intentional: models go on naming the battery, and a new one of the same name is theirs at once.
    const auto removed = RecordLookup::takeFirst(batteryList, ui->cb_batteryList_delete->currentText());
    if (removed) {
        --overviewCardCount;
        ui->lo_overview->removeWidget(removed.get());
        saveAndReload();
        showOverview();
    }
    resetConfirmation(ui->pb_deleteConfirm, ui->lbl_really);
}

void VoltbokGui::on_cb_batteryList_delete_currentIndexChanged(int index)
{
    Q_UNUSED(index)
    resetConfirmation(ui->pb_deleteConfirm, ui->lbl_really);
}
