// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/lockfile.h"

#include "host/safety/plaintext.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>
#include <QThread>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qint64 LargestLock = 4096; // bytes that are read; a real one has a hundred
constexpr int LongestName = 64;
constexpr int PatienceMs = 2000;
constexpr int PauseMs = 5;

enum class Holder { Lives, Gone, Unknown };

/** The lines that QLockFile writes. */
struct Lines
{
    explicit Lines(const QByteArray &content)
        : all(content.split('\n'))
    {
    }
    QByteArray at(qsizetype index) const { return all.value(index).trimmed(); }
    qint64 process() const { return all.size() < 4 ? 0 : qMax<qint64>(0, at(0).toLongLong()); }
    QByteArray program() const { return at(1); }
    QByteArray machine() const { return at(2); }
    QByteArray machineId() const { return at(3); }
    QByteArray bootId() const { return at(4); }

    QList<QByteArray> all;
};

QString plainName(const QByteArray &name)
{
    return plainLine(QString::fromUtf8(name)).left(LongestName);
}

bool isThisBoot(const Lines &lines)
{
    return !lines.bootId().isEmpty() && lines.bootId() == QSysInfo::bootUniqueId();
}

/** Names and identifiers of machines are both copied at times, with the system's disk: where one differs, the
 * user is better asked. Only a name that changed since the machine was started does not matter. */
bool isThisMachine(const Lines &lines)
{
    if (isThisBoot(lines))
        return true;
    const bool isThisId = lines.machineId().isEmpty() || lines.machineId() == QSysInfo::machineUniqueId();
    return isThisId && QString::fromUtf8(lines.machine()) == QSysInfo::machineHostName();
}

#ifdef Q_OS_UNIX

int openWithoutWaiting(const QString &path, int mode)
{
    return open(QFile::encodeName(path).constData(), mode | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
}

QByteArray readLock(const QString &path, bool *isReadable)
{
    QFile file;
    const int descriptor = openWithoutWaiting(path, O_RDONLY);
    *isReadable =
        descriptor >= 0 && file.open(descriptor, QFile::ReadOnly | QFile::Unbuffered, QFile::AutoCloseHandle);
    return *isReadable ? file.read(LargestLock) : QByteArray();
}

/** Whether the program that made the lock still holds it. The system's own lock on the file tells, whatever
 * has become of the process number; where it cannot be asked, the number must do. */
Holder holder(const QString &path, const Lines &lines)
{
    int descriptor = openWithoutWaiting(path, O_RDWR); // network file systems want it to be writable
    if (descriptor < 0)
        descriptor = openWithoutWaiting(path, O_RDONLY);
    if (descriptor >= 0) {
        const bool isFree = flock(descriptor, LOCK_EX | LOCK_NB) == 0;
        const int reason = errno;
        close(descriptor);
        if (isFree)
            return Holder::Gone;
        if (reason == EWOULDBLOCK)
            return Holder::Lives;
    }
    if (lines.process() == 0 || !isThisMachine(lines))
        return Holder::Unknown;
    if (!lines.bootId().isEmpty() && !isThisBoot(lines))
        return Holder::Gone;
    return kill(static_cast<pid_t>(lines.process()), 0) != 0 && errno == ESRCH ? Holder::Gone : Holder::Lives;
}

bool belongsToSomebodyElse(const QFileInfo &file)
{
    return file.ownerId() != geteuid();
}

#else

QByteArray readLock(const QString &path, bool *isReadable)
{
    QFile file(path);
    *isReadable = file.open(QFile::ReadOnly);
    return *isReadable ? file.read(LargestLock) : QByteArray();
}

Holder holder(const QString &path, const Lines &)
{
    return QLockFile(path).removeStaleLockFile() ? Holder::Gone : Holder::Lives;
}

bool belongsToSomebodyElse(const QFileInfo &)
{
    return false;
}

#endif

LockFile::State stateOf(const QString &path, const Lines &lines)
{
    const Holder found = holder(path, lines);
    if (found == Holder::Lives)
        return LockFile::State::Held;
    if (lines.process() == 0)
        return LockFile::State::Abandoned; // killed between making the file and writing into it
    return isThisMachine(lines) ? LockFile::State::Abandoned : LockFile::State::Elsewhere;
}

} // namespace

LockFile LockFile::at(const QString &path)
{
    LockFile lock;
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymLink())
        return lock;
    if (belongsToSomebodyElse(file))
        lock.user = plainName(file.owner().toUtf8());
    lock.state = State::Irregular;
    if (file.isSymLink() || !file.isFile())
        return lock;

    bool isReadable = false;
    lock.content = readLock(path, &isReadable);
    const Lines lines(lock.content);
    lock.process = lines.process();
    lock.program = plainName(lines.program());
    lock.machine = plainName(lines.machine());
    lock.isOfThisMachine = lock.process == 0 || isThisMachine(lines);
    lock.state = isReadable ? stateOf(path, lines) : State::Unreadable;
    return lock;
}

#ifdef Q_OS_UNIX

FolderGuard::FolderGuard(const QString &folder)
    : m_descriptor(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (m_descriptor < 0)
        return;
    const QDeadlineTimer deadline(PatienceMs);
    while (flock(m_descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        if (deadline.hasExpired()) {
            m_isHeld = false;
            return;
        }
        QThread::msleep(PauseMs);
    }
}

FolderGuard::~FolderGuard()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

#else

// There a file that somebody has open cannot be removed.
FolderGuard::FolderGuard(const QString &) {}

FolderGuard::~FolderGuard() = default;

#endif

} // namespace Host
