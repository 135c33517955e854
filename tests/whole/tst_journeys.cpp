// SPDX-License-Identifier: GPL-3.0-or-later
// Three pilots, each from an empty folder to a full catalogue, with clicks and keys alone.
#include "tests/support/editingwindow.h"
#include "tests/support/recordtext.h"

#include <QRegularExpression>

#include <QApplication>
#include <QClipboard>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

namespace {

/** A data file without the moments at which something was done. */
QByteArray withoutMoments(const QByteArray &bytes)
{
    static const QRegularExpression moment(u"(?<=<LastUse>|<LastUpdate>| Date=\")[^<\"]+"_s);
    return QString::fromUtf8(bytes).remove(moment).toUtf8();
}

/** What the user sees of the catalogue. */
QStringList textsOnShow(const VoltbokGui &gui)
{
    QStringList texts;
    for (const BatteryWidget *card : gui.batteryList) {
        for (const QLabel *label : card->findChildren<QLabel *>())
            texts += label->objectName() + u' ' + label->text();
        texts += card->findChild<QPushButton *>()->text();
    }
    QStringList choosers; // the one of the overview changes its place with every reload
    for (const QComboBox *chooser : gui.ui->stackedWidget->findChildren<QComboBox *>())
        choosers += chooser->objectName() + u": "_s + EditingWindow::items(chooser).join(u'|');
    choosers.sort();
    return texts + choosers;
}

/** A window that a pilot works with. */
class Pilot : public EditingWindow
{
public:
    static void fill(const QList<std::pair<QLineEdit *, QString>> &inputs)
    {
        for (const auto &[field, input] : inputs)
            type(field, input);
    }

    void buyBattery(const QString &name, const QString &capacity, const QString &chargeRate,
                    const QString &rating, const QString &cycles, const QString &purchase)
    {
        goTo(ui().pb_choose_addbattery);
        fill({{ui().ledt_name, name},
              {ui().ledt_capacity, capacity},
              {ui().ledt_chargeRate, chargeRate},
              {ui().ledt_dischargeRate, rating},
              {ui().ledt_cyclesused, cycles},
              {ui().ledt_purchaseDate, purchase}});
        click(ui().pb_addNewBattery);
    }

    void buildModel(const QString &name, const QString &modelType, const QString &weight, const QString &size,
                    const QString &flights, const QString &purchase, const QString &notes)
    {
        goTo(ui().pb_choose_addmodel);
        fill({{ui().ledt_addheli_name, name},
              {ui().ledt_addheli_type, modelType},
              {ui().ledt_addheli_weight, weight},
              {ui().ledt_addheli_size, size},
              {ui().ledt_addheli_flightsused, flights},
              {ui().ledt_addheli_purchase, purchase}});
        write(ui().ledt_addheli_notes, notes);
        click(ui().pb_addNewModel);
    }

    /** Pastes, for a tab that is typed leaves the notes. */
    static void write(QPlainTextEdit *field, const QString &notes)
    {
        QVERIFY(field->isVisible());
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QApplication::clipboard()->setText(notes);
        QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    }

    static void enter(QAbstractSpinBox *field, const QString &value)
    {
        QVERIFY(field->isVisible());
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, value);
        QTest::keyClick(field, Qt::Key_Return);
    }

    static void enterTime(QTimeEdit *field, const QString &digits)
    {
        QVERIFY(field->isVisible());
        field->setFocus();
        field->setSelectedSection(QDateTimeEdit::HourSection);
        QTest::keyClicks(field, digits);
    }

    void chooseMode(QRadioButton *mode)
    {
        goToOverview();
        click(ui().pb_options);
        click(ui().pb_mode);
        click(mode);
        QVERIFY(mode->isChecked());
        goToOverview();
    }

    void flyInFull(const QString &name, const QString &discharged, const QString &current)
    {
        clickCard(battery(name));
        QVERIFY(shows(ui().dischargeView, Page::Discharge));
        enter(ui().sb_discharged_capacity, discharged);
        enter(ui().dsb_discharged_current, current);
    }

    /** Charges a battery that is discharged, or flies one that is charged. */
    void use(const QString &name) { clickCard(battery(name)); }

