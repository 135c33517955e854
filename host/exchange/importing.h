// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/measured.h"
#include "host/exchange/matching.h"

#include <QList>
#include <QString>

namespace Host {

/**
 * Does what an import plans, as one change of the logbook and of what is known of it.
 *
 * A flight that is filled keeps its location, temperature and notes; the discharge gets the identical time.
 * What is new adds a flight, where the model exists, a discharge and a cycle, and leaves the last update, the
 * last use and "charged" alone. A time that is taken becomes the next free second. The logs of what was done
 * are known from then on, and a model that was chosen for logs of a name that no model has is remembered.
 *
 * @param catalogue for which the plan was made.
 * @param chosen indexes of the plan's discharges; those that neither fill nor are new are left out.
 * @return why it cannot be done, in whole sentences; nothing has been changed then. Empty when it was.
 */
QString applyImport(Catalogue &catalogue, Measured &measured, const QList<ImportedLog> &logs,
                    const ImportPlan &plan, const QList<qsizetype> &chosen);

} // namespace Host
