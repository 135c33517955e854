// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/fieldtexts.h"

#include <QLineEdit>

namespace {
constexpr char DefaultText[] = "defaultText"; // on a field, in the language on show

QVariant defaultText(const QLineEdit *field)
{
    return field->property(DefaultText);
}

bool isAllSelected(const QLineEdit *field)
{
    return field->hasSelectedText() && field->selectedText().size() == field->displayText().size();
}
} // namespace

FieldTexts::FieldTexts(const QList<QLineEdit *> &fields)
{
    for (QLineEdit *field : fields) {
        const QVariant fallback = defaultText(field);
        const bool isDefault = fallback.isValid() && field->text() == fallback.toString();
        m_contents.append({field, field->text(), field->cursorPosition(), isDefault, field->isModified(),
                           isAllSelected(field)});
        if (fallback.isValid())
            field->setText(fallback.toString()); // where the form sets none, this stays the default text
    }
}

void FieldTexts::restore()
{
    for (const Content &content : std::as_const(m_contents)) {
        QLineEdit *field = content.field;
        if (defaultText(field).isValid())
            field->setProperty(DefaultText, field->text());
        if (!content.isDefault)
            field->setText(content.text);
        field->setCursorPosition(content.cursor);
        field->setModified(content.isModified);
        if (content.isSelected)
            field->selectAll();
    }
}

void FieldTexts::noteDefaults(const QList<QLineEdit *> &fields)
{
    for (QLineEdit *field : fields)
        field->setProperty(DefaultText, field->text());
}

void FieldTexts::forgetDefaults(const QList<QLineEdit *> &fields)
{
    for (QLineEdit *field : fields)
        field->setProperty(DefaultText, QVariant());
}
