// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/batteriestab.h"

#include "host/window/batteriesmodel.h"
#include "host/window/batteryplot.h"
#include "host/window/healthview.h"
#include "host/window/openlogbook.h"
#include "host/window/tablecolumns.h"
#include "host/window/tableprinting.h"

#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** How many batteries before @p row have the name of that one. */
int namesakesBefore(const Catalogue &catalogue, int row)
{
    const QList<Battery> &all = catalogue.batteries;
    return static_cast<int>(std::count_if(all.cbegin(), all.cbegin() + row, [&](const Battery &battery) {
        return battery.name == all.at(row).name;
    }));
}

} // namespace

BatteriesTab::BatteriesTab(OpenLogbook &logbook, Questions &questions, QWidget *parent)
    : PanelTab(parent)
    , m_logbook(logbook)
    , m_questions(questions)
    , m_heading(new QLabel)
    , m_splitter(new QSplitter(Qt::Vertical))
    , m_table(new QTableView)
    , m_model(new BatteriesModel(this))
    , m_sorted(new QSortFilterProxyModel(this))
    , m_health(new HealthView)
    , m_plot(new BatteryPlot(questions))
{
    buildTable();
    auto *chosen = new QWidget;
    auto *ofChosen = new QVBoxLayout(chosen);
    ofChosen->setContentsMargins(0, 0, 0, 0);
    ofChosen->addWidget(m_health);
    ofChosen->addWidget(m_plot, 1);
    m_splitter->addWidget(m_table);
    m_splitter->addWidget(chosen);
    m_splitter->setChildrenCollapsible(false);
    m_heading->setWordWrap(true);
    m_heading->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_heading);
    layout->addWidget(m_splitter, 1);
    connect(m_plot, &BatteryPlot::tablePrintRequested, this, &BatteriesTab::print);
    retranslate();
}

void BatteriesTab::retranslate()
{
    m_heading->setText(tr("There is no battery yet. Add your first one: press the menu button, then Edit."));
    m_table->setAccessibleName(tr("Batteries and their figures"));
}

void BatteriesTab::buildTable()
{
    m_sorted->setSourceModel(m_model);
    m_sorted->setSortRole(BatteriesModel::SortRole);
    m_sorted->setSortLocaleAware(true);
    m_table->setModel(m_sorted);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(-1, Qt::AscendingOrder); // as in the file, until the user wishes otherwise
    m_table->horizontalHeader()->setHighlightSections(false);
    m_columns = new TableColumns(*m_table, u"batteries"_s);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &BatteriesTab::showChosen);
}

void BatteriesTab::refresh()
{
    const std::shared_ptr<const Catalogue> catalogue = m_logbook.catalogue();
    if (!catalogue)
        return;
    const int row = chosenRow();
    const QString name = row < 0 ? QString() : m_catalogue->batteries.at(row).name;
    const int nth = row < 0 ? 0 : namesakesBefore(*m_catalogue, row);
    m_catalogue = catalogue;
    m_model->setFigures(figuresOf(*catalogue, {}, QDate::currentDate()).batteries, catalogue->batteries);
    m_heading->setVisible(catalogue->batteries.isEmpty());
    m_splitter->setVisible(!catalogue->batteries.isEmpty());
    if (!m_columns->restore())
        m_table->resizeColumnsToContents();
    if (catalogue->batteries.isEmpty())
        showChosen();
    else
        choose(std::max(rowOf(name, nth), 0));
}

/** The row of the catalogue; -1 without any. */
int BatteriesTab::chosenRow() const
{
    return m_sorted->mapToSource(m_table->currentIndex()).row();
}

void BatteriesTab::choose(int row)
{
    const QModelIndex index = m_sorted->mapFromSource(m_model->index(row, BatteriesModel::Name));
    m_table->setCurrentIndex(index);
    m_table->scrollTo(index);
}

/** The nth battery of this name, or the last one before it; -1 when there is none. */
int BatteriesTab::rowOf(const QString &name, int nth) const
{
    int row = -1;
    for (int i = 0; i < m_catalogue->batteries.size() && nth >= 0; ++i) {
        if (m_catalogue->batteries.at(i).name != name)
            continue;
        row = i;
        --nth;
    }
    return row;
}

void BatteriesTab::showChosen()
{
    const int row = chosenRow();
    if (row < 0)
        return m_plot->setBattery(std::nullopt);
    const Battery &battery = m_catalogue->batteries.at(row);
    m_health->setBattery(battery, m_logbook.measured());
    m_plot->setBattery(battery, m_logbook.measured());
}

void BatteriesTab::print()
{
    printTable(*m_table,
               tr("Batteries, %1").arg(QLocale().toString(QDate::currentDate(), QLocale::ShortFormat)),
               m_questions);
}

void BatteriesTab::select(const QString &name)
{
    refresh(); // what is asked for may be newer than what is on show
    if (const int row = m_catalogue ? rowOf(name, 0) : -1; row >= 0)
        choose(row);
}

} // namespace Host
