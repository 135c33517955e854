// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTime>

namespace Host {

/** A discharge of a battery. Figures of 0 were not entered. */
struct Discharge
{
    QDateTime time;              ///< local, in whole seconds; invalid when it is not known
    unsigned int discharged = 0; ///< mAh
    unsigned int current = 0;    ///< the highest, in hundredths of an ampere
    bool isMeasured = false;     ///< a radio's log says so; not a part of the data file

    bool operator==(const Discharge &other) const
    {
        return time == other.time && discharged == other.discharged && current == other.current;
    }
};

struct Battery
{
    QString name;
    unsigned int capacity = 0;   ///< mAh
    unsigned int rating = 0;     ///< permitted discharge rate in C
    unsigned int chargeRate = 0; ///< tenths of C; 0 for none
    unsigned int cycles = 0;
    bool charged = false;
    QDate purchase;
    QDateTime lastUse;
    QList<Discharge> discharges; ///< in the order of recording

    bool operator==(const Battery &other) const
    {
        return name == other.name && capacity == other.capacity && rating == other.rating &&
               chargeRate == other.chargeRate && cycles == other.cycles && charged == other.charged &&
               purchase == other.purchase && lastUse == other.lastUse && discharges == other.discharges;
    }
};

/** A flight of a model. The batteries that were flown have a discharge at the identical time. */
struct Flight
{
    QDateTime time; ///< local, in whole seconds; invalid when it is not known
    QTime duration; ///< invalid when it is not known
    QString location;
    int temperature = 0; ///< °C
    QString notes;

    int seconds() const { return duration.isValid() ? QTime(0, 0).secsTo(duration) : 0; }

    bool operator==(const Flight &other) const
    {
        return time == other.time && duration == other.duration && location == other.location &&
               temperature == other.temperature && notes == other.notes;
    }
};

struct Model
{
    QString name;
    QString type;
    unsigned int weight = 0;
    unsigned int size = 0;
    unsigned int flights = 0; ///< counted by the pilot; not the length of the log
    QDate purchase;
    QString notes;
    QDateTime lastUpdate;
    QStringList batteries; ///< the names of those assigned to it
    QList<Flight> log;     ///< in the order of recording

    bool operator==(const Model &other) const
    {
        return name == other.name && type == other.type && weight == other.weight && size == other.size &&
               flights == other.flights && purchase == other.purchase && notes == other.notes &&
               lastUpdate == other.lastUpdate && batteries == other.batteries && log == other.log;
    }
};

/** Everything that a data file holds, as plain values in its order. */
struct Catalogue
{
    QStringList locations;
    QList<Battery> batteries;
    QList<Model> models;

    bool operator==(const Catalogue &other) const
    {
        return locations == other.locations && batteries == other.batteries && models == other.models;
    }
    bool operator!=(const Catalogue &other) const { return !(*this == other); }
};

} // namespace Host
