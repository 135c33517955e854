// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons that do little more than show another page.
#include "gui/dateinput.h"
#include "gui/fieldtexts.h"
#include "gui/pageentry.h"
#include "gui/pages.h"
#include "gui/voltbokgui.h"
#include "ui_voltbokgui.h"

QWidget *VoltbokGui::widgetOf(Page::Id page) const
{
    switch (page) {
    case Page::Overview:
        return ui->scrollLayout;
    case Page::Menu:
        return ui->optionsView;
    case Page::Mode:
        return ui->modeView;
    case Page::Chart:
        return ui->dataView;
    case Page::EditData:
        return ui->editDataView;
    case Page::AddBattery:
        return ui->addView;
    case Page::AddModel:
        return ui->addModelView;
    case Page::AddLocation:
        return ui->addLocationView;
    case Page::DeleteBattery:
        return ui->deleteView;
    case Page::DeleteModel:
        return ui->deleteModelView;
    case Page::DeleteLocation:
        return ui->deleteLocationView;
    case Page::LogBook:
        return ui->logView;
    case Page::Discharge:
        return ui->dischargeView;
    case Page::ModifyBattery:
        return ui->modBatteryView;
    case Page::ModifyModel:
        return ui->modModelView;
    }
    return nullptr;
}

void VoltbokGui::showPage(Page::Id page)
{
    QWidget *shown = widgetOf(page);
    const bool comes = ui->stackedWidget->currentWidget() != shown;
    ui->stackedWidget->setCurrentWidget(shown);
    currentPage = page;
    if (page == Page::ModifyBattery || page == Page::ModifyModel)
        FieldTexts::forgetDefaults(shown->findChildren<QLineEdit *>());
    if (comes) // intentional: a discharge at once leaves the focus on the overview where it is
        enterPage(shown);
}

void VoltbokGui::showOverview()
{
    showPage(Page::Overview);
}

void VoltbokGui::on_pb_home_clicked()
{
    Q_EMIT closeVoltbokGui();
}

void VoltbokGui::on_pb_options_clicked()
{
    if (Page::opensMenu(currentPage))
        showPage(Page::Menu);
    else
        showOverview();
}

void VoltbokGui::on_pb_mode_clicked()
{
    showPage(Page::Mode);
}

void VoltbokGui::on_pb_edit_data_clicked()
{
    showPage(Page::EditData);
}

void VoltbokGui::on_pb_chart_clicked()
{
    showPage(Page::Chart);
    on_cb_batteryData_currentIndexChanged(ui->cb_batteryData->currentIndex());
}

void VoltbokGui::on_pb_logbook_clicked()
{
    on_cb_logview_model_currentIndexChanged(ui->cb_logview_model->currentIndex());
    showPage(Page::LogBook);
}

void VoltbokGui::on_pb_choose_addbattery_clicked()
{
    ui->ledt_purchaseDate->setText(DateInput::today());
    showPage(Page::AddBattery);
}

void VoltbokGui::on_pb_choose_addmodel_clicked()
{
    ui->ledt_addheli_purchase->setText(DateInput::today());
    showPage(Page::AddModel);
}

void VoltbokGui::on_pb_choose_addlocation_clicked()
{
    showPage(Page::AddLocation);
}

void VoltbokGui::on_pb_choose_delbattery_clicked()
{
    ui->cb_batteryList_delete->setCurrentText(ui->cb_bat_choose_model->currentText());
    showPage(Page::DeleteBattery);
}

void VoltbokGui::on_pb_choose_delmodel_clicked()
{
    ui->cb_modelList_delete->setCurrentText(ui->cb_model_choose_bat->currentText());
    showPage(Page::DeleteModel);
}

void VoltbokGui::on_pb_choose_dellocation_clicked()
{
    showPage(Page::DeleteLocation);
}
