// SPDX-License-Identifier: GPL-3.0-or-later
// What other programs do to the file of an open logbook, and how the window follows it.
#include "host/data/cataloguefile.h"
#include "host/data/losses.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"
#include "host/window/otherstexts.h"
#include "host/window/questions.h"
#include "host/window/savecare.h"

#include <QScopedValueRollback>

#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace Host {
namespace {

// What the messages are about.
const QString OthersMatter = u"others"_s; // waits, or wants an answer
const QString TakenMatter = u"taken"_s;   // is over
const QString LossesMatter = u"losses"_s;

constexpr std::chrono::milliseconds BetweenTries = 300ms;

QString inWords(const QByteArray &before, const QByteArray &now)
{
    return changeInWords(WholeFile::inspect(before), WholeFile::inspect(now));
}

} // namespace

void SaveCare::setOthers(Others others)
{
    if (others != Others::Waiting) {
        m_theirs.clear();
        m_waiting.stop();
    }
    if (others == m_others)
        return;
    m_others = others;
    m_messages.retract(OthersMatter);
    enable();
    Q_EMIT orderChanged();
}

void SaveCare::changedByOthers(const QByteArray &theirs)
{
    const QByteArray ours = m_watch.file().known();
    if (m_loss != Loss::File && m_loss != Loss::Everything && !ours.isEmpty())
        m_keeper.look(ours); // ahead of theirs in the order of the copies
    m_keeper.look(theirs);
    setOthers(Others::Waiting);
    m_theirs = theirs;
    m_waiting.stop();
    // Whoever has noticed it may be in the middle of a click, or of a change.
    QMetaObject::invokeMethod(this, &SaveCare::followOthers, Qt::QueuedConnection);
}

/** Shows the version of somebody else's, or says why not yet. */
void SaveCare::followOthers()
{
    if (m_others != Others::Waiting || m_isReading || m_watch.file().state() != FileWatch::Other)
        return;
    const Hindrance hindrance = this->hindrance();
    if (hindrance == Hindrance::None)
        return takeOver();
    if (hindrance == Hindrance::Unsaved) {
        m_waiting.stop(); // until it is saved, or the user has chosen
        return askWhich();
    }
    if (m_waiting.isActive())
        tellThatItWaits(); // a mere mouse button would be up by now
    else
        m_waiting.start(BetweenTries);
}

SaveCare::Hindrance SaveCare::hindrance() const
{
    if (m_logbook.isInUse && m_logbook.isInUse())
        return Hindrance::Input;
    return holdsUnsaved() ? Hindrance::Unsaved : Hindrance::None;
}

/** Whether the window holds what is in no file. */
bool SaveCare::holdsUnsaved() const
{
    if (m_loss == Loss::File || m_loss == Loss::Everything)
        return true;
    const QByteArray held = heldByWindow();
    return held != m_watch.file().known() && held != m_openedAs && held != m_watch.file().present();
}

void SaveCare::tellThatItWaits()
{
    if (m_toldToWait == m_theirs)
        return;
    m_toldToWait = m_theirs;
    QList<MessageBar::Action> actions;
    if (m_logbook.leave)
        actions.append({tr("Leave the Page and Show It"), [this] {
                            m_logbook.leave();
                            followOthers();
                        }});
    m_messages.tell(OthersMatter,
                    tr("Another program has changed the logbook: %1. It is shown as soon as you have "
                       "recorded or left what you are entering.")
                        .arg(inWords(m_watch.file().known(), m_theirs)),
                    actions);
}

/** Both sides hold something that the other one does not. */
void SaveCare::askWhich()
{
    QList<MessageBar::Action> actions{{tr("Show the Other Version"), [this] { preferTheirs(); }}};
    if (m_loss != Loss::Everything)
        actions.append({tr("Keep This Version"), [this] { preferOurs(); }});
    m_messages.tell(OthersMatter,
                    tr("Another program has changed the logbook: %1. This window holds something that is not "
                       "saved. Choose which version to go on with; the other one is kept in “%2”.")
                        .arg(inWords(m_watch.file().known(), m_theirs), m_folder.backups().path()),
                    actions);
}

void SaveCare::preferTheirs()
{
    if (m_others == Others::Waiting && (m_loss == Loss::Everything || m_keeper.keep(heldByWindow(), true)))
        takeOver();
}

void SaveCare::preferOurs()
{
    const QByteArray theirs = m_theirs;
    if (m_others != Others::Waiting)
        return;
    if (!save())
        return tellLoss(Loss::File, reason(tr("the disk reports an error")));
    settle();
    tellOverwritten(theirs);
    Q_EMIT written(m_watch.file().known());
}

