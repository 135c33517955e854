// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QDateTime>

#include <optional>

namespace Host {

/** Local days that figures and exports are limited to, both included. What has no time lies in no limited
 * range. */
struct DateRange
{
    std::optional<QDate> from;
    std::optional<QDate> to;

    bool isLimited() const { return from || to; }
    bool contains(const QDateTime &time) const;
};

} // namespace Host
