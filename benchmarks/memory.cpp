// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"
#include "catalogue.h"
#include "measure.h"
#include "openwindow.h"
#include "report.h"

#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/dataprocessor.h"

#include <QPixmapCache>
#include <QTemporaryDir>

#include <functional>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double KiB = 1024.0;

/** Heap that the records of a catalogue take after loading. */
qint64 heapOfRecords(const Catalogue &catalogue)
{
    const QTemporaryDir folder;
    catalogue.writeTo(folder.path());
    QList<BatteryWidget *> batteries;
    QList<ModelWidget *> models;
    const qint64 before = Measure::heapInUse();
    {
        DataProcessor processor;
        processor.setBasePath(folder.path());
        processor.getBatteryWidgetsFromData(batteries);
        processor.getModelWidgetsFromData(models);
    }
    const qint64 heap = Measure::heapInUse() - before;
    qDeleteAll(std::exchange(batteries, {}));
    qDeleteAll(std::exchange(models, {}));
    return heap;
}

Catalogue oneRecordOfEach(int history, int flights)
{
    Catalogue catalogue;
    catalogue.batteries = 1;
    catalogue.models = 1;
    catalogue.batteriesOfAModel = 1;
    catalogue.history = history;
    catalogue.flights = flights;
    catalogue.texts = false;
    return catalogue;
}

void measureRecords(Report &report)
{
    constexpr int Count = 70'000; // far from a power of two, where lists that grow have the most to spare
    heapOfRecords(oneRecordOfEach(1, 1)); // whatever is allocated once
    const auto none = static_cast<double>(heapOfRecords(oneRecordOfEach(0, 0)));
    const auto ofEach = [&](int history, int flights) {
        return (static_cast<double>(heapOfRecords(oneRecordOfEach(history, flights))) - none) / Count;
    };
    report.addValue(u"memory of a history entry"_s, u"heap after loading"_s, ofEach(Count, 0), u"bytes"_s,
                    24.0);
    report.addValue(u"memory of a flight without its texts"_s, u"heap after loading"_s, ofEach(0, Count),
                    u"bytes"_s, 80.0);
}

/** Heap that each repetition keeps, once everything that is made once has been made. */
double growth(int repetitions, const std::function<void()> &work)
{
    for (int i = 0; i < 20; ++i)
        work();
    const qint64 before = Measure::heapInUse();
    for (int i = 0; i < repetitions; ++i)
        work();
    return static_cast<double>(Measure::heapInUse() - before) / repetitions / KiB;
}

void addGrowth(Report &report, const QString &work, int repetitions, double kept,
               std::optional<double> target)
{
    report.addValue(u"heap kept by "_s + work, u"mean of %1"_s.arg(repetitions), kept, u"KiB"_s, target);
}

Catalogue fiftyBatteries(int batteriesOfAModel)
{
    Catalogue catalogue;
    catalogue.batteries = 50;
    catalogue.models = 10;
    catalogue.batteriesOfAModel = batteriesOfAModel;
    catalogue.history = 10;
    catalogue.flights = 10;
    return catalogue;
}

double growthOfSwitches(OpenWindow &window, int repetitions)
{
    return growth(repetitions, [&window] {
        window.chooseNextModel();
        settle();
    });
}

void measureGrowth(Report &report, int repetitions)
{
    // Qt fills its cache of pictures up to a limit of its own, and keeps their names when it drops them.
    const int limit = QPixmapCache::cacheLimit();
    QPixmapCache::setCacheLimit(0);
    for (const int cards : {5, 10}) {
        OpenWindow window(fiftyBatteries(cards));
        const QString onShow = u", %1 on show"_s.arg(cards);
        addGrowth(report, u"a reload of 50 batteries"_s + onShow, repetitions,
                  growth(repetitions,
                         [&] {
                             window->updateBatteryGui();
                             settle();
                         }),
                  6.0);
        addGrowth(report, u"a model switch"_s + onShow, repetitions, growthOfSwitches(window, repetitions),
                  8.0);
    }
    {
        OpenWindow window(fiftyBatteries(10));
        QPixmapCache::setCacheLimit(100); // KiB, soon full
        addGrowth(report, u"a model switch, 10 on show, with the names in Qt's cache of pictures"_s,
                  repetitions, growthOfSwitches(window, repetitions), {});
        QPixmapCache::setCacheLimit(limit);
    }
    OpenWindow window(fiftyBatteries(5));
    addGrowth(report, u"a chart of 10 discharges"_s, repetitions,
              growth(repetitions,
                     [&] {
                         window->on_pb_chart_clicked();
                         settle();
                     }),
              {});
}

} // namespace

void Benchmarks::memory(Report &report, const Plan &plan)
{
    measureRecords(report);
    measureGrowth(report, plan.repetitions());
}
