// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/**
 * Makes the name of a new record unique among the existing names, compared case-sensitively.
 *
 * A name that is taken gets "_" and a counter. After each rename the search goes on at the second existing
 * name: the first one is not compared again, so it can be met once more.
 */
QString uniqueName(const QString &base, const QStringList &existing);