    /** The file holds this and no more, and a second window reads it as the first one has it. */
    void expect(const Catalogue &catalogue)
    {
        QCOMPARE(withoutMoments(fileBytes()), withoutMoments(document(catalogue)));
        compareWithASecondWindow();
    }

private:
    /** Opens a second window over the same folder and compares every field of the two. */
    void compareWithASecondWindow()
    {
        VoltbokGui second;
        second.changeStoragePath(folder());
        QCOMPARE(RecordText::of(second.batteryList, second.modelList),
                 RecordText::of(gui().batteryList, gui().modelList));
        QCOMPARE(textsOnShow(second), textsOnShow(gui()));
        const QByteArray before = fileBytes();
        second.writeDataWithDataprocessor();
        QCOMPARE(fileBytes(), before);
    }
};

} // namespace

class JourneysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPilotWithHelicoptersWhoNotesEveryFlight();
    void aPilotWithPlanesWhoRecordsInAHurry();
    void aPilotWhoMakesMistakesAndCorrectsThem();

private:
    static void fillTheHangar(Pilot &pilot);
    static void flyTheBigHelicopter(Pilot &pilot);
    static void flyTheSmallHelicopter(Pilot &pilot);

    static void flyTwiceInARow(Pilot &pilot);
    static void correctTheCapacity(Pilot &pilot);

    static void addTheBatteryAtTheThirdAttempt(Pilot &pilot);
    static void correctTheLocation(Pilot &pilot);
    static void buildTheModelAgain(Pilot &pilot);
    static void takeTheAssignmentBackOnce(Pilot &pilot);
    static void breakTheFirstCaptureOff(Pilot &pilot);
};

void JourneysTest::fillTheHangar(Pilot &pilot)
{
    pilot.addLocation(u"Airfield <north>"_s);
    pilot.addLocation(u"Gravel & \"Grass\""_s);
    pilot.buildModel(u"Logo"_s, u"Heli"_s, u"350"_s, u"600"_s, u"41"_s, u"20220314"_s, u"red hood"_s);
    pilot.buildModel(u"Mini"_s, u"Heli"_s, u"029"_s, u"250"_s, u"0"_s, u"20251224"_s, u"indoor"_s);
    pilot.buyBattery(u"6S-1"_s, u"5000"_s, u"20"_s, u"30"_s, u"12"_s, u"20240229"_s);
    pilot.buyBattery(u"6S-1"_s, u"5000"_s, u"20"_s, u"30"_s, u"11"_s, u"20240229"_s);
    pilot.buyBattery(u"3S"_s, u"850"_s, u"35"_s, u"45"_s, u"0"_s, u"20251224"_s);
    pilot.assign(u"6S-1"_s, u"Logo"_s);
    pilot.assign(u"6S-1_1"_s, u"Logo"_s);
    pilot.assign(u"3S"_s, u"Mini"_s);
    pilot.goToOverview();
    QCOMPARE(pilot.cardsOnShow(), QStringList({u"6S-1"_s, u"6S-1_1"_s}));
}

void JourneysTest::flyTheBigHelicopter(Pilot &pilot)
{
    pilot.use(u"6S-1"_s);
    pilot.use(u"6S-1_1"_s); // which stays charged
    pilot.flyInFull(u"6S-1"_s, u"4100"_s, u"0.29"_s);
    pilot.choose(pilot.ui().cb_log_location, u"Gravel & \"Grass\""_s);
    pilot.enterTime(pilot.ui().sb_log_duration, u"000730"_s);
    pilot.enter(pilot.ui().sb_log_temp, u"-7"_s);
    pilot.write(pilot.ui().ptext_log_notes, u"first of the year"_s);
    pilot.click(pilot.ui().pb_save_discharged);
    QVERIFY(pilot.showsOverview());
}

void JourneysTest::flyTheSmallHelicopter(Pilot &pilot)
{
    pilot.choose(pilot.ui().cb_select_model, u"Mini"_s);
    QCOMPARE(pilot.cardsOnShow(), QStringList{u"3S"_s});
    pilot.use(u"3S"_s);
    pilot.flyInFull(u"3S"_s, u"640"_s, u"12.5"_s);
    pilot.click(pilot.ui().pb_save_discharged);
}

