// SPDX-License-Identifier: GPL-3.0-or-later
#include "storagefolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

QString defaultStoragePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

QString demoStoragePath()
{
    return defaultStoragePath() + u"-demo"_s;
}

QString storageProblem(const QString &path)
{
    QFileInfo folder(path);
    while (!folder.exists() && !folder.isSymLink() && !folder.isRoot())
        folder.setFile(folder.absolutePath());

    if (!folder.isDir())
        return u"cannot keep a logbook in %1: %2 is not a directory"_s.arg(path, folder.filePath());
    if (!folder.isReadable() || !folder.isWritable() || !folder.isExecutable())
        return u"cannot keep a logbook in %1: no permission to read and write in %2"_s.arg(path,
                                                                                           folder.filePath());
    return QString();
}

QString dataFileName(const QString &path)
{
    return QDir(path).absoluteFilePath(u"voltbok.xml"_s);
}
