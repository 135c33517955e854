// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/doubleclickguard.h"

#include <QEvent>
#include <QWidget>

DoubleClickGuard::DoubleClickGuard(const QList<QWidget *> &buttons, QWidget *page, QObject *parent)
    : QObject(parent)
    , m_buttons(buttons)
    , m_page(page)
{
    const auto inputs = page->findChildren<QWidget *>();
    for (QWidget *watched : buttons + inputs)
        watched->installEventFilter(this);
    page->installEventFilter(this);
}

bool DoubleClickGuard::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (watched == m_page)
            m_pressed = nullptr;
        return false;
    case QEvent::MouseButtonPress:
        m_pressed = watched;
        return false;
    case QEvent::MouseButtonDblClick:
        return watched != m_pressed || m_buttons.contains(watched);
    default:
        return false;
    }
}
