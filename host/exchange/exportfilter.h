// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/daterange.h"

#include <QStringList>

#include <optional>

namespace Host {

/** Which part of a logbook goes out. Limiting batteries does not limit models, nor the other way round. */
struct ExportFilter
{
    DateRange range;                      ///< of discharges and flights; the records themselves stay
    std::optional<QStringList> batteries; ///< only those of these names, with their discharges
    std::optional<QStringList> models;    ///< only those of these names, with their flights
};

/** The part that passes. Which batteries a flight had is still told from the whole logbook. */
Catalogue filtered(const Catalogue &whole, const ExportFilter &filter);

/** The first battery or model that a filter names and nobody has. */
std::optional<QString> unknownBattery(const Catalogue &whole, const ExportFilter &filter);
std::optional<QString> unknownModel(const Catalogue &whole, const ExportFilter &filter);

} // namespace Host
