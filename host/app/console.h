// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Host::Console {

/**
 * Says on standard error, in one line, what is wrong. Control characters are left out: a text may come from
 * a file that somebody else wrote, and a terminal obeys them.
 */
void complain(const QString &problem);

/** Prints a text on standard output. */
void print(const QString &text);

} // namespace Host::Console
