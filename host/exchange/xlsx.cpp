// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/xlsx.h"

#include "host/exchange/pointsinnumbers.h"
#include "host/safety/wholefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QStorageInfo>
#include <QTemporaryDir>

#include <xlsxwriter.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qsizetype ChunkSize = qsizetype(64) * 1024;
constexpr double SecondsOfADay = 86'400.0;

QString translated(const char *text)
{
    return QCoreApplication::translate("Xlsx", text);
}

/** The number of a day in a spreadsheet, which takes 1900 for a leap year. */
double serialOf(QDate date)
{
    static const QDate Epoch(1899, 12, 30);
    const qint64 days = Epoch.daysTo(date);
    return static_cast<double>(date < QDate(1900, 3, 1) ? days - 1 : days);
}

/** A spreadsheet counts from 1900 on. */
bool isCountable(QDate date)
{
    return date >= QDate(1900, 1, 1) && date <= QDate(9999, 12, 31);
}

class XlsxWriter final : public TableWriter
{
public:
    explicit XlsxWriter(const QTemporaryDir &folder);
    ~XlsxWriter() override;

    void beginTable(const Table &table) override;
    void addText(const QString &text) override;
    void addNumber(qint64 number, int decimals = 0) override;
    void addDate(QDate date) override;
    void addTime(const QDateTime &time) override;
    void addNothing() override { ++m_column; }
    void endRow() override;
    bool endTable() override;

    /** Puts the file together. @return why that cannot be done, a clause. */
    QString finish();
    QString problem() const { return m_problem; }
    qsizetype cutTexts() const { return m_cutTexts; }

private:
    lxw_format *newFormat(const char *pattern);
    void addNumberAs(double number, lxw_format *format);
    void check(lxw_error error);

    const QByteArray m_folder;
    const PointsInNumbers m_points;
    lxw_workbook *m_workbook;
    lxw_format *m_header = nullptr; // they belong to the workbook
    lxw_format *m_date = nullptr;
    lxw_format *m_time = nullptr;
    lxw_worksheet *m_sheet = nullptr;
    std::vector<lxw_worksheet *> m_sheets;
    lxw_row_t m_row = 0;
    lxw_col_t m_column = 0;
    lxw_col_t m_columns = 0;
    qint64 m_size = 0; ///< of the sheets in temporary files
    qsizetype m_cutTexts = 0;
    QString m_problem;
};

XlsxWriter::XlsxWriter(const QTemporaryDir &folder)
    : m_folder(QFile::encodeName(folder.path()))
{
    QByteArray temporary = m_folder;
    lxw_workbook_options options = {};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = temporary.data();
    m_workbook = workbook_new_opt((m_folder + "/workbook.xlsx").constData(), &options);
    if (!m_workbook) {
        m_problem = translated(QT_TRANSLATE_NOOP("Xlsx", "there is not enough memory"));
        return;
    }
    lxw_doc_properties properties = {};
    properties.created = 315'532'800; // as the parts of the archive; the same logbook gives the same bytes
    workbook_set_properties(m_workbook, &properties);
    m_header = newFormat("General");
    format_set_bold(m_header);
    m_date = newFormat("yyyy-mm-dd");
    m_time = newFormat("yyyy-mm-dd hh:mm:ss");
}

XlsxWriter::~XlsxWriter()
{
    if (!m_workbook)
        return;
    for (lxw_worksheet *sheet : m_sheets) // given up; the library would leave their files open
        std::fclose(std::exchange(sheet->optimize_tmpfile, nullptr));
    lxw_workbook_free(m_workbook);
}

lxw_format *XlsxWriter::newFormat(const char *pattern)
{
    lxw_format *format = workbook_add_format(m_workbook);
    format_set_num_format(format, pattern);
    return format;
}

void XlsxWriter::beginTable(const Table &table)
{
    m_row = 0;
    m_columns = static_cast<lxw_col_t>(table.columns.size());
    m_sheet = m_workbook ? workbook_add_worksheet(m_workbook, table.name.toUtf8().constData()) : nullptr;
    if (!m_sheet) {
        if (m_problem.isEmpty())
            m_problem = WholeFile::clause(qt_error_string(errno));
        return;
    }
    m_sheets.push_back(m_sheet);
    static constexpr double Widths[] = {24, 14, 12, 20}; // characters, by Column::Kind
    for (lxw_col_t column = 0; column < m_columns; ++column) {
        const Column &description = table.columns.at(column);
        const double width =
            std::max<double>(Widths[description.kind], static_cast<double>(description.header.size()) + 4);
        worksheet_set_column(m_sheet, column, column, width, nullptr);
        worksheet_write_string(m_sheet, 0, column, description.header.toUtf8().constData(), m_header);
    }
    worksheet_freeze_panes(m_sheet, 1, 0);
    endRow();
}

