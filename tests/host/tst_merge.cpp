// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of a merge, one by one.
#include "host/data/merge.h"
#include "host/data/mergemeasured.h"
#include "host/data/moments.h"
#include "tests/host/support/plainlogbook.h"

#include <QTest>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

namespace {

MeasuredDischarge measured(const QString &battery, const QDateTime &time, const QString &log)
{
    MeasuredDischarge discharge;
    discharge.battery = battery;
    discharge.moment = momentOf(time);
    discharge.log = log;
    return discharge;
}

KnownLog known(const QString &name, const QString &sha256)
{
    KnownLog log;
    log.name = name;
    log.sha256 = sha256;
    return log;
}

} // namespace

class MergeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ofEqualVersionsNothingComes();
    void oursComesFirstAndWhatIsNewOfTheirsBehind();
    void dischargesAreToldApartByTheirTime();
    void entriesWithoutATimeAreComparedWhole();
    void whatOursHoldsTwiceStays();
    void aValueThatOneSideChangedWins_data();
    void aValueThatOneSideChangedWins();
    void whatBothChangedIsChosen();
    void countersTakeTheIncrementsOfBoth();
    void countersStandWhereOneSideHasEverything();
    void countersOfARecordThatHoldsNothingElseNew();
    void whatWasRemovedGoes();
    void whatWasRemovedHereAndChangedThereStays();
    void withoutAnAncestorDifferencesAreConflicts();
    void recordsOfEqualNameArePairedInTheirOrder();
    void theBatteriesOfAModelAreASet();
    void anAddedRecordIsCountedWithItsEntries();
    void measuredValuesOfBothSidesAreKept();
};

void MergeTest::ofEqualVersionsNothingComes()
{
    const Merge merged = merge(logbook(), logbook(), std::nullopt);
    QVERIFY(merged.catalogue == logbook());
    QCOMPARE(merged.changed, 0);
    QCOMPARE(merged.added.sum() + merged.removed.sum(), 0);
    QVERIFY(merged.conflicts.isEmpty());
}

void MergeTest::oursComesFirstAndWhatIsNewOfTheirsBehind()
{
    Catalogue ours = logbook();
    Catalogue theirs = logbook();
    ours.batteries[0].discharges.append({at(15, 0), 1000, 2000});
    theirs.batteries[0].discharges.append({at(13, 0), 900, 1900});
    theirs.models[0].log.append(flight(at(13, 0)));
    ours.locations.append(u"Zoo"_s);
    theirs.locations.append(u"Airfield"_s);
    const Merge merged = merge(ours, theirs, logbook());
    QCOMPARE(merged.catalogue.locations, (QStringList{u"Meadow"_s, u"Hill"_s, u"Zoo"_s, u"Airfield"_s}));
    const QList<Discharge> &discharges = merged.catalogue.batteries.at(0).discharges;
    QCOMPARE(discharges.size(), 4);
    QCOMPARE(discharges.at(2).time, at(15, 0));
    QCOMPARE(discharges.at(3).time, at(13, 0));
    QCOMPARE(merged.added.discharges, 1);
    QCOMPARE(merged.added.flights, 1);
    QCOMPARE(merged.added.locations, 1);
    QCOMPARE(merged.added.sum(), 3);
}

void MergeTest::dischargesAreToldApartByTheirTime()
{
    Catalogue theirs = logbook();
    theirs.batteries[1].discharges[0].discharged = 1; // the same time as one of A
    const Merge merged = merge(logbook(), theirs, logbook());
    QCOMPARE(merged.catalogue.batteries.at(0).discharges.at(1).discharged, 1600U);
    QCOMPARE(merged.catalogue.batteries.at(1).discharges.at(0).discharged, 1U);
    QCOMPARE(merged.changed, 1);
    QCOMPARE(merged.added.sum(), 0);
}

void MergeTest::entriesWithoutATimeAreComparedWhole()
{
    Catalogue theirs = logbook();
    theirs.models[1].log[1].notes = u"windy"_s;
    const Merge added = merge(logbook(), theirs, std::nullopt);
    QCOMPARE(added.catalogue.models.at(1).log.size(), 3);
    QVERIFY(added.conflicts.isEmpty());
    const Merge replaced = merge(logbook(), theirs, logbook());
    QCOMPARE(replaced.catalogue.models.at(1).log.size(), 2);
    QCOMPARE(replaced.catalogue.models.at(1).log.at(1).notes, u"windy"_s);
    QCOMPARE(replaced.added.flights, 1);
    QCOMPARE(replaced.removed.flights, 1);
}

