// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

namespace Test {

using namespace Qt::Literals::StringLiterals;

/**
 * The one reader of data files for tests: what stands in a file that the library has written, by exact names
 * and as text, read by nothing of the library or the program.
 */
struct FileRecords
{
    /** A battery or a model. */
    struct Record
    {
        QMap<QString, QString> fields;       ///< every element with a text, by its name
        QStringList batteries;               ///< those assigned to a model
        QList<QXmlStreamAttributes> entries; ///< of the history or the log

        QString field(const QString &name) const { return fields.value(name); }
    };

    explicit FileRecords(const QByteArray &document)
    {
        QXmlStreamReader xml(document);
        if (!xml.readNextStartElement() || xml.name() != u"Voltbok")
            return;
        while (xml.readNextStartElement()) {
            if (xml.name() == u"Battery")
                batteries.append(readRecord(xml));
            else if (xml.name() == u"Model")
                models.append(readRecord(xml));
            else if (xml.name() == u"Locations")
                readLocations(xml);
            else
                xml.skipCurrentElement();
        }
        while (!xml.atEnd())
            xml.readNext();
        isWhole = !xml.hasError();
    }

    static QString value(const QXmlStreamAttributes &entry, const QString &name)
    {
        return entry.value(name).toString();
    }

    bool isWhole = false; ///< the document ends well
    QStringList locations;
    QList<Record> batteries;
    QList<Record> models;

private:
    void readLocations(QXmlStreamReader &xml)
    {
        while (xml.readNextStartElement()) {
            locations.append(value(xml.attributes(), u"Name"_s));
            xml.skipCurrentElement();
        }
    }

    static Record readRecord(QXmlStreamReader &xml)
    {
        Record record;
        while (xml.readNextStartElement()) {
            const QString name = xml.name().toString();
            if (name == u"Data" || name == u"FlightLog") {
                while (xml.readNextStartElement()) {
                    record.entries.append(xml.attributes());
                    xml.skipCurrentElement();
                }
            } else if (name == u"Battery") {
                record.batteries.append(xml.readElementText());
            } else {
                record.fields.insert(name, xml.readElementText());
            }
        }
        return record;
    }
};

} // namespace Test
