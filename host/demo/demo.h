// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace Host {

/** The sample logbook, as it comes with the program. */
QByteArray sampleLogbook();

} // namespace Host
