// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

struct CommandLine;

/** Opens the logbook, or draws it into a file. @return the program's exit status. */
int runHost(const CommandLine &commandLine);

/** Says on standard error, in one line, what is wrong. @return the exit status for it. */
int fail(const QString &problem);
