// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/endsignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Host {

#ifdef Q_OS_UNIX
namespace {

/** A signal handler may do next to nothing, but it may write into a pipe. Both ends stay open until the
 * process is gone, so that a signal at the very last moment is harmless, too. */
std::array<int, 2> pipeEnds{-1, -1};

void noteSignal(int)
{
    const int reason = errno;
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], "", 1);
    errno = reason;
}

void handle(int number)
{
    struct sigaction action = {};
    if (number == SIGHUP && sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN)
        return; // started with nohup
    action = {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(number, &action, nullptr);
}

} // namespace

void endOnSignals()
{
    if (pipe(pipeEnds.data()) != 0)
        return;
    for (const int end : pipeEnds) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
        fcntl(end, F_SETFL, O_NONBLOCK);
    }
    // The pipe is never emptied: the loop of a dialog that is open before exec() runs would otherwise be all
    // that a signal ends.
    auto *const notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, [] { QCoreApplication::exit(0); });
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        handle(number);
}

#else

void endOnSignals() {}

#endif

} // namespace Host
