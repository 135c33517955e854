// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/recovery.h"

#include "host/safety/backups.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Host {
namespace {

bool hasWholeCopy(const StorageFolder &folder)
{
    const QList<Copy> copies = Backups::list(folder);
    return std::any_of(copies.cbegin(), copies.cend(), [&](const Copy &copy) {
        return WholeFile::isWhole(WholeFile::read(folder.backups().filePath(copy.name)).bytes);
    });
}

bool isThere(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

} // namespace

FileState Recovery::examine(const StorageFolder &folder)
{
    if (!isThere(folder.dataFile())) {
        if (!hasWholeCopy(folder))
            return {};
        return {FileState::Missing, QCoreApplication::translate("Recovery", "it is missing"), {}};
    }
    WholeFile::Reading reading = WholeFile::read(folder.dataFile());
    if (!reading.problem.isEmpty())
        return {FileState::Unreadable, reading.problem, {}};
    const QString problem = WholeFile::inspect(reading.bytes).problem;
    return {problem.isEmpty() ? FileState::Whole : FileState::Damaged, problem, std::move(reading.bytes)};
}

QString Recovery::replace(const StorageFolder &folder, const QByteArray &document, const QDateTime &now,
                          QString *aside)
{
    const QString path = folder.dataFileTarget();
    const QString replacement = folder.replacement();
    QString problem = WholeFile::write(replacement, document, WholeFile::permissionsOf(path));
    if (!problem.isEmpty())
        return problem;
    const bool wasThere = isThere(path);
    const QString kept = folder.aside(now);
    QFile old(path);
    if (wasThere && !old.rename(kept)) {
        QFile::remove(replacement);
        return old.errorString();
    }
    QFile fresh(replacement);
    if (!fresh.rename(path)) {
        problem = fresh.errorString();
        if (wasThere)
            QFile::rename(kept, path);
        QFile::remove(replacement);
        return problem;
    }
    if (wasThere)
        *aside = kept;
    return QString();
}

QString Recovery::keepAside(const StorageFolder &folder, const QByteArray &document, const QDateTime &now,
                            QString *aside)
{
    const QString path = folder.aside(now);
    const QString problem = WholeFile::write(path, document, WholeFile::permissionsOf(folder.dataFile()));
    if (problem.isEmpty())
        *aside = path;
    return problem;
}

} // namespace Host
