// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Host {

struct Invocation;

/** Puts the copy of a stamp in the place of the logbook, which is copied first. @return the program's exit
 * status. */
int restoreCopy(const Invocation &invocation, const QString &stamp);

} // namespace Host
