// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightsfilter.h"

#include <QTime>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {

FlightsFilter::FlightsFilter(FlightsModel &flights, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_flights(flights)
{
    // Before the base takes part: it asks for every row of the new version.
    connect(&flights, &QAbstractItemModel::modelReset, this, &FlightsFilter::findMatches);
    setSourceModel(&flights);
    findMatches();
}

void FlightsFilter::setFilter(const FlightFilter &filter)
{
    if (filter == m_filter)
        return;
    m_filter = filter;
    findMatches();
    // Not invalidateFilter(), which takes out and puts in row by row where they are scattered.
    invalidate();
}

/** Looks at all texts of the flights. */
void FlightsFilter::findMatches()
{
    m_words.clear();
    const QStringList words = m_filter.text.split(u' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        std::array<Matches, Searched.size()> columns;
        for (size_t i = 0; i < Searched.size(); ++i)
            columns.at(i) = matches(Searched.at(i), [&word](const QString &text) {
                return text.contains(word, Qt::CaseInsensitive);
            });
        m_words.push_back(columns);
    }
    const auto only = [this](FlightsModel::Column column, const std::optional<QString> &name) {
        return name ? matches(column, [&name](const QString &text) { return text == *name; }) : Matches();
    };
    m_models = only(FlightsModel::ModelName, m_filter.model);
    m_locations = only(FlightsModel::Location, m_filter.location);
    m_batteries.clear();
    if (m_filter.battery)
        m_batteries = matches(FlightsModel::Batteries, [this](const QString &names) {
            return (u"; "_s + names + u"; "_s).contains(u"; "_s + *m_filter.battery + u"; "_s);
        });
    m_first = m_filter.from.isValid() ? momentOf(m_filter.from.startOfDay()) : NoMoment;
    m_last = m_filter.to.isValid() ? momentOf(m_filter.to.endOfDay()) : NoMoment;
}

template <typename Accepts>
FlightsFilter::Matches FlightsFilter::matches(FlightsModel::Column column, Accepts accepts) const
{
    const QStringList &texts = m_flights.texts(column);
    Matches found(static_cast<size_t>(texts.size()));
    std::transform(texts.cbegin(), texts.cend(), found.begin(), accepts);
    return found;
}

bool FlightsFilter::accepts(const Matches &matches, int row, FlightsModel::Column column) const
{
    return matches.empty() || matches.at(static_cast<size_t>(m_flights.textOf(row, column)));
}

bool FlightsFilter::filterAcceptsRow(int row, const QModelIndex &) const
{
    if (m_first != NoMoment || m_last != NoMoment) {
        const qint64 moment = m_flights.sortKey(row, FlightsModel::Time);
        if (moment == NoMoment || (m_first != NoMoment && moment < m_first) ||
            (m_last != NoMoment && moment > m_last))
            return false;
    }
    if (!accepts(m_models, row, FlightsModel::ModelName) ||
        !accepts(m_batteries, row, FlightsModel::Batteries) ||
        !accepts(m_locations, row, FlightsModel::Location))
        return false;
    return std::all_of(m_words.cbegin(), m_words.cend(), [&](const auto &columns) {
        for (size_t i = 0; i < Searched.size(); ++i) {
            if (columns.at(i).at(static_cast<size_t>(m_flights.textOf(row, Searched.at(i)))))
                return true;
        }
        return false;
    });
}

bool FlightsFilter::lessThan(const QModelIndex &left, const QModelIndex &right) const
{
    const auto column = static_cast<FlightsModel::Column>(left.column());
    return m_flights.sortKey(left.row(), column) < m_flights.sortKey(right.row(), column);
}

} // namespace Host
