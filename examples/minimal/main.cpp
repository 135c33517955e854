// SPDX-License-Identifier: GPL-3.0-or-later
// A host in ten lines: minimal FOLDER shows the logbook of a folder until the house is clicked.
#include "gui/voltbokgui.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    VoltbokGui window;
    QObject::connect(&window, &VoltbokGui::closeVoltbokGui, &application, &QApplication::quit);
    window.changeStoragePath(QApplication::arguments().value(1, QStringLiteral(".")));
    window.show();
    return QApplication::exec();
}
