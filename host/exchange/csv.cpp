// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/csv.h"

#include <QLocale>
#include <QStringEncoder>

#include <algorithm>
#include <charconv>
#include <utility>

namespace Host {
namespace {

constexpr qsizetype ChunkSize = qsizetype(64) * 1024;
constexpr qsizetype MostBytesOfACharacter = 3; // in UTF-8, of one unit of UTF-16
constexpr qsizetype MostDigits = 20;

bool looksLikeFormula(const QString &text)
{
    return !text.isEmpty() && QStringView(u"=+-@\t\r").contains(text.front());
}

/** The digits of a number, with zeros in front up to a width. */
char *digits(char *out, qint64 number, qsizetype width)
{
    char buffer[MostDigits];
    const char *end = std::to_chars(buffer, buffer + MostDigits, number).ptr;
    out = std::fill_n(out, std::max<qsizetype>(width - (end - buffer), 0), '0');
    return std::copy(static_cast<const char *>(buffer), end, out);
}

} // namespace

CsvStyle CsvStyle::forLocale(const QLocale &locale)
{
    CsvStyle style;
    style.start = "\xEF\xBB\xBF"; // without it, spreadsheets take UTF-8 for an older encoding
    style.decimalSign = locale.decimalPoint().toUtf8();
    style.separator = style.decimalSign == "," ? ";" : ",";
    style.protectsFromFormulas = true;
    return style;
}

CsvWriter::CsvWriter(CsvStyle style, std::function<ByteSink(const Table &)> sinkFor)
    : m_style(std::move(style))
    , m_sinkFor(std::move(sinkFor))
{
}

void CsvWriter::beginTable(const Table &table)
{
    m_sink = m_sinkFor(table);
    m_isWritten = m_sink != nullptr;
    m_columns = table.columns.size();
    m_column = 0;
    m_bytes = m_style.start;
    m_bytes.reserve(2 * ChunkSize);
    for (const Column &column : table.columns)
        addText(column.header);
    endRow();
}

/** Where the next cell's bytes go; there is room for so many. */
char *CsvWriter::room(qsizetype bytes)
{
    const qsizetype size = m_bytes.size();
    m_bytes.resize(size + bytes);
    return m_bytes.data() + size;
}

void CsvWriter::separate()
{
    if (m_column++ > 0)
        m_bytes.append(m_style.separator);
}

void CsvWriter::addText(const QString &text)
{
    separate();
    const qsizetype start = m_bytes.size();
    if (m_style.protectsFromFormulas && looksLikeFormula(text))
        m_bytes.append('\'');
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const char *end = encoder.appendToBuffer(room(MostBytesOfACharacter * text.size()), text);
    m_bytes.truncate(end - m_bytes.constData());

    const char separator = m_style.separator.front();
    const bool isSpecial = std::any_of(m_bytes.cbegin() + start, m_bytes.cend(), [separator](char character) {
        return character == separator || character == '"' || character == '\n' || character == '\r';
    });
    const bool isEmptyLine = m_columns == 1 && text.isEmpty(); // many readers skip it
    if (isSpecial || isEmptyLine)
        quoteFrom(start);
}

void CsvWriter::quoteFrom(qsizetype start)
{
    QByteArray cell = m_bytes.sliced(start);
    cell.replace('"', "\"\"");
    m_bytes.truncate(start);
    m_bytes.append('"').append(cell).append('"');
}

void CsvWriter::addNumber(qint64 number, int decimals)
{
    separate();
    qint64 unit = 1;
    for (int i = 0; i < decimals; ++i)
        unit *= 10;
    qint64 fraction = qAbs(number) % unit;
    char *end = digits(room(MostDigits), number / unit, 0);
    m_bytes.truncate(end - m_bytes.constData());
    if (fraction == 0)
        return;
    while (fraction % 10 == 0) {
        fraction /= 10;
        --decimals;
    }
    m_bytes.append(m_style.decimalSign);
    end = digits(room(MostDigits), fraction, decimals);
    m_bytes.truncate(end - m_bytes.constData());
}

/** As ISO 8601 has it; QDate's own way makes a text first. */
void CsvWriter::appendDate(QDate date)
{
    const QCalendar::YearMonthDay parts = QCalendar().partsFromDate(date);
    char *end = digits(room(3 * MostDigits), parts.year, 4);
    *end++ = '-';
    end = digits(end, parts.month, 2);
    *end++ = '-';
    end = digits(end, parts.day, 2);
    m_bytes.truncate(end - m_bytes.constData());
}

void CsvWriter::addDate(QDate date)
{
    separate();
    if (date.isValid())
        appendDate(date);
}

void CsvWriter::addTime(const QDateTime &time)
{
    separate();
    if (!time.isValid())
        return;
    appendDate(time.date());
    const int seconds = time.time().msecsSinceStartOfDay() / 1000;
    char *end = room(3 * MostDigits);
    *end++ = ' ';
    end = digits(end, seconds / 3600, 2);
    *end++ = ':';
    end = digits(end, seconds / 60 % 60, 2);
    *end++ = ':';
    end = digits(end, seconds % 60, 2);
    m_bytes.truncate(end - m_bytes.constData());
}

void CsvWriter::addNothing()
{
    separate();
}

void CsvWriter::endRow()
{
    m_bytes.append("\r\n");
    m_column = 0;
    if (m_bytes.size() >= ChunkSize)
        flush();
}

bool CsvWriter::endTable()
{
    flush();
    return m_isWritten;
}

void CsvWriter::flush()
{
    m_isWritten = m_isWritten && m_sink(m_bytes);
    m_bytes.resize(0); // keeps its memory
}

} // namespace Host
