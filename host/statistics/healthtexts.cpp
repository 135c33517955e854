// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/statistics/measuredfigures.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** The texts of this file. */
struct BatteryHealth
{
    Q_DECLARE_TR_FUNCTIONS(BatteryHealth)
};

/** A number of so many significant digits, and so many decimals at most. */
QString rounded(double value, int digits, int mostDecimals)
{
    const double size = std::abs(value);
    const int decimals = size > 0 ? digits - 1 - static_cast<int>(std::floor(std::log10(size))) : 0;
    const double unit = std::pow(10, -std::min(decimals, mostDecimals));
    return QLocale().toString(std::round(size / unit) * unit, 'f', std::clamp(decimals, 0, mostDecimals));
}

QString milliampereHours(double value)
{
    return rounded(value, 3, 0);
}

QString milliohms(double value)
{
    return rounded(value, 2, 1);
}

QString noTrend()
{
    return BatteryHealth::tr("No trend stands out from chance.");
}

QString capacityText(const Battery &battery, const Health &health)
{
    if (!health.capacity)
        return BatteryHealth::tr("Capacity: shown once five measured flights tell it; so far %1.")
            .arg(QLocale().toString(health.capacities));
    const Trend &trend = *health.capacity;
    const QString about =
        battery.capacity > 0
            ? BatteryHealth::tr("Capacity: about %1 mAh of %2, from %Ln flights, half of them within %3 mAh "
                                "of that.",
                                nullptr, trend.flights)
                  .arg(milliampereHours(trend.median), QLocale().toString(battery.capacity),
                       milliampereHours(trend.spread))
            : BatteryHealth::tr("Capacity: about %1 mAh, from %Ln flights, half of them within %2 mAh of "
                                "that.",
                                nullptr, trend.flights)
                  .arg(milliampereHours(trend.median), milliampereHours(trend.spread));
    return about + u' ' +
           (trend.isAgeing ? BatteryHealth::tr("Ageing: it has fallen by about %1 mAh over these flights.")
                                 .arg(milliampereHours(trend.change))
                           : noTrend());
}

QString resistanceText(const Health &health)
{
    if (!health.resistance)
        return BatteryHealth::tr("Internal resistance: shown once five measured flights tell it; so far %1.")
            .arg(QLocale().toString(health.resistances));
    const Trend &trend = *health.resistance;
    const QString about =
        BatteryHealth::tr("Internal resistance: about %1 mΩ, from %Ln flights, half of them "
                          "within %2 mΩ of that.",
                          nullptr, trend.flights)
            .arg(milliohms(trend.median), milliohms(trend.spread));
    return about + u' ' +
           (trend.isAgeing ? BatteryHealth::tr("Ageing: it has risen by about %1 mΩ over these flights.")
                                 .arg(milliohms(trend.change))
                           : noTrend());
}

} // namespace

QStringList healthTexts(const Battery &battery, const MeasuredFigures &figures)
{
    if (figures.flights == 0)
        return {BatteryHealth::tr("No flight of “%1” was measured yet: choose Import Radio Logs… in the menu "
                                  "Logbook to read what your radio has logged.")
                    .arg(battery.name)};
    return {capacityText(battery, figures.health), resistanceText(figures.health)};
}

} // namespace Host
