// SPDX-License-Identifier: GPL-3.0-or-later
#include "barebook.h"
#include "measure.h"

#include "host/exchange/tables.h"

#include <QFile>

#include <xlsxwriter.h>

#include <cmath>

namespace {

using Cell = BareBook::Cell;
using Sheet = BareBook::Sheet;

class Recorder final : public Host::TableWriter
{
public:
    QList<Sheet> sheets;

    void beginTable(const Host::Table &table) override
    {
        sheets.append({table.name.toUtf8(), static_cast<int>(table.columns.size()), {}});
        for (const Host::Column &column : table.columns)
            addText(column.header);
    }
    void addText(const QString &text) override { add({Cell::Text, text.toUtf8()}); }
    void addNumber(qint64 number, int decimals) override
    {
        add({Cell::Number, {}, static_cast<double>(number) / std::pow(10.0, decimals)});
    }
    void addDate(QDate date) override
    {
        add({date.isValid() ? Cell::Date : Cell::Nothing, {}, serial(date)});
    }
    void addTime(const QDateTime &time) override
    {
        const double share = time.time().msecsSinceStartOfDay() / 86'400'000.0;
        add({time.isValid() ? Cell::Time : Cell::Nothing, {}, serial(time.date()) + share});
    }
    void addNothing() override { add({}); }
    void endRow() override {}
    bool endTable() override { return true; }

private:
    static double serial(QDate date) { return static_cast<double>(QDate(1899, 12, 30).daysTo(date)); }
    void add(const Cell &cell) { sheets.last().cells.append(cell); }
};

void writeSheet(lxw_worksheet *sheet, const Sheet &stored, lxw_format *date, lxw_format *time)
{
    const auto columns = static_cast<lxw_col_t>(stored.columns);
    lxw_row_t row = 0;
    lxw_col_t column = 0;
    for (const Cell &cell : stored.cells) {
        if (cell.kind == Cell::Text)
            worksheet_write_string(sheet, row, column, cell.text.constData(), nullptr);
        else if (cell.kind != Cell::Nothing)
            worksheet_write_number(sheet, row, column, cell.number,
                                   cell.kind == Cell::Date   ? date
                                   : cell.kind == Cell::Time ? time
                                                             : nullptr);
        if (++column == columns) {
            column = 0;
            ++row;
        }
    }
}

} // namespace

BareBook::BareBook(const Host::Catalogue &catalogue)
{
    Recorder recorder;
    Host::writeTables(catalogue, catalogue, recorder);
    m_sheets = recorder.sheets;
}

double BareBook::write(const QString &path) const
{
    return Measure::threadSeconds([this, &path] {
        lxw_workbook_options options = {};
        options.constant_memory = LXW_TRUE;
        lxw_workbook *book = workbook_new_opt(QFile::encodeName(path).constData(), &options);
        lxw_format *date = workbook_add_format(book);
        format_set_num_format(date, "yyyy-mm-dd");
        lxw_format *time = workbook_add_format(book);
        format_set_num_format(time, "yyyy-mm-dd hh:mm:ss");
        for (const Sheet &stored : m_sheets)
            writeSheet(workbook_add_worksheet(book, stored.name.constData()), stored, date, time);
        if (workbook_close(book) != LXW_NO_ERROR)
            qFatal("The benchmarks cannot write a workbook.");
    });
}
