// SPDX-License-Identifier: GPL-3.0-or-later
#include "report.h"

#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QPixmap>

namespace {

QLogValueAxis *addLogAxis(QChart &chart, Qt::Alignment alignment, const QString &title, const QString &format)
{
    auto *axis = new QLogValueAxis;
    axis->setBase(10.0);
    axis->setTitleText(title);
    axis->setLabelFormat(format);
    axis->setMinorTickCount(8);
    chart.addAxis(axis, alignment);
    return axis;
}

} // namespace

bool Report::savePlot(const QString &path) const
{
    QChartView view;
    QChart &chart = *view.chart();
    chart.setTitle(QStringLiteral("Processor time against the number of entries"));
    chart.legend()->setAlignment(Qt::AlignRight);
    auto *entries = addLogAxis(chart, Qt::AlignBottom, QStringLiteral("entries"), QStringLiteral("%.0f"));
    auto *time = addLogAxis(chart, Qt::AlignLeft, QStringLiteral("milliseconds"), QStringLiteral("%g"));
    for (const Curve &curve : curves) {
        auto *series = new QLineSeries;
        series->setName(curve.work);
        series->setPointsVisible();
        for (const QPointF &point : curve.points)
            series->append(point.x(), point.y() * 1e3);
        chart.addSeries(series);
        series->attachAxis(entries);
        series->attachAxis(time);
    }
    view.setRenderHint(QPainter::Antialiasing);
    view.resize(1000, 600);
    return view.grab().save(path);
}
