// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/logbookwindow.h"

#include <QChart>
#include <QChartView>
#include <QLegend>
#include <QLineSeries>
#include <QValueAxis>

/** The chart page as a test sees it. */
namespace ChartPage {

inline void open(LogbookWindow &window)
{
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_chart);
}

/** The newest chart. */
inline QChart *chart(LogbookWindow &window)
{
    return window->chartView->chart();
}

inline QLineSeries *series(LogbookWindow &window)
{
    return qobject_cast<QLineSeries *>(chart(window)->series().first());
}

inline QList<QPointF> points(LogbookWindow &window)
{
    return series(window)->points();
}

/** Every chart view that the window ever made. */
inline QList<QChartView *> allViews(LogbookWindow &window)
{
    return window->findChildren<QChartView *>();
}

} // namespace ChartPage
