// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/console.h"

#include "host/safety/plaintext.h"

#include <cstdio>

namespace Host {

void Console::complain(const QString &problem)
{
    std::fprintf(stderr, "voltbok: %s\n", qUtf8Printable(plainLine(problem)));
}

void Console::print(const QString &text)
{
    std::fputs(qUtf8Printable(text), stdout);
}

} // namespace Host
