// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/catalogue.h"

#include <QByteArray>

/** A logbook of two batteries that were flown and one that was not, in known figures. */
namespace Flown {

/** Noon of a day. */
inline QDateTime noon(int year, int month, int day)
{
    return QDateTime(QDate(year, month, day), QTime(12, 0));
}

/**
 * Pack A, 2,000 mAh at 25 C: 1,000 and 1,400 mAh entered, 1,600 mAh guessed. Pack B: one discharge that is
 * guessed. Pack C: none.
 */
inline QList<Catalogue::Battery> batteries()
{
    Catalogue::Battery a{
        QStringLiteral("Pack A"),
        {{noon(2026, 3, 1), 1000, 2000}, {noon(2026, 5, 1), 1400, 4000}, {noon(2026, 5, 2), 1600, 5000}},
        2000,
        QDate(2020, 1, 1)};
    Catalogue::Battery b{QStringLiteral("Pack B"), {{noon(2026, 5, 3), 800, 2500}}, 1000, QDate()};
    Catalogue::Battery c{QStringLiteral("Pack C"), {}, 1300, QDate()};
    return {a, b, c};
}

/** One flight for each discharge, of two models at two places. */
inline QList<Catalogue::Model> models()
{
    const auto flight = [](const QDateTime &time, const QString &location, int minutes) {
        return Catalogue::Flight{time, location, QTime(0, minutes)};
    };
    const QString meadow = QStringLiteral("Meadow");
    const QString hill = QStringLiteral("Hill");
    return {{QStringLiteral("Kestrel"),
             {flight(noon(2026, 3, 1), meadow, 5), flight(noon(2026, 5, 1), hill, 7),
              flight(noon(2026, 5, 2), meadow, 8)}},
            {QStringLiteral("Wren"), {flight(noon(2026, 5, 3), meadow, 10)}}};
}

inline QByteArray logbook()
{
    return Catalogue::file(models(), batteries());
}

} // namespace Flown
