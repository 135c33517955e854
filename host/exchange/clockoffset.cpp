// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the matching that finds out whether the radio's clock is wrong.
#include "host/exchange/matching.h"

#include <algorithm>
#include <utility>

namespace Host {
namespace {

constexpr qint64 Second = 1000; // ms, also in the numbers of clocks
constexpr qint64 HalfAnHour =
    qint64(30) * 60;           // s: the time zones of the world differ by multiples of it, mostly
constexpr int MostHalves = 28; // 14 hours
constexpr qint64 QuickHand = qint64(20) * 60; // s, within which most flights are recorded
constexpr int LeastFlights = 2;               // one alone may be chance

/** How many flights were recorded soon after a discharge, if the clock was that far behind; and of how many
 * discharges. */
std::pair<int, int> nearMatches(const ImportPlan &plan)
{
    int near = 0;
    int all = 0;
    for (const ImportedDischarge &discharge : plan.discharges) {
        if (discharge.action == ImportAction::Bench || discharge.reasons.contains(ImportReason::GoesOn))
            continue;
        ++all;
        if (discharge.action != ImportAction::Fill || discharge.parts.isEmpty())
            continue;
        const qint64 moment = momentOf(discharge.time) * Second;
        if (moment >= discharge.whole.start && moment <= discharge.parts.constLast().end + QuickHand * Second)
            ++near;
    }
    return {near, all};
}

} // namespace

std::optional<qint64> clockOffset(const QList<ImportedLog> &logs, const Catalogue &catalogue,
                                  const Measured &measured, const MatchOptions &options)
{
    const auto matchesAt = [&](qint64 offset) {
        MatchOptions shifted = options;
        shifted.clockOffset += offset;
        return nearMatches(matched(logs, catalogue, measured, shifted));
    };
    const auto [present, discharges] = matchesAt(0);
    if (discharges < LeastFlights)
        return std::nullopt;
    std::optional<qint64> best;
    int most = std::max(LeastFlights - 1, 2 * present - 1); // chance may match some, too
    for (int halves = 1; halves <= MostHalves; ++halves) {  // the smallest that explains as much as any
        for (const int sign : {1, -1}) {
            if (options.goOn && !options.goOn())
                return std::nullopt;
            const qint64 offset = qint64(sign) * halves * HalfAnHour * Second;
            const auto [near, all] = matchesAt(offset);
            if (near <= most || 2 * near <= all)
                continue;
            most = near;
            best = offset;
        }
    }
    return best;
}

} // namespace Host
