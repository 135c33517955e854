// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/batteriesmodel.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr double DaysOfAYear = 365.25;
constexpr double Percent = 100.0;

template <typename Number>
QVariant optionalValue(const std::optional<Number> &number)
{
    return number ? QVariant(*number) : QVariant();
}

QString decimals(const QVariant &number, int count, double factor = 1.0)
{
    return number.isValid() ? QLocale().toString(number.toDouble() * factor, 'f', count) : QString();
}

QString title(int column)
{
    const QString titles[] = {BatteriesModel::tr("Battery"),
                              BatteriesModel::tr("Discharges"),
                              BatteriesModel::tr("Measured or entered"),
                              BatteriesModel::tr("Full cycles"),
                              BatteriesModel::tr("Median depth (%)"),
                              BatteriesModel::tr("Deepest (%)"),
                              BatteriesModel::tr("Highest load (C)"),
                              BatteriesModel::tr("Age (years)"),
                              BatteriesModel::tr("Days since use"),
                              BatteriesModel::tr("Flights"),
                              BatteriesModel::tr("Minutes"),
                              BatteriesModel::tr("mAh per minute"),
                              BatteriesModel::tr("Total (mAh)")};
    return titles[column];
}

QString explanation(int column)
{
    const QString explanations[] = {
        BatteriesModel::tr("The name of the battery."),
        BatteriesModel::tr("How many discharges are recorded."),
        BatteriesModel::tr("How many of the discharges were measured by a radio or entered by you: medians, "
                           "means and maxima are taken from these alone."),
        BatteriesModel::tr("Everything that was ever drawn from the battery, divided by its capacity."),
        BatteriesModel::tr("Half of the discharges used less of the capacity than this, half of them more."),
        BatteriesModel::tr("The largest part of the capacity that one discharge used."),
        BatteriesModel::tr("The highest current, divided by the capacity."),
        BatteriesModel::tr("The time since the battery was bought."),
        BatteriesModel::tr("The days since the battery was last used or discharged."),
        BatteriesModel::tr("The flights of all models at the times of its discharges."),
        BatteriesModel::tr("How long these flights took together."),
        BatteriesModel::tr("What a minute of flight draws from the battery on average."),
        BatteriesModel::tr("Everything that was ever drawn from the battery, guessed values included.")};
    return explanations[column];
}

} // namespace

void BatteriesModel::setFigures(const QList<BatteryFigures> &figures, const QList<Battery> &batteries)
{
    beginResetModel();
    m_rows.clear();
    for (qsizetype i = 0; i < figures.size(); ++i) {
        const Battery &battery = batteries.at(i);
        m_rows.append({figures.at(i), battery.capacity > 0, battery.purchase.isValid(),
                       battery.lastUse.isValid() || !battery.discharges.isEmpty()});
    }
    endResetModel();
}

int BatteriesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int BatteriesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant BatteriesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Row &row = m_rows.at(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return text(row.figures, column);
    case SortRole:
        return value(row.figures, column);
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return value(row.figures, column).isValid() ? spoken(row.figures, column)
                                                    : reasonForNone(row, column);
    case Qt::TextAlignmentRole:
        return column == Name ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

/** What is missing has no value. */
QVariant BatteriesModel::value(const BatteryFigures &figures, int column)
{
    switch (column) {
    case Name:
        return figures.name;
    case Discharges:
        return figures.discharges;
    case Counted:
        return figures.counted;
    case FullCycles:
        return optionalValue(figures.equivalentFullCycles);
    case MedianDepth:
        return optionalValue(figures.medianDepth);
    case MaxDepth:
        return optionalValue(figures.maxDepth);
    case MaxLoad:
        return optionalValue(figures.maxLoad);
    case Age:
        return optionalValue(figures.ageDays);
    case SinceUse:
        return optionalValue(figures.daysSinceUse);
    case Flights:
        return figures.flights;
    case Minutes:
        return figures.minutes;
    case ChargePerMinute:
        return optionalValue(figures.chargePerMinute);
    case Total:
        return figures.dischargedTotal;
    default:
        return QVariant();
    }
}

QString BatteriesModel::text(const BatteryFigures &figures, int column)
{
    const QLocale locale;
    const QVariant number = value(figures, column);
    switch (column) {
    case Name:
        return figures.name;
    case Counted:
        return figures.counted < figures.discharges
                   ? tr("%1 of %2").arg(locale.toString(figures.counted), locale.toString(figures.discharges))
                   : locale.toString(figures.counted);
    case MedianDepth:
    case MaxDepth:
        return decimals(number, 0, Percent);
    case Age:
        return decimals(number, 1, 1.0 / DaysOfAYear);
    case FullCycles:
    case MaxLoad:
    case Minutes:
        return decimals(number, 1);
    case Total:
        return figures.dischargedGuessed > 0 ? tr("%1 (%2 guessed)")
                                                   .arg(locale.toString(figures.dischargedTotal),
                                                        locale.toString(figures.dischargedGuessed))
                                             : locale.toString(figures.dischargedTotal);
    default:
        return decimals(number, 0);
    }
}

/** A figure that needs its title no more. */
QString BatteriesModel::spoken(const BatteryFigures &figures, int column)
{
    const QString number = text(figures, column);
    if (column == Name)
        return number;
    if (column == Counted)
        return tr("%1 measured or entered").arg(number);
    if (column == Age)
        return tr("%n days old", nullptr, static_cast<int>(*figures.ageDays));
    return tr("%1: %2").arg(title(column), number);
}

QString BatteriesModel::reasonForNone(const Row &row, int column)
{
    if (column == Age)
        return row.hasPurchase ? tr("The date of purchase is still to come.")
                               : tr("No date of purchase was entered.");
    if (column == SinceUse)
        return row.hasUse ? tr("No use before today is known.") : tr("The battery was not used yet.");
    if (row.figures.discharges == 0)
        return tr("The battery was not discharged yet.");
    if (column != ChargePerMinute && !row.hasCapacity)
        return tr("The capacity of the battery is not known.");
    if (row.figures.counted == 0)
        return tr("No discharge was measured or entered: what was guessed does not count.");
    if (column == ChargePerMinute)
        return tr("No discharge that was measured or entered has a flight with a duration.");
    return column == MaxLoad ? tr("No current was measured or entered.")
                             : tr("No used capacity was measured or entered.");
}

QVariant BatteriesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return QVariant();
    if (role == Qt::DisplayRole)
        return title(section);
    if (role == Qt::ToolTipRole)
        return explanation(section);
    return QVariant();
}

} // namespace Host
