// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/csv.h"

#include <QLocale>
#include <QStringEncoder>

#include <algorithm>
#include <charconv>
#include <utility>

namespace Host {
namespace {

constexpr qsizetype ChunkSize = qsizetype(16) * 1024; // what a file buffers itself
constexpr qsizetype MostBytesOfACharacter = 3;        // in UTF-8, of one unit of UTF-16
constexpr qsizetype MostBytesOfAValue = 64;           // a number, a date or a time

bool looksLikeFormula(const QString &text)
{
    return !text.isEmpty() && QStringView(u"=+-@\t\r").contains(text.front());
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
    , m_bytes(2 * ChunkSize, Qt::Uninitialized)
    , m_end(m_bytes.data())
    , m_limit(m_end + m_bytes.size())
{
    for (const char special : {m_style.separator.front(), '"', '\r', '\n'})
        m_isSpecial.at(static_cast<size_t>(special)) = true;
}

void CsvWriter::beginTable(const Table &table)
{
    m_sink = m_sinkFor(table);
    m_isWritten = m_sink != nullptr;
    m_columns = table.columns.size();
    m_column = 0;
    put(m_style.start);
    for (const Column &column : table.columns)
        addText(column.header);
    endRow();
}

void CsvWriter::grow(qsizetype bytes)
{
    const qsizetype used = m_end - m_bytes.constData();
    m_bytes.resize(2 * (used + bytes));
    m_end = m_bytes.data() + used;
    m_limit = m_bytes.data() + m_bytes.size();
}

void CsvWriter::put(const QByteArray &bytes)
{
    reserve(bytes.size());
    m_end = std::copy(bytes.cbegin(), bytes.cend(), m_end);
}

void CsvWriter::separate()
{
    if (m_column++ == 0)
        return;
    reserve(1);
    *m_end++ = m_style.separator.front();
}

void CsvWriter::addText(const QString &text)
{
    constexpr char16_t FirstBeyondAscii = 0x80;
    separate();
    reserve(MostBytesOfACharacter * text.size() + 1);
    const qsizetype start = m_end - m_bytes.constData();
    if (m_style.protectsFromFormulas && looksLikeFormula(text))
        *m_end++ = '\'';

    const auto *next = QStringView(text).utf16(); // most texts are nothing but ASCII
    const auto *const end = next + text.size();
    bool isSpecial = m_columns == 1 && text.isEmpty(); // many readers skip an empty line
    char *to = m_end;                                  // a member would be read again behind each character
    for (; next != end && *next < FirstBeyondAscii; ++next) {
        isSpecial |= m_isSpecial[*next];
        *to++ = static_cast<char>(*next);
    }
    m_end = to;
    if (next != end) {
        QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
        m_end = encoder.appendToBuffer(m_end, QStringView(next, end));
        isSpecial |= std::any_of(next, end, [this](char16_t character) {
            return character < FirstBeyondAscii && m_isSpecial[character];
        });
    }
    if (isSpecial)
        quoteFrom(start);
}

/** Quotes what stands there from an offset on, in its place and from its end. */
void CsvWriter::quoteFrom(qsizetype start)
{
    const auto quotes = std::count(m_bytes.constData() + start, static_cast<const char *>(m_end), '"');
    reserve(quotes + 2);
    char *const first = m_bytes.data() + start;
    const char *from = m_end;
    m_end += quotes + 2;
    char *to = m_end;
    *--to = '"';
    while (from != first) {
        *--to = *--from;
        if (*from == '"')
            *--to = '"';
    }
    *first = '"';
}

void CsvWriter::putNumber(qint64 number)
{
    reserve(MostBytesOfAValue);
    m_end = std::to_chars(m_end, m_end + MostBytesOfAValue, number).ptr;
}

/** So many digits, with zeros in front, where there is room for them. */
void CsvWriter::putDigits(int number, int digits)
{
    m_end += digits;
    for (char *to = m_end; digits > 0; --digits, number /= 10)
        *--to = static_cast<char>('0' + number % 10);
}

void CsvWriter::addNumber(qint64 number, int decimals)
{
    separate();
    qint64 unit = 1;
    for (int i = 0; i < decimals; ++i)
        unit *= 10;
    putNumber(number / unit);
    qint64 fraction = number % unit;
    if (fraction == 0)
        return;
    for (; fraction % 10 == 0; fraction /= 10)
        --decimals;
    put(m_style.decimalSign);
    reserve(decimals);
    putDigits(static_cast<int>(fraction), decimals);
}

/** As ISO 8601 has it; QDate's own way makes a text first. */
void CsvWriter::putDate(QDate date)
{
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(&year, &month, &day);
    reserve(MostBytesOfAValue);
    if (year >= 0 && year < 10'000)
        putDigits(year, 4);
    else
        putNumber(year);
    *m_end++ = '-';
    putDigits(month, 2);
    *m_end++ = '-';
    putDigits(day, 2);
}

void CsvWriter::addDate(QDate date)
{
    separate();
    if (date.isValid())
        putDate(date);
}

void CsvWriter::addTime(const QDateTime &time)
{
    separate();
    if (!time.isValid())
        return;
    putDate(time.date());
    const int seconds = time.time().msecsSinceStartOfDay() / 1000;
    reserve(MostBytesOfAValue);
    *m_end++ = ' ';
    putDigits(seconds / 3600, 2);
    *m_end++ = ':';
    putDigits(seconds / 60 % 60, 2);
    *m_end++ = ':';
    putDigits(seconds % 60, 2);
}

void CsvWriter::addNothing()
{
    separate();
}

void CsvWriter::endRow()
{
    static const QByteArray lineEnd = QByteArrayLiteral("\r\n");
    put(lineEnd);
    m_column = 0;
    if (m_end - m_bytes.constData() >= ChunkSize)
        flush();
}

bool CsvWriter::endTable()
{
    flush();
    return m_isWritten;
}

void CsvWriter::flush()
{
    const qsizetype size = m_end - m_bytes.constData();
    m_isWritten = m_isWritten && m_sink(QByteArray::fromRawData(m_bytes.constData(), size));
    m_end = m_bytes.data();
}

} // namespace Host
