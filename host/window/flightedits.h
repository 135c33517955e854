// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/edits.h"

#include <QList>
#include <QString>
#include <QVariant>

namespace Host::FlightEdits {

/** Whether flights are still those that a table showed, so that a change does not meet others. */
bool areThere(const QList<FlightPlace> &places, const Catalogue &shown, const Catalogue &now);

/** Says that they are not. */
QString changedMeanwhile();

/**
 * Gives a cell of the flights' table the value that its editor gave.
 *
 * @param place becomes where the flight stands then.
 * @return why it cannot be done, in whole sentences; empty when it is.
 */
QString apply(Catalogue &catalogue, FlightPlace &place, int column, const QVariant &value);

/** Moves discharges to another battery. Guessed figures become those that a capture guesses for that one. */
QString moveDischarges(Catalogue &catalogue, const QList<FlightPlace> &places, qsizetype from, qsizetype to);

} // namespace Host::FlightEdits
