// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/openlogbook.h"

#include "host/data/cataloguefile.h"
#include "host/safety/wholefile.h"
#include "host/window/questions.h"
#include "host/window/savecare.h"

#include <QDir>

#include <utility>

namespace Host {
namespace {

/** The scratch folder that records are loaded and saved in takes nothing. */
QString noSpace()
{
    return OpenLogbook::tr("Nothing was changed: there is no space left in “%1”. Free some, and try again.")
        .arg(QDir::tempPath());
}

QString cancelled()
{
    return OpenLogbook::tr("Nothing was changed: you have cancelled it.");
}

QString changedMeanwhile()
{
    return OpenLogbook::tr("Nothing was changed: the logbook has changed meanwhile. Look at it again, and "
                           "repeat what you did.");
}

} // namespace

OpenLogbook::OpenLogbook(const StorageFolder &folder, SaveCare *care, Questions &questions)
    : m_folder(folder)
    , m_care(care)
    , m_questions(questions)
    , m_mayChange(care && care->isInOrder())
{
    const QByteArray document = WholeFile::read(m_folder.dataFile()).bytes;
    m_history.restart(document.isEmpty() ? CatalogueFile::emptyDocument() : document);
    if (!m_care)
        return;
    connect(m_care, &SaveCare::written, this, &OpenLogbook::versionWritten);
    connect(m_care, &SaveCare::writtenByOthers, this, &OpenLogbook::versionOfOthers);
    connect(m_care, &SaveCare::orderChanged, this, &OpenLogbook::updatePossibilities);
}

std::shared_ptr<const Catalogue> OpenLogbook::catalogue()
{
    if (!m_catalogue) {
        const CatalogueFile::Loaded loaded = CatalogueFile::load(m_history.present());
        if (loaded.problem.isEmpty())
            m_catalogue = std::make_shared<const Catalogue>(loaded.catalogue);
    }
    return m_catalogue;
}

QString OpenLogbook::change(const QString &name, const Change &change)
{
    // Each step takes no longer than the window's own reading, and other events may happen after it.
    constexpr int Steps = 6;
    const std::unique_ptr<Progress> progress = m_questions.progress(tr("The logbook is changed…"), Steps);
    if (const QString problem = obstacle(); !problem.isEmpty())
        return problem;
    if (!progress->step())
        return cancelled();
    const std::shared_ptr<const Catalogue> present = catalogue();
    if (!present)
        return noSpace();
    if (!progress->step())
        return cancelled();
    Catalogue meant = *present;
    if (const QString problem = change(meant); !problem.isEmpty())
        return problem;
    if (meant == *present)
        return QString();
    if (!progress->step())
        return cancelled();
    const CatalogueFile::Saved saved = CatalogueFile::save(meant);
    if (!progress->step())
        return cancelled();
    const CatalogueFile::Loaded loaded = CatalogueFile::load(saved.document);
    if (!saved.problem.isEmpty() || !loaded.problem.isEmpty())
        return noSpace();
    if (loaded.catalogue != meant)
        return tr("Nothing was changed: the logbook file cannot hold what you entered. Leave out control "
                  "characters, and times that the clock does not have.");
    if (!progress->step())
        return cancelled();
    if (m_catalogue != present || !isFileStillThis())
        return changedMeanwhile();
    m_stepName = name;
    m_meant = std::make_shared<const Catalogue>(loaded.catalogue);
    return put(saved.document, *progress);
}

QString OpenLogbook::undo()
{
    return move(&UndoHistory::canUndo, &UndoHistory::before, &UndoHistory::undone);
}

QString OpenLogbook::redo()
{
    return move(&UndoHistory::canRedo, &UndoHistory::behind, &UndoHistory::redone);
}

/** Puts another version of the history in the place of the present one. */
QString OpenLogbook::move(bool (UndoHistory::*isPossible)() const,
                          QByteArray (UndoHistory::*document)() const, void (UndoHistory::*moved)())
{
    const std::unique_ptr<Progress> progress = m_questions.progress(tr("The logbook is changed…"), 2);
    const QString problem = obstacle();
    if (!problem.isEmpty() || !(m_history.*isPossible)())
        return problem;
    if (!progress->step())
        return cancelled();
    if (!(m_history.*isPossible)() || !isFileStillThis())
        return changedMeanwhile();
    m_move = moved;
    return put((m_history.*document)(), *progress);
}

void OpenLogbook::setCapturing(bool capturing)
{
    m_capturing = capturing;
    updatePossibilities();
}

/** Why nothing can be changed now, after all that is not saved was; in whole sentences. */
QString OpenLogbook::obstacle()
{
    if (m_capturing)
        return tr("Record the flight on the discharge page first, or leave that page.");
    if (!m_care->makeFileCurrent())
        return tr(
            "Nothing was changed: the logbook file does not hold what this window shows. See the message "
            "above the logbook.");
    // What was flushed just now is a version of its own, and so is what nobody has told of.
    const QByteArray document = WholeFile::read(m_folder.dataFile()).bytes;
    if (!document.isEmpty() && document != m_history.present())
        versionOfOthers(document);
    return QString();
}

/** Whether nobody has written since obstacle() has looked. */
bool OpenLogbook::isFileStillThis() const
{
    const QByteArray document = WholeFile::read(m_folder.dataFile()).bytes;
    return !m_capturing && m_care->isInOrder() && (document.isEmpty() || document == m_history.present());
}

/** Writes a document in the place of the present version, which stays there if that fails. */
QString OpenLogbook::put(const QByteArray &document, Progress &progress)
{
    progress.commit();
    const QByteArray before = m_history.present();
    QString problem = WholeFile::write(m_folder.dataFileTarget(), document);
    if (problem.isEmpty()) {
        m_care->readWritten();
        progress.step();
        if (m_care->takeWritten(document))
            return QString();
    }
    m_stepName.clear();
    m_meant.reset();
    m_move = nullptr;
    if (problem.isEmpty()) {
        problem = tr("it cannot be read back");
        WholeFile::write(m_folder.dataFileTarget(), before);
        m_care->readWritten();
        m_care->takeWritten(before);
        m_history.restart(before);
        announce();
    }
    return tr("Nothing was changed: the logbook file cannot be written: %1. See that “%2” can be written, "
              "and "
              "try again.")
        .arg(problem, m_folder.dataFile());
}

void OpenLogbook::versionWritten(const QByteArray &document)
{
    if (const auto move = std::exchange(m_move, nullptr))
        (m_history.*move)();
    else
        m_history.add(document, std::exchange(m_stepName, QString()));
    announce();
}

/** Its history ends here. */
void OpenLogbook::versionOfOthers(const QByteArray &document)
{
    m_history.restart(document);
    announce();
}

void OpenLogbook::announce()
{
    m_catalogue = std::exchange(m_meant, nullptr);
    updatePossibilities();
    Q_EMIT changed();
}

void OpenLogbook::updatePossibilities()
{
    m_mayChange = !m_capturing && m_care && m_care->isInOrder();
    Q_EMIT possibilitiesChanged();
}

} // namespace Host
