// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightstab.h"

#include "host/window/openlogbook.h"

namespace Host {

FlightsTab::FlightsTab(OpenLogbook &logbook, Questions &questions, QWidget *parent)
    : PanelTab(parent)
    , m_logbook(logbook)
    , m_questions(questions)
{
}

void FlightsTab::refresh() {}

} // namespace Host
