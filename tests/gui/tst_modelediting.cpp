// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/editingwindow.h"

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class ModelEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewModelHasWhatWasTyped();
    void aNewModelIsInEveryChooserButTheOverviewKeepsTheFirst();
    void aNewModelIsOnTheOverviewWhenThePreferencesNameIt();
    void figuresAreTakenFromTheFields_data();
    void figuresAreTakenFromTheFields();
    void aNameThatIsTakenGetsACounter();
    void aNewNameMayBeThatOfTheFirstModelOnPurpose();
    void anEmptyNameAddsNothing();
    void anAddThatCannotBeWrittenIsGoneAfterTheReload();

    void theModifyPageShowsTheModel();
    void theWeightIsShownUnscaled_data();
    void theWeightIsShownUnscaled();
    void anUpdateLosesTheWeightOnPurpose_data();
    void anUpdateLosesTheWeightOnPurpose();
    void anUpdateLeavesTheTimeOfTheLastUpdateOnPurpose();
    void anUpdateStoresWhatWasTyped();
    void anUpdateLeavesTheBatteriesAndTheFlightsAlone();
    void theNameCannotBeChanged();
    void ofTwoModelsOfOneNameTheLastIsModified();
    void theModifyPageStaysClosedWithoutAModel();
    void anUpdateOfAModelThatIsGoneDoesNothing();
};

void ModelEditingTest::aNewModelHasWhatWasTyped()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addmodel);
    window.type(window.ui().ledt_addheli_name, u"Wing <2> & \"Ö\""_s);
    window.type(window.ui().ledt_addheli_type, u"Plane"_s);
    window.type(window.ui().ledt_addheli_weight, u"115"_s);
    window.type(window.ui().ledt_addheli_size, u"1400"_s);
    window.type(window.ui().ledt_addheli_flightsused, u"33"_s);
    window.type(window.ui().ledt_addheli_purchase, u"20240229"_s);
    QTest::keyClicks(window.ui().ledt_addheli_notes, u"blue wings"_s);
    QTest::keyClick(window.ui().ledt_addheli_notes, Qt::Key_Return);
    QTest::keyClicks(window.ui().ledt_addheli_notes, u"< second line >"_s);
    const QDateTime start = QDateTime::currentDateTime();
    window.click(window.ui().pb_addNewModel);

    QVERIFY(window.showsOverview());
    QCOMPARE(window.modelNames(), QStringList{u"Wing <2> & \"Ö\""_s});
    ModelWidget *model = window->modelList.constFirst();
    QCOMPARE(model->getModelType(), u"Plane"_s);
    QCOMPARE(model->getModelWeight(), 114U); // truncated in double arithmetic
    QCOMPARE(model->getModelSize(), 1400U);
    QCOMPARE(model->getModelFlights(), 33U);
    QCOMPARE(model->getDateOfPurchase(), QDate(2024, 2, 29));
    QCOMPARE(model->getAdditionalNotes(), u"blue wings\n< second line >"_s);
    QVERIFY(window.isSince(start, model->getLastUpdated()));
    QVERIFY(model->getBatteries().isEmpty());
    QVERIFY(model->getLogData().isEmpty());

    const QByteArray bytes = window.fileBytes();
    QVERIFY(bytes.contains("<Name>Wing &lt;2&gt; &amp; &quot;Ö&quot;</Name>"));
    QVERIFY(bytes.contains("<Type>Plane</Type>"));
    QVERIFY(bytes.contains("<Weight>114</Weight>"));
    QVERIFY(bytes.contains("<Size>1400</Size>"));
    QVERIFY(bytes.contains("<Flights>33</Flights>"));
    QVERIFY(bytes.contains("<Purchase>2024/02/29</Purchase>"));
    QVERIFY(!bytes.contains("<FlightLog>"));
}

void ModelEditingTest::aNewModelIsInEveryChooserButTheOverviewKeepsTheFirst()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"A"_s)}, {flownModel(u"Bird"_s, {u"A"_s})}}));
    window.addModel(u"Wing"_s);
    for (const QComboBox *chooser : window.modelChoosers()) {
        QCOMPARE(window.items(chooser), QStringList({u"Bird"_s, u"Wing"_s}));
        QCOMPARE(chooser->currentText(), u"Bird"_s);
    }
    QCOMPARE(window.cardsOnShow(), QStringList{u"A"_s});
}

