// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/radiolog.h"

#include "host/exchange/radiologcolumns.h"
#include "host/exchange/radiologheader.h"
#include "host/exchange/radiologlines.h"
#include "host/exchange/radiologrow.h"
#include "host/exchange/radiologsession.h"

#include <QCoreApplication>
#include <QHash>
#include <QIODevice>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int RowsThatTellTheirWidth = 100;
constexpr int MostSamples = 5;
constexpr qsizetype MostSessions = 10'000; // a day has 1,440 gaps of a minute
constexpr qint64 BytesBetweenQuestions = qint64(1024) * 1024;

/** Reads one log. */
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(Host::RadioLog)

public:
    Reader(QIODevice &device, const QString &fileName, const ReadOptions &options);

    RadioLog read();

private:
    bool readHeader(LogLines &lines);
    void fitHeaderToRows();
    void chooseColumns();
    bool goesOn(const LogLines &lines);
    qint64 firstUnknownByte();
    void readRows();
    void readRow(const LogLines &lines);
    void read(LogColumns::Kind kind, const LogLines &lines, std::optional<double> &value) const;
    bool isSilent(const LogSample &sample, QByteArrayView line);
    void keepSample(const LogLines &lines);
    void endSession();
    void judge();
    void refuse(LogStatus status, const QString &reason);

    QIODevice &m_device;
    const ReadOptions &m_options;
    RadioLog m_log;
    LogHeader m_header{{}};
    qint64 m_headerEnd = 0;
    std::optional<LogColumns> m_columns;
    std::array<const LogColumn *, 3> m_chosen{};
    QList<qsizetype> m_sensors;
    qsizetype m_wanted = 2;
    LogFields m_fields;
    LogClock m_clock;
    SessionBuilder m_builder;
    qint64 m_otherWidths = 0; // rows with more or fewer fields, but for one that was cut
    qint64 m_otherTimes = 0;  // rows without a time that can be read
    qint64 m_asked = 0;
    bool m_isCancelled = false;
};

Reader::Reader(QIODevice &device, const QString &fileName, const ReadOptions &options)
    : m_device(device)
    , m_options(options)
{
    const std::optional<LogName> name = logName(fileName);
    m_log.model = name ? name->model : QString();
    m_log.bytes = device.size();
}

RadioLog Reader::read()
{
    LogLines lines(m_device, 0);
    if (!readHeader(lines))
        return m_log;
    fitHeaderToRows();
    chooseColumns();
    readRows();
    if (m_log.status != LogStatus::Refused)
        judge();
    if (m_log.status != LogStatus::Read)
        m_log.sessions.clear();
    return m_log;
}

bool Reader::readHeader(LogLines &lines)
{
    while (lines.next()) {
        if (lines.line().trimmed().isEmpty() && lines.isWhole())
            continue;
        m_header = LogHeader(lines.line());
        m_headerEnd = lines.end();
        if (m_header.isRadioLog())
            return true;
        refuse(LogStatus::NotARadioLog, tr("It does not begin with the columns Date and Time."));
        return false;
    }
    if (lines.hasFailed())
        refuse(LogStatus::Refused, tr("It cannot be read: %1.").arg(m_device.errorString()));
    else
        refuse(LogStatus::Empty, tr("It is empty."));
    return false;
}

/** Where no row has as many fields as the header, commas in labels may be the reason. */
void Reader::fitHeaderToRows()
{
    QHash<qsizetype, int> widths;
    LogLines lines(m_device, m_headerEnd);
    for (int i = 0; i < RowsThatTellTheirWidth && lines.next();) {
        if (lines.line().isEmpty() || !lines.isWhole())
            continue;
        m_fields.split(lines.line(), 0);
        ++widths[m_fields.count()];
        ++i;
    }
    m_log.headerKey = m_header.key();
    if (!widths.isEmpty() && !widths.contains(m_header.count()))
        m_header.joinTo(std::max_element(widths.cbegin(), widths.cend()).key());
    m_sensors = m_header.sensors();
    for (const qsizetype sensor : std::as_const(m_sensors))
        m_log.columns.append(m_header.name(sensor));
}

void Reader::chooseColumns()
{
    const auto chosen = m_options.mappings.constFind(m_log.headerKey);
    m_columns.emplace(m_header, chosen == m_options.mappings.cend() ? nullptr : &*chosen);
    m_log.needsMapping = m_columns->needsMapping();
    LogLines lines(m_device, m_headerEnd);
    while (!m_columns->isSettled() && lines.next() && goesOn(lines)) {
        m_fields.split(lines.line(), m_columns->wanted());
        if (m_fields.count() == m_header.count())
            m_columns->watch(m_fields);
    }
    m_log.mapping = m_columns->mapping();
    for (const LogColumns::Kind kind : {LogColumns::Consumed, LogColumns::Current, LogColumns::Volts}) {
        const LogColumn *column = m_columns->choice(kind);
        m_chosen.at(kind) = column;
        if (column)
            m_wanted = std::max(m_wanted, *std::max_element(column->parts.begin(), column->parts.end()) + 1);
    }
}

bool Reader::goesOn(const LogLines &lines)
{
    if (!m_options.goOn || lines.end() - m_asked < BytesBetweenQuestions)
        return !m_isCancelled;
    m_asked = lines.end();
    m_isCancelled = m_isCancelled || !m_options.goOn(lines.end());
    return !m_isCancelled;
}

