// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/moments.h"

#include <QList>
#include <QString>

#include <optional>

/**
 * Changes of a catalogue by its user. Each returns why it cannot be done, in whole sentences, and has then
 * changed nothing; or an empty text.
 *
 * A flight and its discharges are one thing: they stand at the identical time and stay there together. A
 * battery's cycles follow its discharges. A model's count of flights is its pilot's own: only adding a flight
 * raises it, and nothing lowers it, as a capture leaves it alone, too.
 */
namespace Host::Edits {

// What the discharge page takes; its limits are those of the file's honest users.
inline constexpr int MostDischarge = 20'000; ///< mAh
inline constexpr int MostCurrent = 30'000;   ///< hundredths of an ampere
inline constexpr int LowestTemperature = -99;
inline constexpr int HighestTemperature = 99;
// What the file's form of dates can spell.
inline constexpr int FirstYear = 1000;
inline constexpr int LastYear = 9999;

/** Why a data file cannot hold a text, in a whole sentence; empty where it can. */
QString textProblem(const QString &text);

struct NewDischarge
{
    qsizetype battery = -1;
    unsigned int discharged = 0; ///< mAh
    unsigned int current = 0;    ///< hundredths of an ampere
};

/**
 * Adds a flight at the end of a model's log and, with a battery, its discharge at the identical time; the
 * model's flights and the battery's cycles count one more. "Charged" and "last use" stay: the battery may
 * have been charged since.
 *
 * Where another flight or a discharge of this battery stands at that time, both go one second later, until
 * they have a time of their own.
 */
QString addFlight(Catalogue &catalogue, qsizetype model, Flight flight,
                  const std::optional<NewDischarge> &discharge = {});

/** Adds a discharge without a flight, and its cycle; where its time is taken, as above. */
QString addDischarge(Catalogue &catalogue, const QDateTime &time, const NewDischarge &discharge);

/**
 * Gives a flight other values; only those that differ must be possible ones. A new time takes the flight's
 * discharges along, unless another flight stands at the old time: then they stay with that one. Where the new
 * time is taken, it is one second later, until it is free.
 */
QString editFlight(Catalogue &catalogue, const FlightPlace &place, Flight flight);

/** Gives a discharge other values; only those that differ must be possible ones. */
QString editDischarge(Catalogue &catalogue, const DischargePlace &place, unsigned int discharged,
                      unsigned int current);

enum class Discharges { Keep, Delete };

/**
 * Deletes flights and perhaps the discharges at their times, for each of which the battery counts one cycle
 * less. A discharge at the time of a flight that stays, stays with it.
 */
QString deleteFlights(Catalogue &catalogue, const QList<FlightPlace> &places, Discharges discharges);

/** Moves flights to the end of another model's log, in their order. @p places become where they stand then.
 */
QString moveFlights(Catalogue &catalogue, QList<FlightPlace> &places, qsizetype model);

/**
 * Moves the discharges of one battery that belong to these flights to the end of another one's history, with
 * the cycles that they are. Refused where such a flight has a discharge of that battery already.
 */
QString moveDischarges(Catalogue &catalogue, const QList<FlightPlace> &places, qsizetype from, qsizetype to);

/**
 * Renames a battery, here and among those assigned to models. Where another battery has the same name, the
 * chosen one alone is renamed, and the models keep the other.
 */
QString renameBattery(Catalogue &catalogue, qsizetype battery, const QString &name);

/** Renames the chosen model, whoever else has its name. */
QString renameModel(Catalogue &catalogue, qsizetype model, const QString &name);

/** All locations: those of the catalogue in its order, then names that only flights know. */
QStringList locationNames(const Catalogue &catalogue);

/**
 * Renames a location, here and in all flights. Where another one of the catalogue has the same name, the
 * chosen one alone is renamed, and the flights keep the other.
 *
 * @param location an index in locationNames().
 */
QString renameLocation(Catalogue &catalogue, qsizetype location, const QString &name);

/** A flight that seems to stand twice, and the one before it that is to stay. */
struct Double
{
    FlightPlace kept;
    FlightPlace removed;
};

/**
 * Finds what a capture leaves that was clicked twice: flights of one model, at most 5 s after another one,
 * the same in all but time, whose batteries have been discharged for the first one, too. Sorted by place of
 * the first. deleteFlights() with their discharges removes them.
 */
QList<Double> doubles(const Catalogue &catalogue);

} // namespace Host::Edits
