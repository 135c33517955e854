// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/batterychart.h"

#include "host/window/dischargesmodel.h"
#include "host/window/plotview.h"

#include <QChart>
#include <QCoreApplication>
#include <QDateTimeAxis>
#include <QLegend>
#include <QLineSeries>
#include <QLocale>
#include <QScatterSeries>
#include <QValueAxis>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

// Finer than this the marks lie on one another, whatever the size of the window.
constexpr int Columns = 80;
constexpr int Rows = 25;

/** The texts of this file. */
struct BatteryChart
{
    Q_DECLARE_TR_FUNCTIONS(BatteryChart)
};

/** A value as it is entered: whole mAh, one decimal else. */
QString valueText(double value, Quantity quantity)
{
    const bool isCharge = quantity == Quantity::CapacityUsed || quantity == Quantity::Capacity;
    return u"%1 %2"_s.arg(QLocale().toString(value, 'f', isCharge ? 0 : 1), unitOf(quantity));
}

void setShape(QScatterSeries &series, Source source)
{
    switch (source) {
    case Source::Measured:
        series.setMarkerShape(QScatterSeries::MarkerShapeCircle);
        return PlotView::setMark(series, PlotView::Mark::Strong);
    case Source::Entered:
        series.setMarkerShape(QScatterSeries::MarkerShapeRectangle);
        return PlotView::setMark(series, PlotView::Mark::Plain);
    case Source::Guessed:
    case Source::None:
        series.setMarkerShape(QScatterSeries::MarkerShapeTriangle);
        return PlotView::setMark(series, PlotView::Mark::Hollow);
    }
}

/** All values of one source; null when there are none. */
std::unique_ptr<QScatterSeries> seriesOf(const QList<HistoryPoint> &points, Source source)
{
    QList<QPointF> places;
    for (const HistoryPoint &point : points) {
        if (point.source == source)
            places.append({static_cast<double>(point.time.toMSecsSinceEpoch()), point.value});
    }
    if (places.isEmpty())
        return nullptr;
    auto series = std::make_unique<QScatterSeries>();
    series->replace(places);
    series->setName(sourceText(source));
    setShape(*series, source);
    return series;
}

/** From the first to the last, and a little on either side; a day at least. */
std::unique_ptr<QDateTimeAxis> timeAxis(const History &history)
{
    constexpr qint64 Day = qint64(24) * 60 * 60;
    const QDateTime first = history.points.constFirst().time;
    const QDateTime last = history.points.constLast().time;
    const qint64 margin = std::max(first.secsTo(last) / 40, Day / 2);
    auto axis = std::make_unique<QDateTimeAxis>();
    axis->setRange(first.addSecs(-margin), last.addSecs(margin));
    axis->setFormat(first.secsTo(last) > 180 * Day ? u"yyyy-MM"_s : u"yyyy-MM-dd"_s);
    axis->setTickCount(5);
    return axis;
}

std::unique_ptr<QValueAxis> valueAxis(const History &history, Quantity quantity)
{
    double highest = history.limit.value_or(0.0);
    for (const HistoryPoint &point : history.points)
        highest = std::max(highest, point.value);
    auto axis = std::make_unique<QValueAxis>();
    axis->setRange(0.0, highest * 1.05);
    axis->setTitleText(u"%1 (%2)"_s.arg(nameOf(quantity), unitOf(quantity)));
    axis->applyNiceNumbers();
    axis->setLabelFormat(axis->max() / (axis->tickCount() - 1) < 1.0 ? u"%.1f"_s : u"%.0f"_s);
    return axis;
}

QString limitName(Quantity quantity, double limit)
{
    const bool isCharge = quantity == Quantity::CapacityUsed || quantity == Quantity::Capacity;
    const QString text =
        isCharge ? BatteryChart::tr("Capacity, %1") : BatteryChart::tr("Permitted by the rating, %1");
    return text.arg(valueText(limit, quantity));
}

void add(QChart &chart, std::unique_ptr<QXYSeries> series)
{
    if (!series)
        return;
    QXYSeries *added = series.release(); // the chart owns it
    chart.addSeries(added);
    for (QAbstractAxis *axis : chart.axes())
        added->attachAxis(axis);
}

