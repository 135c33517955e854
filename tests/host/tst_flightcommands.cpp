// SPDX-License-Identifier: GPL-3.0-or-later
// What the buttons below the flights do, with their dialogs.
#include "host/window/flightdialog.h"
#include "host/window/movedialog.h"
#include "host/window/renamedialog.h"
#include "host/window/tidydialog.h"
#include "tests/host/support/flightswindow.h"

#include <QListWidget>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class FlightCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flightsAreDeletedAfterAQuestion_data();
    void flightsAreDeletedAfterAQuestion();
    void theDeleteKeyDeletes();
    void aFlightIsAdded();
    void aFlightThatCannotBeAddedIsToldAndKept();
    void flightsAreMovedToAnotherModel();
    void guessedFiguresStayGuessedInAnotherBattery();
    void aMoveThatCannotBeIsTold();
    void doublesAreRemoved();
    void whereNothingStandsTwiceThatIsTold();
    void renamingShowsAndKeepsTheFilterTrue();
};

void FlightCommandsTest::flightsAreDeletedAfterAQuestion_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<int>("flights");
    QTest::addColumn<int>("discharges");
    QTest::newRow("with discharges") << u"Delete With Discharges"_s << 1 << 1;
    QTest::newRow("alone") << u"Delete Flights Only"_s << 1 << 2;
    QTest::newRow("not at all") << u"Cancel"_s << 3 << 2;
}

void FlightCommandsTest::flightsAreDeletedAfterAQuestion()
{
    QFETCH(QString, answer);
    QFETCH(int, flights);
    QFETCH(int, discharges);
    FlightsWindow window;
    const QByteArray before = window.bytes();
    window.select({u"09:00:00"_s, u"11:00:00"_s});
    window.questions.answer(answer);
    window.give(u"Delete"_s);
    QVERIFY(window.questions.isDone());
    QVERIFY(window.questions.asked().constFirst().text.contains(u"2 flights"_s));
    QCOMPARE(window.questions.asked().constFirst().refusal, 2);
    const Catalogue stored = window.stored();
    QCOMPARE(stored.models.at(0).log.size(), flights);
    QCOMPARE(stored.batteries.at(0).discharges.size(), discharges);
    QCOMPARE(stored.batteries.at(0).cycles, 8U + static_cast<unsigned int>(discharges));
    QCOMPARE(window.rowCount(), flights + 2);
    if (flights == 3) {
        QVERIFY(!window.logbook().canUndo());
        return;
    }
    QCOMPARE(window.logbook().undoName(), u"2 flights deleted"_s);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
    QTRY_COMPARE(window.rowCount(), 5);
}

void FlightCommandsTest::theDeleteKeyDeletes()
{
    FlightsWindow window;
    window.select({u"11:00:00"_s});
    window.table().setFocus();
    window.questions.answer(u"Delete Flights Only"_s);
    QTest::keyClick(&window.table(), Qt::Key_Delete);
    window.settleTab();
    QVERIFY(window.questions.isDone());
    QCOMPARE(window.questions.asked().constFirst().text, u"Delete this flight?"_s);
    QCOMPARE(window.stored().models.at(0).log.size(), 2);
    QCOMPARE(window.logbook().undoName(), u"Flight deleted"_s);
}

void FlightCommandsTest::aFlightIsAdded()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    window.give<FlightDialog>(u"Add…"_s, [](FlightDialog &dialog) {
        QVERIFY(!dialog.m_discharged->isEnabled());
        dialog.m_model->setCurrentIndex(1);
        dialog.m_time->setDate(QDate(2026, 5, 3));
        dialog.m_time->setTime(QTime(13, 0));
        dialog.m_duration->setTime(QTime(0, 5, 45));
        LogbookWindow::choose(dialog.m_battery, u"C"_s);
        QCOMPARE(dialog.m_discharged->value(), 1760);
        QCOMPARE(dialog.m_current->value(), 55.0);
        dialog.m_current->setValue(13.17);
        dialog.m_location->setCurrentText(u"New field"_s);
        dialog.m_notes->setPlainText(u"first\nsecond"_s);
        FlightsWindow::confirm(dialog);
        QCoreApplication::processEvents(); // the panel is refreshed before the dialog is gone
    });
    Catalogue meant = logbook();
    meant.models[1].log.append({at(13, 0), QTime(0, 5, 45), u"New field"_s, 0, u"first\nsecond"_s});
    meant.models[1].flights = 21;
    meant.batteries[2].discharges = {{at(13, 0), 1760, 1317}};
    meant.batteries[2].cycles = 11;
    QVERIFY(window.stored() == meant);
    QCOMPARE(window.selected(), QStringList(u"13:00:00"_s));
    QCOMPARE(window.logbook().undoName(), u"Flight added"_s);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
}

