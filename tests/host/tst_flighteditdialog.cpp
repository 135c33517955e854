// SPDX-License-Identifier: GPL-3.0-or-later
// Flights that are corrected in a dialog, all fields at once.
#include "host/data/sources.h"
#include "tests/host/support/flightediting.h"

#include <QLineEdit>

using namespace Host;
using namespace FlightEditing;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class FlightEditDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itShowsWhatTheFlightHolds();
    void fieldsAreCorrectedInOneStep_data();
    void fieldsAreCorrectedInOneStep();
    void whatIsNotTouchedStaysAsItIs();
    void nothingEnteredIsNoStep_data();
    void nothingEnteredIsNoStep();
    void guessedFiguresStayGuessed();
    void guessedFiguresFollowTheBatteryAndAreShown();
    void enteredFiguresGoAlongToAnotherBattery();
    void aTimeIsTakenLast();
    void figuresOfSeveralBatteriesAreATextWithSemicolons();
};

void FlightEditDialogTest::itShowsWhatTheFlightHolds()
{
    Catalogue catalogue = logbook();
    catalogue.models[0].log[0].notes = u"one\ntwo"_s;
    FlightsWindow window(catalogue);
    edit(window, u"09:00:00"_s, [](const FlightEditDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), u"Edit a Flight"_s);
        QStringList names;
        for (const QWidget *each : dialog.m_fields)
            names.append(each->accessibleName());
        const QStringList columns{u"Time"_s,     u"Model"_s,       u"Battery"_s,
                                  u"Duration"_s, u"Discharged"_s,  u"Maximum current"_s,
                                  u"Location"_s, u"Temperature"_s, u"Notes"_s};
        QCOMPARE(names, columns);
        QCOMPARE(field<QDateTimeEdit>(dialog, FlightsModel::Time).text(), u"2026-05-03 09:00:00"_s);
        QCOMPARE(field<QComboBox>(dialog, FlightsModel::ModelName).currentText(), u"Skylark"_s);
        QCOMPARE(field<QComboBox>(dialog, FlightsModel::Batteries).currentText(), u"A"_s);
        QCOMPARE(field<QDateTimeEdit>(dialog, FlightsModel::Duration).text(), u"00:06:30"_s);
        QCOMPARE(field<QSpinBox>(dialog, FlightsModel::Discharged).text(), u"1500 mAh"_s);
        QCOMPARE(field<QDoubleSpinBox>(dialog, FlightsModel::Current).text(), u"30.00 A"_s);
        QCOMPARE(field<QComboBox>(dialog, FlightsModel::Location).currentText(), u"Meadow"_s);
        QCOMPARE(field<QSpinBox>(dialog, FlightsModel::Temperature).text(), u"18 °C"_s);
        const auto &notes = field<QPlainTextEdit>(dialog, FlightsModel::Notes);
        QCOMPARE(notes.toPlainText(), u"one\ntwo"_s);
        QVERIFY(!notes.textCursor().hasSelection()); // what one types there must not replace it
    });
}

