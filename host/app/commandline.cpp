// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commandline.h"

#include "host/app/commands/command.h"
#include "host/app/commands/usage.h"
#include "host/app/qtoptions.h"
#include "host/safety/storagefolder.h"
#include "host/window/mainwindow.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int UsageError = 2;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

/** As Qt's parser wants them. */
QList<QCommandLineOption> ownOptions()
{
    QList<QCommandLineOption> all;
    const QList<ProgramOption> known = programOptions();
    for (const ProgramOption &option : known) {
        const QStringList names =
            option.letter.isEmpty() ? QStringList{option.name} : QStringList{option.letter, option.name};
        all.append(QCommandLineOption(names, option.description, option.value));
    }
    QCommandLineOption helpAll(u"help-all"_s); // of earlier versions
    helpAll.setFlags(QCommandLineOption::HiddenFromHelp);
    return all << helpAll;
}

bool hasName(const QList<QCommandLineOption> &options, const QString &name)
{
    return std::any_of(options.cbegin(), options.cend(),
                       [&](const QCommandLineOption &option) { return option.names().contains(name); });
}

/** The options of all commands: each name has a value in all of them, or in none. */
QList<QCommandLineOption> optionsOfCommands()
{
    QList<QCommandLineOption> all;
    const QList<Command> known = commands();
    for (const Command &command : known) {
        for (const CommandOption &option : command.options) {
            if (!hasName(all, option.name))
                all.append(QCommandLineOption(option.name, option.description, option.value));
        }
    }
    return all;
}

QString nameOf(const QString &argument)
{
    qsizetype dashes = 0;
    while (dashes < 2 && dashes < argument.size() && argument.at(dashes) == u'-')
        ++dashes;
    return dashes == 0 ? QString() : argument.mid(dashes);
}

bool needsValueNext(const QList<QCommandLineOption> &options, const QString &name)
{
    return std::any_of(options.cbegin(), options.cend(), [&](const QCommandLineOption &option) {
        return !option.valueName().isEmpty() && option.names().contains(name);
    });
}

/** The arguments that are meant for this program, not for Qt. */
QStringList ownArguments(const QStringList &arguments)
{
    const QList<QCommandLineOption> commandOptions = optionsOfCommands();
    QStringList own;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments.at(i) == "--"_L1)
            return own + arguments.mid(i);
        const QString name = nameOf(arguments.at(i));
        if (needsValueNext(commandOptions, name)) // a battery may be called "-style"
            own += arguments.mid(i++, 2);
        else if (QtOptions::hasValue(name) && i + 1 < arguments.size())
            ++i;
        else if (!QtOptions::standsAlone(name))
            own.append(arguments.at(i));
    }
    return own;
}

/** The argument as it was typed that names this option. */
QString spelled(const QStringList &arguments, const QString &name)
{
    for (const QString &argument : arguments) {
        if (nameOf(argument).section(u'=', 0, 0) == name)
            return argument.section(u'=', 0, 0);
    }
    return name;
}

QString needsValue(const QString &option)
{
    return nameOf(option) == "screenshot"_L1 ? Text::tr("“%1” needs the name of a PNG file.").arg(option)
           : nameOf(option) == "data"_L1     ? Text::tr("“%1” needs the name of a folder.").arg(option)
           : nameOf(option) == "page"_L1 ? Text::tr("“%1” needs the name of a page or tab.").arg(option)
                                         : Text::tr("“%1” needs a value.").arg(option);
}

/** Why the arguments could not be understood one by one. */
QString misunderstanding(const QCommandLineParser &parser, const QStringList &arguments)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty() && QtOptions::hasValue(unknown.first()))
        return needsValue(spelled(arguments, unknown.first()));
    if (!unknown.isEmpty())
        return Text::tr("“%1” is not an option of this program.").arg(spelled(arguments, unknown.first()));
    const QString &last = arguments.last();
    if (needsValueNext(ownOptions() + optionsOfCommands(), nameOf(last)))
        return needsValue(last);
    for (const QString &argument : arguments) {
        if (!nameOf(argument).isEmpty() && argument.contains(u'='))
            return Text::tr("“%1” takes no value.").arg(argument.section(u'=', 0, 0));
    }
    return Text::tr("The arguments cannot be understood.");
}

/** An option that belongs to another command than the one that is asked for; empty when there is none. */
QString foreignOption(const QCommandLineParser &parser, const std::optional<Command> &command)
{
    const QStringList given = parser.optionNames();
    const auto found = std::find_if(given.cbegin(), given.cend(), [&](const QString &name) {
        return !hasName(ownOptions(), name) && !(command && optionNamed(*command, name));
    });
    return found == given.cend() ? QString() : *found;
}

/** What is wrong with options that were each understood; empty when nothing is. */
QString contradiction(const QCommandLineParser &parser, const CommandLine &read)
{
    if (read.demo && read.dataGiven)
        return Text::tr("“--data” cannot be used with the sample logbook, which has a folder of its own.");
    if (read.dataGiven && parser.value(u"data"_s).isEmpty())
        return needsValue(u"--data"_s);
    if (parser.isSet(u"screenshot"_s) && read.screenshot.isEmpty())
        return needsValue(u"--screenshot"_s);
    if (parser.isSet(u"screenshot"_s) && !read.screenshot.endsWith(".png"_L1, Qt::CaseInsensitive))
        return Text::tr("“--screenshot” draws PNG files, and the name “%1” does not end in “.png”.")
            .arg(read.screenshot);
    if (parser.isSet(u"page"_s) && !MainWindow::pageNames().contains(read.page))
        return Text::tr("There is no page or tab “%1”.").arg(read.page);
    for (const QString &name : {read.storagePath, read.screenshot}) {
        if (name.contains(QChar::ReplacementCharacter)) // another folder than the one that was meant
            return Text::tr("The name “%1” holds characters that are not valid UTF-8.").arg(name);
    }
    return QString();
}

