// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/statisticstab.h"

#include "host/window/openlogbook.h"

namespace Host {

StatisticsTab::StatisticsTab(OpenLogbook &logbook, QWidget *parent)
    : PanelTab(parent)
    , m_logbook(logbook)
{
}

void StatisticsTab::refresh() {}

} // namespace Host
