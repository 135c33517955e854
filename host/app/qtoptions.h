// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/** The options that QApplication takes out of the arguments itself, for one dash or two. */
namespace Host::QtOptions {

/** Whether the next argument belongs to it. */
bool hasValue(const QString &name);

/** Whether it stands alone, or has its value behind "=". */
bool standsAlone(const QString &name);

/** All of them, with a dash. */
QStringList names();

} // namespace Host::QtOptions
