// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/tableprinting.h"

#include "host/window/questions.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLocale>
#include <QPainter>
#include <QPrinter>
#include <QTableView>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

namespace Host {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TablePrinting)
};

/** Sizes of letters in points, the largest first: columns that do not fit are printed smaller. */
constexpr double Sizes[] = {10, 9, 8, 7, 6, 5, 4};

QList<int> columnsOf(const QTableView &table)
{
    QList<int> columns;
    for (int place = 0; place < table.model()->columnCount(); ++place) {
        const int column = table.horizontalHeader()->logicalIndex(place);
        if (!table.isColumnHidden(column))
            columns.append(column);
    }
    return columns;
}

void fillCell(QTextCursor cursor, const QString &text, const QVariant &alignment, bool isTitle)
{
    QTextBlockFormat block;
    block.setAlignment(alignment.isValid() ? Qt::Alignment(alignment.toInt()) : Qt::AlignLeading);
    cursor.setBlockFormat(block);
    QTextCharFormat letters;
    letters.setFontWeight(isTitle ? QFont::Bold : QFont::Normal);
    cursor.insertText(text, letters);
}

void fill(QTextDocument &document, const QTableView &table, const QString &title)
{
    const QAbstractItemModel &model = *table.model();
    const QList<int> columns = columnsOf(table);
    QTextCursor cursor(&document);
    fillCell(cursor, title, {}, true);
    cursor.movePosition(QTextCursor::End);
    QTextTableFormat format;
    format.setHeaderRowCount(1); // on every page
    format.setBorder(0.5);
    format.setBorderCollapse(true);
    format.setCellPadding(2);
    QTextTable *cells = cursor.insertTable(model.rowCount() + 1, static_cast<int>(columns.size()), format);
    for (int place = 0; place < columns.size(); ++place) {
        const int column = columns.at(place);
        fillCell(cells->cellAt(0, place).firstCursorPosition(),
                 model.headerData(column, Qt::Horizontal).toString(), {}, true);
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex index = model.index(row, column);
            fillCell(cells->cellAt(row + 1, place).firstCursorPosition(), index.data().toString(),
                     index.data(Qt::TextAlignmentRole), false);
        }
    }
}

void setSize(QTextDocument &document, double points, const QSizeF &page)
{
    QFont font = QGuiApplication::font();
    font.setPointSizeF(points);
    document.setDefaultFont(font);
    document.setPageSize(page);
}

/** @return whether the printer took it. */
bool printOn(QPrinter &printer, const QTableView &table, const QString &title)
{
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    QTextDocument document;
    QTextOption direction;
    direction.setTextDirection(QGuiApplication::layoutDirection());
    document.setDefaultTextOption(direction);
    fill(document, table, title);
    document.documentLayout()->setPaintDevice(&printer); // not before: it would lay out each cell anew
    const QRect paper = painter.viewport();
    const QSizeF page(paper.width(), paper.height() - 2.0 * painter.fontMetrics().lineSpacing());
    for (const double points : Sizes) {
        setSize(document, points, page);
        if (document.size().width() <= page.width())
            break;
    }
    for (int number = 0; number < document.pageCount(); ++number) {
        if (number > 0 && !printer.newPage())
            return false;
        painter.save();
        painter.translate(0, -number * page.height());
        document.drawContents(&painter, QRectF(QPointF(0, number * page.height()), page));
        painter.restore();
        painter.drawText(paper, Qt::AlignHCenter | Qt::AlignBottom, QLocale().toString(number + 1));
    }
    return painter.end() && printer.printerState() != QPrinter::Error;
}

} // namespace

void printTable(const QTableView &table, const QString &title, Questions &questions)
{
    questions.print(title, [&](QPrinter &printer) {
        if (!printOn(printer, table, title))
            questions.tell(Texts::tr("The table was not printed: the printer or the file for it cannot be "
                                     "written. Choose another one."));
    });
}

} // namespace Host
