// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/differencesmodel.h"

#include <utility>

namespace Host {
namespace {
enum Column { Kind, InTheCopy, Now, Count };
}

void DifferencesModel::show(std::shared_ptr<const Catalogue> copy, std::shared_ptr<const Catalogue> now,
                            const Difference &difference)
{
    beginResetModel();
    m_copy = std::move(copy);
    m_now = std::move(now);
    m_difference = difference;
    endResetModel();
}

int DifferencesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_difference.records.size());
}

int DifferencesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Column::Count;
}

QVariant DifferencesModel::data(const QModelIndex &index, int role) const
{
    const bool isText = role == Qt::DisplayRole || (role == Qt::ToolTipRole && index.column() != Kind);
    return index.isValid() && isText ? text(m_difference.records.at(index.row()), index.column())
                                     : QVariant();
}

QString DifferencesModel::text(const DifferentRecord &record, int column) const
{
    if (column == Kind)
        return DifferenceTexts::kindName(record.kind);
    const auto [copy, now] = DifferenceTexts::sides(record, *m_copy, *m_now);
    const QString &side = column == InTheCopy ? copy : now;
    return side.isEmpty() ? tr("not there") : side;
}

QVariant DifferencesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= Count)
        return QVariant();
    const QString titles[] = {tr("What"), tr("In this copy"), tr("In the logbook now")};
    return titles[section];
}

} // namespace Host
