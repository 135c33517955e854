// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/hostwindow.h"

#include "host/window/sidepanel.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>

/** What a pilot sees and does on a tab of the side panel. */
namespace Panel {

/** Opens the panel at a tab, and returns the tab as it is after the refresh. */
inline QWidget &open(HostWindow &window, Host::SidePanel::Tab tab)
{
    auto *panel = window.window().findChild<Host::SidePanel *>();
    panel->show();
    window.window().resize(1400, 900);
    panel->setCurrentIndex(tab);
    QCoreApplication::processEvents();
    return *panel->currentWidget();
}

/** The view, field or button of this accessible name that is on show; null when there is none. */
template <typename Widget>
Widget *named(const QWidget &tab, const QString &name)
{
    const auto all = tab.findChildren<Widget *>();
    for (Widget *widget : all) {
        if (widget->isVisible() && widget->accessibleName() == name)
            return widget;
    }
    return nullptr;
}

/** The button of this caption that is on show; null when there is none. */
inline QAbstractButton *button(const QWidget &tab, const QString &caption)
{
    const auto all = tab.findChildren<QAbstractButton *>();
    for (QAbstractButton *found : all) {
        if (found->isVisible() && found->text().remove(u'&') == caption)
            return found;
    }
    return nullptr;
}

/** The number of the column with this title; -1 when there is none. */
inline int column(const QAbstractItemView &view, const QString &title)
{
    const QAbstractItemModel &model = *view.model();
    for (int column = 0; column < model.columnCount(); ++column) {
        if (model.headerData(column, Qt::Horizontal).toString() == title)
            return column;
    }
    return -1;
}

/** What a column shows, from top to bottom. */
inline QStringList texts(const QAbstractItemView &view, const QString &title)
{
    QStringList texts;
    for (int row = 0; row < view.model()->rowCount(); ++row)
        texts.append(view.model()->index(row, column(view, title)).data().toString());
    return texts;
}

/** What the labels on show say. */
inline QString said(const QWidget &tab)
{
    QStringList texts;
    const auto labels = tab.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts.join(u'\n');
}

/** Every field, list, button and plot that can be reached with the keyboard has a name to read out. */
inline QStringList nameless(const QWidget &tab)
{
    QStringList found;
    const auto all = tab.findChildren<QWidget *>();
    for (QWidget *widget : all) {
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy())
            continue;
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(widget);
        if (face->text(QAccessible::Name).isEmpty())
            found.append(QString::fromLatin1(widget->metaObject()->className()));
    }
    return found;
}

/** What Tab reaches from @p start on, until it comes round. */
inline QList<QWidget *> reachedByTab(QWidget *start)
{
    QList<QWidget *> reached;
    start->setFocus();
    QWidget *focused = start;
    for (int step = 0; step < 100; ++step) {
        QTest::keyClick(focused, Qt::Key_Tab);
        focused = QApplication::focusWidget();
        if (!focused || focused == start)
            break;
        if (!reached.contains(focused)) // a date's field has several places of its own
            reached.append(focused);
    }
    return reached;
}

} // namespace Panel
