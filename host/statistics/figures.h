// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/daterange.h"

#include <QDate>
#include <QList>
#include <QMap>
#include <QString>

#include <optional>
#include <utility>

namespace Host {

/** How often something was there, by name, in the order of the file. */
using Counts = QList<std::pair<QString, int>>;

/** One battery in figures. What there is nothing to be worked out from is missing. */
struct BatteryFigures
{
    QString name;
    int discharges = 0;
    int counted = 0;               ///< entered or measured; means, medians and maxima are theirs alone
    quint64 dischargedTotal = 0;   ///< mAh, of all discharges
    quint64 dischargedGuessed = 0; ///< mAh, the part of the total that is guessed
    std::optional<double> equivalentFullCycles;
    std::optional<double> medianDepth; ///< share of the capacity
    std::optional<double> maxDepth;
    std::optional<double> maxLoad; ///< C
    std::optional<qint64> ageDays;
    std::optional<qint64> daysSinceUse;    ///< since the later of last use and newest discharge
    int flights = 0;                       ///< of all models, at the times of its discharges
    double minutes = 0.0;                  ///< of these flights
    std::optional<double> chargePerMinute; ///< mAh, mean
    QMap<QString, int> flightsPerMonth;    ///< by "2026-03"; months without a flight are left out
};

struct ModelFigures
{
    QString name;
    int flights = 0; ///< in the log
    double minutes = 0.0;
    QDateTime first;
    QDateTime last;
    std::optional<double> meanMinutes; ///< of the flights with a duration
    Counts locations;
    Counts batteries;
};

struct LocationFigures
{
    QString name;
    int flights = 0;
    double minutes = 0.0;
};

struct MonthFigures
{
    QString month; ///< "2026-03"
    int flights = 0;
    double minutes = 0.0;
    quint64 discharged = 0; ///< mAh
};

struct Figures
{
    QList<BatteryFigures> batteries;
    QList<ModelFigures> models;
    QList<LocationFigures> locations;
    QList<MonthFigures> months; ///< ascending, with a flight or a discharge
    MonthFigures total;         ///< of everything in range; its month is empty
};

/** The figures of a catalogue; ages are those of @p today, whatever the range. */
Figures figuresOf(const Catalogue &catalogue, const DateRange &range, QDate today);

/** The mean of the middle two of an even number; missing without any value. */
std::optional<double> median(QList<double> values);

/** Days from the battery's purchase; missing without a date, or when it is still to come. */
std::optional<qint64> ageInDays(const Battery &battery, QDate today);
/** Days since the later of last use and newest discharge; missing when there is none, or it is to come. */
std::optional<qint64> daysSinceUse(const Battery &battery, QDate today);

} // namespace Host
