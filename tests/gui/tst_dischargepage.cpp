// SPDX-License-Identifier: GPL-3.0-or-later
// The page that full mode shows before a discharge is recorded.
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class DischargePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void inFullModeTheDischargePageComesFirst();
    void whatThePilotLeavesOnThePageIsRecorded();
    void leavingThePageWithTheMenuButtonRecordsNothing();
    void thePageProposesAUsualDischarge_data();
    void thePageProposesAUsualDischarge();
    void theCurrentIsTruncatedToHundredthsOnPurpose_data();
    void theCurrentIsTruncatedToHundredthsOnPurpose();
    void aCardConnectedTwiceShowsThePageOnce();
    void aBatteryThatIsNotChargedIsNotDischarged();

private:
    std::unique_ptr<LogbookWindow> window;
    Ui_VoltbokGui *ui = nullptr;
};

namespace {
QLineEdit *fieldOf(QAbstractSpinBox *box)
{
    return box->findChild<QLineEdit *>();
}
} // namespace

void DischargePageTest::init()
{
    window = std::make_unique<LogbookWindow>();
    ui = &window->ui();
    window->storeFullMode();
}

void DischargePageTest::cleanup()
{
    window.reset();
}

void DischargePageTest::inFullModeTheDischargePageComesFirst()
{
    window->load(hangar());
    BatteryWidget *card = window->battery("Pack");
    window->clickCard(card);
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->dischargeView);
    QCOMPARE(window->gui().currentPage, 12);
    QCOMPARE(window->gui().chargeBattery, card);
    QCOMPARE(ui->sb_discharged_capacity->value(), 1760);
    QCOMPARE(ui->dsb_discharged_current->value(), 55.0);
    QCOMPARE(ui->dedt_dischargeDate->date(), QDate::currentDate());
    QVERIFY(card->getBatteryCharged());
    QVERIFY(card->getDates().isEmpty());
    QVERIFY(window->model("Heli")->getLogData().isEmpty());
    QCOMPARE(window->fileBytes(), hangar());

    window->type(fieldOf(ui->sb_discharged_capacity), u"1500"_s);
    window->click(ui->pb_save_discharged);
    QVERIFY(!card->getBatteryCharged());
    QCOMPARE(card->getBatteryCycles(), 8U);
    QCOMPARE(card->getDischarges(), QList<unsigned int>({1500}));
    QCOMPARE(card->getCurrents(), QList<unsigned int>({5500}));
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->scrollLayout);
    QCOMPARE(window->gui().currentPage, 0);
    QVERIFY(!window->gui().chargeBattery);
    QVERIFY(window->fileBytes().contains("<Cycle Discharged=\"1500\""));
}

void DischargePageTest::whatThePilotLeavesOnThePageIsRecorded()
{
    window->load(hangar());
    window->clickCard(window->battery("Pack"));
    ui->dedt_dischargeDate->setDate(QDate(2026, 11, 15));
    ui->tedt_dischargeTime->setTime(QTime(12, 4));
    window->type(fieldOf(ui->dsb_discharged_current), u"45.5"_s);
    window->choose(ui->cb_log_location, u"Hill"_s);
    ui->sb_log_duration->setTime(QTime(0, 6, 30));
    window->type(fieldOf(ui->sb_log_temp), u"-20"_s);
    QTest::keyClicks(ui->ptext_log_notes, u"Windy & <cold>"_s);
    window->click(ui->pb_save_discharged);

    const LogData flight = window->model("Heli")->getLogData().constLast();
    QCOMPARE(flight.date, QDateTime(QDate(2026, 11, 15), QTime(12, 4)));
    QCOMPARE(flight.location, u"Hill"_s);
    QCOMPARE(flight.duration, QTime(0, 6, 30));
    QCOMPARE(flight.temperature, -20);
    QCOMPARE(flight.notes, u"Windy & <cold>"_s);
    QCOMPARE(window->battery("Pack")->getDates(), QList<QDateTime>({flight.date}));
    QCOMPARE(window->battery("Pack")->getCurrents(), QList<unsigned int>({4550}));
    QVERIFY(window->fileBytes().contains(
        "<LogData Date=\"Sun Nov 15 12:04:00 2026\" Location=\"Hill\" Duration=\"00:06:30\" "
        "Temperature=\"4294967276\" Notes=\"Windy &amp; &lt;cold&gt;\"/>"));
}

void DischargePageTest::leavingThePageWithTheMenuButtonRecordsNothing()
{
    window->load(document({{Battery{u"Pack"_s, true}, Battery{u"Spare"_s, true}},
                           {Model{u"Heli"_s, {u"Pack"_s, u"Spare"_s}}}}));
    const QByteArray before = window->fileBytes();
    window->clickCard(window->battery("Pack"));
    window->click(ui->pb_options);
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->scrollLayout);
    QCOMPARE(window->gui().currentPage, 0);
    QVERIFY(window->battery("Pack")->getBatteryCharged());
    QVERIFY(window->model("Heli")->getLogData().isEmpty());
    QCOMPARE(window->fileBytes(), before);
    QCOMPARE(window->gui().chargeBattery, window->battery("Pack")); // until another card is clicked

    window->clickCard(window->battery("Spare"));
    QCOMPARE(window->gui().chargeBattery, window->battery("Spare"));
    window->click(ui->pb_save_discharged);
    QVERIFY(window->battery("Pack")->getBatteryCharged());
    QVERIFY(!window->battery("Spare")->getBatteryCharged());
}

