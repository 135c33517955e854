// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/merge.h"

#include <QJsonValue>
#include <QSet>
#include <QString>

namespace Host {

/** Decides value by value, and keeps account of what comes of it. */
class MergeValues final
{
public:
    /** What a value belongs to. */
    struct Place
    {
        MergeConflict::Record record = MergeConflict::OfBattery;
        QString name;
        QDateTime time = {};
    };

    /** Whether each side has something besides the counters that the other lacks. */
    struct News
    {
        bool ours = false;
        bool theirs = false;
    };

    explicit MergeValues(const QSet<qsizetype> &chosen = {})
        : m_chosen(chosen)
    {
    }

    /** The account of it; the catalogue is the caller's. */
    Merge result;

    /** Whether anything of theirs was taken, conflicts apart. */
    bool hasTaken() const { return result.changed + result.added.sum() + result.removed.sum() > 0; }

    /** @param ancestor null where there is none. @param json the value as an export writes it. */
    template <typename Value, typename Json>
    void decide(Value &ours, const Value &theirs, const Value *ancestor, const Place &place,
                const QString &field, const Json &json)
    {
        if (ours == theirs || (ancestor && theirs == *ancestor))
            return;
        if (ancestor && ours == *ancestor) {
            take(ours, theirs);
            return;
        }
        const bool isChosen = m_chosen.contains(result.conflicts.size());
        result.conflicts.append(
            {place.record, place.name, place.time, field, QJsonValue(json(ours)), QJsonValue(json(theirs))});
        if (isChosen)
            take(ours, theirs);
    }

    void count(unsigned int &ours, unsigned int theirs, const unsigned int *ancestor, const News &news,
               const Place &place, const QString &field);

    template <typename Value>
    void take(Value &ours, const Value &value)
    {
        if (ours == value)
            return;
        ours = value;
        ++result.changed;
    }

private:
    const QSet<qsizetype> m_chosen;
};

/** Merges what the lists of a logbook hold. The record of ours becomes what comes of it. */
namespace MergeRecords {

void battery(MergeValues &values, Battery &ours, const Battery &theirs, const Battery *ancestor,
             const MergeValues::News &logbook);
void model(MergeValues &values, Model &ours, const Model &theirs, const Model *ancestor,
           const MergeValues::News &logbook);

/** The same without the counters. */
void batteryContents(MergeValues &values, Battery &ours, const Battery &theirs, const Battery *ancestor);
void modelContents(MergeValues &values, Model &ours, const Model &theirs, const Model *ancestor);

} // namespace MergeRecords
} // namespace Host
