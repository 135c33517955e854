// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/chargebutton.h"

#include <QEvent>

bool ChargeButton::event(QEvent *event)
{
    if (event->type() == QEvent::Polish)
        m_polished = true;
    if (event->type() == QEvent::StyleChange && !m_polished)
        return true;
    return QPushButton::event(event);
}
