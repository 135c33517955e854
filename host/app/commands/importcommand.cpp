// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/commanddata.h"
#include "host/app/commands/invocation.h"
#include "host/app/commands/logbookwriting.h"
#include "host/app/commands/runs.h"
#include "host/app/commands/texttable.h"
#include "host/app/console.h"
#include "host/app/opening.h"
#include "host/exchange/importing.h"
#include "host/exchange/importjson.h"
#include "host/exchange/importtexts.h"
#include "host/safety/measuredstore.h"
#include "host/window/questions.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Import)
};

template <typename Record>
bool isNamed(const QList<Record> &records, const QString &name)
{
    return std::any_of(records.cbegin(), records.cend(),
                       [&](const Record &record) { return record.name == name; });
}

/** Why a name of the command line is none of the logbook; empty when it is. */
QString nameProblem(const Invocation &invocation, const Catalogue &catalogue)
{
    const QString model = invocation.value(u"model"_s);
    const QString battery = invocation.value(u"battery"_s);
    if (invocation.has(u"model"_s) && !isNamed(catalogue.models, model))
        return Text::tr("There is no model “%1”.").arg(model);
    if (invocation.has(u"battery"_s) && !isNamed(catalogue.batteries, battery))
        return Text::tr("There is no battery “%1”.").arg(battery);
    return QString();
}

QString shownDuration(const std::optional<double> &duration)
{
    constexpr qint64 SecondsOfAMinute = 60;
    const qint64 seconds = std::llround(duration.value_or(0));
    return !duration ? QString()
                     : u"%1:%2"_s.arg(seconds / SecondsOfAMinute)
                           .arg(seconds % SecondsOfAMinute, 2, 10, QChar(u'0'));
}

QString shownNumber(const std::optional<double> &number, int decimals)
{
    return number ? QLocale().toString(*number, 'f', decimals) : QString();
}

void writeTable(const QList<ImportedLog> &logs, const ImportPlan &plan, Console::Output &output)
{
    TextTable table({{Text::tr("Log")},
                     {Text::tr("Start")},
                     {Text::tr("Duration"), true},
                     {Text::tr("Discharged (mAh)"), true},
                     {Text::tr("Maximum current (A)"), true},
                     {Text::tr("What becomes of it")}});
    for (qsizetype i = 0; i < logs.size(); ++i) {
        for (const ImportedSession &shown : plan.sessions.at(i)) {
            const Session &session = shown.session;
            table.addRow({QFileInfo(logs.at(i).path).fileName(), clockText(session.start).replace(u'T', u' '),
                          shownDuration(session.duration), shownNumber(session.discharged, 0),
                          shownNumber(session.highestCurrent, 2), importText(shown, plan)});
        }
    }
    table.write([&](const QByteArray &bytes) { return output.write(bytes); });
}

/** Says which files cannot be used. @return whether there is none. */
bool complainOfFiles(const QList<ImportedLog> &logs)
{
    bool allGood = true;
    for (const ImportedLog &log : logs) {
        if (log.log.status == LogStatus::Read || log.log.status == LogStatus::Empty)
            continue;
        allGood = false;
        const QString text = log.log.status == LogStatus::NotARadioLog
                                 ? Text::tr("“%1” is no log of a radio: %2")
                                 : Text::tr("“%1” is not imported: %2");
        Console::complain(text.arg(log.path, log.log.reason));
    }
    return allGood;
}

QList<qsizetype> chosenOf(const ImportPlan &plan, bool addsNew)
{
    QList<qsizetype> chosen;
    for (qsizetype i = 0; i < plan.discharges.size(); ++i) {
        const ImportAction action = plan.discharges.at(i).action;
        if (action == ImportAction::Fill || (addsNew && action == ImportAction::New))
            chosen.append(i);
    }
    return chosen;
}

/** One import, as far as the command line wants it. */
int run(const Invocation &invocation, Opening *opening)
{
    std::optional<Catalogue> catalogue = CommandData::read(invocation);
    if (!catalogue)
        return EXIT_FAILURE;
    const QString problem = nameProblem(invocation, *catalogue);
    if (!problem.isEmpty()) {
        Console::complain(problem);
        return EXIT_FAILURE;
    }
    const Measured measured = MeasuredStore::load(invocation.folder).measured;
    const QList<ImportedLog> logs = LogReading::read(LogReading::paths(invocation.arguments), measured);
    const MatchOptions options{invocation.value(u"model"_s),
                               invocation.value(u"battery"_s),
                               invocation.has(u"replace-entered"_s),
                               0,
                               {}};
    const ImportPlan plan = matched(logs, *catalogue, measured, options);
    const QList<qsizetype> chosen = chosenOf(plan, invocation.has(u"battery"_s));
    const bool allGood = complainOfFiles(logs);
    if (opening && !chosen.isEmpty()) {
        Catalogue meant = *catalogue;
        Measured known = measured;
        QString notDone = applyImport(meant, known, logs, plan, chosen);
        if (notDone.isEmpty()) {
            if (const Opening::Status ended = opening->prepareFile())
                return *ended;
            const Opened opened = opening->opened(); // and its lock
            if (!opened.lossesMessage.isEmpty())
                Console::complain(opened.lossesMessage);
            notDone = LogbookWriting::write(invocation.folder, {*catalogue, measured}, {meant, known},
                                            Text::tr("Nothing was imported"));
        }
        if (!notDone.isEmpty()) {
            Console::complain(notDone);
            return EXIT_FAILURE;
        }
    }
    Console::Output output;
    if (invocation.has(u"json"_s))
        output.write(importJson(logs, plan));
    else
        writeTable(logs, plan, output);
    const int status = output.finish();
    return allGood ? status : EXIT_FAILURE;
}

} // namespace

int Run::import(const Invocation &invocation)
{
    if (invocation.has(u"dry-run"_s))
        return run(invocation, nullptr);
    if (const QString problem = CommandData::folderProblem(invocation); !problem.isEmpty()) {
        Console::complain(problem); // the lock would make the folder
        return EXIT_FAILURE;
    }
    UnattendedQuestions nobody;
    Opening opening(invocation.folder, nobody);
    if (const Opening::Status ended = opening.takeFolder(invocation.isDemo ? Demo::Make : Demo::None, false))
        return *ended;
    return run(invocation, &opening);
}

} // namespace Host
