// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/**
 * Puts the sample catalogue into a folder, unless there is a catalogue already and @p reset is false.
 *
 * @return what went wrong, in one line; empty when nothing did.
 */
QString prepareDemo(const QString &path, bool reset);
