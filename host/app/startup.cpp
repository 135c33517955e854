// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/startup.h"

#include "host/app/commandline.h"
#include "host/app/console.h"
#include "host/data/cataloguefile.h"
#include "host/data/losses.h"
#include "host/demo/demo.h"
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/safety/instanceserver.h"
#include "host/safety/recovery.h"
#include "host/safety/wholefile.h"
#include "host/window/mainwindow.h"
#include "host/window/questions.h"
#include "host/window/recoveryquestion.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QPixmap>

#include <cstdlib>
#include <memory>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Startup", text);
}

/** The first of what would be lost, and how much more there is. */
QString firstFew(const QStringList &losses)
{
    constexpr qsizetype Few = 3;
    const QString first = losses.first(qMin(Few, losses.size())).join(u", ");
    const qsizetype more = losses.size() - Few;
    return more <= 0 ? first
                     : tr(QT_TRANSLATE_NOOP("Startup", "%1 and %2 more")).arg(first, QString::number(more));
}

/** Whether a file is there that is no picture, such as the logbook itself. */
bool isOtherFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() > 0 && !QImageReader(path, "png").canRead();
}

/** The way into the logbook. A step that ends it gives the program's exit status. */
class Startup
{
public:
    Startup(const CommandLine &commandLine, Questions &questions)
        : m_commandLine(commandLine)
        , m_questions(questions)
        , m_folder(commandLine.storagePath)
    {
    }

    int run();

private:
    using Status = std::optional<int>;

    bool mustMakeDemo() const;
    int refuse(const QString &problem);
    Status takeFolder();
    Status takeOver(const FolderLock::Refusal &refusal);
    Status recover(const FileState &state);
    QString describe(const FileState &state) const;
    int draw();
    int openWindow(const FileState &state);
    QString keepWhatWouldBeLost(const FileState &state);

    const CommandLine &m_commandLine;
    Questions &m_questions;
    StorageFolder m_folder;
    std::shared_ptr<FolderLock> m_lock = std::make_shared<FolderLock>();
    QString m_lossesMessage; ///< what the next save will drop; empty when that is nothing
};

int Startup::run()
{
    const bool drawsOnly = !m_commandLine.screenshot.isEmpty();
    if (drawsOnly && !mustMakeDemo())
        return draw(); // a logbook that is drawn is only read: no lock, and nothing is made
    if (const Status ended = takeFolder())
        return *ended;
    if (drawsOnly)
        return draw();
    FileState state = Recovery::examine(m_folder);
    if (state.kind == FileState::Missing || state.kind == FileState::Damaged) {
        if (const Status ended = recover(state))
            return *ended;
        state = Recovery::examine(m_folder);
    }
    if (state.kind != FileState::Whole && state.kind != FileState::New)
        return refuse(describe(state));
    return openWindow(state);
}

bool Startup::mustMakeDemo() const
{
    return m_commandLine.resetDemo ||
           (m_commandLine.demo && Recovery::examine(m_folder).kind == FileState::New);
}

int Startup::refuse(const QString &problem)
{
    Console::complain(problem);
    m_questions.tell(problem);
    return EXIT_FAILURE;
}

/** Makes the folder ours, and ready to be looked into. */
Startup::Status Startup::takeFolder()
{
    const QString problem = m_folder.problem();
    if (!problem.isEmpty())
        return refuse(problem);
    const FolderLock::Refusal refusal = m_lock->take(m_folder);
    if (!refusal.problem.isEmpty()) {
        if (const Status ended = takeOver(refusal))
            return ended;
    }
    Recovery::finishInterrupted(m_folder);
    const QString demoProblem =
        m_commandLine.demo ? prepareDemo(m_folder, m_commandLine.resetDemo) : QString();
    return demoProblem.isEmpty() ? Status() : refuse(demoProblem);
}

/** Somebody else has the folder. */
Startup::Status Startup::takeOver(const FolderLock::Refusal &refusal)
{
    if (refusal.isOpenHere && m_commandLine.screenshot.isEmpty() && InstanceServer::raiseFirst(m_folder))
        return EXIT_SUCCESS;
    if (!refusal.mayTakeOver)
        return refuse(refusal.problem);
    Console::complain(refusal.problem);
    Question question;
    question.text = refusal.problem;
    question.answers = QStringList{tr(QT_TRANSLATE_NOOP("Startup", "Quit")),
                                   tr(QT_TRANSLATE_NOOP("Startup", "Take the Logbook Over"))};
    if (m_questions.ask(question).button == 0)
        return EXIT_FAILURE;
    const QString problem = m_lock->breakAndTake(m_folder).problem;
    return problem.isEmpty() ? Status() : refuse(problem);
}

