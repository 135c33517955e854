// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/fieldselection.h"

#include <QDateTimeEdit>
#include <QLineEdit>

void selectContent(QWidget *input)
{
    if (auto *moment = qobject_cast<QDateTimeEdit *>(input))
        moment->setSelectedSection(moment->currentSection());
    else if (auto *number = qobject_cast<QAbstractSpinBox *>(input))
        number->selectAll();
    else if (auto *field = qobject_cast<QLineEdit *>(input))
        field->selectAll();
}
