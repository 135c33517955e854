// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/pageentry.h"

#include "gui/fieldselection.h"

#include <QAbstractSpinBox>
#include <QButtonGroup>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include <algorithm>

namespace {
/** What Tab reaches on a page, in its order. */
QList<QWidget *> tabStops(const QWidget *page)
{
    QList<QWidget *> stops;
    for (QWidget *next = page->nextInFocusChain(); next && next != page; next = next->nextInFocusChain()) {
        const bool isStop = (next->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !next->focusProxy();
        if (isStop && page->isAncestorOf(next) && next->isEnabled() && next->isVisibleTo(page))
            stops.append(next);
    }
    return stops;
}

bool canBeTypedInto(const QWidget *widget)
{
    const bool isField = qobject_cast<const QLineEdit *>(widget) ||
                         qobject_cast<const QAbstractSpinBox *>(widget) ||
                         qobject_cast<const QPlainTextEdit *>(widget);
    return isField && !widget->property("readOnly").toBool();
}

/** The button that a group of radio buttons is entered at. */
QWidget *checkedOfGroup(QWidget *widget)
{
    const auto *button = qobject_cast<QRadioButton *>(widget);
    QAbstractButton *checked = button && button->group() ? button->group()->checkedButton() : nullptr;
    return checked ? checked : widget;
}

void showBeginnings(const QWidget *page)
{
    const auto fields = page->findChildren<QLineEdit *>();
    for (QLineEdit *field : fields) {
        if (field->isReadOnly())
            field->setCursorPosition(0);
    }
}
} // namespace

void enterPage(QWidget *page)
{
    showBeginnings(page);
    const QList<QWidget *> stops = tabStops(page);
    if (stops.isEmpty())
        return;
    const auto field = std::find_if(stops.cbegin(), stops.cend(), canBeTypedInto);
    QWidget *first = field != stops.cend() ? *field : checkedOfGroup(stops.first());
    if (auto *moment = qobject_cast<QDateTimeEdit *>(first))
        moment->setCurrentSectionIndex(0);
    first->setFocus();
    selectContent(first);
}
