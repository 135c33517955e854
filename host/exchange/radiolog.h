// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <limits>
#include <optional>

class QIODevice;

namespace Host {

/**
 * What calendar and clock of the radio showed, as milliseconds since the midnight that begins the Julian day
 * 0: a thousand times the number of host/data/moments.h. Not an instant; no time zone is asked.
 */
using ClockTime = qint64;

/** The time in whole seconds, as the logbook has it; invalid where the clocks here do not show it. */
QDateTime timeOfClock(ClockTime time);
/** "2025-01-02T12:22:21": what the radio showed, whether or not the clocks here show it. */
QString clockText(ClockTime time);

/** What the name of a log says. */
struct LogName
{
    QString model;
    QDate date;
    QTime time; ///< invalid for a log of a whole day
};

/** From "Model-2025-01-02-122221.csv" or "Model-2025-01-02.csv", with or without a folder; nothing for
 * others. */
std::optional<LogName> logName(const QString &fileName);

/** Which columns a log is read by: names as in its header, "Curr(A)"; never positions. Empty: by none. */
struct ColumnMapping
{
    QString consumed; ///< mAh
    QString current;  ///< A, or mA where the name ends so
    QString volts;    ///< of the whole battery

    bool isEmpty() const { return consumed.isEmpty() && current.isEmpty() && volts.isEmpty(); }
    bool operator==(const ColumnMapping &other) const
    {
        return consumed == other.consumed && current == other.current && volts == other.volts;
    }
};

/** What one run of rows tells about a discharge. What it does not tell is empty; that is not 0. */
struct Session
{
    // Where it comes from
    int file = -1;             ///< index of its log, as the caller set it in ReadOptions
    QString model;             ///< by the log's name; empty where that has another form
    QString sha256;            ///< of the log's bytes, as the caller set it
    qint64 firstByte = 0;      ///< where its first row begins in the file
    qint64 endByte = 0;        ///< behind its last row
    bool isResumed = false;    ///< begins where an earlier reading of this log ended
    bool clockRanBack = false; ///< begins because it is earlier than the session before it in the file

    // Measured in its own rows
    ClockTime start = 0;
    ClockTime end = 0;
    qint64 rows = 0;
    std::optional<ClockTime> firstLoad; ///< the first and the last row over 1 A
    std::optional<ClockTime> lastLoad;
    std::optional<qint64> loadTime;     ///< ms between these without the pauses; 0 when it was never over 1 A
    std::optional<double> counterFirst; ///< what the radio's counter showed, mAh
    std::optional<double> counterLast;
    std::optional<double> integral;   ///< mAh
    std::optional<bool> doubtful;     ///< counter and integral contradict each other: the integral counts
    std::optional<double> maxCurrent; ///< A, of this session
    int rejectedCurrents = 0;
    int rejectedVoltages = 0;
    std::optional<double> minVoltage; ///< V, of the whole battery, as are the others
    std::optional<double> maxVoltage;
    std::optional<double> restBefore;
    std::optional<double> restAfter;
    double chargeAtRestBefore = 0; ///< mAh that these rows had used when the battery rested
    double chargeAtRestAfter = 0;
    std::optional<int> cells;
    std::optional<double> resistance; ///< mOhm

    // What joinDischarges() says: the first session of a discharge tells of all its sessions, the others of
    // none
    std::optional<ClockTime> continues; ///< start of the first session; empty in that one
    std::optional<double> counter; ///< mAh of this session alone: from plug-in, or the end of the one before
    std::optional<ClockTime> flightStart; ///< in whole seconds
    std::optional<double> duration;       ///< s
    std::optional<double> discharged;     ///< mAh
    std::optional<double> highestCurrent; ///< A, the largest maxCurrent of the discharge
    std::optional<double> capacity;       ///< mAh, the estimate

    /** A clock that was never set shows a year before 2005. */
    bool isClockSet() const;
};

enum class LogStatus {
    Read,
    Empty,        ///< no rows: nothing at all, or a header only
    NotARadioLog, ///< no log of EdgeTX or OpenTX
    Refused,      ///< one that cannot be trusted, or not read
};

/** "read", "empty", "not a radio log" or "refused", the same in every language. */
QString statusKey(LogStatus status);

/** One file. */
struct RadioLog
{
    QString model;
    LogStatus status = LogStatus::Empty;
    QString reason; ///< a sentence, where it was not read
    qint64 rows = 0;
    qint64 skippedRows = 0;
    QList<Session> sessions; ///< in the order of the file, each as a discharge of its own
    qint64 bytes = 0;        ///< length of the file

    QStringList columns;        ///< names of its sensors, for a choice by the user
    QList<QStringList> samples; ///< a few rows of these, where such a choice is needed
    ColumnMapping mapping;      ///< the columns it was read by; empty where there is none that says anything
    QString headerKey; ///< the same for all logs of the same header; a chosen mapping is remembered by it
    /** No column is known for the consumption or the current, but one may be it, and nobody has said which.
     */
    bool needsMapping = false;
};

struct ReadOptions
{
    int file = -1;                         ///< copied into the sessions
    QString sha256;                        ///< as above
    QMap<QString, ColumnMapping> mappings; ///< chosen by the user, by the key of a header
    /**
     * The length of a known file whose bytes this one begins with: only rows that were not whole then are
     * read. RadioLog::rows counts these only.
     */
    qint64 knownBytes = 0;
    /** Asked now and then with the number of bytes read; false ends the reading, and the log is refused. */
    std::function<bool(qint64)> goOn;
};

/**
 * Reads a log, whatever its size, in the memory of a few rows. Nothing in it is fatal.
 *
 * @param device   open for reading and able to seek
 * @param fileName of the log, for its model; with or without a folder
 */
RadioLog readRadioLog(QIODevice &device, const QString &fileName, const ReadOptions &options = {});

/** SHA-256 in hex of the first @p bytes of a file, or of all of it; empty when there are fewer, or on an
 * error. */
QString fingerprint(QIODevice &device, qint64 bytes = std::numeric_limits<qint64>::max());

/**
 * Finds the sessions that are one discharge: those of a model where the counter runs on within half an hour.
 * Sets the last group of Session's members, whatever stood there.
 *
 * The sessions may be of several files, in any order, and of earlier imports: of those it needs the model,
 * and all that stands before the last group (but for rows, rejected counts, voltages other than the rest ones
 * and bytes). The order of the list stays; an earlier session whose discharge goes on comes out with the new
 * sum and span.
 */
void joinDischarges(QList<Session> &sessions);

} // namespace Host
