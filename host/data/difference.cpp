// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/difference.h"

#include "host/data/pairing.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace Host {
namespace {

using Change = DifferentRecord::Change;

template <typename Value>
void compare(RecordKind kind, QList<Entry<Value>> copy, QList<Entry<Value>> now,
             QList<DifferentRecord> &records)
{
    const auto changed = [&](const Entry<Value> &old, const Entry<Value> &present) {
        records.append({kind, Change::Changed, old.place, present.place});
    };
    pairBy(
        copy, now, [](const Entry<Value> &entry) { return hashOf(entry); },
        [](const Entry<Value> &a, const Entry<Value> &b) {
            return a.owner == b.owner && *a.value == *b.value;
        },
        [](const Entry<Value> &, const Entry<Value> &) {});
    const auto hasTime = [](const Entry<Value> &entry, const Entry<Value> &) {
        return entry.value->time.isValid();
    };
    const auto anyOf = [](const Entry<Value> &, const Entry<Value> &) { return true; };
    // Each without a time has a key of its own here: they are none that belong together.
    const auto ownTime = [](const Entry<Value> &entry) {
        return entry.value->time.isValid() ? std::pair(entry.owner, entry.moment())
                                           : std::pair(-1 - entry.owner, qint64(entry.place.entry));
    };
    const auto time = [](const Entry<Value> &entry) {
        return entry.value->time.isValid() ? std::pair(qsizetype(0), entry.moment())
                                           : std::pair(-1 - entry.owner, qint64(entry.place.entry));
    };
    pairBy(copy, now, ownTime, hasTime, changed);
    pairBy(copy, now, time, hasTime, changed); // moved to another model or battery
    pairBy(
        copy, now, [](const Entry<Value> &entry) { return entry.owner; }, anyOf, changed);
    for (const Entry<Value> &entry : std::as_const(copy))
        records.append({kind, Change::More, entry.place, {}});
    for (const Entry<Value> &entry : std::as_const(now))
        records.append({kind, Change::Fewer, {}, entry.place});
}

/** The flights or discharges of all owners. */
template <typename Record, typename Value>
void compareEntries(RecordKind kind, const QList<Record> &copy, const QList<Record> &now,
                    QList<Value> Record::*entries, QList<DifferentRecord> &records)
{
    QList<Entry<Value>> ofCopy;
    QList<Entry<Value>> ofNow;
    static const QList<Value> None;
    qsizetype owner = 0;
    const auto pairs = pairsOf(copy, now);
    for (const auto &[old, present] : pairs)
        collect(old < 0 ? None : copy.at(old).*entries, present < 0 ? None : now.at(present).*entries,
                owner++, {old, present}, ofCopy, ofNow);
    compare(kind, ofCopy, ofNow, records);
}

/** A difference of batteries; nothing but what their discharges and a charge leave is implied. */
void compareBatteries(const Battery &copy, const Battery &now, DifferentRecord record,
                      QList<DifferentRecord> &records)
{
    const bool isOther = copy.name != now.name || copy.capacity != now.capacity ||
                         copy.rating != now.rating || copy.chargeRate != now.chargeRate ||
                         copy.purchase != now.purchase;
    if (!isOther && copy.cycles == now.cycles && copy.charged == now.charged && copy.lastUse == now.lastUse)
        return;
    const bool hasFlown = copy.discharges != now.discharges;
    record.isImplied = !isOther && hasFlown;
    if (!isOther && !hasFlown && copy.cycles == now.cycles && copy.charged != now.charged)
        record.change = copy.charged ? Change::Charged : Change::Discharged;
    records.append(record);
}

QSet<QString> namesOf(const QList<Battery> &batteries)
{
    QSet<QString> names;
    for (const Battery &battery : batteries)
        names.insert(battery.name);
    return names;
}

/** Of a model's batteries those that the logbook has, in the copy and now. */
QStringList lasting(QStringList batteries, const QSet<QString> &inBoth)
{
    batteries.removeIf([&](const QString &name) { return !inBoth.contains(name); });
    return batteries;
}

void compareModels(const Model &copy, const Model &now, const QSet<QString> &inBoth, DifferentRecord record,
                   QList<DifferentRecord> &records)
{
    const bool isOther = copy.name != now.name || copy.type != now.type || copy.weight != now.weight ||
                         copy.size != now.size || copy.purchase != now.purchase || copy.notes != now.notes ||
                         lasting(copy.batteries, inBoth) != lasting(now.batteries, inBoth);
    const bool isElsewhere = copy.batteries != now.batteries;
    if (!isOther && !isElsewhere && copy.flights == now.flights && copy.lastUpdate == now.lastUpdate)
        return;
    record.isImplied = !isOther && (isElsewhere || copy.log != now.log);
    records.append(record);
}

template <typename Record, typename Compare>
void compareRecords(RecordKind kind, const QList<Record> &copy, const QList<Record> &now, Compare compareBoth,
                    QList<DifferentRecord> &records)
{
    const auto pairs = pairsOf(copy, now);
    for (const auto &[old, present] : pairs) {
        DifferentRecord record{kind, Change::Changed, {old, -1}, {present, -1}};
        record.change = old < 0 ? Change::Fewer : present < 0 ? Change::More : Change::Changed;
        if (record.change == Change::Changed)
            compareBoth(copy.at(old), now.at(present), record);
        else
            records.append(record);
    }
}

/** What a discharge says beside a flight at its time, is said by the flight. */
void markImplied(const Catalogue &copy, const Catalogue &now, QList<DifferentRecord> &records)
{
    const auto momentIn = [](const DifferentRecord &record, const Catalogue &catalogue, RecordPlace place) {
        if (!place.isThere())
            return NoMoment;
        return momentOf(record.kind == RecordKind::Flight
                            ? catalogue.models.at(place.record).log.at(place.entry).time
                            : catalogue.batteries.at(place.record).discharges.at(place.entry).time);
    };
    QSet<qint64> flown;
    for (const DifferentRecord &record : std::as_const(records)) {
        if (record.kind == RecordKind::Flight)
            flown << momentIn(record, copy, record.copy) << momentIn(record, now, record.now);
    }
    flown.remove(NoMoment);
    for (DifferentRecord &record : records) {
        if (record.kind == RecordKind::Discharge)
            record.isImplied = flown.contains(momentIn(record, copy, record.copy)) ||
                               flown.contains(momentIn(record, now, record.now));
    }
}

/** Locations are names, and nothing else. */
struct Place
{
    QString name;
};

QList<Place> placesOf(const QStringList &names)
{
    QList<Place> places;
    for (const QString &name : names)
        places.append({name});
    return places;
}

} // namespace

