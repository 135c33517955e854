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

#include <algorithm>
#include <cmath>

namespace Host {
namespace {

constexpr char MarkProperty[] = "mark";

/** As the accessibility guidelines for the web define it. */
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool isDark(const QPalette &colours)
{
    return colours.color(QPalette::Base).lightness() < colours.color(QPalette::Text).lightness();
}

/** The colour that the desktop stresses things with, as far from the ground of a plot as a text must be. */
QColor stressed(const QPalette &colours)
{
    constexpr double EnoughContrast = 4.6;
    constexpr int Step = 105; // percent
    const QColor ground = colours.color(QPalette::Base);
    const bool dark = isDark(colours);
    QColor colour = colours.color(QPalette::Highlight);
    for (int steps = 0; steps < 60 && contrast(colour, ground) < EnoughContrast; ++steps)
        colour = dark ? colour.lighter(Step) : colour.darker(Step);
    return contrast(colour, ground) < EnoughContrast ? colours.color(QPalette::Text) : colour;
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
    const QColor colour = mark == PlotView::Mark::Strong ? stressed(colours) : colours.color(QPalette::Text);
    series.setMarkerSize(size);
    series.setColor(colour);
    series.setBrush(mark == PlotView::Mark::Hollow ? colours.brush(QPalette::Base) : QBrush(colour));
    series.setPen(QPen(colour));
}

void styleBars(QAbstractBarSeries &series, const QPalette &colours)
{
    const QList<QBarSet *> sets = series.barSets();
    for (QBarSet *set : sets) {
        set->setBrush(stressed(colours));
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
    viewport()->setFocusProxy(nullptr); // otherwise the next line were about the plot itself
    viewport()->setFocusPolicy(Qt::NoFocus);
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
