// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

namespace Host {

/**
 * What of a document is missing from another one, which is the same loaded and saved: elements, attributes,
 * comments, texts and values that were not read or are written no more. Mere spelling is nothing: the order
 * of attributes or of unlike records, white space, encodings, entities, "007" for 7, entries in two
 * containers, an empty value.
 *
 * @return a line for each, such as "the element “Chemistry” in line 12"; of an element that is missing as a
 * whole nothing more is said.
 */
QStringList losses(const QByteArray &document, const QByteArray &saved);

} // namespace Host
