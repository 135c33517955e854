// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commandline.h"

#include "host/safety/storagefolder.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Options
{
    QCommandLineOption data{u"data"_s, u"Keep the logbook in DIR."_s, u"DIR"_s};
    QCommandLineOption demo{u"demo"_s,
                            u"Open a sample logbook, in a folder of its own that keeps your changes."_s};
    QCommandLineOption resetDemo{u"reset-demo"_s, u"Open the sample logbook as it was at first."_s};
    QCommandLineOption screenshot{
        u"screenshot"_s, u"Draw the window into the PNG file FILE and exit; needs no display."_s, u"FILE"_s};
};

/** What is wrong with options that were each understood; empty when nothing is. */
QString contradiction(const QCommandLineParser &parser, const Options &options, bool demo)
{
    const QStringList extra = parser.positionalArguments();
    if (!extra.isEmpty())
        return u"unexpected argument \"%1\""_s.arg(extra.first());
    if (demo && parser.isSet(options.data))
        return u"the sample logbook has a folder of its own: --data cannot be used with it"_s;
    if (parser.isSet(options.data) && parser.value(options.data).isEmpty())
        return u"--data needs the name of a directory"_s;
    if (parser.isSet(options.screenshot) && parser.value(options.screenshot).isEmpty())
        return u"--screenshot needs the name of a file"_s;
    return QString();
}

QString chosenPath(const QCommandLineParser &parser, const Options &options, bool demo)
{
    if (demo)
        return StorageFolder::ofDemo().path();
    if (parser.isSet(options.data))
        return StorageFolder(parser.value(options.data)).path();
    return StorageFolder::ofUser().path();
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"A battery and flight logbook for people who fly radio-controlled models."_s);
    parser.addOptions({options.data, options.demo, options.resetDemo, options.screenshot});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();

    CommandLine result;
    if (!parser.parse(arguments)) {
        result.error = parser.errorText();
        return result;
    }
    if (parser.isSet(help) || parser.isSet(u"help-all"_s)) {
        result.answer = parser.helpText();
        return result;
    }
    if (parser.isSet(version)) {
        result.answer =
            QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion() + u'\n';
        return result;
    }

    result.dataGiven = parser.isSet(options.data);
    result.resetDemo = parser.isSet(options.resetDemo);
    result.demo = result.resetDemo || parser.isSet(options.demo);
    result.error = contradiction(parser, options, result.demo);
    result.storagePath = chosenPath(parser, options, result.demo);
    result.screenshot = parser.value(options.screenshot);
    return result;
}

} // namespace Host
