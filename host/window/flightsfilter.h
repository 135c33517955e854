// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/flightsmodel.h"

#include <QDate>
#include <QSortFilterProxyModel>

#include <array>
#include <optional>
#include <vector>

namespace Host {

/** Which flights are looked for; what is not set does not matter. */
struct FlightFilter
{
    QString text; ///< words that all stand in model, batteries, location or notes
    std::optional<QString> model;
    std::optional<QString> battery;
    std::optional<QString> location;
    QDate from; ///< both included; with one of them, flights without a time are left out
    QDate to;

    bool operator==(const FlightFilter &other) const
    {
        return text == other.text && model == other.model && battery == other.battery &&
               location == other.location && from == other.from && to == other.to;
    }
};

/** Sorts and filters the flights; each different text is looked at once, whatever the number of flights. */
class FlightsFilter final : public QSortFilterProxyModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlightsFilter)

public:
    /** @param flights outlives the filter. */
    explicit FlightsFilter(FlightsModel &flights, QObject *parent = nullptr);

    void setFilter(const FlightFilter &filter);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    using Matches = std::vector<char>; ///< for each of a column's texts whether it matches

    static constexpr std::array Searched{FlightsModel::ModelName, FlightsModel::Batteries,
                                         FlightsModel::Location, FlightsModel::Notes};

    void findMatches();
    template <typename Accepts>
    Matches matches(FlightsModel::Column column, Accepts accepts) const;
    bool accepts(const Matches &matches, int row, FlightsModel::Column column) const;

    FlightsModel &m_flights;
    FlightFilter m_filter;
    std::vector<std::array<Matches, Searched.size()>> m_words; ///< for each word
    Matches m_models;                                          ///< empty where none is chosen; and so on
    Matches m_batteries;
    Matches m_locations;
    qint64 m_first = NoMoment;
    qint64 m_last = NoMoment;
};

} // namespace Host
