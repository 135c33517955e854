// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/editingwindow.h"

using namespace Qt::Literals::StringLiterals;

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
    window.load(window.document({window.batteryElement("Small", "850"), window.batteryElement("Pack")}));
    window.goToEditPage();
    window.choose(window.ui().cb_bat_choose_model, u"Pack"_qs);
    window.click(window.ui().pb_choose_modify_battery);

    QVERIFY(window.shows(window.ui().modBatteryView, Page::ModifyBattery));
    QCOMPARE(window.ui().ledt_modifyBattery_name->text(), u"Pack"_qs);
    QCOMPARE(window.ui().ledt_modifyBattery_capacity->text(), u"2200"_qs);
    QCOMPARE(window.ui().ledt_modifyBattery_chargeRate->text(), u"2.0"_qs);
    QCOMPARE(window.ui().ledt_modifyBattery_dischargeRate->text(), u"25"_qs);
    QCOMPARE(window.ui().ledt_modifyBattery_cyclesused->text(), u"7"_qs);
    QCOMPARE(window.ui().ledt_modifyBattery_purchaseDate->text(), u"2024-02-29"_qs);
}

void BatteryUpdateTest::theChargeRateIsShownUnscaledOnPurpose_data()
{
    QTest::addColumn<unsigned int>("stored");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<unsigned int>("updated");

    for (unsigned int rate = 10; rate <= 99; ++rate)
        QTest::addRow("%u tenths", rate)
            << rate << QStringLiteral("%1.%2").arg(rate / 10).arg(rate % 10) << rate;
    // Below 10 the digit stands before the point, above 99 the mask takes no third one.
    for (unsigned int rate = 1; rate <= 9; ++rate)
        QTest::addRow("%u tenths", rate) << rate << QStringLiteral("%1.").arg(rate) << rate * 10;
    QTest::newRow("none") << 0U << "0." << 0U;
    QTest::newRow("100 tenths") << 100U << "1.0" << 10U;
    QTest::newRow("4294967295 tenths") << 4294967295U << "4.2" << 42U;
}

void BatteryUpdateTest::theChargeRateIsShownUnscaledOnPurpose()
{
    QFETCH(unsigned int, stored);
    EditingWindow window;
    window.load(window.document({window.batteryElement("Pack", "2200", QByteArray::number(stored))}));
    window.goTo(window.ui().pb_choose_modify_battery);
    QTEST(window.ui().ledt_modifyBattery_chargeRate->text(), "shown");
    window.click(window.ui().pb_update_battery);
    QTEST(window.battery(u"Pack"_qs)->getBatteryChargeRate(), "updated");
}

void BatteryUpdateTest::anUpdateWithoutChangesOnlyStampsTheTime()
{
    EditingWindow window;
    window.load(window.document({window.batteryElement("Pack")}));
    window->writeDataWithDataprocessor();
    const QByteArray before = window.fileBytes();
    window.goTo(window.ui().pb_choose_modify_battery);
    const QDateTime start = QDateTime::currentDateTime();
    window.click(window.ui().pb_update_battery);

    QVERIFY(window.showsOverview());
    const QDateTime stamped = window.battery(u"Pack"_qs)->getBatteryLastUpdated();
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
    window.load(window.document({window.batteryElement("Pack")}));
    window.goTo(window.ui().pb_choose_modify_battery);
    window.type(window.ui().ledt_modifyBattery_capacity, u"1850"_qs);
    window.type(window.ui().ledt_modifyBattery_chargeRate, u"35"_qs);
    window.type(window.ui().ledt_modifyBattery_dischargeRate, u"40"_qs);
    window.type(window.ui().ledt_modifyBattery_cyclesused, u"88"_qs);
    window.type(window.ui().ledt_modifyBattery_purchaseDate, u"20211105"_qs);
    window.click(window.ui().pb_update_battery);

    const BatteryWidget *battery = window.battery(u"Pack"_qs);
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
    window.type(window.ui().ledt_modifyBattery_purchaseDate, u"2021"_qs);
    window.click(window.ui().pb_update_battery);
    QCOMPARE(window.battery(u"Pack"_qs)->getBatteryCapacity(), 0U);
    QVERIFY(!window.battery(u"Pack"_qs)->getdateOfPurchase().isValid());
    QVERIFY(window.fileBytes().contains("<Purchase></Purchase>"));
}

