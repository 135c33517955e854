// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/measured.h"

#include <QString>

namespace Host {

class StorageFolder;

namespace ImportWriting {

/**
 * Writes an import: the logbook, with a copy of it before and after, then what is known of it. Both or none.
 * Where the process ends in between, the logbook holds what the logs say; importing them again finds that,
 * and adds nothing.
 *
 * @param present what the logbook holds now.
 * @return why it was not done, in whole sentences; empty when it was.
 */
QString write(const StorageFolder &folder, const Catalogue &present, const Catalogue &meant,
              const Measured &measured);

} // namespace ImportWriting
} // namespace Host
