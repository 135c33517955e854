// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/statistics/measuredfigures.h"

#include "host/data/moments.h"

#include <QSet>

namespace Host {
namespace {

/** The entries of a battery's discharges; of two at the identical time, one. */
QList<const MeasuredDischarge *> entriesOf(const Battery &battery, const Measured &measured)
{
    QSet<qint64> moments;
    for (const Discharge &discharge : battery.discharges) {
        if (discharge.isMeasured)
            moments.insert(momentOf(discharge.time));
    }
    QList<const MeasuredDischarge *> entries;
    for (const MeasuredDischarge &entry : measured.discharges) {
        if (entry.battery == battery.name && moments.remove(entry.moment))
            entries.append(&entry);
    }
    return entries;
}

Spread spreadOf(const QList<const MeasuredDischarge *> &entries,
                std::optional<double> MeasuredDischarge::*value)
{
    std::vector<double> values;
    for (const MeasuredDischarge *entry : entries) {
        if (entry->*value)
            values.push_back(*(entry->*value));
    }
    return Host::spreadOf(values);
}

QList<Measurement> measurementsOf(const QList<const MeasuredDischarge *> &entries)
{
    QList<Measurement> measurements;
    for (const MeasuredDischarge *entry : entries)
        measurements.append({timeOf(entry->moment), entry->resistance, entry->capacity});
    return measurements;
}

} // namespace

QList<Measurement> measurementsOf(const Battery &battery, const Measured &measured)
{
    return measurementsOf(entriesOf(battery, measured));
}

MeasuredFigures measuredFigures(const Battery &battery, const Measured &measured)
{
    const QList<const MeasuredDischarge *> entries = entriesOf(battery, measured);
    MeasuredFigures figures;
    figures.flights = static_cast<int>(entries.size());
    figures.counter = spreadOf(entries, &MeasuredDischarge::counter);
    figures.integral = spreadOf(entries, &MeasuredDischarge::integral);
    figures.restBefore = spreadOf(entries, &MeasuredDischarge::restBefore);
    figures.restAfter = spreadOf(entries, &MeasuredDischarge::restAfter);
    figures.minVoltage = spreadOf(entries, &MeasuredDischarge::minVoltage);
    figures.health = healthOf(measurementsOf(entries));
    return figures;
}

} // namespace Host
