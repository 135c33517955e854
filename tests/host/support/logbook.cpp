// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/logbook.h"

#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace {

QString isoTime(const QXmlStreamReader &reader)
{
    const QString text = reader.attributes().value(u"Date"_s).toString();
    return QDateTime::fromString(text, Qt::TextDate).toString(Qt::ISODate);
}

QString attribute(const QXmlStreamReader &reader, const QString &name)
{
    return reader.attributes().value(name).toString();
}

void readBattery(QXmlStreamReader &reader, Logbook &logbook)
{
    Logbook::Battery battery;
    while (reader.readNextStartElement()) {
        const QString name = reader.name().toString();
        if (name != u"Data") {
            battery.figures.insert(name, reader.readElementText());
            continue;
        }
        while (reader.readNextStartElement()) {
            battery.discharges.append(isoTime(reader) + u' ' + attribute(reader, u"Discharged"_s));
            reader.skipCurrentElement();
        }
    }
    battery.figures.remove(u"LastUse"_s);
    logbook.batteries.insert(battery.figures.value(u"Name"_s), battery);
}

void readModel(QXmlStreamReader &reader, Logbook &logbook)
{
    Logbook::Model model;
    while (reader.readNextStartElement()) {
        const QString name = reader.name().toString();
        if (name == u"Battery") {
            model.batteries.append(reader.readElementText());
            continue;
        }
        if (name != u"FlightLog") {
            model.figures.insert(name, reader.readElementText());
            continue;
        }
        while (reader.readNextStartElement()) {
            model.flights.append(isoTime(reader) + u' ' + attribute(reader, u"Location"_s));
            reader.skipCurrentElement();
        }
    }
    model.figures.remove(u"LastUpdate"_s);
    logbook.models.insert(model.figures.value(u"Name"_s), model);
}

} // namespace

Logbook Logbook::read(const QByteArray &document)
{
    Logbook logbook;
    QXmlStreamReader reader(document);
    if (!reader.readNextStartElement() || reader.name() != u"Voltbok")
        return logbook;
    while (reader.readNextStartElement()) {
        if (reader.name() == u"Battery")
            readBattery(reader, logbook);
        else if (reader.name() == u"Model")
            readModel(reader, logbook);
        else if (reader.name() == u"Location") // without their container
            reader.skipCurrentElement();
        else {
            while (reader.readNextStartElement()) {
                logbook.locations.append(attribute(reader, u"Name"_s));
                reader.skipCurrentElement();
            }
        }
    }
    while (!reader.atEnd())
        reader.readNext();
    logbook.whole = !reader.hasError();
    return logbook;
}

Logbook Logbook::readFile(const QString &path)
{
    return read(bytesOf(path));
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray smallLogbook()
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE Voltbok>
<Voltbok>
    <Locations>
        <Location Name="Club field"/>
        <Location Name="Meadow"/>
    </Locations>
    <Battery>
        <Name>3S A</Name>
        <Capacity>1300</Capacity>
        <Chrgrate>20</Chrgrate>
        <Dischrgrate>30</Dischrgrate>
        <Purchase>2025/03/14</Purchase>
        <Cycles>2</Cycles>
        <Charged>1</Charged>
        <LastUse>Tue Nov 10 21:09:54 2026</LastUse>
        <Data>
            <Cycle Discharged="1040" Current="2750" Date="Sun Oct 25 15:40:28 2026"/>
            <Cycle Discharged="990" Current="3100" Date="Sun Nov 8 11:02:10 2026"/>
        </Data>
    </Battery>
    <Battery>
        <Name>3S B</Name>
        <Capacity>1300</Capacity>
        <Chrgrate>20</Chrgrate>
        <Dischrgrate>30</Dischrgrate>
        <Purchase>2025/03/14</Purchase>
        <Cycles>0</Cycles>
        <Charged>0</Charged>
        <LastUse>Mon Nov 9 20:00:00 2026</LastUse>
    </Battery>
    <Battery>
        <Name>6S spare</Name>
        <Capacity>5000</Capacity>
        <Chrgrate>10</Chrgrate>
        <Dischrgrate>40</Dischrgrate>
        <Purchase>2024/05/01</Purchase>
        <Cycles>7</Cycles>
        <Charged>0</Charged>
        <LastUse>Mon Jun 1 12:00:00 2026</LastUse>
    </Battery>
    <Model>
        <Name>Glider</Name>
        <Type>Plane</Type>
        <Weight>114</Weight>
        <Size>700</Size>
        <Purchase>2025/03/14</Purchase>
        <Flights>2</Flights>
        <Notes></Notes>
        <LastUpdate>Sun Nov 8 11:02:10 2026</LastUpdate>
        <Battery>3S A</Battery>
        <Battery>3S B</Battery>
        <FlightLog>
            <LogData Date="Sun Oct 25 15:40:28 2026" Location="Club field" Duration="00:08:30" Temperature="12" Notes=""/>
            <LogData Date="Sun Nov 8 11:02:10 2026" Location="Meadow" Duration="00:07:05" Temperature="4" Notes="Calm"/>
        </FlightLog>
    </Model>
</Voltbok>
)";
}
