// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/healthmodel.h"

#include <QLocale>

namespace Host {
namespace {

QString nameOf(int row)
{
    const QString names[] = {HealthModel::tr("Counter (mAh)"),      HealthModel::tr("Current × time (mAh)"),
                             HealthModel::tr("At rest before (V)"), HealthModel::tr("At rest after (V)"),
                             HealthModel::tr("Lowest (V)"),         HealthModel::tr("Resistance (mΩ)"),
                             HealthModel::tr("Capacity (mAh)")};
    return names[row];
}

QString meaningOf(int row)
{
    const QString meanings[] = {
        HealthModel::tr("What the radio's counter of the consumption says."),
        HealthModel::tr("The consumption as the logged current adds up over time."),
        HealthModel::tr("The voltage of the whole battery at less than 1 A before the flight."),
        HealthModel::tr("The voltage of the whole battery at less than 1 A after the flight."),
        HealthModel::tr("The lowest voltage of the whole battery in flight."),
        HealthModel::tr("The internal resistance of the whole battery: by how much the voltage falls with "
                        "each ampere."),
        HealthModel::tr("An estimate: the consumption, and the charge that the voltages at rest before and "
                        "after the flight stand for.")};
    return meanings[row];
}

QString titleOf(int column)
{
    const QString titles[] = {HealthModel::tr("Measured"), HealthModel::tr("Median"),
                              HealthModel::tr("Spread (±)"), HealthModel::tr("Flights")};
    return titles[column];
}

QString meaningOfColumn(int column)
{
    const QString meanings[] = {
        HealthModel::tr("What the radio's logs tell of the flights with this battery."),
        HealthModel::tr("Half of the flights show less than this, half of them more."),
        HealthModel::tr("Half of the flights lie within so much around the median."),
        HealthModel::tr("How many flights tell it.")};
    return meanings[column];
}

int decimalsOf(int row)
{
    if (row == HealthModel::Resistance)
        return 1;
    return row == HealthModel::RestBefore || row == HealthModel::RestAfter || row == HealthModel::MinVoltage
               ? 2
               : 0;
}

/** Of a quantity that too few flights tell, the number of these alone. */
Spread trendOrCount(const std::optional<Trend> &trend, int flights)
{
    return trend ? Spread{trend->flights, trend->median, trend->spread} : Spread{flights};
}

Spread spreadOf(const MeasuredFigures &figures, int row)
{
    const Health &health = figures.health;
    const Spread spreads[] = {figures.counter,
                              figures.integral,
                              figures.restBefore,
                              figures.restAfter,
                              figures.minVoltage,
                              trendOrCount(health.resistance, health.resistances),
                              trendOrCount(health.capacity, health.capacities)};
    return spreads[row];
}

bool isShown(const MeasuredFigures &figures, int row)
{
    if (row == HealthModel::Resistance)
        return figures.health.resistance.has_value();
    if (row == HealthModel::Capacity)
        return figures.health.capacity.has_value();
    return spreadOf(figures, row).flights > 0;
}

} // namespace

void HealthModel::setFigures(const MeasuredFigures &figures)
{
    beginResetModel();
    m_figures = figures;
    endResetModel();
}

int HealthModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : RowCount;
}

int HealthModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant HealthModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const int row = index.row();
    const int column = index.column();
    if (role == Qt::DisplayRole)
        return text(row, column);
    if (role == Qt::ToolTipRole)
        return toolTip(row, column);
    if (role == Qt::AccessibleTextRole && column != Quantity)
        return tr("%1, %2: %3").arg(nameOf(row), titleOf(column), text(row, column));
    if (role == Qt::TextAlignmentRole && column != Quantity)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return QVariant();
}

QString HealthModel::text(int row, int column) const
{
    const Host::Spread spread = spreadOf(m_figures, row);
    const QLocale locale;
    if (column == Quantity)
        return nameOf(row);
    if (column == Flights)
        return locale.toString(spread.flights);
    if (!isShown(m_figures, row))
        return QString();
    if (column == Median)
        return locale.toString(spread.median, 'f', decimalsOf(row));
    return locale.toString(spread.spread, 'f', decimalsOf(row));
}

/** What it means, or why there is nothing. */
QString HealthModel::toolTip(int row, int column) const
{
    if (column == Quantity)
        return meaningOf(row);
    if (column == Flights || isShown(m_figures, row))
        return QString();
    return row == Resistance || row == Capacity ? tr("Shown once five measured flights tell it.")
                                                : tr("No log tells it.");
}

QVariant HealthModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return QVariant();
    if (role == Qt::ToolTipRole)
        return meaningOfColumn(section);
    return role == Qt::DisplayRole ? titleOf(section) : QVariant();
}

} // namespace Host
