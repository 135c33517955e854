// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/editingwindow.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;
using namespace Test;

class BatteryEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewBatteryHasWhatWasTyped();
    void aNewBatteryIsDischargedAndWithoutHistory();
    void aNewBatteryOpensTheOverviewAndLeavesTheFormAsItWas();
    void figuresAreTakenFromTheFields_data();
    void figuresAreTakenFromTheFields();
    void everyChargeRateThatTheFieldAdmitsIsItsTenths();
    void aNameThatIsTakenGetsACounter();
    void aNewNameMayBeThatOfTheFirstBatteryOnPurpose();
    void anEmptyNameAddsNothing();
    void theRecordsOnScreenAreReadFromTheFile();
    void anAddThatCannotBeWrittenIsGoneAfterTheReload();
};

void BatteryEditingTest::aNewBatteryHasWhatWasTyped()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addbattery);
    window.type(window.ui().ledt_name, u"Big <6S> & \"Ä\""_s);
    window.type(window.ui().ledt_capacity, u"5000"_s);
    window.type(window.ui().ledt_chargeRate, u"15"_s);
    window.type(window.ui().ledt_dischargeRate, u"65"_s);
    window.type(window.ui().ledt_cyclesused, u"123"_s);
    window.type(window.ui().ledt_purchaseDate, u"20240229"_s);
    const QDateTime start = QDateTime::currentDateTime();
    window.click(window.ui().pb_addNewBattery);

    QCOMPARE(window.batteryNames(), QStringList{u"Big <6S> & \"Ä\""_s});
    const BatteryWidget *battery = window->batteryList.constFirst();
    QCOMPARE(battery->getBatteryCapacity(), 5000U);
    QCOMPARE(battery->getBatteryChargeRate(), 15U);
    QCOMPARE(battery->getBatteryRating(), 65U);
    QCOMPARE(battery->getBatteryCycles(), 123U);
    QCOMPARE(battery->getdateOfPurchase(), QDate(2024, 2, 29));
    QVERIFY(window.isSince(start, battery->getBatteryLastUpdated()));

    const QByteArray bytes = window.fileBytes();
    QVERIFY(bytes.contains("<Name>Big &lt;6S&gt; &amp; &quot;Ä&quot;</Name>"));
    QVERIFY(bytes.contains("<Capacity>5000</Capacity>"));
    QVERIFY(bytes.contains("<Chrgrate>15</Chrgrate>"));
    QVERIFY(bytes.contains("<Dischrgrate>65</Dischrgrate>"));
    QVERIFY(bytes.contains("<Purchase>2024/02/29</Purchase>"));
    QVERIFY(bytes.contains("<Cycles>123</Cycles>"));
    QVERIFY(bytes.contains("<Charged>0</Charged>"));
    QVERIFY(!bytes.contains("<Data>"));
}

void BatteryEditingTest::aNewBatteryIsDischargedAndWithoutHistory()
{
    EditingWindow window;
    window.addBattery(u"Pack"_s);
    BatteryWidget *battery = window.battery(u"Pack"_s);
    QVERIFY(battery);
    QVERIFY(!battery->getBatteryCharged());
    QCOMPARE(battery->getBatteryLastDischarged(), 0U);
    QCOMPARE(battery->getBatteryLastMaxCurrent(), 0U);
    QVERIFY(battery->getDates().isEmpty());
    QVERIFY(battery->getDischarges().isEmpty());
    QVERIFY(battery->getCurrents().isEmpty());

    const auto *button = battery->findChild<QPushButton *>(u"pushButton"_s);
    QCOMPARE(button->text(), u"Discharged"_s);
    QVERIFY(button->styleSheet().startsWith("background-color: rgb(255, 50, 0)"));
    QCOMPARE(window.cardsOnShow(), QStringList{u"Pack"_s});
}

void BatteryEditingTest::aNewBatteryOpensTheOverviewAndLeavesTheFormAsItWas()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addbattery);
    window.type(window.ui().ledt_name, u"Pack"_s);
    window.type(window.ui().ledt_capacity, u"3300"_s);
    window.click(window.ui().pb_addNewBattery);
    QVERIFY(window.showsOverview());

    window.goTo(window.ui().pb_choose_addbattery);
    QCOMPARE(window.ui().ledt_name->text(), u"Pack"_s);
    QCOMPARE(window.ui().ledt_capacity->text(), u"3300"_s);
    window.click(window.ui().pb_addNewBattery);
    QCOMPARE(window.batteryNames(), QStringList({u"Pack"_s, u"Pack_1"_s}));
    QCOMPARE(window.battery(u"Pack_1"_s)->getBatteryCapacity(), 3300U);
}

