// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Host {

struct CommandLine;

/** Opens the logbook, or draws it into a file. @return the program's exit status. */
int start(const CommandLine &commandLine);

} // namespace Host
