// SPDX-License-Identifier: GPL-3.0-or-later
#include "bare.h"
#include "benchmarks.h"
#include "catalogue.h"
#include "measure.h"
#include "report.h"

#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/dataprocessor.h"

#include <QFile>
#include <QTemporaryDir>

#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/** A catalogue read from a data file, with its locations. */
class Loaded
{
public:
    explicit Loaded(const QString &folder) { processor.setBasePath(folder); }
    ~Loaded() { clear(); }
    Q_DISABLE_COPY_MOVE(Loaded)

    void readLocations() { processor.getLocationsFromData(locations); }
    void readModels() { processor.getModelWidgetsFromData(models); }
    void readBatteries() { processor.getBatteryWidgetsFromData(batteries); }
    void readAll()
    {
        readLocations();
        readModels();
        readBatteries();
    }
    void save() { processor.addData(batteries, models, locations); }
    void clear()
    {
        qDeleteAll(std::exchange(batteries, {}));
        qDeleteAll(std::exchange(models, {}));
        locations.clear();
    }

    /** The time of a loader, without that of deleting what it made. */
    double time(void (Loaded::*load)())
    {
        const double seconds = Measure::seconds([&] { (this->*load)(); });
        clear();
        return seconds;
    }

private:
    DataProcessor processor;
    QList<BatteryWidget *> batteries;
    QList<ModelWidget *> models;
    QStringList locations;
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void measureLoading(Report &report, int entries, int rounds)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"voltbok.xml"_s);
    Catalogue::withEntries(entries).writeTo(folder.path());
    const Bare::Texts texts = Bare::textsOf(path);
    Loaded loaded(folder.path());

    const Measure::Run barePass = [&] { return Measure::seconds([&] { Bare::read(path); }); };
    const Measure::Run bareLoad = [&] {
        return Measure::seconds([&] {
            for (int pass = 0; pass < 3; ++pass)
                Bare::read(path);
            texts.convert();
        });
    };
    const auto run = [&loaded](void (Loaded::*load)()) {
        return [&loaded, load] { return loaded.time(load); };
    };

    const QString size = u", %1 entries"_s.arg(entries);
    const bool judged = entries == 100'000;
    report.compare(u"three loaders together"_s + size, u"three bare passes + one conversion"_s, rounds,
                   run(&Loaded::readAll), bareLoad, judged ? std::optional(1.10) : std::nullopt);
    if (!judged)
        return;
    const QString onePass = u"one bare pass"_s;
    report.compare(u"locations"_s + size, onePass, rounds, run(&Loaded::readLocations), barePass);
    report.compare(u"models"_s + size, onePass, rounds, run(&Loaded::readModels), barePass);
    report.compare(u"batteries"_s + size, onePass, rounds, run(&Loaded::readBatteries), barePass);
}

void measureSaving(Report &report, int entries, int rounds)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"voltbok.xml"_s);
    const QString barePath = folder.filePath(u"bare.xml"_s);
    Catalogue::withEntries(entries).writeTo(folder.path());
    const QList<Bare::Element> elements = Bare::elementsOf(path);
    Loaded loaded(folder.path());
    loaded.readAll();

    const QString work = u"save, %1 entries"_s.arg(entries);
    const Measure::Run save = [&] { return Measure::seconds([&] { loaded.save(); }); };
    report.compare(
        work, u"bare writer, same bytes"_s, rounds, save,
        [&] { return Measure::seconds([&] { Bare::write(barePath, elements); }); },
        entries == 100'000 ? std::optional(1.05) : std::nullopt);
    if (contents(path) != contents(barePath))
        qFatal("The bare writer wrote other bytes.");
    report.compare(work, u"bare writer into memory, written at once"_s, rounds, save,
                   [&] { return Measure::seconds([&] { Bare::composeAndWrite(barePath, elements); }); });
}

} // namespace

void Benchmarks::storage(Report &report, const Plan &plan)
{
    for (const int entries : plan.sizes()) {
        measureLoading(report, entries, plan.rounds(entries));
        measureSaving(report, entries, plan.rounds(entries));
    }
}
