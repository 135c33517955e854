// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/filerecords.h"
#include "tests/support/recordtext.h"

using namespace Qt::Literals::StringLiterals;

/** A data file as lines: nothing is converted but what RecordText writes in another way than the file. */
class WrittenFile
{
public:
    explicit WrittenFile(const QByteArray &bytes)
    {
        const Test::FileRecords file(bytes);
        locations = file.locations;
        for (const Record &battery : file.batteries)
            appendBattery(battery);
        for (const Record &model : file.models)
            appendModel(model);
    }

    QStringList locations;
    QList<qsizetype> flights; // of each model
    QStringList records;      // as RecordText has them

private:
    using Record = Test::FileRecords::Record;

    static QString value(const QXmlStreamAttributes &entry, const char *name)
    {
        return Test::FileRecords::value(entry, QLatin1StringView(name));
    }
    static QStringList fields(const Record &record, std::initializer_list<const char *> names)
    {
        QStringList texts;
        for (const char *name : names)
            texts.append(record.field(QLatin1StringView(name)));
        return texts;
    }
    static QString purchase(const Record &record) { return record.field(u"Purchase"_s).replace(u'/', u'-'); }

    void appendBattery(const Record &battery)
    {
        records.append(RecordText::line(fields(battery, {"Name", "Capacity", "Chrgrate", "Dischrgrate"}) +
                                        QStringList{purchase(battery)} +
                                        fields(battery, {"Cycles", "Charged", "LastUse"})));
        for (const QXmlStreamAttributes &cycle : battery.entries)
            records.append(RecordText::line(
                {value(cycle, "Date"), value(cycle, "Discharged"), value(cycle, "Current")}));
    }

    void appendModel(const Record &model)
    {
        flights.append(model.entries.size());
        records.append(RecordText::line(fields(model, {"Name", "Type", "Weight", "Size"}) +
                                        QStringList{purchase(model)} +
                                        fields(model, {"Flights", "Notes", "LastUpdate"})));
        records.append(RecordText::line(model.batteries));
        for (const QXmlStreamAttributes &flight : model.entries) {
            const int degrees = static_cast<int>(value(flight, "Temperature").toUInt());
            records.append(
                RecordText::line({value(flight, "Date"), value(flight, "Duration"), value(flight, "Location"),
                                  QString::number(degrees), value(flight, "Notes")}));
        }
    }
};
