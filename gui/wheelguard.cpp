// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/wheelguard.h"

#include <QEvent>
#include <QWidget>

WheelGuard::WheelGuard(QObject *parent)
    : QObject(parent)
{
}

void WheelGuard::watch(QWidget *input)
{
    input->setFocusPolicy(Qt::StrongFocus); // or the first notch of the wheel would give it the focus
    input->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return false;
    event->ignore(); // the widgets behind have their turn
    return true;
}