void ModelEditingTest::aNewModelIsOnTheOverviewWhenThePreferencesNameIt()
{
    EditingWindow window;
    LogbookWindow::storeModel(u"Wing"_s);
    window.load(document({{flownBattery(u"A"_s)}, {flownModel(u"Bird"_s, {u"A"_s})}}));
    QCOMPARE(window.ui().cb_select_model->currentText(), u"Bird"_s);
    window.addModel(u"Wing"_s);
    for (const QComboBox *chooser : window.modelChoosers())
        QCOMPARE(chooser->currentText(), u"Wing"_s);
    QCOMPARE(window.cardsOnShow(), QStringList());
}

void ModelEditingTest::figuresAreTakenFromTheFields_data()
{
    QTest::addColumn<QStringList>("typed"); // weight, size, flights, date of purchase
    QTest::addColumn<QList<unsigned int>>("figures");
    QTest::addColumn<QDate>("date");

    const auto row = [](const char *tag, const QStringList &typed, const QList<unsigned int> &figures,
                        QDate date = {}) { QTest::newRow(tag) << typed << figures << date; };
    row("all emptied", {"", "", "", ""}, {0, 0, 0});
    row("as offered", {"1.00", "700", "0", "2026-01-02"}, {100, 700, 0}, QDate(2026, 1, 2));
    row("largest", {"9.99", "9999", "9999", "99991231"}, {999, 9999, 9999}, QDate(9999, 12, 31));
    row("truncated on purpose", {"0.29", "1", "1", "20260102"}, {28, 1, 1}, QDate(2026, 1, 2));
    row("no hundredths", {"1.5", "0070", "1  2", "2026-1 -0 "}, {150, 70, 12});
    row("only hundredths", {"  7", " 7 0", "x5", "20260230"}, {70, 70, 5});
}

void ModelEditingTest::figuresAreTakenFromTheFields()
{
    QFETCH(QStringList, typed);
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addmodel);
    window.type(window.ui().ledt_addheli_weight, typed.at(0));
    window.type(window.ui().ledt_addheli_size, typed.at(1));
    window.type(window.ui().ledt_addheli_flightsused, typed.at(2));
    window.type(window.ui().ledt_addheli_purchase, typed.at(3));
    window.click(window.ui().pb_addNewModel);

    const ModelWidget *model = window.model(u"MyHeli"_s);
    QVERIFY(model);
    const QList<unsigned int> figures{model->getModelWeight(), model->getModelSize(),
                                      model->getModelFlights()};
    QTEST(figures, "figures");
    QTEST(model->getDateOfPurchase(), "date");
}

void ModelEditingTest::aNameThatIsTakenGetsACounter()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addmodel);
    QTest::keyClicks(window.ui().ledt_addheli_notes, u"kept"_s);
    window.click(window.ui().pb_addNewModel);
    window.goTo(window.ui().pb_choose_addmodel); // the form is as it was left
    window.click(window.ui().pb_addNewModel);
    QCOMPARE(window.modelNames(), QStringList({u"MyHeli"_s, u"MyHeli_1"_s}));
    QCOMPARE(window.model(u"MyHeli_1"_s)->getAdditionalNotes(), u"kept"_s);
    QCOMPARE(window.model(u"MyHeli_1"_s)->getModelType(), u"Heli"_s);
}

void ModelEditingTest::aNewNameMayBeThatOfTheFirstModelOnPurpose()
{
    EditingWindow window;
    window.addModel(u"MyHeli_1"_s);
    window.addModel(u"MyHeli"_s);
    window.addModel(u"MyHeli"_s);
    QCOMPARE(window.modelNames(), QStringList({u"MyHeli_1"_s, u"MyHeli"_s, u"MyHeli_1"_s}));
}

void ModelEditingTest::anEmptyNameAddsNothing()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addmodel);
    window.type(window.ui().ledt_addheli_name, QString());
    window.click(window.ui().pb_addNewModel);
    QVERIFY(window.shows(window.ui().addModelView, Page::AddModel));
    QVERIFY(window->modelList.isEmpty());
    QVERIFY(!QFile::exists(window.filePath()));
}