/** "320 mAh (71 %)" */
QString described(double value, const Battery &battery, Quantity quantity)
{
    const QString text = valueText(value, quantity);
    if (quantity != Quantity::CapacityUsed || battery.capacity == 0)
        return text;
    return BatteryChart::tr("%1 (%2 %)")
        .arg(text, QLocale().toString(100.0 * value / battery.capacity, 'f', 0));
}

} // namespace

QString nameOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::CapacityUsed:
        return BatteryChart::tr("Capacity used");
    case Quantity::Current:
        return BatteryChart::tr("Maximum current");
    case Quantity::Load:
        return BatteryChart::tr("Highest load");
    case Quantity::Resistance:
        return BatteryChart::tr("Internal resistance");
    case Quantity::Capacity:
        return BatteryChart::tr("Measured capacity");
    }
    return QString();
}

QString unitOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::CapacityUsed:
        return BatteryChart::tr("mAh");
    case Quantity::Current:
        return BatteryChart::tr("A");
    case Quantity::Load:
        return BatteryChart::tr("C");
    case Quantity::Resistance:
        return BatteryChart::tr("mΩ");
    case Quantity::Capacity:
        return BatteryChart::tr("mAh");
    }
    return QString();
}

std::unique_ptr<QChart> batteryChart(Quantity quantity, const History &history)
{
    auto chart = std::make_unique<QChart>();
    if (history.points.isEmpty())
        return chart;
    chart->legend()->setMarkerShape(QLegend::MarkerShapeFromSeries);
    auto *time = timeAxis(history).release(); // the chart owns what it is given
    chart->addAxis(time, Qt::AlignBottom);
    chart->addAxis(valueAxis(history, quantity).release(), Qt::AlignLeft);
    if (history.limit) {
        auto line = std::make_unique<QLineSeries>();
        line->append(static_cast<double>(time->min().toMSecsSinceEpoch()), *history.limit);
        line->append(static_cast<double>(time->max().toMSecsSinceEpoch()), *history.limit);
        line->setName(limitName(quantity, *history.limit));
        PlotView::setMark(*line, PlotView::Mark::Limit);
        add(*chart, std::move(line));
    }
    const QList<HistoryPoint> points = thinned(history.points, Columns, Rows);
    for (const Source source : {Source::Guessed, Source::Entered, Source::Measured})
        add(*chart, seriesOf(points, source));
    return chart;
}

QString batteryChartDescription(const Battery &battery, Quantity quantity, const History &history)
{
    if (history.points.isEmpty())
        return QString();
    const auto isLower = [](const HistoryPoint &one, const HistoryPoint &other) {
        return one.value < other.value;
    };
    const auto [lowest, highest] =
        std::minmax_element(history.points.cbegin(), history.points.cend(), isLower);
    const QLocale locale;
    QString text = BatteryChart::tr("%1 of %2: %Ln discharges from %3 to %4, %5 to %6.", nullptr,
                                    static_cast<int>(history.points.size()));
    text =
        text.arg(nameOf(quantity), battery.name,
                 locale.toString(history.points.constFirst().time.date(), QLocale::ShortFormat),
                 locale.toString(history.points.constLast().time.date(), QLocale::ShortFormat),
                 described(lowest->value, battery, quantity), described(highest->value, battery, quantity));
    for (const Source source : {Source::Measured, Source::Entered, Source::Guessed}) {
        const auto count =
            std::count_if(history.points.cbegin(), history.points.cend(),
                          [source](const HistoryPoint &point) { return point.source == source; });
        if (count > 0)
            text +=
                u' ' + BatteryChart::tr("%1: %2.").arg(sourceText(source), locale.toString(qlonglong(count)));
    }
    if (history.limit)
        text += u' ' + limitName(quantity, *history.limit) + u'.';
    if (history.withoutTime > 0)
        text += u' ' + BatteryChart::tr("%Ln discharges without a time are in the table alone.", nullptr,
                                        history.withoutTime);
    return text;
}

} // namespace Host
