// SPDX-License-Identifier: GPL-3.0-or-later
// Batteries and models are deleted in two clicks, by the same rules but for what a first click survives.
#include "tests/support/editingwindow.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

namespace {

/** A window with three batteries and three models, where one kind of them is deleted. */
class DeletionWindow : public EditingWindow
{
public:
    explicit DeletionWindow(bool ofModels)
        : m_models(ofModels)
    {
        load(document({{flownBattery(u"A"_s, 1000), flownBattery(u"B"_s, 2000), flownBattery(u"C"_s, 3000)},
                       {flownModel(u"Bird"_s, {u"A"_s, u"B"_s}), flownModel(u"Wing"_s, {u"B"_s}),
                        flownModel(u"Kite"_s)}}));
    }

    /** Records of this kind alone, each with a number of its own. */
    void loadNames(const QStringList &names)
    {
        Catalogue catalogue;
        for (const QString &name : names) {
            if (m_models)
                catalogue.models.append(flownModel(name, {}, unsigned(catalogue.models.size())));
            else
                catalogue.batteries.append(flownBattery(name, unsigned(catalogue.batteries.size())));
        }
        load(document(catalogue));
    }
    unsigned int number(qsizetype index)
    {
        return m_models ? gui().modelList.at(index)->getModelWeight()
                        : gui().batteryList.at(index)->getBatteryCapacity();
    }

    QStringList names() { return m_models ? modelNames() : batteryNames(); }
    QWidget *record(const QString &name)
    {
        return m_models ? static_cast<QWidget *>(model(name)) : battery(name);
    }
    QList<QComboBox *> choosers() { return m_models ? modelChoosers() : batteryChoosers(); }
    QComboBox *chooser() { return m_models ? ui().cb_modelList_delete : ui().cb_batteryList_delete; }
    QPushButton *button() { return m_models ? ui().pb_deleteConfirm_model : ui().pb_deleteConfirm; }

    void openFor(const QString &name)
    {
        goToEditPage();
        choose(m_models ? ui().cb_model_choose_bat : ui().cb_bat_choose_model, name);
        click(m_models ? ui().pb_choose_delmodel : ui().pb_choose_delbattery);
    }
    void remove(const QString &name)
    {
        openFor(name);
        click(button());
        click(button());
    }
    bool showsDeletePage()
    {
        return m_models ? shows(ui().deleteModelView, Page::DeleteModel)
                        : shows(ui().deleteView, Page::DeleteBattery);
    }
    void openModifyPage() { goTo(m_models ? ui().pb_choose_modify_model : ui().pb_choose_modify_battery); }

    void expectAsking(bool asking)
    {
        const QLabel *question = m_models ? ui().lbl_reallydelete_model : ui().lbl_really;
        QCOMPARE(question->isVisible(), asking);
        QCOMPARE(question->text(), u"Really?"_s);
        QCOMPARE(button()->text(), asking ? u"Yes"_s : u"Delete"_s);
    }

private:
    const bool m_models;
};

constexpr bool Batteries = false;
constexpr bool Models = true;

void addKinds()
{
    QTest::addColumn<bool>("models");
    QTest::newRow("batteries") << Batteries;
    QTest::newRow("models") << Models;
}

} // namespace

class DeletionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstClickOnlyAsks_data() { addKinds(); }
    void theFirstClickOnlyAsks();
    void theSecondClickDeletes_data() { addKinds(); }
    void theSecondClickDeletes();
    void thePageKeepsTheQuestionWhileItIsLeft_data() { addKinds(); }
    void thePageKeepsTheQuestionWhileItIsLeft();
    void ofTwoRecordsOfOneNameTheFirstIsDeleted_data() { addKinds(); }
    void ofTwoRecordsOfOneNameTheFirstIsDeleted();
    void aNameThatIsGoneOnlyTakesTheFirstClickBack_data() { addKinds(); }
    void aNameThatIsGoneOnlyTakesTheFirstClickBack();
    void theModifyPageStaysClosedForANameThatIsGone_data() { addKinds(); }
    void theModifyPageStaysClosedForANameThatIsGone();
    void theRemovedRecordIsDestroyedOnce_data() { addKinds(); }
    void theRemovedRecordIsDestroyedOnce();
    void aDeletionThatCannotBeWrittenIsUndoneByTheReload_data() { addKinds(); }
    void aDeletionThatCannotBeWrittenIsUndoneByTheReload();

    void anotherBatteryTakesTheFirstClickBack();
    void anotherModelDoesNotTakeTheFirstClickBackOnPurpose();
    void theModelsGoOnNamingTheBatteryOnPurpose();
    void theFlightsOfTheBatteryStay();
    void noDischargeIsRecordedOnABatteryThatIsGone();
    void theWindowCanGoRightAfterADeletion();
    void theBatteriesOfTheModelStay();
    void theOverviewGoesOnWithTheFirstModelLeft();
    void theOverviewGoesOnWithTheModelThatThePreferencesName();
};