Difference differenceOf(const Catalogue &copy, const Catalogue &now)
{
    Difference difference;
    if (copy == now)
        return difference;
    QList<DifferentRecord> &records = difference.records;
    compareEntries(RecordKind::Flight, copy.models, now.models, &Model::log, records);
    compareEntries(RecordKind::Discharge, copy.batteries, now.batteries, &Battery::discharges, records);
    markImplied(copy, now, records);
    compareRecords(
        RecordKind::Battery, copy.batteries, now.batteries,
        [&](const Battery &old, const Battery &present, const DifferentRecord &record) {
            compareBatteries(old, present, record, records);
        },
        records);
    const QSet<QString> inBoth = namesOf(copy.batteries).intersect(namesOf(now.batteries));
    compareRecords(
        RecordKind::Model, copy.models, now.models,
        [&](const Model &old, const Model &present, const DifferentRecord &record) {
            compareModels(old, present, inBoth, record, records);
        },
        records);
    compareRecords(
        RecordKind::Location, placesOf(copy.locations), placesOf(now.locations),
        [&](const Place &old, const Place &present, const DifferentRecord &record) {
            if (old.name != present.name)
                records.append(record);
        },
        records);
    difference.isReordered = records.isEmpty();
    const bool isAllImplied = std::all_of(records.cbegin(), records.cend(),
                                          [](const DifferentRecord &record) { return record.isImplied; });
    for (DifferentRecord &record : records)
        record.isImplied = record.isImplied && !isAllImplied; // from nothing that is there
    return difference;
}

} // namespace Host
