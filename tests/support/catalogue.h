// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QXmlStreamWriter>

/** Catalogues for tests, written by hand, so that a test does not lean on the library's own writer. */
namespace Catalogue {

struct Flight
{
    QDateTime date = {};
    QString location = QStringLiteral("Meadow");
    QTime duration = QTime(0, 6, 30);
    int temperature = 21;
    QString notes = {};
};

struct Discharge
{
    QDateTime date = {};
    unsigned int discharged = 0;
    unsigned int current = 0;
};

struct Model
{
    QString name = {};
    QList<Flight> flights = {};
};

struct Battery
{
    QString name = {};
    QList<Discharge> history = {};
    unsigned int capacity = 2200;
    QDate purchase = {};
    bool charged = false;
};

inline QString text(const QDateTime &date)
{
    return date.toString(Qt::TextDate);
}

inline void write(QXmlStreamWriter &xml, const Battery &battery)
{
    xml.writeStartElement(QStringLiteral("Battery"));
    xml.writeTextElement(QStringLiteral("Name"), battery.name);
    xml.writeTextElement(QStringLiteral("Capacity"), QString::number(battery.capacity));
    xml.writeTextElement(QStringLiteral("Dischrgrate"), QStringLiteral("25"));
    xml.writeTextElement(QStringLiteral("Purchase"), battery.purchase.toString(QStringLiteral("yyyy/MM/dd")));
    xml.writeTextElement(QStringLiteral("Charged"), QString::number(battery.charged));
    if (!battery.history.isEmpty()) {
        xml.writeStartElement(QStringLiteral("Data"));
        for (const Discharge &discharge : battery.history) {
            xml.writeStartElement(QStringLiteral("Cycle"));
            xml.writeAttribute(QStringLiteral("Discharged"), QString::number(discharge.discharged));
            xml.writeAttribute(QStringLiteral("Current"), QString::number(discharge.current));
            xml.writeAttribute(QStringLiteral("Date"), text(discharge.date));
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

/** Every battery of the file is assigned to every model. */
inline void write(QXmlStreamWriter &xml, const Model &model, const QList<Battery> &batteries)
{
    xml.writeStartElement(QStringLiteral("Model"));
    xml.writeTextElement(QStringLiteral("Name"), model.name);
    for (const Battery &battery : batteries)
        xml.writeTextElement(QStringLiteral("Battery"), battery.name);
    if (!model.flights.isEmpty()) {
        xml.writeStartElement(QStringLiteral("FlightLog"));
        for (const Flight &flight : model.flights) {
            xml.writeStartElement(QStringLiteral("LogData"));
            xml.writeAttribute(QStringLiteral("Date"), text(flight.date));
            xml.writeAttribute(QStringLiteral("Location"), flight.location);
            xml.writeAttribute(QStringLiteral("Duration"), flight.duration.toString(Qt::TextDate));
            xml.writeAttribute(QStringLiteral("Temperature"),
                               QString::number(static_cast<unsigned int>(flight.temperature)));
            xml.writeAttribute(QStringLiteral("Notes"), flight.notes);
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

inline QByteArray file(const QList<Model> &models, const QList<Battery> &batteries = {})
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    xml.writeDTD(QStringLiteral("<!DOCTYPE Voltbok>"));
    xml.writeStartElement(QStringLiteral("Voltbok"));
    for (const Battery &battery : batteries)
        write(xml, battery);
    for (const Model &model : models)
        write(xml, model, batteries);
    xml.writeEndDocument();
    return bytes;
}

/** The moment of flight @p number of a pilot who flies every hour from 15 November 2026, 12:04:22. */
inline QDateTime moment(int number)
{
    return QDateTime(QDate(2026, 11, 15), QTime(12, 4, 22)).addSecs(number * 3600);
}

/** Flights 0 to @p count - 1, each with its number as its notes. */
inline QList<Flight> flights(int count)
{
    QList<Flight> result;
    for (int i = 0; i < count; ++i) {
        Flight flight;
        flight.date = moment(i);
        flight.notes = QString::number(i);
        result.append(flight);
    }
    return result;
}

} // namespace Catalogue
