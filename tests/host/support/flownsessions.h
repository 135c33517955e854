// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/importing.h"
#include "host/exchange/sessionvalues.h"
#include "tests/host/support/plainlogbook.h"

#include <QCryptographicHash>

/** Logs as if they had been read, and a logbook that they fit to, on the day of the plain logbook. */
namespace Flown {

using namespace Qt::Literals::StringLiterals;

inline Host::ClockTime clock(int hour, int minute, int second = 0)
{
    return Host::momentOf(PlainLogbook::at(hour, minute, second)) * 1000;
}

/** A session of so many seconds, under load from its fifth second to its fifth last. */
inline Host::Session session(Host::ClockTime start, int seconds = 400, double used = 1500, double from = 0)
{
    Host::Session session;
    session.start = start;
    session.end = start + seconds * 1000;
    session.rows = seconds;
    session.firstLoad = start + 5000;
    session.lastLoad = session.end - 5000;
    session.loadTime = *session.lastLoad - *session.firstLoad;
    session.counterFirst = from;
    session.counterLast = from + used;
    session.integral = used;
    session.doubtful = false;
    session.maxCurrent = 31.25;
    return session;
}

/** A log with these sessions. */
inline Host::ImportedLog log(const QString &model, QList<Host::Session> sessions)
{
    Host::ImportedLog log;
    QByteArray content = model.toUtf8();
    for (const Host::Session &session : std::as_const(sessions))
        content += QByteArray::number(session.start) + '/' + QByteArray::number(session.end) + '\n';
    log.path = u"card/%1-%2.csv"_s.arg(model).arg(sessions.isEmpty() ? 0 : sessions.first().start);
    log.sha256 = QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex());
    log.log.model = model;
    log.log.status = Host::LogStatus::Read;
    log.log.bytes = content.size();
    qint64 byte = 0;
    for (Host::Session &session : sessions) {
        session.model = model;
        session.sha256 = log.sha256;
        session.firstByte = byte += 1000;
        log.log.rows += session.rows;
    }
    log.log.sessions = sessions;
    return log;
}

inline Host::Discharge guess(const QDateTime &time)
{
    return {time, 1760, 5500}; // the preset of the plain logbook's batteries
}

/** Skylark was clicked at 14:47 with A, and at 16:00 with B; it may fly C, too. Firebrand flies nothing. */
inline Host::Catalogue logbook()
{
    using namespace PlainLogbook;
    Host::Catalogue catalogue;
    catalogue.batteries = {battery(u"A"_s, {guess(at(14, 47))}), battery(u"B"_s, {guess(at(16, 0))}),
                           battery(u"C"_s)};
    catalogue.models = {
        model(u"Skylark"_s, {u"A"_s, u"B"_s, u"C"_s}, {flight(at(14, 47)), flight(at(16, 0))}),
        model(u"Firebrand"_s, {})};
    catalogue.models[0].lastUpdate = at(7, 0);
    return catalogue;
}

/** A logbook and what is known of it, through one import after the other. */
struct Book
{
    Host::Catalogue catalogue = logbook();
    Host::Measured measured;
    Host::ImportPlan plan; ///< of the last import
    QString problem;       ///< of the last import

    const Host::ImportPlan &look(QList<Host::ImportedLog> logs, const Host::MatchOptions &options = {})
    {
        for (Host::ImportedLog &log : logs) {
            const Host::KnownLog *known = measured.logOf(log.sha256);
            log.isKnown = known;
            if (!known)
                continue;
            log.log.sessions.clear();
            for (const QJsonObject &stored : known->sessions)
                log.log.sessions.append(Host::sessionFrom(stored));
        }
        Host::MeasuredFile::mark(catalogue, measured);
        m_logs = logs;
        return plan = Host::matched(m_logs, catalogue, measured, options);
    }

    /** Looks, and does what fills, and what is new if that is wanted. */
    void import(const QList<Host::ImportedLog> &logs, const Host::MatchOptions &options = {},
                bool addsNew = false)
    {
        look(logs, options);
        QList<qsizetype> chosen;
        for (qsizetype i = 0; i < plan.discharges.size(); ++i) {
            if (addsNew || plan.discharges.at(i).action == Host::ImportAction::Fill)
                chosen.append(i);
        }
        problem = Host::applyImport(catalogue, measured, m_logs, plan, chosen);
    }

    /** What would become of each session, of one log after the other: "fill new". */
    QString actions() const
    {
        QStringList texts;
        for (const QList<Host::ImportedSession> &sessions : plan.sessions) {
            for (const Host::ImportedSession &session : sessions)
                texts.append(Host::actionKey(session.action));
        }
        return texts.join(u' ');
    }

    QString action(const QList<Host::ImportedLog> &logs, const Host::MatchOptions &options = {})
    {
        look(logs, options);
        return actions();
    }

private:
    QList<Host::ImportedLog> m_logs;
};

} // namespace Flown
