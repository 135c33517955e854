// SPDX-License-Identifier: GPL-3.0-or-later
// Flights that are corrected in the table itself.
#include "host/data/edits.h"
#include "host/window/flightedits.h"
#include "tests/host/support/brokensaves.h"
#include "tests/host/support/flightswindow.h"

#include <QLineEdit>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class FlightEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTimeIsCorrectedWithItsDischarges();
    void aTimeThatTheClockLeavesOutIsRefused();
    void aDurationIsCorrected();
    void aTemperatureIsCorrected();
    void aLocationIsChosenOrTyped();
    void notesKeepTheirLines();
    void aModelIsChosen();
    void aBatteryIsChosen();
    void figuresAreCorrected();
    void figuresOfSeveralBatteriesAreCorrected_data();
    void figuresOfSeveralBatteriesAreCorrected();
    void anEditorThatIsLeftAsItCameChangesNothing_data();
    void anEditorThatIsLeftAsItCameChangesNothing();
    void escapeChangesNothing();
    void tabLeadsToTheNextCell();
    void whatCannotBeIsToldAndChangesNothing();
    void whatCannotBeWrittenIsToldAndChangesNothing();
    void aFlightThatSomebodyElseHasMovedIsNotMistaken();
    void anEditOfAnEarlierVersionIsTold();

private:
    static void isOneStep(FlightsWindow &window, const Catalogue &meant, const QByteArray &before);
};

/** The file holds what was meant, the flight stays chosen, and undoing puts the old bytes back. */
void FlightEditingTest::isOneStep(FlightsWindow &window, const Catalogue &meant, const QByteArray &before)
{
    QVERIFY(window.stored() == meant);
    QCOMPARE(window.questions.told(), QStringList());
    QCOMPARE(window.selected().size(), 1);
    QCOMPARE(window.logbook().undoName(), u"Flight edited"_s);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.logbook().canUndo());
}

void FlightEditingTest::aTimeIsCorrectedWithItsDischarges()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QDateTimeEdit>(u"10:00:00"_s, FlightsModel::Time);
    QVERIFY(edit);
    QCOMPARE(edit->text(), u"2026-05-03 10:00:00"_s); // local, though the field thinks in another zone
    edit->setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(edit, u"15"_s);
    window.endEditor(edit);
    Catalogue meant = logbook();
    meant.models[0].log[1].time = at(15, 0);
    meant.batteries[0].discharges[1].time = at(15, 0);
    meant.batteries[1].discharges[0].time = at(15, 0);
    QCOMPARE(window.selected(), QStringList(u"15:00:00"_s));
    isOneStep(window, meant, before);
}

void FlightEditingTest::aTimeThatTheClockLeavesOutIsRefused()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QDateTimeEdit>(u"10:00:00"_s, FlightsModel::Time);
    edit->setDate(QDate(1986, 1, 1)); // when Nepal's clocks went from midnight to a quarter past
    edit->setTime(QTime(0, 5));
    window.endEditor(edit);
    QCOMPARE(window.questions.told().size(), 1);
    QVERIFY(window.questions.told().constFirst().contains(u"leaves it out"_s));
    QCOMPARE(window.bytes(), before);
}

void FlightEditingTest::aDurationIsCorrected()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QDateTimeEdit>(u"09:00:00"_s, FlightsModel::Duration);
    edit->setCurrentSection(QDateTimeEdit::MinuteSection);
    QTest::keyClick(edit, Qt::Key_Up);
    window.endEditor(edit);
    Catalogue meant = logbook();
    meant.models[0].log[0].duration = QTime(0, 7, 30);
    isOneStep(window, meant, before);
}

void FlightEditingTest::aTemperatureIsCorrected()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QSpinBox>(u"09:00:00"_s, FlightsModel::Temperature);
    edit->selectAll();
    QTest::keyClicks(edit, u"-12"_s);
    window.endEditor(edit);
    Catalogue meant = logbook();
    meant.models[0].log[0].temperature = -12;
    isOneStep(window, meant, before);
}

void FlightEditingTest::aLocationIsChosenOrTyped()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QComboBox>(u"09:00:00"_s, FlightsModel::Location);
    QCOMPARE(edit->currentText(), u"Meadow"_s);
    QVERIFY(edit->findText(u"Beach"_s) >= 0);
    edit->lineEdit()->selectAll();
    QTest::keyClicks(edit->lineEdit(), u"meadow by the lake"_s);
    window.endEditor(edit);
    Catalogue meant = logbook();
    meant.models[0].log[0].location = u"meadow by the lake"_s;
    isOneStep(window, meant, before);
}

