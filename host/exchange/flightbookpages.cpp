// SPDX-License-Identifier: GPL-3.0-or-later
// Where the pages of a flight book begin and end. They are drawn in flightbookdrawing.cpp.
#include "host/exchange/flightbookpages.h"

#include "host/exchange/flightbooklayout.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QFontMetricsF>
#include <QHash>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

using namespace FlightBookLayout;
using namespace FlightBookTexts;

constexpr qsizetype LongestMeasured = 60; // characters of a text, when the columns are laid out
constexpr int FirstFlexible = ModelName;  // the columns before it hold figures of one width

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FlightBook)
};

/** Shares a width among columns: those that need less than their share get what they need. */
void share(qreal width, const QList<std::pair<qreal, int>> &needs, std::array<qreal, ColumnCount> &widths)
{
    auto left = static_cast<qreal>(needs.size());
    for (const auto &[need, column] : needs) { // in ascending order
        widths.at(static_cast<size_t>(column)) = qMin(need, width / left);
        width -= widths.at(static_cast<size_t>(column));
        --left;
    }
    widths.at(Notes) += width; // what nobody needs
}

/** Where a column, or the first of several, stands from left to right. */
int placeOf(int column, int count = 1)
{
    return isRightToLeft() ? ColumnCount - column - count : column;
}

QTextTableFormat tableFormat(const std::array<qreal, ColumnCount> &widths)
{
    QTextTableFormat format;
    format.setBorder(0); // the table's own borders take several times as long as all the rest
    format.setCellSpacing(0);
    format.setCellPadding(Padding);
    format.setHeaderRowCount(1);
    QList<QTextLength> lengths;
    for (int place = 0; place < ColumnCount; ++place) // the same mapping both ways
        lengths.append(QTextLength(QTextLength::FixedLength, widths.at(static_cast<size_t>(placeOf(place)))));
    format.setColumnWidthConstraints(lengths);
    return format;
}

void put(QTextTable &table, int row, int column, const QString &text, bool isStrong = false)
{
    QTextCharFormat format;
    format.setFontWeight(isStrong ? QFont::Bold : QFont::Normal);
    table.cellAt(row, column).firstCursorPosition().insertText(text, format);
}

} // namespace

FlightBookPages::FlightBookPages(FlightBook book, const QSizeF &points, const QLocale &locale)
    : m_book(std::move(book))
    , m_locale(locale)
    , m_size(points * UnitsPerInch / PointsPerInch)
{
    splitEntries();
    measureColumns();
}

void FlightBookPages::splitEntries()
{
    m_rows.reserve(static_cast<size_t>(m_book.entries.size()));
    for (qsizetype entry = 0; entry < m_book.entries.size(); ++entry) {
        qsizetype count = 1;
        const QStringList texts = FlightBookTexts::cells(m_book.entries.at(entry), m_locale);
        for (const QString &text : texts)
            count = qMax(count, parts(text).size());
        for (qsizetype part = 0; part < count; ++part)
            m_rows.push_back({entry, part});
    }
}

void FlightBookPages::measureColumns()
{
    const QFontMetricsF metrics(font(TextSize));
    const QFontMetricsF strong(font(TextSize, QFont::Bold));
    std::array<QHash<QString, bool>, ColumnCount> measured;
    std::array<qreal, ColumnCount> needs = {};
    const QStringList titles = headings();
    const qreal around = 2 * Padding + metrics.averageCharWidth();
    for (size_t column = 0; column < ColumnCount; ++column)
        needs.at(column) = strong.horizontalAdvance(titles.at(static_cast<qsizetype>(column))) + around;
    for (const Row &row : m_rows) {
        const QStringList texts = cells(row);
        for (size_t column = 0; column < ColumnCount; ++column) {
            const QString text = texts.at(static_cast<qsizetype>(column)).left(LongestMeasured);
            if (std::exchange(measured.at(column)[text], true))
                continue;
            const qreal width = metrics.horizontalAdvance(text) + around;
            needs.at(column) = qMax(needs.at(column), width);
        }
    }
    qreal left = body().width();
    QList<std::pair<qreal, int>> flexible;
    for (int column = 0; column < ColumnCount; ++column) {
        const auto at = static_cast<size_t>(column);
        if (column >= FirstFlexible) {
            flexible.append({needs.at(at), column});
            continue;
        }
        m_widths.at(at) = qMin(needs.at(at), body().width() / int(ColumnCount));
        left -= m_widths.at(at);
    }
    std::sort(flexible.begin(), flexible.end());
    share(left, flexible, m_widths);
}

QRectF FlightBookPages::body() const
{
    return QRectF(QPointF(), m_size).adjusted(Margin, Margin + TitleHeight, -Margin, -Margin - FooterHeight);
}

QStringList FlightBookPages::cells(const Row &row) const
{
    QStringList texts = FlightBookTexts::cells(m_book.entries.at(row.entry), m_locale);
    for (QString &text : texts)
        text = parts(text).value(row.part);
    return texts;
}

