// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of flights and discharges that are added, corrected, moved and deleted.
#include "host/data/cataloguefile.h"
#include "host/data/edits.h"
#include "host/data/undo.h"
#include "tests/host/support/plainlogbook.h"

#include <QTest>

#include <functional>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

using Edit = std::function<QString(Catalogue &)>;
Q_DECLARE_METATYPE(Edit)

class EditsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFlightIsAddedAtTheEnd();
    void itsDischargeStandsAtTheIdenticalTime();
    void aTakenTimeIsOneSecondLater();
    void valuesOfAFlightAreCorrected();
    void aNewTimeTakesTheDischargesAlong();
    void aNewTimeThatIsTakenIsOneSecondLater();
    void dischargesStayWithAnotherFlightOfTheirTime();
    void aFlightWithoutATimeGetsOne();
    void valuesOfADischargeAreCorrected();
    void whatStaysIsNotAskedFor();
    void flightsAreDeletedAlone();
    void flightsAreDeletedWithTheirDischarges();
    void aDischargeOfAFlightThatStaysIsNotDeleted();
    void flightsMoveToTheEndOfAnotherLog();
    void dischargesMoveToAnotherBattery();
    void aFlightNeverHasTwoDischargesOfABattery();
    void whatTheFileCannotHoldIsRefused_data();
    void whatTheFileCannotHoldIsRefused();
    void whatTheFileCanHoldIsNot_data();
    void whatTheFileCanHoldIsNot();
    void everyEditSurvivesTheFileAndItsUndoing_data();
    void everyEditSurvivesTheFileAndItsUndoing();
};

void EditsTest::aFlightIsAddedAtTheEnd()
{
    Catalogue catalogue = logbook();
    const Flight added = flight(at(8, 30));
    QCOMPARE(Edits::addFlight(catalogue, 0, added), QString());
    Catalogue meant = logbook();
    meant.models[0].log.append(added);
    meant.models[0].flights = 21;
    QVERIFY(catalogue == meant);
}

void EditsTest::itsDischargeStandsAtTheIdenticalTime()
{
    Catalogue catalogue = logbook();
    QCOMPARE(Edits::addFlight(catalogue, 1, flight(at(8, 30)), Edits::NewDischarge{2, 1234, 2050}),
             QString());
    Catalogue meant = logbook();
    meant.models[1].log.append(flight(at(8, 30)));
    meant.models[1].flights = 21;
    meant.batteries[2].discharges.append({at(8, 30), 1234, 2050});
    meant.batteries[2].cycles = 11;
    QVERIFY(catalogue == meant); // charged and last use as they were
}

void EditsTest::aTakenTimeIsOneSecondLater()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[2].discharges = {{at(9, 0, 1), 900, 1000}};
    QCOMPARE(Edits::addFlight(catalogue, 1, flight(at(9, 0)), Edits::NewDischarge{2, 1234, 2050}), QString());
    QCOMPARE(catalogue.models.at(1).log.constLast().time, at(9, 0, 2));
    QCOMPARE(catalogue.batteries.at(2).discharges.constLast().time, at(9, 0, 2));
}

void EditsTest::valuesOfAFlightAreCorrected()
{
    Catalogue catalogue = logbook();
    const Flight corrected{at(10, 0), QTime(0, 7, 15), u"Quarry"_s, -3, u"Two\nlines"_s};
    QCOMPARE(Edits::editFlight(catalogue, {0, 1}, corrected), QString());
    Catalogue meant = logbook();
    meant.models[0].log[1] = corrected;
    QVERIFY(catalogue == meant);
}

void EditsTest::aNewTimeTakesTheDischargesAlong()
{
    Catalogue catalogue = logbook();
    QCOMPARE(Edits::editFlight(catalogue, {0, 1}, flight(at(15, 0), u"Hill"_s)), QString());
    Catalogue meant = logbook();
    meant.models[0].log[1].time = at(15, 0);
    meant.batteries[0].discharges[1].time = at(15, 0);
    meant.batteries[1].discharges[0].time = at(15, 0);
    QVERIFY(catalogue == meant);
}

