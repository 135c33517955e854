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
    const QString path = folder.filePath(QStringLiteral("voltbok.xml"));
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

    const QString size = QStringLiteral(", %1 entries").arg(entries);
    const bool judged = entries == 100'000;
    report.compare(QStringLiteral("three loaders together") + size,
                   QStringLiteral("three bare passes + one conversion"), rounds, run(&Loaded::readAll),
                   bareLoad, judged ? std::optional(1.10) : std::nullopt);
    if (!judged)
        return;
    const QString onePass = QStringLiteral("one bare pass");
    report.compare(QStringLiteral("locations") + size, onePass, rounds, run(&Loaded::readLocations),
                   barePass);
    report.compare(QStringLiteral("models") + size, onePass, rounds, run(&Loaded::readModels), barePass);
    report.compare(QStringLiteral("batteries") + size, onePass, rounds, run(&Loaded::readBatteries),
                   barePass);
}

void measureSaving(Report &report, int entries, int rounds)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("voltbok.xml"));
    const QString barePath = folder.filePath(QStringLiteral("bare.xml"));
    Catalogue::withEntries(entries).writeTo(folder.path());
    const QList<Bare::Element> elements = Bare::elementsOf(path);
    Loaded loaded(folder.path());
    loaded.readAll();

    const QString work = QStringLiteral("save, %1 entries").arg(entries);
    const Measure::Run save = [&] { return Measure::seconds([&] { loaded.save(); }); };
    report.compare(
        work, QStringLiteral("bare writer, same bytes"), rounds, save,
        [&] { return Measure::seconds([&] { Bare::write(barePath, elements); }); },
        entries == 100'000 ? std::optional(1.05) : std::nullopt);
    if (contents(path) != contents(barePath))
        qFatal("The bare writer wrote other bytes.");
    report.compare(work, QStringLiteral("bare writer into memory, written at once"), rounds, save,
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
