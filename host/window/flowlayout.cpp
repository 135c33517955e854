// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flowlayout.h"

#include <QStyle>
#include <QWidget>

#include <utility>

namespace Host {

FlowLayout::FlowLayout(QWidget *parent)
    : QLayout(parent)
{
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(std::exchange(m_items, {}));
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.append(item);
}

int FlowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

QSize FlowLayout::sizeHint() const
{
    int width = -spacing();
    for (const QLayoutItem *item : m_items)
        width += item->sizeHint().width() + spacing();
    return QSize(qMax(0, width), minimumSize().height());
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

int FlowLayout::heightForWidth(int width) const
{
    int height = 0;
    const QList<QRect> rects = places(QRect(0, 0, width, 0));
    for (const QRect &rect : rects) // the last item need not be the highest of its row
        height = qMax(height, rect.bottom() + 1);
    return height;
}

QList<QRect> FlowLayout::places(const QRect &rect) const
{
    QList<QRect> rects;
    QPoint corner = rect.topLeft();
    int rowHeight = 0;
    for (const QLayoutItem *item : m_items) {
        const QSize size = item->sizeHint().boundedTo(QSize(qMax(rect.width(), 1), QWIDGETSIZE_MAX));
        const bool fits = corner.x() + size.width() <= rect.x() + rect.width();
        if (!fits && rowHeight > 0) {
            corner = QPoint(rect.x(), corner.y() + rowHeight + spacing());
            rowHeight = 0;
        }
        rects.append(QRect(corner, size));
        corner.rx() += size.width() + spacing();
        rowHeight = qMax(rowHeight, size.height());
    }
    return rects;
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    const QList<QRect> rects = places(rect);
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    for (int i = 0; i < count(); ++i)
        itemAt(i)->setGeometry(QStyle::visualRect(direction, rect, rects.at(i)));
}

} // namespace Host
