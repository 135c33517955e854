// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/packfit.h"
#include "host/exchange/radiolog.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <vector>

namespace Host {
namespace {

constexpr qint64 LongestBreak = qint64(30) * 60'000; // ms, in which a battery may stay plugged in
constexpr qint64 LongestGap = 60'000; // ms, within a session; also the shortest pause of a flight
constexpr double SameCounter = 5;     // mAh

/** A session, and the one whose discharge it goes on with. */
struct Link
{
    Session *session = nullptr;
    Link *before = nullptr;
    Link *first = nullptr; ///< set when the session has been added to its discharge

    double charge = 0;                 ///< mAh of the discharge up to its end
    std::optional<ClockTime> lastLoad; ///< of the discharge up to its end

    // Of the first one only
    std::optional<double> restBefore;
    double chargeBefore = 0;
    int cells = 0;
};

bool runsOn(const Session &session, const Session &before)
{
    if (!session.counterFirst || !before.counterLast)
        return false;
    if (*before.counterLast == 0 && before.doubtful.value_or(false)) // it counts nothing at all
        return false;
    return std::abs(*session.counterFirst - *before.counterLast) <= SameCounter;
}

bool isOfTheSameFile(const Session &session, const Session &other)
{
    return session.file == other.file && session.sha256 == other.sha256;
}

bool goesOn(const Session &session, const Session &before)
{
    if (session.model != before.model)
        return false;
    const qint64 since = session.start - before.end;
    if (session.clockRanBack)
        return isOfTheSameFile(session, before) && runsOn(session, before);
    if (since < 0 || (isOfTheSameFile(session, before) && before.firstByte > session.firstByte))
        return false;
    return (session.isResumed && since <= LongestGap) || (since < LongestBreak && runsOn(session, before));
}

void connect(Link &link, Link &before)
{
    for (const Link *other = &before; other; other = other->before) {
        if (other == &link)
            return; // clocks that ran back and forth
    }
    if (goesOn(*link.session, *before.session))
        link.before = &before;
}

/** Connects each session with the one before it that says anything: before it in time, or where time ran back
 * in its file. */
void connectAll(std::vector<Link> &links)
{
    std::vector<Link *> sorted;
    sorted.reserve(links.size());
    for (Link &link : links)
        sorted.push_back(&link);
    std::stable_sort(sorted.begin(), sorted.end(), [](const Link *left, const Link *right) {
        const Session &a = *left->session;
        const Session &b = *right->session;
        return std::tie(a.sha256, a.file, a.firstByte) < std::tie(b.sha256, b.file, b.firstByte);
    });
    for (size_t i = 1; i < sorted.size(); ++i) {
        if (sorted.at(i)->session->clockRanBack)
            connect(*sorted.at(i), *sorted.at(i - 1));
    }
    std::stable_sort(sorted.begin(), sorted.end(), [](const Link *left, const Link *right) {
        const Session &a = *left->session;
        const Session &b = *right->session;
        return std::tie(a.model, a.start, a.firstByte) < std::tie(b.model, b.start, b.firstByte);
    });
    Link *before = nullptr;
    for (Link *link : sorted) {
        if (before && !link->session->clockRanBack)
            connect(*link, *before);
        if (link->session->counterLast || link->session->integral)
            before = link;
    }
}

/** What a session took out, and where that began; a counter begins at 0 when the battery is plugged in. */
void addCharge(Link &link)
{
    Session &session = *link.session;
    const double base = link.before ? link.before->session->counterLast.value_or(0) : 0;
    const double earlier = link.before ? link.before->charge : 0;
    link.charge = earlier;
    if (session.counterLast)
        session.counter = *session.counterLast >= base ? *session.counterLast - base : *session.counterLast;
    const bool isByCounter = session.counter && !session.doubtful.value_or(false);
    const std::optional<double> used = isByCounter ? session.counter : session.integral;
    if (!used)
        return;
    link.charge += *used;
    Session &whole = *link.first->session;
    whole.discharged = whole.discharged.value_or(0) + *used;

    const double begin = isByCounter ? link.charge - (*session.counterLast - *session.counterFirst) : earlier;
    if (session.restBefore && !link.first->restBefore) {
        link.first->restBefore = session.restBefore;
        link.first->chargeBefore = begin + session.chargeAtRestBefore;
        link.first->cells = session.cells.value_or(0);
    }
    if (session.restAfter && link.first->restBefore)
        whole.capacity = packCapacity(begin + session.chargeAtRestAfter - link.first->chargeBefore,
                                      *link.first->restBefore, *session.restAfter, link.first->cells);
}

void addSpan(Link &link)
{
    const Session &session = *link.session;
    Session &whole = *link.first->session;
    if (session.maxCurrent)
        whole.highestCurrent =
            std::max(whole.highestCurrent.value_or(*session.maxCurrent), *session.maxCurrent);
    link.lastLoad = session.lastLoad;
    if (!session.lastLoad && link.before)
        link.lastLoad = link.before->lastLoad;
    if (!session.loadTime)
        return;
    qint64 time = *session.loadTime;
    if (session.firstLoad && link.before && link.before->lastLoad) {
        const qint64 pause = *session.firstLoad - *link.before->lastLoad;
        time += pause > 0 && pause < LongestGap ? pause : 0;
    }
    whole.duration = whole.duration.value_or(0) + static_cast<double>(time) / 1000;
    if (session.firstLoad && !whole.flightStart)
        whole.flightStart = *session.firstLoad - *session.firstLoad % 1000;
}

/** Adds a session to its discharge, after those that are before it. */
void addToDischarge(Link &link)
{
    std::vector<Link *> path;
    for (Link *other = &link; other && !other->first; other = other->before)
        path.push_back(other);
    for (auto other = path.rbegin(); other != path.rend(); ++other) {
        (*other)->first = (*other)->before ? (*other)->before->first : *other;
        if ((*other)->before)
            (*other)->session->continues = (*other)->first->session->start;
        addCharge(**other);
        addSpan(**other);
    }
}

void forgetDischarge(Session &session)
{
    session.continues.reset();
    session.counter.reset();
    session.flightStart.reset();
    session.duration.reset();
    session.discharged.reset();
    session.highestCurrent.reset();
    session.capacity.reset();
}

} // namespace

void joinDischarges(QList<Session> &sessions)
{
    std::vector<Link> links(static_cast<size_t>(sessions.size()));
    size_t next = 0;
    for (Session &session : sessions) {
        forgetDischarge(session);
        links.at(next++).session = &session;
    }
    connectAll(links);
    for (Link &link : links)
        addToDischarge(link);
}

} // namespace Host
