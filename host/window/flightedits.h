// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/edits.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QVariant>

namespace Host {
class OpenLogbook;
}

namespace Host::FlightEdits {

/** What was entered for a flight, by the columns of the flights' table; see FlightEditors for the values. */
using Entered = QMap<int, QVariant>;

/** Whether flights are still those that a table showed, so that a change does not meet others. */
bool areThere(const QList<FlightPlace> &places, const Catalogue &shown, const Catalogue &now);

/** Whether models and batteries are still those that a chooser offered, in their order. */
bool canBeChosen(const Catalogue &shown, const Catalogue &now);

/** Says that something is not as it was shown. */
QString changedMeanwhile();

/**
 * Edits a flight of the logbook in one step that can be undone.
 *
 * @param shown the version in which it was edited; nothing is done where the flight is another one now.
 * @param place becomes where the flight stands then.
 * @return why it was not done, in whole sentences; empty when it was. All is then as it was before.
 */
QString edit(OpenLogbook &logbook, const Catalogue &shown, FlightPlace &place, const Entered &entered);

/** Moves discharges to another battery. Guessed figures become those that a capture guesses for that one. */
QString moveDischarges(Catalogue &catalogue, const QList<FlightPlace> &places, qsizetype from, qsizetype to);

} // namespace Host::FlightEdits
