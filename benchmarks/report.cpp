// SPDX-License-Identifier: GPL-3.0-or-later
#include "report.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>
#include <QThread>

#include <algorithm>

namespace {

QString milliseconds(double seconds)
{
    return seconds > 0.0 ? QString::number(seconds * 1e3, 'f', seconds < 0.01 ? 3 : 1) : QString();
}

QString number(double value)
{
    return QString::number(value, 'f', value < 100.0 ? 2 : 0);
}

QString verdict(const Report::Row &row)
{
    if (!row.target)
        return {};
    return row.value <= *row.target ? QStringLiteral("yes") : QStringLiteral("**no**");
}

QJsonObject toJson(const Report::Row &row)
{
    QJsonObject object{{QStringLiteral("work"), row.work},
                       {QStringLiteral("against"), row.against},
                       {QStringLiteral("value"), row.value},
                       {QStringLiteral("unit"), row.unit},
                       {QStringLiteral("seconds"), row.times.seconds},
                       {QStringLiteral("secondsAgainst"), row.times.against}};
    if (row.target)
        object.insert(QStringLiteral("target"), *row.target);
    return object;
}

QJsonObject toJson(const Report::Curve &curve)
{
    QJsonArray points;
    for (const QPointF &point : curve.points)
        points.append(QJsonArray{point.x(), point.y()});
    return {{QStringLiteral("work"), curve.work}, {QStringLiteral("points"), points}};
}

template <typename List>
QJsonArray toJsonArray(const List &list)
{
    QJsonArray array;
    for (const auto &item : list)
        array.append(toJson(item));
    return array;
}

} // namespace

Measure::Pair Report::compare(const QString &work, const QString &against, int rounds,
                              const Measure::Run &run, const Measure::Run &other,
                              std::optional<double> target)
{
    const Measure::Pair times = Measure::compare(work + QStringLiteral(" / ") + against, rounds, run, other);
    rows.append({work, against, times.ratio, QStringLiteral("×"), target, times});
    return times;
}

void Report::addValue(const QString &work, const QString &what, double value, const QString &unit,
                      std::optional<double> target)
{
    rows.append({work, what, value, unit, target, {}});
}

void Report::addPoint(const QString &curve, int entries, double seconds)
{
    const auto found = std::find_if(curves.begin(), curves.end(),
                                    [&curve](const Curve &other) { return other.work == curve; });
    Curve &target = found == curves.end() ? curves.emplaceBack(Curve{curve, {}}) : *found;
    target.points.append(QPointF(entries, seconds));
}

void Report::addSlope(const QString &curve, std::optional<double> target)
{
    for (const Curve &each : std::as_const(curves)) {
        if (each.work == curve)
            addValue(curve + QStringLiteral(", cost against size"), QStringLiteral("log-log slope"),
                     Measure::logLogSlope(each.points), QString(), target);
    }
}

QString Report::markdown() const
{
    QString text = QStringLiteral("| work | against | measured | at most | reached | ms | ms, other |\n"
                                  "|---|---|---:|---:|---|---:|---:|\n");
    for (const Row &row : rows)
        text += QStringLiteral("| %1 | %2 | %3 %4 | %5 | %6 | %7 | %8 |\n")
                    .arg(row.work, row.against, number(row.value), row.unit,
                         row.target ? number(*row.target) : QString(), verdict(row),
                         milliseconds(row.times.seconds), milliseconds(row.times.against));
    return text;
}

bool Report::saveJson(const QString &path, bool quick) const
{
    const QJsonObject object{
        {QStringLiteral("mode"), quick ? QStringLiteral("quick") : QStringLiteral("full")},
        {QStringLiteral("when"), QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
        {QStringLiteral("qt"), QLatin1StringView(qVersion())},
        {QStringLiteral("system"), QSysInfo::prettyProductName()},
        {QStringLiteral("architecture"), QSysInfo::currentCpuArchitecture()},
        {QStringLiteral("processors"), QThread::idealThreadCount()},
        {QStringLiteral("rows"), toJsonArray(rows)},
        {QStringLiteral("curves"), toJsonArray(curves)}};
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(object).toJson()) > 0;
}
