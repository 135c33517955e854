// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/** What to do about a data file that is broken when the program starts. */
namespace Recovery {

/** Whether there is a data file that is not one whole document: loading it would lose what it has lost. */
bool isBroken(const QString &storagePath);

/**
 * Moves the broken file aside under a new name and puts a copy in its place.
 *
 * @param copy path of a whole copy; empty to go on without any data.
 * @return what went wrong, in one line; empty when nothing did.
 */
QString replaceBroken(const QString &storagePath, const QString &copy);

} // namespace Recovery
