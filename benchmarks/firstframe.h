// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

#include <cstdio>
#include <ctime>

/** Ends the program once the window it filters has been painted. */
class FirstFrame : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return QObject::eventFilter(watched, event);
    }
};

/**
 * Shows the window that @p make returns, to its first painted frame, and prints the processor seconds from
 * its construction on. The exit status of a program.
 */
template <typename Make>
int showFirstFrame(Make make)
{
    const std::clock_t start = std::clock();
    const auto window = make();
    FirstFrame firstFrame;
    window->installEventFilter(&firstFrame);
    window->show();
    const int status = QApplication::exec();
    std::printf("%f\n", static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC);
    return status;
}
