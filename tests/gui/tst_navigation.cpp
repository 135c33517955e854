// SPDX-License-Identifier: GPL-3.0-or-later
// The ways from page to page, by clicks.
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

#include <QChart>
#include <QChartView>
#include <QLineSeries>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class NavigationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyPageIsReachedByClicks_data();
    void everyPageIsReachedByClicks();
    void theMenuButtonSkipsTheMenuOnFourPagesOnPurpose_data();
    void theMenuButtonSkipsTheMenuOnFourPagesOnPurpose();
    void theMenuButtonLeadsFromAnUnknownPageToTheOverview_data();
    void theMenuButtonLeadsFromAnUnknownPageToTheOverview();
    void theMenuButtonGoesToAndFro();
    void aStoragePathLeavesThePageAsItWas_data();
    void aStoragePathLeavesThePageAsItWas();
    void everyOpeningOfAnAddPagePresetsToday_data();
    void everyOpeningOfAnAddPagePresetsToday();
    void otherFieldsOfAnAddPageKeepWhatWasTyped();
    void theDeletePagesPreselectWhatTheEditPageChose();
    void aDeletePageKeepsItsChoiceWhenTheNameIsNotOffered();
    void theDeleteLocationPagePresetsNothing();
    void openingTheChartDrawsTheChosenBattery();
    void aUnitButtonRedrawsTheChartAndStaysOnThePage();
    void theChartIsNotOfferedWithoutABattery();
    void openingTheLogBookFillsItForTheChosenModel();
    void choosingAModelOnTheEditPageUpdatesTheAssignmentButtons();

private:
    std::unique_ptr<LogbookWindow> window;
    Ui_VoltbokGui *ui = nullptr;

    void follow(const QStringList &buttons);
    void openEveryPage();
    void expectOverview() const;
    void expectMenu() const;
};

namespace {
struct Route
{
    const char *page;
    int id;
    int index;
    bool skipsMenu;
    QStringList buttons;
};

const QList<Route> &routes()
{
    static const QList<Route> all = {
        {"scrollLayout", 0, 0, false, {}},
        {"optionsView", 1, 3, true, {"pb_options"}},
        {"modeView", 2, 4, false, {"pb_options", "pb_mode"}},
        {"dataView", 3, 1, false, {"pb_options", "pb_chart"}},
        {"editDataView", 4, 2, true, {"pb_options", "pb_edit_data"}},
        {"addView", 5, 6, false, {"pb_options", "pb_edit_data", "pb_choose_addbattery"}},
        {"addModelView", 6, 7, false, {"pb_options", "pb_edit_data", "pb_choose_addmodel"}},
        {"addLocationView", 7, 5, true, {"pb_options", "pb_edit_data", "pb_choose_addlocation"}},
        {"deleteView", 8, 8, false, {"pb_options", "pb_edit_data", "pb_choose_delbattery"}},
        {"deleteModelView", 9, 9, false, {"pb_options", "pb_edit_data", "pb_choose_delmodel"}},
        {"deleteLocationView", 10, 10, true, {"pb_options", "pb_edit_data", "pb_choose_dellocation"}},
        {"logView", 11, 11, false, {"pb_options", "pb_logbook"}},
        {"dischargeView", 12, 12, true, {"pushButton"}}, // the card of the charged battery
        {"modBatteryView", 13, 14, false, {"pb_options", "pb_edit_data", "pb_choose_modify_battery"}},
        {"modModelView", 14, 13, false, {"pb_options", "pb_edit_data", "pb_choose_modify_model"}},
    };
    return all;
}

QString today()
{
    return QDate::currentDate().toString(u"yyyy-MM-dd"_s);
}
} // namespace

void NavigationTest::init()
{
    window = std::make_unique<LogbookWindow>();
    ui = &window->ui();
    LogbookWindow::storeFullMode();
    window->load(hangar());
}

void NavigationTest::cleanup()
{
    window.reset();
}

void NavigationTest::follow(const QStringList &buttons)
{
    for (const QString &name : buttons)
        window->click(window->gui().findChild<QAbstractButton *>(name));
}

void NavigationTest::openEveryPage()
{
    QTest::addColumn<int>("route");
    for (int i = 0; i < routes().size(); ++i)
        QTest::newRow(routes().at(i).page) << i;
}

void NavigationTest::expectOverview() const
{
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->scrollLayout);
    QCOMPARE(window->gui().currentPage, 0);
}

void NavigationTest::expectMenu() const
{
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->optionsView);
    QCOMPARE(window->gui().currentPage, 1);
}

