// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/edits.h"

#include <QCoreApplication>
#include <QLocale>
#include <QSet>

#include <algorithm>

namespace Host {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Edits)
};

QString timeProblem(const QDateTime &time)
{
    if (!time.isValid())
        return Texts::tr(
            "There is no such time: the clock leaves it out, as it does where summer time begins.");
    const int year = time.date().year();
    if (year < Edits::FirstYear || year > Edits::LastYear)
        return Texts::tr("The year must be from %1 to %2.")
            .arg(QString::number(Edits::FirstYear), QString::number(Edits::LastYear));
    return QString();
}

QString temperatureProblem(int temperature)
{
    if (temperature >= Edits::LowestTemperature && temperature <= Edits::HighestTemperature)
        return QString();
    return Texts::tr("The temperature must be from %1 to %2 °C.")
        .arg(Edits::LowestTemperature)
        .arg(Edits::HighestTemperature);
}

/** What of a flight's new values is not possible; those that stay are not asked. */
QString flightProblem(const Flight &before, const Flight &after)
{
    QString problem;
    if (after.time != before.time)
        problem = timeProblem(after.time);
    if (problem.isEmpty() && after.duration != before.duration && !after.duration.isValid())
        problem = Texts::tr("The duration must be less than 24 hours.");
    if (problem.isEmpty() && after.temperature != before.temperature)
        problem = temperatureProblem(after.temperature);
    if (problem.isEmpty() && after.location != before.location)
        problem = Edits::textProblem(after.location);
    if (problem.isEmpty() && after.notes != before.notes)
        problem = Edits::textProblem(after.notes);
    return problem;
}

QString dischargeProblem(const Discharge &before, unsigned int discharged, unsigned int current)
{
    if (discharged != before.discharged && discharged > static_cast<unsigned int>(Edits::MostDischarge))
        return Texts::tr("The discharge must be from 0 to %1 mAh.")
            .arg(QLocale().toString(Edits::MostDischarge));
    if (current != before.current && current > static_cast<unsigned int>(Edits::MostCurrent))
        return Texts::tr("The current must be from 0 to %1 A.").arg(Edits::MostCurrent / 100);
    return QString();
}

/** The first moment from this one on at which no flight and none of these batteries' discharges stands. */
qint64 freeMoment(const Moments &moments, qint64 moment, const QSet<qsizetype> &batteries)
{
    const auto isTaken = [&](qint64 wanted) {
        if (moments.flightsAt(wanted) > 0)
            return true;
        const QList<DischargePlace> there = moments.dischargesAt(wanted);
        return std::any_of(there.cbegin(), there.cend(),
                           [&](const DischargePlace &place) { return batteries.contains(place.battery); });
    };
    while (isTaken(moment) || !timeOf(moment).isValid())
        ++moment;
    return moment;
}

/** Takes flights out of their logs, in the order of the file. */
QList<Flight> takeFlights(Catalogue &catalogue, QList<FlightPlace> places)
{
    std::sort(places.begin(), places.end());
    const auto end = std::unique(places.begin(), places.end());
    places.erase(QList<FlightPlace>::const_iterator(end), places.cend());
    QList<Flight> taken;
    auto place = places.cbegin();
    while (place != places.cend()) {
        const qsizetype model = place->model;
        QList<Flight> kept;
        const QList<Flight> log = catalogue.models.at(model).log;
        for (qsizetype i = 0; i < log.size(); ++i) {
            const bool isTaken = place != places.cend() && *place == FlightPlace{model, i};
            (isTaken ? taken : kept).append(log.at(i));
            if (isTaken)
                ++place;
        }
        catalogue.models[model].log = kept;
    }
    return taken;
}

void countLess(unsigned int &counter)
{
    if (counter > 0)
        --counter;
}

} // namespace

QString Edits::textProblem(const QString &text)
{
    qsizetype i = 0;
    while (i < text.size()) {
        const QChar unit = text.at(i);
        const bool isPair = unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const bool isWhite = unit == u'\t' || unit == u'\n' || unit == u'\r';
        const bool isWhole = unit >= u' ' && !unit.isSurrogate() && unit < QChar(0xFFFE);
        if (!isPair && !isWhite && !isWhole)
            return Texts::tr(
                "The text holds a control character, or half a character, which the logbook file "
                "cannot hold. Leave it out.");
        i += isPair ? 2 : 1;
    }
    return QString();
}

QString Edits::addFlight(Catalogue &catalogue, qsizetype model, Flight flight,
                         const std::optional<NewDischarge> &discharge)
{
    QString problem = timeProblem(flight.time);
    if (problem.isEmpty())
        problem = flightProblem(Flight{flight.time, QTime(0, 0), {}, 0, {}}, flight);
    if (problem.isEmpty() && discharge)
        problem = dischargeProblem({}, discharge->discharged, discharge->current);
    if (!problem.isEmpty())
        return problem;
    const QSet<qsizetype> batteries = discharge ? QSet<qsizetype>{discharge->battery} : QSet<qsizetype>();
    flight.time = timeOf(freeMoment(Moments(catalogue), momentOf(flight.time), batteries));
    if (problem = timeProblem(flight.time); !problem.isEmpty())
        return problem;
    Model &target = catalogue.models[model];
    target.log.append(flight);
    ++target.flights;
    if (discharge) {
        Battery &battery = catalogue.batteries[discharge->battery];
        battery.discharges.append({flight.time, discharge->discharged, discharge->current});
        ++battery.cycles;
    }
    return QString();
}

