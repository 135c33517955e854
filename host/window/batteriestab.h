// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/window/paneltab.h"

#include <memory>

class QLabel;
class QSortFilterProxyModel;
class QSplitter;
class QTableView;

namespace Host {

class BatteriesModel;
class BatteryPlot;
class HealthView;
class OpenLogbook;
class Questions;
class TableColumns;

/** The figures of each battery; the health and plots of the chosen one. */
class BatteriesTab final : public PanelTab
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BatteriesTab)

public:
    explicit BatteriesTab(OpenLogbook &logbook, Questions &questions, QWidget *parent = nullptr);

    void refresh() override;

    /** Shows the first battery of this name. */
    void select(const QString &name);

protected:
    void retranslate() override;

private:
    void buildTable();
    int chosenRow() const;
    void choose(int row);
    int rowOf(const QString &name, int nth) const;
    void showChosen();
    void print();

    OpenLogbook &m_logbook;
    Questions &m_questions;
    std::shared_ptr<const Catalogue> m_catalogue; ///< on show
    QLabel *m_heading;
    QSplitter *m_splitter;
    QTableView *m_table;
    TableColumns *m_columns = nullptr;
    BatteriesModel *m_model;
    QSortFilterProxyModel *m_sorted;
    HealthView *m_health;
    BatteryPlot *m_plot;
};

} // namespace Host