void FlightEditDialogTest::fieldsAreCorrectedInOneStep_data()
{
    QTest::addColumn<Use>("use");
    QTest::addColumn<Change>("meant");
    QTest::addColumn<QString>("clock");
    const auto row = [](const char *name, const Use &use, const Change &meant,
                        const QString &clock = u"09:00:00"_s) {
        QTest::newRow(name) << use << meant << clock;
    };
    row(
        "time",
        [](const FlightEditDialog &dialog) {
            field<QDateTimeEdit>(dialog, FlightsModel::Time).setTime(QTime(15, 0));
        },
        [](Catalogue &catalogue) {
            catalogue.models[0].log[0].time = at(15, 0);
            catalogue.batteries[0].discharges[0].time = at(15, 0);
        },
        u"15:00:00"_s);
    row(
        "model",
        [](const FlightEditDialog &dialog) {
            LogbookWindow::choose(&field<QComboBox>(dialog, FlightsModel::ModelName), u"Firebrand"_s);
        },
        [](Catalogue &catalogue) { catalogue.models[1].log.append(catalogue.models[0].log.takeFirst()); });
    row(
        "battery", [](const FlightEditDialog &dialog) { chooseBattery(dialog, u"C"_s); },
        [](Catalogue &catalogue) {
            catalogue.batteries[2].discharges = {catalogue.batteries[0].discharges.takeFirst()};
            catalogue.batteries[0].cycles = 9;
            catalogue.batteries[2].cycles = 11;
        });
    row(
        "duration",
        [](const FlightEditDialog &dialog) {
            field<QDateTimeEdit>(dialog, FlightsModel::Duration).setTime(QTime(0, 7, 31));
        },
        [](Catalogue &catalogue) { catalogue.models[0].log[0].duration = QTime(0, 7, 31); });
    row(
        "discharged", [](const FlightEditDialog &dialog) { setFigures(dialog, 1444, 30.0); },
        [](Catalogue &catalogue) { catalogue.batteries[0].discharges[0].discharged = 1444; });
    row(
        "current", [](const FlightEditDialog &dialog) { setFigures(dialog, 1500, 13.17); },
        [](Catalogue &catalogue) { catalogue.batteries[0].discharges[0].current = 1317; });
    row(
        "location",
        [](const FlightEditDialog &dialog) {
            field<QComboBox>(dialog, FlightsModel::Location).setCurrentText(u"hill"_s);
        },
        [](Catalogue &catalogue) { catalogue.models[0].log[0].location = u"hill"_s; });
    row(
        "temperature",
        [](const FlightEditDialog &dialog) {
            field<QSpinBox>(dialog, FlightsModel::Temperature).setValue(-12);
        },
        [](Catalogue &catalogue) { catalogue.models[0].log[0].temperature = -12; });
    row(
        "notes", [](const FlightEditDialog &dialog) { setNotes(dialog, u"first\nsecond"_s); },
        [](Catalogue &catalogue) { catalogue.models[0].log[0].notes = u"first\nsecond"_s; });
    row(
        "everything",
        [](const FlightEditDialog &dialog) {
            setNotes(dialog, u"windy"_s);
            field<QSpinBox>(dialog, FlightsModel::Temperature).setValue(31);
            field<QComboBox>(dialog, FlightsModel::Location).setCurrentText(u"Beach"_s);
            setFigures(dialog, 1444, 13.17);
            field<QDateTimeEdit>(dialog, FlightsModel::Duration).setTime(QTime(1, 2, 3));
            chooseBattery(dialog, u"C"_s);
            LogbookWindow::choose(&field<QComboBox>(dialog, FlightsModel::ModelName), u"Firebrand"_s);
            field<QDateTimeEdit>(dialog, FlightsModel::Time).setDate(QDate(2026, 5, 4));
        },
        [](Catalogue &catalogue) {
            const QDateTime time(QDate(2026, 5, 4), QTime(9, 0));
            catalogue.models[0].log.removeFirst();
            catalogue.models[1].log.append({time, QTime(1, 2, 3), u"Beach"_s, 31, u"windy"_s});
            catalogue.batteries[0].discharges.removeFirst();
            catalogue.batteries[0].cycles = 9;
            catalogue.batteries[2].discharges = {{time, 1444, 1317}};
            catalogue.batteries[2].cycles = 11;
        });
}

void FlightEditDialogTest::fieldsAreCorrectedInOneStep()
{
    QFETCH(const Use, use);
    QFETCH(const Change, meant);
    QFETCH(const QString, clock);
    FlightsWindow window;
    const QByteArray before = window.bytes();
    correct(window, u"09:00:00"_s, use);
    Catalogue expected = logbook();
    meant(expected);
    QCOMPARE(window.bytes(), CatalogueFile::save(expected).document);
    QCOMPARE(window.questions.told(), QStringList());
    QCOMPARE(window.selected(), QStringList(clock));
    QCOMPARE(window.logbook().undoName(), u"Flight edited"_s);
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
    QVERIFY(!window.logbook().canUndo());
}

/** What no field could take stays, too. */
void FlightEditDialogTest::whatIsNotTouchedStaysAsItIs()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[0].discharges[0] = {at(9, 0), 4'000'000'000U, 4'000'000'001U};
    catalogue.models[0].log[0] = {at(9, 0), QTime(), u"Nowhere"_s, 1000, u"calm"_s};
    FlightsWindow window(catalogue);
    correct(window, u"09:00:00"_s, [](const FlightEditDialog &dialog) { setNotes(dialog, u"windy"_s); });
    catalogue.models[0].log[0].notes = u"windy"_s;
    QCOMPARE(window.bytes(), CatalogueFile::save(catalogue).document);
}

