// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/mergeancestor.h"

#include "host/data/mergekeys.h"
#include "host/data/moments.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString text(const QDateTime &time)
{
    return QString::number(momentOf(time));
}

QStringList valuesOf(const Battery &battery)
{
    return {QString::number(battery.capacity),
            QString::number(battery.rating),
            QString::number(battery.chargeRate),
            QString::number(battery.cycles),
            QString::number(battery.charged),
            battery.purchase.toString(Qt::ISODate),
            text(battery.lastUse)};
}

QStringList valuesOf(const Model &model)
{
    return {model.type,
            QString::number(model.weight),
            QString::number(model.size),
            QString::number(model.flights),
            model.purchase.toString(Qt::ISODate),
            model.notes,
            text(model.lastUpdate),
            model.batteries.join(u'\n')};
}

QStringList valuesOf(const Discharge &discharge)
{
    return {QString::number(discharge.discharged), QString::number(discharge.current)};
}

QStringList valuesOf(const Flight &flight)
{
    return {QString::number(flight.seconds()), flight.location, QString::number(flight.temperature),
            flight.notes};
}

void addValues(QSet<QString> &values, const QString &key, const QStringList &list)
{
    for (qsizetype i = 0; i < list.size(); ++i)
        values.insert(key + u'\n' + QString::number(i) + u'\n' + list.at(i));
}

qsizetype countCommon(const QSet<QString> &version, const QSet<QString> &ours, const QSet<QString> &theirs)
{
    return std::count_if(version.cbegin(), version.cend(),
                         [&](const QString &fact) { return ours.contains(fact) && theirs.contains(fact); });
}

/** The records by their keys. */
template <typename Record>
QHash<QString, const Record *> byKey(const QList<Record> &records, const QList<QString> &keys)
{
    QHash<QString, const Record *> found;
    for (qsizetype i = 0; i < records.size(); ++i)
        found.insert(keys.at(i), &records.at(i));
    return found;
}

/** Of the entries that both have and the ancestor has not: how many. */
template <typename Entry>
qsizetype countLater(const QList<Entry> &ancestor, const QList<Entry> &ours, const QList<Entry> &theirs,
                     QList<QString> (*keysOf)(const QList<Entry> &))
{
    const QList<QString> before = keysOf(ancestor);
    const QList<QString> here = keysOf(ours);
    const QList<QString> there = keysOf(theirs);
    const QSet<QString> old(before.cbegin(), before.cend());
    const QSet<QString> mine(here.cbegin(), here.cend());
    const QSet<QString> others(there.cbegin(), there.cend());
    return std::count_if(mine.cbegin(), mine.cend(),
                         [&](const QString &key) { return others.contains(key) && !old.contains(key); });
}

template <typename Record, typename Entry>
void countIn(QList<Record> &ancestor, const QList<Record> &ours, const QList<Record> &theirs,
             unsigned int Record::*counter, QList<Entry> Record::*entries,
             QList<QString> (*keysOfRecords)(const QList<Record> &),
             QList<QString> (*keysOf)(const QList<Entry> &))
{
    const QList<QString> keys = keysOfRecords(ancestor);
    const auto here = byKey(ours, keysOfRecords(ours));
    const auto there = byKey(theirs, keysOfRecords(theirs));
    for (qsizetype i = 0; i < ancestor.size(); ++i) {
        const Record *mine = here.value(keys.at(i));
        const Record *other = there.value(keys.at(i));
        if (!mine || !other)
            continue;
        const qint64 later = countLater(ancestor.at(i).*entries, mine->*entries, other->*entries, keysOf);
        const qint64 counted = ancestor.at(i).*counter;
        const qint64 risen =
            std::min({later, qint64(mine->*counter) - counted, qint64(other->*counter) - counted});
        ancestor[i].*counter = static_cast<unsigned int>(counted + std::max(qint64(0), risen));
    }
}

} // namespace

AncestorSearch::AncestorSearch(const Catalogue &ours, const Catalogue &theirs)
    : m_ours(ours)
    , m_theirs(theirs)
    , m_oursFacts(factsOf(ours))
    , m_theirsFacts(factsOf(theirs))
{
}

template <typename Record, typename Entry>
void AncestorSearch::addRecords(Facts &facts, const QString &kind, const QList<Record> &records,
                                const QList<QString> &keys, QList<Entry> Record::*entries,
                                QList<QString> (*keysOf)(const QList<Entry> &))
{
    List list;
    for (qsizetype i = 0; i < records.size(); ++i) {
        const QString key = kind + keys.at(i);
        addValues(facts.values, key, valuesOf(records.at(i)));
        const QList<Entry> &all = records.at(i).*entries;
        const QList<QString> entryKeys = keysOf(all);
        List owned;
        owned.owner = key;
        qint64 newest = NoMoment;
        for (qsizetype j = 0; j < all.size(); ++j) {
            const Element element{key + u'\n' + entryKeys.at(j), momentOf(all.at(j).time)};
            facts.isInOrderOfTime &= element.moment == NoMoment || element.moment >= newest;
            newest = std::max(newest, element.moment);
            addValues(facts.values, element.key, valuesOf(all.at(j)));
            owned.elements.append(element);
        }
        facts.lists.append(owned);
        list.elements.append({key, newest});
    }
    facts.lists.append(list);
}

