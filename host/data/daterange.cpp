// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/daterange.h"

namespace Host {

bool DateRange::contains(const QDateTime &time) const
{
    if (!isLimited())
        return true;
    return time.isValid() && (!from || time.date() >= *from) && (!to || time.date() <= *to);
}

} // namespace Host
