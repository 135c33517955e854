// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/modelwidget.h"
#include "tests/support/warnings.h"

#include <QTest>

#include <climits>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

class FlightLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNewFlightIsEmpty();
    void theFlightIsCopiedByValueFieldByField();
    void flightsKeepTheOrderOfRecording();
    void addingAFlightCopiesItAndChangesNothingElse();
    void aFlightOfTheLogItselfCanBeAddedAgain();
    void getLogCopiesTheEntryAtAnIndex_data();
    void getLogCopiesTheEntryAtAnIndex();
    void getLogDoesNotMoveTheWalk();
    void theWalkStopsAtBothEnds();
    void theStepOntoTheLastEntryOfAWalkAnswersFalseOnPurpose_data();
    void theStepOntoTheLastEntryOfAWalkAnswersFalseOnPurpose();
    void theWalkOverAnEmptyLogDeliversNothing();
    void aStepBeforeTheLatestLogWasAskedForIsSafe();
    void aFlightAddedDuringAWalkAdvancesIt();
    void aLogCutShortDuringAWalkIsSafe();
    void theListOfFlightsIsTheRecordsOwn();
};

namespace {

LogData flight(int number)
{
    LogData entry;
    entry.date = QDateTime(QDate(2026, 5, 1).addDays(number), QTime(14, 30, 15));
    entry.duration = QTime(0, 7, number);
    entry.location = u"Field %1"_s.arg(number);
    entry.temperature = -number;
    entry.notes = u"Note %1"_s.arg(number);
    return entry;
}

void addFlights(ModelWidget &model, int count)
{
    for (int i = 0; i < count; ++i) {
        LogData entry = flight(i);
        model.addLogData(entry);
    }
}

/** The number of the flight that flight() made; -1 for an untouched one. */
int numberOf(const LogData &entry)
{
    return entry.location.isEmpty() ? -1 : entry.location.mid(6).toInt();
}

bool same(const LogData &left, const LogData &right)
{
    return left.date == right.date && left.duration == right.duration && left.location == right.location &&
           left.temperature == right.temperature && left.notes == right.notes;
}

} // namespace

void FlightLogTest::init()
{
    Test::failOnWarnings();
}

void FlightLogTest::aNewFlightIsEmpty()
{
    const LogData entry;
    QVERIFY(entry.date.isNull());
    QVERIFY(entry.duration.isNull());
    QVERIFY(!entry.duration.isValid());
    QVERIFY(entry.location.isEmpty());
    QCOMPARE(entry.temperature, 0);
    QVERIFY(entry.notes.isEmpty());
}

void FlightLogTest::theFlightIsCopiedByValueFieldByField()
{
    const LogData original = flight(3);
    LogData copy(original);
    QVERIFY(same(copy, original));
    copy.notes = u"other"_s;
    QCOMPARE(original.notes, u"Note 3"_s);

    LogData assigned;
    assigned = original;
    QVERIFY(same(assigned, original));
    QVERIFY(std::is_copy_constructible_v<LogData> && std::is_copy_assignable_v<LogData>);
}

void FlightLogTest::flightsKeepTheOrderOfRecording()
{
    ModelWidget model;
    LogData late = flight(9);
    LogData early = flight(1);
    model.addLogData(late);
    model.addLogData(early);
    model.addLogData(late);
    QCOMPARE(model.getLogData().size(), 3);
    QCOMPARE(numberOf(model.getLogData().at(0)), 9);
    QCOMPARE(numberOf(model.getLogData().at(1)), 1);
    QVERIFY(same(model.getLogData().at(2), late));
}

void FlightLogTest::addingAFlightCopiesItAndChangesNothingElse()
{
    ModelWidget model;
    model.setModelFlights(7);
    LogData entry = flight(2);
    model.addLogData(entry);
    entry.notes = u"changed afterwards"_s;
    QVERIFY(same(model.getLogData().constFirst(), flight(2)));
    QCOMPARE(model.getModelFlights(), 7U);
    QVERIFY(model.getLastUpdated().isNull());
    QVERIFY(model.getBatteries().isEmpty());
}

void FlightLogTest::aFlightOfTheLogItselfCanBeAddedAgain()
{
    ModelWidget model;
    addFlights(model, 1);
    for (int i = 0; i < 100; ++i)
        model.addLogData(model.getLogData().first());
    QCOMPARE(model.getLogData().size(), 101);
    QVERIFY(same(model.getLogData().constLast(), flight(0)));
}

void FlightLogTest::getLogCopiesTheEntryAtAnIndex_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("delivered"); // -1: none, and the output is unchanged

    QTest::newRow("first of three") << 3 << 0 << 0;
    QTest::newRow("last of three") << 3 << 2 << 2;
    QTest::newRow("one past the end") << 3 << 3 << -1;
    QTest::newRow("far past the end") << 3 << INT_MAX << -1;
    QTest::newRow("empty log") << 0 << 0 << -1;
    QTest::newRow("before the beginning") << 3 << -1 << -1;
    QTest::newRow("far before the beginning") << 3 << INT_MIN << -1;
}

