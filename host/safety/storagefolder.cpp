// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/storagefolder.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace Host {

namespace {

constexpr QStringView MergedForm = u"'voltbok-merged-'yyyyMMdd-HHmmss-zzz'Z.xml'";

/** The file that a name stands for. */
QString targetOf(const QString &path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    return target.isEmpty() ? path : target;
}

/** A name in a folder that is not taken yet; the form spells a time in UTC. */
QString freeName(const QDir &folder, const QDateTime &now, QStringView form)
{
    for (QDateTime stamp = now.toUTC();; stamp = stamp.addMSecs(1)) {
        const QString path = folder.filePath(stamp.toString(form));
        const QFileInfo taken(path);
        if (!taken.exists() && !taken.isSymLink())
            return path;
    }
}

} // namespace

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
    return targetOf(dataFile());
}

QString StorageFolder::measuredFile() const
{
    return m_folder.filePath(u"voltbok-measured.json"_s);
}

QString StorageFolder::measuredFileTarget() const
{
    return targetOf(measuredFile());
}

QString StorageFolder::asideOfMeasured(const QDateTime &now) const
{
    return freeName(QFileInfo(measuredFileTarget()).dir(), now,
                    u"'voltbok-measured-broken-'yyyyMMdd-HHmmss-zzz'Z.json'");
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
    return freeName(QFileInfo(dataFileTarget()).dir(), now, u"'voltbok-broken-'yyyyMMdd-HHmmss-zzz'Z.xml'");
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

QString StorageFolder::mergedVersion(const QDateTime &now) const
{
    return freeName(backups(), now, MergedForm);
}

QStringList StorageFolder::mergedVersions() const
{
    QStringList paths;
    const QStringList names =
        backups().entryList({u"voltbok-merged-*.xml"_s}, QDir::Files | QDir::NoSymLinks, QDir::Name);
    for (const QString &name : names) {
        if (timeOfMerged(name).isValid())
            paths.append(backups().filePath(name));
    }
    return paths;
}

QDateTime StorageFolder::timeOfMerged(const QString &path)
{
    QDateTime time = QDateTime::fromString(QFileInfo(path).fileName(), MergedForm.toString());
    time.setTimeSpec(Qt::UTC);
    return time;
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
