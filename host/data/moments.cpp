// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/moments.h"

#include <algorithm>

namespace Host {
namespace {

constexpr qint64 SecondsOfADay = 86'400;
constexpr int MillisecondsOfASecond = 1000;

} // namespace

qint64 momentOf(const QDateTime &time)
{
    if (!time.isValid())
        return NoMoment;
    return time.date().toJulianDay() * SecondsOfADay +
           time.time().msecsSinceStartOfDay() / MillisecondsOfASecond;
}

QDateTime timeOf(qint64 moment)
{
    if (moment == NoMoment)
        return QDateTime();
    const auto seconds = static_cast<int>(moment % SecondsOfADay);
    return timeOf(QDate::fromJulianDay(moment / SecondsOfADay),
                  QTime::fromMSecsSinceStartOfDay(seconds * MillisecondsOfASecond));
}

QDateTime timeOf(QDate date, QTime clock)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    // As the file is read: in standard time where the clocks show it twice.
    const QDateTime time(date, clock, QDateTime::TransitionResolution::PreferStandard);
#else
    const QDateTime time(date, clock);
#endif
    return time.isValid() && time.date() == date && time.time() == clock ? time : QDateTime();
}

Moments::Moments(const Catalogue &catalogue)
{
    size_t flights = 0;
    for (const Model &model : catalogue.models)
        flights += static_cast<size_t>(model.log.size());
    m_flights.reserve(flights);
    for (const Model &model : catalogue.models) {
        for (const Flight &flight : model.log) {
            if (const qint64 moment = momentOf(flight.time); moment != NoMoment)
                m_flights.push_back(moment);
        }
    }
    std::sort(m_flights.begin(), m_flights.end());

    size_t discharges = 0;
    for (const Battery &battery : catalogue.batteries)
        discharges += static_cast<size_t>(battery.discharges.size());
    m_discharges.reserve(discharges);
    for (qsizetype battery = 0; battery < catalogue.batteries.size(); ++battery) {
        const QList<Discharge> &history = catalogue.batteries.at(battery).discharges;
        for (qsizetype i = 0; i < history.size(); ++i) {
            if (const qint64 moment = momentOf(history.at(i).time); moment != NoMoment)
                m_discharges.push_back({moment, {battery, i}});
        }
    }
    std::stable_sort(m_discharges.begin(), m_discharges.end(),
                     [](const Entry &left, const Entry &right) { return left.moment < right.moment; });
}

qsizetype Moments::flightsAt(qint64 moment) const
{
    const auto found = std::equal_range(m_flights.cbegin(), m_flights.cend(), moment);
    return found.second - found.first;
}

QList<DischargePlace> Moments::dischargesAt(qint64 moment) const
{
    QList<DischargePlace> places;
    auto entry = std::lower_bound(m_discharges.cbegin(), m_discharges.cend(), moment,
                                  [](const Entry &left, qint64 wanted) { return left.moment < wanted; });
    for (; entry != m_discharges.cend() && entry->moment == moment; ++entry)
        places.append(entry->place);
    return places;
}

QList<DischargePlace> Moments::firstDischargesAt(qint64 moment) const
{
    QList<DischargePlace> places = dischargesAt(moment);
    const auto end = std::unique(places.begin(), places.end(),
                                 [](const DischargePlace &left, const DischargePlace &right) {
                                     return left.battery == right.battery;
                                 });
    places.erase(QList<DischargePlace>::const_iterator(end), places.cend());
    return places;
}

} // namespace Host
