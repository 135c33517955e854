// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "gui/voltbokgui.h"
#include "host/app/commandline.h"
#include "host/app/startup.h"
#include "host/window/mainwindow.h"
#include "records/batterywidget.h"
#include "tests/host/support/answers.h"

#include <QApplication>
#include <QFrame>
#include <QTimer>

#include <functional>

using namespace Qt::Literals::StringLiterals;

/** One run of the program in this process: what it answered, and what its window showed before it was closed.
 */
struct Started
{
    int status = -1;
    bool hasWindow = false;
    int batteries = 0;
    QStringList messages; // of the bar

    static Started run(const Host::CommandLine &commandLine, Answers &answers,
                       const std::function<void(Host::MainWindow &)> &use = {})
    {
        Started result;
        QTimer closing; // it fires in the event loop of the window only: nothing else here runs one
        QObject::connect(&closing, &QTimer::timeout, &closing, [&] {
            for (QWidget *widget : QApplication::topLevelWidgets()) {
                auto *window = qobject_cast<Host::MainWindow *>(widget);
                if (!window || !window->isVisible())
                    continue;
                result.look(*window);
                if (use)
                    use(*window);
                window->close();
                return; // what was on the list may be gone
            }
        });
        closing.start(20);
        result.status = Host::start(commandLine, answers);
        return result;
    }

private:
    void look(const Host::MainWindow &window)
    {
        hasWindow = true;
        batteries = static_cast<int>(window.findChildren<BatteryWidget *>().size());
        messages.clear();
        for (const QFrame *message : window.findChildren<QFrame *>(u"message"_s))
            messages.append(message->accessibleName());
    }
};
