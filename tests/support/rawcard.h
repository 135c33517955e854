// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/batterywidget.h" // the generated form takes QDateTime for granted
#include "ui_batterywidget.h"

/** The form of a card on a bare widget: what it says before any code of ours has touched it. */
struct RawCard : Ui_BatteryWidget
{
    RawCard() { setupUi(&widget); }

    QWidget widget;
};
