// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/statisticsmodel.h"

#include <QLocale>

namespace Host {

QList<GroupFigures> groupsOf(const Figures &figures, Grouping grouping)
{
    QList<GroupFigures> groups;
    if (grouping == Grouping::Month) {
        for (const MonthFigures &month : figures.months)
            groups.prepend({month.month, month.flights, month.minutes, month.discharged});
    } else if (grouping == Grouping::Model) {
        for (const ModelFigures &model : figures.models)
            groups.append({model.name, model.flights, model.minutes});
    } else {
        for (const LocationFigures &location : figures.locations)
            groups.append({location.name, location.flights, location.minutes});
    }
    return groups;
}

void StatisticsModel::setGroups(const QList<GroupFigures> &groups, Grouping grouping)
{
    beginResetModel();
    m_groups = groups;
    m_grouping = grouping;
    endResetModel();
}

int StatisticsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_groups.size());
}

int StatisticsModel::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_grouping == Grouping::Month ? ColumnCount : Discharged;
}

QVariant StatisticsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const QVariant number = value(m_groups.at(index.row()), index.column());
    if (role == SortRole || (role == Qt::DisplayRole && index.column() == Name))
        return number;
    if (role == Qt::DisplayRole)
        return QLocale().toString(number.toDouble(), 'f', index.column() == Minutes ? 1 : 0);
    if (role == Qt::TextAlignmentRole && index.column() != Name)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return QVariant();
}

QVariant StatisticsModel::value(const GroupFigures &group, int column)
{
    switch (column) {
    case Name:
        return group.name;
    case Flights:
        return group.flights;
    case Minutes:
        return group.minutes;
    case Discharged:
        return group.discharged;
    default:
        return QVariant();
    }
}

QVariant StatisticsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return QVariant();
    const QString groups[] = {tr("Month"), tr("Model"), tr("Location")};
    const QString titles[] = {groups[static_cast<int>(m_grouping)], tr("Flights"), tr("Minutes"),
                              tr("Discharged (mAh)")};
    return titles[section];
}

} // namespace Host
