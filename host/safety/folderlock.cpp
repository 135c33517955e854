// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/folderlock.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int PatienceMs = 2000; // enough for an instance that only draws a picture

QString holder(const QLockFile &lock, const QString &storagePath)
{
    qint64 pid = 0;
    QString machine;
    QString program;
    if (lock.error() != QLockFile::LockFailedError || !lock.getLockInfo(&pid, &machine, &program))
        return u"cannot lock %1 (%2)"_s.arg(storagePath, lock.fileName());
    return u"%1 is open already: process %2 (%3) on %4 has it"_s.arg(storagePath, QString::number(pid),
                                                                     program, machine);
}

/** Locks, also when an instance was killed after it had made the file and before it had put its name into it.
 */
bool tryLock(QLockFile &lock)
{
    qint64 pid = 0;
    QString machine;
    QString program;
    return lock.tryLock(PatienceMs) ||
           (!lock.getLockInfo(&pid, &machine, &program) && lock.removeStaleLockFile() && lock.tryLock(0));
}

} // namespace

FolderLock::Refusal FolderLock::take(const StorageFolder &folder)
{
    auto lock = std::make_unique<QLockFile>(folder.lock());
    lock->setStaleLockTime(0); // only a dead holder makes a lock stale, never its age
    if (!tryLock(*lock))
        return {holder(*lock, folder.path())};
    m_locks.push_back(std::move(lock));
    return {};
}

FolderLock::Refusal FolderLock::breakAndTake(const StorageFolder &folder)
{
    return take(folder);
}

} // namespace Host
