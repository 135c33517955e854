// SPDX-License-Identifier: GPL-3.0-or-later
// Which flight of the logbook a radio's log is taken for.
#include "tests/host/support/flownsessions.h"

#include <QTest>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;
using Flown::Book;
using Flown::clock;
using Flown::log;
using Flown::session;

class MatchingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowReachesFromFiveMinutesBeforeToThreeHoursAfter_data();
    void theWindowReachesFromFiveMinutesBeforeToThreeHoursAfter();
    void theFlightNearestToTheSpanIsFilled();
    void eachFlightIsFilledOnceAndTheNearestLogFirst();
    void onlyFlightsOfTheModelCount();
    void aSpaceInAModelsNameIsAnUnderscoreInItsLogs();
    void aChosenModelIsRemembered();
    void whatWasEnteredStaysUnlessTheUserWantsItReplaced();
    void anEnteredFlightIsNotPassedOverForAGuessedOne();
    void aFlightWithoutExactlyOneBatteryIsLeftAlone_data();
    void aFlightWithoutExactlyOneBatteryIsLeftAlone();
    void aClockThatWasNeverSetMatchesNothing();
    void aBenchTestIsShownAndNeverApplied_data();
    void aBenchTestIsShownAndNeverApplied();
    void aBenchTestLeavesTheFlightToTheLogOfTheFlight();
    void whatMeasuredNothingIsNeitherFilledNorNew();
    void theSessionsOfOneDischargeAreOneMatch();
    void aFlightThatAnotherLogHasFilledIsTaken();
    void twoLogsOfOneSessionCountOnce();
    void theOtherBatteriesOfTheModelAreProposed();
    void aBatteryThatWasChosenIsTaken();
    void aClockThatIsAnHourOffIsNoticed();
    void aClockThatIsRightIsNot();
};

void MatchingTest::theWindowReachesFromFiveMinutesBeforeToThreeHoursAfter_data()
{
    QTest::addColumn<QDateTime>("clicked");
    QTest::addColumn<QString>("action");

    // The session lasts from 12:00:00 to 12:06:40.
    QTest::newRow("before") << at(11, 54, 59) << u"new"_s;
    QTest::newRow("five minutes before") << at(11, 55) << u"fill"_s;
    QTest::newRow("within") << at(12, 3) << u"fill"_s;
    QTest::newRow("three hours after") << at(15, 6, 40) << u"fill"_s;
    QTest::newRow("later") << at(15, 6, 41) << u"new"_s;
    QTest::newRow("the day before") << at(12, 3).addDays(-1) << u"new"_s;
    QTest::newRow("unknown") << QDateTime() << u"new"_s;
}

void MatchingTest::theWindowReachesFromFiveMinutesBeforeToThreeHoursAfter()
{
    QFETCH(QDateTime, clicked);
    Book book;
    book.catalogue.models[0].log = {flight(clicked)};
    book.catalogue.batteries[0].discharges = {Flown::guess(clicked)};
    Session flown = session(clock(12, 0));
    flown.start += 700; // what a radio logs in hundredths is compared in seconds
    flown.end += 300;
    QTEST(book.action({log(u"Skylark"_s, {flown})}), "action");
}

void MatchingTest::theFlightNearestToTheSpanIsFilled()
{
    Book book;
    book.look({log(u"Skylark"_s, {session(clock(14, 46))})}); // 14:47 is within, 16:00 after it
    QCOMPARE(book.plan.discharges.first().time, at(14, 47));
    QCOMPARE(book.plan.discharges.first().battery, u"A"_s);
    book.look({log(u"Skylark"_s, {session(clock(15, 20))})}); // 14:47 is before the window
    QCOMPARE(book.plan.discharges.first().time, at(16, 0));
    book.look({log(u"Skylark"_s, {session(clock(14, 0))})}); // both are after it
    QCOMPARE(book.plan.discharges.first().time, at(14, 47));
}

void MatchingTest::eachFlightIsFilledOnceAndTheNearestLogFirst()
{
    Book book;
    const ImportedLog early = log(u"Skylark"_s, {session(clock(14, 0))});
    const ImportedLog near = log(u"Skylark"_s, {session(clock(14, 30))});
    const ImportedLog late = log(u"Skylark"_s, {session(clock(14, 38))});
    QCOMPARE(book.action({early, near, late}), u"new fill fill"_s);
    QCOMPARE(book.plan.discharges.at(2).time, at(14, 47)); // the nearest of all
    QCOMPARE(book.plan.discharges.at(1).time, at(16, 0));
    QCOMPARE(book.action({late, early, near}), u"fill new fill"_s);
}

