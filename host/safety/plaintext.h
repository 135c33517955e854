// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Host {

/** The text as one line without control and formatting characters, for texts that somebody else may have
 * written. */
QString plainLine(const QString &text);

} // namespace Host
