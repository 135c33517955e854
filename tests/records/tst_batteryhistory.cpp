// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/batterywidget.h"
#include "tests/records/card.h"
#include "tests/support/warnings.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class BatteryHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aFullEntryIsAppendedToTheThreeLists();
    void aSimpleEntryHasNoMeasurements();
    void notifyingEntriesAnnounceOneChange_data();
    void notifyingEntriesAnnounceOneChange();
    void theListsAreCompleteWhenTheChangeIsAnnounced();
    void theHistoryKeepsTheOrderOfRecording();
    void theHistoryListsAreTheRecordsOwn();
    void anEventIsFoundByItsExactTime_data();
    void anEventIsFoundByItsExactTime();
    void anEmptyHistoryHoldsNoEvent();
    void theEarlierOfTwoEqualTimesWins();
};

namespace {

const QDateTime noon(QDate(2026, 7, 1), QTime(12, 0, 0, 500));

void addEntry(BatteryWidget &battery, QDateTime when, unsigned int discharged, unsigned int current)
{
    battery.addFullEntry(when, discharged, current, false);
}

} // namespace

void BatteryHistoryTest::init()
{
    Test::failOnWarnings();
}

void BatteryHistoryTest::aFullEntryIsAppendedToTheThreeLists()
{
    BatteryWidget battery;
    QSignalSpy changed(&battery, &BatteryWidget::dataChanged);
    QDateTime when = noon;
    battery.addFullEntry(when, 1200, 4550, false);
    QCOMPARE(battery.getDates(), QList<QDateTime>{noon});
    QCOMPARE(battery.getDischarges(), QList<unsigned int>{1200});
    QCOMPARE(battery.getCurrents(), QList<unsigned int>{4550});
    QCOMPARE(battery.getBatteryLastDischarged(), 1200U);
    QCOMPARE(battery.getBatteryLastMaxCurrent(), 4550U);
    QCOMPARE(Card::find(battery, "lbl_discharged")->text(), u"1200mAh"_s);
    QCOMPARE(Card::find(battery, "lbl_maxCurrent")->text(), u"45.50A"_s);
    QCOMPARE(battery.getBatteryCycles(), 0U);
    QVERIFY(battery.getBatteryLastUpdated().isNull());
    QCOMPARE(changed.count(), 0);
}

void BatteryHistoryTest::aSimpleEntryHasNoMeasurements()
{
    BatteryWidget battery;
    addEntry(battery, noon, 1200, 4550);
    QDateTime when = noon.addDays(1);
    battery.addSimpleEntry(when, false);
    QCOMPARE(battery.getDates(), (QList<QDateTime>{noon, when}));
    QCOMPARE(battery.getDischarges(), (QList<unsigned int>{1200, 0}));
    QCOMPARE(battery.getCurrents(), (QList<unsigned int>{4550, 0}));
    QCOMPARE(battery.getBatteryLastDischarged(), 0U);
    QCOMPARE(battery.getBatteryLastMaxCurrent(), 0U);
    QCOMPARE(Card::find(battery, "lbl_discharged")->text(), u"0mAh"_s);
    QCOMPARE(Card::find(battery, "lbl_maxCurrent")->text(), u"0.0A"_s);
}

void BatteryHistoryTest::notifyingEntriesAnnounceOneChange_data()
{
    QTest::addColumn<bool>("full");
    QTest::addColumn<bool>("notify");
    QTest::newRow("full, silent") << true << false;
    QTest::newRow("full, notifying") << true << true;
    QTest::newRow("simple, silent") << false << false;
    QTest::newRow("simple, notifying") << false << true;
}

void BatteryHistoryTest::notifyingEntriesAnnounceOneChange()
{
    QFETCH(bool, full);
    QFETCH(bool, notify);
    BatteryWidget battery;
    QSignalSpy changed(&battery, &BatteryWidget::dataChanged);
    QDateTime when = noon;
    if (full)
        battery.addFullEntry(when, 1, 2, notify);
    else
        battery.addSimpleEntry(when, notify);
    QCOMPARE(changed.count(), notify ? 1 : 0);
}

