// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Host {

class StorageFolder;

/**
 * Puts the sample logbook into a folder, unless there is a logbook already and @p reset is false. A logbook
 * that has to go is kept: a whole one as a copy, any other under another name.
 *
 * @return why it could not be done, in a whole sentence; empty when it was.
 */
QString prepareDemo(const StorageFolder &folder, bool reset);

} // namespace Host
