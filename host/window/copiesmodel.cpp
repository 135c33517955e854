// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/copiesmodel.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {
enum Column { Made, Size, Compared, Count };
}

void CopiesModel::show(const QList<Copy> &copies)
{
    beginResetModel();
    m_rows.clear();
    for (const Copy &copy : copies)
        m_rows.append({copy, {}, {}});
    endResetModel();
}

int CopiesModel::rowOf(const QString &name) const
{
    const auto found =
        std::find_if(m_rows.cbegin(), m_rows.cend(), [&](const Row &row) { return row.copy.name == name; });
    return found == m_rows.cend() ? -1 : static_cast<int>(found - m_rows.cbegin());
}

void CopiesModel::setDifference(const QString &name, const QString &difference)
{
    const int row = rowOf(name);
    if (row < 0)
        return;
    m_rows[row].difference = difference;
    m_rows[row].problem.clear();
    Q_EMIT dataChanged(index(row, 0), index(row, Compared));
}

void CopiesModel::setProblem(const QString &name, const QString &problem)
{
    const int row = rowOf(name);
    if (row < 0)
        return;
    m_rows[row].problem = problem;
    Q_EMIT dataChanged(index(row, 0), index(row, Compared));
}

int CopiesModel::known() const
{
    return static_cast<int>(std::count_if(m_rows.cbegin(), m_rows.cend(), [](const Row &row) {
        return !row.difference.isEmpty() || !row.problem.isEmpty();
    }));
}

int CopiesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CopiesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Column::Count;
}

QVariant CopiesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (role == Qt::DisplayRole || (role == Qt::ToolTipRole && index.column() == Compared))
        return text(m_rows.at(index.row()), index.column());
    if (role == Qt::TextAlignmentRole && index.column() == Size)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return QVariant();
}

QString CopiesModel::text(const Row &row, int column) const
{
    switch (column) {
    case Made:
        return row.copy.time.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss");
    case Size:
        return QLocale().formattedDataSize(row.copy.size, 1, QLocale::DataSizeSIFormat);
    default:
        if (!row.problem.isEmpty())
            return tr("not whole: %1").arg(row.problem);
        return row.difference.isEmpty() ? u"…"_s : row.difference;
    }
}

QVariant CopiesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= Count)
        return QVariant();
    const QString titles[] = {tr("Made"), tr("Size"), tr("Compared with now")};
    return titles[section];
}

Qt::ItemFlags CopiesModel::flags(const QModelIndex &index) const
{
    const bool mayBeChosen = index.isValid() && isWhole(index.row());
    return mayBeChosen ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

} // namespace Host
