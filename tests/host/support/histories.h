// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/moments.h"
#include "tests/host/support/plainlogbook.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRandomGenerator>

#include <algorithm>

/** Histories of logbooks as several people make them, from a seed. */
namespace Histories {

using namespace Host;
using namespace Qt::Literals::StringLiterals;

/** Who enters something: what two of them enter at the same time of the same record differs or is equal. */
class Pilot
{
public:
    Pilot(quint32 seed, int number)
        : m_random(seed * 7 + static_cast<quint32>(number))
        , m_number(number)
    {
    }

    /** One thing that pilots do. */
    void act(Catalogue &catalogue)
    {
        switch (m_random.bounded(16)) {
        case 0:
            return addOnce(catalogue.locations, name(u"Field"_s));
        case 1:
            return remove(catalogue.locations);
        case 2:
            catalogue.batteries.append(PlainLogbook::battery(name(u"Pack"_s)));
            return;
        case 3:
            if (m_random.bounded(4) == 0)
                remove(catalogue.batteries);
            return;
        case 4:
            return editBattery(catalogue);
        case 5:
            return editModel(catalogue);
        case 6:
            if (!catalogue.batteries.isEmpty())
                remove(one(catalogue.batteries).discharges);
            return;
        case 7:
            if (!catalogue.models.isEmpty())
                remove(one(catalogue.models).log);
            return;
        case 8:
            return editEntries(catalogue);
        case 9:
            if (!catalogue.models.isEmpty())
                addOnce(one(catalogue.models).batteries, name(u"Pack"_s));
            return;
        default:
            return fly(catalogue);
        }
    }

    void act(Catalogue &catalogue, int times)
    {
        for (int i = 0; i < times; ++i)
            act(catalogue);
    }

    /** A flight with its discharge and the cycle, as nobody else enters it. */
    void fly(Catalogue &catalogue)
    {
        if (catalogue.batteries.isEmpty() || catalogue.models.isEmpty())
            return;
        const QDateTime time = m_random.bounded(20) == 0 ? QDateTime() : nextTime();
        Battery &battery = one(catalogue.batteries);
        ++battery.cycles;
        battery.charged = false;
        battery.discharges.append(
            {time, m_random.bounded(2000U) + 2000U * static_cast<unsigned int>(m_number), 3000});
        Model &model = one(catalogue.models);
        ++model.flights;
        Flight flight = PlainLogbook::flight(time);
        flight.notes = u"%1 of %2"_s.arg(++m_count).arg(m_number);
        model.log.append(flight);
    }

    quint32 bounded(quint32 limit) { return m_random.bounded(limit); }

private:
    QDateTime nextTime()
    {
        return QDateTime(QDate(2026, 1, 1), QTime(0, 0))
            .addSecs((++m_count * 1000 + static_cast<int>(m_random.bounded(900))) * 10 + m_number);
    }
    QString name(const QString &begin)
    {
        // Few of them, so that two pilots now and then enter the same.
        return m_random.bounded(3) ? u"%1 %2"_s.arg(begin).arg(m_random.bounded(6))
                                   : u"%1 %2-%3"_s.arg(begin).arg(m_number).arg(++m_count);
    }
    template <typename Entry>
    Entry &one(QList<Entry> &list)
    {
        return list[m_random.bounded(static_cast<int>(list.size()))];
    }
    static void addOnce(QStringList &names, const QString &name)
    {
        if (!names.contains(name))
            names.append(name);
    }
    template <typename Entry>
    void remove(QList<Entry> &list)
    {
        if (!list.isEmpty())
            list.removeAt(m_random.bounded(static_cast<int>(list.size())));
    }
    void editBattery(Catalogue &catalogue)
    {
        if (catalogue.batteries.isEmpty())
            return;
        Battery &battery = one(catalogue.batteries);
        switch (m_random.bounded(5)) {
        case 0:
            battery.capacity = 1000 + m_random.bounded(3U);
            return;
        case 1:
            battery.charged = !battery.charged;
            return;
        case 2:
            battery.purchase = QDate(2025, 1, 1 + m_random.bounded(3));
            return;
        case 3:
            battery.cycles += m_random.bounded(3U);
            return;
        default:
            battery.lastUse = nextTime();
        }
    }
    void editModel(Catalogue &catalogue)
    {
        if (catalogue.models.isEmpty())
            return;
        Model &model = one(catalogue.models);
        switch (m_random.bounded(4)) {
        case 0:
            model.notes = name(u"note"_s);
            return;
        case 1:
            model.weight = m_random.bounded(3U);
            return;
        case 2:
            model.flights += m_random.bounded(3U);
            return;
        default:
            remove(model.batteries);
        }
    }
    void editEntries(Catalogue &catalogue)
    {
        if (catalogue.batteries.isEmpty() || catalogue.models.isEmpty())
            return;
        Battery &battery = one(catalogue.batteries);
        if (!battery.discharges.isEmpty())
            one(battery.discharges).current = 3000 + m_random.bounded(3U);
        Model &model = one(catalogue.models);
        if (!model.log.isEmpty())
            one(model.log).location = name(u"Field"_s);
    }