void MergeTest::whatOursHoldsTwiceStays()
{
    Catalogue ours = logbook();
    const Discharge twice = ours.batteries.at(0).discharges.at(0);
    ours.batteries[0].discharges.append(twice);
    ours.models[1].log.append(ours.models.at(1).log.at(1));
    for (const std::optional<Catalogue> &ancestor :
         {std::optional<Catalogue>(), std::optional(logbook()), std::optional(ours)}) {
        const Merge merged = merge(ours, logbook(), ancestor);
        QVERIFY(merged.catalogue == ours);
        QCOMPARE(merge(logbook(), ours, ancestor).catalogue.batteries.at(0).discharges.count(twice), 2);
    }
}

void MergeTest::aValueThatOneSideChangedWins_data()
{
    QTest::addColumn<bool>("isOurs");
    QTest::newRow("ours") << true;
    QTest::newRow("theirs") << false;
}

void MergeTest::aValueThatOneSideChangedWins()
{
    QFETCH(bool, isOurs);
    Catalogue changed = logbook();
    Battery &battery = changed.batteries[0];
    battery.capacity = 1;
    battery.rating = 2;
    battery.chargeRate = 3;
    battery.purchase = QDate(2025, 1, 1);
    battery.charged = false;
    battery.lastUse = at(23, 0);
    battery.discharges[0].discharged = 4;
    battery.discharges[0].current = 5;
    Model &model = changed.models[0];
    model.type = u"Jet"_s;
    model.weight = 6;
    model.size = 7;
    model.purchase = QDate(2025, 1, 2);
    model.notes = u"new"_s;
    model.lastUpdate = at(23, 1);
    Flight &flight = model.log[0];
    flight.duration = QTime(0, 8);
    flight.location = u"Beach"_s;
    flight.temperature = 9;
    flight.notes = u"gusts"_s;
    const Merge merged = isOurs ? merge(changed, logbook(), logbook()) : merge(logbook(), changed, logbook());
    QVERIFY(merged.catalogue == changed);
    QVERIFY(merged.conflicts.isEmpty());
    QCOMPARE(merged.changed, isOurs ? 0 : 18);
}

void MergeTest::whatBothChangedIsChosen()
{
    Catalogue ours = logbook();
    Catalogue theirs = logbook();
    ours.batteries[0].chargeRate = 20;
    theirs.batteries[0].chargeRate = 15;
    ours.batteries[0].discharges[1].current = 1317;
    theirs.batteries[0].discharges[1].current = 1400;
    ours.models[0].lastUpdate = at(20, 0);
    theirs.models[0].lastUpdate = at(21, 0);
    ours.models[0].log[2].duration = QTime();
    theirs.models[0].log[2].duration = QTime(0, 5);
    const Merge merged = merge(ours, theirs, logbook());
    QVERIFY(merged.catalogue == ours);
    QCOMPARE(merged.changed, 0);
    const QList<MergeConflict> expected{
        {MergeConflict::OfBattery, u"A"_s, {}, u"charge_rating_C"_s, 2.0, 1.5},
        {MergeConflict::OfDischarge, u"A"_s, at(10, 0), u"max_current_A"_s, 13.17, 14.0},
        {MergeConflict::OfModel,
         u"Skylark"_s,
         {},
         u"last_update"_s,
         u"2026-05-03T20:00:00"_s,
         u"2026-05-03T21:00:00"_s},
        {MergeConflict::OfFlight, u"Skylark"_s, at(11, 0), u"duration_s"_s, QJsonValue(), 300}};
    QVERIFY(merged.conflicts == expected);
    const Merge chosen = merge(ours, theirs, logbook(), {1, 3});
    QVERIFY(chosen.conflicts == expected);
    QCOMPARE(chosen.changed, 2);
    QCOMPARE(chosen.catalogue.batteries.at(0).chargeRate, 20U);
    QCOMPARE(chosen.catalogue.batteries.at(0).discharges.at(1).current, 1400U);
    QCOMPARE(chosen.catalogue.models.at(0).lastUpdate, at(20, 0));
    QCOMPARE(chosen.catalogue.models.at(0).log.at(2).duration, QTime(0, 5));
}

