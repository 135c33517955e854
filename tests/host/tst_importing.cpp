// SPDX-License-Identifier: GPL-3.0-or-later
// What an import does to the logbook and to what is known of it.
#include "host/data/cataloguefile.h"
#include "tests/host/support/flownsessions.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;
using Flown::Book;
using Flown::clock;
using Flown::log;
using Flown::session;

namespace {

QString sourceAt(const Book &book, qsizetype battery, qsizetype discharge)
{
    const Battery &named = book.catalogue.batteries.at(battery);
    return named.discharges.at(discharge).isMeasured ? u"measured"_s : u"other"_s;
}

} // namespace

class ImportingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFlightThatWasClickedGetsWhatWasMeasured();
    void whatALogDoesNotTellStaysUnlessItWasGuessed();
    void valuesBeyondTheLimitsAreClamped();
    void aTimeThatIsTakenIsOneSecondLater();
    void whatIsNewIsAddedOnlyWhenItIsChosen();
    void whatIsNewNeedsNoModel();
    void aSecondImportDoesNothing();
    void aDischargeThatGoesOnInALaterImportGetsTheSumAndTheSpan_data();
    void aDischargeThatGoesOnInALaterImportGetsTheSumAndTheSpan();
    void partsOfTwoFlightsAreLeftAlone();
    void aRecordThatWasLostIsMadeAgain();
    void whatIsKnownOfADischargeIsKept();
    void anyDaySurvivesAnyOrderAndImportingTwice_data();
    void anyDaySurvivesAnyOrderAndImportingTwice();
};

void ImportingTest::aFlightThatWasClickedGetsWhatWasMeasured()
{
    Book book;
    book.import({log(u"Skylark"_s, {session(clock(14, 38), 380)})});
    QCOMPARE(book.problem, QString());
    Catalogue meant = Flown::logbook();
    meant.batteries[0].discharges = {{at(14, 38, 5), 1500, 3125}};
    meant.models[0].log[0].time = at(14, 38, 5);
    meant.models[0].log[0].duration = QTime(0, 6, 10);
    QVERIFY(book.catalogue == meant); // cycles, location, notes, last use and the rest as they were
    QCOMPARE(sourceAt(book, 0, 0), u"measured"_s);
    QCOMPARE(sourceAt(book, 1, 0), u"other"_s);
}

void ImportingTest::whatALogDoesNotTellStaysUnlessItWasGuessed()
{
    Session counted = session(clock(14, 38));
    counted.integral = counted.maxCurrent = {};
    counted.doubtful = {};
    counted.firstLoad = counted.lastLoad = {};
    counted.loadTime = {};
    Book book;
    book.import({log(u"Skylark"_s, {counted})});
    Catalogue meant = Flown::logbook();
    meant.batteries[0].discharges = {{at(14, 47), 1500, 0}};
    QVERIFY(book.catalogue == meant);

    Book entered;
    entered.catalogue.batteries[0].discharges[0] = {at(14, 47), 1400, 2900};
    MatchOptions options;
    options.replacesEntered = true;
    entered.import({log(u"Skylark"_s, {counted})}, options);
    meant.batteries[0].discharges = {{at(14, 47), 1500, 2900}};
    QVERIFY(entered.catalogue == meant);
}

