// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace Host {

class FlightsModel;

/**
 * The editors of the flights' table. They give the model a date and time, a duration, a temperature or a text
 * as it is, models and batteries by their index in the catalogue, one figure as a number, and the figures of
 * several batteries as a text with semicolons. A cell whose editor was left as it came is not edited.
 */
class FlightDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FlightDelegate)

public:
    /** @param flights outlive the delegate. */
    explicit FlightDelegate(const FlightsModel &flights, QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    QWidget *makeEditor(QWidget *parent, const QModelIndex &index) const;

    const FlightsModel &m_flights;
};

} // namespace Host
