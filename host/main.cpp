// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commandline.h"
#include "host/app/console.h"
#include "host/app/startup.h"
#include "host/safety/storagefolder.h"
#include "host/window/questions.h"

#include <QApplication>

#include <cstdlib>
#include <memory>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

CommandLine readCommandLine(int &argc, char **argv)
{
    // An application without windows, so that help and mistakes need no display.
    const QCoreApplication application(argc, argv);
    return Host::readCommandLine(QCoreApplication::arguments());
}

/** Why no window can be opened; empty where one can, as far as this can be known beforehand. */
QString displayProblem()
{
#ifdef Q_OS_LINUX
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
        qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return u"there is no display; --screenshot FILE draws the window without one"_s;
#endif
    return QString();
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
    QCoreApplication::setApplicationName(u"Voltbok"_s);
    QCoreApplication::setApplicationVersion(u"" VOLTBOK_VERSION ""_s);

    const CommandLine commandLine = readCommandLine(argc, argv);
    if (!commandLine.error.isEmpty()) {
        Console::complain(commandLine.error);
        return EXIT_FAILURE;
    }
    if (!commandLine.answer.isEmpty()) {
        Console::print(commandLine.answer);
        return EXIT_SUCCESS;
    }

    QString problem = StorageFolder(commandLine.storagePath).problem();
    if (problem.isEmpty() && commandLine.screenshot.isEmpty())
        problem = displayProblem();
    if (!problem.isEmpty()) {
        Console::complain(problem);
        return EXIT_FAILURE;
    }

    if (!commandLine.screenshot.isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication::setDesktopFileName(u"voltbok"_s);
    const QApplication application(argc, argv);
    const std::unique_ptr<Questions> questions = whoAnswers(commandLine);
    return start(commandLine, *questions);
}
