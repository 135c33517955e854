// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"
#include "host.h"
#include "storagefolder.h"

#include <QApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

CommandLine readCommandLine(int &argc, char **argv)
{
    // An application without windows, so that help and mistakes need no display.
    const QCoreApplication application(argc, argv);
    return readCommandLine(QCoreApplication::arguments());
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

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationName(u"Voltbok"_s);
    QCoreApplication::setApplicationVersion(u"" VOLTBOK_VERSION ""_s);

    const CommandLine commandLine = readCommandLine(argc, argv);
    if (!commandLine.error.isEmpty())
        return fail(commandLine.error);
    if (!commandLine.answer.isEmpty()) {
        std::fputs(qUtf8Printable(commandLine.answer), stdout);
        return EXIT_SUCCESS;
    }

    QString problem = storageProblem(commandLine.storagePath);
    if (problem.isEmpty() && commandLine.screenshot.isEmpty())
        problem = displayProblem();
    if (!problem.isEmpty())
        return fail(problem);

    if (!commandLine.screenshot.isEmpty())
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication::setDesktopFileName(u"voltbok"_s);
    const QApplication application(argc, argv);
    return runHost(commandLine);
}
