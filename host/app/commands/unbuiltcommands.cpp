// SPDX-License-Identifier: GPL-3.0-or-later
// Commands whose options are settled, and that a later version does.
#include "host/app/commands/invocation.h"
#include "host/app/commands/runs.h"
#include "host/app/console.h"

#include <QCoreApplication>

#include <cstdlib>

namespace Host {
namespace {

int refuse(const Invocation &invocation)
{
    Console::complain(
        QCoreApplication::translate("Commands", "This version does not know how to do “%1” yet.")
            .arg(invocation.command));
    return EXIT_FAILURE;
}

} // namespace

int Run::backups(const Invocation &invocation)
{
    return refuse(invocation);
}

} // namespace Host
