// SPDX-License-Identifier: GPL-3.0-or-later
// Recording a discharge and its flight, at once or through the discharge page.
#include "gui/decimalinput.h"
#include "gui/pages.h"
#include "gui/preferences.h"
#include "gui/voltbokgui.h"
#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "ui_voltbokgui.h"

#include <QDateTime>

namespace {
constexpr unsigned int UsualDischargePercent = 80;

/** Sets date and time apart: set together, the edit would convert between local time and its own UTC. */
void setMoment(QDateTimeEdit *edit, const QDateTime &moment)
{
    edit->setDate(moment.date());
    edit->setTime(moment.time());
}
} // namespace

void VoltbokGui::showBatteryCharge()
{
    auto *card = qobject_cast<BatteryWidget *>(sender());
    if (!card)
        return;
    const unsigned int capacity = card->getBatteryCapacity();
    ui->sb_discharged_capacity->setValue(static_cast<int>(capacity * UsualDischargePercent / 100));
    ui->dsb_discharged_current->setValue(card->getBatteryRating() * capacity / 1000.0);
    const QDateTime now = QDateTime::currentDateTime();
    setMoment(ui->dedt_dischargeDate, now);
    setMoment(ui->tedt_dischargeTime, now);
    currentPage = Page::Discharge;
    chargeBattery = card;
    if (card->getViewMode() == BatteryWidget::Complex)
        showPage(Page::Discharge);
    else
        on_pb_save_discharged_clicked();
}

void VoltbokGui::on_pb_save_discharged_clicked()
{
    // The flight and the discharge belong together by this moment alone: both get the identical value.
    QDateTime moment(ui->dedt_dischargeDate->date(), ui->tedt_dischargeTime->time());
    recordFlight(moment);
    recordDischarge(moment);
}

void VoltbokGui::recordFlight(const QDateTime &moment)
{
    ModelWidget *model = selectedModel();
    if (!model)
        return;
    // Intentional: the page is never cleared, so a quick capture repeats what the last one left here.
    LogData flight;
    flight.date = moment;
    flight.location = ui->cb_log_location->currentText();
    flight.duration = ui->sb_log_duration->time();
    flight.temperature = ui->sb_log_temp->value();
    flight.notes = ui->ptext_log_notes->toPlainText();
    model->addLogData(flight);
}

void VoltbokGui::recordDischarge(QDateTime &moment)
{
    if (!chargeBattery || !chargeBattery->getBatteryCharged())
        return;
    chargeBattery->setBatteryCharged(false, false);
    chargeBattery->setBatteryCycles(chargeBattery->getBatteryCycles() + 1);
    chargeBattery->addFullEntry(moment, static_cast<unsigned int>(ui->sb_discharged_capacity->value()),
                                scaledTruncated(ui->dsb_discharged_current->value(), Hundredths), true);
    chargeBattery = nullptr;
    on_pb_options_clicked(); // from the discharge page this leads to the overview
}

void VoltbokGui::on_btnGrp_mode_buttonClicked(QAbstractButton *button)
{
    const bool complex = button->property("ViewMode").toString() == Preferences::Complex;
    Preferences::write(Preferences::CaptureMode, complex ? Preferences::Complex : Preferences::Simple);
    for (BatteryWidget *battery : std::as_const(batteryList))
        battery->setViewMode(complex ? BatteryWidget::Complex : BatteryWidget::Simple);
}

void VoltbokGui::restoreCaptureMode()
{
    const QVariant mode = Preferences::read(Preferences::CaptureMode);
    if (mode.toString() != Preferences::Complex)
        return; // fresh records are Simple; the mode buttons keep their state
    ui->rb_modeAdvanced->setChecked(true);
    on_btnGrp_mode_buttonClicked(ui->rb_modeAdvanced);
}
