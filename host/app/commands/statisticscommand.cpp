// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/invocation.h"
#include "host/app/commands/runs.h"
#include "host/app/console.h"

#include <QCoreApplication>

#include <cstdlib>

namespace Host {

int Run::statistics(const Invocation &invocation)
{
    Console::complain(
        QCoreApplication::translate("Commands", "This version does not know how to do “%1” yet.")
            .arg(invocation.command));
    return EXIT_FAILURE;
}

} // namespace Host
