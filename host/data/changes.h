// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QString>

namespace Host {

/** What was done between two states of a logbook, as a menu shows it: "Charged 3S 450 A". */
QString changeName(const Catalogue &before, const Catalogue &after);

} // namespace Host
