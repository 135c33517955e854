// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

/**
 * The button of a card. It fills itself with the background colour of its style sheet and writes in the
 * colour of that, in every style: left to a style, a gradient or a theme changes the colours that tell the
 * charge state. To everybody else it is a push button.
 *
 * A double click on it is one click: whatever moves below the pointer after the first press, the second press
 * charges or discharges nothing more.
 */
class ChargeButton : public QPushButton // clazy:exclude=missing-qobject-macro
{
public:
    explicit ChargeButton(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
};