void EditsTest::aNewTimeThatIsTakenIsOneSecondLater()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[0].discharges.append({at(14, 0), 1, 1}); // without a flight
    QCOMPARE(Edits::editFlight(catalogue, {0, 0}, flight(at(14, 0))), QString());
    QCOMPARE(catalogue.models.at(0).log.at(0).time, at(14, 0, 1));
    QCOMPARE(catalogue.batteries.at(0).discharges.at(0).time, at(14, 0, 1));
    QCOMPARE(Edits::editFlight(catalogue, {0, 0}, flight(at(12, 0))), QString()); // where another flight is
    QCOMPARE(catalogue.models.at(0).log.at(0).time, at(12, 0, 1));
    QCOMPARE(catalogue.batteries.at(1).discharges.at(1).time, at(12, 0));
    QCOMPARE(Edits::editFlight(catalogue, {0, 2}, flight(at(14, 0))), QString()); // to a lonely discharge
    QCOMPARE(catalogue.models.at(0).log.at(2).time, at(14, 0));
}

void EditsTest::dischargesStayWithAnotherFlightOfTheirTime()
{
    Catalogue catalogue = logbook();
    catalogue.models[1].log.append(flight(at(9, 0)));
    const QList<Battery> before = catalogue.batteries;
    QCOMPARE(Edits::editFlight(catalogue, {1, 2}, flight(at(16, 0))), QString());
    QCOMPARE(catalogue.models.at(1).log.at(2).time, at(16, 0));
    QVERIFY(catalogue.batteries == before);
}

void EditsTest::aFlightWithoutATimeGetsOne()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[0].discharges.append({QDateTime(), 1, 1});
    QCOMPARE(Edits::editFlight(catalogue, {1, 1}, flight(at(17, 0), u"Beach"_s)), QString());
    QCOMPARE(catalogue.models.at(1).log.at(1).time, at(17, 0));
    QVERIFY(!catalogue.batteries.at(0).discharges.constLast().time.isValid());
}

