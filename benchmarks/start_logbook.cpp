// SPDX-License-Identifier: GPL-3.0-or-later
// A program with the logbook's window, up to its first painted frame. With an argument it loads the catalogue
// in that folder.
#include "firstframe.h"

#include "gui/voltbokgui.h"

#include <memory>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    return showFirstFrame([] {
        auto window = std::make_unique<VoltbokGui>();
        const QStringList arguments = QApplication::arguments();
        if (arguments.size() > 1)
            window->changeStoragePath(arguments.at(1));
        return window;
    });
}