void FlightLogTest::getLogCopiesTheEntryAtAnIndex()
{
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(int, delivered);
    ModelWidget model;
    addFlights(model, count);

    LogData out;
    QCOMPARE(model.getLog(out, index), delivered >= 0);
    QVERIFY(same(out, delivered >= 0 ? flight(delivered) : LogData()));
}

void FlightLogTest::getLogDoesNotMoveTheWalk()
{
    ModelWidget model;
    addFlights(model, 5);
    LogData out;
    QCOMPARE(model.getLatestLog(out), 5);
    QVERIFY(model.getLog(out, 0));
    QVERIFY(!model.getLog(out, 5));
    QVERIFY(model.getPrevLog(out));
    QCOMPARE(numberOf(out), 3);
}

void FlightLogTest::theWalkStopsAtBothEnds()
{
    ModelWidget model;
    addFlights(model, 3);
    LogData out;
    QCOMPARE(model.getLatestLog(out), 3);
    QVERIFY(same(out, flight(2)));
    QVERIFY(model.getPrevLog(out));
    QVERIFY(same(out, flight(1)));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!model.getPrevLog(out));
        QVERIFY(same(out, flight(0)));
    }
    QVERIFY(model.getNextLog(out));
    QVERIFY(same(out, flight(1)));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!model.getNextLog(out));
        QVERIFY(same(out, flight(2)));
    }
    QVERIFY(model.getPrevLog(out));
    QCOMPARE(numberOf(out), 1);
}

void FlightLogTest::theStepOntoTheLastEntryOfAWalkAnswersFalseOnPurpose_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {1, 2, 3, 4, 50})
        QTest::addRow("%d flights", count) << count;
}

void FlightLogTest::theStepOntoTheLastEntryOfAWalkAnswersFalseOnPurpose()
{
    QFETCH(int, count);
    ModelWidget model;
    addFlights(model, count);
    LogData out;
    QCOMPARE(model.getLatestLog(out), count);
    QCOMPARE(numberOf(out), count - 1);
    for (int step = 0; step < count + 1; ++step) {
        const int expected = qMax(count - 2 - step, 0);
        QCOMPARE(model.getPrevLog(out), expected > 0);
        QCOMPARE(numberOf(out), expected);
    }
    for (int step = 0; step < count + 1; ++step) {
        const int expected = qMin(step + 1, count - 1);
        QCOMPARE(model.getNextLog(out), expected < count - 1);
        QCOMPARE(numberOf(out), expected);
    }
    QCOMPARE(model.getLatestLog(out), count);
    QCOMPARE(numberOf(out), count - 1);
}

void FlightLogTest::theWalkOverAnEmptyLogDeliversNothing()
{
    ModelWidget model;
    LogData out = flight(4);
    QCOMPARE(model.getLatestLog(out), 0);
    QVERIFY(!model.getNextLog(out));
    QVERIFY(!model.getPrevLog(out));
    QVERIFY(same(out, flight(4)));
    addFlights(model, 2);
    QCOMPARE(model.getLatestLog(out), 2);
    QCOMPARE(numberOf(out), 1);
}

void FlightLogTest::aStepBeforeTheLatestLogWasAskedForIsSafe()
{
    LogData out;
    ModelWidget forward;
    addFlights(forward, 3);
    QVERIFY(!forward.getNextLog(out));
    QCOMPARE(numberOf(out), 2);

    ModelWidget backward;
    addFlights(backward, 3);
    backward.getPrevLog(out);
    QVERIFY(numberOf(out) >= 0);
}

void FlightLogTest::aFlightAddedDuringAWalkAdvancesIt()
{
    ModelWidget model;
    addFlights(model, 3);
    LogData out;
    model.getLatestLog(out);
    model.getPrevLog(out); // at 1
    LogData added = flight(3);
    model.addLogData(added); // at 2
    QVERIFY(!model.getNextLog(out));
    QCOMPARE(numberOf(out), 3);
}

void FlightLogTest::aLogCutShortDuringAWalkIsSafe()
{
    ModelWidget model;
    addFlights(model, 5);
    LogData out;
    model.getLatestLog(out);
    model.getLogData().resize(2);
    model.getPrevLog(out);
    QCOMPARE(numberOf(out), 1);
    model.getLogData().clear();
    QVERIFY(!model.getPrevLog(out));
    QVERIFY(!model.getNextLog(out));
    QCOMPARE(numberOf(out), 1);
}

void FlightLogTest::theListOfFlightsIsTheRecordsOwn()
{
    ModelWidget model;
    QList<LogData> &log = model.getLogData();
    addFlights(model, 2);
    QCOMPARE(log.size(), 2);
    QCOMPARE(&log, &model.getLogData());
}

QTEST_MAIN(FlightLogTest)
#include "tst_flightlog.moc"
