// SPDX-License-Identifier: GPL-3.0-or-later
// The two-state cycle of a battery: charge, discharge with its flight, charge.
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

#include <QSignalSpy>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class CaptureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aClickOnADischargedCardOnlyMarksItCharged_data();
    void aClickOnADischargedCardOnlyMarksItCharged();
    void aClickOnAChargedCardRecordsFlightAndDischargeAtOnce();
    void aDischargeSavesOnceAndStampsNothing();
    void withoutAModelTheDischargeIsRecordedAlone();
    void ofTwoModelsOfOneNameTheLaterGetsTheFlightOnPurpose();
    void theNextQuickCaptureRepeatsTheFlightOnPurpose();
    void withoutLocationsAFlightHasNone();
    void aCardConnectedTwiceRecordsASecondFlightOnPurpose();
    void aFlightIsRecordedWithoutABatteryOnPurpose();
    void onlyABatteryCardMayAsk();
    void flightAndDischargeShareTheirMomentBeforeAndAfterAReload();

private:
    std::unique_ptr<LogbookWindow> window;
    Ui_VoltbokGui *ui = nullptr;

    static LogData lastFlight(ModelWidget *model) { return model->getLogData().constLast(); }
};

namespace {
QPushButton *buttonOf(BatteryWidget *card)
{
    return card->findChild<QPushButton *>(u"pushButton"_s);
}
} // namespace

void CaptureTest::init()
{
    window = std::make_unique<LogbookWindow>();
    ui = &window->ui();
}

void CaptureTest::cleanup()
{
    window.reset();
}

void CaptureTest::aClickOnADischargedCardOnlyMarksItCharged_data()
{
    QTest::addColumn<bool>("full");
    QTest::newRow("quick") << false;
    QTest::newRow("full") << true;
}

void CaptureTest::aClickOnADischargedCardOnlyMarksItCharged()
{
    QFETCH(bool, full);
    if (full)
        window->storeFullMode();
    window->load(hangar());
    BatteryWidget *card = window->battery("Flat");
    QCOMPARE(buttonOf(card)->text(), u"Discharged"_s);
    const QDateTime before = QDateTime::currentDateTime();
    window->clickCard(card);

    QVERIFY(card->getBatteryCharged());
    QCOMPARE(buttonOf(card)->text(), u"Charged"_s);
    QVERIFY(buttonOf(card)->styleSheet().contains(u"rgb(0, 255, 0)"_s));
    QVERIFY(before <= card->getBatteryLastUpdated() &&
            card->getBatteryLastUpdated() <= QDateTime::currentDateTime());
    QCOMPARE(card->getBatteryCycles(), 7U);
    QVERIFY(card->getDates().isEmpty());
    QVERIFY(window->model("Heli")->getLogData().isEmpty());
    QCOMPARE(window->gui().currentPage, 0);
    QVERIFY(!window->gui().chargeBattery);
    QCOMPARE(window->fileBytes().count("<Charged>1<"), 3);
    QVERIFY(!window->fileBytes().contains("<Cycle "));
    QVERIFY(!window->fileBytes().contains("<LogData"));
}

void CaptureTest::aClickOnAChargedCardRecordsFlightAndDischargeAtOnce()
{
    window->load(hangar());
    BatteryWidget *card = window->battery("Pack");
    const QSignalSpy pages(ui->stackedWidget, &QStackedWidget::currentChanged);
    window->clickCard(card);

    QVERIFY(!card->getBatteryCharged());
    QCOMPARE(buttonOf(card)->text(), u"Discharged"_s);
    QVERIFY(buttonOf(card)->styleSheet().contains(u"rgb(255, 50, 0)"_s));
    QCOMPARE(card->getBatteryCycles(), 8U);
    QCOMPARE(card->getDischarges(), QList<unsigned int>({1760}));
    QCOMPARE(card->getCurrents(), QList<unsigned int>({5500}));
    QCOMPARE(window->model("Heli")->getLogData().size(), 1);
    QCOMPARE(window->model("Heli")->getModelFlights(), 12U);
    QVERIFY(window->model("Plane")->getLogData().isEmpty());

    QCOMPARE(pages.count(), 0); // the overview stays on show
    QCOMPARE(window->gui().currentPage, 0);
    QVERIFY(!window->gui().chargeBattery);
    QVERIFY(window->fileBytes().contains("<Cycle Discharged=\"1760\" Current=\"5500\" Date=\""));
    QCOMPARE(window->fileBytes().count("<LogData "), 1);

    window->clickCard(card); // and it is charged again
    QVERIFY(card->getBatteryCharged());
    QCOMPARE(card->getBatteryCycles(), 8U);
}

void CaptureTest::aDischargeSavesOnceAndStampsNothing()
{
    window->load(hangar());
    BatteryWidget *card = window->battery("Pack");
    const QDateTime stamp(QDate(2026, 11, 15), QTime(12, 4, 22));
    card->setLastUpdated(stamp);
    const QSignalSpy changes(card, &BatteryWidget::dataChanged);
    window->clickCard(card);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(card->getBatteryLastUpdated(), stamp);
    QCOMPARE(card->getDates().size(), 1);
}

void CaptureTest::withoutAModelTheDischargeIsRecordedAlone()
{
    window->load(document({{Battery{u"Pack"_s, true}}}));
    window->clickCard(window->battery("Pack"));
    QVERIFY(!window->battery("Pack")->getBatteryCharged());
    QCOMPARE(window->battery("Pack")->getBatteryCycles(), 8U);
    QCOMPARE(window->battery("Pack")->getDischarges(), QList<unsigned int>({1760}));
    QVERIFY(window->fileBytes().contains("<Cycle "));
    QVERIFY(!window->fileBytes().contains("<LogData"));
    QCOMPARE(window->gui().currentPage, 0);
}

