// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/measured.h"

namespace Host {

/**
 * What is known of the discharges of a merged logbook: everything that either side knows. Of theirs an entry
 * counts where the merged logbook holds that discharge as theirs does: one that kept other values was not
 * measured.
 *
 * @param ours with its catalogue @p before, as it was before the merge.
 */
Measured mergeMeasured(const Measured &ours, const Catalogue &before, const Measured &theirs,
                       const Catalogue &theirCatalogue, const Catalogue &merged);

} // namespace Host
