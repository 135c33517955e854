// SPDX-License-Identifier: GPL-3.0-or-later
// What of a flight cannot be corrected in its dialog, and when.
#include "tests/host/support/brokensaves.h"
#include "tests/host/support/flightediting.h"

#include <QAction>
#include <QLineEdit>

using namespace Host;
using namespace FlightEditing;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class FlightEditRefusalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatCannotBeEditedIsDisabled_data();
    void whatCannotBeEditedIsDisabled();
    void whatCannotBeIsToldAndKeptForAnotherTry();
    void whatCannotBeWrittenIsToldAndKeptForAnotherTry();
    void whatHasChangedMeanwhileIsNotMistaken_data();
    void whatHasChangedMeanwhileIsNotMistaken();
    void exactlyOneFlightCanBeEdited();
    void shiftAndF2OpenIt();
};

void FlightEditRefusalsTest::whatCannotBeEditedIsDisabled_data()
{
    QTest::addColumn<QString>("clock");
    QTest::addColumn<QList<int>>("disabled");
    QTest::addColumn<QString>("batteries");
    QTest::newRow("two") << u"10:00:00"_s << QList<int>{FlightsModel::Batteries} << u"A; B"_s;
    QTest::newRow("none") << u"11:00:00"_s
                          << QList<int>{FlightsModel::Batteries, FlightsModel::Discharged,
                                        FlightsModel::Current}
                          << QString();
    QTest::newRow("no time") << QString()
                             << QList<int>{FlightsModel::Batteries, FlightsModel::Discharged,
                                           FlightsModel::Current}
                             << QString();
}

