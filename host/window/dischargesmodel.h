// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/sources.h"

#include <QAbstractTableModel>

namespace Host {

/** What a source is called. */
QString sourceText(Source source);

/** The discharges of one battery in the order of recording: what its plots show, as a table. */
class DischargesModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DischargesModel)

public:
    enum Column { Time, Discharged, Depth, Current, Load, Origin, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setBattery(const Battery &battery);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString text(const Discharge &discharge, int column) const;

    Battery m_battery;
};

} // namespace Host
