// SPDX-License-Identifier: GPL-3.0-or-later
// The import of radio logs in the window, with logs as a radio writes them.
#include "tests/host/support/importing.h"

#include <QElapsedTimer>
#include <QListWidget>
#include <QMimeData>
#include <QProgressBar>
#include <QTimer>

using namespace Host;
using namespace Importing;
using namespace PlainLogbook;

class ImportDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeClicksOfADayBecomeMeasured();
    void aCardFillsGuessesOffersFlightsAndLeavesBenchTestsAlone();
    void whatIsNewIsAddedWithTheBatteryThatIsChosen();
    void aChoiceThatIsStillOpenCounts();
    void withoutABatteryNothingIsAdded();
    void aModelIsChosenForAllLogsOfItsName();
    void enteredValuesAreReplacedOnlyOnRequest();
    void aClockThatIsAnHourOffIsOffered();
    void filesThatCannotBeUsedAreListed();
    void logsThatAreKnownDoNothing();
    void cancellingChangesNothing();
    void theReadingCanBeStopped();
    void closingTheDialogStopsTheReading();
    void aLogbookThatChangesMeanwhileIsReadAgain();
    void nothingIsImportedWhereNothingMayBeChanged();
    void theMenuLetsLogsOrAFolderBeChosen();
    void logsAndFoldersAreDropped();
    void nothingElseIsDropped();
};

void ImportDialogTest::threeClicksOfADayBecomeMeasured()
{
    Catalogue clicked = Flown::logbook();
    clicked.batteries[2].discharges.append(Flown::guess(at(17, 0)));
    clicked.models[0].log.append(flight(at(17, 0)));
    Flying flying(clicked);
    const QByteArray before = flying.window.bytes();
    Shown shown(flying, {flying.log(at(14, 38)), flying.log(at(15, 50)), flying.log(at(16, 52))});
    QCOMPARE(shown.outcomes(),
             (QStringList{u"fills the flight of 14:47 with A"_s, u"fills the flight of 16:00 with B"_s,
                          u"fills the flight of 17:00 with C"_s}));
    QVERIFY(shown.isTicked(0) && shown.isTicked(1) && shown.isTicked(2));
    shown.import();
    QVERIFY(!shown.dialog.isVisible());
    QCOMPARE(shown.dialog.report(), u"Imported 3 radio logs. Flights filled: 3; discharges added: 0. Undo in "
                                    "the menu Edit takes all of it back."_s);
    QCOMPARE(flying.window.logbook().undoName(), u"Imported 3 radio logs"_s);
    for (qsizetype i = 0; i < 3; ++i) {
        const Discharge &discharge = flying.catalogue().batteries.at(i).discharges.constFirst();
        QVERIFY(discharge.isMeasured);
        QCOMPARE(discharge.time, flying.catalogue().models.at(0).log.at(i).time);
        QVERIFY(discharge.discharged > 1000 && discharge.discharged < 1400);
    }
    QCOMPARE(flying.catalogue().models.at(0).log.at(0).notes, u"calm"_s);
    QCOMPARE(flying.window.logbook().undo(), QString());
    QCOMPARE(flying.window.bytes(), before);
    QVERIFY(!QFileInfo::exists(flying.measuredFile()));
}

void ImportDialogTest::aCardFillsGuessesOffersFlightsAndLeavesBenchTestsAlone()
{
    Flying flying;
    Shown first(flying, {flying.log(at(15, 50))}); // so that there is something to put back
    first.import();
    const QByteArray before = flying.window.bytes();
    const QByteArray measured = flying.measured();
    QVERIFY(!measured.isEmpty());
    flying.log(at(14, 38));
    flying.log(at(10, 0));
    flying.log(at(12, 0), 8);
    Shown shown(flying, {flying.window.place() + u"/card"_s});
    QCOMPARE(shown.outcomes(), (QStringList{u"new, with A"_s, u"bench test; shorter than 20 s"_s,
                                            u"fills the flight of 14:47 with A"_s, u"known"_s}));
    QVERIFY(!shown.isTicked(0));
    QVERIFY(!shown.cell(1, 0).data(Qt::CheckStateRole).isValid());
    QVERIFY(shown.isTicked(2));
    QVERIFY(!shown.cell(3, 0).data(Qt::CheckStateRole).isValid());
    shown.import();
    QVERIFY(flying.catalogue().batteries.at(0).discharges.constFirst().isMeasured);
    QVERIFY(flying.catalogue().batteries.at(1).discharges.constFirst().isMeasured);
    QVERIFY(flying.catalogue().batteries.at(2).discharges.isEmpty());
    QCOMPARE(flying.catalogue().models.at(0).log.size(), 2);
    QCOMPARE(flying.window.logbook().undoName(), u"Imported 1 radio log"_s);
    QCOMPARE(flying.window.logbook().undo(), QString());
    QCOMPARE(flying.window.bytes(), before);
    QCOMPARE(flying.measured(), measured);
}

