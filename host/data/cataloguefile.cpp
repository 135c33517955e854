// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/cataloguefile.h"

#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/dataprocessor.h"

#include <QCoreApplication>
#include <QFile>
#include <QMetaObject>
#include <QTemporaryDir>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString unwritten()
{
    return QCoreApplication::translate("CatalogueFile", "the disk took only a part of it");
}

/** A folder for one document that nobody else sees. */
class Scratch
{
public:
    QString path() const { return m_folder.path(); }
    /** Why it cannot be used, a clause; empty when it can. */
    QString problem() const { return m_folder.isValid() ? QString() : m_folder.errorString(); }

    QString put(const QByteArray &document)
    {
        QFile file(dataFile());
        if (!file.open(QFile::WriteOnly))
            return file.errorString();
        return file.write(document) == document.size() && file.flush() ? QString() : unwritten();
    }

    /** What was saved here. A save is silent: one that was cut off, or left no file, is found out by its end.
     */
    CatalogueFile::Saved take()
    {
        QFile file(dataFile());
        if (!file.open(QFile::ReadOnly))
            return {{}, file.errorString()};
        const QByteArray document = file.readAll();
        const bool isWhole = document.endsWith("</Voltbok>\n"_ba) || document.endsWith("<Voltbok/>\n"_ba);
        return isWhole ? CatalogueFile::Saved{document, {}} : CatalogueFile::Saved{{}, unwritten()};
    }

    /** Empties the folder, so that what was put there is not taken for what was saved. */
    void clear() { QFile::remove(dataFile()); }

private:
    QString dataFile() const { return m_folder.filePath(u"voltbok.xml"_s); }

    QTemporaryDir m_folder;
};

/** The library's records of a document; they are widgets, and go with this. */
struct Records
{
    Records() = default;
    ~Records()
    {
        qDeleteAll(batteries);
        qDeleteAll(models);
    }
    Q_DISABLE_COPY_MOVE(Records)

    void loadFrom(const Scratch &scratch)
    {
        DataProcessor processor;
        processor.setBasePath(scratch.path());
        processor.getLocationsFromData(locations);
        processor.getModelWidgetsFromData(models);
        processor.getBatteryWidgetsFromData(batteries);
    }

    CatalogueFile::Saved saveIn(Scratch &scratch)
    {
        scratch.clear();
        DataProcessor processor;
        processor.setBasePath(scratch.path());
        processor.addData(batteries, models, locations);
        return scratch.take();
    }

    QList<QString> locations;
    QList<ModelWidget *> models;
    QList<BatteryWidget *> batteries;
};

Battery valuesOf(BatteryWidget &record)
{
    Battery battery{record.getBatteryName(),       record.getBatteryCapacity(),    record.getBatteryRating(),
                    record.getBatteryChargeRate(), record.getBatteryCycles(),      record.getBatteryCharged(),
                    record.getdateOfPurchase(),    record.getBatteryLastUpdated(), {}};
    const QList<QDateTime> &dates = record.getDates();
    battery.discharges.reserve(dates.size());
    for (qsizetype i = 0; i < dates.size(); ++i)
        battery.discharges.append({dates.at(i), record.getDischarges().at(i), record.getCurrents().at(i)});
    return battery;
}

Model valuesOf(ModelWidget &record)
{
    Model model{record.getModelName(),       record.getModelType(),
                record.getModelWeight(),     record.getModelSize(),
                record.getModelFlights(),    record.getDateOfPurchase(),
                record.getAdditionalNotes(), record.getLastUpdated(),
                record.getBatteries(),       {}};
    const QList<LogData> &log = record.getLogData();
    model.log.reserve(log.size());
    for (const LogData &flight : log)
        model.log.append({flight.date, flight.duration, flight.location, flight.temperature, flight.notes});
    return model;
}

BatteryWidget *recordOf(Battery battery)
{
    auto *record = new BatteryWidget;
    record->setBatteryName(battery.name);
    record->setBatteryCapacity(battery.capacity);
    record->setBatteryRating(battery.rating);
    record->setBatteryChargeRate(battery.chargeRate);
    record->setBatteryCycles(battery.cycles);
    record->setBatteryCharged(battery.charged, false);
    record->setDateOfPurchase(battery.purchase);
    record->setLastUpdated(battery.lastUse);
    for (const Discharge &discharge : std::as_const(battery.discharges)) {
        record->getDates().append(discharge.time);
        record->getDischarges().append(discharge.discharged);
        record->getCurrents().append(discharge.current);
    }
    return record;
}

ModelWidget *recordOf(const Model &model)
{
    auto *record = new ModelWidget;
    record->setModelName(model.name);
    record->setModelType(model.type);
    record->setModelWeight(model.weight);
    record->setModelSize(model.size);
    record->setModelFlights(model.flights);
    record->setDateOfPurchase(model.purchase);
    record->setAdditionalNotes(model.notes);
    record->setLastUpdated(model.lastUpdate);
    for (const QString &battery : model.batteries)
        record->addBattery(battery);
    for (const Flight &flight : model.log) {
        LogData entry;
        entry.date = flight.time;
        entry.duration = flight.duration;
        entry.location = flight.location;
        entry.temperature = flight.temperature;
        entry.notes = flight.notes;
        record->addLogData(entry);
    }
    return record;
}

/** Loads a document into records. @return why that is not possible; empty when it is done. */
QString load(const QByteArray &document, Scratch &scratch, Records &records)
{
    QString problem = scratch.problem();
    if (problem.isEmpty())
        problem = scratch.put(document);
    if (problem.isEmpty())
        records.loadFrom(scratch);
    return problem;
}

} // namespace

CatalogueFile::Saved CatalogueFile::loadAndSave(const QByteArray &document)
{
    Scratch scratch;
    Records records;
    const QString problem = Host::load(document, scratch, records);
    return problem.isEmpty() ? records.saveIn(scratch) : Saved{{}, problem};
}

CatalogueFile::Loaded CatalogueFile::load(const QByteArray &document)
{
    Scratch scratch;
    Records records;
    Loaded loaded{{}, Host::load(document, scratch, records)};
    loaded.catalogue.locations = records.locations;
    for (BatteryWidget *battery : std::as_const(records.batteries))
        loaded.catalogue.batteries.append(valuesOf(*battery));
    for (ModelWidget *model : std::as_const(records.models))
        loaded.catalogue.models.append(valuesOf(*model));
    return loaded;
}

CatalogueFile::Saved CatalogueFile::save(const Catalogue &catalogue)
{
    Scratch scratch;
    if (!scratch.problem().isEmpty())
        return {{}, scratch.problem()};
    Records records;
    records.locations = catalogue.locations;
    for (const Battery &battery : catalogue.batteries)
        records.batteries.append(recordOf(battery));
    for (const Model &model : catalogue.models)
        records.models.append(recordOf(model));
    return records.saveIn(scratch);
}

QByteArray CatalogueFile::emptyDocument()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE Voltbok>\n<Voltbok/>\n"_ba;
}

CatalogueFile::Saved CatalogueFile::heldBy(QObject &logbook, const QString &folder)
{
    Scratch scratch;
    auto *processor = logbook.findChild<DataProcessor *>();
    if (!scratch.problem().isEmpty() || !processor)
        return {{}, scratch.problem()};
    processor->setBasePath(scratch.path());
    QMetaObject::invokeMethod(&logbook, "writeDataWithDataprocessor", Qt::DirectConnection);
    processor->setBasePath(folder);
    return scratch.take();
}

} // namespace Host
