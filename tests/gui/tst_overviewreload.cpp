// SPDX-License-Identifier: GPL-3.0-or-later
// The window's rhythm: write the whole file, read it back, refill every chooser from what was read.
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"

#include <QChartView>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class OverviewReloadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyChooserIsRefilledInTheOrderOfTheFile();
    void theStoredModelIsPreselected_data();
    void theStoredModelIsPreselected();
    void theStoredModelIsNeverWritten();
    void aReloadGoesBackToTheStoredModel();
    void refillingTheChoosersIsSilent();
    void aReloadDrawsNoChart();
    void namesThatAreGoneStayInTheChoosersOnPurpose();
    void theLocationsWrittenAreTheItemsOfTheDischargePage();
    void aSaveWritesTheBytesThatWereLoaded();
    void everyReloadReadsTheFileAgain();
    void aSaveWithoutAStoragePathWritesNothing();
    void aSaveThatFailsIsNotReported();
    void aBrokenFileShowsWhatStandsBeforeTheBreak();
    void aReloadRefreshesTheAssignmentButtons();
    void everyPlacingAddsOnePairOfConnectionsOnPurpose();
    void everyCardOnShowSavesItsChanges();

private:
    std::unique_ptr<LogbookWindow> window;
    Ui_VoltbokGui *ui = nullptr;
};

namespace {
QList<Battery> batteries()
{
    return {{u"A"_s, true}, {u"B"_s, true}, {u"C"_s, true}};
}

QByteArray wholeFile()
{
    return document({batteries(),
                     {Model{u"Heli"_s, {u"A"_s, u"B"_s}}, Model{u"Plane"_s, {u"B"_s}}, Model{u"Glider"_s}},
                     {u"Meadow"_s, u"Hill"_s, u"Meadow"_s}});
}
} // namespace

void OverviewReloadTest::init()
{
    window = std::make_unique<LogbookWindow>();
    ui = &window->ui();
}

void OverviewReloadTest::cleanup()
{
    window.reset();
}

void OverviewReloadTest::everyChooserIsRefilledInTheOrderOfTheFile()
{
    for (int i = 0; i < 2; ++i) {
        window->load(wholeFile());
        for (const QComboBox *chooser : window->modelChoosers())
            QCOMPARE(window->items(chooser), QStringList({"Heli", "Plane", "Glider"}));
        for (const QComboBox *chooser : window->batteryChoosers())
            QCOMPARE(window->items(chooser), QStringList({"A", "B", "C"}));
        for (const QComboBox *chooser : window->locationChoosers())
            QCOMPARE(window->items(chooser), QStringList({"Meadow", "Hill", "Meadow"}));
        const QList<QComboBox *> all =
            window->modelChoosers() + window->batteryChoosers() + window->locationChoosers();
        for (const QComboBox *chooser : all)
            QCOMPARE(chooser->currentIndex(), 0);
        for (QComboBox *chooser : all)
            chooser->setCurrentIndex(1);
    }
}

void OverviewReloadTest::theStoredModelIsPreselected_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QStringList>("cards");
    QTest::newRow("none") << QVariant() << "Heli" << QStringList({"A", "B"});
    QTest::newRow("second") << QVariant("Plane") << "Plane" << QStringList({"B"});
    QTest::newRow("unknown") << QVariant("Boat") << "Heli" << QStringList({"A", "B"});
    QTest::newRow("letter case matters") << QVariant("plane") << "Heli" << QStringList({"A", "B"});
    QTest::newRow("empty") << QVariant("") << "Heli" << QStringList({"A", "B"});
}

void OverviewReloadTest::theStoredModelIsPreselected()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, selected);
    if (stored.isValid())
        window->storeModel(stored);
    window->load(wholeFile());
    for (const QComboBox *chooser : window->modelChoosers())
        QCOMPARE(chooser->currentText(), selected);
    QTEST(window->cardsOnShow(), "cards");
}

void OverviewReloadTest::theStoredModelIsNeverWritten()
{
    window->storeModel(u"Plane"_s);
    window->load(wholeFile());
    window->choose(ui->cb_select_model, u"Glider"_s);
    window->choose(ui->cb_select_model, u"Heli"_s);
    window->clickCard(window->battery("A"));
    QCOMPARE(RotavexPlugin::rotavexSettings->allKeys(), QStringList({"SETTINGS/logmodel"}));
    QCOMPARE(RotavexPlugin::rotavexSettings->value(LogbookWindow::ModelKey).toString(), u"Plane"_s);
}

