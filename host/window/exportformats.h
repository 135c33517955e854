// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/exporting.h"

#include <QList>
#include <QString>

/** The forms of an export as a user chooses between them. */
namespace Host::ExportFormats {

/** Those that this build has; what most users want comes first. */
QList<ExportFormat> all();

QString name(ExportFormat format);
/** What one gets, and what it is for. */
QString explanation(ExportFormat format);

} // namespace Host::ExportFormats
