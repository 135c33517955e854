// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QTableView;

namespace Host {

class Questions;

/** Prints a table as it is on show, in its order, with its title above it. */
void printTable(const QTableView &table, const QString &title, Questions &questions);

} // namespace Host
