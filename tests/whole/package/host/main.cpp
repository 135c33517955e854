// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/voltbokgui.h"

#include <QApplication>
#include <QTimer>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    VoltbokGui window;
    QObject::connect(&window, &VoltbokGui::closeVoltbokGui, &application, &QApplication::quit);
    window.changeStoragePath(QStringLiteral("catalogue"));
    window.show();
    QTimer::singleShot(0, &window, &VoltbokGui::on_pb_home_clicked);
    return application.exec();
}
