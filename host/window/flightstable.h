// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/moments.h"

#include <QList>
#include <QTableView>

namespace Host {

class FlightsFilter;
class FlightsModel;

/** The flights as a table that can be edited. What is chosen and where it is scrolled survives a new version.
 */
class FlightsTable final : public QTableView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlightsTable)

public:
    /** @param flights @param filter over them; both outlive the table. */
    FlightsTable(FlightsModel &flights, FlightsFilter &filter, QWidget *parent = nullptr);

    /** The flights chosen, in the order of the file. */
    QList<FlightPlace> chosen() const;
    bool isAnyChosen() const;
    bool isOneChosen() const;

    /** Chooses flights, as far as they are on show, and scrolls to them. */
    void choose(const QList<FlightPlace> &places);

    /** Shows another version of the logbook. */
    void showVersion(std::shared_ptr<const Catalogue> catalogue);

protected:
    void changeEvent(QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    QList<int> rowsAfter(const QList<FlightPlace> &places, const Catalogue &before) const;
    void chooseRows(const QList<int> &rows, int column);
    void setColumnWidths();

    FlightsModel &m_flights;
    FlightsFilter &m_filter;
};

} // namespace Host
