// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/cataloguejson.h"
#include "host/exchange/tables.h"

#include <QByteArray>

#include <array>
#include <functional>

class QLocale;

namespace Host {

/** How values are spelled in CSV. */
struct CsvStyle
{
    QByteArray start;                  ///< of each file
    QByteArray separator = ",";        ///< between cells
    QByteArray decimalSign = ".";      ///< in numbers
    bool protectsFromFormulas = false; ///< spreadsheets take a text that looks like one as it is meant then

    /** RFC 4180 in UTF-8, the same everywhere: for other programs. */
    static CsvStyle plain() { return {}; }
    /** As the spreadsheets of a locale's users read it at a double click. */
    static CsvStyle forLocale(const QLocale &locale);
};

/** Writes tables as CSV: a header, a line for each row. */
class CsvWriter final : public TableWriter
{
public:
    /** @param sinkFor is asked for a sink when a table begins. */
    CsvWriter(CsvStyle style, std::function<ByteSink(const Table &)> sinkFor);

    void beginTable(const Table &table) override;
    void addText(const QString &text) override;
    void addNumber(qint64 number, int decimals = 0) override;
    void addDate(QDate date) override;
    void addTime(const QDateTime &time) override;
    void addNothing() override;
    void endRow() override;
    bool endTable() override;

private:
    void separate();
    /** Makes room. Nothing that writes behind m_end may write more than was made. */
    void reserve(qsizetype bytes)
    {
        if (m_limit - m_end < bytes)
            grow(bytes);
    }
    void grow(qsizetype bytes);
    void put(const QByteArray &bytes);
    void quoteFrom(qsizetype start);
    void putNumber(qint64 number);
    void putDigits(int number, int digits);
    void putDate(QDate date);
    void flush();

    const CsvStyle m_style;
    const std::function<ByteSink(const Table &)> m_sinkFor;
    ByteSink m_sink;
    std::array<bool, 128> m_isSpecial = {}; ///< characters that make a cell be quoted
    QByteArray m_bytes;                     ///< room for those that the sink has not got yet
    char *m_end;                            ///< of them
    char *m_limit;                          ///< of the room
    qsizetype m_columns = 0;
    qsizetype m_column = 0;
    bool m_isWritten = true;
};

} // namespace Host
