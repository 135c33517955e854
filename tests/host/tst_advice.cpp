// SPDX-License-Identifier: GPL-3.0-or-later
// Each rule of the advice at its borders.
#include "host/data/sources.h"
#include "tests/host/support/advised.h"

#include <QTest>

using namespace Advised;
using namespace Qt::Literals::StringLiterals;

class AdviceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChargedBatteryWantsStorageCharge_data();
    void aChargedBatteryWantsStorageCharge();
    void aDischargeAfterTheLastUseCountsAsUse();
    void deepDischarges_data();
    void deepDischarges();
    void onlyTheLastTenCountedDischargesMatter();
    void guessesAreNeverDeepNorOverTheLabel();
    void aLoadOverTheLabel_data();
    void aLoadOverTheLabel();
    void aPresetIsNeverOverTheLabel();
    void aColdFlight_data();
    void aColdFlight();
    void theNewestFlightOfAnyModelTells();
    void anIdleBattery_data();
    void anIdleBattery();
    void anOldBattery_data();
    void anOldBattery();
    void aTimer_data();
    void aTimer();
    void aTimerNeedsThreeFlights();
    void aTimerOfLessThanItsStepIsNone();
    void aTimerTakesTheLastTenFlights();
    void warningsComeFirst();
    void namesAreInCodePointOrder();
    void whatComesLaterIsNotLookedAt();
    void limitsAreTheUsers();
    void aTextSaysWhatToDo();
};

void AdviceTest::aChargedBatteryWantsStorageCharge_data()
{
    QTest::addColumn<int>("days");
    QTest::addColumn<bool>("charged");
    QTest::addColumn<QStringList>("advice");
    QTest::newRow("yesterday") << 1 << true << QStringList();
    QTest::newRow("2 days") << 2 << true << QStringList{u"storage notice 2"_s};
    QTest::newRow("4 days") << 4 << true << QStringList{u"storage notice 4"_s};
    QTest::newRow("5 days") << 5 << true << QStringList{u"storage warning 5"_s};
    QTest::newRow("discharged") << 5 << false << QStringList();
}

void AdviceTest::aChargedBatteryWantsStorageCharge()
{
    QFETCH(int, days);
    QFETCH(bool, charged);
    Battery battery = pack();
    battery.lastUse = daysAgo(days);
    battery.charged = charged;
    QTEST(said(battery), "advice");
}

void AdviceTest::aDischargeAfterTheLastUseCountsAsUse()
{
    Battery battery = pack();
    battery.charged = true;
    battery.lastUse = daysAgo(9);
    battery.discharges = {{daysAgo(3), 500, 1}};
    QCOMPARE(said(battery), QStringList{u"storage notice 3"_s});
    battery.lastUse = QDateTime();
    battery.discharges.clear();
    QCOMPARE(said(battery), QStringList());
}

void AdviceTest::deepDischarges_data()
{
    QTest::addColumn<QList<uint>>("discharged");
    QTest::addColumn<uint>("capacity");
    QTest::addColumn<QStringList>("advice");
    QTest::newRow("80 %") << QList<uint>{800} << 1000U << QStringList();
    QTest::newRow("over 80 %") << QList<uint>{500, 801} << 1000U << QStringList{u"deep notice 0.801"_s};
    QTest::newRow("90 % twice") << QList<uint>{900, 900} << 1000U << QStringList{u"deep notice 0.9"_s};
    QTest::newRow("over 90 % once") << QList<uint>{901, 850} << 1000U << QStringList{u"deep notice 0.901"_s};
    QTest::newRow("over 90 % twice") << QList<uint>{901, 950} << 1000U << QStringList{u"deep warning 0.95"_s};
    QTest::newRow("no capacity") << QList<uint>{901, 950} << 0U << QStringList();
}

void AdviceTest::deepDischarges()
{
    QFETCH(QList<uint>, discharged);
    QFETCH(uint, capacity);
    Battery battery = pack();
    battery.capacity = capacity;
    for (qsizetype i = 0; i < discharged.size(); ++i)
        battery.discharges.append({daysAgo(static_cast<int>(i) + 1), discharged.at(i), 1});
    QTEST(said(battery), "advice");
}

void AdviceTest::onlyTheLastTenCountedDischargesMatter()
{
    Battery battery = pack();
    battery.discharges = {{daysAgo(40), 950, 1}, {{}, 950, 1}};
    for (int day = 1; day <= 9; ++day)
        battery.discharges.append({daysAgo(day), 500, 1});
    QCOMPARE(said(battery), QStringList{u"deep notice 0.95"_s});
    battery.discharges.prepend({daysAgo(30), 500, 1}); // by time, not by place
    QCOMPARE(said(battery), QStringList());
    battery.discharges[0] = {daysAgo(30), 0, 0}; // what was not entered is none of the ten
    QCOMPARE(said(battery), QStringList{u"deep notice 0.95"_s});
}

