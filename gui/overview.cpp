// SPDX-License-Identifier: GPL-3.0-or-later
// The overview: the cards of the selected model's batteries.
#include "gui/recordlookup.h"
#include "gui/voltbokgui.h"
#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "ui_voltbokgui.h"

#include <QGridLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

ModelWidget *VoltbokGui::selectedModel() const
{
    return RecordLookup::last(modelList, ui->cb_select_model->currentText());
}

void VoltbokGui::rebuildOverview()
{
    QWidget *content = renewContent();
    if (batteryList.isEmpty()) {
        ui->lo_overview->addWidget(ui->lbl_welcome, 0, 0);
        placeHint(1);
    } else if (modelList.isEmpty()) {
        overviewCardCount = -1; // without the selector the first card takes row 0
        placeCards();
    } else {
        ui->lo_overview->addWidget(ui->cb_select_model, 0, 0);
        placeCards();
    }
    ui->scrollArea->setWidget(content);
}

void VoltbokGui::on_cb_select_model_currentIndexChanged(int index)
{
    Q_UNUSED(index)
    const bool hadFocus = focusWidget() == ui->cb_select_model; // moving to the new grid takes it away
    QWidget *content = renewContent();
    ui->lo_overview->addWidget(ui->cb_select_model, 0, 0);
    overviewCardCount = 0;
    placeCards();
    ui->scrollArea->setWidget(content);
    if (hadFocus)
        ui->cb_select_model->setFocus();
    ui->cb_model_choose_bat->setCurrentText(ui->cb_select_model->currentText());
    ui->cb_logview_model->setCurrentText(ui->cb_select_model->currentText());
}

QWidget *VoltbokGui::renewContent()
{
    // The old content stays alive until the window goes: it may still hold widgets of the form and cards that
    // are not on show. It gives up its names, so that they lead to the content on show.
    ui->lo_overview->removeItem(ui->verticalSpacer_overview);
    ui->lo_overview->setObjectName(QString());
    QWidget *old = ui->scrollArea->takeWidget();
    old->setObjectName(QString());
    old->hide();
    old->setParent(this);

    auto *content = new QWidget;
    content->setObjectName(u"scrollView"_s);
    content->setGeometry(0, 0, 271, 319); // as the form has it
    ui->scrollView = content;
    ui->lo_overview = new QGridLayout(content);
    ui->lo_overview->setObjectName(u"lo_overview"_s);
    return content;
}

void VoltbokGui::placeCards()
{
    const ModelWidget *selected = selectedModel();
    for (BatteryWidget *card : std::as_const(batteryList)) {
        if (selected && !selected->containsBattery(card->getBatteryName()))
            continue;
        // Intentional: a card that is placed again is connected again, and its earlier connections stay.
        connect(card, &BatteryWidget::dataChanged, this, &VoltbokGui::writeDataWithDataprocessor);
        connect(card, &BatteryWidget::chargeBatteryClicked, this, &VoltbokGui::showBatteryCharge);
        ui->lo_overview->addWidget(card, ++overviewCardCount, 0);
    }
    if (selected && overviewCardCount == 0)
        placeHint(1);
    else
        placeSpacer(overviewCardCount + 1);
}

void VoltbokGui::placeHint(int row)
{
    ui->lo_overview->addWidget(ui->lbl_optionshint, row, 0);
    placeSpacer(row + 1);
}

void VoltbokGui::placeSpacer(int row)
{
    ui->lo_overview->addItem(ui->verticalSpacer_overview, row, 0);
}
