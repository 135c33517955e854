// SPDX-License-Identifier: GPL-3.0-or-later
// Flights that stand twice, as a capture leaves them that was clicked twice.
#include "host/data/edits.h"
#include "tests/host/support/plainlogbook.h"

#include <QTest>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class DoublesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flightsFarApartAreNone();
    void theLaterOneIsFound_data();
    void theLaterOneIsFound();
    void whatDiffersIsNone_data();
    void whatDiffersIsNone();
    void flightsOfTwoModelsAreNone();
    void aCardClickedForEachOfTwoPacksIsNone();
    void eachIsFoundOnce();
    void theOrderOfTheFileDoesNotMatter();
    void aDoubleIsRemovedWithItsDischargeAndCycle();
};

void DoublesTest::flightsFarApartAreNone()
{
    QVERIFY(Edits::doubles(logbook()).isEmpty());
}

void DoublesTest::theLaterOneIsFound_data()
{
    QTest::addColumn<int>("seconds");
    QTest::addColumn<bool>("found");
    QTest::newRow("at once") << 0 << true;
    QTest::newRow("1 s") << 1 << true;
    QTest::newRow("5 s") << 5 << true;
    QTest::newRow("6 s") << 6 << false;
}

void DoublesTest::theLaterOneIsFound()
{
    QFETCH(int, seconds);
    QFETCH(bool, found);
    Catalogue catalogue = logbook();
    catalogue.models[0].log.append(flight(at(9, 0, seconds)));
    const QList<Edits::Double> doubles = Edits::doubles(catalogue);
    QCOMPARE(doubles.size(), found ? 1 : 0);
    if (found) {
        QCOMPARE(doubles.at(0).kept, (FlightPlace{0, 0}));
        QCOMPARE(doubles.at(0).removed, (FlightPlace{0, 3}));
    }
}

void DoublesTest::whatDiffersIsNone_data()
{
    QTest::addColumn<Flight>("second");
    Flight second = flight(at(9, 0, 2));
    second.notes = u"other"_s;
    QTest::newRow("notes") << second;
    second = flight(at(9, 0, 2), u"Hill"_s);
    QTest::newRow("location") << second;
    second = flight(at(9, 0, 2));
    second.duration = QTime(0, 6, 31);
    QTest::newRow("duration") << second;
    second = flight(at(9, 0, 2));
    second.temperature = 19;
    QTest::newRow("temperature") << second;
}

void DoublesTest::whatDiffersIsNone()
{
    QFETCH(Flight, second);
    Catalogue catalogue = logbook();
    catalogue.models[0].log.append(second);
    QVERIFY(Edits::doubles(catalogue).isEmpty());
}

void DoublesTest::flightsOfTwoModelsAreNone()
{
    Catalogue catalogue = logbook();
    catalogue.models[1].log.append(flight(at(9, 0, 2)));
    QVERIFY(Edits::doubles(catalogue).isEmpty());
}

void DoublesTest::aCardClickedForEachOfTwoPacksIsNone()
{
    Catalogue catalogue = logbook();
    catalogue.models[0].log.append(flight(at(9, 0, 2)));
    catalogue.batteries[1].discharges.append({at(9, 0, 2), 1500, 3000});
    QVERIFY(Edits::doubles(catalogue).isEmpty());
    catalogue.batteries[0].discharges.append({at(9, 0, 2), 1500, 3000}); // and then the first one again
    QVERIFY(Edits::doubles(catalogue).isEmpty());
}

void DoublesTest::eachIsFoundOnce()
{
    Catalogue catalogue = logbook();
    for (const int second : {3, 5, 7})
        catalogue.models[0].log.append(flight(at(9, 0, second)));
    const QList<Edits::Double> doubles = Edits::doubles(catalogue);
    QCOMPARE(doubles.size(), 2); // 7 s is a flight of its own again
    QCOMPARE(doubles.at(0).kept, doubles.at(1).kept);
    QCOMPARE(doubles.at(1).removed, (FlightPlace{0, 4}));
}

void DoublesTest::theOrderOfTheFileDoesNotMatter()
{
    Catalogue catalogue = logbook();
    catalogue.models[0].log.append(flight(at(8, 59, 57)));
    catalogue.batteries[0].discharges.append({at(8, 59, 57), 1500, 3000});
    const QList<Edits::Double> doubles = Edits::doubles(catalogue);
    QCOMPARE(doubles.size(), 1);
    QCOMPARE(doubles.at(0).kept, (FlightPlace{0, 3}));
    QCOMPARE(doubles.at(0).removed, (FlightPlace{0, 0}));
}

void DoublesTest::aDoubleIsRemovedWithItsDischargeAndCycle()
{
    Catalogue catalogue = logbook();
    catalogue.models[0].log.append(flight(at(9, 0, 4)));
    catalogue.batteries[0].discharges.append({at(9, 0, 4), 1500, 3000});
    catalogue.batteries[0].cycles = 11;
    const QList<Edits::Double> doubles = Edits::doubles(catalogue);
    QCOMPARE(doubles.size(), 1);
    QCOMPARE(Edits::deleteFlights(catalogue, {doubles.at(0).removed}, Edits::Discharges::Delete), QString());
    QVERIFY(catalogue == logbook());
}

QTEST_MAIN(DoublesTest)
#include "tst_doubles.moc"
