// SPDX-License-Identifier: GPL-3.0-or-later
// A program with an empty main window, up to its first painted frame.
#include "firstframe.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QMainWindow window;
    FirstFrame firstFrame;
    window.installEventFilter(&firstFrame);
    window.show();
    return QApplication::exec();
}
