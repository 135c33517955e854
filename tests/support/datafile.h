// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QXmlStreamWriter>

/**
 * The one builder of data files for tests. It stands on its own feet, so that a test does not lean on the
 * library's writer; a test that needs a broken or odd file writes it by hand.
 */
namespace Test {

using namespace Qt::Literals::StringLiterals;

struct Discharge
{
    QDateTime date = {};
    unsigned int discharged = 0; ///< mAh
    unsigned int current = 0;    ///< hundredths of an ampere
};

/** A discharged battery that was never flown, unless told otherwise. */
struct Battery
{
    QString name = {};
    bool charged = false;
    QList<Discharge> history = {};
    unsigned int capacity = 2200; ///< mAh
    unsigned int chargeRate = 20; ///< tenths of C
    unsigned int rating = 25;     ///< C
    unsigned int cycles = 7;
    QDate purchase = QDate(2024, 2, 29);
    QDateTime lastUse = QDateTime(QDate(2025, 11, 9), QTime(8, 7, 6));
};

struct Flight
{
    QDateTime date = {};
    QString location = u"Meadow"_s;
    QTime duration = QTime(0, 6, 30);
    int temperature = 21;
    QString notes = {};
};

struct Model
{
    QString name = {};
    QStringList batteries = {}; ///< the names of those that are assigned to it
    QList<Flight> flights = {};
    unsigned int weight = 150; ///< hundredths
    unsigned int size = 700;
    unsigned int flightsUsed = 12; ///< the number in the file, however many flights stand there
    QString type = u"Heli"_s;
    QString notes = u"blue"_s;
    QDate purchase = QDate(2023, 12, 31);
    QDateTime lastUpdate = QDateTime(QDate(2025, 11, 7), QTime(6, 5, 4));
};

struct Catalogue
{
    QList<Battery> batteries = {};
    QList<Model> models = {};
    QStringList locations = {};
};

/** Writes a data file element by element, in the order of the calls; document() knows the right one. */
class DocumentWriter
{
    Q_DISABLE_COPY_MOVE(DocumentWriter)

public:
    DocumentWriter()
    {
        m_xml.setAutoFormatting(true);
        m_xml.writeStartDocument();
        m_xml.writeDTD(u"<!DOCTYPE Voltbok>"_s);
        m_xml.writeStartElement(u"Voltbok"_s);
    }

    /** Closes what is open and hands the file over. */
    QByteArray finished()
    {
        m_xml.writeEndDocument();
        return m_bytes;
    }

    void write(const QStringList &locations)
    {
        m_xml.writeStartElement(u"Locations"_s);
        for (const QString &location : locations) {
            m_xml.writeEmptyElement(u"Location"_s);
            m_xml.writeAttribute(u"Name"_s, location);
        }
        m_xml.writeEndElement();
    }

    void write(const Battery &battery)
    {
        m_xml.writeStartElement(u"Battery"_s);
        m_xml.writeTextElement(u"Name"_s, battery.name);
        m_xml.writeTextElement(u"Capacity"_s, text(battery.capacity));
        m_xml.writeTextElement(u"Chrgrate"_s, text(battery.chargeRate));
        m_xml.writeTextElement(u"Dischrgrate"_s, text(battery.rating));
        m_xml.writeTextElement(u"Purchase"_s, text(battery.purchase));
        m_xml.writeTextElement(u"Cycles"_s, text(battery.cycles));
        m_xml.writeTextElement(u"Charged"_s, battery.charged ? u"1"_s : u"0"_s);
        m_xml.writeTextElement(u"LastUse"_s, text(battery.lastUse));
        if (!battery.history.isEmpty())
            write(battery.history);
        m_xml.writeEndElement();
    }

    void write(const Model &model)
    {
        m_xml.writeStartElement(u"Model"_s);
        m_xml.writeTextElement(u"Name"_s, model.name);
        m_xml.writeTextElement(u"Type"_s, model.type);
        m_xml.writeTextElement(u"Weight"_s, text(model.weight));
        m_xml.writeTextElement(u"Size"_s, text(model.size));
        m_xml.writeTextElement(u"Purchase"_s, text(model.purchase));
        m_xml.writeTextElement(u"Flights"_s, text(model.flightsUsed));
        m_xml.writeTextElement(u"Notes"_s, model.notes);
        m_xml.writeTextElement(u"LastUpdate"_s, text(model.lastUpdate));
        for (const QString &battery : model.batteries)
            m_xml.writeTextElement(u"Battery"_s, battery);
        if (!model.flights.isEmpty())
            write(model.flights);
        m_xml.writeEndElement();
    }

private:
    void write(const QList<Discharge> &history)
    {
        m_xml.writeStartElement(u"Data"_s);
        for (const Discharge &discharge : history) {
            m_xml.writeEmptyElement(u"Cycle"_s);
            m_xml.writeAttribute(u"Discharged"_s, text(discharge.discharged));
            m_xml.writeAttribute(u"Current"_s, text(discharge.current));
            m_xml.writeAttribute(u"Date"_s, text(discharge.date));
        }
        m_xml.writeEndElement();
    }

    void write(const QList<Flight> &log)
    {
        m_xml.writeStartElement(u"FlightLog"_s);
        for (const Flight &flight : log) {
            m_xml.writeEmptyElement(u"LogData"_s);
            m_xml.writeAttribute(u"Date"_s, text(flight.date));
            m_xml.writeAttribute(u"Location"_s, flight.location);
            m_xml.writeAttribute(u"Duration"_s, flight.duration.toString(Qt::TextDate));
            m_xml.writeAttribute(u"Temperature"_s, text(static_cast<unsigned int>(flight.temperature)));
            m_xml.writeAttribute(u"Notes"_s, flight.notes);
        }
        m_xml.writeEndElement();
    }

    static QString text(unsigned int number) { return QString::number(number); }
    static QString text(QDate date) { return date.toString(u"yyyy/MM/dd"_s); }
    static QString text(const QDateTime &date) { return date.toString(Qt::TextDate); }

    QByteArray m_bytes;
    QXmlStreamWriter m_xml{&m_bytes};
};

/** The data file of a catalogue, byte for byte as a save writes it; no text may hold a carriage return. */
inline QByteArray document(const Catalogue &catalogue)
{
    DocumentWriter writer;
    if (!catalogue.locations.isEmpty())
        writer.write(catalogue.locations);
    for (const Battery &battery : catalogue.batteries)
        writer.write(battery);
    for (const Model &model : catalogue.models)
        writer.write(model);
    return writer.finished();
}

} // namespace Test