void JourneysTest::aPilotWithHelicoptersWhoNotesEveryFlight()
{
    Pilot pilot;
    QVERIFY(pilot.ui().lbl_welcome->isVisible());
    QVERIFY(!pilot.ui().pb_chart->isEnabled());
    pilot.chooseMode(pilot.ui().rb_modeAdvanced);
    fillTheHangar(pilot);
    flyTheBigHelicopter(pilot);
    flyTheSmallHelicopter(pilot);

    const QString grass = u"Gravel & \"Grass\""_s;
    const Flight flight{{}, grass, QTime(0, 7, 30), -7, u"first of the year"_s}; // the page keeps it
    const QDate christmas(2025, 12, 24);
    const Battery used{u"6S-1"_s, false, {{{}, 4100, 28}}, 5000, 20, 30, 13};
    const Battery charged{u"6S-1_1"_s, true, {}, 5000, 20, 30, 11};
    const Battery small{u"3S"_s, false, {{{}, 640, 1250}}, 850, 35, 45, 1, christmas};
    Model logo{u"Logo"_s, {u"6S-1"_s, u"6S-1_1"_s}, {flight}, 350, 600, 41, u"Heli"_s, u"red hood"_s};
    logo.purchase = QDate(2022, 3, 14);
    const Model mini{u"Mini"_s, {u"3S"_s}, {flight}, 28, 250, 0, u"Heli"_s, u"indoor"_s, christmas};
    pilot.expect({{used, charged, small}, {logo, mini}, {u"Airfield <north>"_s, grass}});
}

void JourneysTest::flyTwiceInARow(Pilot &pilot)
{
    for (int flight = 0; flight < 2; ++flight) {
        pilot.use(u"Big"_s); // charges it
        pilot.use(u"Big"_s);
        QVERIFY(pilot.showsOverview());
    }
}

void JourneysTest::correctTheCapacity(Pilot &pilot)
{
    pilot.goToEditPage();
    pilot.choose(pilot.ui().cb_bat_choose_model, u"Big"_s);
    pilot.click(pilot.ui().pb_choose_modify_battery);
    pilot.type(pilot.ui().ledt_modifyBattery_capacity, u"2100"_s);
    pilot.click(pilot.ui().pb_update_battery);
}

void JourneysTest::aPilotWithPlanesWhoRecordsInAHurry()
{
    Pilot pilot;
    pilot.buildModel(u"Wing"_s, u"Plane"_s, u"115"_s, u"1400"_s, u"7"_s, u"20230501"_s, QString());
    pilot.buildModel(u"SÄGER"_s, u"Glider"_s, u"200"_s, u"2600"_s, u"150"_s, u"19991231"_s, u"F5J"_s);
    pilot.buyBattery(u"Big"_s, u"2200"_s, u"10"_s, u"25"_s, u"3"_s, u"20230501"_s);
    QCOMPARE(pilot.cardsOnShow(), QStringList());
    QVERIFY(pilot.ui().lbl_optionshint->isVisible());
    pilot.assign(u"Big"_s, u"Wing"_s);
    pilot.assign(u"Big"_s, u"SÄGER"_s);
    pilot.goToOverview();
    flyTwiceInARow(pilot);
    pilot.addLocation(u"Slope"_s);
    correctTheCapacity(pilot);
    pilot.use(u"Big"_s);
    pilot.use(u"Big"_s);

    const QDate mayDay(2023, 5, 1);
    const QList<Discharge> history{{{}, 1760, 5500}, {{}, 1760, 5500}, {{}, 1680, 5250}};
    const Battery big{u"Big"_s, false, history, 2100, 10, 25, 6, mayDay};
    const Flight nowhere{{}, QString(), QTime(0, 0), 0};
    const Flight onTheSlope{{}, u"Slope"_s, QTime(0, 0), 0};
    const QList<Flight> flights{nowhere, nowhere, onTheSlope};
    const Model wing{u"Wing"_s, {u"Big"_s}, flights, 114, 1400, 7, u"Plane"_s, QString(), mayDay};
    Model glider{u"SÄGER"_s, {u"Big"_s}, {}, 200, 2600, 150, u"Glider"_s, u"F5J"_s};
    glider.purchase = QDate(1999, 12, 31);
    pilot.expect({{big}, {wing, glider}, {u"Slope"_s}});
}

