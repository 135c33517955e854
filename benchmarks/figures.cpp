// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"
#include "measure.h"
#include "openwindow.h"
#include "report.h"

#include "host/data/cataloguefile.h"
#include "host/statistics/figures.h"
#include "host/window/batteryplot.h"
#include "host/window/questions.h"

#include <QFile>

namespace {

/** What the program reads from the file of a window. */
Host::Catalogue valuesOf(const OpenWindow &window)
{
    QFile file(window.path());
    if (!file.open(QFile::ReadOnly))
        qFatal("The benchmarks cannot read their own file.");
    return Host::CatalogueFile::load(file.readAll()).catalogue;
}

/** A battery with this many discharges, all of other figures. */
Host::Battery batteryWith(int discharges)
{
    Host::Battery battery;
    battery.capacity = 2200;
    battery.rating = 25;
    const QDateTime start(QDate(2020, 1, 1), QTime(12, 0));
    for (int i = 0; i < discharges; ++i)
        battery.discharges.append(
            {start.addSecs(i * 3600LL), 1000U + static_cast<unsigned int>(i * 37 % 900), 3000});
    return battery;
}

} // namespace

void Benchmarks::figures(Report &report, const Plan &plan)
{
    constexpr int Entries = 100'000;
    constexpr int Discharges = 30'000;
    OpenWindow window(Catalogue::withEntries(Entries));
    const Host::Catalogue values = valuesOf(window);
    const auto reload = [&window] {
        return Measure::threadSeconds([&window] {
            window->updateBatteryGui();
            settle();
        });
    };
    const auto work = [&values] {
        return Measure::threadSeconds([&values] { Host::figuresOf(values, {}, QDate(2026, 11, 22)); });
    };
    report.compare(QStringLiteral("figures of %1 entries").arg(Entries),
                   QStringLiteral("the window's own reload"), plan.rounds(Entries), work, reload, 0.25);

    Host::UnattendedQuestions questions;
    Host::BatteryPlot plot(questions);
    plot.resize(700, 500);
    plot.show();
    const Host::Battery battery = batteryWith(Discharges);
    const auto draw = [&plot, &battery] {
        return Measure::threadSeconds([&plot, &battery] {
            plot.setBattery(battery);
            settle();
            plot.grab();
        });
    };
    report.compare(QStringLiteral("plot of %1 discharges").arg(Discharges),
                   QStringLiteral("the window's own reload"), plan.rounds(Entries), draw, reload, 0.5);
}
