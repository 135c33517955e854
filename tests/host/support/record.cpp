// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/record.h"

#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/** Names whose change began after the time in question. */
struct Later
{
    QSet<QString> changed;
    QSet<QString> deleted;

    void add(const QStringList &words)
    {
        changed.insert(words.value(1));
        if (words.constFirst().startsWith(u"delete"))
            deleted.insert(words.value(1));
    }
    bool isNothing() const { return changed.isEmpty(); }
};

bool startsWith(const QStringList &list, const QStringList &start)
{
    return list.mid(0, start.size()) == start;
}

/** Whether all figures are there with their values. */
bool holds(const QMap<QString, QString> &found, const QMap<QString, QString> &figures)
{
    for (auto figure = figures.cbegin(); figure != figures.cend(); ++figure) {
        if (found.value(figure.key()) != figure.value())
            return false;
    }
    return true;
}

/** The figures that no later click changes. */
QMap<QString, QString> lasting(QMap<QString, QString> figures)
{
    figures.remove(u"Cycles"_s);
    figures.remove(u"Charged"_s);
    return figures;
}

/** Other entries than those owed, or fewer; what began later may have added some at the end. */
bool differ(const QStringList &found, const QStringList &owed, bool mayGrow)
{
    return mayGrow ? !startsWith(found, owed) : found != owed;
}

QStringList missingBatteries(const Logbook &found, const Logbook &owed, const Later &later)
{
    QStringList result;
    for (auto it = owed.batteries.cbegin(); it != owed.batteries.cend(); ++it) {
        const auto battery = found.batteries.constFind(it.key());
        const bool isSettled = !later.changed.contains(it.key());
        if (battery == found.batteries.cend()) {
            if (!later.deleted.contains(it.key()))
                result.append(u"battery "_s + it.key());
            continue;
        }
        if (differ(battery->discharges, it->discharges, !isSettled))
            result.append(u"discharges of %1: %2, not %3"_s.arg(it.key())
                              .arg(battery->discharges.size())
                              .arg(it->discharges.size()));
        if (!holds(battery->figures, isSettled ? it->figures : lasting(it->figures)))
            result.append(u"figures of "_s + it.key());
    }
    return result;
}

QStringList missingModels(const Logbook &found, const Logbook &owed, const Later &later)
{
    QStringList result;
    for (auto it = owed.models.cbegin(); it != owed.models.cend(); ++it) {
        const Logbook::Model model = found.models.value(it.key());
        if (differ(model.flights, it->flights, !later.isNothing()))
            result.append(u"flights of %1: %2, not %3"_s.arg(it.key())
                              .arg(model.flights.size())
                              .arg(it->flights.size()));
        if (!holds(model.figures, it->figures))
            result.append(u"figures of "_s + it.key());
        for (const QString &battery : it->batteries) {
            if (!model.batteries.contains(battery) && !later.changed.contains(it.key()))
                result.append(u"%1 of %2"_s.arg(battery, it.key()));
        }
    }
    return result;
}

const QString StillThere = u"still there: "_s;

/** What was taken away, and is there all the same. */
QStringList tooMuch(const Logbook &found, const Logbook &owed, const Later &later)
{
    QStringList names;
    for (const QString &location : found.locations) {
        if (!owed.locations.contains(location))
            names.append(location);
    }
    for (auto it = found.batteries.cbegin(); it != found.batteries.cend(); ++it) {
        if (!owed.batteries.contains(it.key()))
            names.append(it.key());
    }
    names.removeIf([&](const QString &name) { return later.changed.contains(name); });
    QStringList result;
    for (const QString &name : std::as_const(names))
        result.append(StillThere + name);
    return result;
}

QStringList difference(const Logbook &found, const Logbook &owed, const Later &later)
{
    QStringList result;
    for (const QString &location : owed.locations) {
        if (!found.locations.contains(location) && !later.deleted.contains(location))
            result.append(u"location "_s + location);
    }
    return result + missingBatteries(found, owed, later) + missingModels(found, owed, later) +
           tooMuch(found, owed, later);
}

} // namespace

Event Event::parse(const QByteArray &line)
{
    const QStringList words = QString::fromUtf8(line.trimmed()).split(u'\t');
    return {words.value(0).toLongLong(), words.value(1), words.mid(2)};
}

void Record::add(const Event &event)
{
    const bool isKnownExactly = event.isDone() && !m_events.isEmpty() && m_events.constLast().state == u"now";
    m_events.append(isKnownExactly ? Event{event.time, event.state, m_events.constLast().words} : event);
}

QStringList Record::unfinishedDeed() const
{
    if (m_events.isEmpty() || !Steps::isDeed(m_events.constLast().words.value(0)))
        return {};
    const Event &last = m_events.constLast();
    static const QStringList known{u"undo"_s, u"redo"_s}; // without another word
    const bool isKnown = last.state == u"now" || (last.state == u"begin" && known.contains(last.words.at(0)));
    return isKnown ? last.words : QStringList();
}

QStringList Record::missing(const Logbook &found, qint64 time) const
{
    Steps steps(m_start);
    Logbook owed = m_start.logbook; // by the time in question, or by a deed behind it
    Later later;
    for (const Event &event : m_events) {
        const QString verb = event.words.value(0);
        const bool isLate = event.time > time;
        if (!Steps::isChange(verb) || (Steps::isDeed(verb) && !event.isDone()))
            continue;
        if (Steps::isDeed(verb) && isLate && difference(found, owed, later).isEmpty())
            return {}; // it is not in it
        if (event.isDone())
            steps.apply(event.words);
        if (event.isDone() && (!isLate || Steps::isDeed(verb))) {
            owed = steps.present().logbook;
            later = {}; // one change at a time: what began before is over
        } else {
            later.add(event.words);
        }
    }
    QStringList result = difference(found, owed, later);
    if (m_mayHoldMore)
        result.removeIf([](const QString &what) { return what.startsWith(StillThere); });
    const QStringList unfinished = unfinishedDeed();
    if (result.isEmpty() || unfinished.isEmpty())
        return result;
    steps.apply(unfinished);
    return difference(found, steps.present().logbook, {}).isEmpty() ? QStringList() : result;
}

bool Record::mayTellOf(const QStringList &measured) const
{
    Steps steps(m_start);
    for (const Event &event : m_events) {
        if (event.isDone() && Steps::isChange(event.words.value(0)))
            steps.apply(event.words);
    }
    if (measured == steps.present().measured || measured == steps.before().measured)
        return true;
    const QStringList unfinished = unfinishedDeed();
    if (!unfinished.isEmpty())
        steps.apply(unfinished);
    return measured == steps.present().measured;
}

int Record::changes(qint64 time) const
{
    return static_cast<int>(std::count_if(m_events.cbegin(), m_events.cend(), [&](const Event &event) {
        return event.isDone() && event.time <= time && Steps::isChange(event.words.value(0));
    }));
}

qint64 Record::longestRest(qint64 time) const
{
    qint64 longest = 0;
    for (qsizetype i = 1; i < m_events.size(); ++i) {
        if (m_events.at(i).time >= time)
            longest = qMax(longest, m_events.at(i).time - m_events.at(i - 1).time);
    }
    return longest;
}