void OverviewReloadTest::aReloadGoesBackToTheStoredModel()
{
    window->storeModel(u"Plane"_s);
    window->load(wholeFile());
    window->choose(ui->cb_select_model, u"Glider"_s);
    window->gui().updateBatteryGui();
    QCOMPARE(ui->cb_select_model->currentText(), u"Plane"_s);
    QCOMPARE(window->cardsOnShow(), QStringList({"B"}));
}

void OverviewReloadTest::refillingTheChoosersIsSilent()
{
    window->storeModel(u"Plane"_s);
    window->load(wholeFile());
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (QComboBox *chooser : window->modelChoosers() + window->batteryChoosers()) {
        chooser->setCurrentIndex(2);
        spies.push_back(std::make_unique<QSignalSpy>(chooser, &QComboBox::currentIndexChanged));
    }
    window->gui().updateBatteryGui();
    for (const auto &spy : spies)
        QCOMPARE(spy->count(), 0);
    for (QComboBox *chooser : window->modelChoosers() + window->batteryChoosers()) { // and they speak again
        QVERIFY(!chooser->signalsBlocked());
        QCOMPARE(chooser->currentIndex(), window->modelChoosers().contains(chooser) ? 1 : 0);
    }
}

void OverviewReloadTest::aReloadDrawsNoChart()
{
    window->load(wholeFile());
    window->click(ui->pb_options);
    window->click(ui->pb_chart);
    const QChartView *chart = window->gui().chartView;
    window->gui().updateBatteryGui();
    QCOMPARE(window->gui().chartView, chart);
}

void OverviewReloadTest::namesThatAreGoneStayInTheChoosersOnPurpose()
{
    window->load(wholeFile());
    window->load(document({batteries()}));
    for (const QComboBox *chooser : window->modelChoosers())
        QCOMPARE(window->items(chooser), QStringList({"Heli", "Plane", "Glider"}));
    for (const QComboBox *chooser : window->locationChoosers())
        QCOMPARE(window->items(chooser), QStringList({"Meadow", "Hill", "Meadow"}));
    QVERIFY(!window->gui().selectedModel());
    QCOMPARE(window->cardsOnShow(), QStringList({"A", "B", "C"}));
    QVERIFY(!ui->cb_select_model->isVisible());

    window->load(document({}));
    for (const QComboBox *chooser : window->batteryChoosers())
        QCOMPARE(window->items(chooser), QStringList({"A", "B", "C"}));
    QVERIFY(!ui->pb_chart->isEnabled());
    QVERIFY(ui->lbl_welcome->isVisible());
}

void OverviewReloadTest::theLocationsWrittenAreTheItemsOfTheDischargePage()
{
    window->load(wholeFile());
    ui->cb_log_location->insertItem(1, u"Shore"_s);
    ui->cb_log_location->removeItem(3);
    ui->cb_location_delete->clear();
    ui->cb_location_delete->addItem(u"Never read"_s);
    window->gui().writeDataWithDataprocessor();
    const QByteArray bytes = window->fileBytes();
    QVERIFY(!bytes.contains("Never read"));
    const qsizetype meadow = bytes.indexOf("<Location Name=\"Meadow\"/>");
    const qsizetype shore = bytes.indexOf("<Location Name=\"Shore\"/>");
    const qsizetype hill = bytes.indexOf("<Location Name=\"Hill\"/>");
    QVERIFY(0 < meadow && meadow < shore && shore < hill);
    QCOMPARE(bytes.count("<Location "), 3);
}

void OverviewReloadTest::aSaveWritesTheBytesThatWereLoaded()
{
    const QDateTime moment(QDate(2026, 11, 15), QTime(12, 4, 22));
    const Battery flown{u"Ä <6S>"_s, true, {{moment, 1760, 5500}, {}}};
    const Battery unknown{u"new"_s, false, {}, 0, 0, 0, 0, QDate(), QDateTime()};
    const Model heli{
        u"Heli"_s, {u"new"_s, u"none"_s}, {{moment, u"Hill"_s, QTime(), -5, u"\"calm\"\n"_s}, {}}};
    const QByteArray bytes = document({{flown, unknown}, {heli, {}}, {u"Hill"_s, u"Hill & Dale"_s}});
    window->load(bytes);
    window->gui().writeDataWithDataprocessor();
    QCOMPARE(window->fileBytes(), bytes);
}

