// SPDX-License-Identifier: GPL-3.0-or-later
// The half of the flight book's pages that draws them.
#include "host/exchange/flightbooklayout.h"
#include "host/exchange/flightbookpages.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

using namespace FlightBookLayout;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FlightBook)
};

/** Where a line of text begins, as one reads. */
Qt::Alignment leading()
{
    return (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
}

} // namespace

bool FlightBookLayout::isRightToLeft()
{
    return QGuiApplication::layoutDirection() == Qt::RightToLeft;
}

QFont FlightBookLayout::font(double points, QFont::Weight weight)
{
    QFont font;
    font.setPixelSize(qRound(points * FlightBookPages::UnitsPerInch / PointsPerInch));
    font.setWeight(weight);
    font.setItalic(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Next to nothing, but no letters melt into one then, which a search in the file would not find.
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.05);
    return font;
}

void FlightBookLayout::prepare(QTextDocument &document, qreal width)
{
    document.setUndoRedoEnabled(false);
    document.setDocumentMargin(0);
    document.setDefaultFont(font(TextSize));
    document.setUseDesignMetrics(true);
    document.setDefaultTextOption(QTextOption(leading())); // whichever way a name is written
    document.setTextWidth(width);
}

std::vector<qreal> FlightBookLayout::topsOfRows(const QTextDocument &document)
{
    const QList<QTextFrame *> frames = document.rootFrame()->childFrames();
    const QTextTable *table = frames.isEmpty() ? nullptr : qobject_cast<QTextTable *>(frames.constFirst());
    if (!table)
        return {};
    const QAbstractTextDocumentLayout *layout = document.documentLayout();
    std::vector<qreal> tops;
    for (int row = 0; row < table->rows(); ++row) {
        const QTextBlock block = table->cellAt(row, 0).firstCursorPosition().block();
        tops.push_back(layout->blockBoundingRect(block).top() - Padding);
    }
    tops.push_back(layout->frameBoundingRect(const_cast<QTextTable *>(table)).bottom());
    return tops;
}

void FlightBookPages::draw(int page, QPainter &painter) const
{
    const Page &drawn = m_pages.at(static_cast<size_t>(page));
    QTextDocument document;
    fill(document, drawn);
    painter.save();
    painter.setPen(Qt::black);
    drawEdges(page, painter);
    if (drawn.isLast && !m_rows.empty())
        drawSignature(painter);
    painter.translate(body().topLeft());
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black); // on paper, whatever the window's colours are
    document.documentLayout()->draw(&painter, context);
    drawLines(topsOfRows(document), painter);
    painter.restore();
}

/** The lines between the rows of the table, those around its figures in black. */
void FlightBookPages::drawLines(const std::vector<qreal> &tops, QPainter &painter) const
{
    for (size_t row = 0; row < tops.size(); ++row) {
        const bool isStrong = row < 2 || row + SumCount + 1 >= tops.size();
        painter.setPen(QPen(isStrong ? Qt::black : Qt::lightGray, Line));
        painter.drawLine(QLineF(0, tops.at(row), body().width(), tops.at(row)));
    }
}

/** The title above the table and the number of the page below it. */
void FlightBookPages::drawEdges(int page, QPainter &painter) const
{
    const QRectF paper = QRectF(QPointF(), m_size).adjusted(Margin, Margin, -Margin, -Margin);
    painter.setFont(font(TitleSize, QFont::Bold));
    painter.drawText(paper, static_cast<int>(leading() | Qt::AlignTop), FlightBookTexts::title());
    painter.setFont(font(TextSize));
    const QRectF below(paper.left(), paper.top() + painter.fontMetrics().height() * TitleSize / TextSize,
                       paper.width(), painter.fontMetrics().height());
    painter.drawText(below, static_cast<int>(leading() | Qt::AlignTop),
                     painter.fontMetrics().elidedText(FlightBookTexts::limits(m_book, m_locale),
                                                      Qt::ElideRight, qRound(below.width())));
    const QString number = m_locale.toString(page + 1);
    painter.drawText(paper, Qt::AlignHCenter | Qt::AlignBottom,
                     m_isComplete ? Text::tr("Page %1 of %2").arg(number, m_locale.toString(count()))
                                  : Text::tr("Page %1").arg(number));
}

void FlightBookPages::drawSignature(QPainter &painter) const
{
    const QRectF place = body();
    const qreal below = place.bottom() - painter.fontMetrics().height() * 1.5;
    const qreal gap = 10 * Millimetre;
    const qreal middle = place.left() + place.width() / 3;
    const auto line = [&](qreal begin, qreal end, const QString &what) {
        const qreal left = isRightToLeft() ? m_size.width() - end : begin;
        const QRectF caption(left, below, end - begin, place.bottom() - below);
        painter.setPen(QPen(Qt::black, Line));
        painter.drawLine(caption.topLeft(), caption.topRight());
        painter.drawText(caption, static_cast<int>(leading() | Qt::AlignBottom), what);
    };
    line(place.left(), middle, Text::tr("Place and date"));
    line(middle + gap, place.right(), Text::tr("Signature"));
}

bool FlightBookPages::print(QPagedPaintDevice &device, const Watch &watch) const
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double scale = static_cast<double>(device.logicalDpiX()) / UnitsPerInch;
    painter.scale(scale, scale);
    for (int page = 0; page < count(); ++page) {
        if (page > 0 && !device.newPage())
            return false;
        draw(page, painter);
        if (watch && !watch(static_cast<double>(page + 1) / count()))
            return false;
    }
    return painter.end();
}

QByteArray flightBookPdf(const FlightBook &book, QPageSize::PageSizeId paper, const QLocale &locale,
                         const Watch &watch)
{
    const auto half = [&watch](double begin) {
        return [&watch, begin](double share) { return !watch || watch(begin + share / 2); };
    };
    const QPageSize size(paper);
    FlightBookPages pages(book, size.size(QPageSize::Point), locale);
    if (!pages.layOut(half(0.0)))
        return QByteArray();
    QBuffer buffer;
    buffer.open(QBuffer::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b); // made to be kept: it brings all that it needs
    writer.setTitle(FlightBookTexts::title());
    writer.setCreator(QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion());
    writer.setResolution(FlightBookPages::UnitsPerInch);
    writer.setPageSize(size);
    writer.setPageMargins(QMarginsF());
    return pages.print(writer, half(0.5)) ? buffer.data() : QByteArray();
}

} // namespace Host
