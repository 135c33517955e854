// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/statistics/figures.h"

#include <QAbstractTableModel>

namespace Host {

/** The figures of all batteries, a row for each in the order of the file. A cell is empty without a figure.
 */
class BatteriesModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BatteriesModel)

public:
    enum Column {
        Name,
        Discharges,
        Counted,
        FullCycles,
        MedianDepth,
        MaxDepth,
        MaxLoad,
        Age,
        SinceUse,
        Flights,
        Minutes,
        ChargePerMinute,
        Total,
        ColumnCount
    };
    /** What a column is sorted by. */
    static constexpr int SortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    /** @param batteries whose figures these are, in the same order. */
    void setFigures(const QList<BatteryFigures> &figures, const QList<Battery> &batteries);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Row
    {
        BatteryFigures figures;
        bool hasCapacity = false;
        bool hasPurchase = false;
        bool hasUse = false;
    };

    static QVariant value(const BatteryFigures &figures, int column);
    static QString text(const BatteryFigures &figures, int column);
    static QString spoken(const BatteryFigures &figures, int column);
    static QString reasonForNone(const Row &row, int column);

    QList<Row> m_rows;
};

} // namespace Host
