// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/flownbatteries.h"

#include "host/data/moments.h"

#include <algorithm>

namespace Host {

FlownBatteries::FlownBatteries(const Catalogue &whole)
{
    for (qsizetype battery = 0; battery < whole.batteries.size(); ++battery) {
        for (const Discharge &discharge : whole.batteries.at(battery).discharges) {
            if (const qint64 moment = momentOf(discharge.time); moment != NoMoment)
                m_entries.push_back({moment, battery});
        }
    }
    std::sort(m_entries.begin(), m_entries.end());
    m_entries.erase(std::unique(m_entries.begin(), m_entries.end()), m_entries.end());
}

FlownBatteries::Range FlownBatteries::at(qint64 moment) const
{
    const auto first = std::lower_bound(m_entries.cbegin(), m_entries.cend(), Entry{moment, 0});
    const auto last = std::find_if(first, m_entries.cend(),
                                   [moment](const Entry &entry) { return entry.moment != moment; });
    return {first, last};
}

} // namespace Host
