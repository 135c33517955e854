// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/driver/hands.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/** The windows that take input now: a modal one keeps it from all others. */
QWidgetList windows()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return {modal};
    return QApplication::topLevelWidgets();
}

QWidget *logbook()
{
    for (QWidget *window : windows()) {
        if (window->inherits("VoltbokGui"))
            return window;
        for (QWidget *child : window->findChildren<QWidget *>()) {
            if (child->inherits("VoltbokGui"))
                return child;
        }
    }
    return nullptr;
}

/** A widget of the form; the ones on other pages, too. */
template <typename Widget>
Widget *part(const QString &name)
{
    QWidget *window = logbook();
    return window ? window->findChild<Widget *>(name) : nullptr;
}

bool canBePressed(const QAbstractButton *button)
{
    return button && button->isVisible() && button->isEnabled();
}

QPushButton *cardButton(const QWidget *card)
{
    return card->findChild<QPushButton *>(u"pushButton"_s);
}

QString cardText(const QWidget *card, const QString &label)
{
    const auto *text = card->findChild<QLabel *>(label);
    return text ? text->text() : QString();
}

/** The cards on show. */
QWidgetList cardWidgets()
{
    QWidgetList result;
    const QWidget *window = logbook();
    if (!window)
        return result;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->inherits("BatteryWidget") && canBePressed(cardButton(widget)))
            result.append(widget);
    }
    return result;
}

bool isCharged(const QWidget *card)
{
    return cardButton(card)->text() == u"Charged";
}

QWidget *cardOf(const QString &battery)
{
    const QList<QWidget *> cards = cardWidgets();
    const auto card = std::find_if(cards.cbegin(), cards.cend(), [&battery](const QWidget *one) {
        return cardText(one, u"lbl_name"_s) == battery;
    });
    return card == cards.cend() ? nullptr : *card;
}

QString isoTime(const QString &dateField, const QString &timeField)
{
    const auto *date = part<QDateTimeEdit>(dateField);
    const auto *time = part<QDateTimeEdit>(timeField);
    return QDateTime(date->date(), time->time()).toString(Qt::ISODate);
}

QString currentText(const QString &chooser)
{
    const auto *box = part<QComboBox>(chooser);
    return box ? box->currentText() : QString();
}

/** The first column of a table in a box. */
QStringList tableTexts(const QWidget *box)
{
    QStringList texts;
    const auto *table = box ? box->findChild<QAbstractItemView *>() : nullptr;
    const QAbstractItemModel *model = table ? table->model() : nullptr;
    for (int row = 0; model && row < model->rowCount(); ++row)
        texts.append(model->index(row, 0).data().toString());
    return texts;
}

/** The first button of this name, or with this text, that can be pressed now. */
QAbstractButton *pressable(const QString &button)
{
    for (const QWidget *window : windows()) {
        for (QAbstractButton *candidate : window->findChildren<QAbstractButton *>()) {
            const bool named = candidate->objectName() == button ||
                               candidate->text().remove(u'&').contains(button, Qt::CaseInsensitive);
            if (named && canBePressed(candidate))
                return candidate;
        }
    }
    return nullptr;
}

/** Leads to the page on which the catalogue is edited. */
bool goToEditPage()
{
    for (int presses = 0; presses < 3 && !canBePressed(part<QAbstractButton>(u"pb_edit_data"_s)); ++presses)
        Hands::press(u"pb_options"_s);
    return Hands::press(u"pb_edit_data"_s);
}

bool isOffered(const QString &chooser, const QString &text)
{
    const auto *box = part<QComboBox>(chooser);
    return box && box->findText(text) >= 0;
}

/** Deletes: a second time where the button asks first. */
bool pressAndConfirm(const QString &button)
{
    if (!Hands::press(button))
        return false;
    const auto *asking = part<QAbstractButton>(button);
    return !canBePressed(asking) || Hands::press(button);
}

bool changeAssignment(const QString &model, const QString &battery, const QString &button)
{
    if (!goToEditPage() || !Hands::choose(u"cb_model_choose_bat"_s, model) ||
        !Hands::choose(u"cb_bat_choose_model"_s, battery))
        return false;
    const bool done = Hands::press(button);
    Hands::press(u"pb_options"_s); // from here it leads to the overview
    return done;
}

} // namespace

bool Hands::press(const QString &button)
{
    QAbstractButton *found = pressable(button);
    if (found)
        found->click();
    return found != nullptr;
}

bool Hands::pressForBox(const QString &button)
{
    QAbstractButton *found = pressable(button);
    return found && QMetaObject::invokeMethod(found, &QAbstractButton::click, Qt::QueuedConnection);
}

bool Hands::type(const QString &field, const QString &text)
{
    auto *edit = part<QLineEdit>(field);
    if (!edit || !edit->isVisible())
        return false;
    edit->setText(text);
    return true;
}

