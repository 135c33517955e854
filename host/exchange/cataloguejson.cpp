// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/cataloguejson.h"

#include "host/data/moments.h"
#include "host/data/sources.h"
#include "host/exchange/jsonbytes.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qsizetype PieceSize = qsizetype(64) * 1024;
constexpr unsigned int TenthsOfC = 10;
constexpr unsigned int HundredthsOfAmpere = 100;

} // namespace

CatalogueJson::CatalogueJson(const Catalogue &whole, ByteSink sink)
    : m_sink(std::move(sink))
    , m_flown(whole)
{
    m_buffer.reserve(2 * PieceSize);
    m_names.reserve(whole.batteries.size());
    for (const Battery &battery : whole.batteries)
        m_names.append(JsonBytes::quoted(battery.name));
}

bool CatalogueJson::writeExport(const Catalogue &shown)
{
    put("{\"format\": \"voltbok-export\", \"version\": 1,\n\"locations\": ");
    locations(shown);
    put(",\n\"batteries\": ");
    batteries(shown);
    put(",\n\"models\": ");
    models(shown);
    put("}");
    return finish();
}

bool CatalogueJson::writeBatteries(const Catalogue &shown)
{
    batteries(shown);
    return finish();
}

bool CatalogueJson::writeModels(const Catalogue &shown)
{
    models(shown);
    return finish();
}

bool CatalogueJson::writeLocations(const Catalogue &shown)
{
    locations(shown);
    return finish();
}

bool CatalogueJson::writeDischarges(const Catalogue &shown)
{
    QList<std::pair<const Battery *, const Discharge *>> entries;
    for (const Battery &battery : shown.batteries) {
        for (const Discharge &discharge : battery.discharges)
            entries.append({&battery, &discharge});
    }
    array(entries, [this](const auto &entry) {
        put("{\"battery\": ");
        JsonBytes::text(m_buffer, entry.first->name);
        put(", ");
        discharge(*entry.first, *entry.second);
    });
    return finish();
}

bool CatalogueJson::writeFlights(const Catalogue &shown)
{
    QList<std::pair<const Model *, const Flight *>> entries;
    for (const Model &model : shown.models) {
        for (const Flight &flight : model.log)
            entries.append({&model, &flight});
    }
    array(entries, [this](const auto &entry) {
        put("{\"model\": ");
        JsonBytes::text(m_buffer, entry.first->name);
        put(", ");
        flight(*entry.second);
    });
    return finish();
}

void CatalogueJson::locations(const Catalogue &shown)
{
    array(shown.locations, [this](const QString &location) { JsonBytes::text(m_buffer, location); });
}

void CatalogueJson::batteries(const Catalogue &shown)
{
    array(shown.batteries, [this](const Battery &entry) { battery(entry); });
}

void CatalogueJson::models(const Catalogue &shown)
{
    array(shown.models, [this](const Model &entry) { model(entry); });
}

void CatalogueJson::battery(const Battery &battery)
{
    put("{\"name\": ");
    JsonBytes::text(m_buffer, battery.name);
    put(", \"capacity_mAh\": ");
    JsonBytes::number(m_buffer, battery.capacity);
    put(", \"discharge_rating_C\": ");
    JsonBytes::number(m_buffer, battery.rating);
    put(", \"charge_rating_C\": ");
    JsonBytes::share(m_buffer, battery.chargeRate, TenthsOfC);
    put(", \"purchased\": ");
    JsonBytes::date(m_buffer, battery.purchase);
    put(", \"cycles\": ");
    JsonBytes::number(m_buffer, battery.cycles);
    put(battery.charged ? R"(, "charged": true, "last_use": )" : R"(, "charged": false, "last_use": )");
    JsonBytes::time(m_buffer, battery.lastUse);
    put(",\n\"discharges\": ");
    array(battery.discharges, [&](const Discharge &entry) {
        put("{");
        discharge(battery, entry);
    });
    put("}");
}

void CatalogueJson::discharge(const Battery &battery, const Discharge &discharge)
{
    put("\"time\": ");
    JsonBytes::time(m_buffer, discharge.time);
    put(", \"discharged_mAh\": ");
    JsonBytes::number(m_buffer, discharge.discharged);
    put(", \"max_current_A\": ");
    JsonBytes::share(m_buffer, discharge.current, HundredthsOfAmpere);
    put(R"(, "source": ")");
    m_buffer += sourceKey(sourceOf(battery, discharge)).toLatin1();
    put("\"}");
}

void CatalogueJson::model(const Model &model)
{
    put("{\"name\": ");
    JsonBytes::text(m_buffer, model.name);
    put(", \"type\": ");
    JsonBytes::text(m_buffer, model.type);
    put(", \"weight\": ");
    JsonBytes::number(m_buffer, model.weight);
    put(", \"size\": ");
    JsonBytes::number(m_buffer, model.size);
    put(", \"purchased\": ");
    JsonBytes::date(m_buffer, model.purchase);
    put(", \"flights\": ");
    JsonBytes::number(m_buffer, model.flights);
    put(", \"notes\": ");
    JsonBytes::text(m_buffer, model.notes);
    put(", \"last_update\": ");
    JsonBytes::time(m_buffer, model.lastUpdate);
    put(",\n\"batteries\": ");
    array(model.batteries, [this](const QString &name) { JsonBytes::text(m_buffer, name); });
    put(",\n\"log\": ");
    array(model.log, [this](const Flight &entry) {
        put("{");
        flight(entry);
    });
    put("}");
}

void CatalogueJson::flight(const Flight &flight)
{
    put("\"time\": ");
    JsonBytes::time(m_buffer, flight.time);
    put(", \"duration_s\": ");
    if (flight.duration.isValid())
        JsonBytes::number(m_buffer, flight.seconds());
    else
        put("null");
    put(", \"location\": ");
    JsonBytes::text(m_buffer, flight.location);
    put(", \"temperature_C\": ");
    JsonBytes::number(m_buffer, flight.temperature);
    put(", \"notes\": ");
    JsonBytes::text(m_buffer, flight.notes);
    put(", \"batteries\": [");
    const char *separator = "";
    for (const FlownBatteries::Entry &flown : m_flown.at(momentOf(flight.time))) {
        put(separator);
        m_buffer += m_names.at(flown.battery);
        separator = ", ";
    }
    put("]}");
}

/** One entry on each line. */
template <typename List, typename Function>
void CatalogueJson::array(const List &list, Function writeOne)
{
    const char *separator = "[\n";
    for (const auto &entry : list) {
        put(separator);
        separator = ",\n";
        writeOne(entry);
        if (!passOn())
            return;
    }
    put(list.isEmpty() ? "[]" : "\n]");
}

/** Empties the buffer where it is worth it. @return whether more is wanted. */
bool CatalogueJson::passOn()
{
    if (m_isWanted && m_buffer.size() >= PieceSize) {
        m_isWanted = m_sink(m_buffer);
        m_buffer.resize(0); // keeps its room
    }
    return m_isWanted;
}

bool CatalogueJson::finish()
{
    put("\n");
    if (m_isWanted)
        m_isWanted = m_sink(m_buffer);
    m_buffer.resize(0);
    return m_isWanted;
}

} // namespace Host
