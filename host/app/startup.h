// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Host {

class Questions;
struct CommandLine;

/**
 * Opens the logbook, or draws it into a file. What goes wrong is said on standard error, and asked or told
 * through @p questions.
 *
 * @return the program's exit status.
 */
int start(const CommandLine &commandLine, Questions &questions);

} // namespace Host