void ImportingTest::valuesBeyondTheLimitsAreClamped()
{
    Book book;
    Session much = session(clock(14, 38), 400, 20'000.4);
    much.maxCurrent = 300;
    book.look({log(u"Skylark"_s, {much})});
    QVERIFY(book.plan.discharges.first().reasons.isEmpty());
    much.counterLast = 20'001;
    much.maxCurrent = 300.01;
    book.import({log(u"Skylark"_s, {much})});
    QCOMPARE(book.catalogue.batteries.at(0).discharges.first(), (Discharge{at(14, 38, 5), 20'000, 30'000}));
    QVERIFY(book.plan.discharges.first().reasons.contains(ImportReason::DischargeClamped));
    QVERIFY(book.plan.discharges.first().reasons.contains(ImportReason::CurrentClamped));
}

void ImportingTest::aTimeThatIsTakenIsOneSecondLater()
{
    Book book;
    book.catalogue.batteries[0].discharges.append({at(14, 38, 5), 900, 1000});
    book.catalogue.models[1].log = {flight(at(14, 38, 6))};
    book.import({log(u"Skylark"_s, {session(clock(14, 38), 200, 700)})});
    QCOMPARE(book.catalogue.batteries.at(0).discharges.first().time, at(14, 38, 7));
    QCOMPARE(book.catalogue.models.at(0).log.first().time, at(14, 38, 7));
    // It stays there when it goes on.
    book.import({log(u"Skylark"_s, {session(clock(14, 42), 200, 700, 700)})});
    QCOMPARE(book.catalogue.batteries.at(0).discharges.first(), (Discharge{at(14, 38, 7), 1400, 3125}));
    QCOMPARE(book.catalogue.models.at(0).log.first().time, at(14, 38, 7));
}

void ImportingTest::whatIsNewIsAddedOnlyWhenItIsChosen()
{
    Book book;
    MatchOptions options;
    options.battery = u"C"_s;
    const QList<ImportedLog> logs{log(u"Skylark"_s, {session(clock(6, 0))})};
    book.import(logs, options);
    QVERIFY(book.catalogue == Flown::logbook());
    QVERIFY(book.measured.isEmpty());
    book.import(logs, options, true);
    Catalogue meant = Flown::logbook();
    meant.models[0].log.append({at(6, 0, 5), QTime(0, 6, 30), {}, 0, {}});
    ++meant.models[0].flights;
    meant.batteries[2].discharges = {{at(6, 0, 5), 1500, 3125}};
    ++meant.batteries[2].cycles;
    QVERIFY(book.catalogue == meant); // charged, last use and last update as they were
    QCOMPARE(sourceAt(book, 2, 0), u"measured"_s);
    QCOMPARE(book.action(logs, options), u"known"_s);
}

void ImportingTest::whatIsNewNeedsNoModel()
{
    Book book;
    MatchOptions options;
    options.battery = u"A"_s;
    book.import({log(u"Glider"_s, {session(clock(14, 47) - 5000)})}, options, true);
    Catalogue meant = Flown::logbook();
    meant.batteries[0].discharges.append({at(14, 47, 1), 1500, 3125}); // its time is taken
    ++meant.batteries[0].cycles;
    QVERIFY(book.catalogue == meant);
}

void ImportingTest::aSecondImportDoesNothing()
{
    Book book;
    const QList<ImportedLog> logs{
        log(u"Skylark"_s, {session(clock(14, 38)), session(clock(20, 0)), session(clock(21, 0), 10)})};
    book.import(logs);
    QCOMPARE(book.actions(), u"fill new bench"_s);
    const Catalogue after = book.catalogue;
    const QByteArray known = MeasuredFile::save(book.measured);
    MatchOptions options;
    options.battery = u"C"_s;
    options.replacesEntered = true;
    book.import(logs, options, true);
    QCOMPARE(book.actions(), u"known known known"_s);
    QVERIFY(book.catalogue == after);
    QCOMPARE(MeasuredFile::save(book.measured), known);
}

void ImportingTest::aDischargeThatGoesOnInALaterImportGetsTheSumAndTheSpan_data()
{
    QTest::addColumn<QList<int>>("order");
    QTest::newRow("in order") << QList<int>{0, 1, 2};
    QTest::newRow("backwards") << QList<int>{2, 1, 0};
    QTest::newRow("the middle first") << QList<int>{1, 0, 2};
    QTest::newRow("the middle first, then on") << QList<int>{1, 2, 0};
}

void ImportingTest::aDischargeThatGoesOnInALaterImportGetsTheSumAndTheSpan()
{
    QFETCH(QList<int>, order);
    const QList<ImportedLog> logs{log(u"Skylark"_s, {session(clock(14, 20), 300, 500)}),
                                  log(u"Skylark"_s, {session(clock(14, 30), 300, 400, 501)}),
                                  log(u"Skylark"_s, {session(clock(14, 40), 300, 300, 901)})};
    Book atOnce;
    atOnce.import(logs);
    QCOMPARE(atOnce.catalogue.batteries.at(0).discharges.first(), (Discharge{at(14, 20, 5), 1201, 3125}));
    Book book;
    for (const int index : order) {
        book.import({logs.at(index)});
        QVERIFY(!book.plan.sessions.first().first().session.continues ||
                book.actions() == u"none"_s); // a part tells nothing of its own
    }
    QVERIFY(book.catalogue == atOnce.catalogue);
    QCOMPARE(book.measured.discharges.size(), 1);
    QCOMPARE(book.measured.discharges.first().moment, momentOf(at(14, 20, 5)));
    QCOMPARE(book.measured.discharges.first().sessions, atOnce.measured.discharges.first().sessions);
}

void ImportingTest::partsOfTwoFlightsAreLeftAlone()
{
    Book book;
    book.import({log(u"Skylark"_s, {session(clock(15, 25), 300, 500)})});
    book.import({log(u"Skylark"_s, {session(clock(15, 50), 300, 300, 901)})});
    QCOMPARE(book.measured.discharges.size(), 1); // 16:00 is taken
    book.catalogue.models[0].log.append(flight(at(15, 58)));
    book.catalogue.batteries[2].discharges = {Flown::guess(at(15, 58))};
    book.import({log(u"Skylark"_s, {session(clock(15, 50), 300, 300, 901)})});
    QCOMPARE(book.measured.discharges.size(), 2);
    const Catalogue before = book.catalogue;
    book.import({log(u"Skylark"_s, {session(clock(15, 38), 300, 400, 501)})});
    QVERIFY(book.plan.discharges.first().reasons.contains(ImportReason::TwoFlights));
    QVERIFY(book.catalogue == before);
}

void ImportingTest::aRecordThatWasLostIsMadeAgain()
{
    const QList<ImportedLog> logs{log(u"Skylark"_s, {session(clock(14, 38))}),
                                  log(u"Skylark"_s, {session(clock(6, 0))})};
    Book book;
    MatchOptions options;
    options.battery = u"C"_s;
    book.import(logs, options, true);
    const Catalogue after = book.catalogue;
    const QByteArray known = MeasuredFile::save(book.measured);
    book.measured = {};
    for (Battery &battery : book.catalogue.batteries) {
        for (Discharge &discharge : battery.discharges)
            discharge.isMeasured = false;
    }
    book.import(logs, options, true);
    QCOMPARE(book.actions(), u"fill fill"_s);
    QVERIFY(book.catalogue == after);
    QCOMPARE(MeasuredFile::save(book.measured), known);
}

void ImportingTest::whatIsKnownOfADischargeIsKept()
{
    Book book;
    Session first = session(clock(14, 20), 300, 500);
    first.rejectedCurrents = 2;
    first.restBefore = 12.5;
    first.minVoltage = 10.25;
    first.resistance = 31;
    Session second = session(clock(14, 38), 300, 400, 500);
    second.rejectedCurrents = 3;
    second.restAfter = 11.5;
    second.minVoltage = 10.5;
    const ImportedLog begun = log(u"Skylark"_s, {first});
    book.import({begun, log(u"Skylark"_s, {second})});
    const MeasuredDischarge &entry = book.measured.discharges.first();
    QCOMPARE(entry.battery, u"A"_s);
    QCOMPARE(entry.log, begun.path.section(u'/', -1));
    QCOMPARE(entry.sha256, begun.sha256);
    QCOMPARE(entry.counter, 900);
    QCOMPARE(entry.integral, 900);
    QCOMPARE(entry.rejectedCurrents, 5);
    QCOMPARE(entry.restBefore, 12.5);
    QCOMPARE(entry.restAfter, 11.5);
    QCOMPARE(entry.minVoltage, 10.25);
    QCOMPARE(entry.resistance, 31);
    QCOMPARE(book.measured.logs.size(), 2);
    QCOMPARE(book.measured.logs.first().rows, 300);
}

void ImportingTest::anyDaySurvivesAnyOrderAndImportingTwice_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 60; ++seed)
        QTest::addRow("%u", seed) << seed;
}

