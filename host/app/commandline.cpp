// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commandline.h"

#include "host/safety/storagefolder.h"
#include "host/window/mainwindow.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int UsageError = 2;

/** Options that QApplication takes out of the arguments itself, for one dash or two. */
constexpr std::array QtOptionsWithValue = {"display"_L1,       "geometry"_L1,     "icon"_L1,
                                           "name"_L1,          "platform"_L1,     "platformpluginpath"_L1,
                                           "platformtheme"_L1, "plugin"_L1,       "qwindowgeometry"_L1,
                                           "qwindowicon"_L1,   "qwindowtitle"_L1, "session"_L1,
                                           "style"_L1,         "stylesheet"_L1,   "title"_L1};
constexpr std::array QtOptionsWithoutValue = {"dograb"_L1, "nograb"_L1,  "qdebug"_L1,
                                              "qdevel"_L1, "reverse"_L1, "widgetcount"_L1};
constexpr std::array QtOptionsBeforeEquals = {"qmljsdebugger="_L1, "style="_L1, "stylesheet="_L1};

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

struct Options
{
    QCommandLineOption data{u"data"_s, Text::tr("Keep the logbook in DIR."), u"DIR"_s};
    QCommandLineOption demo{
        u"demo"_s, Text::tr("Open a sample logbook, in a folder of its own that keeps your changes.")};
    QCommandLineOption resetDemo{u"reset-demo"_s, Text::tr("Reset the sample logbook, then open it.")};
    QCommandLineOption screenshot{
        u"screenshot"_s, Text::tr("Draw the window into the PNG file FILE and exit; needs no display."),
        u"FILE"_s};
    QCommandLineOption page{
        u"page"_s, Text::tr("Show the page or tab NAME: %1.").arg(MainWindow::pageNames().join(u", "_s)),
        u"NAME"_s};
    QCommandLineOption help{{u"h"_s, u"help"_s}, Text::tr("Show this help.")};
    QCommandLineOption helpAll{u"help-all"_s}; // of earlier versions
    QCommandLineOption version{{u"v"_s, u"version"_s}, Text::tr("Show the version.")};
};

QString nameOf(const QString &argument)
{
    qsizetype dashes = 0;
    while (dashes < 2 && dashes < argument.size() && argument.at(dashes) == u'-')
        ++dashes;
    return dashes == 0 ? QString() : argument.mid(dashes);
}

template <typename List>
bool contains(const List &list, const QString &name)
{
    return std::find(list.begin(), list.end(), name) != list.end();
}

bool isQtOption(const QString &name)
{
    return contains(QtOptionsWithoutValue, name) ||
           std::any_of(QtOptionsBeforeEquals.begin(), QtOptionsBeforeEquals.end(),
                       [&](QLatin1StringView start) { return name.startsWith(start); });
}

/** The arguments that are meant for this program, not for Qt. */
QStringList ownArguments(const QStringList &arguments)
{
    QStringList own;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments.at(i) == "--"_L1)
            return own + arguments.mid(i);
        const QString name = nameOf(arguments.at(i));
        if (contains(QtOptionsWithValue, name) && i + 1 < arguments.size())
            ++i;
        else if (!isQtOption(name))
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
    if (!unknown.isEmpty() && contains(QtOptionsWithValue, unknown.first()))
        return needsValue(spelled(arguments, unknown.first()));
    if (!unknown.isEmpty())
        return Text::tr("“%1” is not an option of this program.").arg(spelled(arguments, unknown.first()));
    const QString &last = arguments.last();
    if (nameOf(last) == "data"_L1 || nameOf(last) == "screenshot"_L1 || nameOf(last) == "page"_L1)
        return needsValue(last);
    for (const QString &argument : arguments) {
        if (!nameOf(argument).isEmpty() && argument.contains(u'='))
            return Text::tr("“%1” takes no value.").arg(argument.section(u'=', 0, 0));
    }
    return Text::tr("The arguments cannot be understood.");
}