void DeletionTest::theFirstClickOnlyAsks()
{
    QFETCH(bool, models);
    DeletionWindow window(models);
    const QStringList names = window.names();
    const QByteArray before = window.fileBytes();
    window.openFor(names.at(1));
    window.expectAsking(false);
    window.click(window.button());
    window.expectAsking(true);
    QVERIFY(window.showsDeletePage());
    QCOMPARE(window.names(), names);
    QCOMPARE(window.fileBytes(), before);
}

void DeletionTest::theSecondClickDeletes()
{
    QFETCH(bool, models);
    DeletionWindow window(models);
    const QStringList names = window.names();
    window.remove(names.at(1));

    QVERIFY(window.showsOverview());
    QCOMPARE(window.names(), QStringList({names.at(0), names.at(2)}));
    QVERIFY(!window.fileBytes().contains("<Name>" + names.at(1).toLatin1() + "</Name>"));
    QCOMPARE(window.fileBytes().count(models ? "<FlightLog>" : "<Data>"), 2);
    for (const QComboBox *chooser : window.choosers())
        QCOMPARE(window.items(chooser), window.names());
    window.openFor(names.at(0));
    window.expectAsking(false);
}

void DeletionTest::thePageKeepsTheQuestionWhileItIsLeft()
{
    QFETCH(bool, models);
    DeletionWindow window(models);
    const QStringList names = window.names();
    window.openFor(names.at(1));
    window.click(window.button());
    window.openFor(names.at(1));
    window.expectAsking(true);
    window.click(window.button());
    QCOMPARE(window.names(), QStringList({names.at(0), names.at(2)}));
}

void DeletionTest::ofTwoRecordsOfOneNameTheFirstIsDeleted()
{
    QFETCH(bool, models);
    DeletionWindow window(models);
    window.loadNames({u"bird"_s, u"Bird"_s, u"Other"_s, u"Bird"_s});
    window.remove(u"Bird"_s);
    QCOMPARE(window.names(), QStringList({u"bird"_s, u"Other"_s, u"Bird"_s}));
    QCOMPARE(window.number(2), 3U);
}

void DeletionTest::aNameThatIsGoneOnlyTakesTheFirstClickBack()
{
    QFETCH(bool, models);
    DeletionWindow window(models);
    window.loadNames({u"Last"_s});
    window.remove(u"Last"_s); // and the choosers go on offering it
    QVERIFY(window.names().isEmpty());
    QVERIFY(QFile::remove(window.filePath()));
    window.remove(u"Last"_s);
    QVERIFY(window.showsDeletePage());
    window.expectAsking(false);
    QVERIFY(!QFile::exists(window.filePath()));
}

void DeletionTest::theModifyPageStaysClosedForANameThatIsGone()
{
    QFETCH(bool, models);
    DeletionWindow window(models);
    window.loadNames({u"Last"_s});
    window.remove(u"Last"_s);
    window.openModifyPage();
    QVERIFY(window.shows(window.ui().editDataView, Page::EditData));
}

void DeletionTest::theRemovedRecordIsDestroyedOnce()
{
    QFETCH(bool, models);
    DeletionWindow window(models);
    const QStringList names = window.names();
    int destroyed = 0;
    const QPointer<QWidget> removed = window.record(names.at(1));
    connect(removed, &QObject::destroyed, this, [&destroyed] { ++destroyed; });
    window.remove(names.at(1));
    QVERIFY(!removed);
    QCOMPARE(destroyed, 1);
    for (BatteryWidget *card : window->findChildren<BatteryWidget *>())
        QVERIFY(window->batteryList.contains(card));
}

void DeletionTest::aDeletionThatCannotBeWrittenIsUndoneByTheReload()
{
    QFETCH(bool, models);
    DeletionWindow window(models);
    const QStringList names = window.names();
    window.openFor(names.at(1));
    window.click(window.button());

    // Without a path the window saves nothing, and reads from the working folder.
    window->dataProcessor.setBasePath(QString());
    const QString here = QDir::currentPath();
    QVERIFY(QDir::setCurrent(window.folder()));
    window.click(window.button());
    QVERIFY(QDir::setCurrent(here));

    QVERIFY(window.showsOverview());
    QCOMPARE(window.names(), names);
}

