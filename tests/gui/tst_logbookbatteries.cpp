// SPDX-License-Identifier: GPL-3.0-or-later
// The three fields of the log book that come from the batteries: which of them fills, empties or keeps them.
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

namespace {
constexpr int Oldest = 0;
constexpr int Newest = 1;

/** Opens the log book of a model with two flights, Oldest and Newest. */
void openLogBook(LogbookWindow &window, const QList<Battery> &batteries)
{
    window.load(document({batteries, {{u"Heli"_s, {}, flights(2)}}}));
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_logbook);
}

void older(LogbookWindow &window)
{
    LogbookWindow::click(window.ui().pb_logview_prev);
}

void newer(LogbookWindow &window)
{
    LogbookWindow::click(window.ui().pb_logview_next);
}

/** Name, capacity and current on show, or an empty text when all three fields are empty. */
QString batteryOnShow(LogbookWindow &window)
{
    const QString fields = window.ui().lbl_logview_battname->text() + u' ' +
                           window.ui().lbl_logview_capacity->text() + u' ' +
                           window.ui().lbl_logview_current->text();
    return fields.trimmed();
}

/** A battery with one discharge for each flight in @p flown, whose numbers tell the flights apart. */
Battery battery(const QString &name, const QList<int> &flown)
{
    Battery result{name};
    for (const int flight : flown)
        result.history.append({moment(flight), 1000U + static_cast<unsigned int>(flight), 1205});
    return result;
}
} // namespace

class LogbookBatteriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openingShowsTheBatteryOnlyWhenItIsTheLastOneOnPurpose_data();
    void openingShowsTheBatteryOnlyWhenItIsTheLastOneOnPurpose();
    void steppingAwayAndBackShowsTheLastBatteryThatWasFlown_data();
    void steppingAwayAndBackShowsTheLastBatteryThatWasFlown();
    void aStepOntoAFlightWithoutBatteryKeepsTheFiguresOnPurpose();
    void aChangeOfModelOntoAFlightWithoutBatteryEmptiesTheFigures();
    void withoutAnyBatteryTheFiguresStayAsTheyWere();
    void figuresAreWrittenUnpaddedWithAComma_data();
    void figuresAreWrittenUnpaddedWithAComma();
    void theFirstOfTwoDischargesOfOneMomentIsShown();
    void aSecondsDifferenceIsNoMatch();
    void anUndatedDischargeAnswersTheLookupOfAnEmptyLog();
    void aDischargeCapturedByAClickIsFoundInTheLogBook();
};

void LogbookBatteriesTest::openingShowsTheBatteryOnlyWhenItIsTheLastOneOnPurpose_data()
{
    QTest::addColumn<QList<bool>>("flown"); // for each battery of the list: does it hold the newest flight?
    QTest::addColumn<QString>("onShow");

    const QString a = u"A 1001 12,5"_s;
    const QString b = u"B 1001 12,5"_s;
    const QString c = u"C 1001 12,5"_s;
    QTest::newRow("one, not flown") << QList<bool>{false} << QString();
    QTest::newRow("one, flown") << QList<bool>{true} << a;
    QTest::newRow("two, the first flown") << QList<bool>{true, false} << QString();
    QTest::newRow("two, the last flown") << QList<bool>{false, true} << b;
    QTest::newRow("two, both flown") << QList<bool>{true, true} << b;
    QTest::newRow("two, none flown") << QList<bool>{false, false} << QString();
    QTest::newRow("three, the first flown") << QList<bool>{true, false, false} << QString();
    QTest::newRow("three, the second flown") << QList<bool>{false, true, false} << QString();
    QTest::newRow("three, the last flown") << QList<bool>{false, false, true} << c;
    QTest::newRow("three, all but the last flown") << QList<bool>{true, true, false} << QString();
    QTest::newRow("three, all but the second flown") << QList<bool>{true, false, true} << c;
    QTest::newRow("three, all flown") << QList<bool>{true, true, true} << c;
}

