// SPDX-License-Identifier: GPL-3.0-or-later
// The commands, their arguments and their options.
#include "host/app/commands/command.h"
#include "host/app/commands/runs.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Commands)
};

CommandOption toggle(const QString &name, const QString &description)
{
    return {name, {}, description};
}

CommandOption json()
{
    return toggle(u"json"_s, Text::tr("Print one JSON document."));
}

CommandOption dryRun()
{
    return toggle(u"dry-run"_s, Text::tr("Only say what would be done."));
}

CommandOption force()
{
    return toggle(u"force"_s, Text::tr("Replace files that exist."));
}

CommandOption date(const QString &name, const QString &description)
{
    return {name, u"DATE"_s, description, ValueKind::Date};
}

CommandOption from()
{
    return date(u"from"_s, Text::tr("Leave out what was before DATE, such as 2026-03-14."));
}

CommandOption to()
{
    return date(u"to"_s, Text::tr("Leave out what was after DATE."));
}

CommandOption on()
{
    return date(u"on"_s, Text::tr("Take DATE for today."));
}

CommandOption name(const QString &option, const QString &description, bool isRepeatable)
{
    return {option, u"NAME"_s, description, ValueKind::Text, {}, false, isRepeatable};
}

CommandOption onlyModels()
{
    return name(u"model"_s, Text::tr("Only this model and its flights; may be repeated."), true);
}

CommandOption output(const QString &value, const QString &description, bool isRequired)
{
    return {u"output"_s, value, description, ValueKind::Path, {}, isRequired};
}

QString exportContradiction(const Invocation &invocation)
{
    const QString format = invocation.value(u"format"_s);
    return invocation.has(u"output"_s) || format == "json"_L1
               ? QString()
               : Text::tr("“--format %1” needs “--output”: the name of what is written.").arg(format);
}

QString backupsContradiction(const Invocation &invocation)
{
    const bool restores = !invocation.arguments.isEmpty();
    if (restores && invocation.arguments.size() < 2)
        return Text::tr("“restore” needs the STAMP of a copy.");
    if (restores && invocation.arguments.last().isEmpty())
        return Text::tr("“restore” needs the STAMP of a copy, and an empty text is none.");
    return restores && invocation.has(u"json"_s) ? Text::tr("“restore” does not know “--json”.") : QString();
}

Command listing()
{
    return {u"list"_s,
            Text::tr("List the records of the logbook."),
            Text::tr("Everything stands in the order of the logbook's file."),
            {{u"KIND"_s,
              Text::tr("What to list."),
              ValueKind::Text,
              {u"batteries"_s, u"models"_s, u"flights"_s, u"discharges"_s, u"locations"_s}}},
            {json()},
            Run::list};
}

Command exporting()
{
    return {
        u"export"_s,
        Text::tr("Write the logbook in a form for other programs."),
        Text::tr("csv and csv-local write five files into a folder, which is made if it is missing; xlsx and "
                 "json write one file into a folder that exists. json without --output is printed. Nothing "
                 "that exists is replaced without --force. --battery limits the batteries and their "
                 "discharges, --model the models and their flights."),
        {},
        {{u"format"_s,
          u"FORMAT"_s,
          Text::tr("csv; csv-local, for spreadsheets of your language; xlsx; or json."),
          ValueKind::Text,
          {u"csv"_s, u"csv-local"_s, u"xlsx"_s, u"json"_s},
          true},
         output(u"PATH"_s, Text::tr("The folder or file to write."), false),
         from(),
         to(),
         name(u"battery"_s, Text::tr("Only this battery and its discharges; may be repeated."), true),
         onlyModels(),
         force()},
        Run::exportTo,
        exportContradiction};
}

Command statistics()
{
    return {u"statistics"_s,
            Text::tr("Show figures of batteries, models, locations and months."),
            Text::tr("--from and --to limit discharges and flights, not ages."),
            {},
            {json(), from(), to(), on()},
            Run::statistics};
}

Command due()
{
    return {u"due"_s,
            Text::tr("Show what there is to do today."),
            Text::tr("The limits are those of your preferences."),
            {},
            {json(), on()},
            Run::due};
}

Command report()
{
    return {u"report"_s,
            Text::tr("Write the flight book as a PDF file."),
            Text::tr("Flights without a time stand at the end; where dates are given, they are left out."),
            {},
            {output(u"FILE"_s, Text::tr("The PDF file to write."), true),
             from(),
             to(),
             onlyModels(),
             {u"paper"_s,
              u"PAPER"_s,
              Text::tr("A4, which is the default, or Letter."),
              ValueKind::Text,
              {u"A4"_s, u"Letter"_s}},
             force()},
            Run::report};
}

Command importing()
{
    return {u"import"_s,
            Text::tr("Fill in flights from the logs of a radio."),
            Text::tr("Flights that were clicked get the values that the radio measured. Nothing is added "
                     "twice. A log that fits no flight is only added with --battery."),
            {{u"LOG"_s, Text::tr("A log, or a folder with logs."), ValueKind::Path, {}, false, true}},
            {dryRun(), json(), name(u"model"_s, Text::tr("The model that the logs are of."), false),
             name(u"battery"_s, Text::tr("Add what fits no flight, to this battery."), false),
             toggle(u"replace-entered"_s, Text::tr("Replace values that you entered, too."))},
            Run::import};
}

Command checking()
{
    return {u"check"_s,
            Text::tr("Look for what is wrong in a logbook's file."),
            Text::tr("The status is 1 when something was found."),
            {{u"FILE"_s, Text::tr("The file; without it that of the logbook."), ValueKind::Path, {}, true}},
            {json()},
            Run::check};
}

Command backups()
{
    return {u"backups"_s,
            Text::tr("List the copies of the logbook, or restore one."),
            Text::tr("“backups restore STAMP” puts a copy back; the file as it is now is copied first."),
            {{u"restore"_s, Text::tr("Restore a copy."), ValueKind::Text, {u"restore"_s}, true},
             {u"STAMP"_s, Text::tr("The stamp of the copy, as in the list."), ValueKind::Text, {}, true}},
            {json()},
            Run::backups,
            backupsContradiction};
}

Command merge()
{
    return {u"merge"_s,
            Text::tr("Take over what another copy of the logbook has more."),
            Text::tr("Where both were changed differently, this logbook's value stays, and that is said."),
            {{u"FILE"_s, Text::tr("The other copy."), ValueKind::Path}},
            {{u"base"_s, u"FILE"_s, Text::tr("The version that both come from."), ValueKind::Path},
             dryRun(),
             json()},
            Run::merge};
}

} // namespace

QList<Command> commands()
{
    return {listing(),   exporting(), statistics(), due(),  report(),
            importing(), checking(),  backups(),    merge()};
}

std::optional<Command> commandNamed(const QString &name)
{
    const QList<Command> all = commands();
    const auto found =
        std::find_if(all.cbegin(), all.cend(), [&](const Command &command) { return command.name == name; });
    return found == all.cend() ? std::nullopt : std::optional(*found);
}

const CommandOption *optionNamed(const Command &command, const QString &name)
{
    const auto found = std::find_if(command.options.cbegin(), command.options.cend(),
                                    [&](const CommandOption &option) { return option.name == name; });
    return found == command.options.cend() ? nullptr : &*found;
}

} // namespace Host
