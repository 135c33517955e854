// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

/** Paints a field that can only be read on the colour of the window around it. */
inline void showAsReadOnly(QLineEdit *field, const QPalette &around)
{
    QPalette look;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        look.setBrush(group, QPalette::Base, around.brush(group, QPalette::Window));
    field->setPalette(look);
}
