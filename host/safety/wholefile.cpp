// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

#include <cerrno>
#include <utility>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qint64 LeastSpace = qint64(16) * 1024; // bytes; a disk with less is full for every logbook

QString translated(const char *text)
{
    return QCoreApplication::translate("WholeFile", text);
}

// Without QFile's "user" bits, which depend on who asks.
constexpr auto Classes = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup |
                         QFile::ReadOther | QFile::WriteOther;

/** Why this is nothing that can be opened as a file; empty when it is a regular file of a sane size. */
QString kindProblem(const QFileInfo &file)
{
    if (file.isSymLink() && !file.exists())
        return translated(QT_TRANSLATE_NOOP("WholeFile", "it is a link to “%1”, which does not exist"))
            .arg(file.symLinkTarget());
    if (file.isDir())
        return translated(QT_TRANSLATE_NOOP("WholeFile", "it is a folder"));
    if (!file.isFile())
        return translated(QT_TRANSLATE_NOOP("WholeFile", "it is not a regular file"));
    if (file.size() > WholeFile::MaximumSize)
        return translated(QT_TRANSLATE_NOOP("WholeFile", "it is larger than %1 MB"))
            .arg(WholeFile::MaximumSize / (qint64(1024) * 1024));
    return QString();
}

/** Grants no more than these permissions; a disk without permissions may refuse to change those that it
 * shows.
 */
bool restrict(QFileDevice &file, QFile::Permissions permissions)
{
    return file.setPermissions(permissions) || !(file.permissions() & Classes & ~permissions);
}

/** Writes everything. A disk that takes only a part says why when it is given the rest. */
bool writeAll(QFileDevice &file, const QByteArray &bytes)
{
    for (qint64 done = 0; done < bytes.size();) {
        const qint64 taken = file.write(bytes.constData() + done, bytes.size() - done);
        if (taken <= 0)
            return false;
        done += taken;
    }
    return file.flush() || file.flush();
}

QString synced(QFileDevice &file)
{
#ifdef Q_OS_UNIX
    // What cannot be synced at all (EINVAL, EROFS) is as safe as it gets.
    if (fsync(file.handle()) != 0 && (errno == EIO || errno == ENOSPC || errno == EDQUOT))
        return WholeFile::clause(qt_error_string(errno));
#else
    Q_UNUSED(file)
#endif
    return QString();
}

} // namespace

WholeFile::Reading WholeFile::read(const QString &path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.exists() && !info.isSymLink()) {
        // Opening it cannot wait for anybody, and tells a missing file from a folder that may not be entered.
        const QString problem = file.open(QFile::ReadOnly) ? QString() : clause(file.errorString());
        return {{}, problem, problem == clause(qt_error_string(ENOENT))};
    }
    const QString problem = kindProblem(info);
    if (!problem.isEmpty())
        return {{}, problem};
    if (!file.open(QFile::ReadOnly))
        return {{}, clause(file.errorString())};
    QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        return {{}, clause(file.errorString())};
    return {std::move(bytes), {}};
}

QString WholeFile::write(const QString &path, const QByteArray &bytes,
                         std::optional<QFileDevice::Permissions> permissions)
{
    QSaveFile file(path);
    if (!file.open(QFile::WriteOnly) || (permissions && !restrict(file, *permissions)) ||
        !writeAll(file, bytes)) // before commit(), which would forget the reason
        return clause(file.errorString());
    QString problem = synced(file);
    if (!problem.isEmpty())
        return problem;
    if (!file.commit())
        return clause(file.errorString());
    const Reading written = read(path); // a disk that lies is found out before anybody relies on it
    if (!written.problem.isEmpty())
        return written.problem;
    return written.bytes == bytes
               ? QString()
               : translated(QT_TRANSLATE_NOOP("WholeFile", "it was written, but reads differently"));
}

QString WholeFile::sync(const QString &path)
{
    QString problem = kindProblem(QFileInfo(path));
    if (!problem.isEmpty())
        return problem;
    QFile file(path);
    return file.open(QFile::ReadOnly) ? synced(file) : clause(file.errorString());
}

QString WholeFile::clause(const QString &systemText)
{
    static constexpr std::pair<int, const char *> Clauses[] = {
        {EACCES, QT_TRANSLATE_NOOP("WholeFile", "permission denied")},
        {EPERM, QT_TRANSLATE_NOOP("WholeFile", "operation not permitted")},
        {EROFS, QT_TRANSLATE_NOOP("WholeFile", "the disk is read-only")},
        {ENOSPC, QT_TRANSLATE_NOOP("WholeFile", "no space left on device")},
#ifdef EDQUOT
        {EDQUOT, QT_TRANSLATE_NOOP("WholeFile", "no space left within your quota")},
#endif
        {EFBIG, QT_TRANSLATE_NOOP("WholeFile", "the file would be too large")},
        {EIO, QT_TRANSLATE_NOOP("WholeFile", "the disk reports an error")},
        {ENOENT, QT_TRANSLATE_NOOP("WholeFile", "there is no such file")},
        {ENAMETOOLONG, QT_TRANSLATE_NOOP("WholeFile", "its name is too long")},
        {EMFILE, QT_TRANSLATE_NOOP("WholeFile", "too many files are open")},
    };
    for (const auto &[code, text] : Clauses) {
        if (systemText == qt_error_string(code))
            return translated(text);
    }
    return systemText;
}

QString WholeFile::writeProblem(const QString &path)
{
    QFile file(path);
    if (file.exists() && !file.open(QFile::ReadWrite | QFile::ExistingOnly))
        return clause(file.errorString());
    const QString folder = QFileInfo(path).path();
    const QStorageInfo disk(folder);
    if (disk.isValid() && disk.bytesAvailable() < LeastSpace)
        return translated(QT_TRANSLATE_NOOP("WholeFile", "no space is left on the disk"));
    if (!file.exists() && QFileInfo::exists(folder) && !QFileInfo(folder).isWritable())
        return translated(QT_TRANSLATE_NOOP("WholeFile", "there is no permission to write in its folder"));
    return QString();
}

std::optional<QFileDevice::Permissions> WholeFile::permissionsOf(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() ? std::optional(file.permissions() & Classes) : std::nullopt;
}

} // namespace Host
