// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QLineEdit;

/**
 * Selects what a click or Tab goes to, so that what is typed takes its place: the whole content of a field
 * with a mask, the number of a spin box, the section of a date or a time. Left alone, a click puts the cursor
 * behind the last place of a mask, where every key is lost, or between digits that are in the way. What is
 * selected by dragging stays selected. Other fields are left to themselves.
 *
 * One object serves all fields. It is to be installed on the line edits, also on those inside spin boxes.
 */
class SelectOnEntry : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SelectOnEntry)

public:
    explicit SelectOnEntry(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_doubleClicked = false; // the mouse button that is down now was pressed twice
};
