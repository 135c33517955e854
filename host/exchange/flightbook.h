// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/daterange.h"

#include <QLocale>

#include <optional>

namespace Host {

/** A flight as the flight book tells of it. */
struct FlightBookEntry
{
    Flight flight;
    QString model;
    QStringList batteries; ///< those with a discharge at its time

    bool operator==(const FlightBookEntry &other) const
    {
        return flight == other.flight && model == other.model && batteries == other.batteries;
    }
};

struct FlightBookTotals
{
    qsizetype flights = 0;
    qint64 seconds = 0; ///< in the air

    FlightBookTotals operator+(const FlightBookTotals &other) const
    {
        return {flights + other.flights, seconds + other.seconds};
    }
    bool operator==(const FlightBookTotals &other) const
    {
        return flights == other.flights && seconds == other.seconds;
    }
};

struct FlightBook
{
    DateRange range;                   ///< that it is limited to
    std::optional<QStringList> models; ///< that it is limited to
    QList<FlightBookEntry> entries;    ///< in the order of time; those without a time at the end

    /** What @p count entries come to, from @p first on. */
    FlightBookTotals totals(qsizetype first, qsizetype count) const;
};

/** The flight book of a catalogue. @param models the names of those that it is limited to, if it is. */
FlightBook flightBookOf(const Catalogue &catalogue, const DateRange &range,
                        const std::optional<QStringList> &models = std::nullopt);

/** The texts of a flight book, as they are printed. */
namespace FlightBookTexts {

enum Column { Date, Start, Duration, ModelName, Batteries, Location, Notes, ColumnCount };

QString title();
/** What the book is limited to; empty when it holds everything. */
QString limits(const FlightBook &book, const QLocale &locale);
QStringList headings();
/** One text for each column. */
QStringList cells(const FlightBookEntry &entry, const QLocale &locale);
QString day(QDate date, const QLocale &locale);
/** "26:05:12" */
QString hours(qint64 seconds);

/**
 * A text in parts that each fit on a page, however narrow the column: what is longer goes on in another row.
 * Characters that nothing can be printed for are replaced.
 */
QStringList parts(const QString &text);

} // namespace FlightBookTexts
} // namespace Host
