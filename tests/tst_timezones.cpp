// SPDX-License-Identifier: GPL-3.0-or-later
// Date and time of a capture are local; run in several time zones, far from the one the form thinks in.
#include "logbookwindow.h"
#include "xml.h"

#include <QTimeZone>

class TimeZonesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aQuickCaptureIsDatedNow();
    void theDischargePageProposesTheLocalDateAndTime();
    void flightAndDischargeStayTogether_data();
    void flightAndDischargeStayTogether();

private:
    std::unique_ptr<LogbookWindow> window;
    Ui_VoltbokGui *ui = nullptr;

    ModelWidget &heli() const { return *window->gui().modelList.constFirst(); }
    BatteryWidget &pack() const { return *window->gui().batteryList.constFirst(); }
};

namespace {
QByteArray hangar()
{
    return Xml::file(Xml::battery("Pack", true) + Xml::model("Heli", {"Pack"}));
}
} // namespace

void TimeZonesTest::initTestCase()
{
    QCOMPARE(QTimeZone::systemTimeZoneId(), qgetenv("TZ")); // or the test would prove nothing
}

void TimeZonesTest::init()
{
    window = std::make_unique<LogbookWindow>();
    ui = &window->ui();
    window->load(hangar());
}

void TimeZonesTest::cleanup()
{
    window.reset();
}

void TimeZonesTest::aQuickCaptureIsDatedNow()
{
    const QDateTime before = QDateTime::currentDateTime();
    window->clickCard(&pack());
    const QDateTime after = QDateTime::currentDateTime();
    const QDateTime flown = heli().getLogData().constFirst().date;
    QCOMPARE(flown.timeSpec(), Qt::LocalTime);
    QVERIFY2(before <= flown && flown <= after, qPrintable(flown.toString(Qt::ISODateWithMs)));
    QCOMPARE(pack().getDates(), QList<QDateTime>({flown}));

    const QByteArray written = flown.toString(QStringLiteral("hh:mm:ss yyyy")).toLatin1();
    QCOMPARE(window->fileBytes().count(written), 2); // once for each record
    window->gui().updateBatteryGui();
    QCOMPARE(heli().getLogData().constFirst().date, flown.addMSecs(-flown.time().msec()));
    QCOMPARE(pack().getDates(), QList<QDateTime>({heli().getLogData().constFirst().date}));
}

void TimeZonesTest::theDischargePageProposesTheLocalDateAndTime()
{
    pack().setViewMode(BatteryWidget::Complex);
    const QDateTime before = QDateTime::currentDateTime();
    window->clickCard(&pack());
    const QDateTime shown(ui->dedt_dischargeDate->date(), ui->tedt_dischargeTime->time());
    QVERIFY2(before <= shown && shown <= QDateTime::currentDateTime(),
             qPrintable(shown.toString(Qt::ISODate)));
    QCOMPARE(ui->dedt_dischargeDate->text(), shown.date().toString(ui->dedt_dischargeDate->displayFormat()));
    QCOMPARE(ui->tedt_dischargeTime->text(), shown.time().toString(ui->tedt_dischargeTime->displayFormat()));

    window->click(ui->pb_save_discharged);
    QCOMPARE(heli().getLogData().constFirst().date, shown);
}

void TimeZonesTest::flightAndDischargeStayTogether_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QTime>("time");
    QTest::newRow("noon") << QDate(2026, 11, 15) << QTime(12, 4, 22);
    QTest::newRow("first second of a day") << QDate(2026, 3, 1) << QTime(0, 0);
    QTest::newRow("last second of a year") << QDate(2026, 12, 31) << QTime(23, 59, 59);
    QTest::newRow("an hour that some clocks skip") << QDate(2026, 3, 8) << QTime(2, 30);
    QTest::newRow("an hour that some clocks show twice") << QDate(2026, 11, 1) << QTime(1, 30);
    QTest::newRow("first day the page offers") << QDate(2005, 1, 1) << QTime(0, 0);
    QTest::newRow("last day the page offers") << QDate(2030, 12, 31) << QTime(23, 59, 59);
}

void TimeZonesTest::flightAndDischargeStayTogether()
{
    QFETCH(QDate, date);
    QFETCH(QTime, time);
    pack().setViewMode(BatteryWidget::Complex);
    window->clickCard(&pack());
    ui->dedt_dischargeDate->setDate(date);
    ui->tedt_dischargeTime->setTime(time);
    window->click(ui->pb_save_discharged);
    const QDateTime recorded = heli().getLogData().constFirst().date;
    QCOMPARE(recorded, QDateTime(date, time));
    for (int i = 0; i < 2; ++i) {
        QDateTime flown = heli().getLogData().constFirst().date;
        QCOMPARE(flown, recorded);
        unsigned int discharged = 0;
        unsigned int current = 0;
        QVERIFY(pack().getEvent(flown, discharged, current));
        QCOMPARE(discharged, 1760U);
        window->gui().updateBatteryGui();
    }
}

QTEST_MAIN(TimeZonesTest)
#include "tst_timezones.moc"
