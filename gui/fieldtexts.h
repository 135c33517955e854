// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QVariant>

class QLineEdit;

/**
 * What stands in the fields while the window learns another language: put aside by the constructor, put back
 * by restore(). A field that shows its default text, whoever typed it, follows the language; every other one
 * keeps its content. In between, the form sets its texts and masks anew.
 */
class FieldTexts
{
    Q_DISABLE_COPY_MOVE(FieldTexts)

public:
    explicit FieldTexts(const QList<QLineEdit *> &fields);

    void restore();

    /** What these fields show now is their default text. */
    static void noteDefaults(const QList<QLineEdit *> &fields);

    /** These fields show a record from now on; none of its values is a default text, even if it reads so. */
    static void forgetDefaults(const QList<QLineEdit *> &fields);

private:
    struct Content
    {
        QLineEdit *field;
        QString text;
        int cursor;
        bool isDefault;
        bool isModified;
        bool isSelected;
    };
    QList<Content> m_contents;
};