/** What is wrong with options that were each understood; empty when nothing is. */
QString contradiction(const QCommandLineParser &parser, const Options &options, const CommandLine &read)
{
    const QStringList extra = parser.positionalArguments();
    if (!extra.isEmpty())
        return Text::tr("The argument “%1” is not expected.").arg(extra.first());
    if (read.demo && read.dataGiven)
        return Text::tr("“--data” cannot be used with the sample logbook, which has a folder of its own.");
    if (read.dataGiven && parser.value(options.data).isEmpty())
        return needsValue(u"--data"_s);
    if (parser.isSet(options.screenshot) && read.screenshot.isEmpty())
        return needsValue(u"--screenshot"_s);
    if (parser.isSet(options.screenshot) && !read.screenshot.endsWith(".png"_L1, Qt::CaseInsensitive))
        return Text::tr("“--screenshot” draws PNG files, and the name “%1” does not end in “.png”.")
            .arg(read.screenshot);
    if (parser.isSet(options.page) && !MainWindow::pageNames().contains(read.page))
        return Text::tr("There is no page or tab “%1”.").arg(read.page);
    for (const QString &name : {read.storagePath, read.screenshot}) {
        if (name.contains(QChar::ReplacementCharacter)) // another folder than the one that was meant
            return Text::tr("The name “%1” holds characters that are not valid UTF-8.").arg(name);
    }
    return QString();
}

/** The name with a leading "~" replaced: "--data=~/x" reaches the program as it is. */
QString withHome(const QString &name)
{
    return name == "~"_L1 || name.startsWith("~/"_L1) ? QDir::homePath() + name.mid(1) : name;
}

QString chosenPath(const QCommandLineParser &parser, const Options &options, bool demo)
{
    if (demo)
        return StorageFolder::ofDemo().path();
    if (parser.isSet(options.data))
        return StorageFolder(withHome(parser.value(options.data))).path();
    return StorageFolder::ofUser().path();
}

QString helpText(const QCommandLineParser &parser)
{
    QString text = parser.helpText();
    text.replace(0, text.indexOf(u'\n'), Text::tr("Usage: voltbok [options]")); // Qt names the whole path
    text += u'\n' + Text::tr("Without --data the logbook is kept in\n  %1\nand the sample logbook in\n  %2\n")
                        .arg(StorageFolder::ofUser().path(), StorageFolder::ofDemo().path());
    QStringList names;
    for (const QLatin1StringView name : QtOptionsWithValue)
        names.append(u'-' + name);
    for (const QLatin1StringView name : QtOptionsWithoutValue)
        names.append(u'-' + name);
    return text + u'\n' + Text::tr("Qt's own options are passed on to Qt: %1.").arg(names.join(", "_L1)) +
           u'\n';
}

CommandLine usageError(const QString &problem)
{
    CommandLine result;
    result.error = problem + u' ' + Text::tr("Try --help.");
    result.status = UsageError;
    return result;
}

} // namespace

CommandLine readCommandLine(const QStringList &allArguments)
{
    const QStringList arguments = ownArguments(allArguments);
    Options options;
    options.helpAll.setFlags(QCommandLineOption::HiddenFromHelp);
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(
        Text::tr("A battery and flight logbook for people who fly radio-controlled models."));
    parser.addOptions({options.data, options.demo, options.resetDemo, options.screenshot, options.page,
                       options.help, options.helpAll, options.version});
    if (!parser.parse(arguments))
        return usageError(misunderstanding(parser, arguments));

    CommandLine result;
    if (parser.isSet(options.help) || parser.isSet(options.helpAll)) {
        result.answer = helpText(parser);
        return result;
    }
    if (parser.isSet(options.version)) {
        result.answer =
            QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion() + u'\n';
        return result;
    }

    result.dataGiven = parser.isSet(options.data);
    result.resetDemo = parser.isSet(options.resetDemo);
    result.demo = result.resetDemo || parser.isSet(options.demo);
    result.storagePath = chosenPath(parser, options, result.demo);
    result.page = parser.value(options.page);
    result.screenshot = withHome(parser.value(options.screenshot));
    const QString wrong = contradiction(parser, options, result);
    return wrong.isEmpty() ? result : usageError(wrong);
}

} // namespace Host
