// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/mergevalues.h"

#include "host/data/mergekeys.h"
#include "host/data/mergepairs.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr double Tenths = 10;
constexpr double Hundredths = 100;

QJsonValue number(unsigned int value)
{
    return static_cast<qint64>(value);
}

QJsonValue tenths(unsigned int value)
{
    return value / Tenths;
}

QJsonValue hundredths(unsigned int value)
{
    return value / Hundredths;
}

QJsonValue time(const QDateTime &time)
{
    return time.isValid() ? QJsonValue(time.toString(u"yyyy-MM-dd'T'HH:mm:ss"_s)) : QJsonValue();
}

QJsonValue date(QDate date)
{
    return date.isValid() ? QJsonValue(date.toString(u"yyyy-MM-dd"_s)) : QJsonValue();
}

QJsonValue seconds(QTime duration)
{
    return duration.isValid() ? QJsonValue(QTime(0, 0).secsTo(duration)) : QJsonValue();
}

void mergeDischarge(MergeValues &values, Discharge &ours, const Discharge &theirs, const Discharge *ancestor,
                    const QString &battery)
{
    const MergeValues::Place place{MergeConflict::OfDischarge, battery, ours.time};
    values.decide(ours.discharged, theirs.discharged, ancestor ? &ancestor->discharged : nullptr, place,
                  u"discharged_mAh"_s, number);
    values.decide(ours.current, theirs.current, ancestor ? &ancestor->current : nullptr, place,
                  u"max_current_A"_s, hundredths);
}

void mergeFlight(MergeValues &values, Flight &ours, const Flight &theirs, const Flight *ancestor,
                 const QString &model)
{
    const MergeValues::Place place{MergeConflict::OfFlight, model, ours.time};
    values.decide(ours.duration, theirs.duration, ancestor ? &ancestor->duration : nullptr, place,
                  u"duration_s"_s, seconds);
    values.decide(ours.location, theirs.location, ancestor ? &ancestor->location : nullptr, place,
                  u"location"_s, [](const QString &text) { return QJsonValue(text); });
    values.decide(ours.temperature, theirs.temperature, ancestor ? &ancestor->temperature : nullptr, place,
                  u"temperature_C"_s, [](int value) { return QJsonValue(value); });
    values.decide(ours.notes, theirs.notes, ancestor ? &ancestor->notes : nullptr, place, u"notes"_s,
                  [](const QString &text) { return QJsonValue(text); });
}

/** Merges the discharges of a battery or the flights of a model. */
template <typename Entry, typename KeysOf, typename MergeEntry>
void mergeEntries(MergeValues &values, QList<Entry> &ours, const QList<Entry> &theirs,
                  const QList<Entry> &ancestor, int MergeCounts::*count, const KeysOf &keysOf,
                  const MergeEntry &mergeEntry)
{
    const MergePairs::List<Entry> list = MergePairs::pair(ours, theirs, ancestor, keysOf);
    QList<Entry> merged;
    merged.reserve(list.kept.size());
    for (const MergePairs::Paired<Entry> &paired : list.kept) {
        merged.append(paired.ours ? *paired.ours : *paired.theirs);
        if (!paired.ours)
            ++(values.result.added.*count);
        else if (paired.theirs)
            mergeEntry(merged.last(), *paired.theirs, paired.ancestor);
    }
    values.result.removed.*count += static_cast<int>(list.removed.size());
    ours = merged;
}

/** Each of the names by itself: the batteries of a model are a set. */
void mergeNames(MergeValues &values, QStringList &ours, const QStringList &theirs,
                const QStringList &ancestor)
{
    const MergePairs::List<QString> list =
        MergePairs::pair<QString>(ours, theirs, ancestor, MergeKeys::ofTexts);
    QStringList merged;
    for (const MergePairs::Paired<QString> &paired : list.kept)
        merged.append(paired.ours ? *paired.ours : *paired.theirs);
    values.take(ours, merged);
}

/** What is new on each side of a record, or in the whole logbook where the record holds nothing new. */
template <typename Record, typename MergeContents>
MergeValues::News newsOf(bool isTheirs, const Record &ours, const Record &theirs, const Record *ancestor,
                         const MergeValues::News &logbook, const MergeContents &mergeContents)
{
    MergeValues mirrored;
    Record copy = theirs;
    mergeContents(mirrored, copy, ours, ancestor);
    const bool isOurs = mirrored.hasTaken();
    return isOurs || isTheirs ? MergeValues::News{isOurs, isTheirs} : logbook;
}

} // namespace

