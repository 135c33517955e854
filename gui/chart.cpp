// SPDX-License-Identifier: GPL-3.0-or-later
// The chart of a battery's discharges.
#include "gui/decimalinput.h"
#include "gui/voltbokgui.h"
#include "records/batterywidget.h"
#include "records/figures.h"
#include "records/shorttext.h"
#include "ui_voltbokgui.h"

#include <QAbstractAxis>
#include <QChart>
#include <QChartView>
#include <QDate>
#include <QLineSeries>
#include <QLinearGradient>

#include <utility>

namespace {
QBrush chartBackground()
{
    QLinearGradient gradient(0, 0, 0, 1);
    gradient.setCoordinateMode(QGradient::ObjectBoundingMode);
    gradient.setColorAt(0.0, QColor(180, 180, 180));
    gradient.setColorAt(1.0, QColor(76, 69, 71));
    return gradient;
}

/** The points with non-finite values replaced by 0. */
QList<QPointF> reachable(QList<QPointF> points)
{
    for (QPointF &point : points) {
        if (!qIsFinite(point.y()))
            point.setY(0.0);
    }
    return points;
}

void brightenLabels(const QList<QAbstractAxis *> &axes)
{
    if (!axes.isEmpty())
        axes.last()->setLabelsBrush(QColor(220, 220, 220));
}
} // namespace

void VoltbokGui::on_btngrp_showData_buttonClicked(QAbstractButton *button)
{
    Q_UNUSED(button)
    on_cb_batteryData_currentIndexChanged(ui->cb_batteryData->currentIndex());
}

void VoltbokGui::on_cb_batteryData_currentIndexChanged(int index)
{
    if (index < 0 || index >= batteryList.size())
        return;
    BatteryWidget &battery = *batteryList.at(index);
    const QList<QPointF> points = chartPoints(battery);
    auto *series = new QLineSeries;
    // A line through a single point would not be seen, a dot where no axis reaches cannot be painted.
    series->setPointsVisible(points.size() == 1 && qIsFinite(points.first().y()));
    series->replace(reachable(points)); // the axes take their ranges from these

    auto *chart = new QChart;
    chart->legend()->hide();
    chart->addSeries(series);
    chart->createDefaultAxes();
    series->replace(points);
    chart->setTitle(tr("Battery age: %1 years")
                        .arg(Figures::ageInYears(battery.getdateOfPurchase(), QDate::currentDate())));
    chart->setBackgroundBrush(chartBackground());
    brightenLabels(chart->axes(Qt::Horizontal));
    brightenLabels(chart->axes(Qt::Vertical));
    showChart(chart);
    chartView->setAccessibleName(
        tr("Chart of %1 in %2")
            .arg(shortText(battery.getBatteryName()), ui->btngrp_showData->checkedButton()->text()));
}

QList<QPointF> VoltbokGui::chartPoints(BatteryWidget &battery) const
{
    const QList<unsigned int> &discharges = battery.getDischarges();
    const QList<unsigned int> &currents = battery.getCurrents();
    const double capacity = battery.getBatteryCapacity();
    QList<QPointF> points;
    points.reserve(battery.getDates().size());
    for (qsizetype i = 0; i < battery.getDates().size(); ++i) {
        double y = 0.0;
        if (ui->rb_showmAh->isChecked())
            y = discharges.at(i);
        else if (ui->rb_showAmps->isChecked())
            y = currents.at(i) / Hundredths;
        else
            y = currents.at(i) * 10.0 / capacity; // a multiple of the capacity; without one it is infinite
        points.append({static_cast<double>(i + 1), y});
    }
    return points;
}

void VoltbokGui::showChart(QChart *chart)
{
    if (chartView)
        chartView->hide(); // intentional: older views are kept, in their cell below the newest
    chartView = new QChartView(chart, this);
    chartView->setRenderHint(QPainter::Antialiasing);
    chartView->viewport()->setFocusPolicy(Qt::NoFocus); // no key does anything here: Tab passes it by
    ui->layout_batteryData->removeItem(ui->verticalSpacer_chart);
    delete std::exchange(ui->verticalSpacer_chart, nullptr); // only the first chart finds the placeholder
    ui->layout_batteryData->addWidget(chartView, 3, 0, 1, 7);
    chartView->show();
}