void EditsTest::valuesOfADischargeAreCorrected()
{
    Catalogue catalogue = logbook();
    QCOMPARE(Edits::editDischarge(catalogue, {1, 0}, 1700, 29'999), QString());
    Catalogue meant = logbook();
    meant.batteries[1].discharges[0] = {at(10, 0), 1700, 29'999};
    QVERIFY(catalogue == meant);
}

void EditsTest::whatStaysIsNotAskedFor()
{
    Catalogue catalogue = logbook();
    catalogue.models[1].log[1] = {QDateTime(), QTime(), u"\u0007"_s, 500, QString()};
    Flight changed = catalogue.models.at(1).log.at(1);
    changed.notes = u"odd"_s;
    QCOMPARE(Edits::editFlight(catalogue, {1, 1}, changed), QString());
    QCOMPARE(catalogue.models.at(1).log.at(1).notes, u"odd"_s);
    catalogue.batteries[0].discharges[0].current = 4'000'000'000U;
    QCOMPARE(Edits::editDischarge(catalogue, {0, 0}, 1400, 4'000'000'000U), QString());
    QCOMPARE(catalogue.batteries.at(0).discharges.at(0).discharged, 1400U);
}

void EditsTest::flightsAreDeletedAlone()
{
    Catalogue catalogue = logbook();
    QCOMPARE(Edits::deleteFlights(catalogue, {{1, 0}, {0, 2}, {0, 0}, {0, 0}}, Edits::Discharges::Keep),
             QString());
    Catalogue meant = logbook();
    meant.models[0].log = {flight(at(10, 0), u"Hill"_s)};
    meant.models[1].log.removeFirst();
    QVERIFY(catalogue == meant); // the counters as well
}

void EditsTest::flightsAreDeletedWithTheirDischarges()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[1].cycles = 0;
    QCOMPARE(Edits::deleteFlights(catalogue, {{0, 1}, {1, 1}}, Edits::Discharges::Delete), QString());
    Catalogue meant = logbook();
    meant.models[0].log.removeAt(1);
    meant.models[1].log.removeAt(1);
    meant.batteries[0].discharges.removeAt(1);
    meant.batteries[0].cycles = 9;
    meant.batteries[1].discharges.removeAt(0);
    meant.batteries[1].cycles = 0; // never below
    QVERIFY(catalogue == meant);
}

void EditsTest::aDischargeOfAFlightThatStaysIsNotDeleted()
{
    Catalogue catalogue = logbook();
    catalogue.models[0].log.append(flight(at(9, 0)));
    const QList<Battery> before = catalogue.batteries;
    QCOMPARE(Edits::deleteFlights(catalogue, {{0, 3}}, Edits::Discharges::Delete), QString());
    QCOMPARE(catalogue.models.at(0).log.size(), 3);
    QVERIFY(catalogue.batteries == before);
}

void EditsTest::flightsMoveToTheEndOfAnotherLog()
{
    Catalogue catalogue = logbook();
    QList<FlightPlace> places{{0, 2}, {1, 1}, {0, 0}};
    QCOMPARE(Edits::moveFlights(catalogue, places, 1), QString());
    QCOMPARE(places, (QList<FlightPlace>{{1, 1}, {1, 2}, {1, 3}}));
    Catalogue meant = logbook();
    meant.models[0].log = {flight(at(10, 0), u"Hill"_s)};
    meant.models[1].log.append({flight(at(9, 0)), flight(at(11, 0))});
    QVERIFY(catalogue == meant); // the pilots' own counts stay
}

void EditsTest::dischargesMoveToAnotherBattery()
{
    Catalogue catalogue = logbook();
    QCOMPARE(Edits::moveDischarges(catalogue, {{0, 0}, {0, 1}, {0, 2}, {1, 1}}, 0, 2), QString());
    Catalogue meant = logbook();
    meant.batteries[2].discharges = meant.batteries.at(0).discharges;
    meant.batteries[0].discharges.clear();
    meant.batteries[0].cycles = 8;
    meant.batteries[2].cycles = 12;
    QVERIFY(catalogue == meant);
}

void EditsTest::aFlightNeverHasTwoDischargesOfABattery()
{
    Catalogue catalogue = logbook();
    QVERIFY(Edits::moveDischarges(catalogue, {{0, 0}, {0, 1}}, 0, 1).contains(u"“B” already"_s));
    QVERIFY(Edits::moveDischarges(catalogue, {{0, 2}}, 0, 1).contains(u"“A”"_s)); // there is nothing to move
    QVERIFY(catalogue == logbook());
}

void EditsTest::whatTheFileCannotHoldIsRefused_data()
{
    QTest::addColumn<Edit>("edit");
    const auto add = [](const char *name, const std::function<void(Flight &)> &spoil) {
        QTest::newRow(qPrintable("add: "_L1 + QLatin1StringView(name)))
            << Edit([spoil](Catalogue &catalogue) {
                   Flight added = flight(at(8, 0));
                   spoil(added);
                   return Edits::addFlight(catalogue, 0, added, Edits::NewDischarge{0, 1, 1});
               });
        QTest::newRow(qPrintable("edit: "_L1 + QLatin1StringView(name)))
            << Edit([spoil](Catalogue &catalogue) {
                   Flight edited = catalogue.models.at(0).log.at(0);
                   spoil(edited);
                   return Edits::editFlight(catalogue, {0, 0}, edited);
               });
    };
    add("no time", [](Flight &flight) { flight.time = QDateTime(); });
    add("a year of five digits",
        [](Flight &flight) { flight.time = QDateTime(QDate(10000, 1, 1), QTime(9, 0)); });
    add("a year of three digits",
        [](Flight &flight) { flight.time = QDateTime(QDate(999, 1, 1), QTime(9, 0)); });
    add("no duration", [](Flight &flight) { flight.duration = QTime(25, 0); });
    add("too cold", [](Flight &flight) { flight.temperature = -100; });
    add("too hot", [](Flight &flight) { flight.temperature = 100; });
    add("a control character", [](Flight &flight) { flight.notes = u"ring\u0007"_s; });
    add("a null", [](Flight &flight) { flight.location = QString(QChar::Null); });
    add("half a character", [](Flight &flight) { flight.location = u"a"_s + QChar(0xD83D) + u"b"_s; });
    add("the other half", [](Flight &flight) { flight.notes = QString(QChar(0xDE00)); });
    add("no character", [](Flight &flight) { flight.notes = QString(QChar(0xFFFE)); });
    const auto discharge = [](const char *name, unsigned int discharged, unsigned int current) {
        QTest::newRow(qPrintable("add: "_L1 + QLatin1StringView(name))) << Edit([=](Catalogue &catalogue) {
            return Edits::addFlight(catalogue, 0, flight(at(8, 0)),
                                    Edits::NewDischarge{0, discharged, current});
        });
        QTest::newRow(qPrintable("edit: "_L1 + QLatin1StringView(name))) << Edit([=](Catalogue &catalogue) {
            return Edits::editDischarge(catalogue, {0, 0}, discharged, current);
        });
    };
    discharge("more than the page takes", 20'001, 1);
    discharge("a current that the page does not take", 1, 30'001);
}

void EditsTest::whatTheFileCannotHoldIsRefused()
{
    QFETCH(Edit, edit);
    Catalogue catalogue = logbook();
    const QString problem = edit(catalogue);
    QVERIFY2(problem.endsWith(u'.'), qPrintable(problem));
    QVERIFY(catalogue == logbook());
}

void EditsTest::whatTheFileCanHoldIsNot_data()
{
    QTest::addColumn<Flight>("added");
    const QTime noon(12, 0);
    const auto row = [](const char *name, const Flight &flight) { QTest::newRow(name) << flight; };
    row("the first year", {QDateTime(QDate(1000, 1, 1), noon), QTime(0, 0), {}, -99, {}});
    row("the last year", {QDateTime(QDate(9999, 12, 31), noon), QTime(23, 59, 59), {}, 99, {}});
    row("all kinds of characters", {at(7, 0), QTime(0, 1), u"<&\"' \U0001F681"_s, 0, u"a\tb\nc\rd"_s});
    row("white space", {at(7, 0), QTime(0, 1), u"  x  "_s, 0, u"\n"_s});
}

void EditsTest::whatTheFileCanHoldIsNot()
{
    QFETCH(Flight, added);
    Catalogue catalogue = logbook();
    QCOMPARE(Edits::addFlight(catalogue, 1, added), QString());
    QVERIFY(CatalogueFile::load(CatalogueFile::save(catalogue).document).catalogue == catalogue);
}

void EditsTest::everyEditSurvivesTheFileAndItsUndoing_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::newRow("add") << Edit([](Catalogue &catalogue) {
        return Edits::addFlight(catalogue, 0, flight(at(9, 0)), Edits::NewDischarge{2, 20'000, 30'000});
    });
    QTest::newRow("edit") << Edit([](Catalogue &catalogue) {
        return Edits::editFlight(catalogue, {0, 1}, flight(at(12, 0), u"Quarry"_s));
    });
    QTest::newRow("discharge") << Edit([](Catalogue &catalogue) {
        return Edits::editDischarge(catalogue, {0, 0}, 0, 0);
    });
    QTest::newRow("delete") << Edit([](Catalogue &catalogue) {
        return Edits::deleteFlights(catalogue, {{0, 0}, {1, 0}}, Edits::Discharges::Delete);
    });
    QTest::newRow("move") << Edit([](Catalogue &catalogue) {
        QList<FlightPlace> places{{0, 0}};
        return Edits::moveFlights(catalogue, places, 1);
    });
    QTest::newRow("move the discharge") << Edit([](Catalogue &catalogue) {
        return Edits::moveDischarges(catalogue, {{0, 0}}, 0, 2);
    });
    QTest::newRow("rename a battery")
        << Edit([](Catalogue &catalogue) { return Edits::renameBattery(catalogue, 0, u"Z"_s); });
    QTest::newRow("rename a model") << Edit(
        [](Catalogue &catalogue) { return Edits::renameModel(catalogue, 0, u"Z"_s); });
    QTest::newRow("rename a location")
        << Edit([](Catalogue &catalogue) { return Edits::renameLocation(catalogue, 0, u"Z"_s); });
}

void EditsTest::everyEditSurvivesTheFileAndItsUndoing()
{
    QFETCH(Edit, edit);
    Catalogue catalogue = logbook();
    const QByteArray before = CatalogueFile::save(catalogue).document;
    QCOMPARE(edit(catalogue), QString());
    const QByteArray after = CatalogueFile::save(catalogue).document;
    QVERIFY(after != before);
    QVERIFY(CatalogueFile::load(after).catalogue == catalogue);
    UndoHistory history;
    history.restart(before);
    history.add(after);
    QCOMPARE(history.before(), before);
}

QTEST_MAIN(EditsTest)
#include "tst_edits.moc"
