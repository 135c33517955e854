// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/mergemeasured.h"

#include "host/data/moments.h"

#include <QHash>

#include <utility>

namespace Host {
namespace {

using Discharges = QHash<std::pair<QString, qint64>, Discharge>;

/** The first discharge of each battery at each time. */
Discharges dischargesOf(const Catalogue &catalogue)
{
    Discharges discharges;
    for (const Battery &battery : catalogue.batteries) {
        for (const Discharge &discharge : battery.discharges) {
            const std::pair key(battery.name, momentOf(discharge.time));
            if (discharge.time.isValid() && !discharges.contains(key))
                discharges.insert(key, discharge);
        }
    }
    return discharges;
}

/** Adds what only theirs has. */
template <typename Value>
void unite(QMap<QString, Value> &ours, const QMap<QString, Value> &theirs)
{
    for (auto entry = theirs.cbegin(); entry != theirs.cend(); ++entry) {
        if (!ours.contains(entry.key()))
            ours.insert(entry.key(), entry.value());
    }
}

} // namespace

Measured mergeMeasured(const Measured &ours, const Catalogue &before, const Measured &theirs,
                       const Catalogue &theirCatalogue, const Catalogue &merged)
{
    Measured all = MeasuredFile::followed(ours, before, merged);
    const Discharges there = dischargesOf(theirCatalogue);
    const Discharges here = dischargesOf(merged);
    for (const MeasuredDischarge &discharge : theirs.discharges) {
        const std::pair key(discharge.battery, discharge.moment);
        const auto found = here.constFind(key);
        if (found != here.constEnd() && there.contains(key) && *found == there.value(key) &&
            !all.find(discharge.battery, discharge.moment))
            all.discharges.append(discharge);
    }
    for (const KnownLog &log : theirs.logs) {
        if (!all.logOf(log.sha256))
            all.logs.append(log);
    }
    unite(all.models, theirs.models);
    unite(all.columns, theirs.columns);
    for (auto other = theirs.others.constBegin(); other != theirs.others.constEnd(); ++other) {
        if (!all.others.contains(other.key()))
            all.others.insert(other.key(), other.value());
    }
    return all;
}

} // namespace Host
