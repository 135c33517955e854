// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/sectiontyping.h"

#include <QDateTimeEdit>
#include <QKeyEvent>
#include <QLineEdit>

namespace {
/** The text that is selected in an edit. */
QString selection(const QDateTimeEdit *edit)
{
    const auto *field = edit->findChild<QLineEdit *>();
    return field ? field->selectedText() : QString();
}
} // namespace

SectionTyping::SectionTyping(QObject *parent)
    : QObject(parent)
{
}

bool SectionTyping::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        m_typedInto = nullptr;
    if (event->type() != QEvent::KeyPress)
        return false;
    auto *edit = qobject_cast<QDateTimeEdit *>(watched);
    const QString typed = static_cast<QKeyEvent *>(event)->text();
    if (!edit || typed.isEmpty())
        return false;
    if (isPassed(edit, typed)) {
        m_typedInto = nullptr;
        return true;
    }
    const bool isDigit = typed.at(0).isDigit();
    m_typedInto = isDigit ? edit : nullptr;
    if (isDigit && selection(edit) == edit->text())
        edit->setSelectedSection(edit->sectionAt(0));
    return false;
}

bool SectionTyping::isPassed(const QDateTimeEdit *edit, const QString &typed) const
{
    const bool isSeparator = typed.at(0).isPunct() || typed.at(0).isSpace();
    // The digits of a section that is not full yet are not selected; those of the next one are.
    return isSeparator && m_typedInto == edit && !selection(edit).isEmpty();
}
