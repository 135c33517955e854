// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/flightsmodel.h"

#include <QVariant>

class QWidget;

/**
 * The fields in which the flights' table is corrected, in the table itself and in a dialog. They give a date
 * and time, a duration, a temperature or a text as it is, models and batteries by their index in the
 * catalogue, one figure as a number, and the figures of several batteries as a text with semicolons.
 */
namespace Host::FlightEditors {

/** The field for a cell, with what that holds. */
QWidget *make(const FlightsModel &flights, int row, int column, QWidget *parent = nullptr);

/** Shows a value that nobody has entered. What the user has entered stays in its place. */
void show(QWidget &field, const QVariant &value);

/** What the user has entered; invalid where the field is as it came. */
QVariant entered(const QWidget &field);

} // namespace Host::FlightEditors
