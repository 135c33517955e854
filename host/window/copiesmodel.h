// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/safety/backups.h"

#include <QAbstractTableModel>
#include <QList>
#include <QString>

namespace Host {

/**
 * The copies of a logbook, the newest first, and how each of them stands to the logbook now. One that is not
 * whole says why, and cannot be chosen.
 */
class CopiesModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CopiesModel)

public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(const QList<Copy> &copies);
    /** Says how a copy differs, in words. */
    void setDifference(const QString &name, const QString &difference);
    /** Says why a copy is not whole, a clause. */
    void setProblem(const QString &name, const QString &problem);

    const Copy &copy(int row) const { return m_rows.at(row).copy; }
    /** Why it is not whole, a clause; empty when it is, or when nobody has looked yet. */
    const QString &problem(int row) const { return m_rows.at(row).problem; }
    bool isWhole(int row) const { return problem(row).isEmpty(); }
    /** How many were looked at. */
    int known() const;
    int rowOf(const QString &name) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Row
    {
        Copy copy;
        QString difference;
        QString problem;
    };

    QString text(const Row &row, int column) const;

    QList<Row> m_rows;
};

} // namespace Host
