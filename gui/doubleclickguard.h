// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>

class QWidget;

/**
 * Keeps a double click from doing two things. Some buttons change the data and what lies below the pointer:
 * the second press of a double click on them would do the same to another record, or hit a page that has just
 * come up.
 */
class DoubleClickGuard : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DoubleClickGuard)

public:
    /**
     * @param buttons a double click on one of them is one click.
     * @param page ignores, on all its widgets, a double click that began before the page was shown.
     */
    DoubleClickGuard(const QList<QWidget *> &buttons, QWidget *page, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<QWidget *> m_buttons;
    QWidget *m_page;
    QObject *m_pressed = nullptr; // what got the last press since the page was shown
};
