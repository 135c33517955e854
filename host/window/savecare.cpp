// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/savecare.h"

#include "host/data/cataloguefile.h"
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"
#include "host/window/messagebar.h"
#include "host/window/questions.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {
// What the messages are about.
const QString Saving = u"saving"_s;
const QString Copies = u"copies"_s;
const QString Others = u"others"_s;
const QString Restored = u"restored"_s;
} // namespace

SaveCare::SaveCare(const StorageFolder &folder, const LogbookAccess &logbook, MessageBar &messages,
                   Questions &questions)
    : m_folder(folder)
    , m_logbook(logbook)
    , m_messages(messages)
    , m_questions(questions)
    , m_openedAs(heldByWindow())
    , m_watch(logbook.widget, folder)
    , m_keeper(folder)
{
    connect(&m_watch, &SaveWatch::saved, this, &SaveCare::saved);
    connect(&m_watch, &SaveWatch::notSaved, this, &SaveCare::saveRefused);
    connect(&m_watch, &SaveWatch::changedByOthers, this, &SaveCare::changedByOthers);
    connect(&m_keeper, &BackupKeeper::fileWhole, this, &SaveCare::fileWhole);
    connect(&m_keeper, &BackupKeeper::fileBroken, this, &SaveCare::fileBroken);
    connect(&m_keeper, &BackupKeeper::failed, this,
            [this](const QString &problem) { m_messages.tell(Copies, problem); });
    connect(&m_keeper, &BackupKeeper::recovered, this, [this] { m_messages.retract(Copies); });
    const QString problem = WholeFile::writeProblem(m_folder.dataFile());
    if (!problem.isEmpty())
        tellLoss(Loss::Change, problem);
}

SaveCare::~SaveCare()
{
    flush();
    settle();
}

bool SaveCare::mayClose()
{
    flush();
    if (m_loss != Loss::File && m_loss != Loss::Everything)
        return true;
    Question question;
    question.text = tr("The logbook is not saved.");
    question.details = m_loss == Loss::File
                           ? tr("What you recorded last would be lost. Go back, and try again or "
                                "keep the logbook elsewhere.")
                           : tr("Its file is damaged. Go back and restore the last state; the "
                                "next start offers this, too.");
    question.answers = QStringList{tr("Quit Anyway"), tr("Go Back")};
    question.preferred = 1;
    question.refusal = 1;
    return m_questions.ask(question).button == 0;
}

void SaveCare::saved(bool reloaded)
{
    m_reloaded = reloaded;
    m_retried = true;
    m_messages.retract(Others);
    m_keeper.look();
}

void SaveCare::saveRefused(bool reloaded)
{
    // Two saves within one tick of the file's clock look like none.
    if (!reloaded && fileHolds(heldByWindow()))
        return;
    QString reason = WholeFile::writeProblem(m_folder.dataFile());
    if (reason.isEmpty())
        reason = tr("the disk reported an error");
    tellLoss(reloaded ? Loss::Change : Loss::File, reason);
}

void SaveCare::fileBroken(const QString &reason)
{
    const QString cause = WholeFile::writeProblem(m_folder.dataFile());
    tellLoss(m_reloaded ? Loss::Everything : Loss::File,
             cause.isEmpty() ? reason : u"%1; %2"_s.arg(reason, cause));
}

void SaveCare::fileWhole()
{
    if (m_retried && m_loss != Loss::Everything)
        settle();
}

void SaveCare::changedByOthers()
{
    m_reloaded = false;
    m_keeper.lookAndWait(); // before the window overwrites it
    if (QFileInfo::exists(m_folder.dataFile()))
        m_messages.tell(Others,
                        tr("Another program has changed the logbook file. This window still shows what it "
                           "held before, and your next change overwrites the file. A copy of the other "
                           "version is kept in “%1”; start Voltbok again to see it.")
                            .arg(m_folder.backups().path()));
}

