// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/recovery.h"

#include "host/safety/backups.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace Host {
namespace {

QString missing()
{
    return QCoreApplication::translate("Recovery", "it is missing");
}

bool isThere(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

} // namespace

void Recovery::finishInterrupted(const StorageFolder &folder)
{
    QFile replacement(folder.replacement());
    if (!replacement.exists())
        return;
    const bool wanted =
        !isThere(folder.dataFile()) && WholeFile::isWhole(WholeFile::read(folder.replacement()).bytes);
    if (!wanted || !replacement.rename(folder.dataFile()))
        replacement.remove();
}

FileState Recovery::examine(const StorageFolder &folder)
{
    if (!isThere(folder.dataFile())) {
        const bool isNew = Backups::list(folder).isEmpty() && folder.asides().isEmpty();
        return isNew ? FileState() : FileState{FileState::Missing, missing(), {}};
    }
    WholeFile::Reading reading = WholeFile::read(folder.dataFile());
    if (!reading.problem.isEmpty())
        return {FileState::Unreadable, reading.problem, {}};
    const Contents contents = WholeFile::inspect(reading.bytes);
    return {contents.problem.isEmpty() ? FileState::Whole : FileState::Damaged, contents.problem,
            std::move(reading.bytes), !contents.declaresEntities};
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
    const QStringList asides = folder.asides();
    for (const QString &path : asides) {
        if (WholeFile::read(path).bytes == document) {
            *aside = path;
            return QString();
        }
    }
    const QString path = folder.aside(now);
    const QString problem = WholeFile::write(path, document, WholeFile::permissionsOf(folder.dataFile()));
    if (problem.isEmpty())
        *aside = path;
    return problem;
}

} // namespace Host
