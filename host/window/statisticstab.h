// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/paneltab.h"

namespace Host {

class OpenLogbook;

/** Flights and minutes by month, model and location. */
class StatisticsTab final : public PanelTab
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StatisticsTab)

public:
    explicit StatisticsTab(OpenLogbook &logbook, QWidget *parent = nullptr);

    void refresh() override;

private:
    OpenLogbook &m_logbook;
};

} // namespace Host
