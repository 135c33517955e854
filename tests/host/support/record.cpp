// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/record.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList Changes{u"click"_s,          u"add-location"_s, u"delete-location"_s, u"add-battery"_s,
                          u"delete-battery"_s, u"assign"_s,       u"unassign"_s};

void applyClick(Logbook &logbook, const QStringList &words)
{
    Logbook::Battery &battery = logbook.batteries[words.value(1)];
    battery.figures.insert(u"Cycles"_s, words.value(2));
    battery.figures.insert(u"Charged"_s, words.value(3));
    if (words.size() <= 4)
        return; // charged
    battery.discharges.append(words.value(4) + u' ' + words.value(5));
    const auto model = logbook.models.find(words.value(6));
    if (model != logbook.models.end())
        model->flights.append(words.value(4) + u' ' + words.value(7));
}

void apply(Logbook &logbook, const QStringList &words)
{
    const QString &verb = words.constFirst();
    const QString name = words.value(1);
    if (verb == u"click")
        applyClick(logbook, words);
    else if (verb == u"add-location")
        logbook.locations.append(name);
    else if (verb == u"delete-location")
        logbook.locations.removeOne(name);
    else if (verb == u"add-battery")
        logbook.batteries[name].figures.insert(u"Name"_s, name);
    else if (verb == u"delete-battery")
        logbook.batteries.remove(name);
    else if (verb == u"assign")
        logbook.models[name].batteries.append(words.value(2));
    else if (verb == u"unassign")
        logbook.models[name].batteries.removeAll(words.value(2));
}

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

} // namespace

Event Event::parse(const QByteArray &line)
{
    const QStringList words = QString::fromUtf8(line.trimmed()).split(u'\t');
    return {words.value(0).toLongLong(), words.value(1), words.mid(2)};
}

Logbook Record::stateAt(qint64 time, Later *later) const
{
    Logbook state = m_start;
    for (const Event &event : m_events) {
        if (!Changes.contains(event.words.value(0)))
            continue;
        if (event.isDone() && event.time <= time) {
            apply(state, event.words);
            *later = {}; // one change at a time: what began before is over
            continue;
        }
        later->changed.insert(event.words.value(1));
        if (event.words.constFirst().startsWith(u"delete"))
            later->deleted.insert(event.words.value(1));
    }
    return state;
}

QStringList Record::missing(const Logbook &found, qint64 time) const
{
    Later later;
    const Logbook owed = stateAt(time, &later);
    QStringList result;
    for (const QString &location : owed.locations) {
        if (!found.locations.contains(location) && !later.deleted.contains(location))
            result.append(u"location "_s + location);
    }
    for (auto it = owed.batteries.cbegin(); it != owed.batteries.cend(); ++it) {
        const auto battery = found.batteries.constFind(it.key());
        const bool settled = !later.changed.contains(it.key());
        if (battery == found.batteries.cend()) {
            if (!later.deleted.contains(it.key()))
                result.append(u"battery "_s + it.key());
            continue;
        }
        if (!startsWith(battery->discharges, it->discharges) ||
            (settled && battery->discharges != it->discharges))
            result.append(u"discharges of %1: %2, not %3"_s.arg(it.key())
                              .arg(battery->discharges.size())
                              .arg(it->discharges.size()));
        if (!holds(battery->figures, settled ? it->figures : lasting(it->figures)))
            result.append(u"figures of "_s + it.key());
    }
    for (auto it = owed.models.cbegin(); it != owed.models.cend(); ++it) {
        const Logbook::Model model = found.models.value(it.key());
        if (!startsWith(model.flights, it->flights))
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

int Record::changes(qint64 time) const
{
    return static_cast<int>(std::count_if(m_events.cbegin(), m_events.cend(), [&](const Event &event) {
        return event.isDone() && event.time <= time && Changes.contains(event.words.value(0));
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
