// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLockFile>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace Host {

struct LockFile;

/**
 * Keeps a second instance away from a storage folder, for as long as it lives.
 *
 * One lock lies in the folder, for every user and every machine that shares it; another in the user's own
 * run-time folder under the data file's canonical path, for two folders whose data file is one. The lock of
 * an instance that died is taken over.
 */
class FolderLock final
{
    Q_DECLARE_TR_FUNCTIONS(FolderLock)
    Q_DISABLE_COPY_MOVE(FolderLock)

public:
    FolderLock() = default;
    ~FolderLock();

    struct Refusal
    {
        QString problem;          ///< why the folder is not ours, in whole sentences; empty when it is
        bool isOpenHere = false;  ///< an instance of this user on this machine has it
        bool mayTakeOver = false; ///< a lock of another machine or user, which breakAndTake() can end
    };

    /** Makes the folder if need be, and takes the locks. It answers at once, or in two seconds where others
     * start at the same moment. What is ours already stays so. */
    Refusal take(const StorageFolder &folder);

    /** Takes the locks although another machine or user seems to have one; the user was told whose it is. A
     * lock that somebody has put there since take() was refused is refused again. */
    Refusal breakAndTake(const StorageFolder &folder);

private:
    enum class Strangers { Respect, Break };

    Refusal takeAll(const StorageFolder &folder, Strangers strangers);
    /** @param logbook what the lock stands for, as it is called in the refusal */
    Refusal takeOne(const QString &path, const QString &logbook, Strangers strangers);
    bool mayRemove(const LockFile &found, Strangers strangers) const;
    static Refusal refusal(const LockFile &found, const QString &path, const QString &logbook);
    void release();

    std::vector<std::unique_ptr<QLockFile>> m_locks;
    std::optional<QByteArray> m_refused; ///< content of the lock that the user was told of
};

} // namespace Host
