// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QString>
#include <QStringList>

/**
 * The copies that programs which synchronise folders leave beside a file that was changed on two computers:
 * "voltbok.sync-conflict-20261121-101112-ABCDEFG.xml", "voltbok (conflicted copy 2026-11-21 101112).xml",
 * "voltbok (Anna's conflicted copy 2026-11-21).xml", the latter in the words of the user's language.
 */
namespace Host::ConflictFiles {

/** Whether a file's name is that of such a copy of "voltbok.xml". */
bool isConflictName(const QString &fileName);

/** The copies of the logbook, absolute paths; regular files alone, sorted by name. */
QStringList ofLogbook(const StorageFolder &folder);

/** Those of what the logs of radios tell. */
QStringList ofMeasured(const StorageFolder &folder);

} // namespace Host::ConflictFiles
