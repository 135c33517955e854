// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commandline.h"
#include "host/app/commands/command.h"
#include "host/app/console.h"
#include "host/app/display.h"
#include "host/app/endsignals.h"
#include "host/app/startup.h"
#include "host/preferences/languages.h"
#include "host/safety/storagefolder.h"
#include "host/window/questions.h"

#include <QApplication>

#include <cstdlib>
#include <memory>
#include <optional>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

CommandLine readCommandLine(int &argc, char **argv)
{
    // An application without windows, so that help and mistakes need no display. Newer versions of Qt say in
    // four lines that a locale such as C is not UTF-8, and go on with UTF-8: that is what is wanted.
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(before);
    return Host::readCommandLine(QCoreApplication::arguments());
}

/** What Qt finds odd about a desktop is nothing that the caller of a command wants to read. */
void dropMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtFatalMsg)
        return;
    Console::complain(text);
    std::_Exit(EXIT_FAILURE);
}

/** Runs a command, which never needs a display: the library's records are widgets, but nobody looks at them.
 */
int runCommand(char **argv, const Invocation &invocation)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char *variable : {"QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "SESSION_MANAGER"})
        qunsetenv(variable); // a theme of the desktop may want a display
    qInstallMessageHandler(dropMessage);
    int argc = 1; // Qt's own options are about windows
    const QApplication application(argc, argv);
    Languages languages;
    languages.speak(u"en"_s); // what scripts read is the same everywhere
    return commandNamed(invocation.command)->run(invocation);
}

/** Boxes, where somebody can see them. */
std::unique_ptr<Questions> whoAnswers(const CommandLine &commandLine)
{
    const QString platform = QGuiApplication::platformName();
    if (!commandLine.screenshot.isEmpty() || platform == u"offscreen" || platform == u"minimal")
        return std::make_unique<UnattendedQuestions>();
    return std::make_unique<BoxQuestions>();
}

} // namespace

int main(int argc, char *argv[])
{
    Console::prepare();
    QCoreApplication::setApplicationName(u"Voltbok"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VOLTBOK_VERSION));

    const CommandLine commandLine = readCommandLine(argc, argv);
    if (!commandLine.error.isEmpty()) {
        Console::complain(commandLine.error);
        return commandLine.status;
    }
    if (!commandLine.answer.isEmpty())
        return Console::print(commandLine.answer) ? EXIT_SUCCESS : EXIT_FAILURE;
    if (commandLine.invocation)
        return runCommand(argv, *commandLine.invocation);

    if (!commandLine.screenshot.isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString problem = StorageFolder(commandLine.storagePath).problem();
    if (!problem.isEmpty() && isWithoutDisplay()) { // what is said about a display would hide it
        Console::complain(problem);
        return EXIT_FAILURE;
    }
    QGuiApplication::setDesktopFileName(u"org.voltbok.Voltbok"_s);
    std::optional<DisplayGuard> guard(std::in_place);
    const QApplication application(argc, argv);
    guard.reset();
    endOnSignals();
    const std::unique_ptr<Questions> questions = whoAnswers(commandLine);
    return start(commandLine, *questions);
}
