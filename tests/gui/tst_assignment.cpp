// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/editingwindow.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class AssignmentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addAssignsTheBatteryAndTheButtonsSwap();
    void removeTakesTheBatteryAwayAndTheButtonsSwap();
    void exactlyOneButtonIsEnabledForEveryPair_data();
    void exactlyOneButtonIsEnabledForEveryPair();
    void theButtonsFollowTheModelOfTheOverview();
    void theButtonsFollowAReload();
    void severalBatteriesAreAssignedInARow();
    void eachAssignmentGoesBackToTheFirstPairOnPurpose();
    void theModelThatThePreferencesNameStaysChosen();
    void theRecordsOnScreenAreReadFromTheFile();
    void theTimeOfTheLastUpdateStays();
    void removeTakesOnlyTheExactName();
    void ofTwoModelsOfOneNameTheLastIsMeant();
    void withoutModelOnlyAddIsEnabledAndDoesNothing();
    void aBatteryThatIsGoneCanBeAssignedOnPurpose();
    void withoutAnyBatteryTheEmptyNameIsAssignedOnPurpose();

private:
    static QByteArray catalogue();
    static void expectAssigned(EditingWindow &window, bool assigned);
    static void choosePair(EditingWindow &window, const QString &model, const QString &battery);
};

QByteArray AssignmentTest::catalogue()
{
    return document({{flownBattery(u"A"_s), flownBattery(u"B"_s), flownBattery(u"C"_s)},
                     {flownModel(u"Bird"_s, {u"B"_s}), flownModel(u"Wing"_s, {u"A"_s, u"C"_s})}});
}

void AssignmentTest::expectAssigned(EditingWindow &window, bool assigned)
{
    QCOMPARE(window.ui().pb_rem_batt_from_model->isEnabled(), assigned);
    QCOMPARE(window.ui().pb_add_batt_to_model->isEnabled(), !assigned);
}

void AssignmentTest::choosePair(EditingWindow &window, const QString &model, const QString &battery)
{
    window.choose(window.ui().cb_model_choose_bat, model);
    window.choose(window.ui().cb_bat_choose_model, battery);
}

void AssignmentTest::addAssignsTheBatteryAndTheButtonsSwap()
{
    EditingWindow window;
    window.load(catalogue());
    QCOMPARE(window.cardsOnShow(), QStringList{u"B"_s});
    window.goToEditPage();
    choosePair(window, u"Bird"_s, u"A"_s);
    expectAssigned(window, false);
    window.click(window.ui().pb_add_batt_to_model);

    QCOMPARE(window.model(u"Bird"_s)->getBatteries(), QStringList({u"B"_s, u"A"_s}));
    QCOMPARE(window.fileBytes().count("<Battery>A</Battery>"), 2);
    expectAssigned(window, true);
    QVERIFY(window.shows(window.ui().editDataView, Page::EditData));
    window.goToOverview();
    QCOMPARE(window.cardsOnShow(), QStringList({u"A"_s, u"B"_s}));
}

void AssignmentTest::removeTakesTheBatteryAwayAndTheButtonsSwap()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"A"_s)}, {flownModel(u"Bird"_s, {u"A"_s})}}));
    window.goToEditPage();
    expectAssigned(window, true);
    window.click(window.ui().pb_rem_batt_from_model);

    QVERIFY(window.model(u"Bird"_s)->getBatteries().isEmpty());
    QVERIFY(!window.fileBytes().contains("<Battery>A</Battery>"));
    expectAssigned(window, false);
    QVERIFY(window.shows(window.ui().editDataView, Page::EditData));
    window.goToOverview();
    QCOMPARE(window.cardsOnShow(), QStringList());
    QVERIFY(window.ui().lbl_optionshint->isVisible());
}

