// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightbookpreview.h"

#include "host/exchange/flightbookpages.h"

#include <QPainter>

namespace Host {

FlightBookPreview::FlightBookPreview(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FlightBookPreview::show(const FlightBookPages *pages, int page)
{
    m_pages = pages;
    m_page = page;
    const QString name = tr("Preview of page %1").arg(page + 1);
    setAccessibleName(pages ? name : tr("No preview"));
    update();
}

QSize FlightBookPreview::sizeHint() const
{
    return QSize(64, 84) * fontMetrics().averageCharWidth();
}

QSize FlightBookPreview::minimumSizeHint() const
{
    return sizeHint() / 4;
}

void FlightBookPreview::paintEvent(QPaintEvent *)
{
    if (!m_pages)
        return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const QSizeF paper = m_pages->size().scaled(size(), Qt::KeepAspectRatio);
    painter.translate((width() - paper.width()) / 2, (height() - paper.height()) / 2);
    painter.fillRect(QRectF(QPointF(), paper), Qt::white);
    painter.scale(paper.width() / m_pages->size().width(), paper.height() / m_pages->size().height());
    m_pages->draw(m_page, painter);
}

} // namespace Host
