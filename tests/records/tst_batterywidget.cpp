// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/batterywidget.h"
#include "tests/records/card.h"
#include "tests/support/warnings.h"

#include <QMetaEnum>
#include <QMetaType>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <climits>
#include <memory>

using namespace Qt::Literals::StringLiterals;

class BatteryWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNewBatteryHasNoFiguresAndIsDischarged();
    void settersStoreWhatTheyAreGiven();
    void settersTakeAnyNumberUnchanged();
    void settersEmitNothing();
    void theChargeRateCannotBeClearedOnPurpose();
    void theMetaTypeSystemCreatesAndDestroysABattery();
    void theSignalsStandInOrderAndTheSlotBehindThem();
    void theViewModesAreNumbered();
    void loadingAChargeStateTouchesOnlyTheFlagAndTheButton_data();
    void loadingAChargeStateTouchesOnlyTheFlagAndTheButton();
    void aUsersDischargeCountsACycleAndLeavesAnEmptyEntry();
    void aUsersChargeStampsTheTimeAndCountsNothing();
    void theTimeIsStampedBeforeTheChangeIsAnnounced();
    void aClickOnADischargedBatteryChargesIt();
    void aClickOnAChargedBatteryOnlyAsks();
    void theChargeStateAlternates();
    void theStampIsLocalTime();
};

namespace {

const QDateTime noon(QDate(2026, 7, 1), QTime(12, 0, 0, 500));

} // namespace

void BatteryWidgetTest::init()
{
    Test::failOnWarnings();
}

void BatteryWidgetTest::aNewBatteryHasNoFiguresAndIsDischarged()
{
    BatteryWidget battery;
    QVERIFY(battery.getBatteryName().isEmpty());
    QCOMPARE(battery.getBatteryCapacity(), 0U);
    QCOMPARE(battery.getBatteryRating(), 0U);
    QCOMPARE(battery.getBatteryCycles(), 0U);
    QCOMPARE(battery.getBatteryLastDischarged(), 0U);
    QCOMPARE(battery.getBatteryLastMaxCurrent(), 0U);
    QCOMPARE(battery.getBatteryChargeRate(), 0U);
    QVERIFY(!battery.getdateOfPurchase().isValid());
    QVERIFY(battery.getBatteryLastUpdated().isNull());
    QVERIFY(battery.getDates().isEmpty());
    QVERIFY(battery.getDischarges().isEmpty());
    QVERIFY(battery.getCurrents().isEmpty());
    QCOMPARE(battery.getViewMode(), BatteryWidget::Simple);
    QVERIFY(!battery.getBatteryCharged());
    QCOMPARE(battery.parentWidget(), nullptr);
    QCOMPARE(battery.windowFlags(), QWidget().windowFlags());
}

void BatteryWidgetTest::settersStoreWhatTheyAreGiven()
{
    BatteryWidget battery;
    QString name = u"Pack A"_s;
    QDate purchase(2025, 3, 9);
    battery.setBatteryName(name);
    battery.setBatteryCapacity(2200);
    battery.setBatteryRating(25);
    battery.setBatteryCycles(12);
    battery.setBatteryLastDischarged(1760);
    battery.setBatteryLastMaxCurrent(5500);
    battery.setBatteryChargeRate(15);
    battery.setDateOfPurchase(purchase);
    battery.setLastUpdated(noon);

    QCOMPARE(battery.getBatteryName(), u"Pack A"_s);
    QCOMPARE(battery.getBatteryCapacity(), 2200U);
    QCOMPARE(battery.getBatteryRating(), 25U);
    QCOMPARE(battery.getBatteryCycles(), 12U);
    QCOMPARE(battery.getBatteryLastDischarged(), 1760U);
    QCOMPARE(battery.getBatteryLastMaxCurrent(), 5500U);
    QCOMPARE(battery.getBatteryChargeRate(), 15U);
    QCOMPARE(battery.getdateOfPurchase(), QDate(2025, 3, 9));
    QCOMPARE(battery.getBatteryLastUpdated(), noon); // to the millisecond
    QCOMPARE(name, u"Pack A"_s);
}

void BatteryWidgetTest::settersTakeAnyNumberUnchanged()
{
    BatteryWidget battery;
    battery.setBatteryCapacity(UINT_MAX);
    battery.setBatteryRating(UINT_MAX);
    battery.setBatteryCycles(UINT_MAX);
    battery.setBatteryLastDischarged(UINT_MAX);
    battery.setBatteryLastMaxCurrent(UINT_MAX);
    battery.setBatteryChargeRate(UINT_MAX);
    QCOMPARE(battery.getBatteryCapacity(), UINT_MAX);
    QCOMPARE(battery.getBatteryRating(), UINT_MAX);
    QCOMPARE(battery.getBatteryCycles(), UINT_MAX);
    QCOMPARE(battery.getBatteryLastDischarged(), UINT_MAX);
    QCOMPARE(battery.getBatteryLastMaxCurrent(), UINT_MAX);
    QCOMPARE(battery.getBatteryChargeRate(), UINT_MAX);
    battery.setBatteryCapacity(0);
    QCOMPARE(battery.getBatteryCapacity(), 0U);
}

