// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

#include <dlfcn.h>
#include <sys/time.h>

#include <atomic>
#include <ctime>

/** The clock on the wall, set to any time for a process that is played through a day; it runs on from there.
 * The functions below stand before those of the system. Included by one source file of a program. */
namespace ShownClock {

inline std::atomic<std::time_t> ahead = 0; ///< s

/** To a time of the local clock. */
inline void set(const QDateTime &time)
{
    ahead += time.toSecsSinceEpoch() - QDateTime::currentSecsSinceEpoch();
}

} // namespace ShownClock

extern "C" int clock_gettime(clockid_t clock, timespec *now) noexcept
{
    using Original = int (*)(clockid_t, timespec *);
    static const auto original = reinterpret_cast<Original>(dlsym(RTLD_NEXT, "clock_gettime"));
    const int status = original(clock, now);
    if (status == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE))
        now->tv_sec += ShownClock::ahead;
    return status;
}

extern "C" int gettimeofday(timeval *__restrict now, void *__restrict) noexcept
{
    timespec precise = {};
    const int status = clock_gettime(CLOCK_REALTIME, &precise);
    now->tv_sec = precise.tv_sec;
    now->tv_usec = precise.tv_nsec / 1000;
    return status;
}

extern "C" std::time_t time(std::time_t *now) noexcept
{
    timespec precise = {};
    clock_gettime(CLOCK_REALTIME, &precise);
    if (now)
        *now = precise.tv_sec;
    return precise.tv_sec;
}
