// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/commanddata.h"
#include "host/app/commands/invocation.h"
#include "host/app/commands/logbookwriting.h"
#include "host/app/commands/runs.h"
#include "host/app/console.h"
#include "host/app/opening.h"
#include "host/data/cataloguefile.h"
#include "host/data/merge.h"
#include "host/data/mergemeasured.h"
#include "host/safety/measuredstore.h"
#include "host/safety/mergesources.h"
#include "host/safety/plaintext.h"
#include "host/window/questions.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MergeCommand)
};

/** Another version of the logbook. */
struct Version
{
    Catalogue catalogue;
    QByteArray document;
};

int refuse(const QString &problem)
{
    Console::complain(problem);
    return EXIT_FAILURE;
}

std::optional<Version> read(const QString &path)
{
    const FileState state = CommandData::stateOf(path);
    QString problem = state.problem;
    if (state.kind == FileState::Whole) {
        const CatalogueFile::Loaded loaded = CatalogueFile::load(state.bytes);
        if (loaded.problem.isEmpty())
            return Version{loaded.catalogue, state.bytes};
        problem = loaded.problem;
    }
    Console::complain(Text::tr("“%1” cannot be read: %2. Nothing was merged.").arg(plainLine(path), problem));
    return std::nullopt;
}

QString wordOf(MergeConflict::Record record)
{
    switch (record) {
    case MergeConflict::OfBattery:
        return u"battery"_s;
    case MergeConflict::OfModel:
        return u"model"_s;
    case MergeConflict::OfDischarge:
        return u"discharge"_s;
    default:
        return u"flight"_s;
    }
}

QJsonObject json(const MergeCounts &counts)
{
    return {{u"batteries"_s, counts.batteries},
            {u"models"_s, counts.models},
            {u"locations"_s, counts.locations},
            {u"discharges"_s, counts.discharges},
            {u"flights"_s, counts.flights}};
}

QByteArray json(const Merge &merge)
{
    QJsonArray conflicts;
    for (const MergeConflict &conflict : merge.conflicts) {
        conflicts.append(QJsonObject{{u"record"_s, wordOf(conflict.record)},
                                     {u"name"_s, conflict.name},
                                     {u"field"_s, conflict.field},
                                     {u"ours"_s, conflict.ours},
                                     {u"theirs"_s, conflict.theirs}});
    }
    return QJsonDocument(QJsonObject{{u"changed"_s, merge.changed},
                                     {u"added"_s, json(merge.added)},
                                     {u"removed"_s, json(merge.removed)},
                                     {u"conflicts"_s, conflicts}})
        .toJson();
}

QString listed(const MergeCounts &counts)
{
    return Text::tr("batteries %1, models %2, locations %3, discharges %4, flights %5")
        .arg(counts.batteries)
        .arg(counts.models)
        .arg(counts.locations)
        .arg(counts.discharges)
        .arg(counts.flights);
}

QByteArray lines(const Merge &merge, bool isMerged)
{
    if (!isMerged)
        return Text::tr("There is nothing to merge.").toUtf8() + '\n';
    return (Text::tr("Added: %1").arg(listed(merge.added)) + u'\n' +
            Text::tr("Removed: %1").arg(listed(merge.removed)) + u'\n' +
            Text::tr("Values changed: %1").arg(merge.changed) + u'\n')
        .toUtf8();
}

/** A value as JSON spells it. */
QString shown(const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

void complainOf(const QList<MergeConflict> &conflicts)
{
    for (const MergeConflict &conflict : conflicts) {
        const QString time =
            conflict.time.isValid() ? conflict.time.toString(u" yyyy-MM-dd HH:mm:ss"_s) : QString();
        Console::complain(Text::tr("Both have changed “%1” of the %2 “%3”%4: %5 stays, and %6 is not taken.")
                              .arg(conflict.field, wordOf(conflict.record), conflict.name, time,
                                   shown(conflict.ours), shown(conflict.theirs)));
    }
}

/** Writes what came of the merge. @return the exit status where that ends the command. */
std::optional<int> write(const Invocation &invocation, Opening &opening, const LogbookWriting::State &present,
                         const LogbookWriting::State &merged, const Version &theirs)
{
    const QDateTime when = QDateTime::currentDateTimeUtc();
    if (const Opening::Status ended = opening.prepareFile())
        return *ended;
    const Opened opened = opening.opened(); // and its lock
    if (!opened.lossesMessage.isEmpty())
        Console::complain(opened.lossesMessage);
    const QString problem =
        LogbookWriting::write(invocation.folder, present, merged, Text::tr("Nothing was merged"));
    if (!problem.isEmpty())
        return refuse(problem);
    const QString notKept = MergeSources::keepMerged(invocation.folder, theirs.document, when);
    if (!notKept.isEmpty())
        Console::complain(Text::tr("The other version cannot be kept in “%1”: %2.")
                              .arg(invocation.folder.backups().path(), notKept));
    return std::nullopt;
}

int run(const Invocation &invocation, Opening *opening)
{
    const std::optional<Catalogue> ours = CommandData::read(invocation);
    if (!ours)
        return EXIT_FAILURE;
    const QString path = invocation.arguments.first();
    const std::optional<Version> theirs = read(path);
    if (!theirs)
        return EXIT_FAILURE;
    std::optional<Catalogue> ancestor;
    if (invocation.has(u"base"_s)) {
        const std::optional<Version> base = read(invocation.value(u"base"_s));
        if (!base)
            return EXIT_FAILURE;
        ancestor = base->catalogue;
    } else {
        ancestor = MergeSources::ancestor(invocation.folder, *ours, theirs->catalogue);
    }
    const Merge merged = merge(*ours, theirs->catalogue, ancestor);
    const Measured before = MeasuredStore::load(invocation.folder).measured;
    const Measured known = mergeMeasured(before, *ours, MergeSources::measuredOf(invocation.folder, path),
                                         theirs->catalogue, merged.catalogue);
    const bool isMerged =
        merged.catalogue != *ours || MeasuredFile::save(known) != MeasuredFile::save(before);
    if (opening && isMerged) {
        const std::optional<int> ended =
            write(invocation, *opening, {*ours, before}, {merged.catalogue, known}, *theirs);
        if (ended)
            return *ended;
    }
    complainOf(merged.conflicts);
    Console::Output output;
    output.write(invocation.has(u"json"_s) ? json(merged) : lines(merged, isMerged));
    return output.finish();
}

} // namespace

int Run::merge(const Invocation &invocation)
{
    if (invocation.has(u"dry-run"_s))
        return run(invocation, nullptr);
    if (const QString problem = CommandData::folderProblem(invocation); !problem.isEmpty())
        return refuse(problem); // the lock would make the folder
    UnattendedQuestions nobody;
    Opening opening(invocation.folder, nobody);
    if (const Opening::Status ended = opening.takeFolder(invocation.isDemo ? Demo::Make : Demo::None, false))
        return *ended;
    return run(invocation, &opening);
}

} // namespace Host