void MergeValues::count(unsigned int &ours, unsigned int theirs, const unsigned int *ancestor,
                        const News &news, const Place &place, const QString &field)
{
    constexpr qint64 Most = std::numeric_limits<unsigned int>::max();
    if (ancestor && news.ours && news.theirs) {
        const qint64 both = qint64(ours) + theirs - *ancestor;
        take(ours, static_cast<unsigned int>(qBound(qint64(0), both, Most)));
    } else if (news.theirs && !news.ours) {
        take(ours, theirs);
    } else if (!news.ours || news.theirs) {
        decide(ours, theirs, ancestor, place, field, number);
    }
}

void MergeRecords::batteryContents(MergeValues &values, Battery &ours, const Battery &theirs,
                                   const Battery *ancestor)
{
    const MergeValues::Place place{MergeConflict::OfBattery, ours.name};
    values.decide(ours.capacity, theirs.capacity, ancestor ? &ancestor->capacity : nullptr, place,
                  u"capacity_mAh"_s, number);
    values.decide(ours.rating, theirs.rating, ancestor ? &ancestor->rating : nullptr, place,
                  u"discharge_rating_C"_s, number);
    values.decide(ours.chargeRate, theirs.chargeRate, ancestor ? &ancestor->chargeRate : nullptr, place,
                  u"charge_rating_C"_s, tenths);
    values.decide(ours.purchase, theirs.purchase, ancestor ? &ancestor->purchase : nullptr, place,
                  u"purchased"_s, date);
    values.decide(ours.charged, theirs.charged, ancestor ? &ancestor->charged : nullptr, place, u"charged"_s,
                  [](bool value) { return QJsonValue(value); });
    values.decide(ours.lastUse, theirs.lastUse, ancestor ? &ancestor->lastUse : nullptr, place, u"last_use"_s,
                  time);
    mergeEntries(values, ours.discharges, theirs.discharges,
                 ancestor ? ancestor->discharges : QList<Discharge>(), &MergeCounts::discharges,
                 MergeKeys::ofDischarges,
                 [&](Discharge &discharge, const Discharge &other, const Discharge *before) {
                     mergeDischarge(values, discharge, other, before, ours.name);
                 });
}

void MergeRecords::modelContents(MergeValues &values, Model &ours, const Model &theirs, const Model *ancestor)
{
    const MergeValues::Place place{MergeConflict::OfModel, ours.name};
    const auto text = [](const QString &value) { return QJsonValue(value); };
    values.decide(ours.type, theirs.type, ancestor ? &ancestor->type : nullptr, place, u"type"_s, text);
    values.decide(ours.weight, theirs.weight, ancestor ? &ancestor->weight : nullptr, place, u"weight"_s,
                  number);
    values.decide(ours.size, theirs.size, ancestor ? &ancestor->size : nullptr, place, u"size"_s, number);
    values.decide(ours.purchase, theirs.purchase, ancestor ? &ancestor->purchase : nullptr, place,
                  u"purchased"_s, date);
    values.decide(ours.notes, theirs.notes, ancestor ? &ancestor->notes : nullptr, place, u"notes"_s, text);
    values.decide(ours.lastUpdate, theirs.lastUpdate, ancestor ? &ancestor->lastUpdate : nullptr, place,
                  u"last_update"_s, time);
    mergeNames(values, ours.batteries, theirs.batteries, ancestor ? ancestor->batteries : QStringList());
    mergeEntries(values, ours.log, theirs.log, ancestor ? ancestor->log : QList<Flight>(),
                 &MergeCounts::flights, MergeKeys::ofFlights,
                 [&](Flight &flight, const Flight &other, const Flight *before) {
                     mergeFlight(values, flight, other, before, ours.name);
                 });
}

void MergeRecords::battery(MergeValues &values, Battery &ours, const Battery &theirs, const Battery *ancestor,
                           const MergeValues::News &logbook)
{
    MergeValues unchosen; // what the user chooses in a conflict counts nothing
    Battery copy = ours;
    batteryContents(unchosen, copy, theirs, ancestor);
    const MergeValues::News news =
        newsOf(unchosen.hasTaken(), ours, theirs, ancestor, logbook, batteryContents);
    batteryContents(values, ours, theirs, ancestor);
    values.count(ours.cycles, theirs.cycles, ancestor ? &ancestor->cycles : nullptr, news,
                 {MergeConflict::OfBattery, ours.name}, u"cycles"_s);
}

void MergeRecords::model(MergeValues &values, Model &ours, const Model &theirs, const Model *ancestor,
                         const MergeValues::News &logbook)
{
    MergeValues unchosen;
    Model copy = ours;
    modelContents(unchosen, copy, theirs, ancestor);
    const MergeValues::News news =
        newsOf(unchosen.hasTaken(), ours, theirs, ancestor, logbook, modelContents);
    modelContents(values, ours, theirs, ancestor);
    values.count(ours.flights, theirs.flights, ancestor ? &ancestor->flights : nullptr, news,
                 {MergeConflict::OfModel, ours.name}, u"flights"_s);
}

} // namespace Host
