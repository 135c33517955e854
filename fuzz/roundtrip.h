// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/**
 * Puts @p bytes into @p folder as the data file, loads it, and saves and loads twice what was read.
 *
 * Whatever the bytes are, the loaders come to an end, the records are whole and few enough for the size of
 * the file, and the file that is saved is well-formed, gives the same records and is saved again byte for
 * byte.
 *
 * @return what is wrong, for a human; empty when all of this holds.
 */
QString roundTripFault(const QByteArray &bytes, const QString &folder);
