// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/editingwindow.h"

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class BatteryUpdateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theModifyPageShowsTheBattery();
    void theChargeRateIsShownUnscaledOnPurpose_data();
    void theChargeRateIsShownUnscaledOnPurpose();
    void anUpdateWithoutChangesOnlyStampsTheTime();
    void anUpdateStoresWhatWasTyped();
    void anUpdateLeavesTheChargeStateAndTheHistoryAlone();
    void anUpdateCannotClearTheChargeRateOnPurpose();
    void theNameCannotBeChanged();
    void ofTwoBatteriesOfOneNameTheLastIsModified();
    void namesAreComparedExactly();
    void theModifyPageStaysClosedWithoutABattery();
    void anUpdateOfABatteryThatIsGoneDoesNothing();
};

void BatteryUpdateTest::theModifyPageShowsTheBattery()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"Small"_s, 850), flownBattery(u"Pack"_s)}}));
    window.goToEditPage();
    window.choose(window.ui().cb_bat_choose_model, u"Pack"_s);
    window.click(window.ui().pb_choose_modify_battery);

    QVERIFY(window.shows(window.ui().modBatteryView, Page::ModifyBattery));
    QCOMPARE(window.ui().ledt_modifyBattery_name->text(), u"Pack"_s);
    QCOMPARE(window.ui().ledt_modifyBattery_capacity->text(), u"2200"_s);
    QCOMPARE(window.ui().ledt_modifyBattery_chargeRate->text(), u"2.0"_s);
    QCOMPARE(window.ui().ledt_modifyBattery_dischargeRate->text(), u"25"_s);
    QCOMPARE(window.ui().ledt_modifyBattery_cyclesused->text(), u"7"_s);
    QCOMPARE(window.ui().ledt_modifyBattery_purchaseDate->text(), u"2024-02-29"_s);
}

void BatteryUpdateTest::theChargeRateIsShownUnscaledOnPurpose_data()
{
    QTest::addColumn<unsigned int>("stored");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<unsigned int>("updated");

    for (unsigned int rate = 10; rate <= 99; ++rate)
        QTest::addRow("%u tenths", rate) << rate << u"%1.%2"_s.arg(rate / 10).arg(rate % 10) << rate;
    // Below 10 the digit stands before the point, above 99 the mask takes no third one.
    for (unsigned int rate = 1; rate <= 9; ++rate)
        QTest::addRow("%u tenths", rate) << rate << u"%1."_s.arg(rate) << rate * 10;
    QTest::newRow("none") << 0U << "0." << 0U;
    QTest::newRow("100 tenths") << 100U << "1.0" << 10U;
    QTest::newRow("4294967295 tenths") << 4294967295U << "4.2" << 42U;
}

void BatteryUpdateTest::theChargeRateIsShownUnscaledOnPurpose()
{
    QFETCH(unsigned int, stored);
    EditingWindow window;
    window.load(document({{flownBattery(u"Pack"_s, 2200, stored)}}));
    window.goTo(window.ui().pb_choose_modify_battery);
    QTEST(window.ui().ledt_modifyBattery_chargeRate->text(), "shown");
    window.click(window.ui().pb_update_battery);
    QTEST(window.battery(u"Pack"_s)->getBatteryChargeRate(), "updated");
}

void BatteryUpdateTest::anUpdateWithoutChangesOnlyStampsTheTime()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"Pack"_s)}}));
    window->writeDataWithDataprocessor();
    const QByteArray before = window.fileBytes();
    window.goTo(window.ui().pb_choose_modify_battery);
    const QDateTime start = QDateTime::currentDateTime();
    window.click(window.ui().pb_update_battery);

    QVERIFY(window.showsOverview());
    const QDateTime stamped = window.battery(u"Pack"_s)->getBatteryLastUpdated();
    QVERIFY(window.isSince(start, stamped));
    QByteArray expected = before;
    expected.replace("<LastUse>Sun Nov 9 08:07:06 2025</LastUse>",
                     "<LastUse>" + stamped.toString(Qt::TextDate).toLatin1() + "</LastUse>");
    QVERIFY(expected != before);
    QCOMPARE(window.fileBytes(), expected);
}

void BatteryUpdateTest::anUpdateStoresWhatWasTyped()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"Pack"_s)}}));
    window.goTo(window.ui().pb_choose_modify_battery);
    window.type(window.ui().ledt_modifyBattery_capacity, u"1850"_s);
    window.type(window.ui().ledt_modifyBattery_chargeRate, u"35"_s);
    window.type(window.ui().ledt_modifyBattery_dischargeRate, u"40"_s);
    window.type(window.ui().ledt_modifyBattery_cyclesused, u"88"_s);
    window.type(window.ui().ledt_modifyBattery_purchaseDate, u"20211105"_s);
    window.click(window.ui().pb_update_battery);

    const BatteryWidget *battery = window.battery(u"Pack"_s);
    QCOMPARE(battery->getBatteryCapacity(), 1850U);
    QCOMPARE(battery->getBatteryChargeRate(), 35U);
    QCOMPARE(battery->getBatteryRating(), 40U);
    QCOMPARE(battery->getBatteryCycles(), 88U);
    QCOMPARE(battery->getdateOfPurchase(), QDate(2021, 11, 5));
    const QByteArray bytes = window.fileBytes();
    QVERIFY(bytes.contains("<Capacity>1850</Capacity>"));
    QVERIFY(bytes.contains("<Chrgrate>35</Chrgrate>"));
    QVERIFY(bytes.contains("<Dischrgrate>40</Dischrgrate>"));
    QVERIFY(bytes.contains("<Purchase>2021/11/05</Purchase>"));
    QVERIFY(bytes.contains("<Cycles>88</Cycles>"));

    window.goTo(window.ui().pb_choose_modify_battery);
    window.type(window.ui().ledt_modifyBattery_capacity, QString());
    window.type(window.ui().ledt_modifyBattery_purchaseDate, u"2021"_s);
    window.click(window.ui().pb_update_battery);
    QCOMPARE(window.battery(u"Pack"_s)->getBatteryCapacity(), 0U);
    QVERIFY(!window.battery(u"Pack"_s)->getdateOfPurchase().isValid());
    QVERIFY(window.fileBytes().contains("<Purchase></Purchase>"));
}

