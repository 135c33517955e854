// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/dischargesmodel.h"

#include "host/statistics/history.h"

#include <QLocale>

namespace Host {
namespace {

QString numberText(std::optional<double> value, int decimals)
{
    return value ? QLocale().toString(*value, 'f', decimals) : QString();
}

} // namespace

QString sourceText(Source source)
{
    switch (source) {
    case Source::None:
        return DischargesModel::tr("Not entered");
    case Source::Guessed:
        return DischargesModel::tr("Guessed");
    case Source::Entered:
        return DischargesModel::tr("Entered");
    case Source::Measured:
        return DischargesModel::tr("Measured");
    }
    return QString();
}

void DischargesModel::setBattery(const Battery &battery)
{
    beginResetModel();
    m_battery = battery;
    endResetModel();
}

int DischargesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_battery.discharges.size());
}

int DischargesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DischargesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    if (role == Qt::DisplayRole)
        return text(m_battery.discharges.at(index.row()), index.column());
    if (role == Qt::TextAlignmentRole && index.column() != Time && index.column() != Origin)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return QVariant();
}

QString DischargesModel::text(const Discharge &discharge, int column) const
{
    const std::optional<double> used = valueOf(m_battery, discharge, Quantity::CapacityUsed);
    switch (column) {
    case Time:
        return discharge.time.toString(u"yyyy-MM-dd HH:mm:ss");
    case Discharged:
        return numberText(used, 0);
    case Depth:
        return used && m_battery.capacity > 0 ? numberText(100.0 * *used / m_battery.capacity, 0) : QString();
    case Current:
        return numberText(valueOf(m_battery, discharge, Quantity::Current), 2);
    case Load:
        return numberText(valueOf(m_battery, discharge, Quantity::Load), 1);
    case Origin:
        return sourceText(sourceOf(m_battery, discharge));
    default:
        return QString();
    }
}

QVariant DischargesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return QVariant();
    const QString titles[] = {tr("Time"),        tr("Used (mAh)"), tr("Used (%)"),
                              tr("Current (A)"), tr("Load (C)"),   tr("Source")};
    return titles[section];
}

} // namespace Host
