// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/measured.h"
#include "host/statistics/history.h"

#include <QWidget>

#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QStackedWidget;
class QTableView;

namespace Host {

class DischargesModel;
class PlotButtons;
class PlotView;
class Questions;

/** What became of one battery over time: as a plot, or as a table. */
class BatteryPlot final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BatteryPlot)

public:
    /** @param questions outlives the widget. */
    explicit BatteryPlot(Questions &questions, QWidget *parent = nullptr);

    /** Shows a battery, or that none is chosen. */
    void setBattery(const std::optional<Battery> &battery, const Measured &measured = {});

Q_SIGNALS:
    /** The user wants the table of the batteries on paper. */
    void tablePrintRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void buildTable();
    void showChosen();
    QString obstacle() const;
    QString nothingToPlot(Quantity quantity) const;

    std::optional<Battery> m_battery;
    Measured m_measured;
    QLabel *m_quantityLabel;
    QComboBox *m_quantity;
    QCheckBox *m_asTable;
    QStackedWidget *m_pages;
    PlotView *m_plot;
    PlotButtons *m_buttons;
    QTableView *m_table;
    DischargesModel *m_discharges;
    QLabel *m_note; ///< why there is no plot
};

} // namespace Host