void MatchingTest::onlyFlightsOfTheModelCount()
{
    Book book;
    QCOMPARE(book.action({log(u"Firebrand"_s, {session(clock(14, 38))})}), u"new"_s);
    QCOMPARE(book.action({log(u"Nobody's"_s, {session(clock(14, 38))})}), u"new"_s);
    QVERIFY(book.plan.discharges.first().reasons.contains(ImportReason::NoSuchModel));
}

void MatchingTest::aSpaceInAModelsNameIsAnUnderscoreInItsLogs()
{
    Book book;
    book.catalogue.models[0].name = u"Sky Lark"_s;
    QCOMPARE(book.action({log(u"Sky_Lark"_s, {session(clock(14, 38))})}), u"fill"_s);
    book.catalogue.models[1].name = u"Sky_Lark"_s; // which is somebody else then
    QCOMPARE(book.action({log(u"Sky_Lark"_s, {session(clock(14, 38))})}), u"new"_s);
}

void MatchingTest::aChosenModelIsRemembered()
{
    Book book;
    const ImportedLog first = log(u"SKYLK"_s, {session(clock(14, 38))});
    const ImportedLog second = log(u"SKYLK"_s, {session(clock(15, 50))});
    QCOMPARE(book.action({first}), u"new"_s);
    MatchOptions options;
    options.model = u"Skylark"_s;
    book.import({first}, options);
    QCOMPARE(book.actions(), u"fill"_s);
    QCOMPARE(book.action({second}), u"fill"_s);
    book.catalogue.models[0].name = u"Lark"_s; // the one that was chosen is gone
    QCOMPARE(book.action({second}), u"new"_s);
    book.catalogue.models[0].name = u"Skylark"_s;
    book.import({log(u"Firebrand"_s, {session(clock(15, 50))})}, options); // a name that a model has
    QVERIFY(!book.measured.models.contains(u"Firebrand"_s));
}

void MatchingTest::whatWasEnteredStaysUnlessTheUserWantsItReplaced()
{
    Book book;
    book.catalogue.batteries[0].discharges[0].discharged = 1400;
    const ImportedLog flown = log(u"Skylark"_s, {session(clock(14, 38))});
    QCOMPARE(book.action({flown}), u"none"_s);
    QVERIFY(book.plan.discharges.first().reasons.contains(ImportReason::Entered));
    MatchOptions options;
    options.replacesEntered = true;
    QCOMPARE(book.action({flown}, options), u"fill"_s);
    book.catalogue.batteries[0].discharges[0] = {at(14, 47), 0, 0}; // nothing was entered
    QCOMPARE(book.action({flown}), u"fill"_s);
}

void MatchingTest::anEnteredFlightIsNotPassedOverForAGuessedOne()
{
    Book book;
    book.catalogue.batteries[0].discharges[0].discharged = 1400;
    QCOMPARE(book.action({log(u"Skylark"_s, {session(clock(14, 38))})}), u"none"_s); // not that of 16:00
    // Nor is another log new where such a flight is near.
    const QString both = book.action(
        {log(u"Skylark"_s, {session(clock(14, 38))}), log(u"Skylark"_s, {session(clock(14, 20))})});
    QCOMPARE(both, u"none fill"_s);
    book.catalogue.models[0].log.removeLast();
    book.catalogue.batteries[1].discharges.clear();
    QCOMPARE(book.action(
                 {log(u"Skylark"_s, {session(clock(14, 38))}), log(u"Skylark"_s, {session(clock(14, 20))})}),
             u"none none"_s);
}

void MatchingTest::aFlightWithoutExactlyOneBatteryIsLeftAlone_data()
{
    QTest::addColumn<int>("batteries");
    QTest::addColumn<bool>("hasTwin"); // a flight of another model at the same time
    QTest::addColumn<QString>("action");
    QTest::newRow("none") << 0 << false << u"none"_s;
    QTest::newRow("one") << 1 << false << u"fill"_s;
    QTest::newRow("two") << 2 << false << u"none"_s;
    QTest::newRow("one for two flights") << 1 << true << u"none"_s;
}

void MatchingTest::aFlightWithoutExactlyOneBatteryIsLeftAlone()
{
    QFETCH(int, batteries);
    QFETCH(bool, hasTwin);
    Book book;
    for (int i = 0; i < 3; ++i)
        book.catalogue.batteries[i].discharges = {Flown::guess(at(9, 0))};
    for (int i = 0; i < batteries; ++i)
        book.catalogue.batteries[i].discharges.append(Flown::guess(at(14, 47)));
    book.catalogue.models[0].log = {flight(at(14, 47))};
    if (hasTwin)
        book.catalogue.models[1].log = {flight(at(14, 47))};
    MatchOptions options;
    options.replacesEntered = true; // does not help
    QTEST(book.action({log(u"Skylark"_s, {session(clock(14, 38))})}, options), "action");
}

