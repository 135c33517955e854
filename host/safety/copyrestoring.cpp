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

QString translated(const char *text)
{
    return QCoreApplication::translate("CopyRestoring", text);
}

/** The measured values beside a copy. */
WholeFile::Reading besideIn(const StorageFolder &folder, const Copy &copy)
{
    const QString path = folder.backups().filePath(Backups::measuredName(copy.name));
    if (QFileInfo(path).isSymLink()) // what it leads to is not ours
        return {{}, translated(QT_TRANSLATE_NOOP("CopyRestoring", "it is a link"))};
    WholeFile::Reading reading = WholeFile::read(path);
    if (reading.isMissing)
        return {};
    if (reading.problem.isEmpty())
        reading.problem = MeasuredFile::load(reading.bytes).problem;
    return reading.problem.isEmpty() ? reading : WholeFile::Reading{{}, reading.problem};
}

} // namespace

Backups::Held Backups::held(const StorageFolder &folder, const Copy &copy)
{
    WholeFile::Reading reading = WholeFile::read(folder.backups().filePath(copy.name));
    if (reading.problem.isEmpty())
        reading.problem = WholeFile::inspect(reading.bytes).problem;
    if (!reading.problem.isEmpty())
        return {{}, {}, {}, reading.problem};
    const WholeFile::Reading beside = besideIn(folder, copy);
    return {reading.bytes, beside.bytes, beside.problem, {}};
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

QString CopyRestoring::besideLost(const Backups::Held &held)
{
    if (held.besideProblem.isEmpty())
        return QString();
    return translated(QT_TRANSLATE_NOOP("CopyRestoring",
                                        "What radio logs told of this copy cannot be read: %1. What is known "
                                        "now and fits to it is kept."))
        .arg(held.besideProblem);
}

QString CopyRestoring::keepPresent(const StorageFolder &folder, const QByteArray &document,
                                   const MeasuredStore::Stored &stored, const QByteArray &besideThen,
                                   const QDateTime &now)
{
    // Damaged ones are put aside when others take their place.
    const bool losesBeside = besideThen != stored.bytes && !stored.bytes.isEmpty() && stored.reason.isEmpty();
    if (document.isEmpty())
        return losesBeside ? WholeFile::write(folder.asideOfMeasured(now), stored.bytes,
                                              WholeFile::permissionsOf(folder.measuredFile()))
                           : QString();
    const QString problem = Backups::add(folder, document, now);
    if (!problem.isEmpty() || !losesBeside)
        return problem;
    const std::optional<Copy> copy = Backups::newestWhole(folder);
    return copy && besideIn(folder, *copy).bytes == stored.bytes
               ? QString()
               : translated(
                     QT_TRANSLATE_NOOP("CopyRestoring", "the values that radio logs tell cannot be copied"));
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
