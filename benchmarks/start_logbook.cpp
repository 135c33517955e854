// SPDX-License-Identifier: GPL-3.0-or-later
// A program with the logbook's window over the folder it is given, up to its first painted frame.
#include "firstframe.h"

#include "gui/voltbokgui.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    VoltbokGui window;
    window.changeStoragePath(QApplication::arguments().value(1));
    FirstFrame firstFrame;
    window.installEventFilter(&firstFrame);
    window.show();
    return QApplication::exec();
}