void AssignmentTest::exactlyOneButtonIsEnabledForEveryPair_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("battery");
    QTest::addColumn<bool>("assigned");

    const auto row = [](const char *model, const char *battery, bool assigned) {
        QTest::addRow("%s %s", model, battery) << model << battery << assigned;
    };
    row("Bird", "A", false);
    row("Bird", "B", true);
    row("Bird", "C", false);
    row("Wing", "A", true);
    row("Wing", "B", false);
    row("Wing", "C", true);
}

void AssignmentTest::exactlyOneButtonIsEnabledForEveryPair()
{
    QFETCH(QString, model);
    QFETCH(QString, battery);
    QFETCH(bool, assigned);
    EditingWindow window;
    window.load(catalogue());
    window.goToEditPage();
    choosePair(window, model, battery);
    expectAssigned(window, assigned);

    choosePair(window, u"Wing"_s, u"C"_s); // and with the model chosen last
    window.choose(window.ui().cb_bat_choose_model, battery);
    window.choose(window.ui().cb_model_choose_bat, model);
    expectAssigned(window, assigned);
}

void AssignmentTest::theButtonsFollowTheModelOfTheOverview()
{
    EditingWindow window;
    window.load(catalogue());
    expectAssigned(window, false);
    window.choose(window.ui().cb_select_model, u"Wing"_s);
    window.goToEditPage();
    QCOMPARE(window.ui().cb_model_choose_bat->currentText(), u"Wing"_s);
    expectAssigned(window, true);
}

void AssignmentTest::theButtonsFollowAReload()
{
    EditingWindow window;
    window.load(catalogue());
    expectAssigned(window, false);
    window.load(document({{flownBattery(u"A"_s)}, {flownModel(u"Bird"_s, {u"A"_s})}}));
    expectAssigned(window, true);
}

void AssignmentTest::severalBatteriesAreAssignedInARow()
{
    EditingWindow window;
    window.load(catalogue());
    window.goToEditPage();
    choosePair(window, u"Bird"_s, u"C"_s);
    window.click(window.ui().pb_add_batt_to_model);
    choosePair(window, u"Bird"_s, u"A"_s);
    window.click(window.ui().pb_add_batt_to_model);
    choosePair(window, u"Bird"_s, u"B"_s);
    window.click(window.ui().pb_rem_batt_from_model);
    choosePair(window, u"Wing"_s, u"B"_s);
    window.click(window.ui().pb_add_batt_to_model);
    QCOMPARE(window.model(u"Bird"_s)->getBatteries(), QStringList({u"C"_s, u"A"_s}));
    QCOMPARE(window.model(u"Wing"_s)->getBatteries(), QStringList({u"A"_s, u"C"_s, u"B"_s}));
}

void AssignmentTest::eachAssignmentGoesBackToTheFirstPairOnPurpose()
{
    EditingWindow window;
    window.load(catalogue());
    window.goToEditPage();
    choosePair(window, u"Wing"_s, u"B"_s);
    window.click(window.ui().pb_add_batt_to_model); // the reload fills both choosers anew
    QCOMPARE(window.ui().cb_model_choose_bat->currentText(), u"Bird"_s);
    QCOMPARE(window.ui().cb_bat_choose_model->currentText(), u"A"_s);
    expectAssigned(window, false);
}

void AssignmentTest::theModelThatThePreferencesNameStaysChosen()
{
    EditingWindow window;
    LogbookWindow::storeModel(u"Wing"_s);
    window.load(catalogue());
    window.goToEditPage();
    expectAssigned(window, true);
    window.click(window.ui().pb_rem_batt_from_model);
    QCOMPARE(window.ui().cb_model_choose_bat->currentText(), u"Wing"_s);
    expectAssigned(window, false);
    window.click(window.ui().pb_add_batt_to_model);
    expectAssigned(window, true);
    QCOMPARE(window.model(u"Wing"_s)->getBatteries(), QStringList({u"C"_s, u"A"_s}));
}

