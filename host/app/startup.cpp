// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/startup.h"

#include "host/app/commandline.h"
#include "host/app/console.h"
#include "host/app/opening.h"
#include "host/preferences/languages.h"
#include "host/safety/instanceserver.h"
#include "host/window/assistance.h"
#include "host/window/mainwindow.h"
#include "host/window/questions.h"

#include <QApplication>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QPixmap>

#include <cstdlib>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Startup)
};

/** Whether a file is there that is no picture, such as the logbook itself. */
bool isOtherFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.size() > 0 && !QImageReader(path, "png").canRead();
}

/** Shows the logbook of one folder after the other, in one window. */
class Program final : public QObject
{
    Q_DISABLE_COPY_MOVE(Program)

public:
    Program(Questions &questions, Languages &languages)
        : m_questions(questions)
        , m_window(questions, &languages)
    {
        connect(&m_window, &MainWindow::told, &Console::complain);
        connect(&m_window, &MainWindow::folderRequested, this, &Program::openInstead);
        connect(&m_window, &MainWindow::folderTaken, this, &Program::serve);
    }

    int run(Opened opened, const CommandLine &commandLine)
    {
        show(std::move(opened), commandLine.dataGiven);
        m_window.showPage(commandLine.page);
        m_window.show();
        return QApplication::exec();
    }

private:
    void show(Opened opened, bool wasNamed)
    {
        m_window.open(opened.folder, std::move(opened.lock));
        if (!opened.lossesMessage.isEmpty())
            m_window.tell(u"losses"_s, opened.lossesMessage);
        if (opened.isNew && wasNamed)
            m_window.tell(
                u"new"_s,
                Text::tr("A new logbook begins in “%1”: there was none.").arg(opened.folder.path()));
    }

    /** Where that does not work, or the user has enough of it, the folder before stays open. */
    void openInstead(const StorageFolder &folder)
    {
        Opening opening(folder, m_questions);
        const bool isDemo = folder.path() == StorageFolder::ofDemo().path();
        if (!opening.takeFolder(isDemo ? Demo::Make : Demo::None) && isReady(opening))
            show(opening.opened(), true);
    }

    bool isReady(Opening &opening)
    {
        const std::unique_ptr<Progress> progress =
            m_questions.progress(Text::tr("The logbook is checked…"), Opening::CheckSteps);
        return !opening.prepareFile([&progress] { return progress->step(); });
    }

    void serve(const StorageFolder &folder)
    {
        m_server.reset(); // of the folder before
        m_server = std::make_unique<InstanceServer>(folder);
        connect(m_server.get(), &InstanceServer::raiseRequested, &m_window, &MainWindow::raiseAndActivate);
    }

    Questions &m_questions;
    MainWindow m_window;
    std::unique_ptr<InstanceServer> m_server;
};

int draw(Opening &opening, const CommandLine &commandLine)
{
    const StorageFolder folder(commandLine.storagePath);
    const FileState state = Recovery::examine(folder);
    if (state.kind != FileState::Whole && state.kind != FileState::New)
        return opening.refuse(opening.describe(state));
    const QString path = commandLine.screenshot;
    if (isOtherFile(path))
        return opening.refuse(Text::tr("The picture “%1” was not written: there is a file of that name, "
                                       "and it is no picture. Choose another name.")
                                  .arg(path));
    QImageWriter writer(path, "png");
    if (writer.write(MainWindow::picture(folder, commandLine.page).toImage()))
        return EXIT_SUCCESS;
    return opening.refuse(Text::tr("The picture “%1” cannot be written: %2. Choose another name.")
                              .arg(path, writer.errorString()));
}

bool mustMakeDemo(const CommandLine &commandLine)
{
    return commandLine.resetDemo ||
           (commandLine.demo &&
            Recovery::examine(StorageFolder(commandLine.storagePath)).kind == FileState::New);
}

} // namespace

int start(const CommandLine &commandLine, Questions &questions)
{
    installAssistance(); // before there is any widget
    Languages languages;
    languages.speakChosen();
    const bool drawsOnly = !commandLine.screenshot.isEmpty();
    const Demo demo = commandLine.resetDemo ? Demo::Reset : commandLine.demo ? Demo::Make : Demo::None;
    Opening opening(StorageFolder(commandLine.storagePath), questions);
    if (drawsOnly && !mustMakeDemo(commandLine))
        return draw(opening, commandLine); // it is only read: no lock, and nothing is made
    if (const Opening::Status ended = opening.takeFolder(demo, !drawsOnly))
        return *ended;
    if (drawsOnly)
        return draw(opening, commandLine);
    if (const Opening::Status ended = opening.prepareFile())
        return *ended;
    return Program(questions, languages).run(opening.opened(), commandLine);
}

} // namespace Host