void NavigationTest::everyPageIsReachedByClicks_data()
{
    openEveryPage();
}

void NavigationTest::everyPageIsReachedByClicks()
{
    QFETCH(int, route);
    const Route &expected = routes().at(route);
    follow(expected.buttons);
    QCOMPARE(ui->stackedWidget->currentWidget()->objectName(), QLatin1StringView(expected.page));
    QCOMPARE(ui->stackedWidget->currentIndex(), expected.index);
    QCOMPARE(window->gui().currentPage, expected.id);
    QVERIFY(ui->stackedWidget->currentWidget()->isVisible());
}

void NavigationTest::theMenuButtonSkipsTheMenuOnFourPagesOnPurpose_data()
{
    openEveryPage();
}

void NavigationTest::theMenuButtonSkipsTheMenuOnFourPagesOnPurpose()
{
    QFETCH(int, route);
    follow(routes().at(route).buttons);
    window->click(ui->pb_options);
    if (routes().at(route).skipsMenu) // and so does the menu itself
        expectOverview();
    else
        expectMenu();
}

void NavigationTest::theMenuButtonLeadsFromAnUnknownPageToTheOverview_data()
{
    QTest::addColumn<int>("page");
    for (const int page :
         {-1, -2, 15, 16, 32, 34, 64, 1024, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("%d", page) << page;
}

void NavigationTest::theMenuButtonLeadsFromAnUnknownPageToTheOverview()
{
    QFETCH(int, page);
    follow({"pb_options", "pb_mode"});
    window->gui().currentPage = page;
    window->click(ui->pb_options);
    expectOverview();
}

void NavigationTest::theMenuButtonGoesToAndFro()
{
    expectOverview();
    for (int i = 0; i < 3; ++i) {
        window->click(ui->pb_options);
        expectMenu();
        window->click(ui->pb_options);
        expectOverview();
    }
}

void NavigationTest::aStoragePathLeavesThePageAsItWas_data()
{
    openEveryPage();
}

void NavigationTest::aStoragePathLeavesThePageAsItWas()
{
    QFETCH(int, route);
    follow(routes().at(route).buttons);
    const QTemporaryDir empty;
    for (const QString &path : {window->folder(), empty.path()}) {
        window->gui().changeStoragePath(path);
        QCOMPARE(window->gui().currentPage, routes().at(route).id);
        QCOMPARE(ui->stackedWidget->currentIndex(), routes().at(route).index);
    }
}

void NavigationTest::everyOpeningOfAnAddPagePresetsToday_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("field");
    const auto row = [](const char *tag, const char *button, const char *field) {
        QTest::newRow(tag) << button << field;
    };
    row("battery", "pb_choose_addbattery", "ledt_purchaseDate");
    row("model", "pb_choose_addmodel", "ledt_addheli_purchase");
}

void NavigationTest::everyOpeningOfAnAddPagePresetsToday()
{
    QFETCH(QString, button);
    QFETCH(QString, field);
    auto *date = window->gui().findChild<QLineEdit *>(field);
    QCOMPARE(date->text(), u"2020-01-01"_s);
    for (int i = 0; i < 2; ++i) {
        const QString before = today();
        follow({"pb_options", "pb_edit_data", button});
        QVERIFY(date->text() == before || date->text() == today());
        window->type(date, u"19991231"_s);
        QCOMPARE(date->text(), u"1999-12-31"_s);
        window->click(ui->pb_options);
        window->click(ui->pb_options);
    }
}

void NavigationTest::otherFieldsOfAnAddPageKeepWhatWasTyped()
{
    follow({"pb_options", "pb_edit_data", "pb_choose_addbattery"});
    window->type(ui->ledt_name, u"Half typed"_s);
    window->type(ui->ledt_capacity, u"3300"_s);
    follow({"pb_options", "pb_edit_data", "pb_choose_addbattery"});
    QCOMPARE(ui->ledt_name->text(), u"Half typed"_s);
    QCOMPARE(ui->ledt_capacity->text(), u"3300"_s);
}

void NavigationTest::theDeletePagesPreselectWhatTheEditPageChose()
{
    follow({"pb_options", "pb_edit_data"});
    window->choose(ui->cb_bat_choose_model, u"Spare"_s);
    window->choose(ui->cb_model_choose_bat, u"Plane"_s);
    QCOMPARE(ui->cb_batteryList_delete->currentText(), u"Pack"_s);
    QCOMPARE(ui->cb_modelList_delete->currentText(), u"Heli"_s);

    window->click(ui->pb_choose_delbattery);
    QCOMPARE(ui->cb_batteryList_delete->currentText(), u"Spare"_s);
    QCOMPARE(ui->cb_modelList_delete->currentText(), u"Heli"_s);
    follow({"pb_options", "pb_edit_data", "pb_choose_delmodel"});
    QCOMPARE(ui->cb_modelList_delete->currentText(), u"Plane"_s);
}

void NavigationTest::aDeletePageKeepsItsChoiceWhenTheNameIsNotOffered()
{
    follow({"pb_options", "pb_edit_data"});
    ui->cb_batteryList_delete->setCurrentIndex(1);
    ui->cb_modelList_delete->setCurrentIndex(1);
    ui->cb_bat_choose_model->setItemText(0, u"pack"_s); // letter case matters
    ui->cb_model_choose_bat->setItemText(0, u"Stranger"_s);
    window->click(ui->pb_choose_delbattery);
    QCOMPARE(ui->cb_batteryList_delete->currentText(), u"Spare"_s);
    follow({"pb_options", "pb_edit_data", "pb_choose_delmodel"});
    QCOMPARE(ui->cb_modelList_delete->currentText(), u"Plane"_s);
}

void NavigationTest::theDeleteLocationPagePresetsNothing()
{
    ui->cb_log_location->setCurrentIndex(0);
    ui->cb_location_delete->setCurrentIndex(1);
    follow({"pb_options", "pb_edit_data", "pb_choose_dellocation"});
    QCOMPARE(ui->cb_location_delete->currentText(), u"Hill"_s);
}

void NavigationTest::openingTheChartDrawsTheChosenBattery()
{
    QDateTime moment(QDate(2026, 11, 15), QTime(12, 4, 22));
    window->battery("Spare")->addFullEntry(moment, 1500, 4550, false);
    ui->cb_batteryData->setCurrentIndex(1);
    const QChartView *before = window->gui().chartView;
    follow({"pb_options", "pb_chart"});
    const QChartView *view = window->gui().chartView;
    QVERIFY(view && view != before);
    QVERIFY(view->isVisible());
    const auto *series = qobject_cast<QLineSeries *>(view->chart()->series().constFirst());
    QCOMPARE(series->points(), QList<QPointF>({{1, 1500}}));
}

void NavigationTest::aUnitButtonRedrawsTheChartAndStaysOnThePage()
{
    follow({"pb_options", "pb_chart"});
    for (QRadioButton *unit : {ui->rb_showAmps, ui->rb_showC, ui->rb_showmAh, ui->rb_showmAh}) {
        const QChartView *before = window->gui().chartView;
        window->click(unit);
        QVERIFY(unit->isChecked());
        QVERIFY(window->gui().chartView != before); // the checked button, too, draws once more
        QCOMPARE(window->gui().currentPage, 3);
        QCOMPARE(ui->stackedWidget->currentWidget(), ui->dataView);
    }
}

void NavigationTest::theChartIsNotOfferedWithoutABattery()
{
    QVERIFY(ui->pb_chart->isEnabled());
    window->load(document({{}, {Model{u"Heli"_s}}}));
    QVERIFY(!ui->pb_chart->isEnabled());
    follow({"pb_options"});
    QTest::mouseClick(ui->pb_chart, Qt::LeftButton);
    expectMenu();
    QVERIFY(!window->gui().chartView);
}

void NavigationTest::openingTheLogBookFillsItForTheChosenModel()
{
    LogData flight;
    flight.location = u"Hill"_s;
    window->model("Plane")->addLogData(flight);
    follow({"pb_options", "pb_logbook"});
    QCOMPARE(ui->lbl_logview_location->text(), QString());
    window->choose(ui->cb_logview_model, u"Plane"_s);
    QCOMPARE(ui->lbl_logview_location->text(), u"Hill"_s);

    flight.location = u"Meadow"_s;
    window->model("Plane")->addLogData(flight);
    follow({"pb_options", "pb_logbook"});
    QCOMPARE(ui->lbl_logview_location->text(), u"Meadow"_s);
}

void NavigationTest::choosingAModelOnTheEditPageUpdatesTheAssignmentButtons()
{
    follow({"pb_options", "pb_edit_data"});
    QVERIFY(!ui->pb_add_batt_to_model->isEnabled() && ui->pb_rem_batt_from_model->isEnabled());
    window->choose(ui->cb_model_choose_bat, u"Plane"_s);
    QVERIFY(ui->pb_add_batt_to_model->isEnabled() && !ui->pb_rem_batt_from_model->isEnabled());
    QCOMPARE(window->gui().currentPage, 4);
}

QTEST_MAIN(NavigationTest)
#include "tst_navigation.moc"
