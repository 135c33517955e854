// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/flightsfilter.h"
#include "host/window/flightsmodel.h"
#include "host/window/paneltab.h"

class QAction;
class QLabel;
class QPushButton;

namespace Host {

class FilterBar;
class FlightsTable;
class OpenLogbook;
class Questions;

/** All flights of all models, to be found, corrected and moved. */
class FlightsTab final : public PanelTab
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlightsTab)

public:
    /** @param logbook @param questions outlive the tab. */
    explicit FlightsTab(OpenLogbook &logbook, Questions &questions, QWidget *parent = nullptr);
    ~FlightsTab() override;

    void refresh() override;

Q_SIGNALS:
    /** The user wants to give something another name. */
    void renameRequested();

protected:
    void retranslate() override;

private:
    QAction *addCommand(void (FlightsTab::*run)());
    void buildLayout();
    void refreshWith(const QList<FlightPlace> &chosen);
    void updateCommands();
    void updateCount();
    void editLater(const FlightPlace &place, int column, const QVariant &value);
    void edit(const std::shared_ptr<const Catalogue> &shown, const FlightPlace &place, int column,
              const QVariant &value);
    void addFlight();
    void editFlight();
    void deleteFlights();
    void moveFlights();
    void tidyUp();
    void finish(const QString &problem, const QList<FlightPlace> &chosen = {});

    OpenLogbook &m_logbook;
    Questions &m_questions;
    FlightsModel m_flights;
    FlightsFilter m_filter;
    FilterBar *m_bar;
    QLabel *m_hint;
    FlightsTable *m_table;
    QLabel *m_count;
    QLayout *m_buttons; ///< one for each command
    QAction *m_add;
    QAction *m_edit;
    QAction *m_delete;
    QAction *m_move;
    QAction *m_tidy;
    QAction *m_rename;
};

} // namespace Host