QString Edits::addDischarge(Catalogue &catalogue, const QDateTime &time, const NewDischarge &discharge)
{
    QString problem = timeProblem(time);
    if (problem.isEmpty())
        problem = dischargeProblem({}, discharge.discharged, discharge.current);
    if (!problem.isEmpty())
        return problem;
    const QDateTime free = timeOf(freeMoment(Moments(catalogue), momentOf(time), {discharge.battery}));
    if (problem = timeProblem(free); !problem.isEmpty())
        return problem;
    Battery &battery = catalogue.batteries[discharge.battery];
    battery.discharges.append({free, discharge.discharged, discharge.current});
    ++battery.cycles;
    return QString();
}

QString Edits::editFlight(Catalogue &catalogue, const FlightPlace &place, Flight flight)
{
    const Flight before = catalogue.models.at(place.model).log.at(place.flight);
    if (const QString problem = flightProblem(before, flight); !problem.isEmpty())
        return problem;
    const qint64 old = momentOf(before.time);
    qint64 moment = momentOf(flight.time);
    if (moment != old) {
        const Moments moments(catalogue);
        QList<DischargePlace> moving;
        if (old != NoMoment && moments.flightsAt(old) == 1)
            moving = moments.dischargesAt(old);
        QSet<qsizetype> batteries;
        for (const DischargePlace &discharge : std::as_const(moving))
            batteries.insert(discharge.battery);
        moment = freeMoment(moments, moment, batteries);
        flight.time = timeOf(moment);
        if (const QString problem = timeProblem(flight.time); !problem.isEmpty())
            return problem;
        for (const DischargePlace &discharge : std::as_const(moving))
            catalogue.batteries[discharge.battery].discharges[discharge.discharge].time = flight.time;
    }
    catalogue.models[place.model].log[place.flight] = flight;
    return QString();
}

QString Edits::editDischarge(Catalogue &catalogue, const DischargePlace &place, unsigned int discharged,
                             unsigned int current)
{
    Discharge &discharge = catalogue.batteries[place.battery].discharges[place.discharge];
    if (const QString problem = dischargeProblem(discharge, discharged, current); !problem.isEmpty())
        return problem;
    discharge.discharged = discharged;
    discharge.current = current;
    return QString();
}

QString Edits::deleteFlights(Catalogue &catalogue, const QList<FlightPlace> &places, Discharges discharges)
{
    const QList<Flight> flights = takeFlights(catalogue, places);
    if (discharges == Discharges::Keep)
        return QString();
    QSet<qint64> left;
    for (const Flight &flight : flights)
        left.insert(momentOf(flight.time));
    const Moments moments(catalogue);
    left.removeIf([&](qint64 moment) { return moment == NoMoment || moments.flightsAt(moment) > 0; });
    for (Battery &battery : catalogue.batteries) {
        const auto isLeft = [&](const Discharge &discharge) {
            return left.contains(momentOf(discharge.time));
        };
        if (std::none_of(battery.discharges.cbegin(), battery.discharges.cend(), isLeft))
            continue; // not detached
        for (auto count = battery.discharges.removeIf(isLeft); count > 0; --count)
            countLess(battery.cycles);
    }
    return QString();
}

QString Edits::moveFlights(Catalogue &catalogue, QList<FlightPlace> &places, qsizetype model)
{
    QList<FlightPlace> leaving = places;
    leaving.removeIf([model](const FlightPlace &place) { return place.model == model; });
    places.removeIf([model](const FlightPlace &place) { return place.model != model; });
    const QList<Flight> flights = takeFlights(catalogue, leaving);
    QList<Flight> &log = catalogue.models[model].log;
    for (const Flight &flight : flights) {
        places.append(FlightPlace{model, log.size()});
        log.append(flight);
    }
    return QString();
}

QString Edits::moveDischarges(Catalogue &catalogue, const QList<FlightPlace> &places, qsizetype from,
                              qsizetype to)
{
    if (from == to)
        return QString();
    QSet<qint64> moving;
    for (const FlightPlace &place : places)
        moving.insert(momentOf(catalogue.models.at(place.model).log.at(place.flight).time));
    moving.remove(NoMoment);
    Battery &source = catalogue.batteries[from];
    Battery &target = catalogue.batteries[to];
    const auto isMoving = [&](const Discharge &discharge) {
        return moving.contains(momentOf(discharge.time));
    };
    QList<Discharge> moved;
    std::copy_if(source.discharges.cbegin(), source.discharges.cend(), std::back_inserter(moved), isMoving);
    QSet<qint64> taken;
    for (const Discharge &discharge : std::as_const(target.discharges))
        taken.insert(momentOf(discharge.time));
    for (const Discharge &discharge : std::as_const(moved)) {
        if (taken.contains(momentOf(discharge.time)))
            return Texts::tr("The flight of %1 has a discharge of the battery “%2” already.")
                .arg(QLocale().toString(discharge.time, QLocale::ShortFormat), target.name);
    }
    if (moved.isEmpty())
        return Texts::tr("None of these flights has a discharge of the battery “%1”.").arg(source.name);
    source.discharges.removeIf(isMoving);
    for (const Discharge &discharge : std::as_const(moved)) {
        target.discharges.append(discharge);
        ++target.cycles;
        countLess(source.cycles);
    }
    return QString();
}

} // namespace Host