void BatteryUpdateTest::anUpdateLeavesTheChargeStateAndTheHistoryAlone()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"Pack"_s)}}));
    window.goTo(window.ui().pb_choose_modify_battery);
    window.type(window.ui().ledt_modifyBattery_cyclesused, u"99"_s);
    window.click(window.ui().pb_update_battery);

    BatteryWidget *battery = window.battery(u"Pack"_s);
    QVERIFY(battery->getBatteryCharged());
    QCOMPARE(battery->getDates(), QList<QDateTime>{QDateTime(QDate(2025, 11, 8), QTime(10, 30))});
    QCOMPARE(battery->getDischarges(), QList<unsigned int>{1500});
    QCOMPARE(battery->getCurrents(), QList<unsigned int>{4550});
    QCOMPARE(battery->getBatteryLastDischarged(), 1500U);
    QCOMPARE(battery->getBatteryLastMaxCurrent(), 4550U);
}

void BatteryUpdateTest::anUpdateCannotClearTheChargeRateOnPurpose()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"Pack"_s, 2200, 15)}}));
    window.goTo(window.ui().pb_choose_modify_battery);
    window.type(window.ui().ledt_modifyBattery_chargeRate, u"0.0"_s);
    window.click(window.ui().pb_update_battery);
    QCOMPARE(window.battery(u"Pack"_s)->getBatteryChargeRate(), 15U);
}

void BatteryUpdateTest::theNameCannotBeChanged()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"Pack"_s)}}));
    window.goTo(window.ui().pb_choose_modify_battery);
    window.type(window.ui().ledt_modifyBattery_name, u"Other"_s);
    QCOMPARE(window.ui().ledt_modifyBattery_name->text(), u"Pack"_s);
    window.click(window.ui().pb_update_battery);
    QCOMPARE(window.batteryNames(), QStringList{u"Pack"_s});
}

void BatteryUpdateTest::ofTwoBatteriesOfOneNameTheLastIsModified()
{
    EditingWindow window;
    window.load(document(
        {{flownBattery(u"Pack"_s, 1000), flownBattery(u"Pack"_s, 2000), flownBattery(u"Other"_s, 3000)}}));
    window.goTo(window.ui().pb_choose_modify_battery);
    QCOMPARE(window.ui().ledt_modifyBattery_capacity->text(), u"2000"_s);
    window.type(window.ui().ledt_modifyBattery_capacity, u"2500"_s);
    window.click(window.ui().pb_update_battery);
    QCOMPARE(window->batteryList.at(0)->getBatteryCapacity(), 1000U);
    QCOMPARE(window->batteryList.at(1)->getBatteryCapacity(), 2500U);
    QCOMPARE(window->batteryList.at(2)->getBatteryCapacity(), 3000U);
}

void BatteryUpdateTest::namesAreComparedExactly()
{
    EditingWindow window;
    window.load(document(
        {{flownBattery(u"pack"_s, 1000), flownBattery(u"PACK"_s, 2000), flownBattery(u"pack "_s, 3000)}}));
    window.goTo(window.ui().pb_choose_modify_battery);
    QCOMPARE(window.ui().ledt_modifyBattery_capacity->text(), u"1000"_s);
    window.type(window.ui().ledt_modifyBattery_capacity, u"1"_s);
    window.click(window.ui().pb_update_battery);
    QCOMPARE(window->batteryList.at(0)->getBatteryCapacity(), 1U);
    QCOMPARE(window->batteryList.at(1)->getBatteryCapacity(), 2000U);
    QCOMPARE(window->batteryList.at(2)->getBatteryCapacity(), 3000U);
    window.addBattery(u"Pack"_s);
    QVERIFY(window.battery(u"Pack"_s));
}

void BatteryUpdateTest::theModifyPageStaysClosedWithoutABattery()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_modify_battery);
    QVERIFY(window.shows(window.ui().editDataView, Page::EditData));
    QCOMPARE(window.ui().ledt_modifyBattery_name->text(), u"MyBattery"_s);
}

void BatteryUpdateTest::anUpdateOfABatteryThatIsGoneDoesNothing()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"Pack"_s)}}));
    window.goTo(window.ui().pb_choose_modify_battery);
    window.load(document({{flownBattery(u"Other"_s)}}));
    const QByteArray before = window.fileBytes();
    window.click(window.ui().pb_update_battery);
    QVERIFY(window.shows(window.ui().modBatteryView, Page::ModifyBattery));
    QCOMPARE(window.fileBytes(), before);
}

QTEST_MAIN(BatteryUpdateTest)
#include "tst_batteryupdate.moc"
