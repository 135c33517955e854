// SPDX-License-Identifier: GPL-3.0-or-later
// A program that signals end. The argument is where it stands when it says "ready" and waits for them:
// loop     in its event loop
// before   before that, and enters it when a line has come on standard input
// dialog   in the loop of a dialog, before its own event loop
// stubborn in its event loop, with a window that will not be closed
// end      behind its event loop, which a signal ended
// In the end it says "in order".
#include "host/app/endsignals.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QTimer>

#include <cstdio>

namespace {

class Stubborn final : public QWidget
{
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

void say(const char *line)
{
    std::puts(line);
    std::fflush(stdout);
}

void waitForLine()
{
    say("ready");
    std::getchar();
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QByteArray place = argv[1];
    Host::endOnSignals();

    Stubborn window;
    if (place == "stubborn")
        window.show();
    if (place == "before")
        waitForLine();
    if (place == "dialog") {
        QDialog dialog;
        QTimer::singleShot(0, &dialog, [] { say("ready"); });
        dialog.exec();
        say("dialog over");
    }
    if (place != "dialog")
        QTimer::singleShot(0, qApp, [] { say("ready"); });
    const int status = QApplication::exec();
    if (place == "end")
        waitForLine();
    say("in order");
    return status;
}
