// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/measured.h"
#include "host/statistics/ageing.h"

#include <QStringList>

namespace Host {

/** What radio logs tell of the discharges of one battery. Values that were guessed or entered are not among
 * them. */
struct MeasuredFigures
{
    int flights = 0;   ///< that were measured
    Spread counter;    ///< mAh
    Spread integral;   ///< mAh
    Spread restBefore; ///< V, of the whole battery, as are the other volts
    Spread restAfter;
    Spread minVoltage;
    Health health; ///< mOhm and mAh
};

/** Of each measured discharge of the battery. */
QList<Measurement> measurementsOf(const Battery &battery, const Measured &measured);

MeasuredFigures measuredFigures(const Battery &battery, const Measured &measured);

/**
 * Whether the battery ages, a sentence or more on each of capacity and resistance; of a battery without
 * measured flights, one on how to get them. Plain text.
 */
QStringList healthTexts(const Battery &battery, const MeasuredFigures &figures);

} // namespace Host
