// SPDX-License-Identifier: GPL-3.0-or-later
// A program with an empty main window, up to its first painted frame.
#include "firstframe.h"

#include <memory>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    return showFirstFrame([] { return std::make_unique<QMainWindow>(); });
}