void AdviceTest::guessesAreNeverDeepNorOverTheLabel()
{
    AdviceLimits limits;
    limits.deepPercent = 50;
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    catalogue.batteries[0].discharges = {{daysAgo(1), 800, 3000}};
    QVERIFY(adviceFor(catalogue, Today, limits).isEmpty());
    catalogue.batteries[0].discharges[0].isMeasured = true;
    QCOMPARE(adviceFor(catalogue, Today, limits).size(), 1);
}

void AdviceTest::aLoadOverTheLabel_data()
{
    QTest::addColumn<uint>("current");
    QTest::addColumn<uint>("rating");
    QTest::addColumn<QStringList>("advice");
    QTest::newRow("at the label") << 3000U << 30U << QStringList();
    QTest::newRow("a hundredth over it") << 3001U << 30U << QStringList{u"load warning 30.01"_s};
    QTest::newRow("no label") << 3001U << 0U << QStringList();
}

void AdviceTest::aLoadOverTheLabel()
{
    QFETCH(uint, current);
    QFETCH(uint, rating);
    Battery battery = pack();
    battery.rating = rating;
    battery.discharges = {{daysAgo(1), 500, current}, {daysAgo(2), 500, 1000}};
    QTEST(said(battery), "advice");
}

void AdviceTest::aPresetIsNeverOverTheLabel()
{
    for (unsigned int capacity = 1; capacity < 6000; capacity += 7) {
        Battery battery = pack();
        battery.capacity = capacity;
        battery.rating = capacity % 97;
        battery.discharges = {{daysAgo(1), 0, presetCurrent(battery)}};
        QCOMPARE(said(battery), QStringList());
    }
}

void AdviceTest::aColdFlight_data()
{
    QTest::addColumn<int>("days");
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QStringList>("advice");
    QTest::newRow("9 degrees") << 1 << 9 << QStringList{u"cold notice 9"_s};
    QTest::newRow("10 degrees") << 1 << 10 << QStringList();
    QTest::newRow("frost") << 1 << -4 << QStringList{u"cold notice -4"_s};
    QTest::newRow("an untouched field") << 1 << 0 << QStringList();
    QTest::newRow("30 days ago") << 30 << 5 << QStringList{u"cold notice 5"_s};
    QTest::newRow("31 days ago") << 31 << 5 << QStringList();
}

void AdviceTest::aColdFlight()
{
    QFETCH(int, days);
    QFETCH(int, degrees);
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    fly(catalogue, daysAgo(days), 500, 60, degrees);
    QTEST(said(catalogue), "advice");
}

void AdviceTest::theNewestFlightOfAnyModelTells()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    fly(catalogue, daysAgo(3), 500, 60, 5);
    catalogue.models.append(Model());
    catalogue.models[1].log = {{daysAgo(2), QTime(), QString(), 15, QString()}};
    QCOMPARE(said(catalogue), QStringList{u"cold notice 5"_s});
    catalogue.batteries[0].discharges.append({daysAgo(2), 400, 1});
    QCOMPARE(said(catalogue), QStringList());
}

void AdviceTest::anIdleBattery_data()
{
    QTest::addColumn<QDateTime>("lastUse");
    QTest::addColumn<QStringList>("advice");
    QTest::newRow("89 days") << daysAgo(89) << QStringList();
    QTest::newRow("90 days") << daysAgo(90) << QStringList{u"idle notice 90"_s};
    QTest::newRow("never") << QDateTime() << QStringList();
}

void AdviceTest::anIdleBattery()
{
    QFETCH(QDateTime, lastUse);
    Battery battery = pack();
    battery.lastUse = lastUse;
    QTEST(said(battery), "advice");
}

void AdviceTest::anOldBattery_data()
{
    QTest::addColumn<QDate>("purchase");
    QTest::addColumn<QStringList>("advice");
    QTest::newRow("3 years") << QDate(2023, 11, 22) << QStringList{u"age notice 1096"_s};
    QTest::newRow("3 years but a day") << QDate(2023, 11, 23) << QStringList();
    QTest::newRow("unknown") << QDate() << QStringList();
    QTest::newRow("to come") << QDate(2027, 1, 1) << QStringList();
}

void AdviceTest::anOldBattery()
{
    QFETCH(QDate, purchase);
    Battery battery = pack();
    battery.purchase = purchase;
    QTEST(said(battery), "advice");
}

void AdviceTest::aTimer_data()
{
    QTest::addColumn<uint>("discharged");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<QStringList>("advice");
    QTest::newRow("100 mAh a minute") << 100U << 60 << QStringList{u"timer notice 480"_s};
    QTest::newRow("exactly 5:15") << 799U << 314 << QStringList{u"timer notice 300"_s};
    QTest::newRow("5:15 that no fraction can say") << 480U << 189 << QStringList{u"timer notice 315"_s};
    QTest::newRow("without a duration") << 500U << 0 << QStringList();
}

void AdviceTest::aTimer()
{
    QFETCH(uint, discharged);
    QFETCH(int, seconds);
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    for (int day = 1; day <= 3; ++day)
        fly(catalogue, daysAgo(day), discharged, seconds);
    QTEST(said(catalogue), "advice");
}

