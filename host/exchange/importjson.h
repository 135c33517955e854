// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/matching.h"

#include <QByteArray>
#include <QList>

namespace Host {

/** What an import found and does, as one document. */
QByteArray importJson(const QList<ImportedLog> &logs, const ImportPlan &plan);

} // namespace Host
