// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flighteditdialog.h"

#include "host/data/sources.h"
#include "host/window/flighteditors.h"
#include "host/window/flightfields.h"
#include "host/window/flightform.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"

#include <QLineEdit>

namespace Host {
namespace {

constexpr double HundredthsOfAnAmpere = 100.0;

} // namespace

FlightEditDialog::FlightEditDialog(const FlightsModel &flights, const FlightPlace &place,
                                   OpenLogbook &logbook, Questions &questions, QWidget *parent)
    : QDialog(parent)
    , m_shown(flights.catalogue())
    , m_logbook(logbook)
    , m_questions(questions)
    , m_place(place)
{
    setWindowTitle(tr("Edit a Flight"));
    const int row = flights.rowOf(place);
    const QString whyEmpty = flights.index(row, FlightsModel::Discharged).data(Qt::ToolTipRole).toString();
    FlightForm form(*this, tr("Save"));
    for (const int column : {FlightsModel::ModelName, FlightsModel::Time, FlightsModel::Duration,
                             FlightsModel::Batteries, FlightsModel::Discharged, FlightsModel::Current,
                             FlightsModel::Location, FlightsModel::Temperature, FlightsModel::Notes}) {
        QWidget *field = FlightEditors::make(flights, row, column);
        field->setEnabled(flights.flags(flights.index(row, column)).testFlag(Qt::ItemIsEditable));
        if (auto *text = qobject_cast<QLineEdit *>(field))
            text->setPlaceholderText(whyEmpty);
        form.add(column, *field);
        m_fields.at(static_cast<size_t>(column)) = field;
    }
    followBattery(flights, row);
}

/** Guessed figures become those of another battery with it, and are shown before. */
void FlightEditDialog::followBattery(const FlightsModel &flights, int row)
{
    const QList<DischargePlace> discharges = flights.dischargesOf(row);
    const auto *battery = qobject_cast<QComboBox *>(m_fields.at(FlightsModel::Batteries));
    if (!battery)
        return;
    const DischargePlace &there = discharges.constFirst();
    const Battery &before = m_shown->batteries.at(there.battery);
    if (sourceOf(before, before.discharges.at(there.discharge)) == Source::Guessed)
        connect(battery, &QComboBox::currentIndexChanged, this, &FlightEditDialog::offerBattery);
}

void FlightEditDialog::offerBattery(int battery)
{
    const Battery &chosen = m_shown->batteries.at(battery);
    FlightEditors::show(*m_fields.at(FlightsModel::Discharged), presetDischarge(chosen));
    FlightEditors::show(*m_fields.at(FlightsModel::Current), presetCurrent(chosen) / HundredthsOfAnAmpere);
}

FlightEdits::Entered FlightEditDialog::entered() const
{
    FlightEdits::Entered entered;
    for (int column = 0; column < FlightsModel::ColumnCount; ++column) {
        const QVariant value = FlightEditors::entered(*m_fields.at(static_cast<size_t>(column)));
        if (value.isValid())
            entered.insert(column, value);
    }
    return entered;
}

void FlightEditDialog::accept()
{
    const FlightEdits::Entered changes = entered();
    if (changes.isEmpty())
        return reject(); // as good as cancelled
    const QString problem = FlightEdits::edit(m_logbook, *m_shown, m_place, changes);
    if (problem.isEmpty())
        QDialog::accept();
    else
        m_questions.tell(problem);
}

} // namespace Host