void LogbookBatteriesTest::openingShowsTheBatteryOnlyWhenItIsTheLastOneOnPurpose()
{
    QFETCH(QList<bool>, flown);
    LogbookWindow window;
    QList<Battery> batteries;
    for (const bool holds : std::as_const(flown)) {
        const QString name(u"ABC"_s.at(batteries.size()));
        batteries.append(battery(name, holds ? QList<int>{Newest} : QList<int>{}));
    }
    openLogBook(window, batteries);

    QTEST(batteryOnShow(window), "onShow");
}

void LogbookBatteriesTest::steppingAwayAndBackShowsTheLastBatteryThatWasFlown_data()
{
    QTest::addColumn<QList<Battery>>("batteries");
    QTest::addColumn<QString>("opened");
    QTest::addColumn<QString>("away");
    QTest::addColumn<QString>("back");

    const Battery a = battery(u"A"_s, {Newest});
    const Battery b = battery(u"B"_s, {});
    const Battery c = battery(u"C"_s, {Oldest});
    const Battery d = battery(u"D"_s, {Oldest, Newest});
    const QString none;
    using Batteries = QList<Battery>;

    QTest::newRow("one, flown") << Batteries{a} << u"A 1001 12,5"_s << u"A 1001 12,5"_s << u"A 1001 12,5"_s;
    QTest::newRow("one, never flown") << Batteries{b} << none << none << none;
    QTest::newRow("the first of two") << Batteries{a, b} << none << none << u"A 1001 12,5"_s;
    QTest::newRow("the last of two") << Batteries{b, a} << u"A 1001 12,5"_s << u"A 1001 12,5"_s
                                     << u"A 1001 12,5"_s;
    QTest::newRow("two that took turns") << Batteries{a, c} << none << u"C 1000 12,5"_s << u"A 1001 12,5"_s;
    QTest::newRow("two that took turns, reversed")
        << Batteries{c, a} << u"A 1001 12,5"_s << u"C 1000 12,5"_s << u"A 1001 12,5"_s;
    QTest::newRow("two flown at once")
        << Batteries{a, d} << u"D 1001 12,5"_s << u"D 1000 12,5"_s << u"D 1001 12,5"_s;
    QTest::newRow("two flown at once, reversed")
        << Batteries{d, a} << u"A 1001 12,5"_s << u"D 1000 12,5"_s << u"A 1001 12,5"_s;
    QTest::newRow("the first of three") << Batteries{a, b, c} << none << u"C 1000 12,5"_s << u"A 1001 12,5"_s;
    QTest::newRow("the last of three")
        << Batteries{c, b, a} << u"A 1001 12,5"_s << u"C 1000 12,5"_s << u"A 1001 12,5"_s;
    QTest::newRow("the second of three")
        << Batteries{c, a, b} << none << u"C 1000 12,5"_s << u"A 1001 12,5"_s;
}

void LogbookBatteriesTest::steppingAwayAndBackShowsTheLastBatteryThatWasFlown()
{
    QFETCH(QList<Battery>, batteries);
    LogbookWindow window;
    openLogBook(window, batteries);
    QTEST(batteryOnShow(window), "opened");
    older(window);
    QTEST(batteryOnShow(window), "away");
    newer(window);
    QTEST(batteryOnShow(window), "back");
}

void LogbookBatteriesTest::aStepOntoAFlightWithoutBatteryKeepsTheFiguresOnPurpose()
{
    LogbookWindow window;
    openLogBook(window, {battery(u"A"_s, {Newest})});
    older(window);

    QCOMPARE(window.ui().ptext_logview_notes->toPlainText(), u"0"_s);
    QCOMPARE(batteryOnShow(window), u"A 1001 12,5"_s);
}

