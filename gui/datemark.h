// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QLineEdit;

/**
 * Marks a date field whose content is no date, as "2024-13-45": its text turns red, and its tooltip says why.
 * The mark goes as soon as a date stands there. A date that is still being typed is not marked, nor is an
 * empty field, which stands for no date.
 *
 * One object serves all fields.
 */
class DateMark : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DateMark)

public:
    explicit DateMark(QObject *parent);

    void watch(QLineEdit *field);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
