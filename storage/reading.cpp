// SPDX-License-Identifier: GPL-3.0-or-later
// The half of the data processor that loads. Every name is found by a substring test on the reader's current
// token, and a key is tested again after a text was read: the reader then stands on the end tag of the same
// name.
#include "storage/dataprocessor.h"

#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/datafile.h"
#include "storage/textdate.h"
#include "storage/valuetext.h"

#include <QFile>

#include <algorithm>
#include <memory>

namespace Key = DataFile::Key;
using namespace TextDate;
using namespace ValueText;

namespace {

/**
 * Whether a name contains a key. Asked a dozen times for each entry: to begin Qt's own search costs more than
 * to look at so few characters, and most names are too short for most keys.
 */
bool contains(QStringView name, QStringView key)
{
    return name.size() >= key.size() &&
           std::search(name.begin(), name.end(), key.begin(), key.end()) != name.end();
}

/** Calls @p readBlock on the start tag of each child of the root whose name contains @p key. */
template <typename ReadBlock>
void readBlocks(QXmlStreamReader &reader, const QString &path, QStringView key, ReadBlock readBlock)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    reader.setDevice(&file);
    while (reader.readNextStartElement() && !contains(reader.name(), Key::Voltbok)) {
    }
    while (reader.readNextStartElement()) {
        if (contains(reader.name(), key))
            readBlock();
        else
            reader.skipCurrentElement();
    }
    reader.clear(); // lets go of the file
}

/**
 * Calls @p readEntry with the attributes of each entry in the container on whose start tag the reader stands.
 *
 * The container ends at the next token that has its name, or where the file breaks off: a broken tag is no
 * entry.
 */
template <typename ReadEntry>
void readEntries(QXmlStreamReader &reader, QStringView container, QStringView entry, ReadEntry readEntry)
{
    const auto ended = [&] {
        return reader.hasError() || reader.tokenType() == QXmlStreamReader::EndDocument ||
               contains(reader.name(), container);
    };
    for (reader.readNext(); !ended(); reader.readNext()) {
        if (!reader.isEndElement() && contains(reader.name(), entry))
            readEntry(reader.attributes());
    }
}

} // namespace

bool DataProcessor::getLocationsFromData(QList<QString> &locations)
{
    readBlocks(reader, DataFile::pathIn(basePath), Key::Location, [&] { readLocations(locations); });
    return !locations.isEmpty();
}

void DataProcessor::getBatteryWidgetsFromData(QList<BatteryWidget *> &batteries)
{
    readBlocks(reader, DataFile::pathIn(basePath), Key::Battery, [&] { readBatteries(batteries); });
}

void DataProcessor::getModelWidgetsFromData(QList<ModelWidget *> &models)
{
    readBlocks(reader, DataFile::pathIn(basePath), Key::Model, [&] { readModels(models); });
}

void DataProcessor::readLocations(QList<QString> &locations)
{
    readEntries(reader, Key::Locations, Key::Location, [&](const QXmlStreamAttributes &attributes) {
        for (const QXmlStreamAttribute &attribute : attributes) {
            if (contains(attribute.name(), Key::Name))
                locations.append(toText(attribute.value()));
        }
    });
}

void DataProcessor::readBatteries(QList<BatteryWidget *> &batteries)
{
    auto battery = std::make_unique<BatteryWidget>();
    const auto at = [this](QStringView key) { return contains(reader.name(), key); };

    // A child that no key matches is not skipped: the next child is then looked for inside it, and a text
    // there ends the record. This is how the format is read.
    while (reader.readNextStartElement()) {
        if (at(Key::Name)) {
            QString name = reader.readElementText();
            battery->setBatteryName(name);
        }
        if (at(Key::Capacity))
            battery->setBatteryCapacity(toUnsigned(reader.readElementText()));
        if (at(Key::ChargeRate))
            battery->setBatteryChargeRate(toUnsigned(reader.readElementText()));
        if (at(Key::DischargeRate))
            battery->setBatteryRating(toUnsigned(reader.readElementText()));
        if (at(Key::Purchase)) {
            QDate date = toDate(reader.readElementText());
            battery->setDateOfPurchase(date);
        }
        if (at(Key::Cycles))
            battery->setBatteryCycles(toUnsigned(reader.readElementText()));
        if (at(Key::Charged))
            battery->setBatteryCharged(toBoolean(reader.readElementText()), false);
        if (at(Key::LastUse))
            battery->setLastUpdated(toDateTime(reader.readElementText()));
        battery->setBatteryLastDischarged(0); // the two are not stored: they follow the last history entry
        battery->setBatteryLastMaxCurrent(0);
        if (at(Key::Data))
            readBatteryData(battery.get());
    }
    battery->repaint();
    batteries.append(battery.release());
}