void BatteryWidgetTest::settersEmitNothing()
{
    BatteryWidget battery;
    QSignalSpy changed(&battery, &BatteryWidget::dataChanged);
    QSignalSpy asked(&battery, &BatteryWidget::chargeBatteryClicked);
    QString name = u"Pack A"_s;
    QDate purchase(2025, 3, 9);
    battery.setBatteryName(name);
    battery.setBatteryCapacity(1);
    battery.setBatteryRating(2);
    battery.setBatteryCycles(3);
    battery.setBatteryLastDischarged(4);
    battery.setBatteryLastMaxCurrent(5);
    battery.setBatteryChargeRate(6);
    battery.setDateOfPurchase(purchase);
    battery.setLastUpdated(noon);
    battery.setViewMode(BatteryWidget::Complex);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(asked.count(), 0);
}

void BatteryWidgetTest::theChargeRateCannotBeClearedOnPurpose()
{
    BatteryWidget battery;
    battery.setBatteryRating(30);
    battery.setBatteryChargeRate(15);
    battery.setBatteryChargeRate(0);
    QCOMPARE(battery.getBatteryChargeRate(), 15U);
    QCOMPARE(Card::find(battery, "lbl_rate")->text(), u"30C/1.5C"_s);
}

void BatteryWidgetTest::theMetaTypeSystemCreatesAndDestroysABattery()
{
    const QMetaType type = QMetaType::fromName("BatteryWidget");
    QVERIFY(type.isValid());
    QVERIFY(type.isRegistered());
    auto *battery = static_cast<BatteryWidget *>(type.create());
    QVERIFY(battery != nullptr);
    QVERIFY(!battery->getBatteryCharged());
    bool destroyed = false;
    connect(battery, &QObject::destroyed, this, [&destroyed] { destroyed = true; });
    type.destroy(battery);
    QVERIFY(destroyed);
}

void BatteryWidgetTest::theSignalsStandInOrderAndTheSlotBehindThem()
{
    const QMetaObject &meta = BatteryWidget::staticMetaObject;
    const int offset = meta.methodOffset();
    QCOMPARE(meta.methodCount() - offset, 3);
    QCOMPARE(meta.method(offset).methodSignature(), QByteArray("dataChanged()"));
    QCOMPARE(meta.method(offset + 1).methodSignature(), QByteArray("chargeBatteryClicked()"));
    QCOMPARE(meta.method(offset + 2).methodSignature(), QByteArray("on_pushButton_clicked()"));
    QCOMPARE(meta.method(offset + 1).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(offset + 2).methodType(), QMetaMethod::Slot);
    QCOMPARE(meta.method(offset + 2).access(), QMetaMethod::Private);
}

void BatteryWidgetTest::theViewModesAreNumbered()
{
    QCOMPARE(static_cast<int>(BatteryWidget::Simple), 0);
    QCOMPARE(static_cast<int>(BatteryWidget::Complex), 1);
    QCOMPARE(QMetaEnum::fromType<BatteryWidget::ViewMode>().keyCount(), 2);
}

void BatteryWidgetTest::loadingAChargeStateTouchesOnlyTheFlagAndTheButton_data()
{
    QTest::addColumn<bool>("charged");
    QTest::newRow("charged") << true;
    QTest::newRow("discharged") << false;
}

void BatteryWidgetTest::loadingAChargeStateTouchesOnlyTheFlagAndTheButton()
{
    QFETCH(bool, charged);
    BatteryWidget battery;
    battery.setBatteryCycles(4);
    battery.setLastUpdated(noon);
    QDateTime when = noon;
    battery.addFullEntry(when, 1200, 4550, false);
    battery.setBatteryCharged(!charged, false);
    QSignalSpy changed(&battery, &BatteryWidget::dataChanged);

    battery.setBatteryCharged(charged, false);

    QCOMPARE(battery.getBatteryCharged(), charged);
    const auto *button = battery.findChild<QPushButton *>(u"pushButton"_s);
    QCOMPARE(button->text(), charged ? u"Charged"_s : u"Discharged"_s);
    QCOMPARE(battery.getBatteryCycles(), 4U);
    QCOMPARE(battery.getBatteryLastUpdated(), noon);
    QCOMPARE(battery.getDates().size(), 1);
    QCOMPARE(battery.getBatteryLastDischarged(), 1200U);
    QCOMPARE(battery.getBatteryLastMaxCurrent(), 4550U);
    QCOMPARE(changed.count(), 0);
}