void MergeTest::countersTakeTheIncrementsOfBoth()
{
    Catalogue ours = logbook();
    Catalogue theirs = logbook();
    ours.batteries[0].discharges.append({at(15, 0), 1000, 2000});
    ours.batteries[0].cycles += 2;
    theirs.batteries[0].discharges.append({at(16, 0), 1000, 2000});
    theirs.batteries[0].cycles += 1;
    ours.models[0].log.append(flight(at(15, 0)));
    ours.models[0].flights += 1;
    theirs.models[0].log.append(flight(at(16, 0)));
    theirs.models[0].flights += 1;
    const Merge merged = merge(ours, theirs, logbook());
    QCOMPARE(merged.catalogue.batteries.at(0).cycles, 13U);
    QCOMPARE(merged.catalogue.models.at(0).flights, 22U);
    QCOMPARE(merged.changed, 2);
    QVERIFY(merge(merged.catalogue, theirs, logbook()).catalogue == merged.catalogue);
    theirs.batteries[0].cycles = 0; // somebody made it less
    ours.batteries[0].cycles = 3;
    QCOMPARE(merge(ours, theirs, logbook()).catalogue.batteries.at(0).cycles, 0U);
}

void MergeTest::countersStandWhereOneSideHasEverything()
{
    Catalogue ours = logbook();
    Catalogue theirs = logbook();
    theirs.batteries[0].discharges.append({at(16, 0), 1000, 2000});
    theirs.batteries[0].cycles = 11;
    ours.batteries[0].cycles = 15;
    QCOMPARE(merge(ours, theirs, logbook()).catalogue.batteries.at(0).cycles, 11U);
    QCOMPARE(merge(theirs, ours, logbook()).catalogue.batteries.at(0).cycles, 11U);
    QCOMPARE(merge(ours, theirs, std::nullopt).catalogue.batteries.at(0).cycles, 11U);
}

void MergeTest::countersOfARecordThatHoldsNothingElseNew()
{
    Catalogue ours = logbook();
    Catalogue theirs = logbook();
    ours.models[0].flights = 22;
    theirs.models[0].flights = 25;
    const Merge alone = merge(ours, theirs, logbook());
    QCOMPARE(alone.catalogue.models.at(0).flights, 22U);
    QCOMPARE(alone.conflicts.size(), 1);
    QCOMPARE(alone.conflicts.constFirst().field, u"flights"_s);
    QCOMPARE(merge(ours, theirs, logbook(), {0}).catalogue.models.at(0).flights, 25U);
    ours.locations.append(u"Beach"_s);
    theirs.locations.append(u"Lake"_s);
    const Merge merged = merge(ours, theirs, logbook());
    QCOMPARE(merged.catalogue.models.at(0).flights, 27U);
    QVERIFY(merged.conflicts.isEmpty());
    const Merge again = merge(merged.catalogue, theirs, logbook());
    QVERIFY(again.catalogue == merged.catalogue);
    QVERIFY(again.conflicts.isEmpty());
}

void MergeTest::whatWasRemovedGoes()
{
    Catalogue less = logbook();
    less.batteries.removeLast();
    less.batteries[0].discharges.removeFirst();
    less.models.removeLast();
    less.models[0].log.removeLast();
    less.locations.removeFirst();
    const Merge theirs = merge(logbook(), less, logbook());
    QVERIFY(theirs.catalogue == less);
    QCOMPARE(theirs.removed.batteries, 1);
    QCOMPARE(theirs.removed.discharges, 1);
    QCOMPARE(theirs.removed.models, 1);
    QCOMPARE(theirs.removed.flights, 3); // two of them with their model
    QCOMPARE(theirs.removed.locations, 1);
    const Merge ours = merge(less, logbook(), logbook());
    QVERIFY(ours.catalogue == less);
    QCOMPARE(ours.removed.sum() + ours.added.sum(), 0);
}

void MergeTest::whatWasRemovedHereAndChangedThereStays()
{
    Catalogue less = logbook();
    less.batteries.removeFirst();
    less.models[0].log.removeFirst();
    Catalogue changed = logbook();
    changed.batteries[0].charged = false;
    changed.models[0].log[0].notes = u"gusts"_s;
    for (const Merge &merged : {merge(less, changed, logbook()), merge(changed, less, logbook())}) {
        const bool isThere =
            std::any_of(merged.catalogue.batteries.cbegin(), merged.catalogue.batteries.cend(),
                        [&](const Battery &battery) { return battery == changed.batteries.at(0); });
        QVERIFY(isThere);
        QVERIFY(merged.catalogue.models.at(0).log.contains(changed.models.at(0).log.at(0)));
        QVERIFY(merged.conflicts.isEmpty());
    }
}

