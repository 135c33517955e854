// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/recordtext.h"

#include <QHash>
#include <QXmlStreamReader>

/**
 * What stands in a data file that the library has written, read without the library: by exact names, and
 * nothing is converted but what RecordText writes in another way than the file.
 */
class WrittenFile
{
public:
    explicit WrittenFile(const QByteArray &bytes)
    {
        QXmlStreamReader xml(bytes);
        xml.readNextStartElement(); // the root
        while (xml.readNextStartElement()) {
            if (xml.name() == u"Locations")
                readLocations(xml);
            else if (xml.name() == u"Battery")
                appendBattery(Record(xml));
            else
                appendModel(Record(xml));
        }
    }

    QStringList locations;
    QList<qsizetype> flights; // of each model
    QStringList records;      // as RecordText has them

private:
    struct Record
    {
        explicit Record(QXmlStreamReader &xml)
        {
            while (xml.readNextStartElement()) {
                const QString name = xml.name().toString();
                if (name == u"Data" || name == u"FlightLog")
                    readEntries(xml);
                else if (name == u"Battery")
                    batteries.append(xml.readElementText());
                else
                    fields.insert(name, xml.readElementText());
            }
        }

        void readEntries(QXmlStreamReader &xml)
        {
            while (xml.readNextStartElement()) {
                entries.append(xml.attributes());
                xml.skipCurrentElement();
            }
        }

        QString field(const char *name) const { return fields.value(QLatin1StringView(name)); }
        QString purchase() const { return field("Purchase").replace(u'/', u'-'); }

        QHash<QString, QString> fields;
        QStringList batteries;
        QList<QXmlStreamAttributes> entries;
    };

    static QString value(const QXmlStreamAttributes &entry, const char *name)
    {
        return entry.value(QLatin1StringView(name)).toString();
    }

    void readLocations(QXmlStreamReader &xml)
    {
        while (xml.readNextStartElement()) {
            locations.append(value(xml.attributes(), "Name"));
            xml.skipCurrentElement();
        }
    }

    void appendBattery(const Record &battery)
    {
        records.append(
            RecordText::line({battery.field("Name"), battery.field("Capacity"), battery.field("Chrgrate"),
                              battery.field("Dischrgrate"), battery.purchase(), battery.field("Cycles"),
                              battery.field("Charged"), battery.field("LastUse")}));
        for (const QXmlStreamAttributes &cycle : battery.entries)
            records.append(RecordText::line(
                {value(cycle, "Date"), value(cycle, "Discharged"), value(cycle, "Current")}));
    }

    void appendModel(const Record &model)
    {
        flights.append(model.entries.size());
        records.append(RecordText::line({model.field("Name"), model.field("Type"), model.field("Weight"),
                                         model.field("Size"), model.purchase(), model.field("Flights"),
                                         model.field("Notes"), model.field("LastUpdate")}));
        records.append(RecordText::line(model.batteries));
        for (const QXmlStreamAttributes &flight : model.entries) {
            const int degrees = static_cast<int>(value(flight, "Temperature").toUInt());
            records.append(
                RecordText::line({value(flight, "Date"), value(flight, "Duration"), value(flight, "Location"),
                                  QString::number(degrees), value(flight, "Notes")}));
        }
    }
};
