// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/openlogbook.h"

#include "host/data/cataloguefile.h"
#include "host/safety/wholefile.h"
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

} // namespace

OpenLogbook::OpenLogbook(const StorageFolder &folder, SaveCare *care)
    : m_folder(folder)
    , m_care(care)
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
    if (const QString problem = obstacle(); !problem.isEmpty())
        return problem;
    const std::shared_ptr<const Catalogue> present = catalogue();
    if (!present)
        return noSpace();
    Catalogue meant = *present;
    if (const QString problem = change(meant); !problem.isEmpty())
        return problem;
    if (meant == *present)
        return QString();
    const CatalogueFile::Saved saved = CatalogueFile::save(meant);
    const CatalogueFile::Loaded loaded = CatalogueFile::load(saved.document);
    if (!saved.problem.isEmpty() || !loaded.problem.isEmpty())
        return noSpace();
    if (loaded.catalogue != meant)
        return tr("Nothing was changed: the logbook file cannot hold what you entered. Leave out control "
                  "characters, and times that the clock does not have.");
    m_stepName = name;
    return put(saved.document);
}

QString OpenLogbook::undo()
{
    const QString problem = obstacle();
    if (!problem.isEmpty() || !m_history.canUndo())
        return problem;
    m_move = &UndoHistory::undone;
    return put(m_history.before());
}

QString OpenLogbook::redo()
{
    const QString problem = obstacle();
    if (!problem.isEmpty() || !m_history.canRedo())
        return problem;
    m_move = &UndoHistory::redone;
    return put(m_history.behind());
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

/** Writes a document in the place of the present version, which stays there if that fails. */
QString OpenLogbook::put(const QByteArray &document)
{
    const QByteArray before = m_history.present();
    QString problem = WholeFile::write(m_folder.dataFileTarget(), document);
    if (problem.isEmpty() && m_care->takeWritten(document))
        return QString();
    m_stepName.clear();
    m_move = nullptr;
    if (problem.isEmpty()) {
        problem = tr("it cannot be read back");
        WholeFile::write(m_folder.dataFileTarget(), before);
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
    m_catalogue.reset();
    updatePossibilities();
    Q_EMIT changed();
}

void OpenLogbook::updatePossibilities()
{
    m_mayChange = !m_capturing && m_care && m_care->isInOrder();
    Q_EMIT possibilitiesChanged();
}

} // namespace Host
