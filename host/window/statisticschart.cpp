// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/statisticschart.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QCoreApplication>
#include <QHorizontalBarSeries>
#include <QLegend>
#include <QLocale>
#include <QValueAxis>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int MostMonths = 24;
constexpr int MostOthers = 12;

/** The texts of this file. */
struct StatisticsChart
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsChart)
};

double valueOf(const GroupFigures &group, Measure measure)
{
    switch (measure) {
    case Measure::Flights:
        return group.flights;
    case Measure::Minutes:
        return group.minutes;
    case Measure::Discharged:
        return static_cast<double>(group.discharged);
    }
    return 0.0;
}

QDate firstDayOf(const GroupFigures &month)
{
    return QDate::fromString(month.name + u"-01"_s, u"yyyy-MM-dd"_s);
}

/** Of months that come in descending order the first ones, ascending; those between them included. */
QList<GroupFigures> newestMonths(const QList<GroupFigures> &months)
{
    QList<GroupFigures> newest;
    QDate day = firstDayOf(months.constFirst());
    for (qsizetype i = 0; i < months.size() && newest.size() < MostMonths; day = day.addMonths(-1)) {
        if (day.isValid() && firstDayOf(months.at(i)) < day)
            newest.prepend({day.toString(u"yyyy-MM")});
        else
            newest.prepend(months.at(i++));
    }
    return newest;
}

QList<GroupFigures> highestOf(QList<GroupFigures> groups, Measure measure)
{
    std::stable_sort(groups.begin(), groups.end(),
                     [measure](const GroupFigures &one, const GroupFigures &other) {
                         return valueOf(one, measure) > valueOf(other, measure);
                     });
    return groups.mid(0, MostOthers);
}

std::unique_ptr<QValueAxis> valueAxis(const StatisticsPlot &plot)
{
    double highest = 1.0;
    for (const GroupFigures &group : plot.groups)
        highest = std::max(highest, valueOf(group, plot.measure));
    auto axis = std::make_unique<QValueAxis>();
    axis->setRange(0.0, highest);
    axis->setTickCount(std::min(5, static_cast<int>(highest) + 1));
    axis->applyNiceNumbers();
    axis->setTitleText(nameOf(plot.measure));
    axis->setLabelFormat(u"%.0f"_s);
    return axis;
}

/** A name that no other bar has: an axis drops names that it knows. */
QString categoryFor(const GroupFigures &group, const QStringList &taken)
{
    QString name = group.name.isEmpty() ? StatisticsChart::tr("(no name)") : group.name;
    while (taken.contains(name))
        name += QChar(0x200B); // a space without width
    return name;
}

} // namespace

QString nameOf(Measure measure)
{
    switch (measure) {
    case Measure::Flights:
        return StatisticsChart::tr("Flights");
    case Measure::Minutes:
        return StatisticsChart::tr("Minutes");
    case Measure::Discharged:
        return StatisticsChart::tr("Discharged (mAh)");
    }
    return QString();
}

StatisticsPlot plotOf(const QList<GroupFigures> &groups, Grouping grouping, Measure measure)
{
    if (groups.isEmpty())
        return {{}, grouping, measure, true};
    if (grouping != Grouping::Month)
        return {highestOf(groups, measure), grouping, measure, groups.size() <= MostOthers};
    const QList<GroupFigures> newest = newestMonths(groups);
    return {newest, grouping, measure, newest.constFirst().name == groups.constLast().name};
}

QString statisticsChartName(const StatisticsPlot &plot)
{
    const QString what = nameOf(plot.measure);
    const auto count = static_cast<int>(plot.groups.size());
    switch (plot.grouping) {
    case Grouping::Month:
        return plot.isComplete
                   ? StatisticsChart::tr("%1 by month").arg(what)
                   : StatisticsChart::tr("%1 by month, the newest %n months", nullptr, count).arg(what);
    case Grouping::Model:
        return plot.isComplete
                   ? StatisticsChart::tr("%1 by model").arg(what)
                   : StatisticsChart::tr("%1 by model, the %n with the most", nullptr, count).arg(what);
    case Grouping::Location:
        return plot.isComplete
                   ? StatisticsChart::tr("%1 by location").arg(what)
                   : StatisticsChart::tr("%1 by location, the %n with the most", nullptr, count).arg(what);
    }
    return QString();
}

QString statisticsChartDescription(const StatisticsPlot &plot)
{
    QStringList values;
    for (const GroupFigures &group : plot.groups)
        values.append(StatisticsChart::tr("%1: %2").arg(
            group.name, QLocale().toString(valueOf(group, plot.measure), 'f', 0)));
    return StatisticsChart::tr("%1. %2").arg(statisticsChartName(plot), values.join(u"; "_s));
}

std::unique_ptr<QChart> statisticsChart(const StatisticsPlot &plot)
{
    auto chart = std::make_unique<QChart>();
    chart->legend()->hide(); // there is one kind of bar
    if (plot.groups.isEmpty())
        return chart;
    const bool isUpright = plot.grouping == Grouping::Month;
    auto *bars = new QBarSet(nameOf(plot.measure));
    auto *categories = new QBarCategoryAxis;
    for (qsizetype i = 0; i < plot.groups.size(); ++i) {
        // Lying bars are drawn from the bottom.
        const GroupFigures &group = plot.groups.at(isUpright ? i : plot.groups.size() - 1 - i);
        bars->append(valueOf(group, plot.measure));
        categories->append(categoryFor(group, categories->categories()));
    }
    QAbstractBarSeries *series = nullptr;
    if (isUpright)
        series = new QBarSeries;
    else
        series = new QHorizontalBarSeries;
    series->append(bars);
    series->setBarWidth(0.8);
    chart->addSeries(series); // the chart owns all of them
    chart->addAxis(categories, isUpright ? Qt::AlignBottom : Qt::AlignLeft);
    chart->addAxis(valueAxis(plot).release(), isUpright ? Qt::AlignLeft : Qt::AlignBottom);
    if (isUpright) {
        categories->setLabelsAngle(-90);
        // A year and a month have room, which is not seen when they stand.
        categories->setTruncateLabels(false);
    }
    for (QAbstractAxis *axis : chart->axes())
        series->attachAxis(axis);
    return chart;
}

} // namespace Host
