// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/commanddata.h"
#include "host/app/commands/invocation.h"
#include "host/app/commands/runs.h"
#include "host/app/commands/shown.h"
#include "host/app/commands/texttable.h"
#include "host/app/console.h"
#include "host/data/flightindex.h"
#include "host/data/sources.h"
#include "host/exchange/cataloguejson.h"

#include <QCoreApplication>

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(List)
};

constexpr int SecondsOfAMinute = 60;
constexpr double Tenths = 10.0;
constexpr double Hundredths = 100.0;

QString durationOf(const Flight &flight)
{
    const int seconds = flight.seconds();
    return !flight.duration.isValid() ? QString()
                                      : u"%1:%2"_s.arg(seconds / SecondsOfAMinute)
                                            .arg(seconds % SecondsOfAMinute, 2, 10, QChar(u'0'));
}

QString nameOf(Source source)
{
    switch (source) {
    case Source::None:
        return Text::tr("none");
    case Source::Guessed:
        return Text::tr("guessed");
    case Source::Entered:
        return Text::tr("entered");
    case Source::Measured:
        return Text::tr("measured");
    }
    return QString();
}

TextTable batteries(const Catalogue &catalogue)
{
    TextTable table({{Text::tr("Name")},
                     {Text::tr("Capacity (mAh)"), true},
                     {Text::tr("Discharge (C)"), true},
                     {Text::tr("Charge (C)"), true},
                     {Text::tr("Purchased")},
                     {Text::tr("Cycles"), true},
                     {Text::tr("Charged")},
                     {Text::tr("Last use")}});
    for (const Battery &battery : catalogue.batteries)
        table.addRow({battery.name, Shown::count(battery.capacity), Shown::count(battery.rating),
                      Shown::number(battery.chargeRate / Tenths), Shown::date(battery.purchase),
                      Shown::count(battery.cycles), battery.charged ? Text::tr("yes") : Text::tr("no"),
                      Shown::time(battery.lastUse)});
    return table;
}

TextTable discharges(const Catalogue &catalogue)
{
    TextTable table({{Text::tr("Battery")},
                     {Text::tr("Time")},
                     {Text::tr("Discharged (mAh)"), true},
                     {Text::tr("Maximum current (A)"), true},
                     {Text::tr("Source")}});
    for (const Battery &battery : catalogue.batteries) {
        for (const Discharge &discharge : battery.discharges)
            table.addRow({battery.name, Shown::time(discharge.time), Shown::count(discharge.discharged),
                          Shown::number(discharge.current / Hundredths),
                          nameOf(sourceOf(battery, discharge))});
    }
    return table;
}

TextTable models(const Catalogue &catalogue)
{
    TextTable table({{Text::tr("Name")},
                     {Text::tr("Type")},
                     {Text::tr("Weight"), true},
                     {Text::tr("Size"), true},
                     {Text::tr("Purchased")},
                     {Text::tr("Flights"), true},
                     {Text::tr("Last update")},
                     {Text::tr("Batteries")},
                     {Text::tr("Notes")}});
    for (const Model &model : catalogue.models)
        table.addRow({model.name, model.type, Shown::count(model.weight), Shown::count(model.size),
                      Shown::date(model.purchase), Shown::count(model.flights), Shown::time(model.lastUpdate),
                      model.batteries.join(u"; "_s), model.notes});
    return table;
}

TextTable flights(const Catalogue &catalogue)
{
    TextTable table({{Text::tr("Model")},
                     {Text::tr("Time")},
                     {Text::tr("Duration"), true},
                     {Text::tr("Location")},
                     {Text::tr("Temperature (°C)"), true},
                     {Text::tr("Batteries")},
                     {Text::tr("Notes")}});
    const FlightIndex index(catalogue);
    for (const Model &model : catalogue.models) {
        for (const Flight &flight : model.log) {
            QStringList names;
            const QList<const Battery *> flown = index.batteriesAt(flight.time);
            for (const Battery *battery : flown)
                names.append(battery->name);
            table.addRow({model.name, Shown::time(flight.time), durationOf(flight), flight.location,
                          Shown::count(flight.temperature), names.join(u"; "_s), flight.notes});
        }
    }
    return table;
}

TextTable locations(const Catalogue &catalogue)
{
    TextTable table({{Text::tr("Name")}});
    for (const QString &location : catalogue.locations)
        table.addRow({location});
    return table;
}

struct Kind
{
    QString name;
    TextTable (*table)(const Catalogue &);
    bool (CatalogueJson::*json)(const Catalogue &);
};

const QList<Kind> &kinds()
{
    static const QList<Kind> all{{u"batteries"_s, batteries, &CatalogueJson::writeBatteries},
                                 {u"models"_s, models, &CatalogueJson::writeModels},
                                 {u"flights"_s, flights, &CatalogueJson::writeFlights},
                                 {u"discharges"_s, discharges, &CatalogueJson::writeDischarges},
                                 {u"locations"_s, locations, &CatalogueJson::writeLocations}};
    return all;
}

} // namespace

int Run::list(const Invocation &invocation)
{
    const std::optional<Catalogue> catalogue = CommandData::read(invocation);
    if (!catalogue)
        return EXIT_FAILURE;
    Console::Output output;
    const auto sink = [&](const QByteArray &bytes) { return output.write(bytes); };
    for (const Kind &kind : kinds()) {
        if (kind.name != invocation.arguments.first())
            continue;
        if (invocation.has(u"json"_s))
            (CatalogueJson(*catalogue, sink).*kind.json)(*catalogue);
        else
            kind.table(*catalogue).write(sink);
    }
    return output.finish();
}

} // namespace Host
