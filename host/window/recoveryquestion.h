// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/recovery.h"

#include <QByteArray>

#include <optional>

namespace Host {

class Questions;

/**
 * Asks what to put in the place of a data file that is missing or damaged: one of the copies, what can
 * still be read of it, or an empty logbook.
 *
 * @return the document; nothing when the user would rather quit.
 */
std::optional<QByteArray> askForReplacement(Questions &questions, const StorageFolder &folder,
                                            const FileState &state);

} // namespace Host
