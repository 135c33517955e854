// SPDX-License-Identifier: GPL-3.0-or-later
// The log book: one flight of one model at a time, with the discharge of the same moment.
#include "gui/recordlookup.h"
#include "gui/voltbokgui.h"
#include "records/figures.h"
#include "records/shorttext.h"
#include "ui_voltbokgui.h"

void VoltbokGui::on_cb_logview_model_currentIndexChanged(int index)
{
    Q_UNUSED(index)
    ModelWidget *model = loggedModel();
    ui->pb_logview_next->setEnabled(false);
    ui->pb_logview_prev->setEnabled(false);
    if (!model)
        return;
    LogData flight;
    const int count = model->getLatestLog(flight);
    showFlight(flight);
    if (count == 0)
        ui->lbl_logview_temp->clear();
    showFlownBatteries(flight, OtherBatteries::Clear);
    ui->pb_logview_prev->setEnabled(count > 1);
}

void VoltbokGui::on_pb_logview_next_clicked()
{
    stepThroughLog(&ModelWidget::getNextLog, ui->pb_logview_next, ui->pb_logview_prev);
}

void VoltbokGui::on_pb_logview_prev_clicked()
{
    stepThroughLog(&ModelWidget::getPrevLog, ui->pb_logview_prev, ui->pb_logview_next);
}

void VoltbokGui::stepThroughLog(bool (ModelWidget::*step)(LogData &), QPushButton *onwards, QPushButton *back)
{
    ModelWidget *model = loggedModel();
    if (!model || model->getLogData().isEmpty())
        return;
    LogData flight;
    const bool more = (model->*step)(flight);
    showFlight(flight);
    showFlownBatteries(flight, OtherBatteries::Keep);
    if (!more)
        onwards->setEnabled(false);
    back->setEnabled(true);
}

ModelWidget *VoltbokGui::loggedModel() const
{
    return RecordLookup::last(modelList, ui->cb_logview_model->currentText());
}

void VoltbokGui::showFlight(const LogData &flight)
{
    ui->lbl_logview_time->setText(flight.date.time().toString(Qt::TextDate));
    ui->lbl_logview_date->setText(flight.date.date().toString(Qt::TextDate));
    ui->lbl_logview_temp->setText(Figures::temperature(flight.temperature));
    ui->lbl_logview_location->setText(shortText(flight.location));
    ui->lbl_logview_duration->setText(flight.duration.toString(Qt::TextDate));
    ui->ptext_logview_notes->setPlainText(flight.notes);
}

void VoltbokGui::showFlownBatteries(LogData &flight, OtherBatteries others)
{
    // Intentional: every battery is asked, so after a change of model only the last one of the list can
    // leave its figures in the fields, and after a step the last one that was flown does.
    for (BatteryWidget *battery : std::as_const(batteryList)) {
        unsigned int discharged = 0;
        unsigned int current = 0;
        if (battery->getEvent(flight.date, discharged, current)) {
            ui->lbl_logview_capacity->setText(QString::number(discharged));
            ui->lbl_logview_current->setText(Figures::logCurrent(current));
            ui->lbl_logview_battname->setText(shortText(battery->getBatteryName()));
        } else if (others == OtherBatteries::Clear) {
            ui->lbl_logview_capacity->clear();
            ui->lbl_logview_current->clear();
            ui->lbl_logview_battname->clear();
        }
    }
}
