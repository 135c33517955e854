// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/safety/recovery.h"

#include <functional>
#include <optional>

namespace Host {

struct Invocation;

/** The logbook that a command is about. */
namespace CommandData {

/**
 * Reads it, without a lock, and makes and writes nothing where it lies. A file that is not whole may be in
 * the middle of a save: it is read again for up to two seconds. A folder without a logbook, and the user's
 * own before it is there, is an empty logbook; a sample that was never opened is the one that comes with the
 * program.
 *
 * @param advice what helps where it could not be read, a sentence that is said with it.
 * @return nothing when it could not be read, which was then said.
 */
std::optional<Catalogue> read(const Invocation &invocation, const std::function<QString()> &advice = {});

/** Why there is no folder to read from, a sentence; empty when there is one, or when there need not be. */
QString folderProblem(const Invocation &invocation);

/** The state of a file: one that is not whole, or missing, is looked at again for up to two seconds. */
FileState settled(const std::function<FileState()> &look);

/** The same of a file that may be anywhere; one that is missing is not waited for. */
FileState stateOf(const QString &path);

} // namespace CommandData
} // namespace Host
