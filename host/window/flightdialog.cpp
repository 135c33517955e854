// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightdialog.h"

#include "host/data/edits.h"
#include "host/data/sources.h"
#include "host/window/flightedits.h"
#include "host/window/flightfields.h"
#include "host/window/flightform.h"
#include "host/window/flightsmodel.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"

#include <utility>

namespace Host {
namespace {

constexpr double HundredthsOfAnAmpere = 100.0;

} // namespace

FlightDialog::FlightDialog(std::shared_ptr<const Catalogue> catalogue, OpenLogbook &logbook,
                           Questions &questions, QWidget *parent)
    : QDialog(parent)
    , m_catalogue(std::move(catalogue))
    , m_logbook(logbook)
    , m_questions(questions)
    , m_model(FlightFields::chooser(FlightFields::names(m_catalogue->models)))
    , m_time(FlightFields::time())
    , m_duration(FlightFields::duration())
    , m_battery(FlightFields::chooser(QStringList(tr("None")) + FlightFields::names(m_catalogue->batteries)))
    , m_discharged(FlightFields::discharged())
    , m_current(FlightFields::current())
    , m_location(FlightFields::location(*m_catalogue))
    , m_temperature(FlightFields::temperature())
    , m_notes(FlightFields::notes())
{
    setWindowTitle(tr("Add a Flight"));
    FlightFields::setMoment(*m_time, QDateTime::currentDateTime());
    m_location->setCurrentIndex(m_catalogue->locations.isEmpty() ? -1 : 0);
    FlightForm form(*this, tr("Add"));
    form.add(FlightsModel::ModelName, *m_model);
    form.add(FlightsModel::Time, *m_time);
    form.add(FlightsModel::Duration, *m_duration);
    form.add(FlightsModel::Batteries, *m_battery);
    form.add(FlightsModel::Discharged, *m_discharged);
    form.add(FlightsModel::Current, *m_current);
    form.add(FlightsModel::Location, *m_location);
    form.add(FlightsModel::Temperature, *m_temperature);
    form.add(FlightsModel::Notes, *m_notes);
    connect(m_battery, &QComboBox::currentIndexChanged, this, &FlightDialog::offerBattery);
    offerBattery();
}

/** Presets what a capture would, which is then known as guessed. */
void FlightDialog::offerBattery()
{
    const int battery = m_battery->currentIndex() - 1;
    m_discharged->setEnabled(battery >= 0);
    m_current->setEnabled(battery >= 0);
    const Battery chosen = battery >= 0 ? m_catalogue->batteries.at(battery) : Battery();
    m_discharged->setValue(static_cast<int>(presetDischarge(chosen)));
    m_current->setValue(presetCurrent(chosen) / HundredthsOfAnAmpere);
}

QString FlightDialog::add(Catalogue &catalogue)
{
    const int model = m_model->currentIndex();
    const int battery = m_battery->currentIndex() - 1;
    if (!FlightEdits::canBeChosen(*m_catalogue, catalogue) || model < 0)
        return FlightEdits::changedMeanwhile();
    const Flight flight{timeOf(m_time->date(), m_time->time()), m_duration->time(), m_location->currentText(),
                        m_temperature->value(), m_notes->toPlainText()};
    std::optional<Edits::NewDischarge> discharge;
    if (battery >= 0)
        discharge =
            Edits::NewDischarge{battery, static_cast<unsigned int>(m_discharged->value()),
                                static_cast<unsigned int>(qRound(m_current->value() * HundredthsOfAnAmpere))};
    m_added = {model, catalogue.models.at(model).log.size()};
    return Edits::addFlight(catalogue, model, flight, discharge);
}

void FlightDialog::accept()
{
    const QString problem =
        m_logbook.change(tr("Flight added"), [this](Catalogue &catalogue) { return add(catalogue); });
    if (problem.isEmpty())
        QDialog::accept();
    else
        m_questions.tell(problem);
}

} // namespace Host
