// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <algorithm>
#include <array>
#include <utility>

/** Which entries of three versions of a list are one and the same. */
namespace Host::MergePairs {

/** An entry as each version has it; null where one has it not. */
template <typename Entry>
struct Paired
{
    const Entry *ours = nullptr;
    const Entry *theirs = nullptr;
    const Entry *ancestor = nullptr;
};

template <typename Entry>
struct List
{
    QList<Paired<Entry>> kept;    ///< in the order of what comes of them
    QList<const Entry *> removed; ///< of ours, in their order
};

/** The entries with one key. */
template <typename Entry>
class Group
{
public:
    QList<const Entry *> ours;
    QList<const Entry *> theirs;
    QList<const Entry *> ancestor;

    /** Those that are alike first, then the changed ones with those that stayed as they were, each in order.
     */
    void pair()
    {
        const bool isGoneHere = ours.isEmpty();
        const bool isGoneThere = theirs.isEmpty();
        for (const Entry *entry : std::as_const(ours)) {
            if (const Entry *same = takeEqual(theirs, *entry))
                m_pairs.insert(entry, {entry, same, takeEqual(ancestor, *entry)});
        }
        QList<const Entry *> mine;
        for (const Entry *entry : std::as_const(ours)) {
            if (!m_pairs.contains(entry))
                mine.append(entry);
        }
        auto [oldHere, newHere] = split(mine);
        auto [oldThere, newThere] = split(theirs);
        join(oldHere, newThere, oldHere);
        join(newHere, oldThere, oldThere);
        while (!newHere.isEmpty() && !newThere.isEmpty()) {
            const Entry *entry = newHere.takeFirst();
            m_pairs.insert(
                entry, {entry, newThere.takeFirst(), ancestor.isEmpty() ? nullptr : ancestor.takeFirst()});
        }
        for (const Entry *entry : std::as_const(newHere))
            m_pairs.insert(entry, {entry, nullptr, nullptr});
        if (!isGoneThere || !newHere.isEmpty()) { // what is gone there is gone as a whole, or not at all
            for (const Entry *entry : std::as_const(oldHere))
                m_pairs.insert(entry, {entry, nullptr, entry});
        }
        m_added = newThere;
        if (!isGoneHere || !newThere.isEmpty())
            m_added += oldThere;
    }

    /** What comes of an entry of ours; null where it goes. */
    const Paired<Entry> *pairOf(const Entry *entry) const
    {
        const auto found = m_pairs.constFind(entry);
        return found == m_pairs.constEnd() ? nullptr : &*found;
    }
    bool isAdded(const Entry *entry) const { return m_added.contains(entry); }

private:
    static const Entry *takeEqual(QList<const Entry *> &entries, const Entry &wanted)
    {
        const auto found = std::find_if(entries.cbegin(), entries.cend(),
                                        [&wanted](const Entry *entry) { return *entry == wanted; });
        return found == entries.cend() ? nullptr : entries.takeAt(found - entries.cbegin());
    }

    /** Those that are as the ancestor has them, and the others. */
    std::pair<QList<const Entry *>, QList<const Entry *>> split(const QList<const Entry *> &entries)
    {
        std::pair<QList<const Entry *>, QList<const Entry *>> parts;
        for (const Entry *entry : entries)
            (takeEqual(ancestor, *entry) ? parts.first : parts.second).append(entry);
        return parts;
    }

    void join(QList<const Entry *> &here, QList<const Entry *> &there, const QList<const Entry *> &unchanged)
    {
        while (!here.isEmpty() && !there.isEmpty()) {
            const Entry *before = unchanged.first();
            const Entry *entry = here.takeFirst();
            m_pairs.insert(entry, {entry, there.takeFirst(), before});
        }
    }

    QHash<const Entry *, Paired<Entry>> m_pairs;
    QList<const Entry *> m_added;
};

/** Pairs the entries of three lists. @param keysOf gives the key of each entry of a list, in its order. */
template <typename Entry, typename KeysOf>
List<Entry> pair(const QList<Entry> &ours, const QList<Entry> &theirs, const QList<Entry> &ancestor,
                 const KeysOf &keysOf)
{
    using Members = QList<const Entry *> Group<Entry>::*;
    QHash<QString, Group<Entry>> groups;
    const auto sort = [&](const QList<Entry> &entries, const QList<QString> &keys, Members members) {
        for (qsizetype i = 0; i < entries.size(); ++i)
            (groups[keys.at(i)].*members).append(&entries.at(i));
    };
    const QList<QString> keysHere = keysOf(ours);
    const QList<QString> keysThere = keysOf(theirs);
    sort(ours, keysHere, &Group<Entry>::ours);
    sort(theirs, keysThere, &Group<Entry>::theirs);
    sort(ancestor, keysOf(ancestor), &Group<Entry>::ancestor);
    for (Group<Entry> &group : groups)
        group.pair();
    List<Entry> list;
    for (qsizetype i = 0; i < ours.size(); ++i) {
        const Group<Entry> &group = *groups.constFind(keysHere.at(i));
        if (const Paired<Entry> *paired = group.pairOf(&ours.at(i)))
            list.kept.append(*paired);
        else
            list.removed.append(&ours.at(i));
    }
    for (qsizetype i = 0; i < theirs.size(); ++i) {
        if (groups.constFind(keysThere.at(i))->isAdded(&theirs.at(i)))
            list.kept.append({nullptr, &theirs.at(i), nullptr});
    }
    return list;
}

} // namespace Host::MergePairs
