// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/measured.h"

#include "host/data/moments.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int Version = 1;
constexpr int MillisecondsOfASecond = 1000;
constexpr qint64 SecondsOfADay = 86'400;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(MeasuredFile)
};

// A time of the file is what the clock showed, in whatever time zone it is read: no QDateTime is asked.
QString momentText(qint64 moment)
{
    const auto milliseconds = static_cast<int>(moment % SecondsOfADay * MillisecondsOfASecond);
    return QDate::fromJulianDay(moment / SecondsOfADay).toString(u"yyyy-MM-dd") + u'T' +
           QTime::fromMSecsSinceStartOfDay(milliseconds).toString(u"HH:mm:ss");
}

std::optional<qint64> momentFrom(const QString &text)
{
    const QDateTime time(QDate::fromString(text.section(u'T', 0, 0), u"yyyy-MM-dd"),
                         QTime::fromString(text.section(u'T', 1), u"HH:mm:ss"), Qt::UTC);
    return time.isValid() ? std::optional(momentOf(time)) : std::nullopt;
}

/** Takes values out of an object; what nobody has asked for stays in it. */
class Reader
{
public:
    explicit Reader(QJsonObject object)
        : m_object(std::move(object))
    {
    }

    QJsonValue take(const QString &key) { return m_object.take(key); }
    QString text(const QString &key) { return take(key).toString(); }
    qint64 count(const QString &key) { return std::max<qint64>(take(key).toInteger(), 0); }
    std::optional<double> number(const QString &key)
    {
        const QJsonValue value = take(key);
        return value.isDouble() ? std::optional(value.toDouble()) : std::nullopt;
    }
    QStringList texts(const QString &key)
    {
        QStringList texts;
        const QJsonArray values = take(key).toArray();
        for (const auto &value : values) {
            if (value.isString())
                texts.append(value.toString());
        }
        return texts;
    }
    QJsonObject rest() const { return m_object; }

private:
    QJsonObject m_object;
};

QJsonValue valueOf(const std::optional<double> &number)
{
    return number && std::isfinite(*number) ? QJsonValue(*number) : QJsonValue();
}

int small(qint64 count)
{
    return static_cast<int>(std::min<qint64>(count, std::numeric_limits<int>::max()));
}

std::optional<MeasuredDischarge> dischargeFrom(const QJsonObject &object)
{
    Reader reader(object);
    MeasuredDischarge discharge;
    discharge.battery = reader.text(u"battery"_s);
    const std::optional<qint64> moment = momentFrom(reader.text(u"time"_s));
    if (!moment)
        return std::nullopt;
    discharge.moment = *moment;
    discharge.log = reader.text(u"log"_s);
    discharge.sha256 = reader.text(u"sha256"_s);
    discharge.counter = reader.number(u"counter_mAh"_s);
    discharge.integral = reader.number(u"integral_mAh"_s);
    discharge.rejectedCurrents = small(reader.count(u"rejected_currents"_s));
    discharge.rejectedVoltages = small(reader.count(u"rejected_voltages"_s));
    discharge.restBefore = reader.number(u"rest_before_V"_s);
    discharge.restAfter = reader.number(u"rest_after_V"_s);
    discharge.minVoltage = reader.number(u"min_voltage_V"_s);
    discharge.resistance = reader.number(u"resistance_mOhm"_s);
    discharge.capacity = reader.number(u"capacity_mAh"_s);
    discharge.sessions = reader.texts(u"sessions"_s);
    discharge.others = reader.rest();
    return discharge;
}

QJsonObject objectOf(const MeasuredDischarge &discharge)
{
    QJsonObject object = discharge.others;
    object[u"battery"_s] = discharge.battery;
    object[u"time"_s] = momentText(discharge.moment);
    object[u"log"_s] = discharge.log;
    object[u"sha256"_s] = discharge.sha256;
    object[u"counter_mAh"_s] = valueOf(discharge.counter);
    object[u"integral_mAh"_s] = valueOf(discharge.integral);
    object[u"rejected_currents"_s] = discharge.rejectedCurrents;
    object[u"rejected_voltages"_s] = discharge.rejectedVoltages;
    object[u"rest_before_V"_s] = valueOf(discharge.restBefore);
    object[u"rest_after_V"_s] = valueOf(discharge.restAfter);
    object[u"min_voltage_V"_s] = valueOf(discharge.minVoltage);
    object[u"resistance_mOhm"_s] = valueOf(discharge.resistance);
    object[u"capacity_mAh"_s] = valueOf(discharge.capacity);
    object[u"sessions"_s] = QJsonArray::fromStringList(discharge.sessions);
    return object;
}

std::optional<KnownLog> logFrom(const QJsonObject &object)
{
    Reader reader(object);
    KnownLog log;
    log.name = reader.text(u"name"_s);
    log.sha256 = reader.text(u"sha256"_s);
    if (log.sha256.isEmpty())
        return std::nullopt;
    log.bytes = reader.count(u"bytes"_s);
    log.rows = reader.count(u"rows"_s);
    log.skippedRows = reader.count(u"skipped_rows"_s);
    log.beginsWith = reader.text(u"begins_with"_s);
    const QJsonArray sessions = reader.take(u"sessions"_s).toArray();
    for (const auto &session : sessions) {
        if (session.isObject())
            log.sessions.append(session.toObject());
    }
    log.others = reader.rest();
    return log;
}

