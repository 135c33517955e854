// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/statistics/advice.h"

#include <QList>
#include <QString>

namespace Host {

/** A limit of the advice that the user may change. */
struct LimitField
{
    const char *name;    ///< in the settings
    const char *caption; ///< to be translated in the context "AdviceLimits"
    const char *unit;    ///< the same, with plurals; behind the number
    int AdviceLimits::*value;
    int least;
    int most;
};

/** In the order in which the preferences show them. */
const QList<LimitField> &limitFields();

/** The limits as the user has chosen them. */
AdviceLimits chosenLimits();

} // namespace Host
