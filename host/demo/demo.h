// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace Host {

class StorageFolder;

/** The document that comes with the program. */
QByteArray sampleLogbook();

/**
 * Puts the sample logbook into a folder. Without @p reset only where there is neither a logbook nor a copy of
 * one. A logbook that has to go is kept: a whole one as a copy, a damaged one under another name; one that
 * cannot be read stays where it is.
 *
 * @return why it could not be done, in a whole sentence; empty when it was.
 */
QString prepareDemo(const StorageFolder &folder, bool reset);

} // namespace Host
