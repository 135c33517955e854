// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace Host {

/** What lies under the name of a lock. */
struct LockFile
{
    enum class State {
        Missing,
        Irregular,  ///< a folder, a link, a pipe: never opened, never removed
        Unreadable, ///< another user's, who lets nobody look into it
        Abandoned,  ///< left by a program that has ended
        Held,       ///< by a program that runs, on whatever machine
        Elsewhere,  ///< of another machine; whether its program still runs cannot be known here
    };

    State state = State::Missing;
    QByteArray content;
    qint64 process = 0; ///< 0 where the file does not tell
    QString program;    ///< plain text
    QString machine;    ///< plain text
    bool isOfThisMachine = true;
    QString user; ///< who owns the file, plain text; empty for the present user

    static LockFile at(const QString &path);
};

/**
 * Lets one process of this machine at a time look at the locks of a folder, make and remove them. Without it
 * the one that removes an abandoned lock could remove the lock that another has just put in its place. The
 * folder itself is locked: nothing is left behind by a program that is killed.
 */
class FolderGuard final
{
    Q_DISABLE_COPY_MOVE(FolderGuard)

public:
    /** Waits two seconds at most for others that look just now. */
    explicit FolderGuard(const QString &folder);
    ~FolderGuard();

    bool isHeld() const { return m_isHeld; }

private:
    int m_descriptor = -1;
    bool m_isHeld = true; // also where a file system knows no such lock: better unguarded than unusable
};

} // namespace Host
