// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/console.h"

#include "host/safety/plaintext.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Host {

void Console::prepare()
{
#ifdef Q_OS_UNIX
    std::signal(SIGPIPE, SIG_IGN);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0) [[maybe_unused]]
            const int opened = open("/dev/null", O_RDONLY); // writing there fails, as it should
    }
#endif
}

void Console::complain(const QString &problem)
{
    std::fprintf(stderr, "voltbok: %s\n", qUtf8Printable(plainLine(problem)));
}

bool Console::print(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    errno = 0;
    const bool isWritten = std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout) ==
                               static_cast<size_t>(bytes.size()) &&
                           std::fflush(stdout) == 0;
    const int reason = errno;
    if (isWritten || reason == EPIPE)
        return true;
    complain(QCoreApplication::translate("Console", "Nothing more can be written to standard output: %1.")
                 .arg(qt_error_string(reason)));
    return false;
}

} // namespace Host
