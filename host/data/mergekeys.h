// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QList>
#include <QString>

/** What tells the entries of a list apart, for each of its entries, in their order. */
namespace Host::MergeKeys {

QList<QString> ofTexts(const QList<QString> &texts);
QList<QString> ofBatteries(const QList<Battery> &batteries);
QList<QString> ofModels(const QList<Model> &models);
QList<QString> ofDischarges(const QList<Discharge> &discharges);
QList<QString> ofFlights(const QList<Flight> &flights);

} // namespace Host::MergeKeys
