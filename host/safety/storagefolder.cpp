// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/storagefolder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace Host {

StorageFolder::StorageFolder(const QString &path)
    : m_folder(QDir::cleanPath(QDir::current().absoluteFilePath(path)))
{
}

StorageFolder StorageFolder::ofUser()
{
    return StorageFolder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

StorageFolder StorageFolder::ofDemo()
{
    return StorageFolder(ofUser().path() + u"-demo"_s);
}

QString StorageFolder::path() const
{
    return m_folder.path();
}

QString StorageFolder::dataFile() const
{
    return m_folder.filePath(u"voltbok.xml"_s);
}

QString StorageFolder::dataFileTarget() const
{
    const QString target = QFileInfo(dataFile()).canonicalFilePath();
    return target.isEmpty() ? dataFile() : target;
}

QDir StorageFolder::backups() const
{
    return QDir(m_folder.filePath(u"backups"_s));
}

QString StorageFolder::lock() const
{
    return m_folder.filePath(u"voltbok.lock"_s);
}

QString StorageFolder::replacement() const
{
    return QFileInfo(dataFileTarget()).dir().filePath(u"voltbok-new.xml"_s);
}

QString StorageFolder::aside(const QDateTime &now) const
{
    const QDir folder = QFileInfo(dataFileTarget()).dir();
    for (QDateTime stamp = now.toUTC();; stamp = stamp.addMSecs(1)) {
        const QString path = folder.filePath(stamp.toString(u"'voltbok-broken-'yyyyMMdd-HHmmss-zzz'Z.xml'"));
        const QFileInfo taken(path);
        if (!taken.exists() && !taken.isSymLink())
            return path;
    }
}

QStringList StorageFolder::asides() const
{
    const QDir folder = QFileInfo(dataFileTarget()).dir();
    QStringList paths;
    const auto names =
        folder.entryList({u"voltbok-broken-*.xml"_s}, QDir::Files, QDir::Name | QDir::Reversed);
    for (const QString &name : names)
        paths.append(folder.filePath(name));
    return paths;
}

QString StorageFolder::problem() const
{
    QFileInfo folder(path());
    while (!folder.exists() && !folder.isSymLink() && !folder.isRoot())
        folder.setFile(folder.absolutePath());

    const auto sentence = [&](const char *text) {
        return QCoreApplication::translate("StorageFolder", text).arg(path(), folder.filePath());
    };
    if (!folder.isDir())
        return sentence(QT_TRANSLATE_NOOP("StorageFolder",
                                          "A logbook cannot be kept in “%1”: “%2” is not a directory. Choose "
                                          "another folder."));
    if (!folder.isReadable() || !folder.isWritable() || !folder.isExecutable())
        return sentence(QT_TRANSLATE_NOOP(
            "StorageFolder", "A logbook cannot be kept in “%1”: there is no permission to read and "
                             "write in “%2”. Choose another folder, or ask its owner for access."));
    return QString();
}

} // namespace Host
