// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/console.h"

#include "host/safety/plaintext.h"

#include <QCoreApplication>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

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
    Output output;
    output.write(text.toUtf8());
    return output.finish() == EXIT_SUCCESS;
}

bool Console::Output::write(const QByteArray &bytes)
{
    const auto size = static_cast<size_t>(bytes.size());
    errno = 0;
    if (m_reason == 0 && std::fwrite(bytes.constData(), 1, size, stdout) != size)
        m_reason = errno;
    return m_reason == 0;
}

int Console::Output::finish()
{
    errno = 0;
    if (m_reason == 0 && std::fflush(stdout) != 0)
        m_reason = errno;
    if (m_reason == 0 || m_reason == EPIPE)
        return EXIT_SUCCESS;
    complain(QCoreApplication::translate("Console", "Nothing more can be written to standard output: %1.")
                 .arg(qt_error_string(m_reason)));
    return EXIT_FAILURE;
}

} // namespace Host
