// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChartView>
#include <QPalette>

#include <memory>

class QAbstractSeries;

namespace Host {

/** Shows a plot in the colours and fonts of the window, and paints it in those of paper. */
class PlotView final : public QChartView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PlotView)

public:
    /** How the marks of a series look, beside their shape. */
    enum class Mark { Strong, Plain, Hollow, Limit };

    explicit PlotView(QWidget *parent = nullptr);

    /**
     * Shows another plot.
     *
     * @param name what is plotted, in a few words.
     * @param description what it shows, in words for those who do not see it.
     */
    void setPlot(std::unique_ptr<QChart> plot, const QString &name, const QString &description);

    /** Sets how a series of a plot is to look, before the plot is shown. */
    static void setMark(QAbstractSeries &series, Mark mark);

    /** Paints the plot in the middle of @p place, as on paper whatever the colours of the window. */
    void paintOn(QPainter &painter, const QRectF &place);
    /** What a picture of it measures, in pixels of a plain screen. */
    QSize pictureSize() const;

protected:
    void changeEvent(QEvent *event) override;

private:
    void style(const QPalette &colours);
};

} // namespace Host