/** What the window alone can do. */
QString windowOption(const QCommandLineParser &parser)
{
    for (const QString &option : {u"reset-demo"_s, u"screenshot"_s, u"page"_s}) {
        if (parser.isSet(option))
            return option;
    }
    return QString();
}

/** The name with a leading "~" replaced: "--data=~/x" reaches the program as it is. */
QString withHome(const QString &name)
{
    return name == "~"_L1 || name.startsWith("~/"_L1) ? QDir::homePath() + name.mid(1) : name;
}

QString chosenPath(const QCommandLineParser &parser, bool demo)
{
    if (demo)
        return StorageFolder::ofDemo().path();
    if (parser.isSet(u"data"_s))
        return StorageFolder(withHome(parser.value(u"data"_s))).path();
    return StorageFolder::ofUser().path();
}

Invocation invocationOf(const QCommandLineParser &parser, const Command &command, const CommandLine &read)
{
    Invocation invocation{command.name,   StorageFolder(read.storagePath),     read.demo,
                          read.dataGiven, parser.positionalArguments().mid(1), {}};
    for (const CommandOption &option : command.options) {
        if (!parser.isSet(option.name))
            continue;
        // Newer versions of Qt complain when a switch is asked for its values.
        QStringList values = option.kind == ValueKind::None ? QStringList() : parser.values(option.name);
        if (option.kind == ValueKind::Path)
            std::transform(values.begin(), values.end(), values.begin(), withHome);
        invocation.options.insert(option.name, values);
    }
    return invocation;
}

QString helpText()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Text::tr("A battery and flight logbook for people who fly radio-controlled models."));
    parser.addOptions(ownOptions());
    QString text = parser.helpText();
    const QString usage = Text::tr("Usage: voltbok [options]\n"
                                   "       voltbok [--data DIR | --demo] COMMAND [options]");
    text.replace(0, text.indexOf(u'\n'), usage); // Qt names the whole path
    text += u'\n' + Usage::commandList() + u'\n' +
            Text::tr("Without --data the logbook is kept in\n  %1\nand the sample logbook in\n  %2\n")
                .arg(StorageFolder::ofUser().path(), StorageFolder::ofDemo().path());
    return text + u'\n' +
           Text::tr("Qt's own options are passed on to Qt: %1.").arg(QtOptions::names().join(", "_L1)) +
           u'\n';
}

CommandLine usageError(const QString &problem)
{
    CommandLine result;
    result.error = problem + u' ' + Text::tr("Try --help.");
    result.status = UsageError;
    return result;
}

CommandLine answer(const QString &text)
{
    CommandLine result;
    result.answer = text;
    return result;
}

} // namespace

CommandLine readCommandLine(const QStringList &allArguments)
{
    const QStringList arguments = ownArguments(allArguments);
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.addOptions(ownOptions() + optionsOfCommands());
    if (!parser.parse(arguments))
        return usageError(misunderstanding(parser, arguments));
    const QStringList words = parser.positionalArguments();
    const std::optional<Command> command = words.isEmpty() ? std::nullopt : commandNamed(words.first());
    const QString foreign = foreignOption(parser, command);
    if (!foreign.isEmpty() && command)
        return usageError(
            Text::tr("“%1” is not an option of “%2”.").arg(spelled(arguments, foreign), command->name));
    if (!foreign.isEmpty())
        return usageError(
            Text::tr("“%1” is not an option of this program.").arg(spelled(arguments, foreign)));
    if (!words.isEmpty() && !command)
        return usageError(Text::tr("The argument “%1” is not expected.").arg(words.first()));
    if (parser.isSet(u"help"_s) || parser.isSet(u"help-all"_s))
        return answer(command ? Usage::help(*command) : helpText());
    if (parser.isSet(u"version"_s))
        return answer(QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion() +
                      u'\n');

    CommandLine result;
    result.dataGiven = parser.isSet(u"data"_s);
    result.resetDemo = parser.isSet(u"reset-demo"_s);
    result.demo = result.resetDemo || parser.isSet(u"demo"_s);
    result.storagePath = chosenPath(parser, result.demo);
    result.page = parser.value(u"page"_s);
    result.screenshot = withHome(parser.value(u"screenshot"_s));
    QString wrong = contradiction(parser, result);
    if (!command)
        return wrong.isEmpty() ? result : usageError(wrong);
    const QString ofWindow = windowOption(parser);
    if (!ofWindow.isEmpty())
        return usageError(Text::tr("“--%1” is for the window, not for “%2”.").arg(ofWindow, command->name));
    result.invocation = invocationOf(parser, *command, result);
    if (wrong.isEmpty())
        wrong = Usage::problem(*command, *result.invocation);
    return wrong.isEmpty() ? result : usageError(wrong);
}

} // namespace Host