void MatchingTest::aClockThatWasNeverSetMatchesNothing()
{
    Book book;
    const QDateTime then(QDate(2004, 12, 31), QTime(23, 0));
    book.catalogue.models[0].log = {flight(then)};
    book.catalogue.batteries[0].discharges = {Flown::guess(then)};
    QCOMPARE(book.action({log(u"Skylark"_s, {session(momentOf(then) * 1000)})}), u"none"_s);
    const QDateTime set(QDate(2005, 1, 1), QTime(0, 0));
    QCOMPARE(book.action({log(u"Skylark"_s, {session(momentOf(set) * 1000)})}), u"new"_s);
}

void MatchingTest::aBenchTestIsShownAndNeverApplied_data()
{
    QTest::addColumn<int>("loadMilliseconds");
    QTest::addColumn<double>("used"); // of 2200 mAh
    QTest::addColumn<int>("hour");
    QTest::addColumn<QString>("action");
    QTest::newRow("short") << 19'900 << 500.0 << 14 << u"bench"_s;
    QTest::newRow("short, without a flight") << 19'900 << 500.0 << 6 << u"bench"_s;
    QTest::newRow("never under load") << 0 << 500.0 << 14 << u"bench"_s;
    QTest::newRow("long enough") << 20'000 << 500.0 << 14 << u"fill"_s;
    QTest::newRow("little") << 300'000 << 43.9 << 14 << u"bench"_s;
    QTest::newRow("little, without a flight") << 300'000 << 43.9 << 6 << u"bench"_s;
    QTest::newRow("2 %") << 300'000 << 44.0 << 14 << u"fill"_s;
    QTest::newRow("2 %, without a flight") << 300'000 << 44.0 << 6 << u"new"_s;
    QTest::newRow("nothing") << 300'000 << 0.0 << 14 << u"bench"_s;
}

void MatchingTest::aBenchTestIsShownAndNeverApplied()
{
    QFETCH(int, loadMilliseconds);
    QFETCH(double, used);
    QFETCH(int, hour);
    QFETCH(QString, action);
    Book book;
    Session flown = session(clock(hour, 38), 400, used);
    flown.loadTime = loadMilliseconds;
    MatchOptions options;
    options.battery = u"A"_s;
    QCOMPARE(book.action({log(u"Skylark"_s, {flown})}, options), action);
    book.import({log(u"Skylark"_s, {flown})}, options, true);
    QCOMPARE(book.problem, QString());
    QCOMPARE(book.catalogue == Flown::logbook(), action == u"bench"_s);
    QCOMPARE(book.measured.isEmpty(), action == u"bench"_s);
}

void MatchingTest::aBenchTestLeavesTheFlightToTheLogOfTheFlight()
{
    Book book;
    const ImportedLog tested = log(u"Skylark"_s, {session(clock(14, 41), 30, 20)});
    const ImportedLog flown = log(u"Skylark"_s, {session(clock(14, 20))});
    QCOMPARE(book.action({tested, flown}), u"bench fill"_s);
    QCOMPARE(book.plan.discharges.first().time, at(14, 47));
}

void MatchingTest::whatMeasuredNothingIsNeitherFilledNorNew()
{
    Book book;
    Session silent = session(clock(14, 38));
    silent.counterFirst = silent.counterLast = silent.integral = silent.maxCurrent = {};
    silent.firstLoad = silent.lastLoad = {};
    silent.loadTime = {};
    QCOMPARE(book.action({log(u"Skylark"_s, {silent})}), u"none"_s);
}

void MatchingTest::theSessionsOfOneDischargeAreOneMatch()
{
    Book book;
    const ImportedLog first = log(u"Skylark"_s, {session(clock(14, 20), 300, 700)});
    const ImportedLog second = log(u"Skylark"_s, {session(clock(14, 38), 300, 800, 702)});
    for (const QList<ImportedLog> &logs : {QList{first, second}, QList{second, first}}) {
        book.look(logs);
        QCOMPARE(book.plan.discharges.size(), 1);
        QCOMPARE(book.plan.discharges.first().discharged, 1502U);
        QCOMPARE(book.plan.discharges.first().moment, momentOf(at(14, 20, 5)));
        QCOMPARE(book.plan.discharges.first().time, at(14, 47));
    }
    QCOMPARE(book.actions(), u"none fill"_s); // the second comes first here
    QCOMPARE(book.plan.sessions.first().first().session.continues, clock(14, 20));
    // Its window ends three hours after the last of them.
    book.catalogue.models[0].log = {flight(at(17, 40))};
    book.catalogue.batteries[0].discharges = {Flown::guess(at(17, 40))};
    QCOMPARE(book.action({first, second}), u"fill none"_s);
}