void ModelEditingTest::anAddThatCannotBeWrittenIsGoneAfterTheReload()
{
    EditingWindow window;
    QVERIFY(QDir().mkdir(window.filePath())); // a folder in the place of the file cannot be opened
    window.addModel(u"Bird"_s);
    QVERIFY(window.showsOverview());
    QVERIFY(window->modelList.isEmpty());
    QVERIFY(window->findChildren<ModelWidget *>().isEmpty());
}

void ModelEditingTest::theModifyPageShowsTheModel()
{
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s), flownModel(u"Wing"_s)}}));
    window.goToEditPage();
    window.choose(window.ui().cb_model_choose_bat, u"Wing"_s);
    window.click(window.ui().pb_choose_modify_model);

    QVERIFY(window.shows(window.ui().modModelView, Page::ModifyModel));
    QCOMPARE(window.ui().ledt_modifyheli_name->text(), u"Wing"_s);
    QCOMPARE(window.ui().ledt_modifyheli_type->text(), u"Heli"_s);
    QCOMPARE(window.ui().ledt_modifyheli_weight->text(), u"1.50"_s);
    QCOMPARE(window.ui().ledt_modifyheli_size->text(), u"700"_s);
    QCOMPARE(window.ui().ledt_modifyheli_flightsused->text(), u"12"_s);
    QCOMPARE(window.ui().ledt_modifyheli_purchase->text(), u"2023-12-31"_s);
    QCOMPARE(window.ui().ledt_modifyheli_notes->toPlainText(), u"blue"_s);
}

void ModelEditingTest::theWeightIsShownUnscaled_data()
{
    QTest::addColumn<unsigned int>("stored");
    QTest::addColumn<QString>("shown");

    QTest::newRow("three digits") << 114U << "1.14";
    QTest::newRow("two digits") << 11U << "1.1";
    QTest::newRow("one digit") << 7U << "7.";
    QTest::newRow("none") << 0U << "0.";
    QTest::newRow("more than the mask") << 12345U << "1.23";
}

void ModelEditingTest::theWeightIsShownUnscaled()
{
    QFETCH(unsigned int, stored);
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s, {}, stored)}}));
    window.goTo(window.ui().pb_choose_modify_model);
    QTEST(window.ui().ledt_modifyheli_weight->text(), "shown");
}

void ModelEditingTest::anUpdateLosesTheWeightOnPurpose_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("left as shown") << QString();
    QTest::newRow("two decimals") << "2.35";
    QTest::newRow("one decimal") << "2.3";
    QTest::newRow("a whole number") << "2";
    QTest::newRow("only decimals") << " 23";
}

void ModelEditingTest::anUpdateLosesTheWeightOnPurpose()
{
    QFETCH(QString, typed);
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s)}}));
    window.goTo(window.ui().pb_choose_modify_model);
    if (!typed.isEmpty())
        window.type(window.ui().ledt_modifyheli_weight, typed);
    window.click(window.ui().pb_update_model);
    QCOMPARE(window.model(u"Bird"_s)->getModelWeight(), 0U); // the mask's point is no part of a whole number
}

void ModelEditingTest::anUpdateLeavesTheTimeOfTheLastUpdateOnPurpose()
{
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s)}}));
    window->writeDataWithDataprocessor();
    QByteArray expected = window.fileBytes();
    expected.replace("<Weight>150</Weight>", "<Weight>0</Weight>");
    window.goTo(window.ui().pb_choose_modify_model);
    window.click(window.ui().pb_update_model);
    QVERIFY(window.showsOverview());
    QCOMPARE(window.model(u"Bird"_s)->getLastUpdated(), QDateTime(QDate(2025, 11, 7), QTime(6, 5, 4)));
    QCOMPARE(window.fileBytes(), expected);
}

