// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/statistics/figuresjson.h"

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

template <typename Number>
QJsonValue number(const std::optional<Number> &value)
{
    return value ? QJsonValue(*value) : QJsonValue();
}

QJsonValue number(quint64 value)
{
    return static_cast<qint64>(value);
}

QJsonObject counts(const Counts &counts)
{
    QJsonObject object;
    for (const auto &[name, count] : counts)
        object.insert(name, count);
    return object;
}

QJsonObject battery(const BatteryFigures &figures)
{
    QJsonObject months;
    for (auto it = figures.flightsPerMonth.cbegin(); it != figures.flightsPerMonth.cend(); ++it)
        months.insert(it.key(), it.value());
    return {{u"name"_s, figures.name},
            {u"discharges"_s, figures.discharges},
            {u"counted"_s, figures.counted},
            {u"discharged_mAh_total"_s, number(figures.dischargedTotal)},
            {u"discharged_mAh_guessed"_s, number(figures.dischargedGuessed)},
            {u"equivalent_full_cycles"_s, number(figures.equivalentFullCycles)},
            {u"median_depth"_s, number(figures.medianDepth)},
            {u"max_depth"_s, number(figures.maxDepth)},
            {u"max_load_C"_s, number(figures.maxLoad)},
            {u"age_days"_s, number(figures.ageDays)},
            {u"days_since_use"_s, number(figures.daysSinceUse)},
            {u"flights"_s, figures.flights},
            {u"minutes"_s, figures.minutes},
            {u"mean_mAh_per_minute"_s, number(figures.chargePerMinute)},
            {u"flights_per_month"_s, months}};
}

QJsonObject model(const ModelFigures &figures)
{
    return {{u"name"_s, figures.name},
            {u"flights"_s, figures.flights},
            {u"minutes"_s, figures.minutes},
            {u"first"_s, FiguresJson::time(figures.first)},
            {u"last"_s, FiguresJson::time(figures.last)},
            {u"mean_minutes"_s, number(figures.meanMinutes)},
            {u"locations"_s, counts(figures.locations)},
            {u"batteries"_s, counts(figures.batteries)}};
}

QJsonObject location(const LocationFigures &figures)
{
    return {{u"name"_s, figures.name}, {u"flights"_s, figures.flights}, {u"minutes"_s, figures.minutes}};
}

QJsonObject total(const MonthFigures &figures)
{
    return {{u"flights"_s, figures.flights},
            {u"minutes"_s, figures.minutes},
            {u"discharged_mAh"_s, number(figures.discharged)}};
}

QJsonObject month(const MonthFigures &figures)
{
    QJsonObject object = total(figures);
    object.insert(u"month"_s, figures.month);
    return object;
}

template <typename Entries, typename Convert>
QJsonArray array(const Entries &entries, Convert convert)
{
    QJsonArray array;
    for (const auto &entry : entries)
        array.append(convert(entry));
    return array;
}

} // namespace

QJsonValue FiguresJson::time(const QDateTime &time)
{
    return time.isValid() ? QJsonValue(time.toString(u"yyyy-MM-ddTHH:mm:ss")) : QJsonValue();
}

QJsonObject FiguresJson::figures(const Figures &figures)
{
    return {{u"batteries"_s, array(figures.batteries, battery)},
            {u"models"_s, array(figures.models, model)},
            {u"locations"_s, array(figures.locations, location)},
            {u"months"_s, array(figures.months, month)},
            {u"total"_s, total(figures.total)}};
}

QJsonArray FiguresJson::advice(const QList<Advice> &advice)
{
    return array(advice, [](const Advice &entry) {
        return QJsonObject{{u"battery"_s, entry.battery},
                           {u"model"_s, entry.model.isEmpty() ? QJsonValue() : QJsonValue(entry.model)},
                           {u"kind"_s, adviceKey(entry.kind)},
                           {u"severity"_s, severityKey(entry.severity)},
                           {u"value"_s, entry.value},
                           {u"text"_s, entry.text}};
    });
}

} // namespace Host
