// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the edits that finds flights that stand twice.
#include "host/data/edits.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace Host {

QList<Edits::Double> Edits::doubles(const Catalogue &catalogue)
{
    constexpr qint64 MostSeconds = 5;
    const Moments moments(catalogue);
    const auto batteriesAt = [&](const Flight &flight) {
        QSet<qsizetype> batteries;
        for (const DischargePlace &place : moments.dischargesAt(momentOf(flight.time)))
            batteries.insert(place.battery);
        return batteries;
    };
    const auto isAlike = [&](const Flight &first, const Flight &second) {
        return first.duration == second.duration && first.location == second.location &&
               first.temperature == second.temperature && first.notes == second.notes &&
               batteriesAt(first).contains(batteriesAt(second));
    };
    QList<Double> found;
    for (qsizetype model = 0; model < catalogue.models.size(); ++model) {
        const QList<Flight> &log = catalogue.models.at(model).log;
        QList<std::pair<qint64, qsizetype>> order;
        for (qsizetype i = 0; i < log.size(); ++i) {
            if (log.at(i).time.isValid())
                order.append({momentOf(log.at(i).time), i});
        }
        std::sort(order.begin(), order.end());
        QSet<qsizetype> removed;
        for (auto first = order.cbegin(); first != order.cend(); ++first) {
            if (removed.contains(first->second))
                continue;
            for (auto second = first + 1;
                 second != order.cend() && second->first - first->first <= MostSeconds; ++second) {
                if (removed.contains(second->second) ||
                    !isAlike(log.at(first->second), log.at(second->second)))
                    continue;
                removed.insert(second->second);
                found.append(Double{{model, first->second}, {model, second->second}});
            }
        }
    }
    return found;
}

} // namespace Host