void MatchingTest::aFlightThatAnotherLogHasFilledIsTaken()
{
    Book book;
    book.catalogue.models[0].log.removeLast();
    book.import({log(u"Skylark"_s, {session(clock(14, 38))})});
    MatchOptions options;
    options.replacesEntered = true;
    QCOMPARE(book.action({log(u"Skylark"_s, {session(clock(14, 20))})}, options), u"new"_s);
}

void MatchingTest::twoLogsOfOneSessionCountOnce()
{
    Book book;
    const ImportedLog cut = log(u"Skylark"_s, {session(clock(14, 38), 200, 700)});
    const ImportedLog whole = log(u"Skylark"_s, {session(clock(14, 38))});
    QCOMPARE(book.action({cut, whole}), u"none fill"_s);
    QCOMPARE(book.action({whole, cut}), u"fill none"_s);
    book.import({whole});
    QCOMPARE(book.action({cut}), u"none"_s);
}

void MatchingTest::theOtherBatteriesOfTheModelAreProposed()
{
    Book book;
    QList<Battery> &batteries = book.catalogue.batteries;
    const auto proposed = [&](double used) {
        book.look({log(u"Skylark"_s, {session(clock(6, 0), 400, used)})});
        return book.plan.discharges.first().battery;
    };
    batteries[1].lastUse = at(8, 30);
    QCOMPARE(proposed(1500), u"B"_s); // charged last
    batteries[1].charged = false;
    QCOMPARE(proposed(1500), u"A"_s);
    batteries[2].capacity = 5000;
    batteries[2].charged = false;
    QCOMPARE(proposed(3000), u"C"_s); // holds as much
    book.look({log(u"Skylark"_s, {session(clock(6, 0)), session(clock(7, 0), 400, 900)})});
    QVERIFY(book.plan.discharges.at(0).battery != book.plan.discharges.at(1).battery);
    book.look({log(u"Firebrand"_s, {session(clock(6, 0))})});
    QCOMPARE(book.plan.discharges.first().battery, QString());
    QVERIFY(book.plan.discharges.first().reasons.contains(ImportReason::NoBattery));
}

void MatchingTest::aBatteryThatWasChosenIsTaken()
{
    Book book;
    MatchOptions options;
    options.battery = u"C"_s;
    book.look({log(u"Firebrand"_s, {session(clock(6, 0))})}, options);
    QCOMPARE(book.plan.discharges.first().battery, u"C"_s);
    book.look({log(u"Skylark"_s, {session(clock(14, 38))})}, options); // fills what it would have filled
    QCOMPARE(book.plan.discharges.first().battery, u"A"_s);
}

void MatchingTest::aClockThatIsAnHourOffIsNoticed()
{
    Book book;
    for (const int hours : {-1, 1, -9}) {
        const QList<ImportedLog> logs{log(u"Skylark"_s, {session(clock(14, 38) + hours * 3'600'000),
                                                         session(clock(15, 52) + hours * 3'600'000)})};
        QCOMPARE(clockOffset(logs, book.catalogue, book.measured), qint64(-hours * 3'600'000));
        MatchOptions options;
        options.clockOffset = -hours * 3'600'000;
        book.look(logs, options);
        QCOMPARE(book.plan.discharges.at(0).time, at(14, 47));
        QCOMPARE(book.plan.discharges.at(1).time, at(16, 0));
        QCOMPARE(book.plan.discharges.at(0).moment, momentOf(at(14, 38, 5)));
    }
}

void MatchingTest::aClockThatIsRightIsNot()
{
    Book book;
    const auto offset = [&](const QList<Session> &sessions) {
        return clockOffset({log(u"Skylark"_s, sessions)}, book.catalogue, book.measured);
    };
    QCOMPARE(offset({session(clock(14, 38)), session(clock(15, 52))}), std::nullopt);
    QCOMPARE(offset({session(clock(13, 38))}), std::nullopt); // one alone says nothing
    QCOMPARE(offset({session(clock(1, 38)), session(clock(1, 58))}), std::nullopt);
}

QTEST_GUILESS_MAIN(MatchingTest)
#include "tst_matching.moc"
