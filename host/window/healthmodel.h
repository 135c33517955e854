// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/statistics/measuredfigures.h"

#include <QAbstractTableModel>

namespace Host {

/** What radio logs tell of one battery, a row for each quantity. */
class HealthModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HealthModel)

public:
    enum Row { Counter, Integral, RestBefore, RestAfter, MinVoltage, Resistance, Capacity, RowCount };
    enum Column { Quantity, Median, Spread, Flights, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setFigures(const MeasuredFigures &figures);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString text(int row, int column) const;
    QString toolTip(int row, int column) const;

    MeasuredFigures m_figures;
};

} // namespace Host