void FlightEditingTest::notesKeepTheirLines()
{
    Catalogue catalogue = logbook();
    catalogue.models[0].log[0].notes = u"one\ntwo"_s;
    FlightsWindow window(catalogue);
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QPlainTextEdit>(u"09:00:00"_s, FlightsModel::Notes);
    QCOMPARE(edit->textCursor().selectedText().size(), 7); // typing replaces it, as in any cell
    edit->moveCursor(QTextCursor::End);
    QTest::keyClick(edit, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(edit, u"three"_s);
    window.endEditor(edit);
    catalogue.models[0].log[0].notes = u"one\ntwo\nthree"_s;
    QCOMPARE(window.cell(window.rowAt(u"09:00:00"_s), FlightsModel::Notes), u"one two three"_s);
    isOneStep(window, catalogue, before);
}

void FlightEditingTest::aModelIsChosen()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QComboBox>(u"09:00:00"_s, FlightsModel::ModelName);
    QCOMPARE(edit->currentText(), u"Skylark"_s);
    LogbookWindow::choose(edit, u"Firebrand"_s);
    window.endEditor(edit);
    Catalogue meant = logbook();
    meant.models[1].log.append(meant.models[0].log.takeFirst());
    QCOMPARE(window.selected(), QStringList(u"09:00:00"_s));
    isOneStep(window, meant, before);
}

void FlightEditingTest::aBatteryIsChosen()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    QVERIFY(!window.openEditor(u"10:00:00"_s, FlightsModel::Batteries)); // there are two
    auto *edit = window.openEditor<QComboBox>(u"09:00:00"_s, FlightsModel::Batteries);
    LogbookWindow::choose(edit, u"C"_s);
    window.endEditor(edit);
    Catalogue meant = logbook();
    meant.batteries[2].discharges.append(meant.batteries[0].discharges.takeFirst());
    meant.batteries[2].cycles = 11;
    meant.batteries[0].cycles = 9;
    isOneStep(window, meant, before);
}

void FlightEditingTest::figuresAreCorrected()
{
    FlightsWindow window;
    auto *whole = window.openEditor<QSpinBox>(u"09:00:00"_s, FlightsModel::Discharged);
    whole->selectAll();
    QTest::keyClicks(whole, u"1444"_s);
    window.endEditor(whole);
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QDoubleSpinBox>(u"09:00:00"_s, FlightsModel::Current);
    edit->selectAll();
    QTest::keyClicks(edit, u"13.17"_s);
    window.endEditor(edit);
    Catalogue meant = logbook();
    meant.batteries[0].discharges[0] = {at(9, 0), 1444, 1317};
    QVERIFY(window.stored() == meant);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
}

void FlightEditingTest::figuresOfSeveralBatteriesAreCorrected_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("two figures") << u"1,601;1651.4"_s << true;
    QTest::newRow("one") << u"1601"_s << false;
    QTest::newRow("three") << u"1;2;3"_s << false;
    QTest::newRow("none") << u""_s << false;
    QTest::newRow("no number") << u"1601; many"_s << false;
    QTest::newRow("less than nothing") << u"1601; -1"_s << false;
    QTest::newRow("not a number") << u"1601; nan"_s << false;
    QTest::newRow("endless") << u"1601; inf"_s << false;
    QTest::newRow("too much") << u"1601; 20001"_s << false;
    QTest::newRow("far too much") << u"1601; 1e300"_s << false;
}

void FlightEditingTest::figuresOfSeveralBatteriesAreCorrected()
{
    QFETCH(QString, text);
    QFETCH(bool, isTaken);
    FlightsWindow window;
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QLineEdit>(u"10:00:00"_s, FlightsModel::Discharged);
    QVERIFY(edit);
    LogbookWindow::type(edit, text);
    window.endEditor(edit);
    QCOMPARE(window.questions.told().size(), isTaken ? 0 : 1);
    Catalogue meant = logbook();
    if (isTaken) {
        meant.batteries[0].discharges[1].discharged = 1601;
        meant.batteries[1].discharges[0].discharged = 1651;
        isOneStep(window, meant, before);
    }
    QCOMPARE(window.bytes(), before);
}

void FlightEditingTest::anEditorThatIsLeftAsItCameChangesNothing_data()
{
    QTest::addColumn<int>("column");
    for (int column = 0; column < FlightsModel::ColumnCount; ++column)
        QTest::addRow("column %d", column) << column;
}

void FlightEditingTest::anEditorThatIsLeftAsItCameChangesNothing()
{
    QFETCH(int, column);
    Catalogue catalogue = logbook();
    catalogue.batteries[0].discharges[0] = {at(9, 0), 4'000'000'000U, 4'000'000'001U}; // no field takes it
    catalogue.models[0].log[0].temperature = 1000;
    catalogue.models[0].log[0].duration = QTime();
    FlightsWindow window(catalogue);
    const QByteArray before = window.bytes();
    QWidget *edit = window.openEditor(u"09:00:00"_s, static_cast<FlightsModel::Column>(column));
    QVERIFY(edit);
    QVERIFY(!edit->accessibleName().isEmpty());
    window.endEditor(edit);
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.logbook().canUndo());
}

