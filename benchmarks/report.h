// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "measure.h"

#include <QList>
#include <QPointF>
#include <QString>

#include <optional>

/** What was measured, with the targets; printed as a Markdown table, saved as JSON, drawn as a plot. */
class Report
{
public:
    struct Row
    {
        QString work;
        QString against; ///< or what the value counts
        double value = 0.0;
        QString unit;
        std::optional<double> target; ///< the value may be as high as this
        Measure::Pair times;          ///< all 0 where no times were compared
    };

    /** The cost of one piece of work at several sizes, in processor seconds. */
    struct Curve
    {
        QString work;
        QList<QPointF> points;
    };

    /** Measures two pieces of work in turn and adds a row with their ratio. */
    Measure::Pair compare(const QString &work, const QString &against, int rounds, const Measure::Run &run,
                          const Measure::Run &other, std::optional<double> target = {});
    void addValue(const QString &work, const QString &what, double value, const QString &unit,
                  std::optional<double> target = {});
    /** Adds a point to the curve with this name. */
    void addPoint(const QString &curve, int entries, double seconds);
    /** Turns the curve into a row with its slope. */
    void addSlope(const QString &curve, std::optional<double> target = {});

    QString markdown() const;
    bool saveJson(const QString &path, bool quick) const;
    bool savePlot(const QString &path) const;

private:
    QList<Row> rows;
    QList<Curve> curves;
};
