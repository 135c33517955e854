// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue.h"

#include "gui/voltbokgui.h"
#include "ui_voltbokgui.h"

#include <QCoreApplication>
#include <QTemporaryDir>

/** Lets everything that is posted happen: layouts, paint events, deletions. */
inline void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/** A window on show over a catalogue of its own. */
class OpenWindow
{
public:
    explicit OpenWindow(const Catalogue &catalogue)
    {
        catalogue.writeTo(folder.path());
        gui.changeStoragePath(folder.path());
        gui.show();
        settle();
    }

    VoltbokGui *operator->() { return &gui; }
    Ui_VoltbokGui &ui() { return *gui.ui; }
    QString path() const { return folder.filePath(QStringLiteral("voltbok.xml")); }

    void chooseNextModel()
    {
        QComboBox *chooser = gui.ui->cb_select_model;
        chooser->setCurrentIndex((chooser->currentIndex() + 1) % chooser->count());
    }

private:
    QTemporaryDir folder;
    VoltbokGui gui;
};
