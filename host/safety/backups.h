// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace Host {

/** One copy of the data file in the folder of the copies. */
struct Copy
{
    QString name;       ///< of the file, without its folder
    quint64 number = 0; ///< counts the copies up, whatever the clock says; 0 for those of earlier versions
    QDateTime time;     ///< when it was made, by the clock of that moment
    qint64 size = 0;    ///< in bytes
    bool kept = false;  ///< never thinned out
};

/**
 * The copies of the data file: their names, their order, which of them may go. Every function may be called
 * in any thread.
 *
 * A name carries a running number, "kept" for a copy that is never thinned out, and the time in UTC:
 * "voltbok-00000042-20261121-195112-123Z.xml", "voltbok-00000042-kept-20261121-195112-123Z.xml". Names
 * without a number and a Z, "voltbok-20261121-205112-123.xml", are local times of earlier versions.
 */
namespace Backups {

/** How much all copies together may take, in bytes. */
inline constexpr qint64 TotalLimit = qint64(500) * 1000 * 1000;

/** What a file name says, its size apart; nothing when it is no name of a copy. */
std::optional<Copy> parse(const QString &fileName);

/** The copies, the newest first: by number, those of earlier versions by their time. Only regular files
 * count. */
QList<Copy> list(const StorageFolder &folder);

/**
 * The names of the copies that may go, of those in @p newestFirst.
 *
 * All of the last ten minutes stay; of the last day the last of each ten minutes; then the first and the last
 * of each day for 31 days; then the last of each month. Where the rest takes more than @p limit bytes, the
 * oldest go, too, but never the newest nor the newest before today. A copy that is kept or dated later than
 * now stays.
 */
QStringList superfluous(const QList<Copy> &newestFirst, const QDateTime &now, qint64 limit = TotalLimit);

} // namespace Backups
} // namespace Host
