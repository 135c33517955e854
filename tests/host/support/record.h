// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/logbook.h"

#include <QSet>

#include <limits>

/** One line of the driver: what began, or was done, by which time. */
struct Event
{
    qint64 time = 0; ///< ms since the epoch
    QString state;   ///< "begin", "done" or "failed"
    QStringList words;

    static Event parse(const QByteArray &line);
    bool isDone() const { return state == QLatin1String("done"); }
};

/** What the window has acknowledged since a known state of the file, and so what the file must hold. */
class Record
{
public:
    explicit Record(Logbook start = {})
        : m_start(std::move(start))
    {
    }

    void add(const Event &event) { m_events.append(event); }
    const QList<Event> &events() const { return m_events; }

    /**
     * What of all that was acknowledged until @p time is not in @p found. A change that began later may be in
     * it or not.
     */
    QStringList missing(const Logbook &found, qint64 time = std::numeric_limits<qint64>::max()) const;

    /** The longest time without a report since @p time, in ms: a machine that is busy with other things lets
     * every thread wait. */
    qint64 longestRest(qint64 time) const;

    /** How many changes were acknowledged until @p time. */
    int changes(qint64 time = std::numeric_limits<qint64>::max()) const;

private:
    /** Names whose change began after the time in question. */
    struct Later
    {
        QSet<QString> changed;
        QSet<QString> deleted;
    };

    Logbook stateAt(qint64 time, Later *later) const;

    Logbook m_start;
    QList<Event> m_events;
};
