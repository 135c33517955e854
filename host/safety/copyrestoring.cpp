// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/copyrestoring.h"

#include "host/data/cataloguefile.h"
#include "host/data/losses.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Host {
namespace {

/** The measured values beside a copy; a link there, or anything else that is no file, is not ours. */
QByteArray besideIn(const StorageFolder &folder, const Copy &copy)
{
    const QString path = folder.backups().filePath(Backups::measuredName(copy.name));
    const WholeFile::Reading reading =
        QFileInfo(path).isSymLink() ? WholeFile::Reading() : WholeFile::read(path);
    return reading.problem.isEmpty() && MeasuredFile::load(reading.bytes).problem.isEmpty() ? reading.bytes
                                                                                            : QByteArray();
}

} // namespace

Backups::Held Backups::held(const StorageFolder &folder, const Copy &copy)
{
    WholeFile::Reading reading = WholeFile::read(folder.backups().filePath(copy.name));
    if (reading.problem.isEmpty())
        reading.problem = WholeFile::inspect(reading.bytes).problem;
    if (!reading.problem.isEmpty())
        return {{}, {}, reading.problem};
    return {reading.bytes, besideIn(folder, copy), {}};
}

QByteArray CopyRestoring::besideOf(const Backups::Held &held, const MeasuredStore::Stored &stored,
                                   const Catalogue &present, const Catalogue &then)
{
    if (!stored.mayWrite)
        return stored.bytes;
    if (!held.beside.isEmpty())
        return held.beside;
    if (stored.measured.isEmpty())
        return stored.bytes;
    const Measured fitting = MeasuredFile::fitting(stored.measured, present, then);
    if (fitting.isEmpty())
        return QByteArray();
    const QByteArray bytes = MeasuredFile::save(fitting);
    return bytes == MeasuredFile::save(stored.measured) ? stored.bytes : bytes;
}

QString CopyRestoring::keepPresent(const StorageFolder &folder, const QByteArray &document,
                                   const MeasuredStore::Stored &stored, const QByteArray &besideThen,
                                   const QDateTime &now)
{
    if (document.isEmpty())
        return QString();
    const QString problem = Backups::add(folder, document, now);
    // Damaged ones are put aside when others take their place.
    if (!problem.isEmpty() || besideThen == stored.bytes || !stored.reason.isEmpty())
        return problem;
    const std::optional<Copy> copy = Backups::newestWhole(folder);
    return copy && besideIn(folder, *copy) == stored.bytes
               ? QString()
               : QCoreApplication::translate("CopyRestoring",
                                             "the values that radio logs tell cannot be copied");
}

QString CopyRestoring::keepWhatIsNotUnderstood(const StorageFolder &folder, const QByteArray &document,
                                               const QDateTime &now)
{
    const CatalogueFile::Saved saved = CatalogueFile::loadAndSave(document);
    if (!saved.problem.isEmpty())
        return saved.problem;
    QString aside;
    return losses(document, saved.document).isEmpty() ? QString()
                                                      : Recovery::keepAside(folder, document, now, &aside);
}

} // namespace Host