void SaveCare::tellLoss(Loss loss, const QString &reason)
{
    m_loss = loss;
    m_retried = false;
    if (loss == Loss::File)
        m_unsaved = heldByWindow();
    // What the window has read back is not what was recorded: nothing may be written on top of it.
    m_logbook.widget->setEnabled(loss != Loss::Everything);

    QList<MessageBar::Action> actions;
    if (loss != Loss::Everything)
        actions.append({tr("Try Again"), [this] { tryAgain(); }});
    if (loss != Loss::Change)
        actions.append({tr("Restore Last State"), [this] { restoreLastState(); }});
    actions.append({tr("Keep Elsewhere…"), [this] { keepElsewhere(); }});
    m_messages.tell(Saving, lossText(loss).arg(m_folder.dataFile(), reason), actions);
}

QString SaveCare::lossText(Loss loss)
{
    switch (loss) {
    case Loss::File:
        return tr(
            "The logbook is not saved in “%1”: %2. This window still shows everything. Free some space or "
            "give back the right to write, then try again; or keep the logbook in another folder.");
    case Loss::Change:
        return tr(
            "Nothing can be saved in “%1”: %2. The file is as it was before; a change is lost. Give back "
            "the right to write, or keep the logbook in another folder, then enter your last change again.");
    case Loss::Everything:
        return tr("The logbook file “%1” was damaged while saving: %2. Nothing can be entered until you have "
                  "restored the last state or kept it in another folder. Then enter your last change again.");
    case Loss::None:
        break;
    }
    return QString();
}

void SaveCare::settle()
{
    m_loss = Loss::None;
    m_unsaved.clear();
    m_logbook.widget->setEnabled(true);
    m_messages.retract(Saving);
}

void SaveCare::tryAgain()
{
    const Loss before = m_loss;
    m_logbook.save();
    m_watch.accept();
    m_keeper.look();
    if (fileHolds(heldByWindow())) {
        settle();
        return;
    }
    QString reason = WholeFile::writeProblem(m_folder.dataFile());
    if (reason.isEmpty())
        reason = WholeFile::inspect(WholeFile::read(m_folder.dataFile()).bytes).problem;
    tellLoss(before, reason);
    m_questions.tell(tr("The logbook still cannot be saved: %1.").arg(reason));
}

void SaveCare::restoreLastState()
{
    const QByteArray state = lastWholeState();
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
    m_logbook.reload();
    m_watch.accept();
    m_reloaded = false;
    m_keeper.look();
    settle();
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
    if (problem.isEmpty() && QFileInfo::exists(folder.dataFile()))
        problem = tr("There is a logbook in “%1” already. Choose an empty folder.").arg(folder.path());
    if (problem.isEmpty())
        problem = lock.take(folder).problem;
    if (!problem.isEmpty())
        return problem;
    const QByteArray state = m_loss == Loss::Everything ? lastWholeState() : heldByWindow();
    const QString reason =
        state.isEmpty() ? tr("there is no whole state of it") : WholeFile::write(folder.dataFile(), state);
    return reason.isEmpty() ? QString()
                            : tr("The logbook cannot be kept in “%1”: %2. Choose another folder.")
                                  .arg(folder.path(), reason);
}

void SaveCare::flush()
{
    // What was damaged or changed by somebody else is not overwritten with what the window happens to hold.
    if (m_loss == Loss::Everything || m_loss == Loss::Change || m_watch.isChangedByOthers())
        return;
    const QByteArray held = heldByWindow();
    if (held.isEmpty() || held == m_openedAs || fileHolds(held))
        return;
    m_logbook.save();
    m_watch.accept();
    if (fileHolds(held))
        settle();
}

QByteArray SaveCare::lastWholeState() const
{
    if (m_loss == Loss::Everything && !m_unsaved.isEmpty())
        return m_unsaved;
    QByteArray document;
    Backups::newestWhole(m_folder, &document);
    return document;
}

QByteArray SaveCare::heldByWindow() const
{
    const QByteArray document = CatalogueFile::heldBy(*m_logbook.widget, m_folder.path()).document;
    return WholeFile::isWhole(document) ? document : QByteArray();
}

bool SaveCare::fileHolds(const QByteArray &document) const
{
    return !document.isEmpty() && WholeFile::read(m_folder.dataFile()).bytes == document;
}

} // namespace Host