void FlightEditRefusalsTest::whatCannotBeEditedIsDisabled()
{
    QFETCH(const QString, clock);
    QFETCH(const QList<int>, disabled);
    QFETCH(const QString, batteries);
    FlightsWindow window;
    window.table().selectRow(clock.isEmpty() ? window.rowCount() - 1 : window.rowAt(clock));
    window.give<FlightEditDialog>(u"Edit…"_s, [&](FlightEditDialog &dialog) {
        QList<int> found;
        for (int column = 0; column < FlightsModel::ColumnCount; ++column) {
            if (!dialog.m_fields.at(static_cast<size_t>(column))->isEnabled())
                found.append(column);
        }
        QCOMPARE(found, disabled);
        const auto &shown = field<QLineEdit>(dialog, FlightsModel::Batteries);
        QCOMPARE(shown.text(), batteries);
        QCOMPARE(shown.placeholderText().startsWith(u"no discharge"_s), batteries.isEmpty());
        setNotes(dialog, u"windy"_s);
        FlightsWindow::confirm(dialog);
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(window.questions.told(), QStringList());
    QVERIFY(window.stored().batteries == logbook().batteries);
}

void FlightEditRefusalsTest::whatCannotBeIsToldAndKeptForAnotherTry()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    edit(window, u"10:00:00"_s, [&](FlightEditDialog &dialog) {
        LogbookWindow::choose(&field<QComboBox>(dialog, FlightsModel::ModelName), u"Firebrand"_s);
        auto &location = field<QComboBox>(dialog, FlightsModel::Location);
        location.setCurrentText(u"bell\u0007"_s);
        setNotes(dialog, u"windy"_s);
        FlightsWindow::confirm(dialog);
        QVERIFY(dialog.isVisible());
        QCOMPARE(window.questions.told().size(), 1);
        QVERIFY(window.questions.told().constFirst().contains(u"control character"_s));
        QCOMPARE(window.bytes(), before);
        QVERIFY(!window.logbook().canUndo());
        QCOMPARE(field<QComboBox>(dialog, FlightsModel::ModelName).currentText(), u"Firebrand"_s);
        location.setCurrentText(u"bell"_s);
        FlightsWindow::confirm(dialog);
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(window.questions.told().size(), 1);
    QCOMPARE(window.stored().models.at(1).log.constLast().location, u"bell"_s);
    QCOMPARE(window.stored().models.at(1).log.constLast().notes, u"windy"_s);
    QCOMPARE(window.stored().models.at(0).log.size(), 2);
}

void FlightEditRefusalsTest::whatCannotBeWrittenIsToldAndKeptForAnotherTry()
{
    FlightsWindow window;
    const QByteArray before = window.bytes();
    edit(window, u"09:00:00"_s, [&](FlightEditDialog &dialog) {
        setNotes(dialog, u"windy"_s);
        {
            const FullDisk disk(300);
            QVERIFY(disk.works());
            FlightsWindow::confirm(dialog);
        }
        QVERIFY(dialog.isVisible());
        QCOMPARE(window.bytes(), before);
        FlightsWindow::confirm(dialog);
        QVERIFY(!dialog.isVisible());
    });
    QCOMPARE(window.questions.told().size(), 1);
    QVERIFY(window.questions.told().constFirst().startsWith(u"Nothing was changed"_s));
    QCOMPARE(window.stored().models.at(0).log.at(0).notes, u"windy"_s);
}

void FlightEditRefusalsTest::whatHasChangedMeanwhileIsNotMistaken_data()
{
    QTest::addColumn<Change>("meanwhile");
    QTest::addColumn<bool>("isTold");
    const auto row = [](const char *name, const Change &meanwhile, bool isTold) {
        QTest::newRow(name) << meanwhile << isTold;
    };
    row(
        "the flight", [](Catalogue &catalogue) { catalogue.models[0].log[0].temperature = 3; }, true);
    row(
        "its place", [](Catalogue &catalogue) { catalogue.models[0].log.removeFirst(); }, true);
    row(
        "its figures", [](Catalogue &catalogue) { catalogue.batteries[0].discharges[0].discharged = 1; },
        true);
    row(
        "its battery",
        [](Catalogue &catalogue) {
            catalogue.batteries[2].discharges = {catalogue.batteries[0].discharges.takeFirst()};
        },
        true);
    row(
        "the batteries", [](Catalogue &catalogue) { catalogue.batteries.removeLast(); }, true);
    row(
        "a model's name", [](Catalogue &catalogue) { catalogue.models[1].name = u"Other"_s; }, true);
    row(
        "another flight", [](Catalogue &catalogue) { catalogue.models[1].log.removeFirst(); }, false);
}

void FlightEditRefusalsTest::whatHasChangedMeanwhileIsNotMistaken()
{
    QFETCH(const Change, meanwhile);
    QFETCH(const bool, isTold);
    FlightsWindow window;
    Catalogue meant = logbook();
    meanwhile(meant);
    edit(window, u"09:00:00"_s, [&](FlightEditDialog &dialog) {
        const auto change = [&meanwhile](Catalogue &catalogue) {
            meanwhile(catalogue);
            return QString();
        };
        QCOMPARE(window.logbook().change(u"Meanwhile"_s, change), QString());
        QCoreApplication::processEvents(); // the table behind it shows that already
        setNotes(dialog, u"windy"_s);
        FlightsWindow::confirm(dialog);
        QCOMPARE(dialog.isVisible(), isTold);
    });
    QCOMPARE(window.questions.told().size(), isTold ? 1 : 0);
    if (isTold)
        QVERIFY(window.questions.told().constFirst().contains(u"changed meanwhile"_s));
    else
        meant.models[0].log[0].notes = u"windy"_s;
    QVERIFY(window.stored() == meant);
}

void FlightEditRefusalsTest::exactlyOneFlightCanBeEdited()
{
    FlightsWindow window;
    const QPushButton *button = window.command(u"Edit…"_s);
    QVERIFY(!button->isEnabled());
    window.select({u"09:00:00"_s});
    QVERIFY(button->isEnabled());
    window.select({u"09:00:00"_s, u"11:00:00"_s});
    QVERIFY(!button->isEnabled());
    window.table().selectAll();
    QVERIFY(!button->isEnabled());
    window.select({u"12:00:00"_s});
    QVERIFY(button->isEnabled());
    window.logbook().setCapturing(true);
    QVERIFY(!button->isEnabled());
    window.logbook().setCapturing(false);
    QVERIFY(button->isEnabled());
    const QList<QAction *> menu = window.table().actions();
    QCOMPARE(menu.at(1)->text().remove(u'&'), u"Edit…"_s);
}

void FlightEditRefusalsTest::shiftAndF2OpenIt()
{
    FlightsWindow window;
    window.window().activateWindow();
    window.select({u"09:00:00"_s});
    window.table().setFocus();
    bool isShown = false;
    QTimer::singleShot(0, &window.tab(), [&isShown] {
        auto *dialog = qobject_cast<FlightEditDialog *>(QApplication::activeModalWidget());
        isShown = dialog;
        if (dialog)
            dialog->reject();
    });
    QTest::keyClick(&window.table(), Qt::Key_F2, Qt::ShiftModifier);
    QVERIFY(isShown);
    QVERIFY(window.table().viewport()->findChildren<QDateTimeEdit *>().isEmpty()); // nor a cell's editor
}

QTEST_MAIN(FlightEditRefusalsTest)
#include "tst_flighteditrefusals.moc"
