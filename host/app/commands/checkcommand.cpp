// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/commanddata.h"
#include "host/app/commands/invocation.h"
#include "host/app/commands/runs.h"
#include "host/app/console.h"
#include "host/data/findings.h"
#include "host/demo/demo.h"
#include "host/safety/plaintext.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Check)
};

FileState stateOf(const Invocation &invocation)
{
    const FileState state =
        CommandData::settled([&invocation] { return Recovery::examine(invocation.folder); });
    return state.kind == FileState::New && invocation.isDemo
               ? FileState{FileState::Whole, {}, sampleLogbook()}
               : state;
}

/** The line of what makes a file not whole, where the problem does not name it. */
QString placeOf(const FileState &state)
{
    const qsizetype at = state.mayBeLoaded ? state.bytes.indexOf('\0') : state.bytes.indexOf("<!DOCTYPE");
    return at < 0 ? QString() : u' ' + Text::tr("in line %1").arg(state.bytes.left(at).count('\n') + 1);
}

Findings findingsIn(const FileState &state)
{
    switch (state.kind) {
    case FileState::New:
        return {};
    case FileState::Whole:
        return findingsOf(state.bytes);
    default:
        return {
            {{Finding::Broken, Text::tr("the file is not whole: %1%2").arg(state.problem, placeOf(state))}},
            {}};
    }
}

QString label(Finding::Kind kind)
{
    switch (kind) {
    case Finding::Broken:
        return Text::tr("broken");
    case Finding::Unread:
        return Text::tr("unread");
    case Finding::Dropped:
        return Text::tr("dropped");
    case Finding::FlightWithoutDischarge:
        return Text::tr("flight without discharge");
    case Finding::DischargeWithoutFlight:
        return Text::tr("discharge without flight");
    case Finding::EqualNames:
        return Text::tr("equal names");
    }
    return QString();
}

QByteArray lines(const QList<Finding> &findings)
{
    QByteArray lines;
    for (const Finding &finding : findings)
        lines += plainLine(Text::tr("%1: %2").arg(label(finding.kind), finding.what)).toUtf8() + '\n';
    return lines;
}

QByteArray json(const QString &path, bool isWhole, const QList<Finding> &findings)
{
    QJsonArray list;
    for (const Finding &finding : findings)
        list.append(QJsonObject{{u"kind"_s, findingKey(finding.kind)}, {u"what"_s, finding.what}});
    return QJsonDocument(QJsonObject{{u"file"_s, path}, {u"whole"_s, isWhole}, {u"findings"_s, list}})
        .toJson();
}

int refuse(const QString &path, const QString &problem)
{
    Console::complain(Text::tr("“%1” cannot be read: %2.").arg(path, problem));
    return EXIT_FAILURE;
}

} // namespace

int Run::check(const Invocation &invocation)
{
    const bool isNamed = !invocation.arguments.isEmpty();
    if (const QString problem = isNamed ? QString() : CommandData::folderProblem(invocation);
        !problem.isEmpty()) {
        Console::complain(problem);
        return EXIT_FAILURE;
    }
    const QString path = isNamed ? invocation.arguments.first() : invocation.folder.dataFile();
    const FileState state = isNamed ? CommandData::stateOf(path) : stateOf(invocation);
    if (state.kind == FileState::Unreadable)
        return refuse(path, state.problem);
    const Findings findings = findingsIn(state);
    if (!findings.problem.isEmpty())
        return refuse(path, findings.problem);
    const bool isWhole = state.kind == FileState::New || state.kind == FileState::Whole;
    Console::Output output;
    output.write(invocation.has(u"json"_s) ? json(path, isWhole, findings.list) : lines(findings.list));
    const int status = output.finish();
    return findings.list.isEmpty() ? status : EXIT_FAILURE;
}

} // namespace Host