void BatteryEditingTest::figuresAreTakenFromTheFields_data()
{
    QTest::addColumn<QStringList>("typed"); // capacity, charge rate, rating, cycles, date of purchase
    QTest::addColumn<QList<unsigned int>>("figures");
    QTest::addColumn<QDate>("date");

    const auto row = [](const char *tag, const QStringList &typed, const QList<unsigned int> &figures,
                        QDate date = {}) { QTest::newRow(tag) << typed << figures << date; };
    row("all emptied", {"", "", "", "", ""}, {0, 0, 0, 0});
    row("largest", {"99999", "9.9", "999", "9999", "99991231"}, {99999, 99, 999, 9999}, QDate(9999, 12, 31));
    row("longer than the masks", {"123456789", "1.23", "12345", "56789", "202601023"}, {12345, 12, 123, 5678},
        QDate(2026, 1, 2));
    row("zeros in front", {"00042", "0.3", "007", "0001", "20260102"}, {42, 3, 7, 1}, QDate(2026, 1, 2));
    row("blanks in the masks", {" 4 2 ", " .5", "3 0", "1  2", "2026-01-02"}, {42, 5, 30, 12},
        QDate(2026, 1, 2));
    row("letters are not let in", {"1x2", "a1b5", "+3", "-4", "2026y01m02"}, {12, 15, 3, 4},
        QDate(2026, 1, 2));
    row("no tenths", {"1000", "3", "30", "0", "2026-1 -0 "}, {1000, 30, 30, 0});
    row("a day of one digit", {"1", "2.0", "1", "0", "2026-01-2 "}, {1, 20, 1, 0});
    row("no such day", {"1", "2.0", "1", "0", "2026-02-30"}, {1, 20, 1, 0});
    row("no year", {"1", "2.0", "1", "0", "    -01-02"}, {1, 20, 1, 0});
}

void BatteryEditingTest::figuresAreTakenFromTheFields()
{
    QFETCH(QStringList, typed);
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addbattery);
    window.type(window.ui().ledt_capacity, typed.at(0));
    window.type(window.ui().ledt_chargeRate, typed.at(1));
    window.type(window.ui().ledt_dischargeRate, typed.at(2));
    window.type(window.ui().ledt_cyclesused, typed.at(3));
    window.type(window.ui().ledt_purchaseDate, typed.at(4));
    window.click(window.ui().pb_addNewBattery);

    const BatteryWidget *battery = window.battery(u"MyBattery"_s);
    QVERIFY(battery);
    const QList<unsigned int> figures{battery->getBatteryCapacity(), battery->getBatteryChargeRate(),
                                      battery->getBatteryRating(), battery->getBatteryCycles()};
    QTEST(figures, "figures");
    QTEST(battery->getdateOfPurchase(), "date");
}

void BatteryEditingTest::everyChargeRateThatTheFieldAdmitsIsItsTenths()
{
    const QString digits = u" 0123456789"_s; // a blank leaves its place empty
    EditingWindow window;
    for (unsigned int whole = 0; whole <= 10; ++whole) {
        for (unsigned int tenth = 0; tenth <= 10; ++tenth) {
            window.load(document({}));
            window.goTo(window.ui().pb_choose_addbattery);
            window.type(window.ui().ledt_chargeRate, QString(digits.at(whole)) + digits.at(tenth));
            window.click(window.ui().pb_addNewBattery);
            const unsigned int expected = (whole == 0 ? 0 : whole - 1) * 10 + (tenth == 0 ? 0 : tenth - 1);
            QCOMPARE(window->batteryList.size(), 1);
            QCOMPARE(window->batteryList.constFirst()->getBatteryChargeRate(), expected);
        }
    }
}

void BatteryEditingTest::aNameThatIsTakenGetsACounter()
{
    EditingWindow window;
    for (int i = 0; i < 3; ++i) {
        window.goTo(window.ui().pb_choose_addbattery);
        window.click(window.ui().pb_addNewBattery);
    }
    QCOMPARE(window.batteryNames(), QStringList({u"MyBattery"_s, u"MyBattery_1"_s, u"MyBattery_2"_s}));
    for (const QComboBox *chooser : window.batteryChoosers())
        QCOMPARE(window.items(chooser), window.batteryNames());
}

void BatteryEditingTest::aNewNameMayBeThatOfTheFirstBatteryOnPurpose()
{
    EditingWindow window;
    window.addBattery(u"MyBattery_1"_s);
    window.addBattery(u"MyBattery"_s);
    window.addBattery(u"MyBattery"_s);
    QCOMPARE(window.batteryNames(), QStringList({u"MyBattery_1"_s, u"MyBattery"_s, u"MyBattery_1"_s}));
}

void BatteryEditingTest::anEmptyNameAddsNothing()
{
    EditingWindow window;
    window.goTo(window.ui().pb_choose_addbattery);
    window.type(window.ui().ledt_name, QString());
    window.click(window.ui().pb_addNewBattery);
    QVERIFY(window.shows(window.ui().addView, Page::AddBattery));
    QVERIFY(window->batteryList.isEmpty());
    QVERIFY(!QFile::exists(window.filePath()));
}

void BatteryEditingTest::theRecordsOnScreenAreReadFromTheFile()
{
    EditingWindow window;
    window.load(document({{flownBattery(u"Pack"_s)}, {flownModel(u"Bird"_s, {u"Pack"_s})}}));
    const QPointer<BatteryWidget> before = window.battery(u"Pack"_s);
    const QPointer<ModelWidget> modelBefore = window.model(u"Bird"_s);
    QVERIFY(before && modelBefore);

    window.addBattery(u"Other"_s);
    QVERIFY(!before);
    QVERIFY(!modelBefore);
    QCOMPARE(window.batteryNames(), QStringList({u"Pack"_s, u"Other"_s}));
    QCOMPARE(window->findChildren<ModelWidget *>().size(), 0); // the one that was read has no parent
}

void BatteryEditingTest::anAddThatCannotBeWrittenIsGoneAfterTheReload()
{
    EditingWindow window;
    QVERIFY(QDir().mkdir(window.filePath())); // a folder in the place of the file cannot be opened
    window.addBattery(u"Pack"_s);
    QVERIFY(window.showsOverview());
    QVERIFY(window->batteryList.isEmpty());
    QVERIFY(window->findChildren<BatteryWidget *>().isEmpty());
}

QTEST_MAIN(BatteryEditingTest)
#include "tst_batteryediting.moc"
