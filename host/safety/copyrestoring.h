// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/safety/backups.h"
#include "host/safety/measuredstore.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace Host {

/** Restoring a copy: what comes back, and that nothing is lost by it. */
namespace CopyRestoring {

/**
 * The measured values that stand beside a restored copy: those that were kept with it; without any, what of
 * the present ones fits to it. Those that must be left as they are stay.
 *
 * @param present of the logbook now; @param then what the copy holds.
 */
QByteArray besideOf(const Backups::Held &held, const MeasuredStore::Stored &stored, const Catalogue &present,
                    const Catalogue &then);

/** Says that the measured values of a copy do not come back, in whole sentences; empty where they do. */
QString besideLost(const Backups::Held &held);

/**
 * Copies the present logbook, before another one takes its place, and the measured values if those go, too.
 *
 * @param document of the data file; empty where there is none that is whole: the measured values are then put
 * aside.
 * @return why it is not copied, a clause; empty when it is.
 */
QString keepPresent(const StorageFolder &folder, const QByteArray &document,
                    const MeasuredStore::Stored &stored, const QByteArray &besideThen, const QDateTime &now);

/**
 * Where the next save would drop something of a copy, a second file with its bytes is kept under a name that
 * is never thinned out.
 *
 * @return why it is not, a clause; empty when it is, or need not be.
 */
QString keepWhatIsNotUnderstood(const StorageFolder &folder, const QByteArray &document,
                                const QDateTime &now);

} // namespace CopyRestoring
} // namespace Host
