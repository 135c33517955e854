// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui_voltbokgui.h"

#include <QMainWindow>

/** The window's form on a bare window: what the form says before any code of ours has touched it. */
struct RawForm : Ui_VoltbokGui
{
    RawForm() { setupUi(&window); }

    template <class Widget = QWidget>
    Widget *find(const QString &name) const
    {
        return window.findChild<Widget *>(name);
    }

    QMainWindow window;
};