/** How many entries begin before a row. */
qsizetype FlightBookPages::entriesUpTo(size_t row) const
{
    if (row >= m_rows.size())
        return m_book.entries.size();
    return m_rows.at(row).entry + (m_rows.at(row).part > 0 ? 1 : 0);
}

/** What a line below the table says: its name, the time in the air, and the number of flights. */
QStringList FlightBookPages::sums(const Page &page, qsizetype line) const
{
    const std::array<std::pair<QString, FlightBookTotals>, SumCount> lines = {
        {{Text::tr("This page"), page.here},
         {Text::tr("Brought forward"), page.before},
         {page.isLast ? Text::tr("In all") : Text::tr("Carried forward"), page.before + page.here}}};
    const auto &[name, totals] = lines.at(static_cast<size_t>(line));
    return {name, hours(totals.seconds), Text::tr("Flights: %1").arg(m_locale.toString(totals.flights))};
}

void FlightBookPages::fill(QTextDocument &document, const Page &page) const
{
    prepare(document, body().width());
    QTextCursor cursor(&document);
    if (m_rows.empty()) {
        cursor.insertText(m_book.range.isLimited() || m_book.models
                              ? Text::tr("There are no flights within these limits.")
                              : Text::tr("There are no flights in this logbook yet."));
        return;
    }
    const auto rowCount = static_cast<int>(page.rowCount);
    QTextTable *table =
        cursor.insertTable(1 + rowCount + static_cast<int>(SumCount), ColumnCount, tableFormat(m_widths));
    const QStringList titles = headings();
    for (int column = 0; column < ColumnCount; ++column)
        put(*table, 0, placeOf(column), titles.at(column), true);
    for (int row = 0; row < rowCount; ++row) {
        const QStringList texts = cells(m_rows.at(page.firstRow + static_cast<size_t>(row)));
        for (int column = 0; column < ColumnCount; ++column)
            put(*table, 1 + row, placeOf(column), texts.at(column));
    }
    constexpr int Behind = ColumnCount - ModelName; // columns behind the figures
    for (int line = 0; line < SumCount; ++line) {
        const int row = 1 + rowCount + line;
        const QStringList texts = sums(page, line);
        table->mergeCells(row, placeOf(Date, Duration), 1, Duration);
        table->mergeCells(row, placeOf(ModelName, Behind), 1, Behind);
        put(*table, row, placeOf(Date, Duration), texts.at(0), true);
        put(*table, row, placeOf(Duration), texts.at(1), true);
        put(*table, row, placeOf(ModelName, Behind), texts.at(2), true);
    }
}

/** How high the page is that begins with a row: with that row alone, with the next one, and so on, as far as
 * it may fit. */
std::vector<qreal> FlightBookPages::heights(size_t first) const
{
    const qreal least = QFontMetricsF(font(TextSize)).height() + 2 * Padding;
    const auto most = static_cast<size_t>(std::ceil(body().height() / least));
    const Page page{first, std::min(most, m_rows.size() - first), {}, {}, false};
    if (page.rowCount == 0)
        return {};
    QTextDocument document;
    fill(document, page);
    const std::vector<qreal> tops = topsOfRows(document);
    std::vector<qreal> heights;
    for (size_t row = 1; row <= page.rowCount; ++row)
        heights.push_back(tops.back() - (tops.at(page.rowCount + 1) - tops.at(row + 1)));
    return heights;
}

void FlightBookPages::layOutNext()
{
    if (m_isComplete)
        return;
    const size_t first = m_pages.empty() ? 0 : m_pages.back().firstRow + m_pages.back().rowCount;
    const size_t rest = m_rows.size() - first;
    const std::vector<qreal> needed = heights(first);
    const auto fitting = [&needed](qreal height) {
        return static_cast<size_t>(std::upper_bound(needed.cbegin(), needed.cend(), height) -
                                   needed.cbegin());
    };
    m_isComplete = fitting(body().height() - SignatureHeight) >= rest;
    size_t count = std::max<size_t>(fitting(body().height()), 1);
    if (m_isComplete || rest < count)
        count = rest;
    if (!m_isComplete && count == rest && rest > 1)
        --count; // no line to sign on a page without a flight
    Page page{first, count, {}, {}, m_isComplete};
    if (!m_pages.empty())
        page.before = m_pages.back().before + m_pages.back().here;
    page.here = m_book.totals(page.before.flights, entriesUpTo(first + count) - page.before.flights);
    m_pages.push_back(page);
}

bool FlightBookPages::layOut(const Watch &watch)
{
    while (!m_isComplete) {
        layOutNext();
        const size_t done = m_pages.back().firstRow + m_pages.back().rowCount;
        if (watch && !watch(static_cast<double>(done) / static_cast<double>(m_rows.size())))
            return false;
    }
    return true;
}

} // namespace Host