void ImportDialogTest::whatIsNewIsAddedWithTheBatteryThatIsChosen()
{
    Flying flying;
    Shown shown(flying, {flying.log(at(10, 0))});
    QVERIFY(!shown.dialog.m_import->isEnabled());
    QVERIFY(shown.message().startsWith(u"What is new is added when you tick it."_s));
    shown.choose(0, ImportModel::BatteryName, u"B"_s);
    QCOMPARE(shown.outcomes(), QStringList(u"new, with B"_s));
    QVERIFY(!shown.isTicked(0));
    shown.tick(0);
    QVERIFY(shown.isTicked(0));
    shown.import();
    const Battery &battery = flying.catalogue().batteries.at(1);
    QCOMPARE(battery.discharges.size(), 2);
    QVERIFY(battery.discharges.constLast().isMeasured);
    QCOMPARE(battery.cycles, 11U);
    QCOMPARE(flying.catalogue().models.at(0).log.size(), 3);
    QVERIFY(shown.dialog.report().contains(u"discharges added: 1."_s));
}

void ImportDialogTest::aChoiceThatIsStillOpenCounts()
{
    Flying flying;
    Shown shown(flying, {flying.log(at(10, 0))});
    shown.tick(0);
    shown.edit(0, ImportModel::BatteryName, u"B"_s);
    shown.dialog.accept();
    QCOMPARE(flying.catalogue().batteries.at(1).discharges.size(), 2);
    Shown other(flying, {flying.log(at(8, 0))});
    other.edit(0, ImportModel::BatteryName, u"B"_s); // the dialog goes while it is open
}

void ImportDialogTest::withoutABatteryNothingIsAdded()
{
    Flying flying;
    Shown shown(flying, {flying.log(at(10, 0), 240, u"Firebrand"_s)});
    QCOMPARE(shown.cell(0, ImportModel::BatteryName).data().toString(), u"Choose…"_s);
    shown.tick(0);
    QVERIFY(!shown.dialog.m_import->isEnabled());
    shown.choose(0, ImportModel::BatteryName, u"C"_s);
    shown.tick(0);
    QVERIFY(shown.dialog.m_import->isEnabled());
    // Of a battery that is far larger, the same would be no flight.
    Catalogue large = Flown::logbook();
    large.batteries[2].capacity = 99'000;
    Flying other(large);
    Shown bench(other, {other.log(at(10, 0), 240, u"Firebrand"_s)});
    bench.choose(0, ImportModel::BatteryName, u"C"_s);
    QCOMPARE(bench.outcomes(), QStringList(u"bench test; less than 2 % of the capacity"_s));
    bench.choose(0, ImportModel::BatteryName, u"A"_s);
    QVERIFY(bench.outcomes().constFirst().startsWith(u"new, with A"_s));
}

void ImportDialogTest::aModelIsChosenForAllLogsOfItsName()
{
    Flying flying;
    Shown shown(flying, {flying.log(at(14, 38), 240, u"M01"_s), flying.log(at(15, 50), 240, u"M01"_s)});
    QVERIFY(shown.outcomes().constFirst().contains(u"the logbook does not have this model"_s));
    shown.choose(1, ImportModel::ModelName, u"Skylark"_s);
    QCOMPARE(shown.outcomes(),
             (QStringList{u"fills the flight of 14:47 with A"_s, u"fills the flight of 16:00 with B"_s}));
    QCOMPARE(shown.dialog.m_table->currentIndex(), shown.cell(1, ImportModel::ModelName));
    QVERIFY(shown.isTicked(0) && shown.isTicked(1));
    shown.choose(0, ImportModel::ModelName, u"Firebrand"_s); // it can be taken back
    QVERIFY(shown.outcomes().constFirst().startsWith(u"new"_s));
    shown.choose(0, ImportModel::ModelName, u"Skylark"_s);
    shown.import();
    QCOMPARE(flying.window.logbook().measured().models.value(u"M01"_s), u"Skylark"_s);
}

void ImportDialogTest::enteredValuesAreReplacedOnlyOnRequest()
{
    Catalogue entered = Flown::logbook();
    entered.batteries[0].discharges[0].discharged = 1400;
    Flying flying(entered);
    Shown shown(flying, {flying.log(at(14, 38))});
    QCOMPARE(shown.outcomes(), QStringList(u"you entered the values of the flight"_s));
    QVERIFY(!shown.dialog.m_import->isEnabled());
    QTest::mouseClick(shown.dialog.m_replaces, Qt::LeftButton, {},
                      QPoint(5, shown.dialog.m_replaces->height() / 2));
    QVERIFY(shown.isTicked(0));
    shown.import();
    QVERIFY(flying.catalogue().batteries.at(0).discharges.constFirst().isMeasured);
}

