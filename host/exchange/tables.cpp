// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/tables.h"

#include "host/data/flownbatteries.h"
#include "host/data/moments.h"
#include "host/data/sources.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qsizetype RowsAtOnce = 1000;
const QString BetweenNames = u"; "_s;

/** The rows of all tables, for one writer. */
class Rows
{
public:
    Rows(const Catalogue &whole, TableWriter &writer, const Proceed &proceed)
        : m_whole(whole)
        , m_flown(whole)
        , m_writer(writer)
        , m_proceed(proceed)
    {
    }

    bool writeBatteries(const Catalogue &catalogue)
    {
        return writeEach(catalogue.batteries, [this](const Battery &battery) {
            m_writer.addText(battery.name);
            m_writer.addNumber(battery.capacity);
            m_writer.addNumber(battery.rating);
            m_writer.addNumber(battery.chargeRate, 1);
            m_writer.addDate(battery.purchase);
            m_writer.addNumber(battery.cycles);
            m_writer.addText(battery.charged ? u"yes"_s : u"no"_s);
            m_writer.addTime(battery.lastUse);
        });
    }

    bool writeDischarges(const Catalogue &catalogue)
    {
        return all(catalogue.batteries, [this](const Battery &battery) {
            return writeEach(battery.discharges, [&](const Discharge &discharge) {
                m_writer.addText(battery.name);
                m_writer.addTime(discharge.time);
                m_writer.addNumber(discharge.discharged);
                m_writer.addNumber(discharge.current, 2);
                m_writer.addText(sourceKey(sourceOf(battery, discharge)));
            });
        });
    }

    bool writeModels(const Catalogue &catalogue)
    {
        return writeEach(catalogue.models, [this](const Model &model) {
            m_writer.addText(model.name);
            m_writer.addText(model.type);
            m_writer.addNumber(model.weight);
            m_writer.addNumber(model.size);
            m_writer.addDate(model.purchase);
            m_writer.addNumber(model.flights);
            m_writer.addText(model.batteries.join(BetweenNames));
            m_writer.addText(model.notes);
            m_writer.addTime(model.lastUpdate);
        });
    }

    bool writeFlights(const Catalogue &catalogue)
    {
        return all(catalogue.models, [this](const Model &model) {
            return writeEach(model.log, [&](const Flight &flight) {
                m_writer.addText(model.name);
                m_writer.addTime(flight.time);
                if (flight.duration.isValid())
                    m_writer.addNumber(flight.seconds());
                else
                    m_writer.addNothing();
                m_writer.addText(flight.location);
                m_writer.addNumber(flight.temperature);
                m_writer.addText(batteriesOf(flight));
                m_writer.addText(flight.notes);
            });
        });
    }

    bool writeLocations(const Catalogue &catalogue)
    {
        return writeEach(catalogue.locations,
                         [this](const QString &location) { m_writer.addText(location); });
    }

private:
    template <typename Entry, typename Write>
    static bool all(const QList<Entry> &entries, Write write)
    {
        return std::all_of(entries.cbegin(), entries.cend(), write);
    }

    /** A row for each entry, until nobody wants more. */
    template <typename Entry, typename Write>
    bool writeEach(const QList<Entry> &entries, Write writeCells)
    {
        return all(entries, [this, &writeCells](const Entry &entry) {
            writeCells(entry);
            return endRow();
        });
    }

    bool endRow()
    {
        m_writer.endRow();
        return ++m_count % RowsAtOnce != 0 || !m_proceed || m_proceed(m_count);
    }

    /** Valid until the next flight's are asked for. */
    const QString &batteriesOf(const Flight &flight)
    {
        m_names.resize(0); // it keeps its room
        bool isFirst = true;
        for (const FlownBatteries::Entry &flown : m_flown.at(momentOf(flight.time))) {
            if (!std::exchange(isFirst, false))
                m_names += BetweenNames;
            m_names += m_whole.batteries.at(flown.battery).name;
        }
        return m_names;
    }

    const Catalogue &m_whole;
    const FlownBatteries m_flown;
    TableWriter &m_writer;
    const Proceed &m_proceed;
    QString m_names;
    qsizetype m_count = 0;
};

using WriteRows = bool (Rows::*)(const Catalogue &);

constexpr WriteRows Writers[] = {&Rows::writeBatteries, &Rows::writeDischarges, &Rows::writeModels,
                                 &Rows::writeFlights, &Rows::writeLocations};

} // namespace

QString isoText(QDate date)
{
    if (!date.isValid())
        return QString();
    return u"%1-%2-%3"_s.arg(date.year(), 4, 10, QLatin1Char('0'))
        .arg(date.month(), 2, 10, QLatin1Char('0'))
        .arg(date.day(), 2, 10, QLatin1Char('0'));
}

QString isoText(const QDateTime &time)
{
    return time.isValid() ? isoText(time.date()) + u' ' + time.time().toString(u"HH:mm:ss") : QString();
}

const QList<Table> &exportTables()
{
    static const QList<Table> tables = {
        {u"batteries"_s,
         {{u"Name"_s, Column::Text},
          {u"Capacity (mAh)"_s, Column::Number},
          {u"Discharge rating (C)"_s, Column::Number},
          {u"Charge rating (C)"_s, Column::Number},
          {u"Purchased"_s, Column::Date},
          {u"Cycles"_s, Column::Number},
          {u"Charged"_s, Column::Text},
          {u"Last use"_s, Column::Time}}},
        {u"discharges"_s,
         {{u"Battery"_s, Column::Text},
          {u"Time"_s, Column::Time},
          {u"Discharged (mAh)"_s, Column::Number},
          {u"Maximum current (A)"_s, Column::Number},
          {u"Source"_s, Column::Text}}},
        {u"models"_s,
         {{u"Name"_s, Column::Text},
          {u"Type"_s, Column::Text},
          {u"Weight"_s, Column::Number},
          {u"Size"_s, Column::Number},
          {u"Purchased"_s, Column::Date},
          {u"Flights"_s, Column::Number},
          {u"Batteries"_s, Column::Text},
          {u"Notes"_s, Column::Text},
          {u"Last update"_s, Column::Time}}},
        {u"flights"_s,
         {{u"Model"_s, Column::Text},
          {u"Time"_s, Column::Time},
          {u"Duration (s)"_s, Column::Number},
          {u"Location"_s, Column::Text},
          {u"Temperature (°C)"_s, Column::Number},
          {u"Batteries"_s, Column::Text},
          {u"Notes"_s, Column::Text}}},
        {u"locations"_s, {{u"Name"_s, Column::Text}}},
    };
    return tables;
}

qsizetype countRows(const Catalogue &catalogue)
{
    qsizetype rows = catalogue.batteries.size() + catalogue.models.size() + catalogue.locations.size();
    for (const Battery &battery : catalogue.batteries)
        rows += battery.discharges.size();
    for (const Model &model : catalogue.models)
        rows += model.log.size();
    return rows;
}

bool writeTables(const Catalogue &catalogue, const Catalogue &whole, TableWriter &writer,
                 const Proceed &proceed)
{
    Rows rows(whole, writer, proceed);
    for (qsizetype i = 0; i < exportTables().size(); ++i) {
        writer.beginTable(exportTables().at(i));
        if (!(rows.*Writers[i])(catalogue) || !writer.endTable())
            return false;
    }
    return true;
}

} // namespace Host
