// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/savecare.h"

#include "host/data/cataloguefile.h"
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"
#include "host/window/questions.h"

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

// What the messages are about.
const QString Saving = u"saving"_s;
const QString Copies = u"copies"_s;

/** Whether the library has written this document to its end. One that was cut never ends like this. */
bool hasItsEnd(const QByteArray &document)
{
    return document.endsWith("</Voltbok>\n") || document.endsWith("<Voltbok/>\n");
}

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
    connect(&m_watch, &SaveWatch::unchanged, this, &SaveCare::unchanged);
    connect(&m_watch, &SaveWatch::aboutToOverwrite, this, &SaveCare::aboutToOverwrite);
    connect(&m_watch.file(), &FileWatch::changed, this, &SaveCare::changedByOthers);
    connect(&m_watch.file(), &FileWatch::broken, this, &SaveCare::brokenByOthers);
    connect(&m_watch.file(), &FileWatch::returned, this, &SaveCare::returned);
    connect(&m_waiting, &QTimer::timeout, this, &SaveCare::followOthers);
    connect(&m_keeper, &BackupKeeper::fileWhole, this, &SaveCare::fileWhole);
    connect(&m_keeper, &BackupKeeper::fileBroken, this, &SaveCare::fileBroken);
    connect(&m_keeper, &BackupKeeper::failed, this,
            [this](const QString &problem) { m_messages.tell(Copies, problem); });
    connect(&m_keeper, &BackupKeeper::recovered, this, [this] { m_messages.retract(Copies); });
    const QString problem = WholeFile::writeProblem(m_folder.dataFile());
    if (!problem.isEmpty())
        tellLoss(Loss::Foreseen, problem);
    if (!isOpenedWhole())
        tellLoss(Loss::Everything, tr("it cannot be read back"));
}

SaveCare::~SaveCare()
{
    flush();
    if (m_watch.file().state() != FileWatch::Known && holdsUnsaved())
        m_keeper.keep(heldByWindow(), true); // there is no other place for it
    settle();
}

bool SaveCare::isInOrder() const
{
    return m_loss == Loss::None && m_others == Others::Nothing && m_watch.file().state() == FileWatch::Known;
}

bool SaveCare::mayClose()
{
    flush();
    const bool isDamaged = m_others == Others::Damage;
    if (m_loss != Loss::File && m_loss != Loss::Everything && !isDamaged)
        return true;
    enum { QuitAnyway, GoBack };
    Question question;
    question.text = isDamaged ? tr("The logbook file is gone or damaged.") : tr("The logbook is not saved.");
    question.details = isDamaged ? tr("Everything that this window shows is kept in a copy, which the next "
                                      "start offers. Go back, and put the file back now.")
                       : m_loss == Loss::File
                           ? tr("What you recorded last would be lost. Go back, and try again or "
                                "keep the logbook elsewhere.")
                           : tr("What you recorded last would be lost. Go back, and restore the last state "
                                "or keep the logbook elsewhere.");
    question.answers = QStringList{tr("Quit Anyway"), tr("Go Back")};
    question.preferred = GoBack;
    question.refusal = GoBack;
    return m_questions.ask(question).button == QuitAnyway;
}

bool SaveCare::makeFileCurrent()
{
    flush();
    return isInOrder();
}

/** Whether the window holds what a save of this file would keep; a disk that did not give it is asked once
 * more. */
bool SaveCare::isOpenedWhole()
{
    const QByteArray document = heldByFile();
    if (m_openedAs == document || document.isEmpty())
        return true;
    const QByteArray expected = CatalogueFile::loadAndSave(document).document;
    if (m_openedAs != expected) {
        m_logbook.reload();
        m_openedAs = heldByWindow();
    }
    return m_openedAs == expected;
}

void SaveCare::saved(bool reloaded)
{
    // The watch has looked at it before the next click: on top of what a window has read back from a cut
    // file, the next save would write a smaller logbook that is whole.
    const QByteArray document = m_watch.file().known();
    const QByteArray theirs = m_others == Others::Waiting ? m_theirs : QByteArray();
    setOthers(Others::Nothing);
    if (m_watch.wasReplaced())
        m_keeper.keep(document); // it is nowhere else
    m_keeper.look();
    if (!theirs.isEmpty())
        tellOverwritten(theirs);
    if (!hasItsEnd(document))
        return tellLoss(reloaded ? Loss::Everything : Loss::File, reason(tr("it is missing")));
    if (reloaded && !m_watch.wasReplaced() && !hasReadBack(document))
        return tellLoss(Loss::Everything, tr("it cannot be read back"));
    m_unsaved.clear();
    m_endsWhenWhole = true;
    Q_EMIT written(document);
}

void SaveCare::unchanged(bool reloaded)
{
    // Two saves within one tick of the file's clock look like none.
    const QByteArray held = reloaded ? QByteArray() : heldByWindow();
    const bool written = held.isEmpty() ? m_watch.wasTooFastForTheClock() &&
                                              WholeFile::writeProblem(m_folder.dataFile()).isEmpty()
                                        : held == heldByFile();
    if (written)
        return saved(reloaded);
    const bool lostNoMore = m_loss != Loss::File && WholeFile::isWhole(heldByFile());
    const Loss loss = !reloaded ? Loss::File : lostNoMore ? Loss::Change : Loss::Everything;
    tellLoss(loss, reason(tr("the disk reports an error")));
}

