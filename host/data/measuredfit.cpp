// SPDX-License-Identifier: GPL-3.0-or-later
// What of the measured values fits to another version of the logbook.
#include "host/data/measured.h"

#include "host/data/moments.h"

#include <QSet>

#include <algorithm>
#include <tuple>

namespace Host {
namespace {

struct Values
{
    qint64 moment;
    unsigned int discharged;
    unsigned int current;

    bool operator==(const Values &other) const
    {
        return std::tie(moment, discharged, current) ==
               std::tie(other.moment, other.discharged, other.current);
    }
};

size_t qHash(const Values &values, size_t seed = 0)
{
    return qHashMulti(seed, values.moment, values.discharged, values.current);
}

QSet<Values> measuredValues(Catalogue catalogue, const Measured &measured)
{
    MeasuredFile::mark(catalogue, measured);
    QSet<Values> all;
    for (const Battery &battery : std::as_const(catalogue.batteries)) {
        for (const Discharge &discharge : battery.discharges) {
            if (discharge.isMeasured)
                all.insert({momentOf(discharge.time), discharge.discharged, discharge.current});
        }
    }
    return all;
}

/** The contents of the logs that a discharge is made of. */
QSet<QString> logsOf(const MeasuredDischarge &entry)
{
    QSet<QString> logs{entry.sha256};
    for (const QString &session : entry.sessions)
        logs.insert(session.section(u':', 0, 0));
    return logs;
}

} // namespace

Measured MeasuredFile::fitting(const Measured &measured, const Catalogue &now, const Catalogue &other)
{
    Measured fitting = followed(measured, now, other);
    const QSet<Values> known = measuredValues(now, measured);
    QSet<std::pair<QString, qint64>> fits;
    for (const Battery &battery : other.batteries) {
        for (const Discharge &discharge : battery.discharges) {
            const qint64 moment = momentOf(discharge.time);
            if (known.contains({moment, discharge.discharged, discharge.current}))
                fits.insert({battery.name, moment});
        }
    }
    fitting.discharges.removeIf([&](const MeasuredDischarge &entry) {
        return !fits.contains({entry.battery, entry.moment});
    });
    // A log that does not stand in the logbook with all its discharges can be imported again.
    QSet<QString> kept;
    for (const MeasuredDischarge &entry : std::as_const(fitting.discharges))
        kept.insert(entry.sha256 + QString::number(entry.moment));
    QSet<QString> incomplete;
    for (const MeasuredDischarge &entry : measured.discharges) {
        if (!kept.contains(entry.sha256 + QString::number(entry.moment)))
            incomplete += logsOf(entry);
    }
    fitting.logs.removeIf([&](const KnownLog &log) { return incomplete.contains(log.sha256); });
    return fitting;
}

} // namespace Host
