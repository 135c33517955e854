// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/tablecolumns.h"

#include "host/preferences/settings.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QTableView>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace Host {

TableColumns::TableColumns(QTableView &table, const QString &name)
    : QObject(&table)
    , m_table(table)
    , m_name(name)
{
    QHeaderView *header = table.horizontalHeader();
    header->setSectionsMovable(true);
    header->viewport()->installEventFilter(this); // widths change for other reasons than the user, too
    connect(header, &QHeaderView::sortIndicatorChanged, this, &TableColumns::keep);
    auto *sort = new QAction(tr("&Sort by This Column"), this);
    connect(sort, &QAction::triggered, this, &TableColumns::sortByCurrent);
    table.addAction(sort);
    table.setContextMenuPolicy(Qt::ActionsContextMenu);
}

/** Another number of columns is another table. */
QString TableColumns::key() const
{
    return u"%1-%2"_s.arg(m_name).arg(m_table.horizontalHeader()->count());
}

bool TableColumns::restore()
{
    return m_table.horizontalHeader()->restoreState(Settings().tableColumns(key()));
}

void TableColumns::keep()
{
    Settings().setTableColumns(key(), m_table.horizontalHeader()->saveState());
}

bool TableColumns::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        QTimer::singleShot(0, this, &TableColumns::keep); // when the header has seen it
    return false;
}

/** In the other order when it is sorted by that column already, as a click on its title does. */
void TableColumns::sortByCurrent()
{
    const QHeaderView *header = m_table.horizontalHeader();
    const int column = m_table.currentIndex().column();
    if (column < 0)
        return;
    const bool isAgain =
        header->sortIndicatorSection() == column && header->sortIndicatorOrder() == Qt::AscendingOrder;
    m_table.sortByColumn(column, isAgain ? Qt::DescendingOrder : Qt::AscendingOrder);
}

} // namespace Host
