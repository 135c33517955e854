// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>

#include <functional>

namespace Host {

/** A column of an exported table. */
struct Column
{
    enum Kind { Text, Number, Date, Time };

    QString header;
    Kind kind = Text;
};

/** A table of an export. What it is called is the same in every language. */
struct Table
{
    QString name; ///< of its file or sheet
    QList<Column> columns;
};

/** Takes tables, cell by cell from left to right. */
class TableWriter
{
public:
    TableWriter() = default;
    virtual ~TableWriter() = default;
    TableWriter(const TableWriter &) = delete;
    TableWriter &operator=(const TableWriter &) = delete;

    virtual void beginTable(const Table &table) = 0;
    virtual void addText(const QString &text) = 0;
    /** The value is @p number / 10^@p decimals; with decimals it is not negative. */
    virtual void addNumber(qint64 number, int decimals = 0) = 0;
    virtual void addDate(QDate date) = 0; ///< nothing where it is invalid, as with the next one
    virtual void addTime(const QDateTime &time) = 0;
    virtual void addNothing() = 0;
    virtual void endRow() = 0;
    /** @return whether everything so far could be written. */
    virtual bool endTable() = 0;
};

/** "2025-03-14", and nothing for what is invalid. */
QString isoText(QDate date);
/** "2025-04-06 16:40:28" */
QString isoText(const QDateTime &time);

/** Told how many rows were written, every now and then; says whether to go on. */
using Proceed = std::function<bool(qsizetype)>;

/** Batteries, discharges, models, flights and locations, in this order. */
const QList<Table> &exportTables();

/** How many rows they have together. */
qsizetype countRows(const Catalogue &catalogue);

/**
 * Writes all tables, their rows in the order of the file.
 *
 * @param whole the logbook that @p catalogue is a part of, to tell which batteries a flight had.
 * @return whether everything was written.
 */
bool writeTables(const Catalogue &catalogue, const Catalogue &whole, TableWriter &writer,
                 const Proceed &proceed = {});

} // namespace Host
