// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/importjson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** A measured value without the noise of its arithmetic. */
QJsonValue number(const std::optional<double> &value)
{
    constexpr double Thousandths = 1000;
    return value && std::isfinite(*value) ? QJsonValue(std::round(*value * Thousandths) / Thousandths)
                                          : QJsonValue();
}

QJsonValue clock(const std::optional<ClockTime> &time)
{
    return time ? QJsonValue(clockText(*time)) : QJsonValue();
}

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonObject objectOf(const ImportedSession &shown, const ImportPlan &plan)
{
    const Session &session = shown.session;
    const bool stands = shown.discharge >= 0 && !session.continues;
    const ImportedDischarge discharge = stands ? plan.discharges.at(shown.discharge) : ImportedDischarge();
    QJsonObject object;
    object[u"start"_s] = clockText(session.start);
    object[u"end"_s] = clockText(session.end);
    object[u"rows"_s] = session.rows;
    object[u"flight_start"_s] = clock(session.flightStart);
    object[u"continues"_s] = clock(session.continues);
    object[u"duration_s"_s] = number(session.duration);
    object[u"discharged_mAh"_s] = number(session.discharged);
    object[u"counter_mAh"_s] = number(session.counter);
    object[u"integral_mAh"_s] = number(session.integral);
    object[u"doubtful"_s] = session.doubtful ? QJsonValue(*session.doubtful) : QJsonValue();
    object[u"max_current_A"_s] = number(session.highestCurrent);
    object[u"rejected_currents"_s] = session.rejectedCurrents;
    object[u"rejected_voltages"_s] = session.rejectedVoltages;
    object[u"min_voltage_V"_s] = number(session.minVoltage);
    object[u"max_voltage_V"_s] = number(session.maxVoltage);
    object[u"rest_before_V"_s] = number(session.restBefore);
    object[u"rest_after_V"_s] = number(session.restAfter);
    object[u"cells"_s] = session.cells ? QJsonValue(*session.cells) : QJsonValue();
    object[u"resistance_mOhm"_s] = number(session.resistance);
    object[u"capacity_mAh"_s] = number(session.capacity);
    object[u"action"_s] = actionKey(shown.action);
    object[u"battery"_s] = textOrNull(discharge.battery);
    object[u"model"_s] = textOrNull(session.model);
    const QString time = discharge.time.toString(u"yyyy-MM-ddTHH:mm:ss");
    object[u"time"_s] = textOrNull(time);
    return object;
}

} // namespace

QByteArray importJson(const QList<ImportedLog> &logs, const ImportPlan &plan)
{
    QJsonArray files;
    for (qsizetype i = 0; i < logs.size(); ++i) {
        const RadioLog &log = logs.at(i).log;
        QJsonArray sessions;
        for (const ImportedSession &session : plan.sessions.at(i))
            sessions.append(objectOf(session, plan));
        QJsonObject file;
        file[u"file"_s] = logs.at(i).path;
        file[u"status"_s] = statusKey(log.status);
        file[u"reason"_s] = textOrNull(log.reason);
        file[u"rows"_s] = log.rows;
        file[u"skipped_rows"_s] = log.skippedRows;
        file[u"sessions"_s] = sessions;
        files.append(file);
    }
    return QJsonDocument(QJsonObject{{u"files"_s, files}}).toJson();
}

} // namespace Host
