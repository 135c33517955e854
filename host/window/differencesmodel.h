// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/difference.h"

#include <QAbstractTableModel>

#include <memory>

namespace Host {

/** The records that a copy holds otherwise than the logbook does now: what each of them says. */
class DifferencesModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DifferencesModel)

public:
    using QAbstractTableModel::QAbstractTableModel;

    void show(std::shared_ptr<const Catalogue> copy, std::shared_ptr<const Catalogue> now,
              const Difference &difference);
    void clear() { show(nullptr, nullptr, {}); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const DifferentRecord &record, int column) const;

    std::shared_ptr<const Catalogue> m_copy;
    std::shared_ptr<const Catalogue> m_now;
    Difference m_difference;
};

} // namespace Host
