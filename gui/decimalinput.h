// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

inline constexpr double TenthsOfC = 10.0;
inline constexpr double Hundredths = 100.0; ///< of an ampere, or of a model's unit of weight

/**
 * A decimal number in whole steps of the record's unit: @p value times @p scale, truncated toward zero in
 * double arithmetic and never rounded, so 1.15 in hundredths gives 114. What an unsigned integer cannot hold
 * gives 0.
 */
unsigned int scaledTruncated(double value, double scale);

/** The same for the text of a field; a text that is not a number gives 0. */
unsigned int scaledTruncated(const QString &text, double scale);
