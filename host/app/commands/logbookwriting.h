// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/measured.h"

#include <QString>

namespace Host {

class StorageFolder;

namespace LogbookWriting {

/**
 * Writes what a command makes of a logbook, with a copy of it before and after, then what is known of its
 * measured discharges. Both or none.
 *
 * @param present what the logbook holds now.
 * @param notDone what did not happen where it fails, such as "Nothing was imported".
 * @return why it was not done, in whole sentences; empty when it was.
 */
QString write(const StorageFolder &folder, const Catalogue &present, const Catalogue &meant,
              const Measured &measured, const QString &notDone);

} // namespace LogbookWriting
} // namespace Host