void LogbookBatteriesTest::aChangeOfModelOntoAFlightWithoutBatteryEmptiesTheFigures()
{
    LogbookWindow window;
    const QList<Flight> unmatched{{moment(7)}};
    window.load(
        document({{battery(u"A"_s, {Newest})}, {{u"Heli"_s, {}, flights(2)}, {u"Glider"_s, {}, unmatched}}}));
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_logbook);
    QCOMPARE(batteryOnShow(window), u"A 1001 12,5"_s);

    LogbookWindow::choose(window.ui().cb_logview_model, u"Glider"_s);
    QCOMPARE(batteryOnShow(window), QString());
}

void LogbookBatteriesTest::withoutAnyBatteryTheFiguresStayAsTheyWere()
{
    LogbookWindow window;
    openLogBook(window, {battery(u"A"_s, {Newest})});

    window.load(
        document({{}, {{u"Heli"_s, {}, flights(2)}}})); // nobody is left to answer, or to empty the fields
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_logbook);

    QCOMPARE(batteryOnShow(window), u"A 1001 12,5"_s);
}

void LogbookBatteriesTest::figuresAreWrittenUnpaddedWithAComma_data()
{
    QTest::addColumn<unsigned int>("discharged");
    QTest::addColumn<unsigned int>("current");
    QTest::addColumn<QString>("onShow");

    QTest::newRow("five hundredths") << 1760U << 1205U << u"A 1760 12,5"_s;
    QTest::newRow("fifty hundredths") << 1760U << 1250U << u"A 1760 12,50"_s;
    QTest::newRow("seven hundredths") << 1760U << 1207U << u"A 1760 12,7"_s;
    QTest::newRow("less than an ampere") << 90U << 7U << u"A 90 0,7"_s;
    QTest::newRow("nothing measured") << 0U << 0U << u"A 0 0,0"_s;
    QTest::newRow("largest") << 4294967295U << 4294967295U << u"A 4294967295 42949672,95"_s;
}

void LogbookBatteriesTest::figuresAreWrittenUnpaddedWithAComma()
{
    QFETCH(unsigned int, discharged);
    QFETCH(unsigned int, current);
    LogbookWindow window;
    openLogBook(window, {{u"A"_s, false, {{moment(Newest), discharged, current}}}});

    QTEST(batteryOnShow(window), "onShow");
}

void LogbookBatteriesTest::theFirstOfTwoDischargesOfOneMomentIsShown()
{
    LogbookWindow window;
    openLogBook(window, {{u"A"_s, false, {{moment(Newest), 500, 900}, {moment(Newest), 700, 800}}}});

    QCOMPARE(batteryOnShow(window), u"A 500 9,0"_s);
}

void LogbookBatteriesTest::aSecondsDifferenceIsNoMatch()
{
    LogbookWindow window;
    openLogBook(window, {{u"A"_s, false, {{moment(Newest).addSecs(1), 500, 900}}}});

    QCOMPARE(batteryOnShow(window), QString());
}

void LogbookBatteriesTest::anUndatedDischargeAnswersTheLookupOfAnEmptyLog()
{
    LogbookWindow window;
    window.load(document({{{u"A"_s, false, {{QDateTime(), 500, 900}}}}, {Model{u"Heli"_s}}}));
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_logbook);

    QCOMPARE(window.ui().lbl_logview_date->text(), QString());
    QCOMPARE(batteryOnShow(window), u"A 500 9,0"_s);
}

void LogbookBatteriesTest::aDischargeCapturedByAClickIsFoundInTheLogBook()
{
    LogbookWindow window;
    Battery charged = battery(u"A"_s, {});
    charged.charged = true;
    window.load(document({{charged}, {Model{u"Heli"_s, {u"A"_s}}}}));
    LogbookWindow::clickCard(window.battery(u"A"_s));
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_logbook);
    QCOMPARE(batteryOnShow(window), u"A 1760 55,0"_s); // 80 % of 2200 mAh, 25 times 2.2 A

    window.restart(); // both ends of the link come from the file now
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_logbook);
    QCOMPARE(batteryOnShow(window), u"A 1760 55,0"_s);
}

QTEST_MAIN(LogbookBatteriesTest)
#include "tst_logbookbatteries.moc"
