// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

#include <utility>

/**
 * Deletes every object of a list, and empties the list first: a widget that goes moves the focus, emits
 * signals and lays its page out anew, and whoever is called by that must find no record half deleted.
 */
template <typename T>
void deleteAll(QList<T *> &list)
{
    qDeleteAll(std::exchange(list, {}));
}
