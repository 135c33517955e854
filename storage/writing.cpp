// SPDX-License-Identifier: GPL-3.0-or-later
// The half of the data processor that saves: one function for each element of the data file that has
// children.
#include "storage/dataprocessor.h"

#include "records/batterywidget.h"
#include "records/modelwidget.h"
#include "storage/datafile.h"
#include "storage/textdate.h"
#include "storage/valuetext.h"

#include <QDir>
#include <QFile>

#include <utility>

namespace Key = DataFile::Key;
using namespace Qt::Literals::StringLiterals;
using namespace TextDate;
using namespace ValueText;

namespace {

/** The key as the stream writer takes it, without a copy of its characters. */
QString name(QStringView key)
{
    return QString::fromRawData(key.data(), key.size());
}

/** An element with a text the user entered. */
void writeText(QXmlStreamWriter &writer, QStringView key, const QString &text)
{
    writer.writeStartElement(name(key));
    // A reader takes a bare carriage return for a line feed, and the writer leaves it bare.
    const QStringList lines = xmlText(text).split(u'\r');
    writer.writeCharacters(lines.constFirst());
    for (qsizetype i = 1; i < lines.size(); ++i) {
        writer.writeEntityReference(u"#13"_s);
        writer.writeCharacters(lines.at(i));
    }
    writer.writeEndElement();
}

/** An element with a value that is encoded already. */
void writeValue(QXmlStreamWriter &writer, QStringView key, const QString &value)
{
    writer.writeTextElement(name(key), value);
}

} // namespace

void DataProcessor::addData(QList<BatteryWidget *> &batteries, QList<ModelWidget *> &models,
                            QList<QString> &locations)
{
    if (basePath.isEmpty())
        return;
    QDir().mkpath(basePath);

    // The document is complete before the old file is emptied, so that the file is whole but for a moment.
    QByteArray document;
    writer.emplace(&document);
    writer->setAutoFormatting(true);
    writer->writeStartDocument();
    writer->writeDTD(u"<!DOCTYPE Voltbok>"_s);
    writer->writeStartElement(name(Key::Voltbok));
    if (!locations.isEmpty())
        writeLocations(locations);
    for (BatteryWidget *battery : std::as_const(batteries))
        writeBattery(battery);
    for (ModelWidget *model : std::as_const(models))
        writeModel(model);
    writer->writeEndElement();
    writer->writeEndDocument();
    writer.reset();

    QFile file(DataFile::pathIn(basePath));
    if (file.open(QIODevice::WriteOnly))
        file.write(document);
}

void DataProcessor::writeLocations(QList<QString> &locations)
{
    writer->writeStartElement(name(Key::Locations));
    for (const QString &location : std::as_const(locations)) {
        writer->writeEmptyElement(name(Key::Location));
        writer->writeAttribute(name(Key::Name), xmlText(location));
    }
    writer->writeEndElement();
}

void DataProcessor::writeBattery(BatteryWidget *battery)
{
    writer->writeStartElement(name(Key::Battery));
    writeText(*writer, Key::Name, battery->getBatteryName());
    writeValue(*writer, Key::Capacity, fromUnsigned(battery->getBatteryCapacity()));
    writeValue(*writer, Key::ChargeRate, fromUnsigned(battery->getBatteryChargeRate()));
    writeValue(*writer, Key::DischargeRate, fromUnsigned(battery->getBatteryRating()));
    writeValue(*writer, Key::Purchase, fromDate(battery->getdateOfPurchase()));
    writeValue(*writer, Key::Cycles, fromUnsigned(battery->getBatteryCycles()));
    writeValue(*writer, Key::Charged, fromBoolean(battery->getBatteryCharged()));
    writeValue(*writer, Key::LastUse, fromDateTime(battery->getBatteryLastUpdated()));
    writeBatteryData(battery);
    writer->writeEndElement();
}

void DataProcessor::writeBatteryData(BatteryWidget *battery)
{
    const QList<QDateTime> &dates = battery->getDates();
    const QList<unsigned int> &discharges = battery->getDischarges();
    const QList<unsigned int> &currents = battery->getCurrents();
    if (dates.isEmpty())
        return;

    writer->writeStartElement(name(Key::Data));
    for (qsizetype i = 0; i < dates.size(); ++i) {
        writer->writeEmptyElement(name(Key::Cycle));
        writer->writeAttribute(name(Key::Discharged), fromUnsigned(discharges.at(i)));
        writer->writeAttribute(name(Key::Current), fromUnsigned(currents.at(i)));
        writer->writeAttribute(name(Key::Date), fromDateTime(dates.at(i)));
    }
    writer->writeEndElement();
}

void DataProcessor::writeModel(ModelWidget *model)
{
    writer->writeStartElement(name(Key::Model));
    writeText(*writer, Key::Name, model->getModelName());
    writeText(*writer, Key::Type, model->getModelType());
    writeValue(*writer, Key::Weight, fromUnsigned(model->getModelWeight()));
    writeValue(*writer, Key::Size, fromUnsigned(model->getModelSize()));
    writeValue(*writer, Key::Purchase, fromDate(model->getDateOfPurchase()));
    writeValue(*writer, Key::Flights, fromUnsigned(model->getModelFlights()));
    writeText(*writer, Key::Notes, model->getAdditionalNotes());
    writeValue(*writer, Key::LastUpdate, fromDateTime(model->getLastUpdated()));
    for (const QString &battery : std::as_const(model->getBatteries()))
        writeText(*writer, Key::Battery, battery);
    writeFlightData(model);
    writer->writeEndElement();
}

void DataProcessor::writeFlightData(ModelWidget *model)
{
    const QList<LogData> &flights = model->getLogData();
    if (flights.isEmpty())
        return;

    writer->writeStartElement(name(Key::FlightLog));
    for (const LogData &flight : flights) {
        writer->writeEmptyElement(name(Key::LogData));
        writer->writeAttribute(name(Key::Date), fromDateTime(flight.date));
        writer->writeAttribute(name(Key::Location), xmlText(flight.location));
        writer->writeAttribute(name(Key::Duration), fromTime(flight.duration));
        writer->writeAttribute(name(Key::Temperature), fromSigned(flight.temperature));
        writer->writeAttribute(name(Key::Notes), xmlText(flight.notes));
    }
    writer->writeEndElement();
}