QString Startup::describe(const FileState &state) const
{
    switch (state.kind) {
    case FileState::Missing:
        return tr(QT_TRANSLATE_NOOP("Startup",
                                    "The logbook file “%1” is missing, but earlier versions of it are "
                                    "there. Nothing was changed. Restore one of them."))
            .arg(m_folder.dataFile());
    case FileState::Damaged:
        return tr(QT_TRANSLATE_NOOP("Startup", "The logbook file “%1” is damaged: %2. Nothing was changed. "
                                               "Restore one of its copies, or start with an empty logbook."))
            .arg(m_folder.dataFile(), state.problem);
    default:
        return tr(QT_TRANSLATE_NOOP("Startup",
                                    "The logbook file “%1” cannot be read: %2. Nothing was changed. "
                                    "Put the right file in its place, or choose another folder."))
            .arg(m_folder.dataFile(), state.problem);
    }
}

/** Puts something whole in the place of a file that cannot be opened. */
Startup::Status Startup::recover(const FileState &state)
{
    Console::complain(describe(state));
    const std::optional<QByteArray> document = askForReplacement(m_questions, m_folder, state);
    if (!document)
        return EXIT_FAILURE;
    if (!WholeFile::isWhole(*document)) // another program has been at it since it was offered
        return refuse(tr(QT_TRANSLATE_NOOP(
            "Startup", "The version that you chose cannot be read any more. Nothing was changed. Start the "
                       "program again, and choose another one.")));
    Backups::keepNewestWhole(m_folder); // a copy made before a damage is never thinned out
    QString aside;
    const QString reason = Recovery::replace(m_folder, *document, QDateTime::currentDateTimeUtc(), &aside);
    if (reason.isEmpty())
        return std::nullopt;
    return refuse(tr(QT_TRANSLATE_NOOP(
                         "Startup", "Nothing could be put in the place of “%1”: %2. All is as it was. Free "
                                    "some space, and start the program again."))
                      .arg(m_folder.dataFile(), reason));
}

int Startup::draw()
{
    const FileState state = Recovery::examine(m_folder);
    if (state.kind != FileState::Whole && state.kind != FileState::New)
        return refuse(describe(state));
    const QString path = m_commandLine.screenshot;
    if (isOtherFile(path))
        return refuse(
            tr(QT_TRANSLATE_NOOP("Startup", "The picture “%1” was not written: there is a file of that name, "
                                            "and it is no picture. Choose another name."))
                .arg(path));
    QImageWriter writer(path, "png");
    if (writer.write(MainWindow::picture(m_folder).toImage()))
        return EXIT_SUCCESS;
    return refuse(
        tr(QT_TRANSLATE_NOOP("Startup", "The picture “%1” cannot be written: %2. Choose another name."))
            .arg(path, writer.errorString()));
}

int Startup::openWindow(const FileState &state)
{
    const QString problem = keepWhatWouldBeLost(state);
    if (!problem.isEmpty())
        return refuse(problem);
    MainWindow window(m_questions);
    QObject::connect(&window, &MainWindow::told, &Console::complain);
    window.open(m_folder, std::move(m_lock));
    if (!m_lossesMessage.isEmpty())
        window.tell(u"losses"_s, m_lossesMessage);
    if (state.kind == FileState::New && m_commandLine.dataGiven)
        window.tell(u"new"_s,
                    tr(QT_TRANSLATE_NOOP("Startup", "A new logbook begins in “%1”: there was none."))
                        .arg(m_folder.path()));
    const InstanceServer server(m_folder);
    QObject::connect(&server, &InstanceServer::raiseRequested, &window, &MainWindow::raiseAndActivate);
    window.show();
    return QApplication::exec();
}

/** Puts a file aside that holds more than the next save would write. @return why it could not be done. */
QString Startup::keepWhatWouldBeLost(const FileState &state)
{
    if (state.kind != FileState::Whole)
        return QString();
    const CatalogueFile::Saved saved = CatalogueFile::loadAndSave(state.bytes);
    if (!saved.problem.isEmpty())
        return tr(QT_TRANSLATE_NOOP(
                      "Startup", "The logbook file “%1” cannot be checked before it is opened: %2. Nothing "
                                 "was changed. Free some space, or see that the program can write in “%3”."))
            .arg(m_folder.dataFile(), saved.problem, QDir::tempPath());
    const QStringList lost = losses(state.bytes, saved.document);
    if (lost.isEmpty())
        return QString();
    QString aside;
    const QString reason =
        Recovery::keepAside(m_folder, state.bytes, QDateTime::currentDateTimeUtc(), &aside);
    if (!reason.isEmpty())
        return tr(QT_TRANSLATE_NOOP(
                      "Startup",
                      "The logbook file “%1” holds what this version of Voltbok would drop when it saves, "
                      "and no copy of it can be put aside: %2. Nothing was changed. Free some space, and "
                      "start the program again."))
            .arg(m_folder.dataFile(), reason);
    m_lossesMessage =
        tr(QT_TRANSLATE_NOOP("Startup",
                             "The logbook file holds what this version of Voltbok does not understand, and "
                             "drops when it saves: %1. The file as it is now is kept as “%2”."))
            .arg(firstFew(lost), aside);
    return QString();
}

} // namespace

int start(const CommandLine &commandLine, Questions &questions)
{
    return Startup(commandLine, questions).run();
}

} // namespace Host
