// SPDX-License-Identifier: GPL-3.0-or-later
#include "host.h"

#include "backupkeeper.h"
#include "backups.h"
#include "commandline.h"
#include "demo.h"
#include "folderlock.h"
#include "gui/voltbokgui.h"
#include "recovery.h"
#include "storagefolder.h"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>

#include <cstdio>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

/** Whether somebody can see and answer a question: not when drawing a picture, nor on a platform of tests. */
bool canAsk(const CommandLine &commandLine)
{
    const QString platform = QGuiApplication::platformName();
    return commandLine.screenshot.isEmpty() && platform != u"offscreen" && platform != u"minimal";
}

int drawWindow(VoltbokGui &window, const QString &fileName)
{
    if (!window.grab().save(fileName, "PNG"))
        return fail(u"cannot write the picture %1"_s.arg(fileName));
    return EXIT_SUCCESS;
}

/** Asks what to do about a broken data file. @return whether to go on, with the file replaced. */
bool offerRecovery(const QString &storagePath)
{
    const QString copy = Backups::newestWhole(storagePath);
    QMessageBox question(QMessageBox::Warning, QApplication::applicationName(),
                         u"The logbook file is damaged:\n%1"_s.arg(dataFileName(storagePath)));
    question.setInformativeText(u"The damaged file is kept, whatever you choose."_s);
    const QString goOn =
        copy.isEmpty() ? u"Start with an empty logbook"_s
                       : u"Restore the copy of %1"_s.arg(
                             Backups::timeOf(QFileInfo(copy).fileName()).toString(u"yyyy-MM-dd HH:mm:ss"));
    const QPushButton *accept = question.addButton(goOn, QMessageBox::AcceptRole);
    question.addButton(u"Quit"_s, QMessageBox::RejectRole);
    question.exec();
    if (question.clickedButton() != accept)
        return false;
    const QString problem = Recovery::replaceBroken(storagePath, copy);
    if (problem.isEmpty())
        return true;
    fail(problem);
    QMessageBox::critical(nullptr, QApplication::applicationName(), problem);
    return false;
}

} // namespace

int fail(const QString &problem)
{
    std::fprintf(stderr, "voltbok: %s\n", qUtf8Printable(problem.simplified()));
    return EXIT_FAILURE;
}

int runHost(const CommandLine &commandLine)
{
    const QString &path = commandLine.storagePath;
    FolderLock lock;
    QString problem = lock.take(path);
    if (problem.isEmpty() && commandLine.demo)
        problem = prepareDemo(path, commandLine.resetDemo);
    if (!problem.isEmpty()) {
        if (canAsk(commandLine))
            QMessageBox::critical(nullptr, QApplication::applicationName(), problem);
        return fail(problem);
    }
    if (Recovery::isBroken(path)) {
        const int status = fail(u"the logbook file %1 is damaged"_s.arg(dataFileName(path)));
        if (!canAsk(commandLine) || !offerRecovery(path))
            return status;
    }

    VoltbokGui window;
    QObject::connect(&window, &VoltbokGui::closeVoltbokGui, qApp, &QApplication::quit);
    window.changeStoragePath(path);
    if (!commandLine.screenshot.isEmpty())
        return drawWindow(window, commandLine.screenshot);
    window.show();
    const BackupKeeper backups(path);
    return QApplication::exec();
}
