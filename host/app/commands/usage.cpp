// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/usage.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Usage)
};

bool isUnreadable(const QString &path)
{
    return path.contains(QChar::ReplacementCharacter); // another file than the one that was meant
}

QString oneOf(const QString &value, const QStringList &choices)
{
    return Text::tr("“%1” is none of %2.").arg(value, choices.join(u", "_s));
}

QString valueProblem(const QString &value, ValueKind kind, const QStringList &choices)
{
    if (!choices.isEmpty() && !choices.contains(value))
        return oneOf(value, choices);
    if (kind == ValueKind::Date && !dateFrom(value).isValid())
        return Text::tr("“%1” is no date such as 2026-03-14.").arg(value);
    if (kind == ValueKind::Path && isUnreadable(value))
        return Text::tr("The name “%1” holds characters that are not valid UTF-8.").arg(value);
    return QString();
}

QString optionProblem(const CommandOption &option, const Invocation &invocation)
{
    const QString typed = u"--"_s + option.name;
    if (!invocation.has(option.name))
        return option.isRequired
                   ? Text::tr("“%1” needs “%2”.").arg(invocation.command, Usage::wordFor(option))
                   : QString();
    const QStringList values = invocation.values(option.name);
    for (const QString &value : values) {
        if (value.isEmpty() && option.kind == ValueKind::Path)
            return Text::tr("“%1” needs a value.").arg(typed);
        const QString problem = valueProblem(value, option.kind, option.choices);
        if (!problem.isEmpty())
            return option.choices.isEmpty() && option.kind != ValueKind::Date
                       ? problem
                       : Text::tr("“%1”: %2").arg(typed, problem);
        if (!option.isRepeatable && value != values.first())
            return Text::tr("“%1” was given twice.").arg(typed);
    }
    return QString();
}

/** The argument that stands at a place; null where none may stand. */
const CommandArgument *argumentAt(const Command &command, qsizetype place)
{
    if (place < command.arguments.size())
        return &command.arguments.at(place);
    const bool goesOn = !command.arguments.isEmpty() && command.arguments.last().isRepeatable;
    return goesOn ? &command.arguments.last() : nullptr;
}

QString argumentProblem(const Command &command, const Invocation &invocation)
{
    const QStringList &given = invocation.arguments;
    for (qsizetype i = 0; i < given.size(); ++i) {
        const CommandArgument *argument = argumentAt(command, i);
        if (!argument)
            return Text::tr("The argument “%1” is not expected.").arg(given.at(i));
        if (given.at(i).isEmpty() && argument->kind == ValueKind::Path)
            return Text::tr("“%1” needs the name of a file, and an empty text is none.").arg(command.name);
        const QString problem = valueProblem(given.at(i), argument->kind, argument->choices);
        if (!problem.isEmpty())
            return problem;
    }
    const CommandArgument *missing = argumentAt(command, given.size());
    const bool isMissing = missing && !missing->isOptional && given.size() < command.arguments.size();
    return isMissing ? Text::tr("“%1” needs “%2”.").arg(command.name, Usage::wordFor(*missing)) : QString();
}

QString rangeProblem(const Invocation &invocation)
{
    const DateRange range = invocation.range();
    return range.from && range.to && *range.from > *range.to
               ? Text::tr("“--from %1” is after “--to %2”.")
                     .arg(invocation.value(u"from"_s), invocation.value(u"to"_s))
               : QString();
}

QString wordWithDashes(const CommandOption &option)
{
    return u"--"_s + option.name + (option.value.isEmpty() ? QString() : u' ' + option.value);
}

using Rows = QList<std::pair<QString, QString>>;

/** Breaks a text into lines that fit into a terminal; all but the first begin with so many blanks. */
QString wrapped(const QString &text, qsizetype indent)
{
    constexpr qsizetype LineLength = 79;
    const QString lineBreak = u'\n' + QString(indent, u' ');
    QString result;
    qsizetype column = indent;
    const QStringList words = text.split(u' ');
    for (const QString &word : words) {
        const bool fits = column + 1 + word.size() <= LineLength;
        if (!result.isEmpty())
            result += fits ? QString(u' ') : lineBreak;
        column = (fits ? column + 1 : indent) + word.size();
        result += word;
    }
    return result;
}

/** Two columns, as in the help of the program. */
QString table(const QString &title, const Rows &rows)
{
    constexpr qsizetype Widest = 24;
    qsizetype width = 0;
    for (const auto &[left, right] : rows)
        width = qMax(width, qMin(left.size(), Widest));
    QString text = u'\n' + title + u'\n';
    for (const auto &[left, right] : rows)
        text += u"  "_s + left.leftJustified(width) + u"  "_s + wrapped(right, width + 4) + u'\n';
    return rows.isEmpty() ? QString() : text;
}

} // namespace

QString Usage::wordFor(const CommandArgument &argument)
{
    return argument.choices.isEmpty() ? argument.name : argument.choices.join(u'|');
}

QString Usage::wordFor(const CommandOption &option)
{
    const QString value = option.choices.isEmpty() ? option.value : option.choices.join(u'|');
    return u"--"_s + option.name + (value.isEmpty() ? QString() : u' ' + value);
}

QString Usage::syntax(const Command &command)
{
    QString text = command.name;
    QString brackets;
    for (const CommandArgument &argument : command.arguments) {
        text += (argument.isOptional ? u" ["_s : u" "_s) + wordFor(argument) +
                (argument.isRepeatable ? u"…"_s : QString());
        brackets += argument.isOptional ? u"]"_s : QString();
    }
    text += brackets;
    for (const CommandOption &option : command.options) {
        text += (option.isRequired ? u" %1"_s : u" [%1]"_s).arg(wordFor(option)) +
                (option.isRepeatable ? u"…"_s : QString());
    }
    return text;
}

QString Usage::help(const Command &command)
{
    constexpr qsizetype Indent = 7; // behind "Usage: "
    Rows arguments;
    for (const CommandArgument &argument : command.arguments)
        arguments.append({wordFor(argument), argument.description});
    Rows options;
    for (const CommandOption &option : command.options)
        options.append({wordWithDashes(option), option.description});
    Rows common;
    const QList<ProgramOption> all = programOptions();
    for (const ProgramOption &option : all) {
        if (option.isForCommands)
            common.append({wordWithDashes(option), option.description});
    }
    return wrapped(Text::tr("Usage: voltbok [--data DIR | --demo] %1").arg(syntax(command)), Indent) + u'\n' +
           command.summary + u'\n' +
           (command.description.isEmpty() ? QString() : u'\n' + wrapped(command.description, 0) + u'\n') +
           table(Text::tr("Arguments:"), arguments) + table(Text::tr("Options:"), options) +
           table(Text::tr("Options of every command:"), common);
}

QString Usage::commandList()
{
    Rows rows;
    const QList<Command> all = commands();
    for (const Command &command : all)
        rows.append({command.name, command.summary});
    return table(Text::tr("Commands:"), rows) + u'\n' +
           Text::tr("COMMAND --help tells more about each. No command needs a display.") + u'\n';
}

QString Usage::problem(const Command &command, const Invocation &invocation)
{
    for (const CommandOption &option : command.options) {
        const QString problem = optionProblem(option, invocation);
        if (!problem.isEmpty())
            return problem;
    }
    QString problem = argumentProblem(command, invocation);
    if (problem.isEmpty())
        problem = rangeProblem(invocation);
    return problem.isEmpty() && command.contradiction ? command.contradiction(invocation) : problem;
}

} // namespace Host
