// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QAction;
class QTableView;

namespace Host {

/** Keeps width, order and sorting of a table's columns as the user wants them; by keyboard, too, a column can
 * be sorted by. */
class TableColumns final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TableColumns)

public:
    /** @param table that has its model, and owns this. @param name by which its columns are remembered. */
    TableColumns(QTableView &table, const QString &name);

    /** Puts the columns as they were left. @return whether the user has ever changed them. */
    bool restore();

    /** Has a table ask for its titles in another language, and makes room for them. */
    static void retitle(QTableView &table);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void retranslate();
    QString key() const;
    void keep();
    void sortByCurrent();

    QTableView &m_table;
    const QString m_name;
    QAction *m_sort;
};

} // namespace Host
