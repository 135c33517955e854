// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/app/commands/invocation.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace Host {

/** What the user asks for on the command line. */
struct CommandLine
{
    QString error;       ///< one line that says what is wrong; everything else but status is then meaningless
    QString answer;      ///< a text to print instead of opening the window: the help or the version
    int status = 0;      ///< the program's exit status where it has nothing to do but to print one of these
    QString storagePath; ///< absolute path of the storage folder
    QString screenshot;  ///< name of the picture to draw instead of opening the window
    QString page;        ///< the page or tab to show; empty for the first
    bool dataGiven = false; ///< the folder was named on the command line
    bool demo = false;
    bool resetDemo = false;
    std::optional<Invocation> invocation; ///< the command to run instead of opening the window
};

/** Reads the arguments, the program's name first; Qt's own options are left to Qt. Needs an application
 * object, which may be one without windows. */
CommandLine readCommandLine(const QStringList &arguments);

} // namespace Host
