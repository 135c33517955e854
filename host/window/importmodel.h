// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/matching.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QMap>

#include <memory>

namespace Host {

/**
 * The discharges of an import in the order of time, each with what would happen to it. What fills a flight is
 * ticked at first; what is new only when the user ticks it.
 */
class ImportModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ImportModel)

public:
    enum Column { Start, Outcome, ModelName, BatteryName, Duration, Discharged, Current, Log, ColumnCount };

    explicit ImportModel(QObject *parent = nullptr);

    /** Shows other logs, or those of another version of the logbook. What the user chose before stays. */
    void setLogs(const QList<ImportedLog> &logs, std::shared_ptr<const Catalogue> catalogue,
                 const Measured &measured);
    /** Whether values that the pilot entered are replaced, too. */
    void setReplacingEntered(bool replaces);
    /** @param offset ms to add to what the radio's clock showed. */
    void setClockOffset(qint64 offset);

    const std::shared_ptr<const Catalogue> &catalogue() const { return m_catalogue; }
    const QList<ImportedLog> &logs() const { return m_logs; }
    const ImportPlan &plan() const { return m_plan; }
    /** Indexes of the plan's discharges that are ticked. */
    QList<qsizetype> chosen() const;
    /** How many logs these come from. */
    int chosenLogs() const;
    /** Whether there are flights that the logbook does not have. */
    bool isAnyNew() const;
    /** The names that a cell can be given: models, or batteries. */
    QStringList choices(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    struct Row
    {
        ImportedSession session; ///< that stands for the whole discharge
        qsizetype log = 0;
        QString id; ///< of the session
    };

    ImportPlan planned() const;
    QList<Row> rowsOf(const ImportPlan &plan) const;
    void refresh();
    bool isTickable(const Row &row) const;
    bool isTicked(const Row &row) const;
    QString text(const Row &row, int column) const;
    const ImportedDischarge *dischargeOf(const Row &row) const;

    QList<ImportedLog> m_logs;
    std::shared_ptr<const Catalogue> m_catalogue;
    Measured m_measured;
    MatchOptions m_options;
    QMap<QString, QString> m_models;     ///< that the user chose, by the name that logs have
    QHash<QString, QString> m_batteries; ///< that he chose, by the session
    QHash<QString, bool> m_ticks;        ///< that he changed, by the session
    ImportPlan m_plan;
    QList<Row> m_rows;
};

} // namespace Host