void OverviewReloadTest::everyReloadReadsTheFileAgain()
{
    window->load(wholeFile());
    window->battery("A")->setBatteryCapacity(1); // not saved
    window->gui().updateBatteryGui();
    QCOMPARE(window->battery("A")->getBatteryCapacity(), 2200U);

    window->battery("A")->setBatteryCapacity(1);
    window->gui().saveAndReload();
    QCOMPARE(window->battery("A")->getBatteryCapacity(), 1U);
}

void OverviewReloadTest::aSaveWithoutAStoragePathWritesNothing()
{
    const QTemporaryDir workingDirectory;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(workingDirectory.path()));
    VoltbokGui fresh;
    fresh.writeDataWithDataprocessor();
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(QDir(workingDirectory.path()).isEmpty());
}

void OverviewReloadTest::aSaveThatFailsIsNotReported()
{
    window->load(wholeFile());
    QVERIFY(QFile::remove(window->filePath()));
    QVERIFY(QDir().mkdir(window->filePath())); // no file can be opened where a directory is
    window->clickCard(window->battery("A"));
    QVERIFY(!window->battery("A")->getBatteryCharged()); // on show until the next reload
    QVERIFY(!QApplication::activeModalWidget());
    window->gui().updateBatteryGui();
    QVERIFY(window->gui().batteryList.isEmpty());
    QVERIFY(ui->lbl_welcome->isVisible());
    QCOMPARE(window->items(ui->cb_log_location), QStringList({"Meadow", "Hill", "Meadow"}));
}

void OverviewReloadTest::aBrokenFileShowsWhatStandsBeforeTheBreak()
{
    QByteArray broken = wholeFile();
    broken.truncate(broken.indexOf("<Name>C</Name>"));
    window->load(broken);
    QCOMPARE(window->gui().modelList.size(), 0);
    QCOMPARE(window->items(ui->cb_log_location), QStringList({"Meadow", "Hill", "Meadow"}));
    QCOMPARE(window->cardsOnShow(), QStringList({"A", "B", ""})); // the last one broke off before its name
}

void OverviewReloadTest::aReloadRefreshesTheAssignmentButtons()
{
    window->load(document({{Battery{u"A"_s}}, {Model{u"Heli"_s, {u"A"_s}}}}));
    QVERIFY(!ui->pb_add_batt_to_model->isEnabled() && ui->pb_rem_batt_from_model->isEnabled());
    window->load(document({{Battery{u"A"_s}}, {Model{u"Heli"_s}}}));
    QVERIFY(ui->pb_add_batt_to_model->isEnabled() && !ui->pb_rem_batt_from_model->isEnabled());
}

void OverviewReloadTest::everyPlacingAddsOnePairOfConnectionsOnPurpose()
{
    const auto expect = [this](const QString &name, int pairs) {
        const BatteryWidget *card = window->battery(name);
        QCOMPARE(card->receivers(SIGNAL(dataChanged())), pairs);
        QCOMPARE(card->receivers(SIGNAL(chargeBatteryClicked())), pairs);
    };
    window->load(wholeFile());
    expect("A", 1);
    expect("B", 1);
    expect("C", 0); // not on show, not connected
    window->choose(ui->cb_select_model, u"Plane"_s);
    expect("A", 1);
    expect("B", 2);
    window->choose(ui->cb_select_model, u"Heli"_s);
    expect("A", 2);
    expect("B", 3);
    expect("C", 0);
    window->gui().updateBatteryGui();
    expect("A", 1);
    expect("B", 1);
    expect("C", 0);
}

void OverviewReloadTest::everyCardOnShowSavesItsChanges()
{
    window->load(wholeFile());
    window->battery("C")->setBatteryCharged(true, true); // speaks up, but is not on show
    QCOMPARE(window->fileBytes(), wholeFile());
    window->battery("A")->setBatteryCharged(true, true);
    QVERIFY(window->fileBytes() != wholeFile());
    QCOMPARE(window->fileBytes().count("<Battery>\n"), 3); // the whole catalogue, every time
    QCOMPARE(window->fileBytes().count("<Model>"), 3);
}

QTEST_MAIN(OverviewReloadTest)
#include "tst_overviewreload.moc"
