// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QDateTime>
#include <QJsonValue>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

namespace Host {

/** A value that both sides of a merge have, each another one. */
struct MergeConflict
{
    enum Record { OfBattery, OfModel, OfDischarge, OfFlight };

    Record record = OfBattery;
    QString name;      ///< of the battery or the model, also where it is a discharge or a flight of it
    QDateTime time;    ///< of the discharge or the flight
    QString field;     ///< as an export to JSON calls it
    QJsonValue ours;   ///< as an export to JSON writes it
    QJsonValue theirs; ///< likewise

    bool operator==(const MergeConflict &other) const
    {
        return record == other.record && name == other.name && time == other.time && field == other.field &&
               ours == other.ours && theirs == other.theirs;
    }
};

/** How many of each kind; the entries of a battery or a model are counted with it. */
struct MergeCounts
{
    int batteries = 0;
    int models = 0;
    int locations = 0;
    int discharges = 0;
    int flights = 0;

    int sum() const { return batteries + models + locations + discharges + flights; }
};

/** What came of two versions of one logbook. */
struct Merge
{
    Catalogue catalogue;
    MergeCounts added;              ///< that ours lacks
    MergeCounts removed;            ///< that ours has
    int changed = 0;                ///< values of what stays, those chosen in a conflict included
    QList<MergeConflict> conflicts; ///< in the order of the file; the same for each choice
};

/**
 * Merges two versions of a logbook by what each of them has changed since their common ancestor. It asks no
 * clock and no disk.
 *
 * Records of equal name are told apart by their order in the file; discharges of a battery and flights of a
 * model by their time, those without a time by everything that they hold. What both still have, and one has
 * more often, stays as often as there. Ours comes first and keeps its order, what only theirs has follows.
 *
 * What one side alone has changed wins. What one side has removed goes where the other has left it alone, and
 * stays where that has changed it. A counter (a battery's cycles, a model's flights) takes the increments of
 * both where each has something else, too, that the other lacks; otherwise it is that of the side which has
 * everything of the other, so that merging twice counts nothing twice. That is asked of the record, and of
 * the whole logbook where the record holds nothing else that is new.
 *
 * Without an ancestor nothing is removed, and values that differ are conflicts.
 *
 * @param chosen the conflicts, by their place in the list, in which theirs is taken; in all others it is
 * ours.
 */
Merge merge(const Catalogue &ours, const Catalogue &theirs, const std::optional<Catalogue> &ancestor,
            const QSet<qsizetype> &chosen = {});

} // namespace Host