void BatteryHistoryTest::theListsAreCompleteWhenTheChangeIsAnnounced()
{
    BatteryWidget battery;
    int announced = 0;
    connect(&battery, &BatteryWidget::dataChanged, this, [&] {
        ++announced;
        QCOMPARE(battery.getDates().size(), 1);
        QCOMPARE(battery.getDischarges().size(), 1);
        QCOMPARE(battery.getCurrents().size(), 1);
        QCOMPARE(battery.getBatteryLastMaxCurrent(), 7U);
        QCOMPARE(Card::find(battery, "lbl_maxCurrent")->text(), u"0.7A"_s);
    });
    QDateTime when = noon;
    battery.addFullEntry(when, 1, 7, true);
    QCOMPARE(announced, 1);
}

void BatteryHistoryTest::theHistoryKeepsTheOrderOfRecording()
{
    BatteryWidget battery;
    addEntry(battery, noon, 1, 10);
    addEntry(battery, noon.addDays(-1), 2, 20);
    addEntry(battery, noon, 1, 10);
    addEntry(battery, QDateTime(), 3, 30);
    QCOMPARE(battery.getDates(), (QList<QDateTime>{noon, noon.addDays(-1), noon, QDateTime()}));
    QCOMPARE(battery.getDischarges(), (QList<unsigned int>{1, 2, 1, 3}));
    QCOMPARE(battery.getCurrents(), (QList<unsigned int>{10, 20, 10, 30}));
}

void BatteryHistoryTest::theHistoryListsAreTheRecordsOwn()
{
    BatteryWidget battery;
    QCOMPARE(&battery.getDates(), &battery.getDates());
    battery.getDates().append(noon);
    battery.getDischarges().append(5);
    battery.getCurrents().append(6);
    unsigned int discharged = 0;
    unsigned int current = 0;
    QDateTime when = noon;
    QVERIFY(battery.getEvent(when, discharged, current));
    QCOMPARE(discharged, 5U);
    QCOMPARE(current, 6U);
}

void BatteryHistoryTest::anEventIsFoundByItsExactTime_data()
{
    QTest::addColumn<QDateTime>("when");
    QTest::addColumn<bool>("found");
    QTest::addColumn<unsigned int>("discharged");
    QTest::addColumn<unsigned int>("current");

    QTest::newRow("oldest") << noon << true << 10U << 100U;
    QTest::newRow("newest") << noon.addDays(2) << true << 30U << 300U;
    QTest::newRow("the same moment in UTC") << noon.addDays(1).toUTC() << true << 20U << 200U;
    QTest::newRow("a millisecond early") << noon.addMSecs(-1) << false << 7U << 8U;
    QTest::newRow("a millisecond late") << noon.addMSecs(1) << false << 7U << 8U;
    QTest::newRow("invalid") << QDateTime() << false << 7U << 8U;
}

void BatteryHistoryTest::anEventIsFoundByItsExactTime()
{
    QFETCH(QDateTime, when);
    BatteryWidget battery;
    addEntry(battery, noon, 10, 100);
    addEntry(battery, noon.addDays(1), 20, 200);
    addEntry(battery, noon.addDays(2), 30, 300);

    unsigned int discharged = 7;
    unsigned int current = 8;
    QTEST(battery.getEvent(when, discharged, current), "found");
    QTEST(discharged, "discharged");
    QTEST(current, "current");
}

void BatteryHistoryTest::anEmptyHistoryHoldsNoEvent()
{
    BatteryWidget battery;
    QDateTime when = noon;
    unsigned int discharged = 7;
    unsigned int current = 8;
    QVERIFY(!battery.getEvent(when, discharged, current));
    QCOMPARE(discharged, 7U);
    QCOMPARE(current, 8U);
}

void BatteryHistoryTest::theEarlierOfTwoEqualTimesWins()
{
    BatteryWidget battery;
    addEntry(battery, noon.addDays(-1), 1, 10);
    addEntry(battery, noon, 2, 20);
    addEntry(battery, noon, 3, 30);
    QDateTime when = noon;
    unsigned int discharged = 0;
    unsigned int current = 0;
    QVERIFY(battery.getEvent(when, discharged, current));
    QCOMPARE(discharged, 2U);
    QCOMPARE(current, 20U);
}

QTEST_MAIN(BatteryHistoryTest)
#include "tst_batteryhistory.moc"
