// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightstable.h"

#include "host/window/flightdelegate.h"
#include "host/window/flightsfilter.h"

#include <QEvent>
#include <QHash>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {

FlightsTable::FlightsTable(FlightsModel &flights, FlightsFilter &filter, QWidget *parent)
    : QTableView(parent)
    , m_flights(flights)
    , m_filter(filter)
{
    setAccessibleName(tr("Flights"));
    setModel(&filter);
    setItemDelegate(new FlightDelegate(flights, this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false); // Tab leads on to what stands below
    setWordWrap(false);
    setShowGrid(false);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setSectionsMovable(true);
    setSortingEnabled(true);
    sortByColumn(FlightsModel::Time, Qt::DescendingOrder);
    setColumnWidths();
}

void FlightsTable::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        setAccessibleName(tr("Flights"));
    QTableView::changeEvent(event);
}

/** By what such a column usually holds: the contents of all rows would take too long to look at. */
void FlightsTable::setColumnWidths()
{
    const auto setWidth = [this](FlightsModel::Column column, const QString &text) {
        const int needed = fontMetrics().horizontalAdvance(text) + 2 * fontMetrics().averageCharWidth();
        setColumnWidth(column, qMax(needed, horizontalHeader()->sectionSizeHint(column)));
    };
    setWidth(FlightsModel::Time, u"2026-12-28 20:48:48"_s);
    setWidth(FlightsModel::ModelName, u"Heli 700 electric"_s);
    setWidth(FlightsModel::Batteries, u"6S 3300 No. 10"_s);
    setWidth(FlightsModel::Duration, u"00:00:00"_s);
    setWidth(FlightsModel::Discharged, u"20,000"_s);
    setWidth(FlightsModel::Current, u"300.00"_s);
    setWidth(FlightsModel::Location, u"Behind the church"_s);
    setWidth(FlightsModel::Temperature, u"-88"_s);
}

bool FlightsTable::isAnyChosen() const
{
    return selectionModel()->hasSelection();
}

bool FlightsTable::isOneChosen() const
{
    const QItemSelection selection = selectionModel()->selection();
    const auto isFirstRow = [&selection](const QItemSelectionRange &range) {
        return range.top() == selection.constFirst().top() && range.bottom() == range.top();
    };
    return !selection.isEmpty() && std::all_of(selection.cbegin(), selection.cend(), isFirstRow);
}

QList<FlightPlace> FlightsTable::chosen() const
{
    QList<FlightPlace> places;
    const QItemSelection selection = selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            places.append(m_flights.placeOf(m_filter.mapToSource(m_filter.index(row, 0)).row()));
    }
    std::sort(places.begin(), places.end());
    const auto end = std::unique(places.begin(), places.end());
    places.erase(QList<FlightPlace>::const_iterator(end), places.cend());
    return places;
}

void FlightsTable::choose(const QList<FlightPlace> &places)
{
    QList<int> rows;
    for (const FlightPlace &place : places)
        rows.append(m_flights.rowOf(place));
    chooseRows(rows, qMax(0, currentIndex().column()));
    if (isAnyChosen())
        scrollTo(currentIndex());
}

void FlightsTable::showVersion(std::shared_ptr<const Catalogue> catalogue)
{
    const std::shared_ptr<const Catalogue> before = m_flights.catalogue();
    const QList<FlightPlace> old = chosen();
    const QModelIndex current = currentIndex();
    const int currentRow = current.row();
    const int currentColumn = qMax(0, current.column());
    const int across = horizontalScrollBar()->value();
    const int down = verticalScrollBar()->value();
    m_flights.setCatalogue(std::move(catalogue));
    updateGeometries(); // else the scroll bars still know the rows before
    if (before)
        chooseRows(rowsAfter(old, *before), currentColumn);
    if (!isAnyChosen() && currentRow >= 0) // the next one to work on
        selectionModel()->setCurrentIndex(
            m_filter.index(qMin(currentRow, m_filter.rowCount() - 1), currentColumn),
            QItemSelectionModel::NoUpdate);
    horizontalScrollBar()->setValue(across);
    verticalScrollBar()->setValue(down);
}

/** Where flights of the version before are now: at the same place, else the first of that model and time. */
QList<int> FlightsTable::rowsAfter(const QList<FlightPlace> &places, const Catalogue &before) const
{
    QList<int> rows;
    if (places.isEmpty() || !m_flights.catalogue())
        return rows;
    const Catalogue &now = *m_flights.catalogue();
    QHash<std::pair<QString, qint64>, int> byTime;
    const auto keyOf = [](const Model &model, const Flight &flight) {
        return std::pair(model.name, momentOf(flight.time));
    };
    for (const FlightPlace &place : places) {
        const Model &model = before.models.at(place.model);
        const Flight &flight = model.log.at(place.flight);
        int row = m_flights.rowOf(place);
        if (row < 0 || now.models.at(place.model).name != model.name ||
            !(m_flights.flightAt(row) == flight)) {
            for (int i = byTime.isEmpty() ? m_flights.rowCount() - 1 : -1; i >= 0; --i)
                byTime.insert(keyOf(now.models.at(m_flights.placeOf(i).model), m_flights.flightAt(i)), i);
            row = byTime.value(keyOf(model, flight), -1);
        }
        rows.append(row);
    }
    return rows;
}

/** Chooses rows of the flights, as far as they are on show; the first is the current one. */
void FlightsTable::chooseRows(const QList<int> &rows, int column)
{
    QList<int> shown;
    for (const int row : rows) {
        const QModelIndex index = row < 0 ? QModelIndex() : m_filter.mapFromSource(m_flights.index(row, 0));
        if (index.isValid())
            shown.append(index.row());
    }
    std::sort(shown.begin(), shown.end());
    QItemSelection selection;
    for (qsizetype i = 0; i < shown.size();) {
        const int first = shown.at(i);
        while (i < shown.size() - 1 && shown.at(i + 1) <= shown.at(i) + 1)
            ++i;
        selection.append(QItemSelectionRange(m_filter.index(first, 0),
                                             m_filter.index(shown.at(i), FlightsModel::ColumnCount - 1)));
        ++i;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!shown.isEmpty())
        selectionModel()->setCurrentIndex(m_filter.index(shown.constFirst(), column),
                                          QItemSelectionModel::NoUpdate);
}

/** Tab leads to the next cell without editing it: an edit shows the table anew. */
void FlightsTable::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool isOn = hint == QAbstractItemDelegate::EditNextItem;
    const bool isBack = hint == QAbstractItemDelegate::EditPreviousItem;
    QTableView::closeEditor(editor, isOn || isBack ? QAbstractItemDelegate::NoHint : hint);
    if (isOn || isBack)
        setCurrentIndex(moveCursor(isOn ? MoveNext : MovePrevious, Qt::NoModifier));
}

} // namespace Host
