// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/moments.h"

#include <QAbstractTableModel>

#include <array>
#include <memory>
#include <vector>

namespace Host {

/**
 * All flights of all models, a row for each in the order of the file.
 *
 * Rows do not hold texts but the numbers of texts that are kept once: a filter looks at each different text
 * once, and a sort compares numbers.
 */
class FlightsModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlightsModel)

public:
    enum Column {
        Time,
        ModelName,
        Batteries,
        Duration,
        Discharged,
        Current,
        Location,
        Temperature,
        Notes,
        ColumnCount
    };
    /** Gives the value itself where DisplayRole gives its text. */
    static constexpr int SortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    /** Shows another version of the logbook. */
    void setCatalogue(std::shared_ptr<const Catalogue> catalogue);
    /** What is shown; null before anything is. */
    const std::shared_ptr<const Catalogue> &catalogue() const { return m_catalogue; }

    /** Whether cells can be edited; an edit is asked for by editRequested(). */
    void setEditable(bool editable);

    FlightPlace placeOf(int row) const;
    /** -1 where there is no such flight. */
    int rowOf(const FlightPlace &place) const;
    const Flight &flightAt(int row) const;
    /** The flight's discharges, one for each of its batteries. */
    QList<DischargePlace> dischargesOf(int row) const;

    /** The different texts of ModelName, Batteries, Location or Notes. */
    const QStringList &texts(Column column) const { return m_texts.at(column); }
    /** The number in texts() of the text in a row. */
    int textOf(int row, Column column) const;
    /** A number by which rows are sorted for a column. */
    qint64 sortKey(int row, Column column) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /** Only asks for the edit. */
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

Q_SIGNALS:
    /** The user has entered something; see FlightEditors for the values. */
    void editRequested(const Host::FlightPlace &place, int column, const QVariant &value);

private:
    struct Row
    {
        int model;
        int flight;
        qint64 moment;
        std::array<int, 3> texts; ///< of Batteries, Location and Notes
        int firstDischarge;       ///< in m_discharges
        int discharges;
    };
    class Numbers;

    void addRows();
    const Discharge &dischargeAt(const DischargePlace &place) const;
    QString display(int row, Column column) const;
    QVariant value(int row, Column column) const;
    QString figures(int row, Column column) const;
    QString remark(int row) const;
    QVariant font(int row) const;
    const std::vector<int> &ranks(Column column) const;

    std::shared_ptr<const Catalogue> m_catalogue;
    std::vector<Row> m_rows;
    std::vector<int> m_firstRows; ///< of each model
    QList<DischargePlace> m_discharges;
    std::array<QStringList, ColumnCount> m_texts;
    mutable std::array<std::vector<int>, ColumnCount> m_ranks; ///< of the texts; empty until needed
    bool m_editable = true;
};

} // namespace Host
