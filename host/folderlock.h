// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>
#include <QString>

#include <memory>
#include <vector>

/**
 * Keeps a second instance away from a storage folder, for as long as it lives.
 *
 * One lock lies in the machine's temporary folder, since the storage folder may not exist before the first
 * save; another lies in the storage folder when there is one, for machines that share it. The lock of an
 * instance that died is taken over.
 */
class FolderLock
{
public:
    /** Takes the locks. @return who has the folder open, in one line; empty when it is ours now. */
    QString take(const QString &storagePath);

private:
    std::vector<std::unique_ptr<QLockFile>> m_locks;
};