void XlsxWriter::check(lxw_error error)
{
    if (error == LXW_NO_ERROR || !m_problem.isEmpty())
        return;
    m_problem = error == LXW_ERROR_WORKSHEET_INDEX_OUT_OF_RANGE
                    ? translated(QT_TRANSLATE_NOOP("Xlsx", "a sheet has no more than 1,048,576 rows"))
                    : QString::fromUtf8(lxw_strerror(error));
}

void XlsxWriter::addText(const QString &text)
{
    const lxw_col_t column = m_column++;
    if (!m_sheet || text.isEmpty())
        return;
    QString cell = text;
    if (cell.contains(u'\r')) // a cell has no such line breaks, and would show them
        cell.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    if (cell.size() > Xlsx::LongestText) {
        cell.truncate(Xlsx::LongestText - (cell.at(Xlsx::LongestText - 1).isHighSurrogate() ? 1 : 0));
        ++m_cutTexts;
    }
    check(worksheet_write_string(m_sheet, m_row, column, cell.toUtf8().constData(), nullptr));
}

void XlsxWriter::addNumberAs(double number, lxw_format *format)
{
    if (m_sheet)
        check(worksheet_write_number(m_sheet, m_row, m_column, number, format));
    ++m_column;
}

void XlsxWriter::addNumber(qint64 number, int decimals)
{
    double unit = 1.0;
    for (int i = 0; i < decimals; ++i)
        unit *= 10.0;
    addNumberAs(static_cast<double>(number) / unit, nullptr);
}

void XlsxWriter::addDate(QDate date)
{
    if (isCountable(date))
        addNumberAs(serialOf(date), m_date);
    else
        addText(isoText(date));
}

void XlsxWriter::addTime(const QDateTime &time)
{
    const int seconds = time.time().msecsSinceStartOfDay() / 1000;
    if (time.isValid() && isCountable(time.date()))
        addNumberAs(serialOf(time.date()) + seconds / SecondsOfADay, m_time);
    else
        addText(isoText(time));
}

void XlsxWriter::endRow()
{
    ++m_row;
    m_column = 0;
}

bool XlsxWriter::endTable()
{
    if (!m_sheet)
        return false;
    // A filter over the header alone is none.
    worksheet_autofilter(m_sheet, 0, 0, std::max<lxw_row_t>(m_row - 1, 1),
                         static_cast<lxw_col_t>(m_columns - 1));
    // The library does not look whether its temporary files could be written.
    if (std::fflush(m_sheet->optimize_tmpfile) != 0 || std::ferror(m_sheet->optimize_tmpfile) != 0)
        m_problem = WholeFile::clause(qt_error_string(errno == 0 ? ENOSPC : errno));
    m_size += std::ftell(m_sheet->optimize_tmpfile);
    return m_problem.isEmpty();
}

QString XlsxWriter::finish()
{
    // Nor does it look when it puts them together: that takes each sheet again, and packed beside it.
    const QStorageInfo disk(QFile::decodeName(m_folder));
    if (disk.bytesTotal() > 0 && disk.bytesAvailable() < 2 * m_size)
        return WholeFile::clause(qt_error_string(ENOSPC));
    check(workbook_close(std::exchange(m_workbook, nullptr)));
    return m_problem;
}

/** Passes a file on. @return why it cannot be read, a clause. */
QString passOn(const QString &path, const ByteSink &sink)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return WholeFile::clause(file.errorString());
    while (!file.atEnd()) {
        const QByteArray bytes = file.read(ChunkSize);
        if (bytes.isEmpty())
            return WholeFile::clause(file.errorString());
        if (!sink(bytes))
            break;
    }
    return QString();
}

} // namespace

bool Xlsx::isAvailable()
{
    return true;
}

Xlsx::Written Xlsx::write(const Catalogue &catalogue, const Catalogue &whole, const ByteSink &sink,
                          const Proceed &proceed)
{
    const QTemporaryDir folder;
    if (!folder.isValid())
        return {WholeFile::clause(folder.errorString())};
    XlsxWriter writer(folder);
    bool isStopped = false;
    const Proceed goOn = [&](qsizetype rows) {
        isStopped = proceed && !proceed(rows);
        return !isStopped;
    };
    if (!writeTables(catalogue, whole, writer, goOn))
        return {writer.problem(), 0, isStopped};
    QString problem = writer.finish();
    if (problem.isEmpty())
        problem = passOn(folder.filePath(u"workbook.xlsx"_s), sink);
    return {problem, writer.cutTexts()};
}

} // namespace Host
