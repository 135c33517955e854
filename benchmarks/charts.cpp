// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"
#include "measure.h"
#include "openwindow.h"
#include "report.h"

#include "records/batterywidget.h"

#include <QChart>
#include <QChartView>
#include <QLineSeries>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int KeptCharts = 200;

Catalogue oneBattery(int discharges)
{
    Catalogue catalogue;
    catalogue.batteries = 1;
    catalogue.models = 0;
    catalogue.history = discharges;
    return catalogue;
}

/** The same points in a chart view of the same size, and nothing else. */
std::unique_ptr<QChartView> showBareChart(const QList<unsigned int> &discharges, QSize size)
{
    auto *series = new QLineSeries;
    for (qsizetype i = 0; i < discharges.size(); ++i)
        series->append(static_cast<double>(i + 1), discharges.at(i));
    auto view = std::make_unique<QChartView>();
    view->chart()->legend()->hide();
    view->chart()->addSeries(series);
    view->chart()->createDefaultAxes();
    view->setRenderHint(QPainter::Antialiasing);
    view->resize(size);
    view->show();
    return view;
}

void measureDrawing(Report &report, int discharges, int rounds)
{
    OpenWindow window(oneBattery(discharges));
    window->on_pb_chart_clicked();
    settle();
    const QList<unsigned int> &points = window->batteryList.constFirst()->getDischarges();
    const QSize size = window->chartView->size();
    std::unique_ptr<QChartView> bare;
    report.compare(
        u"chart drawn, %1 entries"_s.arg(discharges), u"a bare chart view with the same points"_s, rounds,
        [&] {
            return Measure::seconds([&] {
                window->on_pb_chart_clicked();
                settle();
            });
        },
        [&] {
            bare.reset();
            return Measure::seconds([&] {
                bare = showBareChart(points, size);
                settle();
            });
        });
}

Measure::Run resizing(OpenWindow &window)
{
    return [&window] {
        return Measure::seconds([&] {
            for (const QSize &size : {QSize(700, 600), QSize(600, 500)}) {
                window->resize(size);
                settle();
            }
        });
    };
}

void measureResizing(Report &report, int rounds)
{
    OpenWindow many(oneBattery(50));
    OpenWindow one(oneBattery(50));
    for (int i = 0; i < KeptCharts; ++i)
        many->on_pb_chart_clicked();
    one->on_pb_chart_clicked();
    settle();
    report.compare(u"window resized with %1 kept charts"_s.arg(KeptCharts), u"with one chart"_s, rounds,
                   resizing(many), resizing(one), 1.5);
}

} // namespace

void Benchmarks::charts(Report &report, const Plan &plan)
{
    measureDrawing(report, 10, plan.rounds(1000));
    for (const int discharges : plan.sizes())
        measureDrawing(report, discharges, plan.rounds(discharges));
    measureResizing(report, plan.rounds(1000));
}