void ImportingTest::anyDaySurvivesAnyOrderAndImportingTwice()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    const auto upTo = [&](int most) { return static_cast<int>(random.bounded(most + 1)); };
    Book start;
    for (Battery &battery : start.catalogue.batteries)
        battery.discharges.clear();
    for (Model &model : start.catalogue.models) {
        model.log.clear();
        for (int i = upTo(6); i > 0; --i) {
            const QDateTime time = at(8 + upTo(5), upTo(59), upTo(3));
            model.log.append(flight(time));
            for (int batteries = upTo(9) / 4; batteries > 0; --batteries)
                start.catalogue.batteries[upTo(2)].discharges.append(
                    upTo(3) > 0 ? Flown::guess(time) : Discharge{time, 1234, 2000});
        }
    }
    QList<ImportedLog> logs;
    double counter = 0;
    for (int i = 0; i < 8; ++i) {
        counter = upTo(2) > 0 ? 0 : counter;
        const double used = upTo(1500);
        logs.append(log(upTo(1) ? u"Skylark"_s : u"Firebrand"_s,
                        {session(clock(8 + upTo(5), upTo(59), upTo(3)), 15 + upTo(600), used, counter)}));
        counter += used;
    }
    MatchOptions options;
    options.replacesEntered = upTo(1) == 1;
    Book book = start;
    book.import(logs, options, true);
    QCOMPARE(book.problem, QString());
    QSet<std::pair<qsizetype, qsizetype>> flights;
    QSet<QString> sessions;
    for (const ImportedDischarge &discharge : std::as_const(book.plan.discharges)) {
        if (discharge.action == ImportAction::Fill) {
            const std::pair place(discharge.flight->model, discharge.flight->flight);
            QVERIFY(!flights.contains(place));
            flights.insert(place);
        }
        for (const Session &part : discharge.parts) {
            QVERIFY(!sessions.contains(sessionId(part)));
            sessions.insert(sessionId(part));
        }
    }
    QVERIFY(CatalogueFile::load(CatalogueFile::save(book.catalogue).document).catalogue == book.catalogue);
    const QByteArray known = MeasuredFile::save(book.measured);
    QCOMPARE(MeasuredFile::save(MeasuredFile::load(known).measured), known);

    Book shuffled = start;
    std::shuffle(logs.begin(), logs.end(), random);
    shuffled.import(logs, options, true);
    QVERIFY(shuffled.catalogue == book.catalogue);
    const Measured before = book.measured;
    book.import(logs, options, true); // nothing that was done is done again
    QVERIFY(book.catalogue == shuffled.catalogue);
    QCOMPARE(MeasuredFile::save(book.measured), known);
}

QTEST_MAIN(ImportingTest)
#include "tst_importing.moc"