void AssignmentTest::theRecordsOnScreenAreReadFromTheFile()
{
    EditingWindow window;
    window.load(catalogue());
    window.goToEditPage();
    const QPointer<BatteryWidget> battery = window.battery(u"A"_s);
    const QPointer<ModelWidget> model = window.model(u"Bird"_s);
    QVERIFY(battery && model);
    window.click(window.ui().pb_add_batt_to_model);
    QVERIFY(!battery);
    QVERIFY(!model);
}

void AssignmentTest::theTimeOfTheLastUpdateStays()
{
    EditingWindow window;
    window.load(catalogue());
    window.goToEditPage();
    window.click(window.ui().pb_add_batt_to_model);
    QCOMPARE(window.model(u"Bird"_s)->getLastUpdated(), QDateTime(QDate(2025, 11, 7), QTime(6, 5, 4)));
    QCOMPARE(window.battery(u"A"_s)->getBatteryLastUpdated(), QDateTime(QDate(2025, 11, 9), QTime(8, 7, 6)));
}

void AssignmentTest::removeTakesOnlyTheExactName()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"A"_s)}, {flownModel(u"Bird"_s, {u"a"_s, u"A"_s, u"A "_s})}}));
    window.goToEditPage();
    window.click(window.ui().pb_rem_batt_from_model);
    QCOMPARE(window.model(u"Bird"_s)->getBatteries(), QStringList({u"a"_s, u"A "_s}));
}

void AssignmentTest::ofTwoModelsOfOneNameTheLastIsMeant()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"A"_s)},
                          {flownModel(u"Bird"_s, {u"A"_s}), flownModel(u"Bird"_s), flownModel(u"Wing"_s)}}));
    window.goToEditPage();
    expectAssigned(window, false);
    window.click(window.ui().pb_add_batt_to_model);
    QCOMPARE(window->modelList.at(1)->getBatteries(), QStringList{u"A"_s});
    window.click(window.ui().pb_rem_batt_from_model);
    QCOMPARE(window->modelList.at(0)->getBatteries(), QStringList{u"A"_s});
    QCOMPARE(window->modelList.at(1)->getBatteries(), QStringList());
}

void AssignmentTest::withoutModelOnlyAddIsEnabledAndDoesNothing()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"A"_s), flownBattery(u"B"_s)}}));
    window.goToEditPage();
    const QByteArray before = window.fileBytes();
    window.choose(window.ui().cb_bat_choose_model, u"B"_s);
    expectAssigned(window, false);
    window.click(window.ui().pb_add_batt_to_model);
    QCOMPARE(window.fileBytes(), before);
    QCOMPARE(window.ui().cb_bat_choose_model->currentText(), u"B"_s);
    window->on_pb_rem_batt_from_model_clicked(); // greyed for the user
    QCOMPARE(window.fileBytes(), before);
}

void AssignmentTest::aBatteryThatIsGoneCanBeAssignedOnPurpose()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"A"_s)}, {flownModel(u"Bird"_s)}}));
    window.load(document({{}, {flownModel(u"Bird"_s)}})); // the chooser goes on offering A
    window.goToEditPage();
    window.click(window.ui().pb_add_batt_to_model);
    QCOMPARE(window.model(u"Bird"_s)->getBatteries(), QStringList{u"A"_s});
    expectAssigned(window, true);
    window.click(window.ui().pb_rem_batt_from_model);
    QCOMPARE(window.model(u"Bird"_s)->getBatteries(), QStringList());
}

void AssignmentTest::withoutAnyBatteryTheEmptyNameIsAssignedOnPurpose()
{
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s)}}));
    window.goToEditPage();
    window.click(window.ui().pb_add_batt_to_model);
    QCOMPARE(window.model(u"Bird"_s)->getBatteries(), QStringList{QString()});
    expectAssigned(window, true);
    window.click(window.ui().pb_rem_batt_from_model);
    QCOMPARE(window.model(u"Bird"_s)->getBatteries(), QStringList());
}

QTEST_MAIN(AssignmentTest)
#include "tst_assignment.moc"
