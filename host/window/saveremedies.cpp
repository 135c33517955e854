// SPDX-License-Identifier: GPL-3.0-or-later
// What the program writes in the window's stead, and the buttons of the message about a save that failed.
#include "host/data/cataloguefile.h"
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"
#include "host/window/messagebar.h"
#include "host/window/questions.h"
#include "host/window/savecare.h"

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {
const QString Restored = u"restored"_s; // what a message is about
}

void SaveCare::readWritten(const QByteArray &document)
{
    m_logbook.reload();
    m_showsPart = false;
    m_watch.accept();
    m_watch.file().acceptAs(document); // somebody else may have written meanwhile
    setOthers(Others::Nothing);
    m_keeper.look(document);
    m_keeper.look();
}

bool SaveCare::takeWritten(const QByteArray &document)
{
    m_watch.file().look();
    // The window has then read what is followed like any other version of somebody else's.
    m_showsPart = m_watch.file().state() != FileWatch::Known;
    m_openedAs = heldByWindow();
    settle();
    Q_EMIT written(document);
    return m_openedAs == document || m_openedAs == CatalogueFile::loadAndSave(document).document;
}

void SaveCare::tryAgain()
{
    // Where the window holds nothing more than the file, there is nothing to save.
    const bool saves = m_loss == Loss::File;
    QString problem = saves ? QString() : WholeFile::writeProblem(m_folder.dataFile());
    if (problem.isEmpty() && (!saves || save())) {
        Q_EMIT written(heldByFile());
        return settle();
    }
    if (saves) {
        problem = reason(tr("the disk reports an error"));
        tellLoss(Loss::File, problem);
    }
    m_questions.tell(tr("The logbook still cannot be saved: %1.").arg(problem));
}

void SaveCare::restoreLastState()
{
    const QByteArray state = lastState();
    QString aside;
    const QString problem = state.isEmpty()
                                ? tr("there is no whole copy")
                                : Recovery::replace(m_folder, state, QDateTime::currentDateTimeUtc(), &aside);
    if (!problem.isEmpty()) {
        m_questions.tell(
            tr("The last state cannot be restored: %1. Nothing was changed. Free some space, or keep "
               "the logbook elsewhere.")
                .arg(problem));
        return;
    }
    readWritten(state);
    takeWritten(state);
    m_messages.tell(
        Restored,
        aside.isEmpty()
            ? tr("The last state is restored.")
            : tr("The last state is restored. The file that was there is kept as “%1”.").arg(aside));
}

void SaveCare::keepElsewhere()
{
    const QString path = m_questions.chooseFolder(tr("Keep the Logbook in Another Folder"));
    if (path.isEmpty())
        return;
    const StorageFolder folder(path);
    const auto lock = std::make_shared<FolderLock>();
    const QString problem = keepIn(folder, *lock);
    if (problem.isEmpty())
        Q_EMIT keptElsewhere(folder, lock);
    else
        m_questions.tell(problem);
}

/** @return why the logbook cannot be kept in this folder, in whole sentences; empty when it is. */
QString SaveCare::keepIn(const StorageFolder &folder, FolderLock &lock) const
{
    QString problem = folder.problem();
    if (problem.isEmpty() && Recovery::examine(folder).kind != FileState::New)
        problem = tr("There is a logbook in “%1” already. Choose an empty folder.").arg(folder.path());
    if (problem.isEmpty())
        problem = lock.take(folder).problem;
    if (!problem.isEmpty())
        return problem;
    const QByteArray state = lastState();
    const QString reason =
        state.isEmpty() ? tr("there is no whole state of it") : WholeFile::write(folder.dataFile(), state);
    return reason.isEmpty() ? QString()
                            : tr("The logbook cannot be kept in “%1”: %2. Choose another folder.")
                                  .arg(folder.path(), reason);
}

/** Has the window save. @return whether the file holds now what the window holds. */
bool SaveCare::save()
{
    const QByteArray held = heldByWindow();
    if (!mayOverwrite())
        return false;
    m_logbook.save();
    const bool changed = m_watch.file().isWritten();
    takeForOurs();
    const QByteArray document = heldByFile();
    return held.isEmpty() ? changed && WholeFile::isWhole(document) : document == held;
}

/** The newest state that is whole, of those that window, file and copies have left. */
QByteArray SaveCare::lastState() const
{
    QByteArray state = m_loss == Loss::Everything ? QByteArray() : heldByWindow();
    if (state.isEmpty())
        state = m_unsaved;
    if (state.isEmpty() && m_loss != Loss::File)
        Backups::newestWhole(m_folder, &state);
    return state;
}

} // namespace Host
