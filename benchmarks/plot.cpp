// SPDX-License-Identifier: GPL-3.0-or-later
#include "report.h"

#include <QChart>
#include <QChartView>
#include <QLineSeries>
#include <QLogValueAxis>
#include <QPen>
#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

QLogValueAxis *addLogAxis(QChart &chart, Qt::Alignment alignment, const QString &title)
{
    auto *axis = new QLogValueAxis;
    axis->setBase(10.0);
    axis->setTitleText(title);
    axis->setLabelFormat(QStringLiteral("%g"));
    axis->setMinorTickCount(8);
    chart.addAxis(axis, alignment);
    return axis;
}

/** The power of ten at or below, or at or above, a value. */
double powerOfTen(double value, double (*round)(double))
{
    return std::pow(10.0, round(std::log10(value)));
}

} // namespace

bool Report::savePlot(const QString &path) const
{
    QChartView view;
    QChart &chart = *view.chart();
    chart.setTitle(QStringLiteral("Processor time against the number of entries"));
    chart.legend()->setAlignment(Qt::AlignRight);
    auto *entries = addLogAxis(chart, Qt::AlignBottom, QStringLiteral("entries"));
    auto *time = addLogAxis(chart, Qt::AlignLeft, QStringLiteral("milliseconds"));
    double least = std::numeric_limits<double>::max();
    double most = 0.0;
    for (qsizetype i = 0; i < curves.size(); ++i) {
        auto *series = new QLineSeries;
        series->setName(curves.at(i).work);
        series->setPen(QPen(QColor::fromHsv(static_cast<int>(360 * i / curves.size()), 220, 190), 2.0));
        series->setPointsVisible();
        for (const QPointF &point : curves.at(i).points) {
            const double milliseconds = point.y() * 1e3;
            series->append(point.x(), milliseconds);
            least = std::min(least, milliseconds);
            most = std::max(most, milliseconds);
        }
        chart.addSeries(series);
        series->attachAxis(entries);
        series->attachAxis(time);
    }
    entries->setRange(1000.0, 1e6);
    time->setRange(powerOfTen(least, std::floor), powerOfTen(most, std::ceil));
    view.setRenderHint(QPainter::Antialiasing);
    view.resize(1000, 600);
    return view.grab().save(path);
}
