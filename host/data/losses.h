// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

namespace Host {

/**
 * What of a document is missing from another one, which is the same loaded and saved: elements, attributes,
 * comments, values. Mere spelling is nothing: the order of attributes or of unlike records, white space,
 * "007" for 7.
 *
 * @return a line for each, such as "the element “Chemistry” in line 12".
 */
QStringList losses(const QByteArray &document, const QByteArray &saved);

} // namespace Host
