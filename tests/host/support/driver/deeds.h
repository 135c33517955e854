// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/** What a pilot can do with the window around the logbook: whole steps, most of them in a box. False means:
 * nothing was done. */
namespace Deeds {

/** Hears what exactly is about to happen, as the last thing before it does. */
using Ear = std::function<void(const QStringList &)>;

/** "Undo" or "Redo", from the menu. */
bool move(const QString &action);
/** Gives one of the flights in the table another location. The ear hears model, time, old and new location.
 */
bool editFlight(int number, const Ear &ear);
/** Restores the oldest of the copies. */
bool restoreOldest(const Ear &ear);
/** Drops a log on the window, ticks what is new and imports it. The ear hears model, battery, time and mAh.
 */
bool import(const QString &path, const Ear &ear);
/** Merges the version that the messages offer. The ear hears its file name. */
bool merge(const Ear &ear);
/** Whether there is one. */
bool isMergeOffered();

} // namespace Deeds
