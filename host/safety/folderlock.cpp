// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/folderlock.h"

#include "host/safety/lockfile.h"
#include "host/safety/runtimefolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Why no file can be written beside this one; QLockFile does not tell. */
QString reasonOfTheDisk(const QString &path)
{
    QTemporaryFile probe(path + u".XXXXXX"_s);
    if (probe.open() && probe.write(QByteArray(4096, '.')) > 0 && probe.flush())
        return QString();
    return probe.errorString();
}

/** Gives up a lock whose file somebody else has taken over: a QLockFile that ends removes the file of that
 * name, whosever it is, so this one may not end before the program does. */
void abandon(std::unique_ptr<QLockFile> lock)
{
    static auto *const abandoned = new std::vector<std::unique_ptr<QLockFile>>;
    abandoned->push_back(std::move(lock));
}

} // namespace

FolderLock::~FolderLock()
{
    release();
}

FolderLock::Refusal FolderLock::take(const StorageFolder &folder)
{
    return takeAll(folder, Strangers::Respect);
}

FolderLock::Refusal FolderLock::breakAndTake(const StorageFolder &folder)
{
    return takeAll(folder, Strangers::Break);
}

FolderLock::Refusal FolderLock::takeAll(const StorageFolder &folder, Strangers strangers)
{
    if (!m_locks.empty())
        return {}; // ours already

    const QString cannotMake = tr("The folder “%1” cannot be made: %2. Choose another folder.");
    QString reason = makeFolder(folder.path());
    if (!reason.isEmpty())
        return {cannotMake.arg(folder.path(), reason)};
    reason = makeRuntimeFolder();
    if (!reason.isEmpty())
        return {tr("The folder “%1”, which keeps two windows from one logbook, cannot be made: %2.")
                    .arg(runtimeFolder(), reason)};

    Refusal refused = takeOne(folder.lock(), folder.path(), strangers);
    if (refused.problem.isEmpty()) {
        const QString path = runtimeFolder() + u'/' + runtimeName(folder) + u".lock"_s;
        refused = takeOne(path, canonicalDataFile(folder), strangers);
    }
    if (!refused.problem.isEmpty())
        release();
    return refused;
}

FolderLock::Refusal FolderLock::takeOne(const QString &path, const QString &logbook, Strangers strangers)
{
    const FolderGuard guard(QFileInfo(path).path());
    if (!guard.isHeld())
        return {tr("Another program keeps the folder “%1” locked. Wait until it is done, then try again.")
                    .arg(QFileInfo(path).path())};

    const LockFile found = LockFile::at(path);
    if (!mayRemove(found, strangers)) {
        m_refused = found.content;
        return refusal(found, path, logbook);
    }
    QFile old(path);
    if (found.state != LockFile::State::Missing && !old.remove())
        return {tr("The logbook in “%1” cannot be locked: the lock file “%2” was left behind and cannot be "
                   "removed (%3). Ask the owner of the file or of its folder to remove it.")
                    .arg(logbook, path, old.errorString())};

    auto lock = std::make_unique<QLockFile>(path);
    lock->setStaleLockTime(0); // only a dead holder makes a lock stale, never its age
    if (!lock->tryLock(0)) {
        const QString reason = reasonOfTheDisk(path);
        return {tr("The logbook in “%1” cannot be locked: the lock file “%2” cannot be written (%3).")
                    .arg(logbook, path, reason.isEmpty() ? tr("somebody else writes it") : reason)};
    }
    m_locks.push_back(std::move(lock));
    return {};
}

bool FolderLock::mayRemove(const LockFile &found, Strangers strangers) const
{
    switch (found.state) {
    case LockFile::State::Missing:
    case LockFile::State::Abandoned:
        return true;
    case LockFile::State::Elsewhere:
    case LockFile::State::Unreadable:
        return strangers == Strangers::Break && m_refused.value_or(found.content) == found.content;
    case LockFile::State::Irregular:
    case LockFile::State::Held:
        break;
    }
    return false;
}

FolderLock::Refusal FolderLock::refusal(const LockFile &found, const QString &path, const QString &logbook)
{
    if (found.state == LockFile::State::Irregular)
        return {tr("The logbook in “%1” cannot be locked: “%2” is in the way, and is not a regular file. "
                   "Remove or rename it, then try again.")
                    .arg(logbook, path)};
    if (found.state == LockFile::State::Unreadable)
        return {tr("The logbook in “%1” is locked by the user “%2”, whose lock file “%3” cannot be read. "
                   "Ask “%2” to close it first. If “%2” does not have it open, you can take it over.")
                    .arg(logbook, found.user, path),
                false, true};

    const QString program = found.process == 0
                                ? tr("unknown program")
                                : tr("%1, process %2").arg(found.program, QString::number(found.process));
    if (!found.isOfThisMachine) {
        QString problem =
            tr("The logbook in “%1” is open on the computer “%2” (%3), says the lock file “%4”. "
               "Close it there first.")
                .arg(logbook, found.machine, program, path);
        if (found.state == LockFile::State::Held) // a file server vouches for it
            return {problem};
        problem += u' ' + tr("If that computer was switched off without closing it, you can take the logbook "
                             "over.");
        return {problem, false, true};
    }
    if (!found.user.isEmpty())
        return {tr("The logbook in “%1” is open already: the user “%2” has it (%3), says the lock file "
                   "“%4”. It must be closed there first.")
                    .arg(logbook, found.user, program, path)};
    return {tr("The logbook in “%1” is open already (%2). Use the window that shows it, or close that first.")
                .arg(logbook, program),
            true, false};
}

void FolderLock::release()
{
    for (std::unique_ptr<QLockFile> &lock : m_locks) {
        const FolderGuard guard(
            QFileInfo(lock->fileName()).path()); // it lets go of the file, then removes it
        const LockFile found = LockFile::at(lock->fileName());
        if (found.isOfThisMachine && found.process == QCoreApplication::applicationPid())
            lock.reset();
        else
            abandon(std::move(lock));
    }
    m_locks.clear();
}

} // namespace Host
