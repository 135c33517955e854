// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/paneltab.h"

namespace Host {

class OpenLogbook;
class Questions;

/** The figures of each battery, and plots of the chosen one. */
class BatteriesTab final : public PanelTab
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BatteriesTab)

public:
    explicit BatteriesTab(OpenLogbook &logbook, Questions &questions, QWidget *parent = nullptr);

    void refresh() override;

    /** Shows the first battery of this name. */
    void select(const QString &name);

private:
    OpenLogbook &m_logbook;
    Questions &m_questions;
};

} // namespace Host
