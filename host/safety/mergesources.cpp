// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/mergesources.h"

#include "host/data/cataloguefile.h"
#include "host/data/mergeancestor.h"
#include "host/data/mergemeasured.h"
#include "host/safety/backups.h"
#include "host/safety/conflictfiles.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Version
{
    QString path;
    QDateTime time;
    bool isMerged = false;
};

/** The oldest first. */
QList<Version> versionsOf(const StorageFolder &folder)
{
    QList<Version> versions;
    QStringList merged = folder.mergedVersions();
    const auto takeMergedUntil = [&](const QDateTime &time) {
        while (!merged.isEmpty() &&
               (!time.isValid() || StorageFolder::timeOfMerged(merged.constFirst()) <= time)) {
            const QString path = merged.takeFirst();
            versions.append({path, StorageFolder::timeOfMerged(path), true});
        }
    };
    const QList<Copy> copies = Backups::list(folder);
    for (auto copy = copies.crbegin(); copy != copies.crend(); ++copy) {
        takeMergedUntil(copy->time);
        versions.append({folder.backups().filePath(copy->name), copy->time, false});
    }
    takeMergedUntil(QDateTime());
    return versions;
}

std::optional<Catalogue> read(const QString &path)
{
    const WholeFile::Reading reading = WholeFile::read(path);
    if (!reading.problem.isEmpty() || !WholeFile::isWhole(reading.bytes))
        return std::nullopt;
    const CatalogueFile::Loaded loaded = CatalogueFile::load(reading.bytes);
    return loaded.problem.isEmpty() ? std::optional(loaded.catalogue) : std::nullopt;
}

/** The files that tell what was measured of a version. */
QStringList measuredFilesOf(const StorageFolder &folder, const QString &version)
{
    const QFileInfo file(version);
    const QString sameName = file.dir().filePath(Backups::measuredName(file.fileName()));
    if (QFileInfo(sameName).isFile())
        return {sameName};
    if (ConflictFiles::ofLogbook(folder).contains(file.absoluteFilePath()))
        return ConflictFiles::ofMeasured(folder) + QStringList(folder.measuredFile()); // it may be theirs
    return {StorageFolder(file.absolutePath()).measuredFile()};
}

/** What was measured of the versions that are merged now. Where it cannot be moved it lies where it lay. */
void putMeasuredAside(const StorageFolder &folder, QDateTime when)
{
    const QStringList paths = ConflictFiles::ofMeasured(folder);
    for (const QString &path : paths) {
        QString aside;
        do {
            aside = Backups::measuredName(folder.mergedVersion(when));
            when = when.addMSecs(1);
        } while (QFileInfo::exists(aside));
        QFile::rename(path, aside);
    }
}

} // namespace

int MergeSources::versions(const StorageFolder &folder)
{
    return static_cast<int>(versionsOf(folder).size());
}

std::optional<Catalogue> MergeSources::ancestor(const StorageFolder &folder, const Catalogue &ours,
                                                const Catalogue &theirs, const std::function<bool()> &step)
{
    AncestorSearch search(ours, theirs);
    const QList<Version> versions = versionsOf(folder);
    for (const Version &version : versions) {
        if (const std::optional<Catalogue> catalogue = read(version.path))
            search.add(*catalogue, version.isMerged);
        if (!step())
            return std::nullopt;
    }
    return search.best();
}

Measured MergeSources::measuredOf(const StorageFolder &folder, const QString &version)
{
    Measured measured;
    const QStringList paths = measuredFilesOf(folder, version);
    for (const QString &path : paths) {
        const WholeFile::Reading reading = WholeFile::read(path);
        if (!reading.problem.isEmpty())
            continue;
        const MeasuredFile::Loaded loaded = MeasuredFile::load(reading.bytes);
        if (!loaded.problem.isEmpty())
            continue; // it costs its own contents only
        for (const MeasuredDischarge &discharge : loaded.measured.discharges) {
            if (!measured.find(discharge.battery, discharge.moment))
                measured.discharges.append(discharge);
        }
        measured = mergeMeasured(measured, {}, loaded.measured, {}, {});
    }
    return measured;
}

bool MergeSources::wasMerged(const StorageFolder &folder, const QByteArray &document)
{
    const QStringList paths = folder.mergedVersions();
    return std::any_of(paths.cbegin(), paths.cend(), [&document](const QString &path) {
        return QFileInfo(path).size() == document.size() && WholeFile::read(path).bytes == document;
    });
}

QString MergeSources::keepMerged(const StorageFolder &folder, const QByteArray &document,
                                 const QDateTime &when)
{
    return wasMerged(folder, document) ? QString()
                                       : WholeFile::write(folder.mergedVersion(when), document,
                                                          WholeFile::permissionsOf(folder.dataFile()));
}

QString MergeSources::putAside(const StorageFolder &folder, const QString &path, const QByteArray &document,
                               const QDateTime &when)
{
    if (WholeFile::read(path).bytes != document)
        return QCoreApplication::translate("MergeSources", "it has changed meanwhile");
    if (const QString problem = keepMerged(folder, document, when); !problem.isEmpty())
        return problem;
    QFile file(path);
    if (!file.remove())
        return WholeFile::clause(file.errorString());
    if (ConflictFiles::ofLogbook(folder).isEmpty())
        putMeasuredAside(folder, when);
    return QString();
}

} // namespace Host