void MergeTest::withoutAnAncestorDifferencesAreConflicts()
{
    Catalogue ours = logbook();
    Catalogue theirs = logbook();
    ours.batteries.removeFirst();
    theirs.batteries.removeLast();
    theirs.batteries[1].capacity = 2000;
    theirs.batteries[1].cycles = 12;
    theirs.models[0].notes = u"theirs"_s;
    const Merge merged = merge(ours, theirs, std::nullopt);
    QCOMPARE(merged.removed.sum(), 0);
    QCOMPARE(merged.catalogue.batteries.size(), 3);
    QStringList fields;
    for (const MergeConflict &conflict : merged.conflicts)
        fields.append(conflict.name + u' ' + conflict.field);
    QCOMPARE(fields, (QStringList{u"B capacity_mAh"_s, u"B cycles"_s, u"Skylark notes"_s}));
    QCOMPARE(merged.catalogue.batteries.at(0).capacity, 2200U);
}

void MergeTest::recordsOfEqualNameArePairedInTheirOrder()
{
    Catalogue ancestor;
    ancestor.batteries = {battery(u"Twin"_s), battery(u"Twin"_s)};
    Catalogue ours = ancestor;
    Catalogue theirs = ancestor;
    ours.batteries[0].capacity = 1;
    theirs.batteries[1].capacity = 2;
    const Merge merged = merge(ours, theirs, ancestor);
    QCOMPARE(merged.catalogue.batteries.size(), 2);
    QCOMPARE(merged.catalogue.batteries.at(0).capacity, 1U);
    QCOMPARE(merged.catalogue.batteries.at(1).capacity, 2U);
    QVERIFY(merged.conflicts.isEmpty());
}

void MergeTest::theBatteriesOfAModelAreASet()
{
    Catalogue ours = logbook();
    Catalogue theirs = logbook();
    ours.models[0].batteries = {u"C"_s, u"B"_s}; // without A
    theirs.models[0].batteries = {u"A"_s, u"B"_s, u"D"_s};
    const Merge merged = merge(ours, theirs, logbook());
    QCOMPARE(merged.catalogue.models.at(0).batteries, (QStringList{u"C"_s, u"B"_s, u"D"_s}));
    QVERIFY(merged.conflicts.isEmpty());
    QCOMPARE(merged.changed, 1);
    QCOMPARE(merge(ours, theirs, std::nullopt).catalogue.models.at(0).batteries,
             (QStringList{u"C"_s, u"B"_s, u"A"_s, u"D"_s}));
}

void MergeTest::anAddedRecordIsCountedWithItsEntries()
{
    const Merge merged = merge(Catalogue(), logbook(), std::nullopt);
    QVERIFY(merged.catalogue == logbook());
    QCOMPARE(merged.added.batteries, 3);
    QCOMPARE(merged.added.discharges, 4);
    QCOMPARE(merged.added.models, 2);
    QCOMPARE(merged.added.flights, 5);
    QCOMPARE(merged.added.locations, 2);
    QCOMPARE(merged.changed, 0);
}

void MergeTest::measuredValuesOfBothSidesAreKept()
{
    Measured ours;
    ours.discharges = {measured(u"A"_s, at(9, 0), u"ours.csv"_s)};
    ours.logs = {known(u"ours.csv"_s, u"1"_s)};
    Measured theirs;
    theirs.discharges = {
        measured(u"A"_s, at(9, 0), u"theirs.csv"_s), measured(u"A"_s, at(10, 0), u"theirs.csv"_s),
        measured(u"B"_s, at(12, 0), u"theirs.csv"_s), measured(u"C"_s, at(12, 0), u"theirs.csv"_s)};
    theirs.logs = {known(u"ours.csv"_s, u"1"_s), known(u"theirs.csv"_s, u"2"_s)};
    theirs.models.insert(u"radio"_s, u"Skylark"_s);
    Catalogue merged = logbook();
    merged.batteries[1].discharges[1].discharged = 1; // ours stayed
    const Measured all = mergeMeasured(ours, logbook(), theirs, logbook(), merged);
    QCOMPARE(all.discharges.size(), 2);
    QCOMPARE(all.discharges.at(0).log, u"ours.csv"_s);
    QCOMPARE(all.discharges.at(1).moment, momentOf(at(10, 0)));
    QCOMPARE(all.logs.size(), 2);
    QCOMPARE(all.models.value(u"radio"_s), u"Skylark"_s);
}

QTEST_GUILESS_MAIN(MergeTest)
#include "tst_merge.moc"
