// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/storagefolder.h"

#include <QLockFile>
#include <QString>

#include <memory>
#include <vector>

namespace Host {

/**
 * Keeps a second instance away from a storage folder, for as long as it lives.
 *
 * One lock lies in the folder, for every user and every machine that shares it; another in the user's own
 * run-time folder under the data file's canonical path, for two folders whose data file is one. The lock of
 * an instance that died is taken over.
 */
class FolderLock final
{
    Q_DISABLE_COPY_MOVE(FolderLock)

public:
    FolderLock() = default;

    struct Refusal
    {
        QString problem;          ///< why the folder is not ours, in whole sentences; empty when it is
        bool isOpenHere = false;  ///< an instance of this user on this machine has it
        bool mayTakeOver = false; ///< a lock of another machine or user, which breakAndTake() can end
    };

    /** Makes the folder if need be, and takes the locks. */
    Refusal take(const StorageFolder &folder);

    /** Takes the locks although another machine or user seems to have one; the user was told whose it is. */
    Refusal breakAndTake(const StorageFolder &folder);

private:
    std::vector<std::unique_ptr<QLockFile>> m_locks;
};

} // namespace Host
