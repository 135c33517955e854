// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QObject;

/** The pages of the logbook that can be shown by their names, the same in every language. */
namespace Host::LogbookPages {

QStringList names();

/** Leads a logbook to a page of names(); another name leads nowhere. */
void show(QObject &logbook, const QString &name);

} // namespace Host::LogbookPages
