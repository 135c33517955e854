// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/statistics/figures.h"
#include "host/window/paneltab.h"

#include <memory>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QGridLayout;
class QLabel;
class QSortFilterProxyModel;
class QTableView;

namespace Host {

class OpenLogbook;
class PlotButtons;
class PlotView;
class Questions;
class StatisticsModel;
class TableColumns;

/** Flights and minutes by month, model and location, of the days that the user chooses. */
class StatisticsTab final : public PanelTab
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StatisticsTab)

public:
    explicit StatisticsTab(OpenLogbook &logbook, Questions &questions, QWidget *parent = nullptr);

    void refresh() override;

protected:
    void retranslate() override;

private:
    QWidget *buildChoices();
    QDateEdit *addDay(QGridLayout *layout, int row, QCheckBox *box);
    void buildTable();
    QWidget *buildPlot(Questions &questions);
    void work();
    void offerMeasures();
    void showGroups();
    void showPlot();
    void print();
    DateRange range() const;
    QString summary() const;

    OpenLogbook &m_logbook;
    Questions &m_questions;
    std::shared_ptr<const Catalogue> m_catalogue; ///< on show
    Figures m_figures;
    QLabel *m_heading;
    QWidget *m_content;
    QLabel *m_groupingLabel;
    QComboBox *m_grouping;
    QLabel *m_measureLabel;
    QComboBox *m_measure;
    QCheckBox *m_isFrom;
    QCheckBox *m_isTo;
    QDateEdit *m_from = nullptr;
    QDateEdit *m_to = nullptr;
    QLabel *m_summary;
    QTableView *m_table;
    TableColumns *m_columns = nullptr;
    StatisticsModel *m_model;
    QSortFilterProxyModel *m_sorted;
    PlotView *m_plot;
    PlotButtons *m_buttons = nullptr;
};

} // namespace Host
