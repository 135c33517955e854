// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/startup.h"

#include "gui/voltbokgui.h"
#include "host/app/commandline.h"

#include <QApplication>

int Host::start(const CommandLine &commandLine)
{
    VoltbokGui window;
    QObject::connect(&window, &VoltbokGui::closeVoltbokGui, qApp, &QApplication::quit);
    window.changeStoragePath(commandLine.storagePath);
    window.show();
    return QApplication::exec();
}
