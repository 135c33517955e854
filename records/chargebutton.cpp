// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/chargebutton.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>

namespace {
constexpr qreal Radius = 4;
constexpr qreal TextMargin = 6;
constexpr qreal FocusMargin = 3;
constexpr qreal DisabledOpacity = 0.5;
constexpr int PressedDarkness = 130; // in percent, see QColor::darker()
constexpr int BorderDarkness = 160;

/** The font, as much smaller as the text needs to fit in: the button has a fixed size, the font has none. */
QFont fitting(QFont font, const QString &text, const QSizeF &room)
{
    const QSizeF needed = QFontMetricsF(font).size(Qt::TextShowMnemonic, text);
    const qreal scale = std::min(room.width() / std::max(needed.width(), 1.0),
                                 room.height() / std::max(needed.height(), 1.0));
    if (scale < 1.0)
        font.setPixelSize(std::max(static_cast<int>(QFontInfo(font).pixelSize() * scale), 1));
    return font;
}

/** A rounded line of this width along the inside of the rectangle. */
void drawOutline(QPainter &painter, const QRectF &rect, const QColor &color, qreal width)
{
    const qreal half = width / 2;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), Radius, Radius);
}
} // namespace

ChargeButton::ChargeButton(QWidget *parent)
    : QPushButton(parent)
{
    setAttribute(Qt::WA_Hover);
}

bool ChargeButton::event(QEvent *event)
{
    if (event->type() != QEvent::StyleChange)
        return QPushButton::event(event);
    // No style decides how it looks or what place it takes: asking for that costs a fifth of a card's making.
    update();
    return true;
}

void ChargeButton::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QStyleOptionButton option;
    initStyleOption(&option);
    // The style sheet puts its colours into the palette.
    const QColor background = option.palette.color(QPalette::Button);
    const QRectF area = rect();

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled())
        painter.setOpacity(DisabledOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDown() ? background.darker(PressedDarkness) : background);
    painter.drawRoundedRect(area, Radius, Radius);
    const bool hovered = option.state.testFlag(QStyle::State_MouseOver);
    drawOutline(painter, area, background.darker(BorderDarkness), hovered ? 3 : 1);
    if (hasFocus()) // black stands out from both colours
        drawOutline(painter, area.marginsRemoved({FocusMargin, FocusMargin, FocusMargin, FocusMargin}),
                    Qt::black, 2);

    const QRectF place = area.marginsRemoved({TextMargin, TextMargin, TextMargin, TextMargin});
    painter.setFont(fitting(font(), text(), place.size()));
    painter.setPen(option.palette.color(QPalette::ButtonText));
    painter.drawText(place, Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

void ChargeButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}
