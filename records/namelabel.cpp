// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/namelabel.h"

#include "records/shorttext.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

NameLabel::NameLabel(QWidget *parent)
    : QLabel(parent)
{
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
