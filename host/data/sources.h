// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QString>

namespace Host {

/** Where the figures of a discharge come from. */
enum class Source {
    None,     ///< nothing was entered
    Guessed,  ///< exactly what a quick capture presets for the battery
    Entered,  ///< by the pilot
    Measured, ///< by a radio's log
};

/** What a capture presets for a battery, within the limits of the discharge page. */
unsigned int presetDischarge(const Battery &battery); ///< mAh
unsigned int presetCurrent(const Battery &battery);   ///< hundredths of an ampere

Source sourceOf(const Battery &battery, const Discharge &discharge);

/** Whether it may enter a mean, a median or a maximum. */
bool isCounted(const Battery &battery, const Discharge &discharge);

/** "none", "guessed", "entered" or "measured", the same in every language. */
QString sourceKey(Source source);

} // namespace Host