void FlightEditDialogTest::nothingEnteredIsNoStep_data()
{
    QTest::addColumn<Use>("use");
    const auto row = [](const char *name, const Use &use) { QTest::newRow(name) << use; };
    row("nothing touched", [](FlightEditDialog &dialog) { FlightsWindow::confirm(dialog); });
    row("put back", [](FlightEditDialog &dialog) {
        setNotes(dialog, u"windy"_s);
        setNotes(dialog, u"calm"_s);
        FlightsWindow::confirm(dialog);
    });
    row("cancelled", [](FlightEditDialog &dialog) {
        setNotes(dialog, u"windy"_s);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
}

void FlightEditDialogTest::nothingEnteredIsNoStep()
{
    QFETCH(const Use, use);
    FlightsWindow window;
    const QStringList works = window.questions.works();
    const QByteArray before = window.bytes();
    edit(window, u"09:00:00"_s, [&use](FlightEditDialog &dialog) {
        use(dialog);
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(window.bytes(), before);
    QCOMPARE(window.questions.works(), works); // nothing was even tried
    QVERIFY(!window.logbook().canUndo());
    QCOMPARE(window.selected(), QStringList(u"09:00:00"_s));
}

void FlightEditDialogTest::guessedFiguresStayGuessed()
{
    FlightsWindow window;
    correct(window, u"12:00:00"_s, [](const FlightEditDialog &dialog) {
        field<QDateTimeEdit>(dialog, FlightsModel::Time).setTime(QTime(12, 30));
        setNotes(dialog, u"windy"_s);
    });
    const Battery battery = window.stored().batteries.at(1);
    QVERIFY(battery.discharges.at(1) == (Discharge{at(12, 30), 1760, 5500}));
    QCOMPARE(sourceOf(battery, battery.discharges.at(1)), Source::Guessed);
}

void FlightEditDialogTest::guessedFiguresFollowTheBatteryAndAreShown()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[2].capacity = 1000;
    FlightsWindow window(catalogue);
    const QByteArray before = window.bytes();
    correct(window, u"12:00:00"_s, [](const FlightEditDialog &dialog) {
        chooseBattery(dialog, u"C"_s);
        QCOMPARE(field<QSpinBox>(dialog, FlightsModel::Discharged).value(), 800);
        QCOMPARE(field<QDoubleSpinBox>(dialog, FlightsModel::Current).value(), 25.0);
    });
    QVERIFY(window.stored().batteries.at(2).discharges.constFirst() == (Discharge{at(12, 0), 800, 2500}));
    QCOMPARE(window.logbook().undo(), QString());
    QCOMPARE(window.bytes(), before);
    window.settleTab();
    correct(window, u"12:00:00"_s, [](const FlightEditDialog &dialog) {
        field<QSpinBox>(dialog, FlightsModel::Discharged).setValue(1444);
        chooseBattery(dialog, u"C"_s);
        QCOMPARE(field<QSpinBox>(dialog, FlightsModel::Discharged).value(), 1444); // which was entered
        QCOMPARE(field<QDoubleSpinBox>(dialog, FlightsModel::Current).value(), 25.0);
    });
    QVERIFY(window.stored().batteries.at(2).discharges.constFirst() == (Discharge{at(12, 0), 1444, 2500}));
}

void FlightEditDialogTest::enteredFiguresGoAlongToAnotherBattery()
{
    FlightsWindow window;
    correct(window, u"09:00:00"_s, [](const FlightEditDialog &dialog) {
        chooseBattery(dialog, u"C"_s);
        QCOMPARE(field<QSpinBox>(dialog, FlightsModel::Discharged).value(), 1500);
        field<QDoubleSpinBox>(dialog, FlightsModel::Current).setValue(13.17);
    });
    QVERIFY(window.stored().batteries.at(2).discharges.constFirst() == (Discharge{at(9, 0), 1500, 1317}));
}

/** At its old time the discharge alone is the flight's; at the new one another is in the way. */
void FlightEditDialogTest::aTimeIsTakenLast()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[2].discharges = {{at(15, 0), 1200, 2000}};
    FlightsWindow window(catalogue);
    correct(window, u"09:00:00"_s, [](const FlightEditDialog &dialog) {
        field<QDateTimeEdit>(dialog, FlightsModel::Time).setTime(QTime(15, 0));
        chooseBattery(dialog, u"C"_s);
    });
    QCOMPARE(window.questions.told(), QStringList());
    const QList<Discharge> discharges{{at(15, 0), 1200, 2000}, {at(15, 0, 1), 1500, 3000}};
    QVERIFY(window.stored().batteries.at(2).discharges == discharges);
    QCOMPARE(window.selected(), QStringList(u"15:00:01"_s));
}

void FlightEditDialogTest::figuresOfSeveralBatteriesAreATextWithSemicolons()
{
    FlightsWindow window;
    edit(window, u"10:00:00"_s, [&window](FlightEditDialog &dialog) {
        auto &discharged = field<QLineEdit>(dialog, FlightsModel::Discharged);
        QCOMPARE(discharged.text(), u"1,600; 1,650"_s);
        QCOMPARE(discharged.accessibleName(), u"Discharged (mAh)"_s);
        QCOMPARE(field<QLineEdit>(dialog, FlightsModel::Current).text(), u"31.00; 31.50"_s);
        discharged.setText(u"1601"_s);
        FlightsWindow::confirm(dialog);
        QVERIFY(dialog.isVisible());
        QVERIFY(window.questions.told().constFirst().contains(u"each of the 2 batteries"_s));
        discharged.setText(u"1601; 1651"_s);
        FlightsWindow::confirm(dialog);
        QVERIFY(!dialog.isVisible());
    });
    Catalogue meant = logbook();
    meant.batteries[0].discharges[1].discharged = 1601;
    meant.batteries[1].discharges[0].discharged = 1651;
    QVERIFY(window.stored() == meant);
}

QTEST_MAIN(FlightEditDialogTest)
#include "tst_flighteditdialog.moc"
