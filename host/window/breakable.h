// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Host {

/**
 * The text with places where a line may end inside of words that are too long for a line, such as paths:
 * after their punctuation, and anywhere where there is none. For labels, which would grow with such a word.
 */
QString breakable(const QString &text);

} // namespace Host
