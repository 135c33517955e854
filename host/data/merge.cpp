// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/merge.h"

#include "host/data/mergekeys.h"
#include "host/data/mergepairs.h"
#include "host/data/mergevalues.h"

namespace Host {
namespace {

/** How a kind of record is counted, told apart and merged. */
template <typename Record, typename Entry>
struct Kind
{
    int MergeCounts::*count;
    int MergeCounts::*entryCount;
    QList<Entry> Record::*entries;
    QList<QString> (*keysOf)(const QList<Record> &records);
};

constexpr Kind<Battery, Discharge> Batteries{&MergeCounts::batteries, &MergeCounts::discharges,
                                             &Battery::discharges, MergeKeys::ofBatteries};
constexpr Kind<Model, Flight> Models{&MergeCounts::models, &MergeCounts::flights, &Model::log,
                                     MergeKeys::ofModels};

template <typename Record, typename Entry>
void countRecord(MergeCounts &counts, const Kind<Record, Entry> &kind, const Record &record)
{
    ++(counts.*kind.count);
    counts.*kind.entryCount += static_cast<int>((record.*kind.entries).size());
}

template <typename Record, typename Entry, typename MergeRecord>
QList<Record> mergeRecords(MergeValues &values, const Kind<Record, Entry> &kind, const QList<Record> &ours,
                           const QList<Record> &theirs, const QList<Record> &ancestor,
                           const MergeRecord &mergeRecord)
{
    const MergePairs::List<Record> list = MergePairs::pair(ours, theirs, ancestor, kind.keysOf);
    for (const Record *record : list.removed)
        countRecord(values.result.removed, kind, *record);
    QList<Record> merged;
    merged.reserve(list.kept.size());
    for (const MergePairs::Paired<Record> &paired : list.kept) {
        merged.append(paired.ours ? *paired.ours : *paired.theirs);
        if (!paired.ours)
            countRecord(values.result.added, kind, *paired.theirs);
        else if (paired.theirs)
            mergeRecord(values, merged.last(), *paired.theirs, paired.ancestor);
    }
    return merged;
}

QStringList mergeLocations(MergeValues &values, const QStringList &ours, const QStringList &theirs,
                           const QStringList &ancestor)
{
    const MergePairs::List<QString> list =
        MergePairs::pair<QString>(ours, theirs, ancestor, MergeKeys::ofTexts);
    values.result.removed.locations += static_cast<int>(list.removed.size());
    QStringList merged;
    for (const MergePairs::Paired<QString> &paired : list.kept) {
        values.result.added.locations += paired.ours ? 0 : 1;
        merged.append(paired.ours ? *paired.ours : *paired.theirs);
    }
    return merged;
}

template <typename MergeBattery, typename MergeModel>
void mergeAll(MergeValues &values, const Catalogue &ours, const Catalogue &theirs, const Catalogue &ancestor,
              const MergeBattery &mergeBattery, const MergeModel &mergeModel)
{
    Catalogue &merged = values.result.catalogue;
    merged.locations = mergeLocations(values, ours.locations, theirs.locations, ancestor.locations);
    merged.batteries =
        mergeRecords(values, Batteries, ours.batteries, theirs.batteries, ancestor.batteries, mergeBattery);
    merged.models = mergeRecords(values, Models, ours.models, theirs.models, ancestor.models, mergeModel);
}

/** Whether one side has anything besides the counters that the other one lacks. */
bool hasNews(const Catalogue &side, const Catalogue &other, const Catalogue &ancestor)
{
    MergeValues values;
    mergeAll(values, other, side, ancestor, MergeRecords::batteryContents, MergeRecords::modelContents);
    return values.hasTaken();
}

} // namespace

Merge merge(const Catalogue &ours, const Catalogue &theirs, const std::optional<Catalogue> &ancestor,
            const QSet<qsizetype> &chosen)
{
    const Catalogue before = ancestor.value_or(Catalogue());
    const MergeValues::News news{hasNews(ours, theirs, before), hasNews(theirs, ours, before)};
    MergeValues values(chosen);
    mergeAll(
        values, ours, theirs, before,
        [&news](MergeValues &all, Battery &battery, const Battery &other, const Battery *old) {
            MergeRecords::battery(all, battery, other, old, news);
        },
        [&news](MergeValues &all, Model &model, const Model &other, const Model *old) {
            MergeRecords::model(all, model, other, old, news);
        });
    return values.result;
}

} // namespace Host
