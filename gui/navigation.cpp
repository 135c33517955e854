// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons that do little more than show another page.
#include "gui/pages.h"
#include "gui/voltbokgui.h"
#include "ui_voltbokgui.h"

#include <QDate>

namespace {
QString today()
{
    return QDate::currentDate().toString(Qt::ISODate);
}
} // namespace

void VoltbokGui::showPage(QWidget *page, int id)
{
    ui->stackedWidget->setCurrentWidget(page);
    currentPage = id;
}

void VoltbokGui::showOverview()
{
    showPage(ui->scrollLayout, Page::Overview);
}

void VoltbokGui::on_pb_home_clicked()
{
    Q_EMIT closeVoltbokGui();
}

void VoltbokGui::on_pb_options_clicked()
{
    if (Page::opensMenu(currentPage))
        showPage(ui->optionsView, Page::Menu);
    else
        showOverview();
}

void VoltbokGui::on_pb_mode_clicked()
{
    showPage(ui->modeView, Page::Mode);
}

void VoltbokGui::on_pb_edit_data_clicked()
{
    showPage(ui->editDataView, Page::EditData);
}

void VoltbokGui::on_pb_chart_clicked()
{
    showPage(ui->dataView, Page::Chart);
    on_cb_batteryData_currentIndexChanged(ui->cb_batteryData->currentIndex());
}

void VoltbokGui::on_pb_logbook_clicked()
{
    on_cb_logview_model_currentIndexChanged(ui->cb_logview_model->currentIndex());
    showPage(ui->logView, Page::LogBook);
}

void VoltbokGui::on_pb_choose_addbattery_clicked()
{
    ui->ledt_purchaseDate->setText(today());
    showPage(ui->addView, Page::AddBattery);
}

void VoltbokGui::on_pb_choose_addmodel_clicked()
{
    ui->ledt_addheli_purchase->setText(today());
    showPage(ui->addModelView, Page::AddModel);
}

void VoltbokGui::on_pb_choose_addlocation_clicked()
{
    showPage(ui->addLocationView, Page::AddLocation);
}

void VoltbokGui::on_pb_choose_delbattery_clicked()
{
    ui->cb_batteryList_delete->setCurrentText(ui->cb_bat_choose_model->currentText());
    showPage(ui->deleteView, Page::DeleteBattery);
}

void VoltbokGui::on_pb_choose_delmodel_clicked()
{
    ui->cb_modelList_delete->setCurrentText(ui->cb_model_choose_bat->currentText());
    showPage(ui->deleteModelView, Page::DeleteModel);
}

void VoltbokGui::on_pb_choose_dellocation_clicked()
{
    showPage(ui->deleteLocationView, Page::DeleteLocation);
}
