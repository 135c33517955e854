// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/** What a pilot can do with the window. False means: not possible now, nothing was done. */
namespace Hands {

/** @param result receives cycles, charged (0, 1) and, of a discharge, its time, mAh, model and location. */
bool clickCard(const QString &battery, QStringList *result);
bool press(const QString &button);
/** Presses what opens a box; this does not wait. */
bool pressForBox(const QString &button);
bool type(const QString &field, const QString &text);
bool choose(const QString &chooser, const QString &text);

/** Triggers what stands in a menu; it may open a box, so this does not wait. */
bool chooseFromMenu(const QString &text);
/** Chooses a row of the table in a box that has the focus. */
bool select(int row);
/** Whether a box keeps the input from the window. */
bool seesBox();
/** Closes a box, if there is one. */
void leaveBox();

bool addLocation(const QString &name);
bool deleteLocation(const QString &name);
bool addBattery(const QString &name);
bool deleteBattery(const QString &name);
bool assign(const QString &model, const QString &battery);
bool unassign(const QString &model, const QString &battery);

/** The names on the cards that can be clicked. */
QStringList cards();
QStringList choices(const QString &chooser);
/** Whether any window is on show. */
bool seesWindow();
/** Texts of boxes and of tables in them, and of what stands around the logbook. */
QStringList messages();
/** Agrees to a box that has no other answer. @return what it said; nothing when there is none. */
QStringList readAndCloseBox();
bool closeWindow();

} // namespace Hands
