// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QPushButton;

namespace Host {

class PlotView;
class Questions;

/** Buttons that save, copy and print a plot, and print the table beside it. */
class PlotButtons final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PlotButtons)

public:
    /** @param plot @param questions outlive the buttons. */
    PlotButtons(PlotView &plot, Questions &questions, QWidget *parent = nullptr);

    /** Where there is no plot, only the table can be printed. */
    void setPlotShown(bool shown);

Q_SIGNALS:
    void tablePrintRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    QPushButton *makeButton(void (PlotButtons::*slot)());
    void retranslate();
    void save();
    void copy();
    void print();

    PlotView &m_plot;
    Questions &m_questions;
    QPushButton *m_save;
    QPushButton *m_copy;
    QPushButton *m_print;
    QPushButton *m_printTable;
};

} // namespace Host
