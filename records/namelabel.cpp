// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/namelabel.h"

#include "records/shorttext.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {
constexpr int FewestCharacters = 4;
}

NameLabel::NameLabel(QWidget *parent)
    : QLabel(parent)
{
}

QSize NameLabel::minimumSizeHint() const
{
    const QSize whole = QLabel::minimumSizeHint();
    return {std::min(whole.width(), FewestCharacters * fontMetrics().averageCharWidth()), whole.height()};
}

bool NameLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !isCut())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), wholeNameTip(text()), this);
    return true;
}

void NameLabel::paintEvent(QPaintEvent *event)
{
    if (!isCut()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QRect place = contentsRect();
    const QString line = QString(text()).replace(u'\n', u' ');
    style()->drawItemText(&painter, place, QStyle::visualAlignment(layoutDirection(), alignment()), palette(),
                          isEnabled(), fontMetrics().elidedText(line, Qt::ElideRight, place.width()),
                          foregroundRole());
}

bool NameLabel::isCut() const
{
    return QLabel::sizeHint().width() > width();
}