void ImportDialogTest::aClockThatIsAnHourOffIsOffered()
{
    Flying flying;
    Shown right(flying, {flying.log(at(14, 38))});
    QVERIFY(!right.dialog.m_corrects->isVisible());
    QDir(flying.card()).removeRecursively();
    QDir().mkpath(flying.card());
    flying.log(at(9, 38));
    flying.log(at(10, 50));
    Shown shown(flying, {flying.card()});
    QVERIFY(shown.outcomes().constFirst().startsWith(u"new"_s));
    QVERIFY(shown.dialog.m_corrects->isVisible());
    QVERIFY(!shown.dialog.m_corrects->isChecked());
    QCOMPARE(shown.dialog.m_corrects->text(), u"&Correct the radio's clock: it seems to be 5:00 h slow"_s);
    shown.dialog.m_corrects->setChecked(true);
    QCOMPARE(shown.outcomes().constFirst(), u"fills the flight of 14:47 with A"_s);
    shown.import();
    QCOMPARE(flying.catalogue().models.at(0).log.at(0).time.time().hour(), 14);
}

void ImportDialogTest::filesThatCannotBeUsedAreListed()
{
    Flying flying;
    Shown shown(flying, {flying.put(u"table.csv"_s, "a,b\n1,2\n"), flying.log(at(14, 38)),
                         flying.put(u"empty.csv"_s, "Date,Time,Curr(A)\n"), flying.card() + u"/gone.csv"_s});
    QVERIFY(shown.dialog.m_refused->isVisible());
    QCOMPARE(shown.dialog.m_refused->count(), 3);
    QVERIFY(shown.dialog.m_refused->item(0)->text().startsWith(u"“table.csv” is no log of a radio: "_s));
    QCOMPARE(shown.dialog.m_refused->item(1)->text(), u"“empty.csv” holds no values."_s);
    QVERIFY(shown.dialog.m_refused->item(2)->text().startsWith(u"“gone.csv”: It cannot be read"_s));
    QCOMPARE(shown.outcomes().size(), 1);
    QCOMPARE(shown.message(), QString());
    Shown nothing(flying, {flying.card() + u"/table.csv"_s});
    QCOMPARE(nothing.message(), u"There is no discharge in these logs."_s);
}

void ImportDialogTest::logsThatAreKnownDoNothing()
{
    Flying flying;
    const QString log = flying.log(at(14, 38));
    Shown(flying, {log}).import();
    const QByteArray bytes = flying.window.bytes();
    Shown again(flying, {log});
    QCOMPARE(again.outcomes(), QStringList(u"known"_s));
    QVERIFY(!again.dialog.m_import->isEnabled());
    again.dialog.accept();
    QCOMPARE(flying.window.bytes(), bytes);
}

void ImportDialogTest::cancellingChangesNothing()
{
    Flying flying;
    const QByteArray before = flying.window.bytes();
    Shown shown(flying, {flying.log(at(14, 38))});
    QTest::keyClick(&shown.dialog, Qt::Key_Escape);
    QVERIFY(!shown.dialog.isVisible());
    QCOMPARE(shown.dialog.report(), QString());
    QCOMPARE(flying.window.bytes(), before);
    QVERIFY(!QFileInfo::exists(flying.measuredFile()));
    Shown other(flying, {flying.card()});
    flying.window.questions.cancelAfter(2); // while it is written
    other.import();
    QVERIFY(other.dialog.isVisible());
    QVERIFY2(other.message().startsWith(u"Nothing was changed"_s), qPrintable(other.message()));
    QCOMPARE(flying.window.bytes(), before);
}

void ImportDialogTest::theReadingCanBeStopped()
{
    Flying flying;
    const QString small = flying.log(at(14, 38));
    Shown shown(flying, {small});
    shown.dialog.add({flying.endless()});
    QVERIFY(shown.dialog.m_progress->isVisible());
    QVERIFY(!shown.dialog.m_table->isEnabled());
    QVERIFY(!shown.dialog.m_import->isEnabled());
    QTest::keyClick(&shown.dialog, Qt::Key_Escape);
    QVERIFY(shown.dialog.isVisible());
    QVERIFY(QTest::qWaitFor([&shown] { return !shown.dialog.m_thread; }));
    QCOMPARE(shown.message(), u"The reading was stopped. What was read before is still listed."_s);
    QCOMPARE(shown.outcomes().size(), 1);
    QVERIFY(shown.dialog.m_import->isEnabled());
}

