// SPDX-License-Identifier: GPL-3.0-or-later
// What list, statistics and due print.
#include "tests/host/support/program.h"
#include "tests/support/files.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray Document = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE Voltbok>
<Voltbok>
    <Locations>
        <Location Name="Club field"/>
    </Locations>
    <Battery>
        <Name>3S &quot;A&quot;</Name>
        <Capacity>1300</Capacity>
        <Chrgrate>15</Chrgrate>
        <Dischrgrate>45</Dischrgrate>
        <Purchase>2025/03/14</Purchase>
        <Cycles>1042</Cycles>
        <Charged>1</Charged>
        <LastUse>Tue Mar 10 21:09:57 2026</LastUse>
        <Data>
            <Cycle Discharged="650" Current="1317" Date="Sun Mar 1 16:40:28 2026"/>
            <Cycle Discharged="1040" Current="5850" Date="Mon Mar 2 16:40:28 2026"/>
        </Data>
    </Battery>
    <Model>
        <Name>Whirl</Name>
        <Type>Heli</Type>
        <Weight>310</Weight>
        <Size>550</Size>
        <Flights>2</Flights>
        <Purchase>2024/08/20</Purchase>
        <Notes>one
two</Notes>
        <LastUpdate>Tue Mar 10 21:09:57 2026</LastUpdate>
        <FlightLog>
            <LogData Date="Sun Mar 1 16:40:28 2026" Location="Club field" Duration="00:05:12" Temperature="7" Notes="calm"/>
            <LogData Date="Wed Mar 4 12:00:00 2026" Location="Meadow" Duration="" Temperature="3" Notes=""/>
        </FlightLog>
    </Model>
</Voltbok>
)";

} // namespace

class PrintedFiguresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listsAreTablesForTheEye_data();
    void listsAreTablesForTheEye();
    void numbersOfTablesAreThoseOfTheLocale();
    void figuresHaveTheKeysThatScriptsKnow();
    void aRangeLimitsFiguresButNotAges();
    void adviceIsThatOfTheDay();
    void withoutAdviceThereIsNothingToDo();
    void limitsAreThoseOfThePreferences();

private:
    QString printed(const QString &arguments);
    QJsonDocument json(const QString &arguments)
    {
        return QJsonDocument::fromJson(printed(arguments).toUtf8());
    }

    Program m_program;
};

void PrintedFiguresTest::init()
{
    QVERIFY(QDir().mkpath(m_program.home(u"log"_s)));
    QVERIFY(Test::write(m_program.home(u"log/voltbok.xml"_s), Document));
    m_program.environment.insert(u"XDG_CONFIG_HOME"_s, m_program.home(u"config"_s));
    m_program.environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
}

QString PrintedFiguresTest::printed(const QString &arguments)
{
    const Program::Result result =
        m_program.run(arguments.split(u' ') + QStringList{u"--data"_s, m_program.home(u"log"_s)});
    return result.status == 0 && result.errors.isEmpty() ? result.output : u"(an error) "_s + result.errors;
}

void PrintedFiguresTest::listsAreTablesForTheEye_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("batteries")
        << u"Name    Capacity (mAh)  Discharge (C)  Charge (C)  Purchased   Cycles  Charged  Last use\n"
           "3S \"A\"           1,300             45         1.5  2025-03-14   1,042  yes      2026-03-10 21:09:57\n"_s;
    QTest::newRow("discharges")
        << u"Battery  Time                 Discharged (mAh)  Maximum current (A)  Source\n"
           "3S \"A\"   2026-03-01 16:40:28               650                13.17  entered\n"
           "3S \"A\"   2026-03-02 16:40:28             1,040                 58.5  guessed\n"_s;
    QTest::newRow("models")
        << u"Name   Type  Weight  Size  Purchased   Flights  Last update          Batteries  Notes\n"
           "Whirl  Heli     310   550  2024-08-20        2  2026-03-10 21:09:57             one two\n"_s;
    QTest::newRow("flights")
        << u"Model  Time                 Duration  Location    Temperature (°C)  Batteries  Notes\n"
           "Whirl  2026-03-01 16:40:28      5:12  Club field                 7  3S \"A\"     calm\n"
           "Whirl  2026-03-04 12:00:00            Meadow                     3\n"_s;
    QTest::newRow("locations") << u"Name\nClub field\n"_s;
}

void PrintedFiguresTest::listsAreTablesForTheEye()
{
    QTEST(printed(u"list "_s + QString::fromUtf8(QTest::currentDataTag())), "expected");
}

void PrintedFiguresTest::numbersOfTablesAreThoseOfTheLocale()
{
    m_program.environment.insert(u"LC_ALL"_s, u"de_DE.UTF-8"_s);
    const QString table = printed(u"list discharges"_s);
    QVERIFY2(table.contains(u" 1.040 "_s) && table.contains(u" 13,17 "_s), qPrintable(table));
    QCOMPARE(json(u"list discharges --json"_s)[0][u"max_current_A"], 13.17);
}

