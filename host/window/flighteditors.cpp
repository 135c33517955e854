// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flighteditors.h"

#include "host/window/flightfields.h"

#include <QLineEdit>

namespace Host {
namespace {

constexpr char Initial[] = "initial"; ///< property of a field: the value that it came with

QVariant valueIn(const QWidget &field)
{
    if (const auto *edit = qobject_cast<const QDateTimeEdit *>(&field))
        return FlightFields::isDuration(*edit) ? QVariant(edit->time())
                                               : QVariant(timeOf(edit->date(), edit->time()));
    if (const auto *chooser = qobject_cast<const QComboBox *>(&field))
        return chooser->isEditable() ? QVariant(chooser->currentText()) : QVariant(chooser->currentIndex());
    if (const auto *spin = qobject_cast<const QSpinBox *>(&field))
        return spin->value();
    if (const auto *spin = qobject_cast<const QDoubleSpinBox *>(&field))
        return spin->value();
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(&field))
        return text->toPlainText();
    return static_cast<const QLineEdit &>(field).text();
}

void setValue(QWidget &field, const QVariant &value)
{
    if (auto *edit = qobject_cast<QDateTimeEdit *>(&field)) {
        if (FlightFields::isDuration(*edit))
            edit->setTime(value.toTime());
        else
            FlightFields::setMoment(*edit, value.toDateTime());
    } else if (auto *chooser = qobject_cast<QComboBox *>(&field)) {
        if (chooser->isEditable())
            chooser->setCurrentText(value.toString());
        else
            chooser->setCurrentIndex(value.toInt());
    } else if (auto *whole = qobject_cast<QSpinBox *>(&field)) {
        whole->setValue(value.toInt());
    } else if (auto *decimal = qobject_cast<QDoubleSpinBox *>(&field)) {
        decimal->setValue(value.toDouble());
    } else if (auto *text = qobject_cast<QPlainTextEdit *>(&field)) {
        text->setPlainText(value.toString());
    } else {
        static_cast<QLineEdit &>(field).setText(value.toString());
    }
}

QWidget *newField(const FlightsModel &flights, int row, int column, QWidget *parent)
{
    const Catalogue &catalogue = *flights.catalogue();
    const bool isOfDischarges = column == FlightsModel::Batteries || column == FlightsModel::Discharged ||
                                column == FlightsModel::Current;
    if (isOfDischarges && flights.dischargesOf(row).size() != 1)
        return new QLineEdit(parent);
    switch (column) {
    case FlightsModel::Time:
        return FlightFields::time(parent);
    case FlightsModel::ModelName:
        return FlightFields::chooser(FlightFields::names(catalogue.models), parent);
    case FlightsModel::Batteries:
        return FlightFields::chooser(FlightFields::names(catalogue.batteries), parent);
    case FlightsModel::Duration:
        return FlightFields::duration(parent);
    case FlightsModel::Discharged:
        return FlightFields::discharged(parent);
    case FlightsModel::Current:
        return FlightFields::current(parent);
    case FlightsModel::Location:
        return FlightFields::location(catalogue, parent);
    case FlightsModel::Temperature:
        return FlightFields::temperature(parent);
    default:
        return FlightFields::notes(parent);
    }
}

/** What is not known yet, begins with what is likely. */
QVariant initialValue(const FlightsModel &flights, int row, int column)
{
    const Flight &flight = flights.flightAt(row);
    switch (column) {
    case FlightsModel::Time:
        return flight.time.isValid() ? flight.time : QDateTime::currentDateTime();
    case FlightsModel::ModelName:
        return flights.placeOf(row).model;
    case FlightsModel::Batteries:
        if (const QList<DischargePlace> discharges = flights.dischargesOf(row); discharges.size() == 1)
            return discharges.constFirst().battery;
        break;
    case FlightsModel::Duration:
        return flight.duration.isValid() ? flight.duration : QTime(0, 0);
    default:
        break;
    }
    return flights.index(row, column).data(Qt::EditRole);
}

} // namespace

QWidget *FlightEditors::make(const FlightsModel &flights, int row, int column, QWidget *parent)
{
    QWidget *field = newField(flights, row, column, parent);
    show(*field, initialValue(flights, row, column));
    return field;
}

void FlightEditors::show(QWidget &field, const QVariant &value)
{
    const QVariant typed = entered(field);
    setValue(field, value);
    field.setProperty(Initial, valueIn(field)); // which may be another one, of what the field cannot show
    if (typed.isValid())
        setValue(field, typed);
}

QVariant FlightEditors::entered(const QWidget &field)
{
    const QVariant initial = field.property(Initial);
    const QVariant value = valueIn(field);
    return initial.isValid() && value != initial ? value : QVariant();
}

} // namespace Host
