// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/paneltab.h"

namespace Host {

class OpenLogbook;
class Questions;

/** All flights of all models, to be found, corrected and moved. */
class FlightsTab final : public PanelTab
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlightsTab)

public:
    explicit FlightsTab(OpenLogbook &logbook, Questions &questions, QWidget *parent = nullptr);

    void refresh() override;

private:
    OpenLogbook &m_logbook;
    Questions &m_questions;
};

} // namespace Host
