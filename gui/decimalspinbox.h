// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDoubleSpinBox>

/**
 * A spin box of a number so small that it is written without group separators: point and comma are both its
 * decimal sign, whatever the locale, typed or pasted.
 *
 * Inline as the generated form that makes it, which is compiled outside the library, too.
 */
class DecimalSpinBox : public QDoubleSpinBox // clazy:exclude=missing-qobject-macro
{
public:
    using QDoubleSpinBox::QDoubleSpinBox;

    QValidator::State validate(QString &input, int &pos) const override
    {
        const QString sign = locale().decimalPoint();
        input.replace(u'.', sign);
        input.replace(u',', sign);
        return QDoubleSpinBox::validate(input, pos);
    }
};
