// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/statistics/advice.h"

/** Small logbooks to be advised on, and the advice in a few words. */
namespace Advised {

using namespace Host;
using namespace Qt::Literals::StringLiterals;

inline const QDate Today(2026, 11, 22);

inline QDateTime daysAgo(int days, int hour = 12)
{
    return QDateTime(Today.addDays(-days), QTime(hour, 0));
}

/** With nothing to say about: 1000 mAh, 30 C, used yesterday. */
inline Battery pack(const QString &name = u"Pack"_s)
{
    Battery battery;
    battery.name = name;
    battery.capacity = 1000;
    battery.rating = 30;
    battery.lastUse = daysAgo(1);
    return battery;
}

/** "deep warning 0.93" and so on, one line for each entry. */
inline QStringList said(const Catalogue &catalogue, QDate today = Today)
{
    QStringList lines;
    for (const Advice &advice : adviceFor(catalogue, today))
        lines.append(adviceKey(advice.kind) + u' ' + severityKey(advice.severity) + u' ' +
                     QString::number(advice.value));
    return lines;
}

inline QStringList said(const Battery &battery)
{
    Catalogue catalogue;
    catalogue.batteries = {battery};
    return said(catalogue);
}

/** A flight of a minute, and a discharge of the same time. */
inline void fly(Catalogue &catalogue, const QDateTime &time, unsigned int discharged, int seconds = 60,
                int degrees = 20)
{
    catalogue.batteries[0].discharges.append({time, discharged, 1});
    if (catalogue.models.isEmpty())
        catalogue.models.append(Model());
    catalogue.models[0].name = u"Skylark"_s;
    catalogue.models[0].log.append({time, QTime(0, 0).addSecs(seconds), QString(), degrees, QString()});
}

} // namespace Advised