void AdviceTest::aTimerNeedsThreeFlights()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    fly(catalogue, daysAgo(1), 100);
    fly(catalogue, daysAgo(2), 100);
    QCOMPARE(said(catalogue), QStringList());
    fly(catalogue, daysAgo(3), 0); // not entered
    QCOMPARE(said(catalogue), QStringList());
    fly(catalogue, daysAgo(4), 100);
    QCOMPARE(said(catalogue), QStringList{u"timer notice 480"_s});
    catalogue.models.append(catalogue.models.constFirst()); // the same flights of another: the first one's
    catalogue.models[1].name = u"Other"_s;
    QCOMPARE(adviceFor(catalogue, Today).constFirst().model, u"Skylark"_s);
    QCOMPARE(adviceFor(catalogue, Today).size(), 1);
}

void AdviceTest::aTimerOfLessThanItsStepIsNone()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    for (int day = 1; day <= 3; ++day)
        fly(catalogue, daysAgo(day), 790, 14);
    QCOMPARE(said(catalogue), QStringList());
}

void AdviceTest::aTimerTakesTheLastTenFlights()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    for (int day = 11; day <= 30; ++day)
        fly(catalogue, daysAgo(day), 400);
    for (int day = 1; day <= 10; ++day)
        fly(catalogue, daysAgo(day), 100);
    QCOMPARE(said(catalogue), QStringList{u"timer notice 480"_s});
}

void AdviceTest::warningsComeFirst()
{
    Catalogue catalogue;
    for (const QString &name : {u"A"_s, u"B"_s, u"C"_s})
        catalogue.batteries.append(pack(name));
    catalogue.batteries[0].lastUse = daysAgo(95); // idle
    catalogue.batteries[1].charged = true;
    catalogue.batteries[1].lastUse = daysAgo(3); // storage, a notice
    catalogue.batteries[2].charged = true;
    catalogue.batteries[2].lastUse = daysAgo(6); // storage, a warning
    QCOMPARE(said(catalogue),
             (QStringList{u"storage warning 6"_s, u"storage notice 3"_s, u"idle notice 95"_s}));
    catalogue.batteries[0].charged = true;
    catalogue.batteries[0].lastUse = daysAgo(8);
    QCOMPARE(said(catalogue),
             (QStringList{u"storage warning 8"_s, u"storage warning 6"_s, u"storage notice 3"_s}));
}

void AdviceTest::namesAreInCodePointOrder()
{
    const QStringList names{u"\U0001F50B"_s, u"\uFF21"_s, u"ä"_s, u"a"_s, u"Z"_s}; // the first one last
    Catalogue catalogue;
    for (const QString &name : names) {
        catalogue.batteries.append(pack(name));
        catalogue.batteries.last().lastUse = daysAgo(90);
    }
    QStringList found;
    for (const Advice &advice : adviceFor(catalogue, Today))
        found.append(advice.battery);
    QCOMPARE(found, (QStringList{u"Z"_s, u"a"_s, u"ä"_s, u"\uFF21"_s, u"\U0001F50B"_s}));
}

void AdviceTest::whatComesLaterIsNotLookedAt()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    catalogue.batteries[0].charged = true;
    catalogue.batteries[0].lastUse = daysAgo(0);
    catalogue.batteries[0].discharges = {{daysAgo(20), 500, 1}, {daysAgo(0), 950, 5000}};
    const QDate before = Today.addDays(-10);
    QCOMPARE(said(catalogue, before), QStringList{u"storage warning 10"_s});
    QCOMPARE(said(catalogue), (QStringList{u"load warning 50"_s, u"deep notice 0.95"_s}));
}

void AdviceTest::limitsAreTheUsers()
{
    Catalogue catalogue;
    catalogue.batteries = {pack()};
    catalogue.batteries[0].lastUse = daysAgo(10);
    AdviceLimits limits;
    limits.idleDays = 10;
    QCOMPARE(adviceFor(catalogue, Today, limits).size(), 1);
    limits.idleDays = 11;
    QVERIFY(adviceFor(catalogue, Today, limits).isEmpty());
}

void AdviceTest::aTextSaysWhatToDo()
{
    Catalogue catalogue;
    catalogue.batteries = {pack(u"%1 A"_s)};
    for (int day = 1; day <= 3; ++day)
        fly(catalogue, daysAgo(day), 400, 150);
    const Advice timer = adviceFor(catalogue, Today).constFirst();
    QCOMPARE(timer.text,
             u"Set the timer of “Skylark” to 5:00 for “%1 A”: its flights on this battery show how "
             u"much it needs."_s);
    catalogue.models.clear();
    catalogue.batteries[0].charged = true;
    catalogue.batteries[0].lastUse = daysAgo(7);
    catalogue.batteries[0].discharges.clear();
    QCOMPARE(adviceFor(catalogue, Today).constFirst().text,
             u"Bring “%1 A” to storage charge: it has been charged, and not used, for 7 days."_s);
}

QTEST_GUILESS_MAIN(AdviceTest)
#include "tst_advice.moc"