void SaveCare::fileBroken(const QString &problem)
{
    m_watch.file().look();
    if (m_loss == Loss::Everything || m_watch.file().state() != FileWatch::Known)
        return; // told already, or waited for
    const bool isAhead = m_loss == Loss::File && !m_endsWhenWhole;
    tellLoss(Loss::File, reason(problem));
    m_endsWhenWhole = !isAhead;
}

void SaveCare::fileWhole()
{
    if (m_endsWhenWhole && m_loss != Loss::Everything)
        settle();
}

/** The program has written the file: whatever somebody else had done to it is over. */
void SaveCare::takeForOurs()
{
    m_watch.accept();
    setOthers(Others::Nothing);
    m_keeper.look();
}

/** Whether the window shows what it has just saved; a disk that did not give it back is asked once more. */
bool SaveCare::hasReadBack(const QByteArray &document)
{
    if (m_watch.shows(document))
        return true;
    m_logbook.reload();
    return m_watch.shows(document);
}

void SaveCare::tellLoss(Loss loss, const QString &reason)
{
    m_loss = loss;
    m_endsWhenWhole = false;
    const QByteArray held = loss == Loss::File ? heldByWindow() : QByteArray();
    if (!held.isEmpty())
        m_unsaved = held;
    enable();

    QList<MessageBar::Action> actions;
    if (loss != Loss::Everything)
        actions.append({tr("Try Again"), [this] { tryAgain(); }});
    if (loss == Loss::File || loss == Loss::Everything)
        actions.append({tr("Restore Last State"), [this] { restoreLastState(); }});
    actions.append({tr("Keep Elsewhere…"), [this] { keepElsewhere(); }});
    m_messages.tell(Saving, lossText(loss).arg(m_folder.dataFile(), reason), actions);
    Q_EMIT orderChanged();
}

QString SaveCare::lossText(Loss loss)
{
    switch (loss) {
    case Loss::Foreseen:
        return tr(
            "Nothing can be saved in “%1”: %2. See that the file can be written, or keep the logbook in "
            "another folder, before you record anything.");
    case Loss::File:
        return tr("The logbook is not saved in “%1”: %2. This window still shows everything. See that the "
                  "file can be written, then try again; or keep the logbook in another folder.");
    case Loss::Change:
        return tr("Your last change could not be saved in “%1”: %2. File and window are as they were before. "
                  "See that the file can be written, or keep the logbook in another folder; then enter the "
                  "change again.");
    case Loss::Everything:
        return tr(
            "The logbook could not be saved in “%1”: %2. This window shows less than you have recorded. "
            "Restore the last state, or keep it in another folder; then enter your last change again.");
    case Loss::None:
        break;
    }
    return QString();
}

/** Why the file does not hold what it should, the same however it was noticed. */
QString SaveCare::reason(const QString &otherwise) const
{
    const WholeFile::Reading reading = WholeFile::read(m_folder.dataFile());
    if (!reading.problem.isEmpty() && !reading.isMissing)
        return reading.problem;
    const QString problem = WholeFile::writeProblem(m_folder.dataFile());
    if (!problem.isEmpty())
        return problem;
    if (reading.isMissing)
        return otherwise;
    if (!hasItsEnd(reading.bytes))
        return tr("it is not written to its end");
    const QString content = WholeFile::inspect(reading.bytes).problem;
    return content.isEmpty() ? otherwise : content;
}

/** Nothing may be entered on top of a window that shows less than was recorded, nor of a file that somebody
 * else has damaged. */
void SaveCare::enable()
{
    m_logbook.widget->setEnabled(m_loss != Loss::Everything && m_others != Others::Damage);
}

void SaveCare::settle()
{
    m_loss = Loss::None;
    m_unsaved.clear();
    enable();
    m_messages.retract(Saving);
    Q_EMIT orderChanged();
}

void SaveCare::flush()
{
    m_watch.catchUp();
    // What was damaged or changed by somebody else is not overwritten with what the window happens to hold.
    if (m_loss == Loss::Everything || m_loss == Loss::Change || m_others != Others::Nothing ||
        m_watch.file().state() != FileWatch::Known)
        return;
    const QByteArray held = heldByWindow();
    if (held.isEmpty() || held == m_openedAs || held == heldByFile())
        return;
    if (save()) {
        settle();
        Q_EMIT written(held);
    } else {
        tellLoss(Loss::File, reason(tr("the disk reports an error")));
    }
}

QByteArray SaveCare::heldByWindow() const
{
    if (m_showsPart)
        return m_watch.file().known();
    const QByteArray document = CatalogueFile::heldBy(*m_logbook.widget, m_folder.path()).document;
    return WholeFile::isWhole(document) ? document : QByteArray();
}

QByteArray SaveCare::heldByFile() const
{
    return WholeFile::read(m_folder.dataFile()).bytes;
}

} // namespace Host
