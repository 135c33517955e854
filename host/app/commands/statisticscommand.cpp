// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/commanddata.h"
#include "host/app/commands/invocation.h"
#include "host/app/commands/runs.h"
#include "host/app/commands/shown.h"
#include "host/app/commands/texttable.h"
#include "host/app/console.h"
#include "host/statistics/figuresjson.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(StatisticsCommand)
};

QString percent(double share)
{
    constexpr double Whole = 100.0;
    return Text::tr("%1 %", "a share of the capacity").arg(Shown::rounded(share * Whole, 0));
}

QString oneDecimal(double number)
{
    return Shown::rounded(number, 1);
}

TextTable batteries(const Figures &figures)
{
    TextTable table({{Text::tr("Battery")},
                     {Text::tr("Discharges"), true},
                     {Text::tr("Measured or entered"), true},
                     {Text::tr("mAh"), true},
                     {Text::tr("Guessed mAh"), true},
                     {Text::tr("Full cycles"), true},
                     {Text::tr("Median depth"), true},
                     {Text::tr("Deepest"), true},
                     {Text::tr("Highest load (C)"), true},
                     {Text::tr("Age (days)"), true},
                     {Text::tr("Not used (days)"), true},
                     {Text::tr("Flights"), true},
                     {Text::tr("Minutes"), true},
                     {Text::tr("mAh per minute"), true}});
    for (const BatteryFigures &battery : figures.batteries)
        table.addRow({battery.name, Shown::count(battery.discharges), Shown::count(battery.counted),
                      Shown::count(battery.dischargedTotal), Shown::count(battery.dischargedGuessed),
                      Shown::known(battery.equivalentFullCycles, oneDecimal),
                      Shown::known(battery.medianDepth, percent), Shown::known(battery.maxDepth, percent),
                      Shown::known(battery.maxLoad, oneDecimal),
                      Shown::known(battery.ageDays, Shown::count<qint64>),
                      Shown::known(battery.daysSinceUse, Shown::count<qint64>), Shown::count(battery.flights),
                      oneDecimal(battery.minutes), Shown::known(battery.chargePerMinute, oneDecimal)});
    return table;
}

TextTable models(const Figures &figures)
{
    TextTable table({{Text::tr("Model")},
                     {Text::tr("Flights"), true},
                     {Text::tr("Minutes"), true},
                     {Text::tr("Mean minutes"), true},
                     {Text::tr("First")},
                     {Text::tr("Last")}});
    for (const ModelFigures &model : figures.models)
        table.addRow({model.name, Shown::count(model.flights), oneDecimal(model.minutes),
                      Shown::known(model.meanMinutes, oneDecimal), Shown::time(model.first),
                      Shown::time(model.last)});
    return table;
}

TextTable locations(const Figures &figures)
{
    TextTable table({{Text::tr("Location")}, {Text::tr("Flights"), true}, {Text::tr("Minutes"), true}});
    for (const LocationFigures &location : figures.locations)
        table.addRow({location.name, Shown::count(location.flights), oneDecimal(location.minutes)});
    return table;
}

TextTable months(const Figures &figures)
{
    TextTable table({{Text::tr("Month")},
                     {Text::tr("Flights"), true},
                     {Text::tr("Minutes"), true},
                     {Text::tr("mAh"), true}});
    const auto add = [&](const QString &name, const MonthFigures &month) {
        table.addRow(
            {name, Shown::count(month.flights), oneDecimal(month.minutes), Shown::count(month.discharged)});
    };
    for (const MonthFigures &month : figures.months)
        add(month.month, month);
    add(Text::tr("Total"), figures.total);
    return table;
}

QByteArray forTheEye(const Figures &figures)
{
    return batteries(figures).bytes() + '\n' + models(figures).bytes() + '\n' + locations(figures).bytes() +
           '\n' + months(figures).bytes();
}

} // namespace

int Run::statistics(const Invocation &invocation)
{
    const std::optional<Catalogue> catalogue = CommandData::read(invocation);
    if (!catalogue)
        return EXIT_FAILURE;
    const Figures figures = figuresOf(*catalogue, invocation.range(), invocation.on());
    Console::Output output;
    output.write(invocation.has(u"json"_s) ? QJsonDocument(FiguresJson::figures(figures)).toJson()
                                           : forTheEye(figures));
    return output.finish();
}

} // namespace Host
