// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/logbook.h"

/** The logbook that a storm goes over, and what another computer adds to it meanwhile. */
namespace StormBook {

/** What it begins with, and what its oldest copy holds. */
QByteArray document();
/** The same after another computer has recorded a flight of its own, at another place each time. */
QByteArray theirs(int number);
/** The location that is in that version alone. */
QString theirPlace(int number);
/** What a synchroniser calls that version. */
QString conflictName(int number);
/** The number in such a name; 0 in any other text. */
int numberIn(const QString &conflictName);
void addOne(QMap<QString, QString> *figures, const QString &counter);
/** Adds what a merge with it brings; nothing where that is there already. */
void merge(Logbook *logbook, int number);

/** How long a radio logs before the motor runs, which is when a discharge begins. */
constexpr int RestSeconds = 25;
/** The name and contents of a log that a radio has written. */
QString logName(int number);
QByteArray log(int number);

} // namespace StormBook
