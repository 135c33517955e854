// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace Host {

/** Whether nothing in the environment tells of a display. */
bool isWithoutDisplay();

/**
 * While one lives, Qt's way to die when it can open no display - a text of several lines and a core dump -
 * becomes one line on standard error and exit status 1. It lives while the QApplication is made; what Qt had
 * to say otherwise is said when it ends.
 */
class DisplayGuard final
{
    Q_DISABLE_COPY_MOVE(DisplayGuard)

public:
    DisplayGuard();
    ~DisplayGuard();

private:
    QtMessageHandler m_before;
};

} // namespace Host