void CaptureTest::ofTwoModelsOfOneNameTheLaterGetsTheFlightOnPurpose()
{
    window->load(document(
        {{Battery{u"Pack"_s, true}}, {Model{u"Heli"_s, {u"Pack"_s}}, Model{u"Heli"_s, {u"Pack"_s}}}}));
    window->clickCard(window->battery("Pack"));
    QCOMPARE(window->gui().modelList.at(0)->getLogData().size(), 0);
    QCOMPARE(window->gui().modelList.at(1)->getLogData().size(), 1);
}

void CaptureTest::theNextQuickCaptureRepeatsTheFlightOnPurpose()
{
    window->load(document({{Battery{u"Pack"_s, true}, Battery{u"Spare"_s, true}},
                           {Model{u"Heli"_s, {u"Pack"_s, u"Spare"_s}}},
                           {u"Meadow"_s, u"Hill"_s}}));
    window->battery("Pack")->setViewMode(BatteryWidget::Complex); // each card's own mode decides
    window->clickCard(window->battery("Pack"));
    window->choose(ui->cb_log_location, u"Hill"_s);
    ui->sb_log_duration->setTime(QTime(0, 7));
    ui->sb_log_temp->setValue(15);
    ui->ptext_log_notes->setPlainText(u"Loops"_s);
    window->click(ui->pb_save_discharged);
    window->clickCard(window->battery("Spare"));

    QCOMPARE(window->model("Heli")->getLogData().size(), 2);
    for (const LogData &flight : window->model("Heli")->getLogData()) {
        QCOMPARE(flight.location, u"Hill"_s);
        QCOMPARE(flight.duration, QTime(0, 7));
        QCOMPARE(flight.temperature, 15);
        QCOMPARE(flight.notes, u"Loops"_s);
    }
    QCOMPARE(window->battery("Spare")->getDischarges(),
             QList<unsigned int>({1760})); // these are proposed anew
}

void CaptureTest::withoutLocationsAFlightHasNone()
{
    window->load(document({{Battery{u"Pack"_s, true}}, {Model{u"Heli"_s, {u"Pack"_s}}}}));
    window->clickCard(window->battery("Pack"));
    QCOMPARE(lastFlight(window->model("Heli")).location, QString());
    QCOMPARE(lastFlight(window->model("Heli")).temperature, 0);
}

void CaptureTest::aCardConnectedTwiceRecordsASecondFlightOnPurpose()
{
    window->load(document(
        {{Battery{u"Pack"_s, true}}, {Model{u"Heli"_s, {u"Pack"_s}}, Model{u"Plane"_s, {u"Pack"_s}}}}));
    window->choose(ui->cb_select_model, u"Plane"_s);
    BatteryWidget *card = window->battery("Pack");
    window->clickCard(card);

    const QList<LogData> flights = window->model("Plane")->getLogData();
    QCOMPARE(flights.size(), 2);
    QVERIFY(flights.at(0).date <= flights.at(1).date);
    QCOMPARE(card->getDates(), QList<QDateTime>({flights.at(0).date}));
    QCOMPARE(card->getBatteryCycles(), 8U);
    QVERIFY(!card->getBatteryCharged());
    QCOMPARE(window->gui().currentPage, 12);
    QCOMPARE(window->gui().chargeBattery, card);
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->scrollLayout);
    QCOMPARE(window->fileBytes().count("<LogData "), 1);

    window->clickCard(card); // the next change takes the second flight to the file
    QCOMPARE(window->fileBytes().count("<LogData "), 2);
    window->click(ui->pb_options); // the page on show is the overview, the identifier says otherwise
    QCOMPARE(window->gui().currentPage, 0);
}

void CaptureTest::aFlightIsRecordedWithoutABatteryOnPurpose()
{
    window->load(hangar());
    window->click(ui->pb_options);
    window->gui().on_pb_save_discharged_clicked();
    QCOMPARE(window->model("Heli")->getLogData().size(), 1);
    QCOMPARE(window->gui().currentPage, 1);
    QCOMPARE(ui->stackedWidget->currentWidget(), ui->optionsView);
    QCOMPARE(window->fileBytes(), hangar()); // it does not write by itself
}

void CaptureTest::onlyABatteryCardMayAsk()
{
    window->load(hangar());
    ui->sb_discharged_capacity->setValue(7);
    window->gui().showBatteryCharge(); // nobody asks
    QTimer stranger;
    connect(&stranger, &QTimer::timeout, &window->gui(), &VoltbokGui::showBatteryCharge);
    QVERIFY(QMetaObject::invokeMethod(&stranger, "timeout"));
    QCOMPARE(ui->sb_discharged_capacity->value(), 7);
    QCOMPARE(window->gui().currentPage, 0);
    QVERIFY(!window->gui().chargeBattery);
    QVERIFY(window->model("Heli")->getLogData().isEmpty());
}

void CaptureTest::flightAndDischargeShareTheirMomentBeforeAndAfterAReload()
{
    window->load(hangar());
    window->clickCard(window->battery("Pack"));
    for (int i = 0; i < 2; ++i) {
        QDateTime flown = lastFlight(window->model("Heli")).date;
        QVERIFY(flown.isValid());
        QCOMPARE(window->battery("Pack")->getDates(), QList<QDateTime>({flown}));
        unsigned int discharged = 0;
        unsigned int current = 0;
        QVERIFY(window->battery("Pack")->getEvent(flown, discharged, current));
        QCOMPARE(discharged, 1760U);
        QCOMPARE(current, 5500U);
        window->gui().updateBatteryGui();
    }
}

QTEST_MAIN(CaptureTest)
#include "tst_capture.moc"