AncestorSearch::Facts AncestorSearch::factsOf(const Catalogue &catalogue)
{
    Facts facts;
    List locations;
    for (const QString &location : catalogue.locations)
        locations.elements.append({u"location "_s + location, NoMoment});
    facts.lists.append(locations);
    addRecords(facts, u"battery "_s, catalogue.batteries, MergeKeys::ofBatteries(catalogue.batteries),
               &Battery::discharges, MergeKeys::ofDischarges);
    addRecords(facts, u"model "_s, catalogue.models, MergeKeys::ofModels(catalogue.models), &Model::log,
               MergeKeys::ofFlights);
    for (const List &list : std::as_const(facts.lists)) {
        for (const Element &element : list.elements)
            facts.elements.insert(element.key);
    }
    return facts;
}

/** Whether everything of a version that a side lacks was there when the side went its own way. */
bool AncestorSearch::descends(const Facts &side, const Facts &version) const
{
    int lastArrival = -1;
    qint64 lastMoment = NoMoment;
    for (const List &list : version.lists) {
        for (const Element &element : list.elements) {
            if (!side.elements.contains(element.key))
                continue;
            lastArrival = std::max(lastArrival, m_arrivals.value(element.key));
            lastMoment = std::max(lastMoment, element.moment);
        }
    }
    for (const List &list : version.lists) {
        if (!list.owner.isEmpty() && !side.elements.contains(list.owner))
            continue; // it went with its record
        bool isBefore = false;
        for (auto element = list.elements.crbegin(); element != list.elements.crend(); ++element) {
            if (side.elements.contains(element->key)) {
                isBefore = true;
                continue;
            }
            const int arrival = m_arrivals.value(element->key);
            const bool happenedBefore =
                version.isInOrderOfTime && element->moment != NoMoment && element->moment < lastMoment;
            if (arrival >= lastArrival && (arrival > 0 || !(isBefore || happenedBefore)))
                return false;
        }
    }
    return true;
}

/** Whether it is nearer to both than the best one before it, which is older. */
bool AncestorSearch::isBetter(const Facts &version) const
{
    constexpr qsizetype Trust = 2;
    if (!m_best)
        return true;
    const auto common = [this](const Facts &facts, QSet<QString> Facts::*kind) {
        return countCommon(facts.*kind, m_oursFacts.*kind, m_theirsFacts.*kind);
    };
    const qsizetype gain = common(version, &Facts::elements) - common(m_bestFacts, &Facts::elements);
    const qsizetype lacking =
        std::count_if(version.elements.cbegin(), version.elements.cend(), [this](const QString &element) {
            return !m_bestFacts.elements.contains(element) &&
                   (!m_oursFacts.elements.contains(element) || !m_theirsFacts.elements.contains(element));
        });
    if (gain == 0 && lacking == 0)
        return common(version, &Facts::values) > common(m_bestFacts, &Facts::values);
    return gain > Trust * lacking;
}

void AncestorSearch::add(const Catalogue &version, bool isMerged)
{
    const Facts facts = factsOf(version);
    for (const QString &element : facts.elements) {
        if (!m_arrivals.contains(element))
            m_arrivals.insert(element, m_versions);
    }
    ++m_versions;
    const bool isTheirs = version == m_theirs;
    if (m_isSettled || version == m_ours || (isTheirs && !isMerged))
        return;
    if (!descends(m_oursFacts, facts) || !descends(m_theirsFacts, facts))
        return;
    if (!isTheirs && !isBetter(facts))
        return;
    m_best = version;
    m_bestFacts = facts;
    m_isSettled = isTheirs;
}

std::optional<Catalogue> AncestorSearch::best() const
{
    if (!m_best)
        return std::nullopt;
    Catalogue ancestor = *m_best;
    countIn(ancestor.batteries, m_ours.batteries, m_theirs.batteries, &Battery::cycles, &Battery::discharges,
            MergeKeys::ofBatteries, MergeKeys::ofDischarges);
    countIn(ancestor.models, m_ours.models, m_theirs.models, &Model::flights, &Model::log,
            MergeKeys::ofModels, MergeKeys::ofFlights);
    return ancestor;
}

} // namespace Host
