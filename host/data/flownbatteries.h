// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <vector>

namespace Host {

/**
 * Which batteries were flown at which time: those that have a discharge there, each of them once, in the
 * order of the file.
 */
class FlownBatteries
{
public:
    struct Entry
    {
        qint64 moment;
        qsizetype battery; ///< its place in the catalogue

        bool operator==(const Entry &other) const
        {
            return moment == other.moment && battery == other.battery;
        }
        bool operator<(const Entry &other) const
        {
            return moment != other.moment ? moment < other.moment : battery < other.battery;
        }
    };

    /** To be walked through, as long as what gave it lives. */
    struct Range
    {
        std::vector<Entry>::const_iterator first;
        std::vector<Entry>::const_iterator last;

        auto begin() const { return first; }
        auto end() const { return last; }
    };

    explicit FlownBatteries(const Catalogue &whole);

    /** Those of a flight at this time; none where it is NoMoment. */
    Range at(qint64 moment) const;

private:
    std::vector<Entry> m_entries; // sorted
};

} // namespace Host
