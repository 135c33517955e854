// SPDX-License-Identifier: GPL-3.0-or-later
// Which records of a copy and of the logbook now are one and the same.
#pragma once

#include "host/data/difference.h"
#include "host/data/moments.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <algorithm>
#include <utility>
#include <vector>

namespace Host {

/** A flight or a discharge that may differ, and whose it is: an owner that both have has one number. */
template <typename Value>
struct Entry
{
    const Value *value;
    qsizetype owner;
    RecordPlace place;

    qint64 moment() const { return momentOf(value->time); }
};

inline size_t hashOf(const Entry<Flight> &entry)
{
    const Flight &flight = *entry.value;
    return qHashMulti(0, entry.owner, entry.moment(), flight.duration, flight.location, flight.temperature,
                      flight.notes);
}

inline size_t hashOf(const Entry<Discharge> &entry)
{
    return qHashMulti(0, entry.owner, entry.moment(), entry.value->discharged, entry.value->current);
}

/** Which of two lists' records are one: by their names, then in their order. */
template <typename Record>
QList<std::pair<qsizetype, qsizetype>> pairsOf(const QList<Record> &copy, const QList<Record> &now)
{
    QMultiHash<QString, qsizetype> byName;
    for (qsizetype i = now.size() - 1; i >= 0; --i) // what was inserted last is found first
        byName.insert(now.at(i).name, i);
    QList<std::pair<qsizetype, qsizetype>> pairs;
    std::vector<bool> isPaired(static_cast<size_t>(now.size()));
    for (qsizetype i = 0; i < copy.size(); ++i) {
        const auto found = byName.find(copy.at(i).name);
        pairs.append({i, found == byName.end() ? -1 : *found});
        if (found == byName.end())
            continue;
        isPaired[static_cast<size_t>(*found)] = true;
        byName.erase(found);
    }
    qsizetype next = 0;
    const auto skipPaired = [&] {
        while (next < now.size() && isPaired[static_cast<size_t>(next)])
            ++next;
    };
    for (auto &[ofCopy, ofNow] : pairs) {
        skipPaired();
        if (ofNow < 0 && next < now.size())
            ofNow = next++;
    }
    for (skipPaired(); next < now.size(); skipPaired())
        pairs.append({-1, next++});
    return pairs;
}

/** Takes the entries of one owner; what stands at both ends alike is left out. */
template <typename Value>
void collect(const QList<Value> &copy, const QList<Value> &now, qsizetype owner,
             std::pair<qsizetype, qsizetype> places, QList<Entry<Value>> &ofCopy, QList<Entry<Value>> &ofNow)
{
    const qsizetype shorter = std::min(copy.size(), now.size());
    const qsizetype head =
        std::mismatch(copy.cbegin(), copy.cbegin() + shorter, now.cbegin()).first - copy.cbegin();
    const qsizetype tail =
        std::mismatch(copy.crbegin(), copy.crbegin() + (shorter - head), now.crbegin()).first -
        copy.crbegin();
    for (qsizetype i = head; i < copy.size() - tail; ++i)
        ofCopy.append({&copy.at(i), owner, {places.first, i}});
    for (qsizetype i = head; i < now.size() - tail; ++i)
        ofNow.append({&now.at(i), owner, {places.second, i}});
}

/** Pairs entries by a key, and takes them out of both lists. */
template <typename Value, typename Key, typename IsOne, typename Found>
void pairBy(QList<Entry<Value>> &copy, QList<Entry<Value>> &now, Key key, IsOne isOne, Found found)
{
    using KeyType = decltype(key(copy.first()));
    QMultiHash<KeyType, qsizetype> places;
    for (qsizetype i = now.size() - 1; i >= 0; --i)
        places.insert(key(now.at(i)), i);
    QSet<qsizetype> taken;
    copy.removeIf([&](const Entry<Value> &entry) {
        const KeyType wanted = key(entry);
        auto it = places.find(wanted);
        while (it != places.end() && it.key() == wanted && !isOne(entry, now.at(*it)))
            ++it;
        if (it == places.end() || it.key() != wanted)
            return false;
        found(entry, now.at(*it));
        taken.insert(*it);
        places.erase(it);
        return true;
    });
    qsizetype place = 0;
    now.removeIf([&](const Entry<Value> &) { return taken.contains(place++); });
}

} // namespace Host
