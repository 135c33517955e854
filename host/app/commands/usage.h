// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/app/commands/command.h"

#include <QString>

namespace Host::Usage {

/** "batteries|models", or the word that stands for it. */
QString wordFor(const CommandArgument &argument);
/** "--format csv|xlsx", "--json", "--from DATE". */
QString wordFor(const CommandOption &option);

/** How a command is written, behind the program's name and the options that all commands have. */
QString syntax(const Command &command);

/** The text of COMMAND --help. */
QString help(const Command &command);

/** A line for each command. */
QString commandList();

/** What is wrong with an invocation, in a whole sentence; empty when nothing is. Looks at no data. */
QString problem(const Command &command, const Invocation &invocation);

} // namespace Host::Usage
