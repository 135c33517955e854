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

/** Why the measured values are not whole. */
QString measuredProblemOf(const QByteArray &bytes)
{
    return MeasuredFile::load(bytes).problem;
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
    , m_measuredWatch(m_folder.measuredFile(), &measuredProblemOf)
    , m_mayChange(care && care->isInOrder())
{
    readMeasured();
    beginHistory();
    if (!m_care)
        return;
    connect(m_care, &SaveCare::written, this, &OpenLogbook::versionWritten);
    connect(m_care, &SaveCare::writtenByOthers, this, &OpenLogbook::versionOfOthers);
    connect(m_care, &SaveCare::orderChanged, this, &OpenLogbook::updatePossibilities);
    connect(&m_measuredWatch, &FileWatch::changed, this, &OpenLogbook::takeMeasuredOfOthers);
    connect(&m_measuredWatch, &FileWatch::broken, this, &OpenLogbook::takeMeasuredOfOthers);
}

OpenLogbook::~OpenLogbook()
{
    if (!m_followedDocument.isEmpty())
        catalogue(); // the measured values go along with what the window changed last
}

/** The history begins with what the file holds. A disk that does not give it is asked again when somebody
 * looks: nothing may be undone back to a logbook, nor measured values follow from one, that nobody has read.
 */
void OpenLogbook::beginHistory()
{
    const WholeFile::Reading reading = WholeFile::read(m_folder.dataFile());
    if (reading.isMissing)
        m_history.restart(CatalogueFile::emptyDocument(), m_stored.bytes);
    else if (reading.problem.isEmpty())
        m_history.restart(reading.bytes, m_stored.bytes);
}

bool OpenLogbook::hasBegun() const
{
    return !m_history.present().isEmpty();
}

std::shared_ptr<const Catalogue> OpenLogbook::catalogue()
{
    if (!hasBegun())
        beginHistory();
    if (!hasBegun())
        return nullptr;
    if (!m_catalogue) {
        CatalogueFile::Loaded loaded = CatalogueFile::load(m_history.present());
        if (!loaded.problem.isEmpty())
            return nullptr;
        followOthers(loaded.catalogue);
        MeasuredFile::mark(loaded.catalogue, m_stored.measured);
        m_catalogue = std::make_shared<const Catalogue>(loaded.catalogue);
    }
    return m_catalogue;
}

QString OpenLogbook::change(const QString &name, const Change &change)
{
    return changeWhole(name, [&](Catalogue &catalogue, Measured &measured) {
        const Catalogue before = catalogue;
        const QString problem = change(catalogue);
        measured = MeasuredFile::followed(measured, before, catalogue);
        return problem;
    });
}

QString OpenLogbook::changeWhole(const QString &name, const WholeChange &change)
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
    Measured measured = m_stored.measured;
    if (const QString problem = change(meant, measured); !problem.isEmpty())
        return problem;
    QByteArray beside = MeasuredFile::save(measured);
    if (beside == MeasuredFile::save(m_stored.measured))
        beside = m_stored.bytes;
    if (meant == *present)
        return onlyBeside(beside);
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
    MeasuredFile::mark(meant, measured);
    m_meant = std::make_shared<const Catalogue>(meant);
    return put(saved.document, beside, *progress);
}

QString OpenLogbook::undo()
{
    return move(&UndoHistory::canUndo, &UndoHistory::before, &UndoHistory::besideBefore,
                &UndoHistory::undone);
}

QString OpenLogbook::redo()
{
    return move(&UndoHistory::canRedo, &UndoHistory::behind, &UndoHistory::besideBehind,
                &UndoHistory::redone);
}

/** Puts another version of the history in the place of the present one. */
QString OpenLogbook::move(bool (UndoHistory::*isPossible)() const,
                          QByteArray (UndoHistory::*document)() const,
                          QByteArray (UndoHistory::*beside)() const, void (UndoHistory::*moved)())
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
    return put((m_history.*document)(), (m_history.*beside)(), *progress);
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
    if (!hasBegun())
        beginHistory();
    if (!m_care->makeFileCurrent())
        return tr(
            "Nothing was changed: the logbook file does not hold what this window shows. See the message "
            "above the logbook.");
    // Who is about to change something has looked at another version.
    return isFileStillThis() ? QString() : changedMeanwhile();
}

/** Whether nobody else has written since. */
bool OpenLogbook::isFileStillThis() const
{
    const WholeFile::Reading reading = WholeFile::read(m_folder.dataFile());
    const bool isSame = reading.problem.isEmpty() && reading.bytes == m_history.present();
    return !m_capturing && m_care->isInOrder() && (reading.isMissing || isSame);
}

/** Writes a document in the place of the present version, and what belongs beside it. What was there stays if
 * either fails. */
QString OpenLogbook::put(const QByteArray &document, const QByteArray &beside, Progress &progress)
{
    progress.commit();
    const QByteArray before = m_history.present();
    const QByteArray besideBefore = m_stored.bytes;
    QString problem = WholeFile::write(m_folder.dataFileTarget(), document);
    if (problem.isEmpty() && beside != besideBefore) {
        const QString reason = putBeside(beside);
        if (!reason.isEmpty()) {
            WholeFile::write(m_folder.dataFileTarget(), before);
            forgetStep();
            return measuredNotWritten(reason);
        }
    }
    if (problem.isEmpty()) {
        m_care->readWritten(document);
        progress.step();
        if (m_care->takeWritten(document))
            return QString();
    }
    forgetStep();
    if (problem.isEmpty()) {
        problem = tr("it cannot be read back");
        WholeFile::write(m_folder.dataFileTarget(), before);
        putBeside(besideBefore);
        m_care->readWritten(before);
        m_care->takeWritten(before);
        m_history.restart(before, m_stored.bytes);
        announce();
    }
    return tr("Nothing was changed: the logbook file cannot be written: %1. See that “%2” can be written, "
              "and "
              "try again.")
        .arg(problem, m_folder.dataFile());
}

void OpenLogbook::versionWritten(const QByteArray &document)
{
    if (const auto move = std::exchange(m_move, nullptr)) {
        (m_history.*move)();
        forgetFollowing();
    } else if (hasBegun()) {
        expectFollowing();
        m_history.add(document, std::exchange(m_stepName, QString()));
        m_history.setBeside(m_stored.bytes);
    } else {
        m_history.restart(document, m_stored.bytes);
    }
    announce();
}

/** Its history ends here. */
void OpenLogbook::versionOfOthers(const QByteArray &document)
{
    readMeasured();
    forgetFollowing();
    m_history.restart(document, m_stored.bytes);
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
