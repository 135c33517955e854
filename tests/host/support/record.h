// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/logbook.h"
#include "tests/host/support/steps.h"

#include <limits>

/** One line of the driver: what began, or was done, by which time. */
struct Event
{
    qint64 time = 0; ///< ms since the epoch
    QString state;   ///< "begin", "now", "done" or "failed"
    QStringList words;

    static Event parse(const QByteArray &line);
    bool isDone() const { return state == QLatin1String("done"); }
};

/** What the window has acknowledged since a known state of the file, and so what the file must hold. */
class Record
{
public:
    /** @param measured of which discharges the file beside it tells. */
    explicit Record(const Logbook &start = {}, const QStringList &measured = {})
        : m_start{start, measured}
    {
    }

    /** The file may hold more than was acknowledged: something else than a click has put it there. */
    void letItHoldMore() { m_mayHoldMore = true; }

    void add(const Event &event);
    const QList<Event> &events() const { return m_events; }

    /**
     * What of all that was acknowledged until @p time is not in @p found. A change that began later may be in
     * it or not, but a change of the whole logbook only as a whole.
     */
    QStringList missing(const Logbook &found, qint64 time = std::numeric_limits<qint64>::max()) const;

    /** Whether the file beside the logbook tells of these discharges: either before the last step or after.
     */
    bool mayTellOf(const QStringList &measured) const;

    /** The longest time without a report since @p time, in ms: a machine that is busy with other things lets
     * every thread wait. */
    qint64 longestRest(qint64 time) const;

    /** How many changes were acknowledged until @p time. */
    int changes(qint64 time = std::numeric_limits<qint64>::max()) const;

    /** What was being done to the whole logbook at the end of all this; empty when nothing was. */
    QStringList unfinishedDeed() const;

private:
    Steps::Version m_start;
    QList<Event> m_events;
    bool m_mayHoldMore = false;
};
