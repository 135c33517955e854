// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/batteryplot.h"

#include "host/window/batterychart.h"
#include "host/window/dischargesmodel.h"
#include "host/window/plotbuttons.h"
#include "host/window/plotview.h"
#include "host/window/tablecolumns.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

namespace Host {

BatteryPlot::BatteryPlot(Questions &questions, QWidget *parent)
    : QWidget(parent)
    , m_quantityLabel(new QLabel)
    , m_quantity(new QComboBox)
    , m_asTable(new QCheckBox)
    , m_pages(new QStackedWidget)
    , m_plot(new PlotView)
    , m_buttons(new PlotButtons(*m_plot, questions))
    , m_table(new QTableView)
    , m_discharges(new DischargesModel(this))
    , m_note(new QLabel)
{
    m_quantityLabel->setBuddy(m_quantity);
    for (const Quantity quantity : {Quantity::CapacityUsed, Quantity::Current, Quantity::Load,
                                    Quantity::Resistance, Quantity::Capacity})
        m_quantity->addItem(nameOf(quantity), static_cast<int>(quantity));
    m_note->setAlignment(Qt::AlignCenter);
    m_note->setWordWrap(true);
    m_note->setTextFormat(Qt::PlainText);
    buildTable();

    auto *choices = new QWidget;
    auto *row = new QHBoxLayout(choices);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_quantityLabel);
    row->addWidget(m_quantity);
    row->addWidget(m_asTable);
    row->addStretch();
    for (QWidget *page :
         {static_cast<QWidget *>(m_plot), static_cast<QWidget *>(m_table), static_cast<QWidget *>(m_note)})
        m_pages->addWidget(page);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(choices);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_buttons);
    connect(m_buttons, &PlotButtons::tablePrintRequested, this, &BatteryPlot::tablePrintRequested);
    connect(m_quantity, &QComboBox::currentIndexChanged, this, &BatteryPlot::showChosen);
    connect(m_asTable, &QCheckBox::toggled, this, &BatteryPlot::showChosen);
    retranslate();
}

void BatteryPlot::retranslate()
{
    m_quantityLabel->setText(tr("Pl&ot:"));
    for (int i = 0; i < m_quantity->count(); ++i)
        m_quantity->setItemText(i, nameOf(static_cast<Quantity>(m_quantity->itemData(i).toInt())));
    m_quantity->setAccessibleName(tr("What is plotted"));
    m_asTable->setText(tr("As a &table"));
    m_asTable->setAccessibleDescription(tr("Shows the discharges of the battery as a table"));
    m_table->setAccessibleName(tr("Discharges"));
    TableColumns::retitle(*m_table);
}

void BatteryPlot::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        showChosen();
    }
    QWidget::changeEvent(event);
}

void BatteryPlot::buildTable()
{
    m_table->setModel(m_discharges);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setAlternatingRowColors(true);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

void BatteryPlot::setBattery(const std::optional<Battery> &battery, const Measured &measured)
{
    m_battery = battery;
    m_measured = measured;
    m_discharges->setBattery(battery.value_or(Battery()));
    showChosen();
}

/** Why there is no plot; empty when there is one. */
QString BatteryPlot::obstacle() const
{
    if (!m_battery)
        return tr("Choose a battery to see what became of it over time.");
    if (m_battery->discharges.isEmpty())
        return tr("“%1” was never discharged. Record a flight with it: click its card.").arg(m_battery->name);
    return QString();
}

QString BatteryPlot::nothingToPlot(Quantity quantity) const
{
    if (isOfLogs(quantity))
        return tr("This is shown once the radio's logs of five flights with “%1” tell it.")
            .arg(m_battery->name);
    return tr("No discharge of “%1” has a time and this figure: there is nothing to plot.")
        .arg(m_battery->name);
}

void BatteryPlot::showChosen()
{
    const auto quantity = static_cast<Quantity>(m_quantity->currentData().toInt());
    QString problem = obstacle();
    const bool isTable = problem.isEmpty() && m_asTable->isChecked();
    const History history = problem.isEmpty() ? historyOf(*m_battery, quantity, m_measured) : History();
    if (problem.isEmpty() && history.points.isEmpty())
        problem = nothingToPlot(quantity);
    if (problem.isEmpty())
        m_plot->setPlot(batteryChart(quantity, history),
                        tr("%1 of %2").arg(nameOf(quantity), m_battery->name),
                        batteryChartDescription(*m_battery, quantity, history));
    m_note->setText(problem);
    if (isTable)
        m_pages->setCurrentWidget(m_table);
    else
        m_pages->setCurrentWidget(problem.isEmpty() ? static_cast<QWidget *>(m_plot) : m_note);
    m_quantity->setEnabled(!isTable);
    m_buttons->setPlotShown(m_pages->currentWidget() == m_plot);
}

} // namespace Host
