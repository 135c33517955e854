// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace Host {

class PlotView;
class Questions;

/** Buttons that save, copy and print a plot. */
class PlotButtons final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PlotButtons)

public:
    /** @param plot @param questions outlive the buttons. */
    PlotButtons(PlotView &plot, Questions &questions, QWidget *parent = nullptr);

private:
    void add(const QString &caption, const QString &description, void (PlotButtons::*slot)());
    void save();
    void copy();
    void print();

    PlotView &m_plot;
    Questions &m_questions;
};

} // namespace Host