void SaveCare::takeOver()
{
    constexpr int Steps = 5;    // none takes longer than the window's own reading
    constexpr int Attempts = 3; // it may be written again while it is read
    const QScopedValueRollback reading(m_isReading, true);
    const std::unique_ptr<Progress> progress = m_questions.progress(tr("The logbook is read again…"), Steps);
    progress->commit();
    const QByteArray ours = m_watch.file().known();
    progress->step();
    const Contents before = WholeFile::inspect(ours);
    for (int attempt = 0; attempt < Attempts && m_watch.file().state() == FileWatch::Other; ++attempt) {
        const QByteArray theirs = m_theirs;
        const Contents now = WholeFile::inspect(theirs);
        if (before.problem.isEmpty() && !m_keeper.keep(ours, holdsFewer(before, now)))
            return m_waiting.start(BetweenTries); // the keeper says why
        progress->step();
        m_logbook.reload();
        progress->step();
        if (isShown(theirs, *progress))
            return haveTaken(theirs, changeInWords(before, now));
        m_watch.file().look();
    }
    m_showsPart = true;
    brokenByOthers(tr("it cannot be read back"), false);
}

/** Whether the window holds what it reads from a version, and nothing else. */
bool SaveCare::isShown(const QByteArray &document, Progress &progress)
{
    m_showsPart = false;
    const QByteArray held = heldByWindow();
    progress.step();
    if (held.isEmpty() || (held != document && held != CatalogueFile::loadAndSave(document).document))
        return false;
    progress.step();
    m_openedAs = held;
    return true;
}

void SaveCare::haveTaken(const QByteArray &theirs, const QString &change)
{
    m_watch.file().acceptAs(theirs);
    setOthers(Others::Nothing);
    if (m_loss == Loss::File || m_loss == Loss::Everything)
        settle();
    keepWhatIsDropped(theirs);
    m_keeper.look();
    Q_EMIT writtenByOthers(theirs);
    QString text = tr("Another program has changed the logbook: %1. It is on show now.").arg(change);
    if (std::exchange(m_holdsClick, false) && !m_watch.repeatHeld())
        text += u' ' + tr("Your last click was not carried out: look at the logbook again, and repeat it.");
    m_messages.retract(TakenMatter); // the same once more is told once more
    m_messages.tell(TakenMatter, text);
}

/** What the next save would drop of somebody else's version is put aside before. */
void SaveCare::keepWhatIsDropped(const QByteArray &theirs)
{
    const QStringList lost = m_openedAs == theirs ? QStringList() : losses(theirs, m_openedAs);
    if (lost.isEmpty())
        return;
    QString aside;
    const QString problem = Recovery::keepAside(m_folder, theirs, QDateTime::currentDateTimeUtc(), &aside);
    m_messages.tell(LossesMatter,
                    problem.isEmpty()
                        ? tr("The version of the other program holds what this version of Voltbok does not "
                             "understand, and drops when it saves: %1. It is kept as “%2”.")
                              .arg(lost.first(), aside)
                        : tr("The version of the other program holds what this version of Voltbok does not "
                             "understand, and drops when it saves: %1. It cannot be put aside: %2.")
                              .arg(lost.first(), problem));
}

/** A save of the window has come on top of somebody else's version, which is in a copy. */
void SaveCare::tellOverwritten(const QByteArray &theirs)
{
    Q_EMIT writtenByOthers(theirs);
    m_messages.tell(
        TakenMatter,
        tr("Another program had changed the logbook, and what you recorded has taken the place of "
           "that: %1. The other version is kept in “%2”; undo brings it back.")
            .arg(inWords(theirs, m_watch.file().known()), m_folder.backups().path()));
}

/** Keeps the version of somebody else's that a save is about to overwrite. @return whether it may. */
bool SaveCare::mayOverwrite()
{
    FileWatch &file = m_watch.file();
    file.look();
    if (file.state() == FileWatch::Other)
        return m_keeper.keep(file.present(), true);
    return file.state() == FileWatch::Known || WholeFile::read(m_folder.dataFile()).isMissing;
}

/** A click comes before the window has followed what somebody else has done. */
void SaveCare::aboutToOverwrite()
{
    FileWatch &file = m_watch.file();
    file.lookFinally();
    if (file.state() == FileWatch::Known)
        return;
    if (file.state() == FileWatch::Other && hindrance() != Hindrance::None && mayOverwrite())
        return;
    m_watch.hold();
    if (file.state() != FileWatch::Other)
        return;
    m_holdsClick = true;
    QMetaObject::invokeMethod(this, &SaveCare::followOthers, Qt::QueuedConnection);
}

void SaveCare::brokenByOthers(const QString &reason, bool isMissing)
{
    m_keeper.keep(heldByWindow(), true);
    setOthers(Others::Damage);
    const QString text =
        isMissing
            ? tr("The logbook file “%1” is gone: another program has moved or removed it. This window still "
                 "shows what it held. Nothing can be recorded until the file is back; if it does not come "
                 "back by itself, put it back.")
                  .arg(m_folder.dataFile())
            : tr("The logbook file “%1” was changed by another program, and is no whole logbook now: %2. "
                 "This window still shows what it held. Nothing can be recorded until the file is whole; if "
                 "that does not come by itself, put the file back.")
                  .arg(m_folder.dataFile(), reason);
    m_messages.tell(OthersMatter, text,
                    {{tr("Put the File Back"), [this] { restoreLastState(); }},
                     {tr("Keep Elsewhere…"), [this] { keepElsewhere(); }}});
}

void SaveCare::returned()
{
    if (std::exchange(m_showsPart, false))
        m_logbook.reload();
    setOthers(Others::Nothing);
}

} // namespace Host
