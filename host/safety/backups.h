// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QByteArray>
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
    QDateTime time;     ///< when it was made, by the clock of that moment; in UTC
    qint64 size = 0;    ///< in bytes
    bool kept = false;  ///< never thinned out
    QString stamp;      ///< what the copy is called; unique among those of a list
    qint64 beside = 0;  ///< bytes of the measured values that are kept with it; 0 where there are none
};

/**
 * The copies of the data file: their names, their order, which of them may go. Every function may be called
 * in any thread.
 *
 * A name carries a running number, "kept" for a copy that is never thinned out, and the time in UTC:
 * "voltbok-00000042-20261121-195112-123Z.xml", "voltbok-00000042-kept-20261121-195112-123Z.xml". Names
 * without a number and a Z, "voltbok-20261121-205112-123.xml", are local times of earlier versions.
 *
 * A copy is called by its time, "20261121-195112-123Z". Where a clock that was set back has given several the
 * same, each is called by all that its name says, "00000042-20261121-195112-123Z".
 */
namespace Backups {

/** How much all copies together may take, in bytes. */
inline constexpr qint64 TotalLimit = qint64(500) * 1000 * 1000;

/** What a file name says, its size apart; nothing when it is no name of a copy. */
std::optional<Copy> parse(const QString &fileName);

/** The file name that says what @p copy holds; its own name does not count. */
QString fileName(const Copy &copy);

/** What a copy is called by all that its file name says. */
QString longStamp(const QString &copyName);

/** The file that keeps the measured values of a copy: "voltbok-00000042-20261121-195112-123Z.json". */
QString measuredName(const QString &copyName);

/** The copies, the newest first: by number, those of earlier versions by their time. Only regular files
 * count. */
QList<Copy> list(const StorageFolder &folder);

/** The same; nothing where the folder of the copies is there and cannot be listed. */
std::optional<QList<Copy>> listed(const StorageFolder &folder);

/**
 * The names of the copies that may go, of those in @p newestFirst.
 *
 * All of the last ten minutes stay; of the last day the last of each ten minutes; then the first and the last
 * of each day for 31 days; then the last of each month. Where the rest takes more than @p limit bytes, the
 * oldest go, too, but never the newest nor the newest before today. A copy that is kept or dated later than
 * now stays.
 */
QStringList superfluous(const QList<Copy> &newestFirst, const QDateTime &now, qint64 limit = TotalLimit);

/** Whether the clock stands within a day of the newest copy; where it does not, the age of no copy is known.
 */
bool agreesWithClock(const QList<Copy> &newestFirst, const QDateTime &now);

/** Deletes the copies that may go. */
void thin(const StorageFolder &folder, const QDateTime &now);

/** What a copy holds. */
struct Held
{
    QByteArray document;
    QByteArray beside; ///< the measured values that are kept with it; empty where there are none to be read
    QString besideProblem; ///< why there are none to be read, a clause; empty where none are there
    QString problem;       ///< why it is no whole logbook, a clause; empty when it is
};
Held held(const StorageFolder &folder, const Copy &copy);

/** The newest copy that is a whole logbook, and its bytes where they are wanted. */
std::optional<Copy> newestWhole(const StorageFolder &folder, QByteArray *bytes = nullptr);

/** Marks the newest whole copy as one that is never thinned out.
 * @return why it was not marked, a clause; empty when it was, or when there is none. */
QString keepNewestWhole(const StorageFolder &folder);

/**
 * Makes a copy of a whole logbook and of the measured values beside it, unless the newest whole copy holds
 * the same. Where it is smaller than half of that one, that one is kept first. Nothing is thinned out. Where
 * the measured values cannot be copied, there is a copy of the logbook all the same.
 *
 * @return why there is no copy, a clause; empty when there is one.
 */
QString add(const StorageFolder &folder, const QByteArray &document, const QDateTime &now);

/**
 * Sees to it that one of the copies, whichever, is this whole logbook.
 *
 * @param forGood that copy is never thinned out.
 * @return why there is no such copy, a clause; empty when there is one.
 */
QString ensure(const StorageFolder &folder, const QByteArray &document, const QDateTime &now, bool forGood);

/** Deletes what copies that were cut off while they were written left behind. Only for who has the lock. */
void removeLeftovers(const StorageFolder &folder);

} // namespace Backups
} // namespace Host
