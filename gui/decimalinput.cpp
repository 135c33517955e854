// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/decimalinput.h"

#include <limits>

unsigned int scaledTruncated(double value, double scale)
{
    const double scaled = value * scale;
    const bool fits = scaled >= 0.0 && scaled <= std::numeric_limits<unsigned int>::max();
    return fits ? static_cast<unsigned int>(scaled) : 0;
}

unsigned int scaledTruncated(const QString &text, double scale)
{
    return scaledTruncated(text.toDouble(), scale);
}
