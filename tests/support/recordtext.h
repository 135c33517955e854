// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/valuetext.h"

#include <QStringList>

/**
 * Records as lines of text, as exactly as the data file can hold them: moments to the second, texts without
 * what XML has no form for (by the writer's own rule). Nothing is written on the way, so that what the writer
 * forgets is not forgotten here.
 */
namespace RecordText {

inline QString line(const QStringList &values)
{
    return values.join(u'|');
}

inline QString of(const QDateTime &when)
{
    return when.toString(Qt::TextDate);
}

inline QStringList of(BatteryWidget *battery)
{
    QStringList lines{line(
        {ValueText::xmlText(battery->getBatteryName()), QString::number(battery->getBatteryCapacity()),
         QString::number(battery->getBatteryChargeRate()), QString::number(battery->getBatteryRating()),
         battery->getdateOfPurchase().toString(Qt::ISODate), QString::number(battery->getBatteryCycles()),
         QString::number(static_cast<int>(battery->getBatteryCharged())),
         of(battery->getBatteryLastUpdated())})};
    for (qsizetype i = 0; i < battery->getDates().size(); ++i)
        lines.append(line({of(battery->getDates().at(i)), QString::number(battery->getDischarges().at(i)),
                           QString::number(battery->getCurrents().at(i))}));
    return lines;
}

/** A model with its first @p flights flights. */
inline QStringList of(ModelWidget *model, qsizetype flights)
{
    QStringList lines{
        line({ValueText::xmlText(model->getModelName()), ValueText::xmlText(model->getModelType()),
              QString::number(model->getModelWeight()), QString::number(model->getModelSize()),
              model->getDateOfPurchase().toString(Qt::ISODate), QString::number(model->getModelFlights()),
              ValueText::xmlText(model->getAdditionalNotes()), of(model->getLastUpdated())})};
    lines.append(line(model->getBatteries()));
    for (const LogData &flight : model->getLogData().first(flights))
        lines.append(line({of(flight.date), flight.duration.toString(Qt::TextDate),
                           ValueText::xmlText(flight.location), QString::number(flight.temperature),
                           ValueText::xmlText(flight.notes)}));
    return lines;
}

/** Batteries, and models with as many of their flights. */
inline QStringList of(const QList<BatteryWidget *> &batteries, const QList<ModelWidget *> &models,
                      const QList<qsizetype> &flights)
{
    QStringList lines;
    for (BatteryWidget *battery : batteries)
        lines += of(battery);
    for (qsizetype i = 0; i < models.size(); ++i)
        lines += of(models.at(i), flights.at(i));
    return lines;
}

/** Batteries, and models with all of their flights. */
inline QStringList of(const QList<BatteryWidget *> &batteries, const QList<ModelWidget *> &models)
{
    QList<qsizetype> flights;
    for (ModelWidget *model : models)
        flights.append(model->getLogData().size());
    return of(batteries, models, flights);
}

} // namespace RecordText
