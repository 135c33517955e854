// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/measured.h"
#include "host/safety/storagefolder.h"

#include <QByteArray>
#include <QString>

namespace Host {

/** The measured values of a folder. Whatever is the matter with them, the logbook itself can be used. */
namespace MeasuredStore {

struct Stored
{
    Measured measured;    ///< nothing where the file is missing or cannot be used
    QByteArray bytes;     ///< of the file, also of a damaged one
    QString problem;      ///< why its contents are not known, in whole sentences with what follows from that
    QString reason;       ///< the same as a clause
    bool mayWrite = true; ///< false where it must be left as it is
};

Stored load(const StorageFolder &folder);

/**
 * Writes the values in the place of what load() found there. A damaged file is put aside before; one that a
 * later version wrote is left as it is. Nothing to write is no file, if there was none.
 *
 * @return why it was not done, a clause; empty when it was.
 */
QString save(const StorageFolder &folder, const Measured &measured);

/** The same with bytes that load() gave or MeasuredFile::save() makes; none are no file. */
QString put(const StorageFolder &folder, const QByteArray &bytes);

} // namespace MeasuredStore
} // namespace Host
