// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/assistance.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QItemSelectionModel>
#include <QRadioButton>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Takes over what was selected in the list without having become current, which keys and pointer never do.
 */
void takeSelected(QComboBox &chooser)
{
    const QItemSelectionModel &selection = *chooser.view()->selectionModel();
    const QModelIndexList selected = selection.selectedIndexes();
    if (selected.isEmpty() || selected.constFirst() == selection.currentIndex())
        return;
    const int row = selected.constFirst().row();
    chooser.hidePopup();
    chooser.setCurrentIndex(row);
    Q_EMIT chooser.activated(row);
    Q_EMIT chooser.textActivated(chooser.itemText(row));
}

/** The list knows the choice only while it is open; a selection of what it takes for chosen would be none. */
void showChosen(const QComboBox &chooser)
{
    QItemSelectionModel &selection = *chooser.view()->selectionModel();
    selection.setCurrentIndex(
        chooser.model()->index(chooser.currentIndex(), chooser.modelColumn(), chooser.rootModelIndex()),
        QItemSelectionModel::ClearAndSelect);
}

void prepare(QComboBox &chooser)
{
    QAbstractItemView *list = chooser.view();
    list->setAccessibleName(chooser.accessibleName());
    if (chooser.accessibleDescription().isEmpty() && chooser.toolTip().isEmpty())
        chooser.setAccessibleDescription(chooser.accessibleName());
    showChosen(chooser);
    QObject::connect(&chooser, &QComboBox::currentIndexChanged, list, [&chooser] { showChosen(chooser); });
    // Later: what keys and the pointer select becomes current right after it.
    QObject::connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, &chooser,
                     [&chooser] { QTimer::singleShot(0, &chooser, [&chooser] { takeSelected(chooser); }); });
}

/** Clicks what was toggled alone; a click on what is checked changes nothing and tells everybody. */
void prepare(QRadioButton &button)
{
    auto *click = new QTimer(&button);
    click->setSingleShot(true);
    QObject::connect(click, &QTimer::timeout, &button, &QAbstractButton::click);
    QObject::connect(&button, &QAbstractButton::toggled, click, [click](bool checked) {
        if (checked)
            click->start(0);
    });
    QObject::connect(&button, &QAbstractButton::clicked, click, &QTimer::stop);
}

/** Later: the list of a box must not be made in the middle of a question about the box. */
template <typename Widget>
void prepareLater(Widget *widget)
{
    QTimer::singleShot(0, widget, [widget] { prepare(*widget); });
}

/** Makes nothing itself: Qt's own interfaces do. */
QAccessibleInterface *prepareWhenAsked(const QString &className, QObject *object)
{
    if (className == u"QComboBox"_s)
        prepareLater(static_cast<QComboBox *>(object));
    else if (className == u"QRadioButton"_s)
        prepareLater(static_cast<QRadioButton *>(object));
    return nullptr;
}

} // namespace

void installAssistance()
{
    QAccessible::installFactory(prepareWhenAsked);
}

} // namespace Host
