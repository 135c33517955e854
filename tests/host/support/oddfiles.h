// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/** Things that may lie under the name of a data file, and are none that can be opened. */
namespace OddFiles {

enum Kind {
    Html,
    Cut,
    ZeroByte,
    Declarations,
    Unreadable,
    Pipe,
    Folder,
    DanglingLink,
    TenGigabytes,
    Zeros, ///< a link to /dev/zero
    Full,  ///< a link to /dev/full
    Socket
};

/** Makes one. @return whether that worked. */
bool make(Kind kind, const QString &path);

/** A line for everything below a folder: its path, type, mode, size, where it leads, what it holds. */
QStringList listing(const QString &folder);

/** Copies the program and its library into a folder, for everybody. @return whether that was possible. */
bool giveProgram(const QString &folder);

/** Hands everything below a folder over to somebody without rights, so that a program may run as them. */
void giveAway(const QString &folder);
/** What a child process calls to be that somebody. Nothing where it is no superuser in the first place. */
void becomeNobody();

} // namespace OddFiles
