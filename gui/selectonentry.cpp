// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/selectonentry.h"

#include "gui/fieldselection.h"

#include <QAbstractSpinBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMouseEvent>

namespace {
bool isEnteredByTab(const QEvent *event)
{
    if (event->type() != QEvent::FocusIn)
        return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent *>(event)->reason();
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
}
} // namespace

SelectOnEntry::SelectOnEntry(QObject *parent)
    : QObject(parent)
{
}

bool SelectOnEntry::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QLineEdit *>(watched);
    if (!field)
        return false;
    auto *whole = qobject_cast<QAbstractSpinBox *>(field->parent());
    if (!whole && field->inputMask().isEmpty())
        return false;
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        m_doubleClicked = event->type() == QEvent::MouseButtonDblClick;
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const bool isLeft = static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
        if (isLeft && (m_doubleClicked || !field->hasSelectedText()))
            selectContent(whole ? static_cast<QWidget *>(whole) : field);
    } else if (!whole && isEnteredByTab(event)) {
        // The field moves its cursor first. It is not asked later, through the event loop: keys that are
        // typed ahead would come before that.
        field->event(event);
        field->selectAll();
        return true;
    }
    return false;
}