/** A row that was not whole when the file was known is read now. */
qint64 Reader::firstUnknownByte()
{
    qint64 from = std::max(m_headerEnd, m_options.knownBytes);
    for (char sign = 0; from > m_headerEnd; --from) {
        if (m_device.seek(from - 1) && m_device.getChar(&sign) && sign == '\n')
            break;
    }
    return from;
}

void Reader::readRows()
{
    LogLines lines(m_device, firstUnknownByte());
    m_asked = 0;
    while (lines.next() && goesOn(lines) && m_log.sessions.size() <= MostSessions)
        readRow(lines);
    endSession();
    if (m_isCancelled)
        refuse(LogStatus::Refused, tr("The reading was cancelled."));
    else if (lines.hasFailed())
        refuse(LogStatus::Refused, tr("It cannot be read: %1.").arg(m_device.errorString()));
    else if (m_log.sessions.size() > MostSessions)
        refuse(LogStatus::Refused, tr("Its time jumps in too many places."));
}

void Reader::readRow(const LogLines &lines)
{
    const QByteArrayView line = lines.line();
    if (line.isEmpty() && lines.isWhole())
        return;
    m_fields.split(line, m_wanted);
    if (m_fields.count() != m_header.count()) {
        ++m_log.skippedRows;
        m_otherWidths += lines.isWhole() ? 1 : 0;
        return;
    }
    LogSample sample;
    const std::optional<ClockTime> time = m_clock.read(m_fields.at(0), m_fields.at(1));
    if (!time) {
        ++m_log.skippedRows;
        ++m_otherTimes;
        return;
    }
    sample.time = *time;
    read(LogColumns::Consumed, lines, sample.consumed);
    read(LogColumns::Current, lines, sample.current);
    read(LogColumns::Volts, lines, sample.volts);
    sample.isSilent = isSilent(sample, line);
    if (m_builder.isEmpty() || !m_builder.belongs(sample.time)) {
        Session session;
        session.clockRanBack = !m_builder.isEmpty() && m_builder.isAfter(sample.time);
        session.isResumed = m_builder.isEmpty() && m_options.knownBytes > 0;
        endSession();
        session.file = m_options.file;
        session.model = m_log.model;
        session.sha256 = m_options.sha256;
        m_builder.begin(session);
    }
    m_builder.add(sample, lines.begin(), lines.end());
    ++m_log.rows;
    keepSample(lines);
}

/** A few rows from all over the file. */
void Reader::keepSample(const LogLines &lines)
{
    const qsizetype count = m_log.samples.size();
    if (!m_log.needsMapping || count == MostSamples || lines.begin() < m_log.bytes / MostSamples * count)
        return;
    m_fields.split(lines.line(), m_header.count());
    m_log.samples.append(m_fields.texts(m_sensors));
}

void Reader::read(LogColumns::Kind kind, const LogLines &lines, std::optional<double> &value) const
{
    const LogColumn *column = m_chosen.at(kind);
    if (!column ||
        (!lines.isWhole() && column->parts.back() + 1 == m_header.count())) // a number may be cut, too
        return;
    if (const double number = column->value(m_fields); !std::isnan(number))
        value = number;
}

/** Whether everything is 0: what newer radios write when the telemetry is lost. */
bool Reader::isSilent(const LogSample &sample, QByteArrayView line)
{
    if (sample.current.value_or(0) != 0 || sample.volts.value_or(0) != 0)
        return false;
    if (sample.current && sample.volts)
        return true;
    m_fields.split(line, m_header.count());
    return std::all_of(m_sensors.cbegin(), m_sensors.cend(), [this](qsizetype sensor) {
        const double value = logNumber(m_fields.at(sensor));
        return std::isnan(value) || value == 0;
    });
}

void Reader::endSession()
{
    if (!m_builder.isEmpty())
        m_log.sessions.append(m_builder.finish());
    m_builder = SessionBuilder();
}

/** What the file is, once all of it was seen. */
void Reader::judge()
{
    if (m_otherWidths > m_log.rows + m_otherTimes)
        return refuse(LogStatus::Refused, tr("Most of its rows have more or fewer fields than its header."));
    if (m_log.rows == 0 && m_otherTimes > 0)
        return refuse(LogStatus::NotARadioLog, tr("Its rows do not begin with a date and a time."));
    if (m_otherTimes > m_log.rows)
        return refuse(LogStatus::Refused, tr("Most of its rows do not begin with a date and a time."));
    if (m_log.rows == 0 && m_options.knownBytes == 0)
        return refuse(LogStatus::Empty, tr("It has a header, but no rows."));
    m_log.status = LogStatus::Read;
    for (Session &session : m_log.sessions) {
        QList<Session> alone{session};
        joinDischarges(alone);
        session = alone.constFirst();
    }
}

void Reader::refuse(LogStatus status, const QString &reason)
{
    m_log.status = status;
    m_log.reason = reason;
}

} // namespace

RadioLog readRadioLog(QIODevice &device, const QString &fileName, const ReadOptions &options)
{
    return Reader(device, fileName, options).read();
}

} // namespace Host
