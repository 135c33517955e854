// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/selectonentry.h"

#include <QFocusEvent>
#include <QLineEdit>

SelectOnEntry::SelectOnEntry(QObject *parent)
    : QObject(parent)
{
}

bool SelectOnEntry::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QLineEdit *>(watched);
    if (!field || field->inputMask().isEmpty())
        return false;
    if (event->type() == QEvent::MouseButtonRelease) {
        if (m_clicked == watched && !field->hasSelectedText())
            field->selectAll();
        m_clicked = nullptr;
    } else if (event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        m_clicked = reason == Qt::MouseFocusReason ? watched : nullptr;
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
            field->event(event); // the field moves its cursor first
            field->selectAll();
            return true;
        }
    }
    return false;
}
