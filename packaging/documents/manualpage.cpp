// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/usage.h"
#include "packaging/documents/documents.h"

#include <utility>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

/** A text in which man finds nothing to obey. */
QString plain(QString text)
{
    static const QList<std::pair<QString, QString>> Others{
        {u"\\"_s, u"\\e"_s},  {u"-"_s, u"\\-"_s},   {u"“"_s, u"\\(lq"_s}, {u"”"_s, u"\\(rq"_s},
        {u"’"_s, u"\\(cq"_s}, {u"'"_s, u"\\(aq"_s}, {u"…"_s, u"..."_s},   {u"°"_s, u"\\(de"_s}};
    for (const auto &[character, spelled] : Others)
        text.replace(character, spelled);
    return text.startsWith(u'.') ? u"\\&"_s + text : text;
}

QString bold(const QString &text)
{
    return u"\\fB"_s + plain(text) + u"\\fR"_s;
}

QString italic(const QString &text)
{
    return u"\\fI"_s + plain(text) + u"\\fR"_s;
}

QString section(const QString &title)
{
    return u".SH "_s + title + u'\n';
}

QString paragraph(const QString &text)
{
    return u".PP\n"_s + plain(text) + u'\n';
}

QString item(const QString &name, const QString &text)
{
    return u".TP\n"_s + name + u'\n' + plain(text) + u'\n';
}

QString spelled(const CommandOption &option)
{
    const QString letter = option.letter.isEmpty() ? QString() : bold(u"-"_s + option.letter) + u", "_s;
    const QString value = option.value.isEmpty() ? QString() : u' ' + italic(option.value);
    return letter + bold(u"--"_s + option.name) + value;
}

/** Words in capitals stand for something else, and are set as such. */
QString synopsis(const QString &syntax)
{
    QStringList words = syntax.split(u' ');
    for (QString &word : words) {
        const bool isPlaceholder = word == word.toUpper() && word != word.toLower();
        word = isPlaceholder ? italic(word) : bold(word);
    }
    return words.join(u' ');
}

QString descriptionOf(const Command &command)
{
    QString text = u".SS "_s + plain(command.name) + u'\n' + synopsis(Usage::syntax(command)) + u'\n' +
                   paragraph(command.summary);
    if (!command.description.isEmpty())
        text += plain(command.description) + u'\n';
    for (const CommandArgument &argument : command.arguments) {
        const QString word = Usage::wordFor(argument);
        text += item(argument.choices.isEmpty() ? italic(word) : bold(word), argument.description);
    }
    for (const CommandOption &option : command.options)
        text += item(spelled(option), option.description);
    return text;
}

QString options()
{
    QString text = section(u"OPTIONS"_s);
    const QList<ProgramOption> all = programOptions();
    for (const ProgramOption &option : all)
        text += item(spelled(option), option.description);
    return text + paragraph(u"Options may stand before or after a command. Qt's own options, such as -style, "
                            "are passed on to Qt."_s);
}

QString examples()
{
    const QList<std::pair<QString, QString>> lines{
        {u"voltbok due"_s, u"What there is to do today."_s},
        {u"voltbok --demo list flights"_s, u"The flights of the sample logbook, as a table."_s},
        {u"voltbok statistics --json --from 2026-01-01"_s, u"The figures of a year, for a script."_s},
        {u"voltbok export --format csv --output ~/logbook"_s, u"Five files for a spreadsheet."_s},
        {u"voltbok check && echo fine"_s, u"A status that a script can go by."_s}};
    QString text = section(u"EXAMPLES"_s);
    for (const auto &[line, meaning] : lines)
        text += item(bold(line), meaning);
    return text;
}

} // namespace

QByteArray Documents::manualPage(const QString &version)
{
    QString text = u".\\\" Made from the table of commands.\n.TH VOLTBOK 1 \"\" \"Voltbok %1\" "
                   "\"User Commands\"\n"_s.arg(version);
    text += section(u"NAME"_s) + u"voltbok \\- battery and flight logbook for radio\\-controlled models\n"_s;
    text += section(u"SYNOPSIS"_s) + bold(u"voltbok"_s) + u" ["_s + italic(u"options"_s) + u"]\n.br\n"_s +
            bold(u"voltbok"_s) + u" ["_s + bold(u"--data"_s) + u' ' + italic(u"DIR"_s) + u" | "_s +
            bold(u"--demo"_s) + u"] "_s + italic(u"COMMAND"_s) + u" ["_s + italic(u"options"_s) + u"]\n"_s;
    text += section(u"DESCRIPTION"_s) +
            plain(u"Voltbok keeps a logbook of flight batteries and of the flights of radio-controlled "
                  "models. Without a command it opens its window. With one it does what the command says, "
                  "and needs no display."_s) +
            u'\n' +
            paragraph(u"Commands that read take no lock and write nothing, so that they work beside the "
                      "window and in a folder that is read-only. Results stand on standard output, problems "
                      "on standard error, one line each."_s);
    text += options() + section(u"COMMANDS"_s);
    const QList<Command> all = commands();
    for (const Command &command : all)
        text += descriptionOf(command);
    text += section(u"EXIT STATUS"_s) + item(bold(u"0"_s), u"Done."_s) +
            item(bold(u"1"_s), u"Not done: a name that is unknown, a file that is missing or there already, "
                               "a logbook that somebody else has open. For check: something was found."_s) +
            item(bold(u"2"_s), u"The command line is wrong. Nothing was looked at."_s);
    text += section(u"FILES"_s) + item(italic(u"~/.local/share/Voltbok/voltbok.xml"_s), u"The logbook."_s) +
            item(italic(u"~/.local/share/Voltbok/backups"_s), u"Its copies."_s) +
            item(italic(u"~/.local/share/Voltbok-demo"_s), u"The sample logbook, with your changes."_s);
    return (text + examples()).toUtf8();
}
