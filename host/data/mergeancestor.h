// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

namespace Host {

/**
 * Finds the common ancestor of two versions of a logbook among earlier versions, by what they hold: a copy
 * that a synchroniser leaves tells nothing of its history, and the folder of the copies may be shared, so
 * that it holds versions of both sides.
 *
 * A wrong ancestor would make it look as if one side had removed what it never had. So a version is taken
 * only where nothing speaks against it: each record or entry of it that a side lacks must have been there
 * when that side went its own way. It was where the side holds something of this version that came later than
 * that, by the versions in which both first stand. Of what stands in the oldest version already, nobody knows
 * when it came: there the side must hold something behind it in the same list, to which everything is
 * appended, or, where all lists are in order of time, something that happened later.
 *
 * Of those it is the one that has most in common with both; of equal ones the oldest. Both sides may have
 * entered the same by themselves, which then looks as if it had come from here: a newer version is only
 * preferred where it brings more than twice as much that both have as it brings of what one of them lacks. A
 * version that equals one of the two is none, unless it is known to have been merged: then it is the
 * ancestor.
 */
class AncestorSearch final
{
public:
    AncestorSearch(const Catalogue &ours, const Catalogue &theirs);

    /** Looks at the next version, the oldest first. @param isMerged it was merged into ours before. */
    void add(const Catalogue &version, bool isMerged);

    /**
     * The ancestor, if there is one. Where it is an earlier one, some of the entries that both have came
     * later; what its counters counted for these is counted in it.
     */
    std::optional<Catalogue> best() const;

private:
    struct Element
    {
        QString key;
        qint64 moment; ///< when it happened; of a record its last entry
    };
    struct List
    {
        QString owner; ///< the record that it belongs to; empty for the records themselves
        QList<Element> elements;
    };
    struct Facts
    {
        QList<List> lists;
        QSet<QString> elements;
        QSet<QString> values;
        bool isInOrderOfTime = true;
    };

    static Facts factsOf(const Catalogue &catalogue);
    template <typename Record, typename Entry>
    static void addRecords(Facts &facts, const QString &kind, const QList<Record> &records,
                           const QList<QString> &keys, QList<Entry> Record::*entries,
                           QList<QString> (*keysOf)(const QList<Entry> &));
    bool descends(const Facts &side, const Facts &version) const;
    bool isBetter(const Facts &version) const;

    const Catalogue m_ours;
    const Catalogue m_theirs;
    const Facts m_oursFacts;
    const Facts m_theirsFacts;
    QHash<QString, int> m_arrivals; ///< the version in which an element first stands
    int m_versions = 0;
    std::optional<Catalogue> m_best;
    Facts m_bestFacts;
    bool m_isSettled = false;
};

} // namespace Host
