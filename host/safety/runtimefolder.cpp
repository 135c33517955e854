// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/runtimefolder.h"

#include "host/safety/storagefolder.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <filesystem>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int MostLinks = 40; // as many as the system itself follows

/** The session's own run-time folder; empty where there is none that is this user's alone. It is not asked of
 * QStandardPaths, which falls back to the shared temporary folder, with a warning. */
QString sessionFolder()
{
#ifdef Q_OS_UNIX
    const QFileInfo folder(qEnvironmentVariable("XDG_RUNTIME_DIR"));
    const bool isOwn = folder.isAbsolute() && folder.isDir() && folder.isWritable() &&
                       folder.ownerId() == geteuid() &&
                       !(folder.permissions() & (QFile::WriteGroup | QFile::WriteOther));
    if (isOwn)
        return folder.filePath();
#endif
    return QString();
}

} // namespace

QString runtimeFolder()
{
    QString parent = sessionFolder();
    if (parent.isEmpty())
        parent = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    return parent + u"/voltbok"_s;
}

QString canonicalDataFile(const StorageFolder &folder)
{
    QFileInfo file(folder.dataFile());
    for (int links = 0; links < MostLinks; ++links) {
        const QString parent = file.dir().canonicalPath();
        if (!parent.isEmpty())
            file.setFile(QDir(parent), file.fileName());
        if (!file.isSymLink())
            break;
        file.setFile(file.symLinkTarget()); // step by step, for a link may lead to a file still to be written
    }
    return file.filePath();
}

QString runtimeName(const StorageFolder &folder)
{
    const QByteArray path = QFile::encodeName(canonicalDataFile(folder));
    return QString::fromLatin1(QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex());
}

QString makeFolder(const QString &path)
{
    std::error_code error; // QDir::mkpath() does not tell the reason
    std::filesystem::create_directories(QDir(path).filesystemAbsolutePath(), error);
    if (error && !QFileInfo(path).isDir())
        return QString::fromLocal8Bit(error.message());
    return QString();
}

QString makeRuntimeFolder()
{
    const QString path = runtimeFolder();
    if (QFileInfo(path).isDir())
        return QString();
    QString problem = makeFolder(path);
    if (problem.isEmpty())
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return problem;
}

} // namespace Host
