// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/app/commands/invocation.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace Host {

/** What a value of the command line stands for: how it is checked and completed. */
enum class ValueKind {
    None, ///< a switch, which has no value
    Text, ///< any text, or one of the choices
    Date, ///< "2026-03-14"
    Path, ///< a file or a folder, never an empty name
};

struct CommandOption
{
    QString name;  ///< without its dashes
    QString value; ///< the word that stands for the value in a usage line; empty for a switch
    QString description;
    ValueKind kind = ValueKind::None;
    QStringList choices = {}; ///< all values that there are; empty where there is no such list
    bool isRequired = false;
    bool isRepeatable = false;
    QString letter = {}; ///< a second name, of one letter
};

struct CommandArgument
{
    QString name; ///< the word that stands for it in a usage line
    QString description;
    ValueKind kind = ValueKind::Text;
    QStringList choices = {};
    bool isOptional = false;
    bool isRepeatable = false; ///< only the last one
};

struct Command
{
    QString name;
    QString summary;     ///< one line that begins with a verb
    QString description; ///< further lines of its help; may be empty
    QList<CommandArgument> arguments;
    QList<CommandOption> options;
    /** Does what is asked for. @return the program's exit status. */
    int (*run)(const Invocation &invocation);
    /** What is wrong with options that are each right, in a whole sentence; empty when nothing is. */
    QString (*contradiction)(const Invocation &invocation) = nullptr;
};

/** The options of the program itself. Those that commands have, too, are marked. */
struct ProgramOption : CommandOption
{
    bool isForCommands = false;
};
QList<ProgramOption> programOptions();

/**
 * Every command there is, in the order of its help. Parser, help, manual page and completion are all made
 * from this table.
 */
QList<Command> commands();

/** The command of a name; nothing where there is none. */
std::optional<Command> commandNamed(const QString &name);

/** The option of a name among those of a command; null where there is none. */
const CommandOption *optionNamed(const Command &command, const QString &name);

} // namespace Host
