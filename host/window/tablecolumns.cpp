// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/tablecolumns.h"

#include "host/preferences/settings.h"

#include <QAction>
#include <QEvent>
#include <QHeaderView>
#include <QTableView>
#include <QTimer>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {

TableColumns::TableColumns(QTableView &table, const QString &name)
    : QObject(&table)
    , m_table(table)
    , m_name(name)
    , m_sort(new QAction(tr("&Sort by This Column"), this))
{
    QHeaderView *header = table.horizontalHeader();
    header->setSectionsMovable(true);
    header->viewport()->installEventFilter(this); // widths change for other reasons than the user, too
    connect(header, &QHeaderView::sortIndicatorChanged, this, &TableColumns::keep);
    connect(m_sort, &QAction::triggered, this, &TableColumns::sortByCurrent);
    table.addAction(m_sort);
    table.setContextMenuPolicy(Qt::ActionsContextMenu);
    table.installEventFilter(this); // for its language
}

void TableColumns::retranslate()
{
    m_sort->setText(tr("&Sort by This Column"));
    retitle(m_table);
}

void TableColumns::retitle(QTableView &table)
{
    QHeaderView *header = table.horizontalHeader();
    if (header->count() == 0)
        return;
    Q_EMIT table.model()->headerDataChanged(Qt::Horizontal, 0, header->count() - 1);
    for (int column = 0; column < header->count(); ++column)
        header->resizeSection(column, std::max(header->sectionSize(column), header->sectionSizeHint(column)));
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
    if (event->type() == QEvent::LanguageChange)
        retranslate();
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
