// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightedits.h"

#include "host/data/sources.h"
#include "host/window/flightfields.h"
#include "host/window/flightsmodel.h"
#include "host/window/openlogbook.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace Host {
namespace {

constexpr double HundredthsOfAnAmpere = 100.0;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FlightEdits)
};

QList<DischargePlace> dischargesOf(const Catalogue &catalogue, const FlightPlace &place)
{
    const qint64 moment = momentOf(catalogue.models.at(place.model).log.at(place.flight).time);
    return moment == NoMoment ? QList<DischargePlace>() : Moments(catalogue).firstDischargesAt(moment);
}

/** Whether a flight has the discharges still that a table showed beside it. */
bool areDischargesThere(const FlightPlace &place, const Catalogue &shown, const Catalogue &now)
{
    const QList<DischargePlace> discharges = dischargesOf(shown, place);
    return discharges == dischargesOf(now, place) &&
           std::all_of(discharges.cbegin(), discharges.cend(), [&](const DischargePlace &there) {
               return shown.batteries.at(there.battery).discharges.at(there.discharge) ==
                      now.batteries.at(there.battery).discharges.at(there.discharge);
           });
}

/** The figures in a cell: one, or a text with one for each battery. Negative ones are not read. */
QList<double> figuresIn(const QVariant &value)
{
    if (value.typeId() != QMetaType::QString)
        return {value.toDouble()};
    QList<double> figures;
    const QStringList texts = value.toString().split(u';');
    for (const QString &text : texts) {
        bool isRead = false;
        figures.append(QLocale().toDouble(text.trimmed(), &isRead));
        if (!isRead || !(figures.constLast() >= 0.0)) // nor what is no number
            return {};
    }
    return figures;
}

QString applyFigures(Catalogue &catalogue, const FlightPlace &place, int column, const QVariant &value)
{
    const QList<DischargePlace> discharges = dischargesOf(catalogue, place);
    const QList<double> figures = figuresIn(value);
    if (figures.size() != discharges.size())
        return Texts::tr("Enter a figure for each of the %n batteries, with a semicolon between them.",
                         nullptr, static_cast<int>(discharges.size()));
    Catalogue changed = catalogue;
    for (qsizetype i = 0; i < figures.size(); ++i) {
        const DischargePlace &there = discharges.at(i);
        const Discharge &old = catalogue.batteries.at(there.battery).discharges.at(there.discharge);
        const double scaled = figures.at(i) * (column == FlightsModel::Current ? HundredthsOfAnAmpere : 1.0);
        // Far beyond what is taken is as good as beyond, and fits.
        const auto figure = static_cast<unsigned int>(std::lround(std::min(scaled, 1e9)));
        const QString problem = column == FlightsModel::Current
                                    ? Edits::editDischarge(changed, there, old.discharged, figure)
                                    : Edits::editDischarge(changed, there, figure, old.current);
        if (!problem.isEmpty())
            return problem;
    }
    catalogue = changed;
    return QString();
}

QString applyBattery(Catalogue &catalogue, const FlightPlace &place, qsizetype battery)
{
    const QList<DischargePlace> discharges = dischargesOf(catalogue, place);
    if (discharges.size() != 1)
        return FlightEdits::changedMeanwhile();
    return FlightEdits::moveDischarges(catalogue, {place}, discharges.constFirst().battery, battery);
}

QString applyModel(Catalogue &catalogue, FlightPlace &place, qsizetype model)
{
    QList<FlightPlace> places{place};
    const QString problem = Edits::moveFlights(catalogue, places, model);
    place = places.constFirst();
    return problem;
}

/** Gives a flight what its field for a column gave. @p place becomes where it stands then. */
QString apply(Catalogue &catalogue, FlightPlace &place, int column, const QVariant &value)
{
    Flight flight = catalogue.models.at(place.model).log.at(place.flight);
    switch (column) {
    case FlightsModel::ModelName:
        return applyModel(catalogue, place, value.toInt());
    case FlightsModel::Batteries:
        return applyBattery(catalogue, place, value.toInt());
    case FlightsModel::Discharged:
    case FlightsModel::Current:
        return applyFigures(catalogue, place, column, value);
    case FlightsModel::Time:
        flight.time = value.toDateTime();
        break;
    case FlightsModel::Duration:
        flight.duration = value.toTime();
        break;
    case FlightsModel::Location:
        flight.location = value.toString();
        break;
    case FlightsModel::Temperature:
        flight.temperature = value.toInt();
        break;
    case FlightsModel::Notes:
        flight.notes = value.toString();
        break;
    default:
        break;
    }
    return Edits::editFlight(catalogue, place, flight);
}

} // namespace

bool FlightEdits::areThere(const QList<FlightPlace> &places, const Catalogue &shown, const Catalogue &now)
{
    return std::all_of(places.cbegin(), places.cend(), [&](const FlightPlace &place) {
        if (place.model >= now.models.size())
            return false;
        const Model &before = shown.models.at(place.model);
        const Model &model = now.models.at(place.model);
        return model.name == before.name && place.flight < model.log.size() &&
               model.log.at(place.flight) == before.log.at(place.flight);
    });
}

QString FlightEdits::changedMeanwhile()
{
    return Texts::tr("The logbook has changed meanwhile. Look at the table again, and repeat what you did.");
}

bool FlightEdits::canBeChosen(const Catalogue &shown, const Catalogue &now)
{
    return FlightFields::names(now.models) == FlightFields::names(shown.models) &&
           FlightFields::names(now.batteries) == FlightFields::names(shown.batteries);
}

QString FlightEdits::edit(OpenLogbook &logbook, const Catalogue &shown, FlightPlace &place,
                          const Entered &entered)
{
    QList<int> columns = entered.keys();
    // With a time its discharges go, or stay with another flight: they are edited where they were shown.
    if (columns.removeOne(FlightsModel::Time))
        columns.append(FlightsModel::Time);
    FlightPlace edited = place;
    const QString problem = logbook.change(Texts::tr("Flight edited"), [&](Catalogue &catalogue) {
        if (!areThere({place}, shown, catalogue) || !canBeChosen(shown, catalogue) ||
            !areDischargesThere(place, shown, catalogue))
            return changedMeanwhile();
        QString obstacle;
        for (qsizetype i = 0; i < columns.size() && obstacle.isEmpty(); ++i)
            obstacle = apply(catalogue, edited, columns.at(i), entered.value(columns.at(i)));
        return obstacle;
    });
    if (problem.isEmpty())
        place = edited;
    return problem;
}

QString FlightEdits::moveDischarges(Catalogue &catalogue, const QList<FlightPlace> &places, qsizetype from,
                                    qsizetype to)
{
    const qsizetype before = catalogue.batteries.at(to).discharges.size();
    const Battery source = catalogue.batteries.at(from);
    const QString problem = Edits::moveDischarges(catalogue, places, from, to);
    if (!problem.isEmpty() || from == to)
        return problem;
    Battery &target = catalogue.batteries[to];
    for (qsizetype i = before; i < target.discharges.size(); ++i) {
        Discharge &discharge = target.discharges[i];
        if (sourceOf(source, discharge) != Source::Guessed)
            continue;
        discharge.discharged = presetDischarge(target);
        discharge.current = presetCurrent(target);
    }
    return QString();
}

} // namespace Host