void FlightEditingTest::escapeChangesNothing()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QSpinBox>(u"09:00:00"_s, FlightsModel::Temperature);
    edit->selectAll();
    QTest::keyClicks(edit, u"5"_s);
    window.endEditor(edit, Qt::Key_Escape);
    QCOMPARE(window.bytes(), before);
}

void FlightEditingTest::tabLeadsToTheNextCell()
{
    FlightsWindow window;
    auto *edit = window.openEditor<QSpinBox>(u"09:00:00"_s, FlightsModel::Temperature);
    edit->selectAll();
    QTest::keyClicks(edit, u"5"_s);
    window.endEditor(edit, Qt::Key_Tab);
    QCOMPARE(window.stored().models.at(0).log.at(0).temperature, 5);
    QCOMPARE(window.table().currentIndex().column(), int(FlightsModel::Notes));
    QCOMPARE(window.table().currentIndex().row(), window.rowAt(u"09:00:00"_s));
}

void FlightEditingTest::whatCannotBeIsToldAndChangesNothing()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    auto *edit = window.openEditor<QPlainTextEdit>(u"09:00:00"_s, FlightsModel::Notes);
    edit->setPlainText(u"bell\u0007"_s);
    window.endEditor(edit);
    QCOMPARE(window.questions.told().size(), 1);
    QVERIFY(window.questions.told().constFirst().contains(u"control character"_s));
    QCOMPARE(window.bytes(), before);
    QCOMPARE(window.cell(window.rowAt(u"09:00:00"_s), FlightsModel::Notes), u"calm"_s);
    QVERIFY(!window.logbook().canUndo());
}

void FlightEditingTest::whatCannotBeWrittenIsToldAndChangesNothing()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    {
        const FullDisk disk(300);
        QVERIFY(disk.works());
        auto *edit = window.openEditor<QPlainTextEdit>(u"09:00:00"_s, FlightsModel::Notes);
        edit->setPlainText(u"windy"_s);
        window.endEditor(edit);
    }
    QCOMPARE(window.questions.told().size(), 1);
    QVERIFY(window.questions.told().constFirst().startsWith(u"Nothing was changed"_s));
    QCOMPARE(window.bytes(), before);
    QCOMPARE(window.cell(window.rowAt(u"09:00:00"_s), FlightsModel::Notes), u"calm"_s);
    QVERIFY(!window.logbook().canUndo());
    auto *again = window.openEditor<QPlainTextEdit>(u"09:00:00"_s, FlightsModel::Notes);
    again->setPlainText(u"windy"_s);
    window.endEditor(again);
    QCOMPARE(window.stored().models.at(0).log.at(0).notes, u"windy"_s);
}

void FlightEditingTest::aFlightThatSomebodyElseHasMovedIsNotMistaken()
{
    const Catalogue shown = logbook();
    QVERIFY(FlightEdits::areThere({{0, 2}, {1, 1}}, shown, shown));
    Catalogue now = shown;
    now.models[0].log.removeFirst();
    QVERIFY(!FlightEdits::areThere({{0, 0}}, shown, now));
    QVERIFY(!FlightEdits::areThere({{0, 2}}, shown, now));
    QVERIFY(FlightEdits::areThere({{1, 0}}, shown, now));
    now.models.removeFirst();
    QVERIFY(!FlightEdits::areThere({{0, 0}}, shown, now));
    QVERIFY(!FlightEdits::areThere({{1, 0}}, shown, now));
}

void FlightEditingTest::anEditOfAnEarlierVersionIsTold()
{
    FlightsWindow window;
    auto &flights = window.tab().m_flights;
    flights.setData(flights.index(0, FlightsModel::Notes), u"windy"_s, Qt::EditRole);
    QCOMPARE(
        window.logbook().change(u"Meanwhile"_s,
                                [](Catalogue &catalogue) {
                                    return Edits::deleteFlights(catalogue, {{0, 0}}, Edits::Discharges::Keep);
                                }),
        QString());
    window.tab().refresh();
    const QByteArray before = window.bytes();
    QTRY_COMPARE(window.questions.told().size(), 1);
    QVERIFY(window.questions.told().constFirst().contains(u"changed meanwhile"_s));
    QCOMPARE(window.bytes(), before);
}

QTEST_MAIN(FlightEditingTest)
#include "tst_flightediting.moc"