bool Hands::choose(const QString &chooser, const QString &text)
{
    auto *box = part<QComboBox>(chooser);
    if (!box || !box->isVisible() || box->findText(text) < 0)
        return false;
    box->setCurrentText(text);
    return true;
}

bool Hands::chooseFromMenu(const QString &text)
{
    for (const QWidget *window : windows()) {
        for (QAction *action : window->findChildren<QAction *>()) {
            if (!action->isEnabled() || action->text().remove(u'&') != text)
                continue;
            QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
            return true;
        }
    }
    return false;
}

bool Hands::select(int row)
{
    const auto *box = QApplication::activeModalWidget();
    auto *view = qobject_cast<QAbstractItemView *>(box ? box->focusWidget() : nullptr);
    if (!view || row >= view->model()->rowCount())
        return false;
    view->setCurrentIndex(view->model()->index(row, 0));
    return view->currentIndex().row() == row;
}

bool Hands::seesBox()
{
    return QApplication::activeModalWidget() != nullptr;
}

void Hands::leaveBox()
{
    if (auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
        box->reject();
}

bool Hands::clickCard(const QString &battery, QStringList *result)
{
    QWidget *card = cardOf(battery);
    if (!card)
        return false;
    const bool discharges = isCharged(card);
    const QString model = currentText(u"cb_select_model"_s);
    const QString location = currentText(u"cb_log_location"_s);
    cardButton(card)->click();
    card = cardOf(battery); // the click may have had the logbook read again
    if (!card)
        return false;
    *result << cardText(card, u"lbl_cycles"_s) << QString::number(isCharged(card) ? 1 : 0);
    if (discharges)
        *result << isoTime(u"dedt_dischargeDate"_s, u"tedt_dischargeTime"_s)
                << QString::number(part<QSpinBox>(u"sb_discharged_capacity"_s)->value()) << model << location;
    return true;
}

bool Hands::addLocation(const QString &name)
{
    return goToEditPage() && press(u"pb_choose_addlocation"_s) && type(u"ledt_location_new"_s, name) &&
           press(u"pb_add_location"_s);
}

bool Hands::deleteLocation(const QString &name)
{
    return isOffered(u"cb_location_delete"_s, name) && goToEditPage() && press(u"pb_choose_dellocation"_s) &&
           choose(u"cb_location_delete"_s, name) && pressAndConfirm(u"pb_del_location"_s);
}

bool Hands::addBattery(const QString &name)
{
    return goToEditPage() && press(u"pb_choose_addbattery"_s) && type(u"ledt_name"_s, name) &&
           press(u"pb_addNewBattery"_s);
}

bool Hands::deleteBattery(const QString &name)
{
    return isOffered(u"cb_batteryList_delete"_s, name) && goToEditPage() &&
           press(u"pb_choose_delbattery"_s) && choose(u"cb_batteryList_delete"_s, name) &&
           pressAndConfirm(u"pb_deleteConfirm"_s);
}

bool Hands::assign(const QString &model, const QString &battery)
{
    return changeAssignment(model, battery, u"pb_add_batt_to_model"_s);
}

bool Hands::unassign(const QString &model, const QString &battery)
{
    return changeAssignment(model, battery, u"pb_rem_batt_from_model"_s);
}

QStringList Hands::cards()
{
    QStringList names;
    for (const QWidget *card : cardWidgets())
        names.append(cardText(card, u"lbl_name"_s));
    return names;
}

QStringList Hands::choices(const QString &chooser)
{
    QStringList texts;
    const auto *box = part<QComboBox>(chooser);
    for (int i = 0; box && i < box->count(); ++i)
        texts.append(box->itemText(i));
    return texts;
}

bool Hands::seesWindow()
{
    const QWidgetList all = QApplication::topLevelWidgets();
    return std::any_of(all.cbegin(), all.cend(), [](const QWidget *window) { return window->isVisible(); });
}

QStringList Hands::messages()
{
    QStringList texts = tableTexts(QApplication::activeModalWidget());
    const QWidget *pages = logbook();
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible())
            continue;
        for (const QLabel *label : window->findChildren<QLabel *>()) {
            const bool isOfTheForm = pages && pages->isAncestorOf(label);
            if (label->isVisible() && !isOfTheForm && !label->text().isEmpty())
                texts.append(label->text().simplified());
        }
    }
    return texts;
}

QStringList Hands::readAndCloseBox()
{
    const auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    const auto buttons = box ? box->findChildren<QPushButton *>() : QList<QPushButton *>();
    if (buttons.size() != 1)
        return {};
    QStringList told;
    const auto labels = box->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (!label->text().isEmpty())
            told.append(label->text().simplified());
    }
    buttons.constFirst()->click();
    return told;
}

bool Hands::closeWindow()
{
    QWidget *window = logbook();
    return window && window->window()->close();
}
