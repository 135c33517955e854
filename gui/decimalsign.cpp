// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/decimalsign.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {
/** The key of the sign that stands in the mask for the one that was typed; none if there is nothing to do. */
Qt::Key maskedSign(const QString &mask, const QString &typed)
{
    if (typed == u"," && mask.contains(u'.') && !mask.contains(u','))
        return Qt::Key_Period;
    if (typed == u"." && mask.contains(u',') && !mask.contains(u'.'))
        return Qt::Key_Comma;
    return Qt::Key_unknown;
}
} // namespace

DecimalSign::DecimalSign(QObject *parent)
    : QObject(parent)
{
}

bool DecimalSign::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *field = qobject_cast<QLineEdit *>(watched);
    const auto *pressed = static_cast<QKeyEvent *>(event);
    const Qt::Key sign = field ? maskedSign(field->inputMask(), pressed->text()) : Qt::Key_unknown;
    if (sign == Qt::Key_unknown)
        return false;
    QKeyEvent meant(QEvent::KeyPress, sign, pressed->modifiers(), QString(QChar(sign)));
    QCoreApplication::sendEvent(watched, &meant);
    return true;
}