void DeletionTest::anotherBatteryTakesTheFirstClickBack()
{
    DeletionWindow window(Batteries);
    window.openFor(u"A"_s);
    window.click(window.button());
    window.choose(window.chooser(), u"C"_s);
    window.expectAsking(false);
    window.click(window.button());
    window.expectAsking(true);
    window.openFor(u"B"_s); // and so does opening the page for another one
    window.expectAsking(false);
    window.click(window.button());
    QCOMPARE(window.batteryNames().size(), 3);
    window.click(window.button());
    QCOMPARE(window.batteryNames(), QStringList({u"A"_s, u"C"_s}));
}

void DeletionTest::anotherModelDoesNotTakeTheFirstClickBackOnPurpose()
{
    DeletionWindow window(Models);
    window.openFor(u"Bird"_s);
    window.click(window.button());
    window.choose(window.chooser(), u"Kite"_s);
    window.expectAsking(true);
    window.click(window.button());
    QCOMPARE(window.modelNames(), QStringList({u"Bird"_s, u"Wing"_s}));

    window.openFor(u"Bird"_s);
    window.click(window.button());
    window.openFor(u"Wing"_s); // not even leaving the page for another model does
    window.expectAsking(true);
}

void DeletionTest::theModelsGoOnNamingTheBatteryOnPurpose()
{
    DeletionWindow window(Batteries);
    window.remove(u"B"_s);
    QCOMPARE(window.cardsOnShow(), QStringList{u"A"_s});
    QCOMPARE(window->overviewCardCount, 1);
    QCOMPARE(window.model(u"Bird"_s)->getBatteries(), QStringList({u"A"_s, u"B"_s}));
    QVERIFY(window.fileBytes().contains("<Battery>B</Battery>"));

    window.addBattery(u"B"_s);
    QCOMPARE(window.cardsOnShow(), QStringList({u"A"_s, u"B"_s}));
}

void DeletionTest::theFlightsOfTheBatteryStay()
{
    DeletionWindow window(Batteries);
    window.remove(u"A"_s);
    const LogData flight = window.model(u"Bird"_s)->getLogData().value(0);
    QCOMPARE(flight.date, QDateTime(QDate(2025, 11, 8), QTime(10, 30)));
    QCOMPARE(flight.location, u"Meadow"_s);
    QCOMPARE(flight.temperature, -5);
}

void DeletionTest::noDischargeIsRecordedOnABatteryThatIsGone()
{
    DeletionWindow window(Batteries);
    window->on_btnGrp_mode_buttonClicked(window.ui().rb_modeAdvanced);
    window.clickCard(window.battery(u"B"_s));
    QVERIFY(window.shows(window.ui().dischargeView, Page::Discharge));
    QCOMPARE(window->chargeBattery, window.battery(u"B"_s));

    window.click(window.ui().pb_options); // leaves the page without recording
    QCOMPARE(window->chargeBattery, window.battery(u"B"_s));
    window.remove(u"B"_s);
    QVERIFY(!window->chargeBattery);
    window->on_pb_save_discharged_clicked();
    for (BatteryWidget *battery : std::as_const(window->batteryList))
        QCOMPARE(battery->getDates().size(), 1);
}

void DeletionTest::theWindowCanGoRightAfterADeletion()
{
    DeletionWindow window(Batteries);
    window.clickCard(window.battery(u"A"_s));
    window.remove(u"A"_s);
    const QPointer<BatteryWidget> left = window.battery(u"B"_s);
    window.restart();
    QVERIFY(!left);
    QCOMPARE(window.batteryNames(), QStringList({u"B"_s, u"C"_s}));
}

void DeletionTest::theBatteriesOfTheModelStay()
{
    DeletionWindow window(Models);
    window.remove(u"Bird"_s);
    QCOMPARE(window.batteryNames(), QStringList({u"A"_s, u"B"_s, u"C"_s}));
    QCOMPARE(window.battery(u"A"_s)->getDates().size(), 1);
}

void DeletionTest::theOverviewGoesOnWithTheFirstModelLeft()
{
    DeletionWindow window(Models);
    window.remove(u"Bird"_s);
    QCOMPARE(window.ui().cb_select_model->currentText(), u"Wing"_s);
    QCOMPARE(window.cardsOnShow(), QStringList{u"B"_s});
}

void DeletionTest::theOverviewGoesOnWithTheModelThatThePreferencesName()
{
    DeletionWindow window(Models);
    window.storeModel(u"Kite"_s);
    window.remove(u"Bird"_s);
    QCOMPARE(window.ui().cb_select_model->currentText(), u"Kite"_s);
    QCOMPARE(window.cardsOnShow(), QStringList());
    QVERIFY(window.ui().lbl_optionshint->isVisible());
}

QTEST_MAIN(DeletionTest)
#include "tst_deletion.moc"
