// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <clocale>

namespace Host {

/** While it lives, C functions of this thread print numbers with a point, whatever the user's locale says. */
class PointsInNumbers
{
    Q_DISABLE_COPY_MOVE(PointsInNumbers)

public:
#ifdef Q_OS_UNIX
    PointsInNumbers()
        : m_points(newlocale(LC_NUMERIC_MASK, "C", duplocale(LC_GLOBAL_LOCALE)))
        , m_before(uselocale(m_points))
    {
    }
    ~PointsInNumbers()
    {
        uselocale(m_before);
        freelocale(m_points);
    }

private:
    const locale_t m_points;
    const locale_t m_before;
#else
    PointsInNumbers() = default;
#endif
};

} // namespace Host
