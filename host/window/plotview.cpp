// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/plotview.h"

#include <QAbstractAxis>
#include <QAbstractBarSeries>
#include <QBarSet>
#include <QChart>
#include <QEvent>
#include <QGraphicsLayout>
#include <QLegend>
#include <QLineSeries>
#include <QScatterSeries>

namespace Host {
namespace {

constexpr char MarkProperty[] = "mark";

bool isDark(const QPalette &colours)
{
    return colours.color(QPalette::Base).lightness() < colours.color(QPalette::Text).lightness();
}

PlotView::Mark markOf(const QAbstractSeries &series)
{
    return static_cast<PlotView::Mark>(series.property(MarkProperty).toInt());
}

QPalette paper()
{
    return QPalette(Qt::lightGray, Qt::white);
}

void styleMarks(QScatterSeries &series, const QPalette &colours, qreal size)
{
    const PlotView::Mark mark = markOf(series);
    const QColor colour =
        colours.color(mark == PlotView::Mark::Strong ? QPalette::Highlight : QPalette::Text);
    series.setMarkerSize(size);
    series.setColor(colour);
    series.setBrush(mark == PlotView::Mark::Hollow ? colours.brush(QPalette::Base) : QBrush(colour));
    series.setPen(QPen(colour));
}

void styleBars(QAbstractBarSeries &series, const QPalette &colours)
{
    const QList<QBarSet *> sets = series.barSets();
    for (QBarSet *set : sets) {
        set->setBrush(colours.brush(QPalette::Highlight));
        set->setPen(QPen(Qt::NoPen));
    }
}

void styleAxis(QAbstractAxis &axis, const QPalette &colours, const QFont &font)
{
    axis.setLabelsBrush(colours.brush(QPalette::Text));
    axis.setTitleBrush(colours.brush(QPalette::Text));
    axis.setLabelsFont(font);
    axis.setTitleFont(font);
}

} // namespace

PlotView::PlotView(QWidget *parent)
    : QChartView(parent)
{
    setRenderHint(QPainter::Antialiasing);
    viewport()->setFocusPolicy(Qt::NoFocus); // the plot has it as a whole
    setMinimumHeight(fontMetrics().height() * 10);
}

void PlotView::setPlot(std::unique_ptr<QChart> plot, const QString &name, const QString &description)
{
    const std::unique_ptr<QChart> before(chart());
    setChart(plot.release()); // it is the view's now
    chart()->setTitle(name);
    chart()->setLocalizeNumbers(true);
    chart()->setBackgroundRoundness(0);
    chart()->layout()->setContentsMargins(0, 0, 0, 0);
    setAccessibleName(name);
    setAccessibleDescription(description);
    setToolTip(description);
    style(palette());
}

void PlotView::setMark(QAbstractSeries &series, Mark mark)
{
    series.setProperty(MarkProperty, static_cast<int>(mark));
}

/** A theme brings colours and fonts of its own; those of the window come after it. */
void PlotView::style(const QPalette &colours)
{
    QChart &plot = *chart();
    plot.setTheme(isDark(colours) ? QChart::ChartThemeDark : QChart::ChartThemeLight);
    plot.setBackgroundBrush(colours.brush(QPalette::Base));
    plot.setTitleBrush(colours.brush(QPalette::Text));
    plot.setTitleFont(font());
    plot.legend()->setLabelBrush(colours.brush(QPalette::Text));
    plot.legend()->setFont(font());
    const QList<QAbstractAxis *> axes = plot.axes();
    for (QAbstractAxis *axis : axes)
        styleAxis(*axis, colours, font());
    const QList<QAbstractSeries *> all = plot.series();
    for (QAbstractSeries *series : all) {
        if (auto *marks = qobject_cast<QScatterSeries *>(series))
            styleMarks(*marks, colours, fontMetrics().height() * 0.5);
        else if (auto *line = qobject_cast<QLineSeries *>(series))
            line->setPen(QPen(colours.brush(QPalette::Text), 1.5, Qt::DashLine));
        else if (auto *bars = qobject_cast<QAbstractBarSeries *>(series))
            styleBars(*bars, colours);
    }
}

QSize PlotView::pictureSize() const
{
    constexpr int Characters = 80; // what reads well, where the window is smaller
    const int width = fontMetrics().averageCharWidth() * Characters;
    return size().expandedTo(QSize(width, width / 2));
}

void PlotView::paintOn(QPainter &painter, const QRectF &place)
{
    const QRectF before = chart()->geometry();
    const QSizeF picture = pictureSize();
    const QSizeF scaled = picture.scaled(place.size(), Qt::KeepAspectRatio);
    QRectF target(QPointF(), scaled);
    target.moveCenter(place.center());
    style(paper());
    chart()->setGeometry(QRectF(QPointF(), picture));
    scene()->render(&painter, target, QRectF(QPointF(), picture));
    style(palette());
    chart()->setGeometry(before);
}

void PlotView::changeEvent(QEvent *event)
{
    QChartView::changeEvent(event);
    const QEvent::Type type = event->type();
    if (type == QEvent::PaletteChange || type == QEvent::FontChange)
        style(palette());
}

} // namespace Host
