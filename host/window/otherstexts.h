// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/wholefile.h"

#include <QString>

namespace Host {

/** In words, what a version of the logbook holds more and less than the one before: "2 flights more, 1
 * battery fewer". */
QString changeInWords(const Contents &before, const Contents &now);

/** Whether a version of the logbook holds fewer of anything than the one before. */
bool holdsFewer(const Contents &before, const Contents &now);

} // namespace Host
