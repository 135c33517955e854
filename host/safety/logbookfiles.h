// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QByteArray>
#include <QString>

namespace Host::LogbookFiles {

/** The data file and the measured values beside it. */
struct Contents
{
    QByteArray document;
    QByteArray beside;
};

/**
 * Puts both files in their places, or neither. A full disk cannot stop it halfway: the data file before is
 * moved, and moved back.
 *
 * @param besideBefore what stands beside the data file now.
 * @param aside receives the path under which the data file before is kept then; empty where there was none.
 * @return why it was not done, a clause; empty when it was.
 */
QString put(const StorageFolder &folder, const Contents &contents, const QByteArray &besideBefore,
            QString *aside);

} // namespace Host::LogbookFiles
