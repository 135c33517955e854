// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <ctime>

/** While it lives, the clocks of this process show the time of another zone. */
class Zone
{
    Q_DISABLE_COPY_MOVE(Zone)

public:
    explicit Zone(const QByteArray &name)
        : m_before(qgetenv("TZ"))
    {
        set(name);
    }
    ~Zone() { set(m_before); }

private:
    static void set(const QByteArray &name)
    {
        qputenv("TZ", name);
        tzset();
    }

    const QByteArray m_before;
};
