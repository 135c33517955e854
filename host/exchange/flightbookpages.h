// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/flightbook.h"

#include <QByteArray>
#include <QPageSize>
#include <QSizeF>

#include <array>
#include <functional>
#include <vector>

class QPagedPaintDevice;
class QPainter;
class QTextDocument;

namespace Host {

/** Told which share of some work is done, up to 1. @return whether to go on. */
using Watch = std::function<bool(double share)>;

/**
 * A flight book on pages of one size: a table with a heading on each page, what the page and all pages up to
 * it come to, and a line to sign at the end.
 *
 * Where a page ends is worked out page by page, so that a window stays alive meanwhile.
 */
class FlightBookPages
{
public:
    static constexpr int UnitsPerInch = 1200; ///< lengths are counted in these

    /** @param points the size of the paper. */
    FlightBookPages(FlightBook book, const QSizeF &points, const QLocale &locale);

    /** The paper. */
    QSizeF size() const { return m_size; }
    /** The pages that are laid out up to now. */
    int count() const { return static_cast<int>(m_pages.size()); }
    bool isComplete() const { return m_isComplete; }
    /** Lays out one more page, unless all are. */
    void layOutNext();
    /** Lays out all pages. @return whether @p watch let it. */
    bool layOut(const Watch &watch = {});

    /** Draws a page that is laid out. @param painter counts in units from the paper's corner. */
    void draw(int page, QPainter &painter) const;
    /** Draws all pages on paper. @return whether @p watch let it, and the device took them. */
    bool print(QPagedPaintDevice &device, const Watch &watch = {}) const;

private:
    struct Row
    {
        qsizetype entry;
        qsizetype part; ///< of its texts, where they are too long for one row
    };
    struct Page
    {
        size_t firstRow = 0;
        size_t rowCount = 0;
        FlightBookTotals here;   ///< of the flights that begin on the page
        FlightBookTotals before; ///< of those that begin on earlier pages
        bool isLast = false;
    };

    void splitEntries();
    void measureColumns();
    QStringList cells(const Row &row) const;
    QStringList sums(const Page &page, qsizetype line) const;
    qsizetype entriesUpTo(size_t row) const;
    void fill(QTextDocument &document, const Page &page) const;
    std::vector<qreal> heights(size_t first) const;
    void drawLines(const std::vector<qreal> &tops, QPainter &painter) const;
    void drawEdges(int page, QPainter &painter) const;
    void drawSignature(QPainter &painter) const;
    QRectF body() const;

    const FlightBook m_book;
    const QLocale m_locale;
    const QSizeF m_size;
    std::array<qreal, FlightBookTexts::ColumnCount> m_widths = {};
    std::vector<Row> m_rows;
    std::vector<Page> m_pages;
    bool m_isComplete = false;
};

/** The flight book as a PDF document; empty where @p watch did not let it be made. */
QByteArray flightBookPdf(const FlightBook &book, QPageSize::PageSizeId paper, const QLocale &locale,
                         const Watch &watch = {});

} // namespace Host
