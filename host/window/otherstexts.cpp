// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/otherstexts.h"

#include "host/data/difference.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace Host {
namespace {

constexpr std::array Counts = {std::pair(RecordKind::Flight, &Contents::flights),
                               std::pair(RecordKind::Discharge, &Contents::discharges),
                               std::pair(RecordKind::Battery, &Contents::batteries),
                               std::pair(RecordKind::Model, &Contents::models),
                               std::pair(RecordKind::Location, &Contents::locations)};

} // namespace

QString changeInWords(const Contents &before, const Contents &now)
{
    Difference difference;
    for (const auto &[kind, count] : Counts) {
        const int more = now.*count - before.*count;
        DifferentRecord record;
        record.kind = kind;
        record.change = more > 0 ? DifferentRecord::More : DifferentRecord::Fewer;
        std::fill_n(std::back_inserter(difference.records), std::abs(more), record);
    }
    return difference.isNone()
               ? QCoreApplication::translate("Others", "as many entries as before, with other contents")
               : DifferenceTexts::inWords(difference);
}

bool holdsFewer(const Contents &before, const Contents &now)
{
    return std::any_of(Counts.begin(), Counts.end(),
                       [&](const auto &count) { return now.*count.second < before.*count.second; });
}

} // namespace Host
