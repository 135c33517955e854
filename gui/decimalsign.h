// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/**
 * Takes the comma for the point in a field whose mask has a point, and the other way round: which of the two
 * a keyboard offers beside its digits is a matter of the country, not of the number.
 *
 * One object serves all fields. Spin boxes have DecimalSpinBox for this, which also reads what is pasted.
 */
class DecimalSign : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DecimalSign)

public:
    explicit DecimalSign(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