QJsonObject objectOf(const KnownLog &log)
{
    QJsonObject object = log.others;
    object[u"name"_s] = log.name;
    object[u"sha256"_s] = log.sha256;
    object[u"bytes"_s] = log.bytes;
    object[u"rows"_s] = log.rows;
    object[u"skipped_rows"_s] = log.skippedRows;
    if (!log.beginsWith.isEmpty())
        object[u"begins_with"_s] = log.beginsWith;
    QJsonArray sessions;
    for (const QJsonObject &session : log.sessions)
        sessions.append(session);
    object[u"sessions"_s] = sessions;
    return object;
}

QJsonObject objectOf(const MeasuredColumns &columns)
{
    QJsonObject object = columns.others;
    object[u"consumed"_s] = columns.consumed;
    object[u"current"_s] = columns.current;
    object[u"volts"_s] = columns.volts;
    return object;
}

void loadMaps(Reader &reader, Measured &measured)
{
    const QJsonObject models = reader.take(u"models"_s).toObject();
    for (auto model = models.begin(); model != models.end(); ++model) {
        if (model.value().isString())
            measured.models.insert(model.key(), model.value().toString());
    }
    const QJsonObject columns = reader.take(u"columns"_s).toObject();
    for (auto entry = columns.begin(); entry != columns.end(); ++entry) {
        Reader names(entry.value().toObject());
        MeasuredColumns chosen{
            names.text(u"consumed"_s), names.text(u"current"_s), names.text(u"volts"_s), {}};
        chosen.others = names.rest();
        measured.columns.insert(entry.key(), chosen);
    }
}

} // namespace

const MeasuredDischarge *Measured::find(const QString &battery, qint64 moment) const
{
    const auto found =
        std::find_if(discharges.cbegin(), discharges.cend(), [&](const MeasuredDischarge &entry) {
            return entry.moment == moment && entry.battery == battery;
        });
    return found == discharges.cend() ? nullptr : &*found;
}

const KnownLog *Measured::logOf(const QString &sha256) const
{
    const auto found =
        std::find_if(logs.cbegin(), logs.cend(), [&](const KnownLog &log) { return log.sha256 == sha256; });
    return found == logs.cend() ? nullptr : &*found;
}

bool Measured::isEmpty() const
{
    return discharges.isEmpty() && logs.isEmpty() && models.isEmpty() && columns.isEmpty() &&
           others.isEmpty();
}

MeasuredFile::Loaded MeasuredFile::load(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return {};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    Reader reader(document.object());
    if (!document.isObject() || reader.text(u"format"_s) != "voltbok-measured"_L1)
        return {{}, Text::tr("it is damaged"), false};
    const QJsonValue version = reader.take(u"version"_s);
    if (version.toInt() > Version)
        return {{}, Text::tr("a later version of Voltbok wrote it"), true};
    Loaded loaded;
    const QJsonArray discharges = reader.take(u"discharges"_s).toArray();
    for (const auto &value : discharges) {
        if (std::optional<MeasuredDischarge> discharge = dischargeFrom(value.toObject()))
            loaded.measured.discharges.append(*std::move(discharge));
    }
    const QJsonArray logs = reader.take(u"logs"_s).toArray();
    for (const auto &value : logs) {
        if (std::optional<KnownLog> log = logFrom(value.toObject()))
            loaded.measured.logs.append(*std::move(log));
    }
    loadMaps(reader, loaded.measured);
    loaded.measured.others = reader.rest();
    return loaded;
}

QByteArray MeasuredFile::save(const Measured &measured)
{
    QJsonObject object = measured.others;
    object[u"format"_s] = u"voltbok-measured"_s;
    object[u"version"_s] = Version;
    QJsonArray discharges;
    for (const MeasuredDischarge &discharge : measured.discharges)
        discharges.append(objectOf(discharge));
    object[u"discharges"_s] = discharges;
    QJsonArray logs;
    for (const KnownLog &log : measured.logs)
        logs.append(objectOf(log));
    object[u"logs"_s] = logs;
    QJsonObject models;
    for (auto model = measured.models.begin(); model != measured.models.end(); ++model)
        models[model.key()] = model.value();
    object[u"models"_s] = models;
    QJsonObject columns;
    for (auto entry = measured.columns.begin(); entry != measured.columns.end(); ++entry)
        columns[entry.key()] = objectOf(entry.value());
    object[u"columns"_s] = columns;
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

void MeasuredFile::mark(Catalogue &catalogue, const Measured &measured)
{
    QHash<QString, QSet<qint64>> known;
    for (const MeasuredDischarge &entry : measured.discharges)
        known[entry.battery].insert(entry.moment);
    for (Battery &battery : catalogue.batteries) {
        const QSet<qint64> moments = known.value(battery.name);
        if (moments.isEmpty())
            continue; // not detached
        for (Discharge &discharge : battery.discharges)
            discharge.isMeasured = moments.contains(momentOf(discharge.time));
    }
}

} // namespace Host
