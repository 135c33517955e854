// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/measured.h"

#include <QString>

namespace Host {

class StorageFolder;

namespace LogbookWriting {

/** What a logbook holds, and what is known of its measured discharges. */
struct State
{
    Catalogue catalogue;
    Measured measured;
};

/**
 * Writes what a command makes of a logbook, with a copy of it before and after: the data file and the
 * measured values, both or none.
 *
 * @param present what both held when the command read them.
 * @param notDone what did not happen where it fails, such as "Nothing was imported".
 * @return why it was not done, in whole sentences; empty when it was.
 */
QString write(const StorageFolder &folder, const State &present, const State &meant, const QString &notDone);

} // namespace LogbookWriting
} // namespace Host
