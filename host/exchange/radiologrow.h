// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/radiolog.h"

#include <QByteArrayView>

#include <optional>
#include <vector>

namespace Host {

/**
 * The fields of a line of comma-separated values, texts in quotes.
 *
 * By hand, not by a library: a row of a log has sixty fields, of which five matter, and a general parser
 * calls back for each and takes several times as long as reading the lines. It would also read on behind a
 * quote that is never closed, as in a row that was cut, and lose the rows that follow.
 */
class LogFields
{
public:
    /** Splits a line; only the first @p wanted fields can be asked for afterwards, but all are counted. */
    void split(QByteArrayView line, qsizetype wanted);

    qsizetype count() const { return m_count; }
    /** Without its quotes and the blanks around it; valid as long as the line is. */
    QByteArrayView at(qsizetype index) const
    {
        const Field &field = m_fields[static_cast<size_t>(index)];
        const char *begin = field.begin;
        const char *end = field.end;
        while (begin != end && *begin == ' ')
            ++begin;
        while (begin != end && end[-1] == ' ')
            --end;
        return QByteArrayView(begin, end);
    }
    QStringList texts(const QList<qsizetype> &indexes) const;

private:
    bool splitQuoted(QByteArrayView line, qsizetype wanted);
    void splitPlain(QByteArrayView line, qsizetype wanted);
    void setField(const char *begin, const char *end)
    {
        Field &field = m_fields[static_cast<size_t>(m_count)];
        field.begin = begin;
        field.end = end;
    }

    struct Field
    {
        const char *begin = nullptr;
        const char *end = nullptr;
    };
    std::vector<Field> m_fields; // more than are wanted, to be used again
    qsizetype m_count = 0;
};

/** A number with a point as decimal sign; not a number for anything else, which costs less than an optional.
 */
double logNumber(QByteArrayView field);

/** Reads the time of a row, quickly where the day is that of the row before. */
class LogClock
{
public:
    /** From "2025-01-02" and "12:22:21.060", with any number of decimals; nothing for what is no time. */
    std::optional<ClockTime> read(QByteArrayView date, QByteArrayView time);

private:
    std::optional<ClockTime> day(QByteArrayView date);

    char m_date[10] = {}; ///< the last one that was read
    ClockTime m_midnight = 0;
};

} // namespace Host
