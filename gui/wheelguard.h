// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

/**
 * Leaves the wheel to the page while the pointer merely passes over a chooser, a spin box, a date or a time:
 * only one that has the focus turns with it.
 *
 * One object serves all of them.
 */
class WheelGuard : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WheelGuard)

public:
    explicit WheelGuard(QObject *parent);

    void watch(QWidget *input);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
