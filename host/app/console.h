// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Host::Console {

/**
 * Makes the standard streams safe to write to, before anything else is opened: a reader that goes away ends
 * nothing, and a stream that is closed is not mistaken for the file that would be opened in its place.
 */
void prepare();

/**
 * Says on standard error, in one line, what is wrong. Control characters are left out: a text may come from
 * a file that somebody else wrote, and a terminal obeys them.
 */
void complain(const QString &problem);

/** Prints a text on standard output. @return false when it could not be written, which was then said; a
 * reader that has read enough and gone away is no failure. */
bool print(const QString &text);

} // namespace Host::Console
