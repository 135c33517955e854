// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace Host {

/** The state of a data file before anything is read from it. */
struct FileState
{
    enum Kind {
        New,       ///< there is none, and neither copies nor files put aside: an empty logbook
        Whole,     ///< one whole logbook
        Missing,   ///< there is none, but copies of it or files that were put aside
        Damaged,   ///< it can be read, and is not one whole logbook
        Unreadable ///< it cannot be read: nothing may take its place
    };
    Kind kind = New;
    QString problem;         ///< a clause that says why; empty for New and Whole
    QByteArray bytes;        ///< what was read; of a damaged file, too
    bool mayBeLoaded = true; ///< false where loading what can be read could take all memory there is
};

/** What to do about a data file that cannot be opened as it is. */
namespace Recovery {

/**
 * Ends a replace() that was interrupted: a new file that has not come to its place yet is put there. Where
 * the old one still has that place, the new one is removed if its bytes are in another file, too, and put
 * aside if not. Only for the holder of the folder's lock.
 */
void finishInterrupted(const StorageFolder &folder);

/** Reads the data file and tells in which state it is. */
FileState examine(const StorageFolder &folder);

/**
 * Puts @p document in the place of the data file, which is kept under another name. Where the data file is a
 * link, this is about the file that it leads to; a link that leads nowhere is left alone.
 *
 * The new file is written beside, the old one moved aside, the new one moved into its place; on any failure
 * all is as it was. It gets the rights of the old one; where that is missing, those of the newest copy.
 *
 * @param aside where the old file is kept; set when there was one and nothing failed.
 * @return why it could not be done, a clause; empty when it was.
 */
QString replace(const StorageFolder &folder, const QByteArray &document, const QDateTime &now,
                QString *aside);

/**
 * Keeps a second file with these bytes of the data file, under a name that is never thinned out; one that is
 * there already will do.
 *
 * @param aside set to its path when nothing failed.
 * @return why it could not be kept, a clause; empty when it was.
 */
QString keepAside(const StorageFolder &folder, const QByteArray &document, const QDateTime &now,
                  QString *aside);

} // namespace Recovery
} // namespace Host
