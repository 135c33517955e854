// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace Host {

/** What a radio's logs tell of a discharge beyond what the data file holds. Without a value: they do not
 * tell.
 */
struct MeasuredDischarge
{
    QString battery;                ///< with its time it names the discharge
    qint64 moment = 0;              ///< as momentOf() numbers it
    QString log;                    ///< name of the log that it begins in
    QString sha256;                 ///< of that log
    std::optional<double> counter;  ///< mAh
    std::optional<double> integral; ///< mAh
    int rejectedCurrents = 0;
    int rejectedVoltages = 0;
    std::optional<double> restBefore; ///< V, of the whole battery
    std::optional<double> restAfter;
    std::optional<double> minVoltage;
    std::optional<double> resistance; ///< mOhm
    std::optional<double> capacity;   ///< mAh, an estimate
    QStringList sessions;             ///< the ids of the log's sessions that it is made of
    QJsonObject others;               ///< what another version wrote, kept as it is
};

/** A log that was imported. */
struct KnownLog
{
    QString name; ///< without a folder
    QString sha256;
    qint64 bytes = 0; ///< its length
    qint64 rows = 0;
    qint64 skippedRows = 0;
    QString beginsWith; ///< the SHA-256 of a known log that has grown to this one; empty where there is none
    /** As who reads logs puts them down. Of this file its key is "model" alone, the model that it is of. */
    QList<QJsonObject> sessions;
    QJsonObject others;
};

/** The columns that a user chose for logs of a header, by their names there. */
struct MeasuredColumns
{
    QString consumed;
    QString current;
    QString volts;
    QJsonObject others;
};

/** What is known of the logs of radios: "voltbok-measured.json", beside the data file. */
struct Measured
{
    QList<MeasuredDischarge> discharges;
    QList<KnownLog> logs;
    QMap<QString, QString> models;          ///< by the name that a radio gives them
    QMap<QString, MeasuredColumns> columns; ///< by the key of a log's header
    QJsonObject others;

    /** The entry of a discharge; null where it was not measured. */
    const MeasuredDischarge *find(const QString &battery, qint64 moment) const;
    /** The log with these contents; null where it is not known. */
    const KnownLog *logOf(const QString &sha256) const;
    bool isEmpty() const;
};

namespace MeasuredFile {

struct Loaded
{
    Measured measured;
    QString problem;      ///< why nothing of it could be read, a clause; empty when it could
    bool isNewer = false; ///< a later version of the program wrote it: it must not be written
};

/** Reads the file's bytes; none are an empty file. What is odd in it costs that entry alone. */
Loaded load(const QByteArray &bytes);

QByteArray save(const Measured &measured);

/** Tells the discharges that were measured from the others. */
void mark(Catalogue &catalogue, const Measured &measured);

/**
 * Takes the entries along with their discharges when these got another time, or their battery another name or
 * both another battery; and what belongs to a model when that is renamed. Entries of discharges that were
 * deleted go; their logs stay known.
 */
Measured followed(const Measured &measured, const Catalogue &before, const Catalogue &after);

/**
 * What of these values, which belong to the logbook now, also belongs to another version of it: the entries
 * of discharges that say the same there. A log of which something does not fit is not known any more.
 */
Measured fitting(const Measured &measured, const Catalogue &now, const Catalogue &other);

} // namespace MeasuredFile
} // namespace Host
