// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/recordlists.h"
#include "tests/support/warnings.h"
#include "tests/support/zone.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ClockChangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyRealTimeOfAClockChangeIsKept_data();
    void everyRealTimeOfAClockChangeIsKept();
};

namespace {

QStringList asTheClocksShow(const QList<QDateTime> &moments)
{
    QStringList texts;
    for (const QDateTime &moment : moments)
        texts.append(moment.toString(Qt::ISODate));
    return texts;
}

} // namespace

void ClockChangeTest::init()
{
    Test::failOnWarnings();
}

void ClockChangeTest::everyRealTimeOfAClockChangeIsKept_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::newRow("spring in Berlin") << QByteArray("Europe/Berlin") << QDate(2026, 3, 29);
    QTest::newRow("autumn in Berlin") << QByteArray("Europe/Berlin") << QDate(2026, 10, 25);
    QTest::newRow("spring on Lord Howe Island") << QByteArray("Australia/Lord_Howe") << QDate(2026, 10, 4);
    QTest::newRow("midnight in Santiago") << QByteArray("America/Santiago") << QDate(2026, 9, 6);
    QTest::newRow("the date line in Samoa") << QByteArray("Pacific/Apia") << QDate(2011, 12, 29);
}

void ClockChangeTest::everyRealTimeOfAClockChangeIsKept()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, day);
    const Zone there(zone);
    QTemporaryDir directory;
    RecordLists catalogue;
    BatteryWidget *battery = catalogue.addBattery(u"A"_s);
    ModelWidget *model = catalogue.addModel(u"M"_s);
    for (int minutes = 0; minutes < 48 * 60; minutes += 15) {
        QDateTime when(day.addDays(minutes / (24 * 60)), QTime(minutes / 60 % 24, minutes % 60));
        battery->addFullEntry(when, static_cast<unsigned int>(minutes), 0, false);
        LogData flight;
        flight.date = when;
        model->addLogData(flight);
    }
    catalogue.save(directory.path());
    RecordLists read;
    read.load(directory.path());
    // What the clocks showed: of an hour that comes twice the file does not say which is meant. A time that
    // they left out is invalid, with a newer Qt another one, before and after.
    QCOMPARE(asTheClocksShow(read.batteries.first()->getDates()), asTheClocksShow(battery->getDates()));
    QCOMPARE(read.models.first()->getLogData().size(), model->getLogData().size());
    for (qsizetype i = 0; i < battery->getDates().size(); ++i)
        QCOMPARE(read.models.first()->getLogData().at(i).date, read.batteries.first()->getDates().at(i));
}

QTEST_MAIN(ClockChangeTest)
#include "tst_clockchange.moc"
