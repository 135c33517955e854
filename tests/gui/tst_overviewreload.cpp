// SPDX-License-Identifier: GPL-3.0-or-later
// The window's rhythm: write the whole file, read it back, refill every chooser from what was read.
#include "tests/support/datafile.h"
#include "tests/support/logbookwindow.h"
#include "tests/support/xml.h"

#include <QChartView>
#include <QSignalSpy>

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
    void modelsThatAreGoneStayInTheChoosersOnPurpose();
    void batteriesThatAreGoneStayInTheChoosersOnPurpose();
    void locationsStayInTheChoosersWhenAFileHasNoneOnPurpose();
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

    QList<QComboBox *> modelChoosers() const
    {
        return {ui->cb_select_model, ui->cb_logview_model, ui->cb_model_choose_bat, ui->cb_modelList_delete};
    }
    QList<QComboBox *> batteryChoosers() const
    {
        return {ui->cb_batteryData, ui->cb_batteryList_delete, ui->cb_bat_choose_model};
    }
    QList<QComboBox *> locationChoosers() const { return {ui->cb_log_location, ui->cb_location_delete}; }
    void deleteByClicks(QAbstractButton *page, QAbstractButton *button, int clicks);
};

namespace {
QStringList items(const QComboBox *chooser)
{
    QStringList texts;
    for (int i = 0; i < chooser->count(); ++i)
        texts.append(chooser->itemText(i));
    return texts;
}

void storeModel(const QVariant &name)
{
    RotavexPlugin::rotavexSettings->setValue(QStringLiteral("SETTINGS/logmodel"), name);
}

QByteArray batteries()
{
    return Xml::battery("A", true) + Xml::battery("B", true) + Xml::battery("C", true);
}

QByteArray wholeFile()
{
    return Xml::file(Xml::locations({"Meadow", "Hill", "Meadow"}) + batteries() +
                     Xml::model("Heli", {"A", "B"}) + Xml::model("Plane", {"B"}) + Xml::model("Glider"));
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
        for (const QComboBox *chooser : modelChoosers())
            QCOMPARE(items(chooser), QStringList({"Heli", "Plane", "Glider"}));
        for (const QComboBox *chooser : batteryChoosers())
            QCOMPARE(items(chooser), QStringList({"A", "B", "C"}));
        for (const QComboBox *chooser : locationChoosers())
            QCOMPARE(items(chooser), QStringList({"Meadow", "Hill", "Meadow"}));
        const QList<QComboBox *> all = modelChoosers() + batteryChoosers() + locationChoosers();
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
        storeModel(stored);
    window->load(wholeFile());
    for (const QComboBox *chooser : modelChoosers())
        QCOMPARE(chooser->currentText(), selected);
    QTEST(window->cardsOnShow(), "cards");
}

void OverviewReloadTest::theStoredModelIsNeverWritten()
{
    storeModel(QStringLiteral("Plane"));
    window->load(wholeFile());
    window->choose(ui->cb_select_model, QStringLiteral("Glider"));
    window->choose(ui->cb_select_model, QStringLiteral("Heli"));
    window->clickCard(window->battery("A"));
    QCOMPARE(RotavexPlugin::rotavexSettings->allKeys(), QStringList({"SETTINGS/logmodel"}));
    QCOMPARE(RotavexPlugin::rotavexSettings->value(QStringLiteral("SETTINGS/logmodel")).toString(),
             QStringLiteral("Plane"));
}

void OverviewReloadTest::aReloadGoesBackToTheStoredModel()
{
    storeModel(QStringLiteral("Plane"));
    window->load(wholeFile());
    window->choose(ui->cb_select_model, QStringLiteral("Glider"));
    window->gui().updateBatteryGui();
    QCOMPARE(ui->cb_select_model->currentText(), QStringLiteral("Plane"));
    QCOMPARE(window->cardsOnShow(), QStringList({"B"}));
}

void OverviewReloadTest::refillingTheChoosersIsSilent()
{
    storeModel(QStringLiteral("Plane"));
    window->load(wholeFile());
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (QComboBox *chooser : modelChoosers() + batteryChoosers()) {
        chooser->setCurrentIndex(2);
        spies.push_back(std::make_unique<QSignalSpy>(chooser, &QComboBox::currentIndexChanged));
    }
    window->gui().updateBatteryGui();
    for (const auto &spy : spies)
        QCOMPARE(spy->count(), 0);
    for (QComboBox *chooser : modelChoosers() + batteryChoosers()) { // and they speak again
        QVERIFY(!chooser->signalsBlocked());
        QCOMPARE(chooser->currentIndex(), modelChoosers().contains(chooser) ? 1 : 0);
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

void OverviewReloadTest::deleteByClicks(QAbstractButton *page, QAbstractButton *button, int clicks)
{
    window->click(ui->pb_options);
    window->click(ui->pb_edit_data);
    window->click(page);
    for (int i = 0; i < clicks; ++i)
        window->click(button);
}

void OverviewReloadTest::modelsThatAreGoneStayInTheChoosersOnPurpose()
{
    window->load(Xml::file(batteries() + Xml::model("Heli", {"A"})));
    deleteByClicks(ui->pb_choose_delmodel, ui->pb_deleteConfirm_model, 2);
    QVERIFY(window->gui().modelList.isEmpty());
    for (const QComboBox *chooser : modelChoosers())
        QCOMPARE(items(chooser), QStringList({"Heli"}));
    QVERIFY(!window->gui().selectedModel());
    QCOMPARE(window->cardsOnShow(), QStringList({"A", "B", "C"}));
    QVERIFY(!ui->cb_select_model->isVisible());
}

void OverviewReloadTest::batteriesThatAreGoneStayInTheChoosersOnPurpose()
{
    window->load(Xml::file(Xml::battery("A") + Xml::model("Heli", {"A"})));
    deleteByClicks(ui->pb_choose_delbattery, ui->pb_deleteConfirm, 2);
    QVERIFY(window->gui().batteryList.isEmpty());
    for (const QComboBox *chooser : batteryChoosers())
        QCOMPARE(items(chooser), QStringList({"A"}));
    QVERIFY(!ui->pb_chart->isEnabled());
    QVERIFY(ui->lbl_welcome->isVisible());
}

void OverviewReloadTest::locationsStayInTheChoosersWhenAFileHasNoneOnPurpose()
{
    window->load(Xml::file(Xml::locations({"Meadow"})));
    deleteByClicks(ui->pb_choose_dellocation, ui->pb_del_location, 1);
    QVERIFY(!window->fileBytes().contains("Location"));
    QCOMPARE(items(ui->cb_log_location), QStringList());
    QCOMPARE(items(ui->cb_location_delete), QStringList({"Meadow"}));

    window->load(Xml::file(Xml::locations({"Hill", "Shore"})));
    window->load(Xml::file(batteries()));
    for (const QComboBox *chooser : locationChoosers())
        QCOMPARE(items(chooser), QStringList({"Hill", "Shore"}));
}

void OverviewReloadTest::theLocationsWrittenAreTheItemsOfTheDischargePage()
{
    window->load(wholeFile());
    ui->cb_log_location->insertItem(1, QStringLiteral("Shore"));
    ui->cb_log_location->removeItem(3);
    ui->cb_location_delete->clear();
    ui->cb_location_delete->addItem(QStringLiteral("Never read"));
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
    using namespace Test;
    const QDateTime moment(QDate(2026, 11, 15), QTime(12, 4, 22));
    const Battery flown{u"Ä <6S>"_s, true, {{moment, 1760, 5500}, {}}};
    const Battery unknown{u"new"_s, false, {}, 0, 0, 0, 0, QDate(), QDateTime()};
    const Model heli{
        u"Heli"_s, {u"new"_s, u"none"_s}, {{moment, u"\"calm\"\n"_s, u"Hill"_s, QTime(), -5}, {}}};
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
    QCOMPARE(items(ui->cb_log_location), QStringList({"Meadow", "Hill", "Meadow"}));
}

void OverviewReloadTest::aBrokenFileShowsWhatStandsBeforeTheBreak()
{
    QByteArray broken = wholeFile();
    broken.truncate(broken.indexOf("<Name>C</Name>"));
    window->load(broken);
    QCOMPARE(window->gui().modelList.size(), 0);
    QCOMPARE(items(ui->cb_log_location), QStringList({"Meadow", "Hill", "Meadow"}));
    QCOMPARE(window->cardsOnShow(), QStringList({"A", "B", ""})); // the last one broke off before its name
}

void OverviewReloadTest::aReloadRefreshesTheAssignmentButtons()
{
    window->load(Xml::file(Xml::battery("A") + Xml::model("Heli", {"A"})));
    QVERIFY(!ui->pb_add_batt_to_model->isEnabled() && ui->pb_rem_batt_from_model->isEnabled());
    window->load(Xml::file(Xml::battery("A") + Xml::model("Heli")));
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
    window->choose(ui->cb_select_model, QStringLiteral("Plane"));
    expect("A", 1);
    expect("B", 2);
    window->choose(ui->cb_select_model, QStringLiteral("Heli"));
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
