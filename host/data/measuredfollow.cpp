// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of the measured values when a logbook changes.
#include "host/data/measured.h"

#include "host/data/moments.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** A discharge as an entry names it, and what it says. */
struct Named
{
    QString battery;
    qint64 moment = NoMoment;
    unsigned int discharged = 0;
    unsigned int current = 0;

    bool saysTheSame(const Named &other) const
    {
        return discharged == other.discharged && current == other.current;
    }
};

using Key = std::pair<QString, qint64>;

Key keyOf(const Named &named)
{
    return {named.battery, named.moment};
}

/** All discharges with a time, in the order of the file. */
QList<Named> namedIn(const Catalogue &catalogue)
{
    QList<Named> all;
    for (const Battery &battery : catalogue.batteries) {
        for (const Discharge &discharge : battery.discharges) {
            if (const qint64 moment = momentOf(discharge.time); moment != NoMoment)
                all.append({battery.name, moment, discharge.discharged, discharge.current});
        }
    }
    return all;
}

QSet<Key> keysOf(const QList<Named> &all)
{
    QSet<Key> keys;
    keys.reserve(all.size());
    for (const Named &named : all)
        keys.insert(keyOf(named));
    return keys;
}

/** Records at the same place whose name alone differs, where nobody else has either name: old to new. */
template <typename Record>
QHash<QString, QString> renamed(const QList<Record> &before, const QList<Record> &after)
{
    QHash<QString, QString> names;
    if (before.size() != after.size())
        return names;
    const auto count = [](const QList<Record> &records, const QString &name) {
        return std::count_if(records.cbegin(), records.cend(),
                             [&](const Record &record) { return record.name == name; });
    };
    for (qsizetype i = 0; i < before.size(); ++i) {
        const QString &old = before.at(i).name;
        const QString &name = after.at(i).name;
        if (old != name && count(after, old) == 0 && count(before, name) == 0)
            names.insert(old, name);
    }
    return names;
}

/** Where each discharge that is gone stands now: at its time with another battery, or with its battery and
 * values at another time. */
QHash<Key, Key> moves(const QList<Named> &gone, QList<Named> come)
{
    QHash<Key, Key> moved;
    const auto pair = [&](const Named &old, auto isIt) {
        const auto found = std::find_if(come.begin(), come.end(), isIt);
        if (moved.contains(keyOf(old)) || found == come.end())
            return;
        moved.insert(keyOf(old), keyOf(*found));
        come.erase(found);
    };
    for (const Named &old : gone)
        pair(old, [&](const Named &now) { return now.moment == old.moment && now.saysTheSame(old); });
    for (const Named &old : gone)
        pair(old, [&](const Named &now) { return now.battery == old.battery && now.saysTheSame(old); });
    return moved;
}

void followModels(Measured &measured, const QHash<QString, QString> &names)
{
    QSet<QString> flown; // names that radios use
    for (KnownLog &log : measured.logs) {
        for (QJsonObject &session : log.sessions) {
            const QString model = session.value(u"model"_s).toString();
            flown.insert(model);
            if (names.contains(model))
                session[u"model"_s] = names.value(model);
        }
    }
    for (QString &model : measured.models)
        model = names.value(model, model);
    for (auto name = names.cbegin(); name != names.cend(); ++name) {
        measured.models.remove(name.value()); // the radio's name is the model's own again
        if (flown.contains(name.key()) && !measured.models.contains(name.key()))
            measured.models.insert(name.key(), name.value());
    }
}

} // namespace

Measured MeasuredFile::followed(const Measured &measured, const Catalogue &before, const Catalogue &after)
{
    Measured result = measured;
    if (const QHash<QString, QString> models = renamed(before.models, after.models); !models.isEmpty())
        followModels(result, models);
    if (result.discharges.isEmpty())
        return result;
    const QHash<QString, QString> batteries = renamed(before.batteries, after.batteries);
    QList<Named> old = namedIn(before);
    for (Named &named : old)
        named.battery = batteries.value(named.battery, named.battery);
    for (MeasuredDischarge &entry : result.discharges)
        entry.battery = batteries.value(entry.battery, entry.battery);
    const QList<Named> present = namedIn(after);
    const QSet<Key> oldKeys = keysOf(old);
    const QSet<Key> presentKeys = keysOf(present);
    QList<Named> gone;
    std::copy_if(old.cbegin(), old.cend(), std::back_inserter(gone),
                 [&](const Named &named) { return !presentKeys.contains(keyOf(named)); });
    if (gone.isEmpty())
        return result;
    QList<Named> come;
    std::copy_if(present.cbegin(), present.cend(), std::back_inserter(come),
                 [&](const Named &named) { return !oldKeys.contains(keyOf(named)); });
    const QHash<Key, Key> moved = moves(gone, come);
    const QSet<Key> goneKeys = keysOf(gone);
    for (MeasuredDischarge &entry : result.discharges)
        std::tie(entry.battery, entry.moment) =
            moved.value({entry.battery, entry.moment}, {entry.battery, entry.moment});
    result.discharges.removeIf([&](const MeasuredDischarge &entry) {
        return goneKeys.contains({entry.battery, entry.moment});
    });
    return result;
}

} // namespace Host
