// SPDX-License-Identifier: GPL-3.0-or-later
// The two clicks that a deletion takes, on the three pages that delete something.
#include "gui/voltbokgui.h"

#include <QLabel>
#include <QPushButton>
#include <QVariant>

namespace {
constexpr char Asking[] = "asking"; // on a delete button: its next click is the second one
}

bool VoltbokGui::confirmed(QPushButton *button, QLabel *question)
{
    if (question->isVisible())
        return true;
    button->setProperty(Asking, true);
    showConfirmationText(button);
    question->show();
    return false;
}

void VoltbokGui::resetConfirmation(QPushButton *button, QLabel *question)
{
    button->setProperty(Asking, false);
    showConfirmationText(button);
    question->hide();
}

void VoltbokGui::showConfirmationText(QPushButton *button)
{
    button->setText(button->property(Asking).toBool() ? tr("Yes") : tr("Delete"));
}