void ImportDialogTest::closingTheDialogStopsTheReading()
{
    Flying flying;
    QElapsedTimer time;
    {
        ImportDialog dialog(flying.window.logbook(), flying.window.questions);
        dialog.add({flying.endless()});
        QVERIFY(dialog.m_thread);
        time.start();
    }
    QVERIFY(time.elapsed() < 5000);
}

void ImportDialogTest::aLogbookThatChangesMeanwhileIsReadAgain()
{
    Flying flying;
    Shown shown(flying, {flying.log(at(14, 38))});
    ImportDialog reading(flying.window.logbook(), flying.window.questions);
    reading.add({flying.card()});
    const auto enter = [](Catalogue &catalogue) {
        catalogue.batteries[0].discharges[0].discharged = 1400;
        return QString();
    };
    QCOMPARE(flying.window.logbook().change(u"Edited"_s, enter), QString());
    shown.wait();
    QCOMPARE(shown.outcomes(), QStringList(u"you entered the values of the flight"_s));
    QVERIFY(!shown.dialog.m_import->isEnabled());
    QTRY_COMPARE(Panel::texts(*reading.m_table, u"What will happen"_s), shown.outcomes());
}

void ImportDialogTest::nothingIsImportedWhereNothingMayBeChanged()
{
    Flying flying;
    Shown shown(flying, {flying.log(at(14, 38))});
    QVERIFY(shown.dialog.m_import->isEnabled());
    flying.window.logbook().setCapturing(true);
    QVERIFY(!shown.dialog.m_import->isEnabled());
    QVERIFY(!flying.window.window().m_import->isEnabled());
    flying.window.logbook().setCapturing(false);
    QVERIFY(shown.dialog.m_import->isEnabled());
    QVERIFY(flying.window.window().m_import->isEnabled());
}

void ImportDialogTest::theMenuLetsLogsOrAFolderBeChosen()
{
    Flying flying;
    const QString log = flying.window.place() + u"/Skylark-2026-05-03-143800.csv"_s;
    QVERIFY(QFile::rename(flying.log(at(14, 38)), log));
    flying.log(at(15, 50));
    flying.window.questions.chooseFiles({log});
    flying.window.questions.choose(flying.card());
    QTimer::singleShot(0, &flying.window.window(), [] {
        auto *dialog = qobject_cast<ImportDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        const auto isRead = [dialog] { return !dialog->m_thread; };
        QTest::mouseClick(dialog->m_chooseFiles, Qt::LeftButton);
        QVERIFY(QTest::qWaitFor(isRead, LongEnough));
        QCOMPARE(dialog->m_model->rowCount(), 1);
        QTest::mouseClick(dialog->m_chooseFolder, Qt::LeftButton);
        QVERIFY(QTest::qWaitFor(isRead, LongEnough));
        QCOMPARE(dialog->m_model->rowCount(), 2);
        dialog->accept();
    });
    flying.window.window().m_import->trigger();
    QVERIFY(flying.window.questions.isDone());
    QVERIFY(flying.window.message(u"import"_s).startsWith(u"Imported 2 radio logs."_s));
}

void ImportDialogTest::logsAndFoldersAreDropped()
{
    Flying flying;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(flying.log(at(14, 38))), QUrl::fromLocalFile(flying.card())});
    QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    enter.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&flying.window.window(), &enter);
    QVERIFY(enter.isAccepted());
    QCOMPARE(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop(QPointF(9, 9), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(&flying.window.window(), &drop);
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
    QVERIFY(!QApplication::activeModalWidget()); // who drags does not wait
    QTimer::singleShot(0, &flying.window.window(), [] {
        auto *dialog = qobject_cast<ImportDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QVERIFY(QTest::qWaitFor([dialog] { return !dialog->m_thread; }, LongEnough));
        QCOMPARE(dialog->m_model->rowCount(), 1);
        dialog->accept();
    });
    QTRY_VERIFY(!flying.window.message(u"import"_s).isEmpty());
    flying.window.logbook().setCapturing(true);
    QDragEnterEvent late(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&flying.window.window(), &late);
    QVERIFY(!late.isAccepted());
}

void ImportDialogTest::nothingElseIsDropped()
{
    Flying flying;
    const QUrl log = QUrl::fromLocalFile(flying.log(at(14, 38)));
    const QUrl picture = QUrl::fromLocalFile(flying.put(u"picture.png"_s, "x"));
    for (const QList<QUrl> &urls : {QList<QUrl>{}, QList<QUrl>{picture}, QList<QUrl>{log, picture},
                                    QList<QUrl>{log, QUrl(u"http://host/a.csv"_s)}}) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&flying.window.window(), &enter);
        QVERIFY(!enter.isAccepted());
    }
}

QTEST_MAIN(ImportDialogTest)
#include "tst_importdialog.moc"