void JourneysTest::addTheBatteryAtTheThirdAttempt(Pilot &pilot)
{
    // No name at first, added twice, the wrong one chosen for deletion, half a date, a wrong rate.
    pilot.buyBattery(QString(), u"220"_s, u" 5"_s, u"30"_s, u"0"_s, u"2026-1 -0 "_s);
    QVERIFY(pilot.shows(pilot.ui().addView, Page::AddBattery));
    pilot.type(pilot.ui().ledt_name, u"Pack"_s);
    pilot.click(pilot.ui().pb_addNewBattery);
    pilot.addBattery(u"Pack"_s);
    QCOMPARE(pilot.batteryNames(), QStringList({u"Pack"_s, u"Pack_1"_s}));
    pilot.goTo(pilot.ui().pb_choose_delbattery);
    pilot.click(pilot.ui().pb_deleteConfirm);
    pilot.choose(pilot.ui().cb_batteryList_delete, u"Pack_1"_s);
    pilot.click(pilot.ui().pb_deleteConfirm);
    pilot.click(pilot.ui().pb_deleteConfirm);
    pilot.goTo(pilot.ui().pb_choose_modify_battery);
    QCOMPARE(pilot.ui().ledt_modifyBattery_chargeRate->text(), u"5."_s);
    pilot.fill({{pilot.ui().ledt_modifyBattery_capacity, u"2200"_s},
                {pilot.ui().ledt_modifyBattery_chargeRate, u"15"_s},
                {pilot.ui().ledt_modifyBattery_purchaseDate, u"20260103"_s}});
    pilot.click(pilot.ui().pb_update_battery);
}

void JourneysTest::correctTheLocation(Pilot &pilot)
{
    pilot.addLocation(u"Medow"_s);
    pilot.addLocation(u"Hill"_s);
    pilot.goTo(pilot.ui().pb_choose_dellocation);
    pilot.click(pilot.ui().pb_del_location); // gone with the first click
    pilot.addLocation(u"Meadow"_s);
}

void JourneysTest::buildTheModelAgain(Pilot &pilot)
{
    // Its weight is lost in an update, so it is deleted and built again, under its old name.
    pilot.buildModel(u"Bird"_s, u"Hli"_s, u"150"_s, u"700"_s, u"0"_s, u"20260103"_s, u"x"_s);
    pilot.goTo(pilot.ui().pb_choose_modify_model);
    pilot.type(pilot.ui().ledt_modifyheli_type, u"Heli"_s);
    pilot.click(pilot.ui().pb_update_model);
    QCOMPARE(pilot.model(u"Bird"_s)->getModelWeight(), 0U);
    pilot.restart();
    pilot.goTo(pilot.ui().pb_choose_delmodel);
    pilot.click(pilot.ui().pb_deleteConfirm_model);
    pilot.click(pilot.ui().pb_deleteConfirm_model);
    QVERIFY(pilot.showsOverview());
    pilot.buildModel(u"Bird"_s, u"Heli"_s, u"150"_s, u"700"_s, u"0"_s, u"20260103"_s, u"two\tblades"_s);
}

void JourneysTest::takeTheAssignmentBackOnce(Pilot &pilot)
{
    pilot.assign(u"Pack"_s, u"Bird"_s);
    pilot.click(pilot.ui().pb_rem_batt_from_model);
    QVERIFY(pilot.model(u"Bird"_s)->getBatteries().isEmpty());
    pilot.click(pilot.ui().pb_add_batt_to_model);
}

void JourneysTest::breakTheFirstCaptureOff(Pilot &pilot)
{
    pilot.use(u"Pack"_s);
    pilot.flyInFull(u"Pack"_s, u"99999"_s, u"40"_s);
    pilot.click(pilot.ui().pb_options);
    QVERIFY(pilot.battery(u"Pack"_s)->getBatteryCharged());
    pilot.flyInFull(u"Pack"_s, u"1810"_s, u"40"_s);
    pilot.click(pilot.ui().pb_save_discharged);
}

void JourneysTest::aPilotWhoMakesMistakesAndCorrectsThem()
{
    Pilot pilot;
    addTheBatteryAtTheThirdAttempt(pilot);
    correctTheLocation(pilot);
    buildTheModelAgain(pilot);
    takeTheAssignmentBackOnce(pilot);
    pilot.chooseMode(pilot.ui().rb_modeAdvanced);
    breakTheFirstCaptureOff(pilot);

    const QDate bought(2026, 1, 3);
    const Flight onTheHill{{}, u"Hill"_s, QTime(0, 0), 0};
    const Battery pack{u"Pack"_s, false, {{{}, 1810, 4000}}, 2200, 15, 30, 1, bought};
    const Model bird{u"Bird"_s, {u"Pack"_s}, {onTheHill}, 150, 700, 0, u"Heli"_s, u"two\tblades"_s, bought};
    pilot.expect({{pack}, {bird}, {u"Hill"_s, u"Meadow"_s}});
}

QTEST_MAIN(JourneysTest)
#include "tst_journeys.moc"
