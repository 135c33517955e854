// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/opening.h"

#include "host/app/console.h"
#include "host/data/cataloguefile.h"
#include "host/data/losses.h"
#include "host/demo/demo.h"
#include "host/safety/backups.h"
#include "host/safety/instanceserver.h"
#include "host/safety/wholefile.h"
#include "host/window/questions.h"
#include "host/window/recoveryquestion.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>

#include <cstdlib>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Opening)
};

/** The first of what would be lost, and how much more there is. */
QString firstFew(const QStringList &losses)
{
    constexpr qsizetype Few = 3;
    const QString first = losses.first(qMin(Few, losses.size())).join(u", ");
    const qsizetype more = losses.size() - Few;
    return more <= 0 ? first : Text::tr("%1 and %n more", nullptr, static_cast<int>(more)).arg(first);
}

} // namespace

Opening::Opening(const StorageFolder &folder, Questions &questions)
    : m_folder(folder)
    , m_questions(questions)
{
}

Opened Opening::opened()
{
    return {m_folder, std::move(m_lock), m_lossesMessage, m_isNew};
}

int Opening::refuse(const QString &problem)
{
    Console::complain(problem);
    m_questions.tell(problem);
    return EXIT_FAILURE;
}

Opening::Status Opening::prepareFile(const std::function<bool()> &goOn)
{
    FileState state = Recovery::examine(m_folder);
    if (state.kind == FileState::Missing || state.kind == FileState::Damaged) {
        if (const Status ended = recover(state))
            return ended;
        state = Recovery::examine(m_folder);
    }
    if (state.kind != FileState::Whole && state.kind != FileState::New)
        return refuse(describe(state));
    m_isNew = state.kind == FileState::New;
    if (!goOn())
        return EXIT_FAILURE;
    const QString problem = keepWhatWouldBeLost(state);
    if (!problem.isEmpty())
        return refuse(problem);
    return goOn() ? Status() : EXIT_FAILURE;
}

Opening::Status Opening::takeFolder(Demo demo, bool raises)
{
    const QString problem = m_folder.problem();
    if (!problem.isEmpty())
        return refuse(problem);
    const FolderLock::Refusal refusal = m_lock->take(m_folder);
    if (!refusal.problem.isEmpty()) {
        if (const Status ended = takeOver(refusal, raises))
            return ended;
    }
    Recovery::finishInterrupted(m_folder);
    const QString demoProblem = demo == Demo::None ? QString() : prepareDemo(m_folder, demo == Demo::Reset);
    return demoProblem.isEmpty() ? Status() : refuse(demoProblem);
}

/** Somebody else has the folder. */
Opening::Status Opening::takeOver(const FolderLock::Refusal &refusal, bool raises)
{
    if (refusal.isOpenHere && raises && InstanceServer::raiseFirst(m_folder))
        return EXIT_SUCCESS;
    if (!refusal.mayTakeOver)
        return refuse(refusal.problem);
    Console::complain(refusal.problem);
    Question question;
    question.text = refusal.problem;
    question.answers = QStringList{Text::tr("Quit"), Text::tr("Take the Logbook Over")};
    if (m_questions.ask(question).button == 0)
        return EXIT_FAILURE;
    const QString problem = m_lock->breakAndTake(m_folder).problem;
    return problem.isEmpty() ? Status() : refuse(problem);
}

QString Opening::describe(const FileState &state) const
{
    switch (state.kind) {
    case FileState::Missing:
        return Text::tr("The logbook file “%1” is missing, but earlier versions of it are "
                        "there. Nothing was changed. Restore one of them.")
            .arg(m_folder.dataFile());
    case FileState::Damaged:
        return Text::tr("The logbook file “%1” is damaged: %2. Nothing was changed. "
                        "Restore one of its copies, or start with an empty logbook.")
            .arg(m_folder.dataFile(), state.problem);
    default:
        return Text::tr("The logbook file “%1” cannot be read: %2. Nothing was changed. "
                        "Put the right file in its place, or choose another folder.")
            .arg(m_folder.dataFile(), state.problem);
    }
}

/** Puts something whole in the place of a file that cannot be opened. */
Opening::Status Opening::recover(const FileState &state)
{
    Console::complain(describe(state));
    const std::optional<QByteArray> document = askForReplacement(m_questions, m_folder, state);
    if (!document)
        return EXIT_FAILURE;
    if (!WholeFile::isWhole(*document)) // another program has been at it since it was offered
        return refuse(
            Text::tr("The version that you chose cannot be read any more. Nothing was changed. Start the "
                     "program again, and choose another one."));
    Backups::keepNewestWhole(m_folder); // a copy made before a damage is never thinned out
    QString aside;
    const QString reason = Recovery::replace(m_folder, *document, QDateTime::currentDateTimeUtc(), &aside);
    if (reason.isEmpty())
        return std::nullopt;
    return refuse(Text::tr("Nothing could be put in the place of “%1”: %2. All is as it was. Free "
                           "some space, and start the program again.")
                      .arg(m_folder.dataFile(), reason));
}

/** Puts a file aside that holds more than the next save would write. @return why it could not be done. */
QString Opening::keepWhatWouldBeLost(const FileState &state)
{
    if (state.kind != FileState::Whole)
        return QString();
    const CatalogueFile::Saved saved = CatalogueFile::loadAndSave(state.bytes);
    if (!saved.problem.isEmpty())
        return Text::tr("The logbook file “%1” cannot be checked before it is opened: %2. Nothing "
                        "was changed. Free some space, or see that the program can write in “%3”.")
            .arg(m_folder.dataFile(), saved.problem, QDir::tempPath());
    const QStringList lost = losses(state.bytes, saved.document);
    if (lost.isEmpty())
        return QString();
    QString aside;
    const QString reason =
        Recovery::keepAside(m_folder, state.bytes, QDateTime::currentDateTimeUtc(), &aside);
    if (!reason.isEmpty())
        return Text::tr("The logbook file “%1” holds what this version of Voltbok would drop when it saves, "
                        "and no copy of it can be put aside: %2. Nothing was changed. Free some space, and "
                        "start the program again.")
            .arg(m_folder.dataFile(), reason);
    m_lossesMessage = Text::tr("The logbook file holds what this version of Voltbok does not understand, and "
                               "drops when it saves: %1. The file as it is now is kept as “%2”.")
                          .arg(firstFew(lost), aside);
    return QString();
}

} // namespace Host
