// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QLineEdit;

/**
 * Selects the whole content of a field with a mask when the user enters it by mouse or Tab, so that what is
 * typed takes its place. Left alone, a click puts the cursor behind the last place of the mask, where every
 * key is lost, or between the digits.
 */
class SelectOnEntry : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SelectOnEntry)

public:
    explicit SelectOnEntry(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QObject *m_clicked = nullptr; // the field that a mouse button, still down, has entered
};
