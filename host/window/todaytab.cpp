// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/todaytab.h"

#include "host/window/openlogbook.h"

namespace Host {

TodayTab::TodayTab(OpenLogbook &logbook, QWidget *parent)
    : PanelTab(parent)
    , m_logbook(logbook)
{
}

void TodayTab::refresh() {}

} // namespace Host