void BatteryWidgetTest::aUsersDischargeCountsACycleAndLeavesAnEmptyEntry()
{
    BatteryWidget battery;
    battery.setBatteryCycles(4);
    battery.setLastUpdated(noon);
    QDateTime when = noon;
    battery.addFullEntry(when, 1200, 4550, false);
    battery.setBatteryCharged(true, false);
    QSignalSpy changed(&battery, &BatteryWidget::dataChanged);
    QSignalSpy asked(&battery, &BatteryWidget::chargeBatteryClicked);
    const QDateTime before = QDateTime::currentDateTime();

    battery.setBatteryCharged(false, true);

    const QDateTime after = QDateTime::currentDateTime();
    QVERIFY(!battery.getBatteryCharged());
    QCOMPARE(battery.getBatteryCycles(), 5U);
    QCOMPARE(Card::find(battery, "lbl_cycles")->text(), u"5"_s);
    QCOMPARE(battery.getDates().size(), 2);
    QVERIFY(battery.getDates().at(1) >= before && battery.getDates().at(1) <= after);
    QCOMPARE(battery.getDischarges(), (QList<unsigned int>{1200, 0}));
    QCOMPARE(battery.getCurrents(), (QList<unsigned int>{4550, 0}));
    QCOMPARE(battery.getBatteryLastDischarged(), 0U);
    QCOMPARE(battery.getBatteryLastMaxCurrent(), 0U);
    QVERIFY(battery.getBatteryLastUpdated() >= before && battery.getBatteryLastUpdated() <= after);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(asked.count(), 0);
}

void BatteryWidgetTest::aUsersChargeStampsTheTimeAndCountsNothing()
{
    BatteryWidget battery;
    battery.setBatteryCycles(4);
    QSignalSpy changed(&battery, &BatteryWidget::dataChanged);
    const QDateTime before = QDateTime::currentDateTime();

    battery.setBatteryCharged(true, true);

    QVERIFY(battery.getBatteryCharged());
    QVERIFY(battery.getBatteryLastUpdated() >= before);
    QVERIFY(battery.getBatteryLastUpdated() <= QDateTime::currentDateTime());
    QCOMPARE(Card::find(battery, "lbl_dateTime")->text(),
             battery.getBatteryLastUpdated().toString(Qt::TextDate));
    QCOMPARE(battery.getBatteryCycles(), 4U);
    QVERIFY(battery.getDates().isEmpty());
    QCOMPARE(changed.count(), 1);
}

void BatteryWidgetTest::theTimeIsStampedBeforeTheChangeIsAnnounced()
{
    BatteryWidget battery;
    int announced = 0;
    connect(&battery, &BatteryWidget::dataChanged, this, [&] {
        ++announced;
        QVERIFY(battery.getBatteryCharged());
        QVERIFY(battery.getBatteryLastUpdated().isValid());
        QCOMPARE(battery.findChild<QPushButton *>()->text(), u"Charged"_s);
    });
    battery.setBatteryCharged(true, true);
    QCOMPARE(announced, 1);
}

void BatteryWidgetTest::aClickOnADischargedBatteryChargesIt()
{
    BatteryWidget battery;
    QSignalSpy changed(&battery, &BatteryWidget::dataChanged);
    QSignalSpy asked(&battery, &BatteryWidget::chargeBatteryClicked);
    QTest::mouseClick(battery.findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(battery.getBatteryCharged());
    QVERIFY(battery.getBatteryLastUpdated().isValid());
    QCOMPARE(battery.getBatteryCycles(), 0U);
    QVERIFY(battery.getDates().isEmpty());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(asked.count(), 0);
}

void BatteryWidgetTest::aClickOnAChargedBatteryOnlyAsks()
{
    BatteryWidget battery;
    battery.setBatteryCharged(true, false);
    QSignalSpy changed(&battery, &BatteryWidget::dataChanged);
    QSignalSpy asked(&battery, &BatteryWidget::chargeBatteryClicked);
    QTest::mouseClick(battery.findChild<QPushButton *>(), Qt::LeftButton);
    QVERIFY(battery.getBatteryCharged());
    QVERIFY(battery.getBatteryLastUpdated().isNull());
    QCOMPARE(battery.getBatteryCycles(), 0U);
    QVERIFY(battery.getDates().isEmpty());
    QCOMPARE(changed.count(), 0);
    QCOMPARE(asked.count(), 1);
}

void BatteryWidgetTest::theChargeStateAlternates()
{
    BatteryWidget battery;
    connect(&battery, &BatteryWidget::chargeBatteryClicked, &battery,
            [&battery] { battery.setBatteryCharged(false, false); });
    auto *button = battery.findChild<QPushButton *>();
    for (int i = 0; i < 3; ++i) {
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(button->text(), u"Charged"_s);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(button->text(), u"Discharged"_s);
    }
}

void BatteryWidgetTest::theStampIsLocalTime()
{
    BatteryWidget battery;
    battery.setBatteryCharged(true, true);
    QCOMPARE(battery.getBatteryLastUpdated().timeSpec(), Qt::LocalTime);
    battery.setBatteryCharged(false, true);
    QCOMPARE(battery.getDates().constLast().timeSpec(), Qt::LocalTime);
}

QTEST_MAIN(BatteryWidgetTest)
#include "tst_batterywidget.moc"