void FlightCommandsTest::aFlightThatCannotBeAddedIsToldAndKept()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    window.give<FlightDialog>(u"Add…"_s, [](FlightDialog &dialog) {
        dialog.m_notes->setPlainText(u"bell\u0007"_s);
        FlightsWindow::confirm(dialog);
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.m_notes->toPlainText(), u"bell\u0007"_s);
    });
    QCOMPARE(window.questions.told().size(), 1);
    QVERIFY(window.questions.told().constFirst().contains(u"control character"_s));
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.logbook().canUndo());
}

void FlightCommandsTest::flightsAreMovedToAnotherModel()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    window.select({u"09:00:00"_s, u"10:00:00"_s});
    window.give<MoveDialog>(u"Move…"_s, [](MoveDialog &dialog) {
        LogbookWindow::choose(dialog.m_model, u"Firebrand"_s);
        FlightsWindow::confirm(dialog);
    });
    QCOMPARE(window.stored().models.at(0).log.size(), 1);
    QCOMPARE(window.stored().models.at(1).log.size(), 4);
    QVERIFY(window.stored().batteries == logbook().batteries);
    QCOMPARE(window.selected(), (QStringList{u"09:00:00"_s, u"10:00:00"_s}));
    QCOMPARE(window.logbook().undoName(), u"2 flights moved"_s);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
}

void FlightCommandsTest::guessedFiguresStayGuessedInAnotherBattery()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[2].capacity = 1000;
    FlightsWindow window(catalogue);
    window.select({u"10:00:00"_s, u"12:00:00"_s});
    window.give<MoveDialog>(u"Move…"_s, [](MoveDialog &dialog) {
        LogbookWindow::choose(dialog.m_from, u"B"_s);
        LogbookWindow::choose(dialog.m_to, u"C"_s);
        FlightsWindow::confirm(dialog);
    });
    const QList<Discharge> moved{{at(10, 0), 1650, 3150}, {at(12, 0), 800, 2500}};
    QVERIFY(window.stored().batteries.at(2).discharges == moved);
    QCOMPARE(window.cell(window.rowAt(u"10:00:00"_s), FlightsModel::Batteries), u"A; C"_s);
}

void FlightCommandsTest::aMoveThatCannotBeIsTold()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    window.select({u"10:00:00"_s});
    window.give<MoveDialog>(u"Move…"_s, [](MoveDialog &dialog) {
        LogbookWindow::choose(dialog.m_model, u"Firebrand"_s);
        LogbookWindow::choose(dialog.m_to, u"B"_s); // which was flown in it, too
        FlightsWindow::confirm(dialog);
    });
    QVERIFY(window.questions.told().constFirst().contains(u"already"_s));
    QCOMPARE(window.bytes(), before);
    QCOMPARE(window.selected(), QStringList(u"10:00:00"_s));
}

void FlightCommandsTest::doublesAreRemoved()
{
    Catalogue catalogue = logbook();
    catalogue.models[0].log.append({flight(at(9, 0, 4)), flight(at(11, 0, 2))});
    catalogue.batteries[0].discharges.append({at(9, 0, 4), 1500, 3000});
    catalogue.batteries[0].cycles = 11;
    FlightsWindow window(catalogue);
    const QByteArray before = window.bytes();
    window.give<TidyDialog>(u"Tidy Up…"_s, [](TidyDialog &dialog) {
        QCOMPARE(dialog.m_list->count(), 2);
        QVERIFY(dialog.m_list->item(0)->text().contains(u"09:00:04"_s));
        dialog.m_list->setCurrentRow(1);
        QTest::keyClick(dialog.m_list, Qt::Key_Space); // this one stays
        FlightsWindow::confirm(dialog);
    });
    catalogue = logbook();
    catalogue.models[0].log.append(flight(at(11, 0, 2)));
    QVERIFY(window.stored() == catalogue);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
}

void FlightCommandsTest::whereNothingStandsTwiceThatIsTold()
{
    FlightsWindow window;
    window.give(u"Tidy Up…"_s);
    QVERIFY(window.questions.told().constFirst().startsWith(u"No flight stands twice"_s));
}

void FlightCommandsTest::renamingShowsAndKeepsTheFilterTrue()
{
    FlightsWindow window;
    LogbookWindow::choose(window.bar().m_model, u"Skylark"_s);
    window.give<RenameDialog>(u"Rename…"_s, [](RenameDialog &dialog) {
        LogbookWindow::choose(dialog.m_kind, u"Model"_s);
        LogbookWindow::type(dialog.m_name, u"Hornet"_s);
        FlightsWindow::confirm(dialog);
    });
    QCOMPARE(window.rowCount(), 5); // nothing has the name that was looked for
    QCOMPARE(window.bar().m_model->currentIndex(), 0);
    QVERIFY(window.column(FlightsModel::ModelName).contains(u"Hornet"_s));
}

QTEST_MAIN(FlightCommandsTest)
#include "tst_flightcommands.moc"
