// SPDX-License-Identifier: GPL-3.0-or-later
// Assigning batteries to models on the edit page.
#include "gui/recordlookup.h"
#include "gui/voltbokgui.h"
#include "ui_voltbokgui.h"

void VoltbokGui::on_cb_model_choose_bat_currentIndexChanged(int index)
{
    Q_UNUSED(index)
    on_cb_bat_choose_model_currentIndexChanged(ui->cb_bat_choose_model->currentIndex());
}

void VoltbokGui::on_cb_bat_choose_model_currentIndexChanged(int index)
{
    Q_UNUSED(index)
    const ModelWidget *model = RecordLookup::last(modelList, ui->cb_model_choose_bat->currentText());
    const bool assigned = model && model->containsBattery(ui->cb_bat_choose_model->currentText());
    ui->pb_rem_batt_from_model->setEnabled(assigned);
    ui->pb_add_batt_to_model->setEnabled(!assigned);
}

void VoltbokGui::on_pb_add_batt_to_model_clicked()
{
    changeAssignment(&ModelWidget::addBattery);
}

void VoltbokGui::on_pb_rem_batt_from_model_clicked()
{
    changeAssignment(&ModelWidget::removeBattery);
}

void VoltbokGui::changeAssignment(void (ModelWidget::*change)(const QString &))
{
    ModelWidget *model = RecordLookup::last(modelList, ui->cb_model_choose_bat->currentText());
    if (!model)
        return;
    (model->*change)(ui->cb_bat_choose_model->currentText());
    saveAndReload();
    on_cb_bat_choose_model_currentIndexChanged(ui->cb_bat_choose_model->currentIndex());
}