void PrintedFiguresTest::figuresHaveTheKeysThatScriptsKnow()
{
    const QJsonObject figures = json(u"statistics --json --on 2026-03-15"_s).object();
    const QJsonObject battery = figures.value(u"batteries")[0].toObject();
    QCOMPARE(battery, (QJsonObject{{u"name"_s, u"3S \"A\""_s},
                                   {u"discharges"_s, 2},
                                   {u"counted"_s, 1},
                                   {u"discharged_mAh_total"_s, 1690},
                                   {u"discharged_mAh_guessed"_s, 1040},
                                   {u"equivalent_full_cycles"_s, 1.3},
                                   {u"median_depth"_s, 0.5},
                                   {u"max_depth"_s, 0.5},
                                   {u"max_load_C"_s, 13170.0 / 1300},
                                   {u"age_days"_s, 366},
                                   {u"days_since_use"_s, 5},
                                   {u"flights"_s, 1},
                                   {u"minutes"_s, 5.2},
                                   {u"mean_mAh_per_minute"_s, 125},
                                   {u"flights_per_month"_s, QJsonObject{{u"2026-03"_s, 1}}}}));
    QCOMPARE(figures.value(u"models")[0].toObject(),
             (QJsonObject{{u"name"_s, u"Whirl"_s},
                          {u"flights"_s, 2},
                          {u"minutes"_s, 5.2},
                          {u"first"_s, u"2026-03-01T16:40:28"_s},
                          {u"last"_s, u"2026-03-04T12:00:00"_s},
                          {u"mean_minutes"_s, 5.2},
                          {u"locations"_s, QJsonObject{{u"Club field"_s, 1}, {u"Meadow"_s, 1}}},
                          {u"batteries"_s, QJsonObject{{u"3S \"A\""_s, 1}}}}));
    QCOMPARE(figures.value(u"locations").toArray(),
             (QJsonArray{QJsonObject{{u"name"_s, u"Club field"_s}, {u"flights"_s, 1}, {u"minutes"_s, 5.2}},
                         QJsonObject{{u"name"_s, u"Meadow"_s}, {u"flights"_s, 1}, {u"minutes"_s, 0}}}));
    QCOMPARE(figures.value(u"months").toArray(), (QJsonArray{QJsonObject{{u"month"_s, u"2026-03"_s},
                                                                         {u"flights"_s, 2},
                                                                         {u"minutes"_s, 5.2},
                                                                         {u"discharged_mAh"_s, 1690}}}));
    QCOMPARE(figures.value(u"total").toObject(),
             (QJsonObject{{u"flights"_s, 2}, {u"minutes"_s, 5.2}, {u"discharged_mAh"_s, 1690}}));
    QCOMPARE(figures.keys().size(), 5);
    const QString text = printed(u"statistics --json --on 2026-03-15"_s);
    QVERIFY2(text.contains(u"\"equivalent_full_cycles\": 1.3,"_s) && text.contains(u"\"flights\": 2,"_s),
             qPrintable(text));
}

void PrintedFiguresTest::aRangeLimitsFiguresButNotAges()
{
    const QJsonObject figures =
        json(u"statistics --json --on 2026-03-15 --from 2026-03-02 --to 2026-03-02"_s).object();
    const QJsonObject battery = figures.value(u"batteries")[0].toObject();
    QCOMPARE(battery.value(u"discharges"), 1);
    QCOMPARE(battery.value(u"median_depth"), QJsonValue());
    QCOMPARE(battery.value(u"age_days"), 366);
    QCOMPARE(figures.value(u"total")[u"flights"], 0);
    const QString table = printed(u"statistics --on 2026-03-15 --from 2026-03-02 --to 2026-03-02"_s);
    QVERIFY2(table.contains(u"\nTotal          0      0.0  1,040\n"_s), qPrintable(table));
}

void PrintedFiguresTest::adviceIsThatOfTheDay()
{
    const QJsonArray advice = json(u"due --json --on 2026-03-13"_s).array();
    QCOMPARE(advice.size(), 2);
    QJsonObject storage = advice[0].toObject();
    QVERIFY(storage.take(u"text").toString().contains(u"3S \"A\""_s));
    QCOMPARE(storage, (QJsonObject{{u"battery"_s, u"3S \"A\""_s},
                                   {u"model"_s, QJsonValue()},
                                   {u"kind"_s, u"storage"_s},
                                   {u"severity"_s, u"notice"_s},
                                   {u"value"_s, 3}}));
    QCOMPARE(advice[1][u"kind"], u"cold"_s);
    QCOMPARE(json(u"due --json --on 2026-03-15"_s)[0][u"severity"], u"warning"_s);
    const QString table = printed(u"due --on 2026-03-15"_s);
    QVERIFY2(table.startsWith(u"Severity  What to do\nwarning   Bring “3S \"A\"” to storage charge"_s),
             qPrintable(table));
}

void PrintedFiguresTest::withoutAdviceThereIsNothingToDo()
{
    QCOMPARE(printed(u"due --on 2020-01-01"_s), u"There is nothing to do.\n"_s);
    const QJsonDocument document = json(u"due --json --on 2020-01-01"_s);
    QVERIFY(document.isArray() && document.array().isEmpty());
}

void PrintedFiguresTest::limitsAreThoseOfThePreferences()
{
    QVERIFY(QDir().mkpath(m_program.home(u"config/Voltbok"_s)));
    QVERIFY(Test::write(m_program.home(u"config/Voltbok/voltbok.conf"_s), "[limits]\ncoldBelow=5\n"));
    const QJsonArray advice = json(u"due --json --on 2026-03-13"_s).array();
    QCOMPARE(advice.size(), 1);
    QVERIFY(QFile::remove(m_program.home(u"config/Voltbok/voltbok.conf"_s)));
}

QTEST_GUILESS_MAIN(PrintedFiguresTest)
#include "tst_printedfigures.moc"
