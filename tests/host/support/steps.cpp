// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/steps.h"

#include "tests/host/support/stormbook.h"

using namespace Qt::Literals::StringLiterals;

namespace {

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

void applyEdit(Logbook &logbook, const QStringList &words)
{
    const QString time = words.value(2).replace(u' ', u'T') + u' ';
    QStringList &flights = logbook.models[words.value(1)].flights;
    const qsizetype place = flights.indexOf(time + words.value(3));
    if (place >= 0)
        flights[place] = time + words.value(4);
}

void applyImport(Steps::Version &version, const QStringList &words)
{
    const QDateTime logged = QDateTime::fromString(words.value(3), u"yyyy-MM-dd HH:mm:ss"_s);
    const QString time = logged.addSecs(StormBook::RestSeconds).toString(Qt::ISODate);
    Logbook::Battery &battery = version.logbook.batteries[words.value(2)];
    battery.discharges.append(time + u' ' + words.value(4));
    StormBook::addOne(&battery.figures, u"Cycles"_s);
    Logbook::Model &model = version.logbook.models[words.value(1)];
    StormBook::addOne(&model.figures, u"Flights"_s);
    model.flights.append(time + u' ');
    version.measured.append(words.value(2) + u' ' + time);
    version.measured.sort();
}

void applyChange(Logbook &logbook, const QStringList &words)
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
    else if (verb == u"edit")
        applyEdit(logbook, words);
    else if (verb == u"merge")
        StormBook::merge(&logbook, StormBook::numberIn(name));
}

} // namespace

bool Steps::isChange(const QString &verb)
{
    static const QStringList changes{u"click"_s,       u"add-location"_s,   u"delete-location"_s,
                                     u"add-battery"_s, u"delete-battery"_s, u"assign"_s,
                                     u"unassign"_s};
    return changes.contains(verb) || isDeed(verb);
}

bool Steps::isDeed(const QString &verb)
{
    static const QStringList deeds{u"undo"_s, u"redo"_s, u"edit"_s, u"import"_s, u"restore"_s, u"merge"_s};
    return deeds.contains(verb);
}

void Steps::apply(const QStringList &words)
{
    const QString &verb = words.constFirst();
    if (verb == u"undo" || verb == u"redo") {
        m_before = m_present;
        m_present = qBound(qsizetype(0), m_present + (verb == u"undo" ? -1 : 1), m_versions.size() - 1);
        return;
    }
    Version version = present();
    if (verb == u"restore")
        version = {Logbook::read(StormBook::document()), {}};
    else if (verb == u"import")
        applyImport(version, words);
    else
        applyChange(version.logbook, words);
    if (!(version == present()))
        add(version);
}

void Steps::add(const Version &version)
{
    m_versions.resize(m_present + 1); // what was undone cannot be done again
    m_versions.append(version);
    m_before = m_present++;
}