void DischargePageTest::thePageProposesAUsualDischarge_data()
{
    QTest::addColumn<unsigned int>("capacity");
    QTest::addColumn<unsigned int>("rating");
    QTest::addColumn<int>("discharge");
    QTest::addColumn<double>("current");
    QTest::newRow("usual") << 2200U << 25U << 1760 << 55.0;
    QTest::newRow("large") << 5000U << 30U << 4000 << 150.0;
    QTest::newRow("division rounds down") << 1234U << 30U << 987 << 37.02;
    QTest::newRow("nothing") << 0U << 0U << 0 << 0.0;
    QTest::newRow("one") << 1U << 1U << 0 << 0.0;
    QTest::newRow("highest capacity") << 25000U << 1U << 20000 << 25.0;
    QTest::newRow("capacity is clamped") << 30000U << 1U << 20000 << 30.0;
    QTest::newRow("highest current") << 5000U << 60U << 4000 << 300.0;
    QTest::newRow("current is clamped") << 5000U << 65U << 4000 << 300.0;
    QTest::newRow("80 times the capacity leaves 32 bits") << 53687092U << 0U << 0 << 0.0;
    QTest::newRow("leaves 32 bits by more") << 53700000U << 0U << 10327 << 0.0;
    QTest::newRow("the product leaves 32 bits") << 65536U << 65536U << 20000 << 0.0;
    QTest::newRow("the product leaves 32 bits by more") << 65536U << 65537U << 20000 << 65.54;
}

void DischargePageTest::thePageProposesAUsualDischarge()
{
    QFETCH(unsigned int, capacity);
    QFETCH(unsigned int, rating);
    window->load(document({{Battery{u"Pack"_s, true, {}, capacity, 20, rating}}}));
    window->clickCard(window->battery("Pack"));
    QTEST(ui->sb_discharged_capacity->value(), "discharge");
    QTEST(ui->dsb_discharged_current->value(), "current");
}

void DischargePageTest::theCurrentIsTruncatedToHundredthsOnPurpose_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<unsigned int>("stored");
    QTest::newRow("0.29 is a little less in binary") << "0.29" << 28U;
    QTest::newRow("and so is 0.57") << "0.57" << 56U;
    QTest::newRow("1.15") << "1.15" << 114U;
    QTest::newRow("45.5") << "45.5" << 4550U;
    QTest::newRow("0.07") << "0.07" << 7U;
    QTest::newRow("nothing") << "0" << 0U;
    QTest::newRow("highest") << "300" << 30000U;
}

void DischargePageTest::theCurrentIsTruncatedToHundredthsOnPurpose()
{
    QFETCH(QString, typed);
    QFETCH(unsigned int, stored);
    window->load(hangar());
    window->clickCard(window->battery("Pack"));
    window->type(fieldOf(ui->dsb_discharged_current), typed);
    window->click(ui->pb_save_discharged);
    QCOMPARE(window->battery("Pack")->getCurrents(), QList<unsigned int>({stored}));
}

void DischargePageTest::aCardConnectedTwiceShowsThePageOnce()
{
    window->load(document(
        {{Battery{u"Pack"_s, true}}, {Model{u"Heli"_s, {u"Pack"_s}}, Model{u"Plane"_s, {u"Pack"_s}}}}));
    window->choose(ui->cb_select_model, u"Plane"_s);
    window->clickCard(window->battery("Pack"));
    window->click(ui->pb_save_discharged);
    QCOMPARE(window->model("Plane")->getLogData().size(), 1);
    QCOMPARE(window->battery("Pack")->getDates().size(), 1);
    QCOMPARE(window->gui().currentPage, 0);
}

void DischargePageTest::aBatteryThatIsNotChargedIsNotDischarged()
{
    window->load(hangar());
    BatteryWidget *card = window->battery("Pack");
    window->clickCard(card);
    card->setBatteryCharged(false, false);
    window->click(ui->pb_save_discharged);
    QCOMPARE(window->model("Heli")->getLogData().size(), 1);
    QVERIFY(card->getDates().isEmpty());
    QCOMPARE(card->getBatteryCycles(), 7U);
    QCOMPARE(window->gui().chargeBattery, card);
    QCOMPARE(window->gui().currentPage, 12);
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->dischargeView);
    QCOMPARE(window->fileBytes(), hangar());
}

QTEST_MAIN(DischargePageTest)
#include "tst_dischargepage.moc"
