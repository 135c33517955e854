// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the open logbook that puts a copy in its place.
#include "host/data/cataloguefile.h"
#include "host/safety/copyrestoring.h"
#include "host/safety/wholefile.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"

#include <QDateTime>
#include <QDir>

namespace Host {
namespace {

QString cancelled()
{
    return OpenLogbook::tr("Nothing was changed: you have cancelled it.");
}

} // namespace

OpenLogbook::Restored OpenLogbook::restore(const Backups::Held &copy)
{
    // Each step takes no longer than the window's own reading.
    constexpr int Steps = 5;
    const std::unique_ptr<Progress> progress = m_questions.progress(tr("The copy is restored…"), Steps);
    if (const QString problem = obstacle(); !problem.isEmpty())
        return {problem};
    if (copy.document == m_history.present() &&
        (copy.beside.isEmpty() || copy.beside == m_stored.bytes || !m_stored.mayWrite))
        return {{}, true};
    QByteArray beside;
    if (const QString problem = prepareRestoring(copy, *progress, &beside); !problem.isEmpty()) {
        m_meant.reset();
        return {problem};
    }
    if (copy.document == m_history.present())
        return {onlyBeside(beside)};
    m_stepName = tr("Copy restored");
    return {put(copy.document, beside, *progress)};
}

/** Reads what the copy holds, and keeps what it takes the place of. @return why that is not possible, in
 * whole sentences. */
QString OpenLogbook::prepareRestoring(const Backups::Held &copy, Progress &progress, QByteArray *beside)
{
    if (!progress.step())
        return cancelled();
    const std::shared_ptr<const Catalogue> present = catalogue();
    if (!progress.step())
        return cancelled();
    CatalogueFile::Loaded loaded = CatalogueFile::load(copy.document);
    if (!present || !loaded.problem.isEmpty())
        return tr("Nothing was changed: there is no space left in “%1”. Free some, and try again.")
            .arg(QDir::tempPath());
    *beside = CopyRestoring::besideOf(copy, m_stored, *present, loaded.catalogue);
    if (!progress.step())
        return cancelled();
    const WholeFile::Reading file = WholeFile::read(m_folder.dataFile());
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QString reason = file.isMissing ? QString() : file.problem;
    if (reason.isEmpty())
        reason = CopyRestoring::keepPresent(m_folder, file.bytes, m_stored, *beside, now);
    if (reason.isEmpty()) // the window saves only what it understands
        reason = CopyRestoring::keepWhatIsNotUnderstood(m_folder, copy.document, now);
    if (!reason.isEmpty())
        return tr("Nothing was changed: the logbook as it is now cannot be copied first: %1. See that the "
                  "program can write in “%2”, and try again.")
            .arg(reason, m_folder.path());
    if (!progress.step())
        return cancelled();
    if (m_catalogue != present || !isFileStillThis())
        return tr("Nothing was changed: the logbook has changed meanwhile. Look at it again, and repeat what "
                  "you did.");
    MeasuredFile::mark(loaded.catalogue, MeasuredFile::load(*beside).measured);
    m_meant = std::make_shared<const Catalogue>(loaded.catalogue);
    return QString();
}

} // namespace Host