void ModelEditingTest::anUpdateStoresWhatWasTyped()
{
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s)}}));
    window.goTo(window.ui().pb_choose_modify_model);
    window.type(window.ui().ledt_modifyheli_type, u"Glider"_s);
    window.type(window.ui().ledt_modifyheli_size, u"2500"_s);
    window.type(window.ui().ledt_modifyheli_flightsused, u"99"_s);
    window.type(window.ui().ledt_modifyheli_purchase, u"20211105"_s);
    window.ui().ledt_modifyheli_notes->moveCursor(QTextCursor::End);
    QTest::keyClicks(window.ui().ledt_modifyheli_notes, u", then red"_s);
    window.click(window.ui().pb_update_model);

    const ModelWidget *model = window.model(u"Bird"_s);
    QCOMPARE(model->getModelType(), u"Glider"_s);
    QCOMPARE(model->getModelSize(), 2500U);
    QCOMPARE(model->getModelFlights(), 99U);
    QCOMPARE(model->getDateOfPurchase(), QDate(2021, 11, 5));
    QCOMPARE(model->getAdditionalNotes(), u"blue, then red"_s);

    window.goTo(window.ui().pb_choose_modify_model);
    for (QLineEdit *field : {window.ui().ledt_modifyheli_type, window.ui().ledt_modifyheli_size,
                             window.ui().ledt_modifyheli_flightsused, window.ui().ledt_modifyheli_purchase})
        window.type(field, QString());
    window.click(window.ui().pb_update_model);
    model = window.model(u"Bird"_s);
    QCOMPARE(model->getModelType(), QString());
    QCOMPARE(model->getModelSize(), 0U);
    QCOMPARE(model->getModelFlights(), 0U);
    QVERIFY(!model->getDateOfPurchase().isValid());
}

void ModelEditingTest::anUpdateLeavesTheBatteriesAndTheFlightsAlone()
{
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s, {u"A"_s, u"B"_s})}}));
    window.goTo(window.ui().pb_choose_modify_model);
    window.click(window.ui().pb_update_model);
    ModelWidget *model = window.model(u"Bird"_s);
    QCOMPARE(model->getBatteries(), QStringList({u"A"_s, u"B"_s}));
    QCOMPARE(model->getLogData().size(), 1);
    const LogData flight = model->getLogData().constFirst();
    QCOMPARE(flight.date, QDateTime(QDate(2025, 11, 8), QTime(10, 30)));
    QCOMPARE(flight.duration, QTime(0, 7, 30));
    QCOMPARE(flight.location, u"Meadow"_s);
    QCOMPARE(flight.temperature, -5);
    QCOMPARE(flight.notes, u"windy"_s);
}

void ModelEditingTest::theNameCannotBeChanged()
{
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s)}}));
    window.goTo(window.ui().pb_choose_modify_model);
    window.type(window.ui().ledt_modifyheli_name, u"Other"_s);
    window.click(window.ui().pb_update_model);
    QCOMPARE(window.modelNames(), QStringList{u"Bird"_s});
}

void ModelEditingTest::ofTwoModelsOfOneNameTheLastIsModified()
{
    EditingWindow window;
    window.load(document(
        {{},
         {flownModel(u"Bird"_s, {u"first"_s}), flownModel(u"bird"_s), flownModel(u"Bird"_s, {u"last"_s})}}));
    window.goTo(window.ui().pb_choose_modify_model);
    window.type(window.ui().ledt_modifyheli_size, u"1"_s);
    window.click(window.ui().pb_update_model);
    QCOMPARE(window->modelList.at(0)->getModelSize(), 700U);
    QCOMPARE(window->modelList.at(1)->getModelSize(), 700U);
    QCOMPARE(window->modelList.at(2)->getModelSize(), 1U);
}

void ModelEditingTest::theModifyPageStaysClosedWithoutAModel()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_modify_model);
    QVERIFY(window.shows(window.ui().editDataView, Page::EditData));
    QCOMPARE(window.ui().ledt_modifyheli_name->text(), u"MyHeli"_s);
}

void ModelEditingTest::anUpdateOfAModelThatIsGoneDoesNothing()
{
    EditingWindow window;
    window.load(document({{}, {flownModel(u"Bird"_s)}}));
    window.goTo(window.ui().pb_choose_modify_model);
    window.load(document({{}, {flownModel(u"Wing"_s)}}));
    const QByteArray before = window.fileBytes();
    window.click(window.ui().pb_update_model);
    QVERIFY(window.shows(window.ui().modModelView, Page::ModifyModel));
    QCOMPARE(window.fileBytes(), before);
}

QTEST_MAIN(ModelEditingTest)
#include "tst_modelediting.moc"
