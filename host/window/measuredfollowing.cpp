// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the open logbook that keeps the measured values with their discharges.
#include "host/data/cataloguefile.h"
#include "host/window/openlogbook.h"

#include <utility>

namespace Host {

/** Where the window has changed the logbook: what follows from that is found out when somebody looks. */
void OpenLogbook::expectFollowing()
{
    if (m_meant)
        return; // done already
    if (m_stored.measured.isEmpty() || !m_followedDocument.isEmpty())
        return;
    m_followedDocument = m_history.present();
    m_followed = m_catalogue;
}

void OpenLogbook::forgetFollowing()
{
    m_followedDocument.clear();
    m_followed.reset();
}

/** What the window renamed, moved or deleted takes the measured values along. */
void OpenLogbook::followOthers(const Catalogue &present)
{
    const QByteArray document = std::exchange(m_followedDocument, QByteArray());
    const std::shared_ptr<const Catalogue> before = std::exchange(m_followed, nullptr);
    if (document.isEmpty())
        return;
    const Measured followed = MeasuredFile::followed(
        m_stored.measured, before ? *before : CatalogueFile::load(document).catalogue, present);
    const QByteArray bytes = MeasuredFile::save(followed);
    if (bytes == MeasuredFile::save(m_stored.measured) || !putBeside(bytes).isEmpty())
        return; // a file that cannot be written costs these values alone
    m_history.setBeside(bytes);
}

/** Writes what stands beside the logbook. @return why it was not done, a clause. */
QString OpenLogbook::putBeside(const QByteArray &beside)
{
    m_measuredWatch.look();
    if (m_measuredWatch.state() != FileWatch::Known)
        return tr("another program has changed it");
    const QString problem = MeasuredStore::put(m_folder, beside);
    readMeasured();
    return problem;
}

void OpenLogbook::readMeasured()
{
    m_measuredWatch.accept(); // first: what is written between the two is noticed
    m_stored = MeasuredStore::load(m_folder);
}

/** Theirs count from now on, whatever the logbook itself holds; the steps before would bring back ours. */
void OpenLogbook::takeMeasuredOfOthers()
{
    readMeasured();
    m_history.restart(m_history.present(), m_stored.bytes);
    announce();
    Q_EMIT measuredByOthers(m_stored.problem.isEmpty()
                                ? tr("Another program has changed what radio logs tell of the discharges. It "
                                     "is on show now.")
                                : m_stored.problem);
}

/** Changes nothing but what stands beside the logbook. */
QString OpenLogbook::onlyBeside(const QByteArray &beside)
{
    if (beside == m_stored.bytes)
        return QString();
    if (const QString problem = putBeside(beside); !problem.isEmpty())
        return measuredNotWritten(problem);
    m_history.setBeside(beside);
    announce();
    return QString();
}

QString OpenLogbook::measuredNotWritten(const QString &problem) const
{
    return tr("Nothing was changed: what radio logs tell cannot be written: %1. See that “%2” can be "
              "written, "
              "and try again.")
        .arg(problem, m_folder.measuredFile());
}

/** The version that was to be written is not. */
void OpenLogbook::forgetStep()
{
    m_stepName.clear();
    m_meant.reset();
    m_move = nullptr;
}

} // namespace Host