void BatteryUpdateTest::anUpdateLeavesTheChargeStateAndTheHistoryAlone()
{
    EditingWindow window;
    window.load(window.document({window.batteryElement("Pack")}));
    window.goTo(window.ui().pb_choose_modify_battery);
    window.type(window.ui().ledt_modifyBattery_cyclesused, u"99"_qs);
    window.click(window.ui().pb_update_battery);

    BatteryWidget *battery = window.battery(u"Pack"_qs);
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
    window.load(window.document({window.batteryElement("Pack", "2200", "15")}));
    window.goTo(window.ui().pb_choose_modify_battery);
    window.type(window.ui().ledt_modifyBattery_chargeRate, u"0.0"_qs);
    window.click(window.ui().pb_update_battery);
    QCOMPARE(window.battery(u"Pack"_qs)->getBatteryChargeRate(), 15U);
}

void BatteryUpdateTest::theNameCannotBeChanged()
{
    EditingWindow window;
    window.load(window.document({window.batteryElement("Pack")}));
    window.goTo(window.ui().pb_choose_modify_battery);
    window.type(window.ui().ledt_modifyBattery_name, u"Other"_qs);
    QCOMPARE(window.ui().ledt_modifyBattery_name->text(), u"Pack"_qs);
    window.click(window.ui().pb_update_battery);
    QCOMPARE(window.batteryNames(), QStringList{u"Pack"_qs});
}

void BatteryUpdateTest::ofTwoBatteriesOfOneNameTheLastIsModified()
{
    EditingWindow window;
    window.load(window.document({window.batteryElement("Pack", "1000"), window.batteryElement("Pack", "2000"),
                                 window.batteryElement("Other", "3000")}));
    window.goTo(window.ui().pb_choose_modify_battery);
    QCOMPARE(window.ui().ledt_modifyBattery_capacity->text(), u"2000"_qs);
    window.type(window.ui().ledt_modifyBattery_capacity, u"2500"_qs);
    window.click(window.ui().pb_update_battery);
    QCOMPARE(window->batteryList.at(0)->getBatteryCapacity(), 1000U);
    QCOMPARE(window->batteryList.at(1)->getBatteryCapacity(), 2500U);
    QCOMPARE(window->batteryList.at(2)->getBatteryCapacity(), 3000U);
}

void BatteryUpdateTest::namesAreComparedExactly()
{
    EditingWindow window;
    window.load(window.document({window.batteryElement("pack", "1000"), window.batteryElement("PACK", "2000"),
                                 window.batteryElement("pack ", "3000")}));
    window.goTo(window.ui().pb_choose_modify_battery);
    QCOMPARE(window.ui().ledt_modifyBattery_capacity->text(), u"1000"_qs);
    window.type(window.ui().ledt_modifyBattery_capacity, u"1"_qs);
    window.click(window.ui().pb_update_battery);
    QCOMPARE(window->batteryList.at(0)->getBatteryCapacity(), 1U);
    QCOMPARE(window->batteryList.at(1)->getBatteryCapacity(), 2000U);
    QCOMPARE(window->batteryList.at(2)->getBatteryCapacity(), 3000U);
    window.addBattery(u"Pack"_qs);
    QVERIFY(window.battery(u"Pack"_qs));
}

void BatteryUpdateTest::theModifyPageStaysClosedWithoutABattery()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_modify_battery);
    QVERIFY(window.shows(window.ui().editDataView, Page::EditData));
    QCOMPARE(window.ui().ledt_modifyBattery_name->text(), u"MyBattery"_qs);
}

void BatteryUpdateTest::anUpdateOfABatteryThatIsGoneDoesNothing()
{
    EditingWindow window;
    window.load(window.document({window.batteryElement("Pack")}));
    window.goTo(window.ui().pb_choose_modify_battery);
    window.load(window.document({window.batteryElement("Other")}));
    const QByteArray before = window.fileBytes();
    window.click(window.ui().pb_update_battery);
    QVERIFY(window.shows(window.ui().modBatteryView, Page::ModifyBattery));
    QCOMPARE(window.fileBytes(), before);
}

QTEST_MAIN(BatteryUpdateTest)
#include "tst_batteryupdate.moc"
