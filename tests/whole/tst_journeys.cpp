// SPDX-License-Identifier: GPL-3.0-or-later
// Three pilots, each from an empty folder to a full catalogue, with clicks and keys alone.
#include "tests/support/editingwindow.h"

#include <QApplication>
#include <QClipboard>

using namespace Qt::Literals::StringLiterals;

namespace {

QString text(const QDateTime &moment)
{
    return moment.toString(Qt::TextDate); // whole seconds: the file keeps no finer time
}

/** Every field of the catalogue but the moments at which something was done. */
QStringList figures(VoltbokGui &gui)
{
    QStringList lines;
    for (const QString &location : EditingWindow::items(gui.ui->cb_log_location))
        lines += u"location %1"_qs.arg(location);
    for (BatteryWidget *battery : std::as_const(gui.batteryList)) {
        lines += u"battery %1: %2 mAh, %3 tenths of C, %4 C, %5 cycles, bought %6, %7"_qs.arg(
            battery->getBatteryName(), QString::number(battery->getBatteryCapacity()),
            QString::number(battery->getBatteryChargeRate()), QString::number(battery->getBatteryRating()),
            QString::number(battery->getBatteryCycles()), battery->getdateOfPurchase().toString(Qt::ISODate),
            battery->getBatteryCharged() ? u"charged"_qs : u"discharged"_qs);
        lines += u"  last %1 mAh, %2 hundredths of A"_qs.arg(battery->getBatteryLastDischarged())
                     .arg(battery->getBatteryLastMaxCurrent());
        for (qsizetype i = 0; i < battery->getDates().size(); ++i)
            lines += u"  discharge %1 mAh, %2 hundredths of A"_qs.arg(battery->getDischarges().at(i))
                         .arg(battery->getCurrents().at(i));
    }
    for (ModelWidget *model : std::as_const(gui.modelList)) {
        lines += u"model %1: %2, weight %3, size %4, %5 flights, bought %6, flies %7, notes %8"_qs.arg(
            model->getModelName(), model->getModelType(), QString::number(model->getModelWeight()),
            QString::number(model->getModelSize()), QString::number(model->getModelFlights()),
            model->getDateOfPurchase().toString(Qt::ISODate), model->getBatteries().join(u'+'),
            model->getAdditionalNotes());
        for (const LogData &flight : model->getLogData())
            lines += u"  flight at %1, %2, %3 degrees, notes %4"_qs.arg(
                flight.location, flight.duration.toString(Qt::TextDate), QString::number(flight.temperature),
                flight.notes);
    }
    return lines;
}

/** The moments at which something was done, and what the user sees of the catalogue. */
QStringList momentsAndTexts(VoltbokGui &gui)
{
    QStringList lines;
    for (BatteryWidget *battery : std::as_const(gui.batteryList)) {
        lines += u"battery "_qs + text(battery->getBatteryLastUpdated());
        for (const QDateTime &moment : battery->getDates())
            lines += u"  discharge "_qs + text(moment);
        for (const QLabel *label : battery->findChildren<QLabel *>())
            lines += u"  "_qs + label->objectName() + u' ' + label->text();
        lines += u"  "_qs + battery->findChild<QPushButton *>()->text();
    }
    for (ModelWidget *model : std::as_const(gui.modelList)) {
        lines += u"model "_qs + text(model->getLastUpdated());
        for (const LogData &flight : model->getLogData())
            lines += u"  flight "_qs + text(flight.date);
    }
    QStringList choosers; // the one of the overview changes its place with every reload
    for (const QComboBox *chooser : gui.ui->stackedWidget->findChildren<QComboBox *>())
        choosers += chooser->objectName() + u": "_qs + EditingWindow::items(chooser).join(u'|');
    choosers.sort();
    return lines + choosers;
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

    void remove(QComboBox *chooser, const QString &name, QPushButton *page, QPushButton *button)
    {
        goTo(page);
        choose(chooser, name);
        click(button);
        click(button);
        QVERIFY(showsOverview());
    }

    /** Opens a second window over the same folder and compares every field of the two. */
    void compareWithASecondWindow()
    {
        VoltbokGui second;
        second.changeStoragePath(folder());
        QCOMPARE(figures(second), figures(gui()));
        QCOMPARE(momentsAndTexts(second), momentsAndTexts(gui()));
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
};

void JourneysTest::aPilotWithHelicoptersWhoNotesEveryFlight()
{
    Pilot pilot;
    QVERIFY(pilot.ui().lbl_welcome->isVisible());
    QVERIFY(!pilot.ui().pb_chart->isEnabled());
    pilot.chooseMode(pilot.ui().rb_modeAdvanced);
    pilot.addLocation(u"Airfield <north>"_qs);
    pilot.addLocation(u"Gravel & \"Grass\""_qs);
    pilot.buildModel(u"Logo"_qs, u"Heli"_qs, u"350"_qs, u"600"_qs, u"41"_qs, u"20220314"_qs, u"red hood"_qs);
    pilot.buildModel(u"Mini"_qs, u"Heli"_qs, u"029"_qs, u"250"_qs, u"0"_qs, u"20251224"_qs, u"indoor"_qs);
    pilot.buyBattery(u"6S-1"_qs, u"5000"_qs, u"20"_qs, u"30"_qs, u"12"_qs, u"20240229"_qs);
    pilot.buyBattery(u"6S-1"_qs, u"5000"_qs, u"20"_qs, u"30"_qs, u"11"_qs, u"20240229"_qs);
    pilot.buyBattery(u"3S"_qs, u"850"_qs, u"35"_qs, u"45"_qs, u"0"_qs, u"20251224"_qs);
    for (const QString &battery : {u"6S-1"_qs, u"6S-1_1"_qs})
        pilot.assign(battery, u"Logo"_qs);
    pilot.assign(u"3S"_qs, u"Mini"_qs);

    pilot.goToOverview();
    QCOMPARE(pilot.cardsOnShow(), QStringList({u"6S-1"_qs, u"6S-1_1"_qs}));
    pilot.clickCard(pilot.battery(u"6S-1"_qs));
    pilot.clickCard(pilot.battery(u"6S-1_1"_qs));
    pilot.flyInFull(u"6S-1"_qs, u"4100"_qs, u"0.29"_qs);
    pilot.choose(pilot.ui().cb_log_location, u"Gravel & \"Grass\""_qs);
    pilot.enterTime(pilot.ui().sb_log_duration, u"000730"_qs);
    pilot.enter(pilot.ui().sb_log_temp, u"-7"_qs);
    pilot.write(pilot.ui().ptext_log_notes, u"first of the year"_qs);
    pilot.click(pilot.ui().pb_save_discharged);
    QVERIFY(pilot.showsOverview());

    pilot.choose(pilot.ui().cb_select_model, u"Mini"_qs);
    QCOMPARE(pilot.cardsOnShow(), QStringList{u"3S"_qs});
    pilot.clickCard(pilot.battery(u"3S"_qs));
    pilot.flyInFull(u"3S"_qs, u"640"_qs, u"12.5"_qs);
    pilot.click(pilot.ui().pb_save_discharged);

    QCOMPARE(
        figures(pilot.gui()),
        QStringList(
            {u"location Airfield <north>"_qs, u"location Gravel & \"Grass\""_qs,
             u"battery 6S-1: 5000 mAh, 20 tenths of C, 30 C, 13 cycles, bought 2024-02-29, discharged"_qs,
             u"  last 4100 mAh, 28 hundredths of A"_qs, u"  discharge 4100 mAh, 28 hundredths of A"_qs,
             u"battery 6S-1_1: 5000 mAh, 20 tenths of C, 30 C, 11 cycles, bought 2024-02-29, charged"_qs,
             u"  last 0 mAh, 0 hundredths of A"_qs,
             u"battery 3S: 850 mAh, 35 tenths of C, 45 C, 1 cycles, bought 2025-12-24, discharged"_qs,
             u"  last 640 mAh, 1250 hundredths of A"_qs, u"  discharge 640 mAh, 1250 hundredths of A"_qs,
             u"model Logo: Heli, weight 350, size 600, 41 flights, bought 2022-03-14, flies 6S-1+6S-1_1, notes red hood"_qs,
             u"  flight at Gravel & \"Grass\", 00:07:30, -7 degrees, notes first of the year"_qs,
             u"model Mini: Heli, weight 28, size 250, 0 flights, bought 2025-12-24, flies 3S, notes indoor"_qs,
             u"  flight at Gravel & \"Grass\", 00:07:30, -7 degrees, notes first of the year"_qs}));
    pilot.compareWithASecondWindow();
}

void JourneysTest::aPilotWithPlanesWhoRecordsInAHurry()
{
    Pilot pilot;
    pilot.buildModel(u"Wing"_qs, u"Plane"_qs, u"115"_qs, u"1400"_qs, u"7"_qs, u"20230501"_qs, QString());
    pilot.buildModel(u"SÄGER"_qs, u"Glider"_qs, u"200"_qs, u"2600"_qs, u"150"_qs, u"19991231"_qs, u"F5J"_qs);
    pilot.buyBattery(u"Big"_qs, u"2200"_qs, u"10"_qs, u"25"_qs, u"3"_qs, u"20230501"_qs);
    QCOMPARE(pilot.cardsOnShow(), QStringList());
    QVERIFY(pilot.ui().lbl_optionshint->isVisible());
    pilot.assign(u"Big"_qs, u"Wing"_qs);
    pilot.assign(u"Big"_qs, u"SÄGER"_qs);
    pilot.goToOverview();
    for (int flight = 0; flight < 2; ++flight) { // charged and flown at once, twice
        pilot.clickCard(pilot.battery(u"Big"_qs));
        pilot.clickCard(pilot.battery(u"Big"_qs));
        QVERIFY(pilot.showsOverview());
    }
    pilot.addLocation(u"Slope"_qs);

    pilot.goToEditPage();
    pilot.choose(pilot.ui().cb_bat_choose_model, u"Big"_qs);
    pilot.click(pilot.ui().pb_choose_modify_battery);
    pilot.type(pilot.ui().ledt_modifyBattery_capacity, u"2100"_qs);
    pilot.click(pilot.ui().pb_update_battery);
    pilot.clickCard(pilot.battery(u"Big"_qs));
    pilot.clickCard(pilot.battery(u"Big"_qs));

    QCOMPARE(
        figures(pilot.gui()),
        QStringList(
            {u"location Slope"_qs,
             u"battery Big: 2100 mAh, 10 tenths of C, 25 C, 6 cycles, bought 2023-05-01, discharged"_qs,
             u"  last 1680 mAh, 5250 hundredths of A"_qs, u"  discharge 1760 mAh, 5500 hundredths of A"_qs,
             u"  discharge 1760 mAh, 5500 hundredths of A"_qs,
             u"  discharge 1680 mAh, 5250 hundredths of A"_qs,
             u"model Wing: Plane, weight 114, size 1400, 7 flights, bought 2023-05-01, flies Big, notes "_qs,
             u"  flight at , 00:00:00, 0 degrees, notes "_qs, u"  flight at , 00:00:00, 0 degrees, notes "_qs,
             u"  flight at Slope, 00:00:00, 0 degrees, notes "_qs,
             u"model SÄGER: Glider, weight 200, size 2600, 150 flights, bought 1999-12-31, flies Big, notes F5J"_qs}));
    pilot.compareWithASecondWindow();
}

void JourneysTest::aPilotWhoMakesMistakesAndCorrectsThem()
{
    Pilot pilot;
    // The battery: no name at first, added twice, the wrong one chosen for deletion, half a date, a wrong
    // rate.
    pilot.buyBattery(QString(), u"220"_qs, u" 5"_qs, u"30"_qs, u"0"_qs, u"2026-1 -0 "_qs);
    QVERIFY(pilot.shows(pilot.ui().addView, Page::AddBattery));
    pilot.type(pilot.ui().ledt_name, u"Pack"_qs);
    pilot.click(pilot.ui().pb_addNewBattery);
    pilot.addBattery(u"Pack"_qs);
    QCOMPARE(pilot.batteryNames(), QStringList({u"Pack"_qs, u"Pack_1"_qs}));
    pilot.goTo(pilot.ui().pb_choose_delbattery);
    pilot.click(pilot.ui().pb_deleteConfirm);
    pilot.choose(pilot.ui().cb_batteryList_delete, u"Pack_1"_qs);
    pilot.click(pilot.ui().pb_deleteConfirm);
    pilot.click(pilot.ui().pb_deleteConfirm);
    pilot.goTo(pilot.ui().pb_choose_modify_battery);
    QCOMPARE(pilot.ui().ledt_modifyBattery_chargeRate->text(), u"5."_qs);
    pilot.fill({{pilot.ui().ledt_modifyBattery_capacity, u"2200"_qs},
                {pilot.ui().ledt_modifyBattery_chargeRate, u"15"_qs},
                {pilot.ui().ledt_modifyBattery_purchaseDate, u"20260103"_qs}});
    pilot.click(pilot.ui().pb_update_battery);

    // The location: misspelt, gone with the first click, added anew.
    pilot.addLocation(u"Medow"_qs);
    pilot.addLocation(u"Hill"_qs);
    pilot.goTo(pilot.ui().pb_choose_dellocation);
    pilot.click(pilot.ui().pb_del_location);
    pilot.addLocation(u"Meadow"_qs);

    // The model: its weight is lost in an update, so it is deleted and built again, under its old name.
    pilot.buildModel(u"Bird"_qs, u"Hli"_qs, u"150"_qs, u"700"_qs, u"0"_qs, u"20260103"_qs, u"x"_qs);
    pilot.goTo(pilot.ui().pb_choose_modify_model);
    pilot.type(pilot.ui().ledt_modifyheli_type, u"Heli"_qs);
    pilot.click(pilot.ui().pb_update_model);
    QCOMPARE(pilot.model(u"Bird"_qs)->getModelWeight(), 0U);
    pilot.restart();
    pilot.remove(pilot.ui().cb_modelList_delete, u"Bird"_qs, pilot.ui().pb_choose_delmodel,
                 pilot.ui().pb_deleteConfirm_model);
    pilot.buildModel(u"Bird"_qs, u"Heli"_qs, u"150"_qs, u"700"_qs, u"0"_qs, u"20260103"_qs,
                     u"two\tblades"_qs);

    // The assignment: taken back once. The flight: begun, left with the menu button, then recorded.
    pilot.assign(u"Pack"_qs, u"Bird"_qs);
    pilot.click(pilot.ui().pb_rem_batt_from_model);
    QVERIFY(pilot.model(u"Bird"_qs)->getBatteries().isEmpty());
    pilot.click(pilot.ui().pb_add_batt_to_model);
    pilot.chooseMode(pilot.ui().rb_modeAdvanced);
    pilot.clickCard(pilot.battery(u"Pack"_qs));
    pilot.flyInFull(u"Pack"_qs, u"99999"_qs, u"40"_qs);
    pilot.click(pilot.ui().pb_options);
    QVERIFY(pilot.battery(u"Pack"_qs)->getBatteryCharged());
    pilot.flyInFull(u"Pack"_qs, u"1810"_qs, u"40"_qs);
    pilot.click(pilot.ui().pb_save_discharged);

    QCOMPARE(
        figures(pilot.gui()),
        QStringList(
            {u"location Hill"_qs, u"location Meadow"_qs,
             u"battery Pack: 2200 mAh, 15 tenths of C, 30 C, 1 cycles, bought 2026-01-03, discharged"_qs,
             u"  last 1810 mAh, 4000 hundredths of A"_qs, u"  discharge 1810 mAh, 4000 hundredths of A"_qs,
             u"model Bird: Heli, weight 150, size 700, 0 flights, bought 2026-01-03, flies Pack, notes two\tblades"_qs,
             u"  flight at Hill, 00:00:00, 0 degrees, notes "_qs}));
    pilot.compareWithASecondWindow();
}

QTEST_MAIN(JourneysTest)
#include "tst_journeys.moc"
