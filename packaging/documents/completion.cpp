// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/command.h"
#include "packaging/documents/documents.h"

#include <QMap>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

// bash takes "--format=csv" apart at "=".
constexpr char Start[] = R"(# bash completion for voltbok, made from the program's table of commands.

_voltbok() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local command='' words='' files='' word i arguments=0
    if [[ $current == '=' ]]; then
        current=''
    elif [[ $before == '=' ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi

    for ((i = 1; i < COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        case $word in
        %VALUED%)
            [[ ${COMP_WORDS[i + 1]} == '=' ]] && ((++i))
            ((++i))
            ;;
        -* | '=') ;;
        *)
            if [[ -z $command ]]; then
                command=$word
            else
                ((++arguments))
            fi
            ;;
        esac
    done

    COMPREPLY=()
)";

constexpr char End[] = R"(
    if [[ -n $files ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen "$files" -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    fi
}

complete -F _voltbok voltbok
)";

QString indented(qsizetype depth, const QString &line)
{
    return QString(4 * depth, u' ') + line + u'\n';
}

QString branch(qsizetype depth, const QString &pattern, const QString &action)
{
    return indented(depth, pattern + u')') + indented(depth + 1, action) + indented(depth + 1, u";;"_s);
}

QString dashed(const CommandOption &option)
{
    return u"--"_s + option.name;
}

/** Every option there is, each name once: it means the same everywhere. */
QMap<QString, CommandOption> allOptions()
{
    QMap<QString, CommandOption> all;
    const QList<ProgramOption> own = programOptions();
    for (const ProgramOption &option : own)
        all.insert(dashed(option), option);
    const QList<Command> known = commands();
    for (const Command &command : known) {
        for (const CommandOption &option : command.options)
            all.insert(dashed(option), option);
    }
    return all;
}

QString actionFor(const CommandOption &option)
{
    if (!option.choices.isEmpty())
        return u"words='%1'"_s.arg(option.choices.join(u' '));
    switch (option.kind) {
    case ValueKind::Path:
        return option.value == "DIR"_L1 ? u"files=-d"_s : u"files=-f"_s;
    case ValueKind::Date:
        return u"words=$(date +%F)"_s;
    default:
        return u"return"_s; // a name that only the logbook knows
    }
}

/** What may stand behind an option that has a value. */
QString values(QStringList *valued)
{
    QString text = indented(1, u"case $before in"_s);
    const QMap<QString, CommandOption> all = allOptions();
    for (auto option = all.cbegin(); option != all.cend(); ++option) {
        if (option->kind == ValueKind::None)
            continue;
        valued->append(option.key());
        text += branch(1, option.key(), actionFor(*option));
    }
    return text + indented(1, u"esac"_s);
}

QString argumentAction(const CommandArgument &argument)
{
    return argument.kind == ValueKind::Path ? u"files=-f"_s
                                            : u"words='%1'"_s.arg(argument.choices.join(u' '));
}

/** What may stand at each place behind a command. */
QString arguments(const Command &command)
{
    QString text;
    for (qsizetype i = 0; i < command.arguments.size(); ++i) {
        const CommandArgument &argument = command.arguments.at(i);
        const QString place = argument.isRepeatable ? QString(u'*') : QString::number(i);
        text += branch(3, command.name + u'/' + place, argumentAction(argument));
    }
    return text;
}

QString words(const QStringList &names)
{
    return u"words='%1'"_s.arg(names.join(u' '));
}

} // namespace

QByteArray Documents::bashCompletion()
{
    QStringList valued;
    const QString valuesBehind = values(&valued);
    QStringList ownNames;
    QStringList commonNames;
    const QList<ProgramOption> own = programOptions();
    for (const ProgramOption &option : own) {
        ownNames.append(dashed(option));
        if (option.isForCommands)
            commonNames.append(dashed(option));
    }
    QString optionNames = branch(3, u"''"_s, words(ownNames));
    QString places;
    QStringList commandNames;
    const QList<Command> known = commands();
    for (const Command &command : known) {
        QStringList names = commonNames;
        for (const CommandOption &option : command.options)
            names.append(dashed(option));
        optionNames += branch(3, command.name, words(names));
        places += arguments(command);
        commandNames.append(command.name);
    }
    places += branch(3, u"/*"_s, words(commandNames));

    QString text = QString::fromLatin1(Start).replace(u"%VALUED%"_s, valued.join(u" | "_s));
    text += valuesBehind + indented(1, u"if [[ -z $words$files ]]; then"_s) +
            indented(2, u"if [[ $current == -* ]]; then"_s) + indented(3, u"case $command in"_s) +
            optionNames + indented(3, u"esac"_s) + indented(2, u"else"_s) +
            indented(3, u"case $command/$arguments in"_s) + places + indented(3, u"esac"_s) +
            indented(2, u"fi"_s) + indented(1, u"fi"_s);
    return (text + QString::fromLatin1(End)).toUtf8();
}
