// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ctime>
#include <functional>

namespace Test {

/**
 * How many times as long some work takes for ten times as many entries: about 10 where it grows with them,
 * about 100 where it grows with their square. It is the time of the processor, so that other programs at work
 * do not count.
 *
 * @param work for so many entries.
 * @param entries of the larger work.
 */
inline double growth(const std::function<void(int)> &work, int entries)
{
    const auto ticks = [&work](int count) {
        const std::clock_t start = std::clock();
        work(count);
        return static_cast<double>(std::clock() - start);
    };
    const double smaller = ticks(entries / 10);
    return ticks(entries) / (smaller > 1 ? smaller : 1);
}

} // namespace Test
