// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QString>
#include <QStringView>

/** Where the data file lies and what its elements and attributes are called. */
namespace DataFile {

/** The path of the data file in @p basePath; an empty one stands for the working directory. */
inline QString pathIn(const QString &basePath)
{
    return QDir(basePath).absoluteFilePath(QStringLiteral("voltbok.xml"));
}

/**
 * The names of elements and attributes, each spelled here and nowhere else.
 *
 * The reader finds a name by a substring test, so on one level no name may contain another one that stands
 * there.
 */
namespace Key {
inline constexpr QStringView Voltbok = u"Voltbok";
inline constexpr QStringView Name = u"Name";
inline constexpr QStringView Purchase = u"Purchase";
inline constexpr QStringView Notes = u"Notes";
inline constexpr QStringView Date = u"Date";

inline constexpr QStringView Locations = u"Locations";
inline constexpr QStringView Location = u"Location";

// Under the root a whole record, under Model the name of an assigned battery.
inline constexpr QStringView Battery = u"Battery";
inline constexpr QStringView Capacity = u"Capacity";
inline constexpr QStringView ChargeRate = u"Chrgrate";
inline constexpr QStringView DischargeRate = u"Dischrgrate";
inline constexpr QStringView Cycles = u"Cycles";
inline constexpr QStringView Charged = u"Charged";
inline constexpr QStringView LastUse = u"LastUse";
inline constexpr QStringView Data = u"Data";
inline constexpr QStringView Cycle = u"Cycle";
inline constexpr QStringView Discharged = u"Discharged";
inline constexpr QStringView Current = u"Current";

inline constexpr QStringView Model = u"Model";
inline constexpr QStringView Type = u"Type";
inline constexpr QStringView Weight = u"Weight";
inline constexpr QStringView Size = u"Size";
inline constexpr QStringView Flights = u"Flights";
inline constexpr QStringView LastUpdate = u"LastUpdate";
inline constexpr QStringView FlightLog = u"FlightLog";
inline constexpr QStringView LogData = u"LogData";
inline constexpr QStringView Duration = u"Duration";
inline constexpr QStringView Temperature = u"Temperature";
} // namespace Key

} // namespace DataFile
