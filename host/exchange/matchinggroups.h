// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/matching.h"

#include <QHash>
#include <QList>

namespace Host {

/** The sessions of an import and of those before it, in the discharges that they are. */
class SessionGroups
{
public:
    SessionGroups(const QList<ImportedLog> &logs, const Catalogue &catalogue, const Measured &measured,
                  const MatchOptions &options);

    /** The discharges that this import tells something of, in the order of time; their sessions only. */
    const QList<ImportedDischarge> &discharges() const { return m_discharges; }
    /** The sessions of each log; of a discharge the first one stands for it. */
    const QList<QList<ImportedSession>> &sessions() const { return m_sessions; }

private:
    struct Member
    {
        qsizetype log = -1; ///< -1 for one of an earlier import
        qsizetype session = -1;
        bool isNew = false; ///< this import tells of it first
        qsizetype head = -1;
    };

    void addEarlier(const Measured &measured);
    void addKnown(const QList<ImportedLog> &logs);
    void addNew(const QList<ImportedLog> &logs, const QList<Session> &found);
    void join();
    void collect();

    QList<Session> m_all;
    QList<Member> m_members; ///< of m_all
    QList<ImportedDischarge> m_discharges;
    QList<QList<ImportedSession>> m_sessions;
};

} // namespace Host
