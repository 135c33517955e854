// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/batteriestab.h"

#include "host/window/openlogbook.h"

namespace Host {

BatteriesTab::BatteriesTab(OpenLogbook &logbook, Questions &questions, QWidget *parent)
    : PanelTab(parent)
    , m_logbook(logbook)
    , m_questions(questions)
{
}

void BatteriesTab::refresh() {}

void BatteriesTab::select(const QString &name)
{
    Q_UNUSED(name)
}

} // namespace Host
