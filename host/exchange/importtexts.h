// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/matching.h"

#include <QString>

namespace Host {

/** What becomes of a session and why, as a list shows it: "fills the flight of 14:47 with 3S 2200". */
QString importText(const ImportedSession &session, const ImportPlan &plan);

} // namespace Host
