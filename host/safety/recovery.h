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
        New,       ///< there is none, and there are no whole copies: an empty logbook
        Whole,     ///< one whole logbook
        Missing,   ///< there is none, but there are whole copies
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
 * Ends a replace() that was interrupted: a new file that has not come to its place yet is put there, one that
 * is not needed any more is removed. Only for the holder of the folder's lock.
 */
void finishInterrupted(const StorageFolder &folder);

/** Reads the data file and tells in which state it is. */
FileState examine(const StorageFolder &folder);

/**
 * Puts @p document in the place of the data file, which is kept under another name, whatever it is.
 *
 * The new file is written beside, the old one moved aside, the new one moved into its place; on any failure
 * all is as it was.
 *
 * @param aside where the old file is kept; set when there was one and nothing failed.
 * @return why it could not be done, a clause; empty when it was.
 */
QString replace(const StorageFolder &folder, const QByteArray &document, const QDateTime &now,
                QString *aside);

/**
 * Keeps a second file with the data file's present bytes, under a name that is never thinned out; one that
 * is there already will do.
 *
 * @param aside set to its path when nothing failed.
 * @return why it could not be kept, a clause; empty when it was.
 */
QString keepAside(const StorageFolder &folder, const QByteArray &document, const QDateTime &now,
                  QString *aside);

} // namespace Recovery
} // namespace Host
