// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/matchinggroups.h"

#include "host/exchange/sessionvalues.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace Host {
namespace {

void shift(std::optional<ClockTime> &time, qint64 offset)
{
    if (time)
        *time += offset;
}

/** A session as this import takes it: of a model of the logbook, by a clock that is right. */
Session corrected(Session session, const QString &model, qint64 offset)
{
    session.model = model;
    session.start += offset;
    session.end += offset;
    shift(session.firstLoad, offset);
    shift(session.lastLoad, offset);
    return session;
}

/** Whatever order the files are in: by time, and of two that begin together the longer first. */
bool isBefore(const Session &left, const Session &right)
{
    return std::tie(left.start, left.model, right.rows, left.sha256, left.firstByte) <
           std::tie(right.start, right.model, left.rows, right.sha256, right.firstByte);
}

} // namespace

SessionGroups::SessionGroups(const QList<ImportedLog> &logs, const Catalogue &catalogue,
                             const Measured &measured, const MatchOptions &options)
{
    QList<Session> found;
    for (qsizetype i = 0; i < logs.size(); ++i) {
        m_sessions.append(QList<ImportedSession>(logs.at(i).log.sessions.size()));
        if (logs.at(i).isKnown)
            continue;
        const QList<Session> &sessions = logs.at(i).log.sessions;
        for (qsizetype j = 0; j < sessions.size(); ++j) {
            const QString model =
                options.model.isEmpty() ? modelOf(sessions.at(j).model, catalogue, measured) : options.model;
            Session session = corrected(sessions.at(j), model, options.clockOffset);
            session.file = static_cast<int>(i);
            m_sessions[i][j].session = session;
            found.append(session);
        }
    }
    addEarlier(measured);
    addKnown(logs);
    std::stable_sort(found.begin(), found.end(), isBefore);
    addNew(logs, found);
    join();
    collect();
}

void SessionGroups::addEarlier(const Measured &measured)
{
    for (const KnownLog &log : measured.logs) {
        for (const QJsonObject &stored : log.sessions) {
            m_all.append(sessionFrom(stored));
            m_members.append(Member());
        }
    }
}

/** Logs that earlier imports took: their sessions are there already. */
void SessionGroups::addKnown(const QList<ImportedLog> &logs)
{
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; i < m_all.size(); ++i)
        places.insert(sessionId(m_all.at(i)), i);
    for (qsizetype log = 0; log < logs.size(); ++log) {
        for (qsizetype i = 0; logs.at(log).isKnown && i < m_sessions.at(log).size(); ++i) {
            m_sessions[log][i].session = logs.at(log).log.sessions.at(i);
            m_sessions[log][i].action = ImportAction::Known;
            Member &member = m_members[places.value(sessionId(m_sessions.at(log).at(i).session))];
            member.log = log;
            member.session = i;
        }
    }
}

/** A session that another log tells of, too, is taken once. */
void SessionGroups::addNew(const QList<ImportedLog> &logs, const QList<Session> &found)
{
    QHash<std::pair<QString, ClockTime>, QString> taken; // to the log's SHA-256
    for (const Session &session : std::as_const(m_all))
        taken.insert({session.model, session.start}, session.sha256);
    for (const Session &session : found) {
        const QList<Session> &ofLog = logs.at(session.file).log.sessions;
        const auto place =
            std::find_if(ofLog.cbegin(), ofLog.cend(),
                         [&](const Session &other) { return other.firstByte == session.firstByte; }) -
            ofLog.cbegin();
        const std::pair key(session.model, session.start);
        if (taken.value(key, session.sha256) != session.sha256) {
            QList<Session> alone{session};
            joinDischarges(alone);
            ImportedSession &shown = m_sessions[session.file][place];
            shown.session = alone.constFirst();
            shown.reasons = {ImportReason::Twice};
            continue;
        }
        taken.insert(key, session.sha256);
        m_all.append(session);
        m_members.append({session.file, place, true, -1});
    }
}

void SessionGroups::join()
{
    joinDischarges(m_all);
    QHash<std::pair<QString, ClockTime>, qsizetype> heads;
    for (qsizetype i = 0; i < m_all.size(); ++i) {
        const Session &session = m_all.at(i);
        if (!session.continues && !heads.contains({session.model, session.start}))
            heads.insert({session.model, session.start}, i);
    }
    for (qsizetype i = 0; i < m_all.size(); ++i) {
        const Session &session = m_all.at(i);
        m_members[i].head = session.continues ? heads.value({session.model, *session.continues}, i) : i;
    }
}

void SessionGroups::collect()
{
    QHash<qsizetype, qsizetype> discharges; // by their head
    QList<qsizetype> order;
    for (const Member &member : std::as_const(m_members)) {
        if (member.isNew && !discharges.contains(member.head)) {
            discharges.insert(member.head, -1);
            order.append(member.head);
        }
    }
    std::sort(order.begin(), order.end(),
              [this](qsizetype left, qsizetype right) { return isBefore(m_all.at(left), m_all.at(right)); });
    for (const qsizetype head : std::as_const(order)) {
        discharges.insert(head, m_discharges.size());
        ImportedDischarge discharge;
        discharge.whole = m_all.at(head);
        discharge.model = discharge.whole.model;
        m_discharges.append(discharge);
    }
    for (qsizetype i = 0; i < m_all.size(); ++i) {
        const Member &member = m_members.at(i);
        const qsizetype discharge = discharges.value(member.head, -1);
        if (discharge >= 0)
            m_discharges[discharge].parts.append(m_all.at(i));
        if (member.log < 0)
            continue;
        ImportedSession &shown = m_sessions[member.log][member.session];
        shown.session = m_all.at(i);
        if (!member.isNew)
            continue;
        shown.discharge = discharge;
        if (member.head != i)
            shown.reasons = {ImportReason::PartOfAnother};
    }
    for (ImportedDischarge &discharge : m_discharges)
        std::sort(discharge.parts.begin(), discharge.parts.end(), isBefore);
}

} // namespace Host
