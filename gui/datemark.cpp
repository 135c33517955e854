// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/datemark.h"

#include "gui/dateinput.h"

#include <QEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QToolTip>

#include <algorithm>

namespace {
// No palette has a role for what is wrong. Both can be read well: 7:1 on white, 8:1 on black or dark grey.
constexpr QRgb RedOnLight = 0xffb00020;
constexpr QRgb RedOnDark = 0xffff9090;
constexpr int MiddleGrey = 128;

bool isBroken(const QLineEdit *field)
{
    const QString text = field->text();
    const bool hasDigit = std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isDigit(); });
    return hasDigit && !DateInput::dateIn(field).isValid();
}

/** Whether nothing more can be typed, or nobody is typing. */
bool isComplete(const QLineEdit *field)
{
    return !field->hasFocus() || field->text().size() == field->inputMask().size();
}

QPalette markedPalette(const QLineEdit *field)
{
    const bool isLight = qGray(field->palette().color(QPalette::Base).rgb()) > MiddleGrey;
    QPalette marked;
    marked.setColor(QPalette::Text, isLight ? RedOnLight : RedOnDark);
    return marked;
}

void showMark(QLineEdit *field)
{
    field->setPalette(isBroken(field) && isComplete(field) ? markedPalette(field) : QPalette());
}
} // namespace

DateMark::DateMark(QObject *parent)
    : QObject(parent)
{
}

void DateMark::watch(QLineEdit *field)
{
    field->installEventFilter(this);
    connect(field, &QLineEdit::textChanged, this, [field] { showMark(field); });
}

bool DateMark::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QLineEdit *>(watched);
    if (!field)
        return false;
    if (event->type() == QEvent::FocusOut || event->type() == QEvent::PaletteChange) {
        showMark(field);
    } else if (event->type() == QEvent::ToolTip && isBroken(field)) {
        const QPoint place = static_cast<QHelpEvent *>(event)->globalPos();
        QToolTip::showText(place, tr("Not a valid date: no date will be stored"), field);
        return true;
    }
    return false;
}
