// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/statistics/figures.h"

#include <QAbstractTableModel>

namespace Host {

/** What flights are added up by. */
enum class Grouping { Month, Model, Location };

/** What flights come to together. */
struct GroupFigures
{
    QString name;
    int flights = 0;
    double minutes = 0.0;
    quint64 discharged = 0; ///< mAh; of months alone
};

/** The groups of a kind: months, the newest first; others in the order of the figures. */
QList<GroupFigures> groupsOf(const Figures &figures, Grouping grouping);

/** Flights, minutes and mAh of months, models or locations, a row for each. */
class StatisticsModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StatisticsModel)

public:
    enum Column { Name, Flights, Minutes, Discharged, ColumnCount };
    /** What a column is sorted by. */
    static constexpr int SortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    void setGroups(const QList<GroupFigures> &groups, Grouping grouping);

    int rowCount(const QModelIndex &parent = {}) const override;
    /** Only months have a column for what was discharged. */
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    static QVariant value(const GroupFigures &group, int column);

    QList<GroupFigures> m_groups;
    Grouping m_grouping = Grouping::Month;
};

} // namespace Host