    QRandomGenerator m_random;
    const int m_number;
    int m_count = 0;
};

/** What a logbook holds, whatever the order. */
inline Catalogue sorted(Catalogue catalogue)
{
    const auto byName = [](const auto &left, const auto &right) { return left.name < right.name; };
    const auto byTime = [](const auto &left, const auto &right) {
        return momentOf(left.time) < momentOf(right.time);
    };
    std::sort(catalogue.locations.begin(), catalogue.locations.end());
    std::stable_sort(catalogue.batteries.begin(), catalogue.batteries.end(), byName);
    std::stable_sort(catalogue.models.begin(), catalogue.models.end(), byName);
    for (Battery &battery : catalogue.batteries) {
        std::sort(battery.discharges.begin(), battery.discharges.end(),
                  [&](const Discharge &left, const Discharge &right) {
                      return byTime(left, right) ||
                             (!byTime(right, left) && left.discharged < right.discharged);
                  });
    }
    for (Model &model : catalogue.models) {
        std::sort(model.batteries.begin(), model.batteries.end());
        std::sort(model.log.begin(), model.log.end(), [&](const Flight &left, const Flight &right) {
            return byTime(left, right) ||
                   (!byTime(right, left) && left.notes + left.location < right.notes + right.location);
        });
    }
    return catalogue;
}

inline QJsonValue jsonOf(const QDateTime &time)
{
    return time.isValid() ? QJsonValue(time.toString(Qt::ISODate)) : QJsonValue();
}

/** For the other program that merges: every value, texts and numbers. */
inline QJsonObject jsonOf(const Catalogue &catalogue)
{
    QJsonArray batteries;
    for (const Battery &battery : catalogue.batteries) {
        QJsonArray discharges;
        for (const Discharge &discharge : battery.discharges)
            discharges.append(QJsonObject{{u"time"_s, jsonOf(discharge.time)},
                                          {u"discharged_mAh"_s, qint64(discharge.discharged)},
                                          {u"max_current_A"_s, qint64(discharge.current)}});
        batteries.append(QJsonObject{{u"name"_s, battery.name},
                                     {u"capacity_mAh"_s, qint64(battery.capacity)},
                                     {u"discharge_rating_C"_s, qint64(battery.rating)},
                                     {u"charge_rating_C"_s, qint64(battery.chargeRate)},
                                     {u"purchased"_s, battery.purchase.toString(Qt::ISODate)},
                                     {u"cycles"_s, qint64(battery.cycles)},
                                     {u"charged"_s, battery.charged},
                                     {u"last_use"_s, jsonOf(battery.lastUse)},
                                     {u"entries"_s, discharges}});
    }
    QJsonArray models;
    for (const Model &model : catalogue.models) {
        QJsonArray log;
        for (const Flight &flight : model.log)
            log.append(QJsonObject{{u"time"_s, jsonOf(flight.time)},
                                   {u"duration_s"_s, flight.seconds()},
                                   {u"location"_s, flight.location},
                                   {u"temperature_C"_s, flight.temperature},
                                   {u"notes"_s, flight.notes}});
        models.append(QJsonObject{{u"name"_s, model.name},
                                  {u"type"_s, model.type},
                                  {u"weight"_s, qint64(model.weight)},
                                  {u"size"_s, qint64(model.size)},
                                  {u"purchased"_s, model.purchase.toString(Qt::ISODate)},
                                  {u"flights"_s, qint64(model.flights)},
                                  {u"notes"_s, model.notes},
                                  {u"last_update"_s, jsonOf(model.lastUpdate)},
                                  {u"batteries"_s, QJsonArray::fromStringList(model.batteries)},
                                  {u"entries"_s, log}});
    }
    return {{u"locations"_s, QJsonArray::fromStringList(catalogue.locations)},
            {u"batteries"_s, batteries},
            {u"models"_s, models}};
}

} // namespace Histories