void DataProcessor::readBatteryData(BatteryWidget *battery)
{
    // Straight into the history: the card shows the last discharge only and is not refreshed for each.
    QList<QDateTime> &dates = battery->getDates();
    QList<unsigned int> &discharges = battery->getDischarges();
    QList<unsigned int> &currents = battery->getCurrents();
    const qsizetype before = dates.size();
    readEntries(reader, Key::Data, Key::Cycle, [&](const QXmlStreamAttributes &attributes) {
        QDateTime when;
        unsigned int discharged = 0;
        unsigned int current = 0;
        for (const QXmlStreamAttribute &attribute : attributes) {
            if (contains(attribute.name(), Key::Date))
                when = toDateTime(attribute.value());
            if (contains(attribute.name(), Key::Current))
                current = toUnsigned(attribute.value());
            if (contains(attribute.name(), Key::Discharged))
                discharged = toUnsigned(attribute.value());
        }
        dates.append(when);
        discharges.append(discharged);
        currents.append(current);
    });
    if (dates.size() == before)
        return;
    dates.squeeze(); // lists that grow have up to as much to spare again
    discharges.squeeze();
    currents.squeeze();
    battery->setBatteryLastDischarged(discharges.constLast());
    battery->setBatteryLastMaxCurrent(currents.constLast());
}

void DataProcessor::readModels(QList<ModelWidget *> &models)
{
    auto model = std::make_unique<ModelWidget>();
    const auto at = [this](QStringView key) { return contains(reader.name(), key); };

    while (reader.readNextStartElement()) { // a child that no key matches is entered, as in a battery
        if (at(Key::Name))
            model->setModelName(reader.readElementText());
        if (at(Key::Type))
            model->setModelType(reader.readElementText());
        if (at(Key::Weight))
            model->setModelWeight(toUnsigned(reader.readElementText()));
        if (at(Key::Size))
            model->setModelSize(toUnsigned(reader.readElementText()));
        if (at(Key::Purchase))
            model->setDateOfPurchase(toDate(reader.readElementText()));
        if (at(Key::Flights))
            model->setModelFlights(toUnsigned(reader.readElementText()));
        if (at(Key::Notes))
            model->setAdditionalNotes(reader.readElementText());
        if (at(Key::LastUpdate))
            model->setLastUpdated(toDateTime(reader.readElementText()));
        if (at(Key::Battery))
            model->addBattery(reader.readElementText());
        if (at(Key::FlightLog))
            readFlightData(model.get());
    }
    models.append(model.release());
}

void DataProcessor::readFlightData(ModelWidget *model)
{
    QList<LogData> &flights = model->getLogData();
    readEntries(reader, Key::FlightLog, Key::LogData, [&](const QXmlStreamAttributes &attributes) {
        LogData flight;
        for (const QXmlStreamAttribute &attribute : attributes) {
            if (contains(attribute.name(), Key::Date))
                flight.date = toDateTime(attribute.value());
            if (contains(attribute.name(), Key::Location))
                flight.location = toText(attribute.value());
            if (contains(attribute.name(), Key::Duration))
                flight.duration = toTime(attribute.value());
            if (contains(attribute.name(), Key::Temperature))
                flight.temperature = toSigned(attribute.value());
            if (contains(attribute.name(), Key::Notes))
                flight.notes = toText(attribute.value());
        }
        model->addLogData(flight);
    });
    flights.squeeze();
}
