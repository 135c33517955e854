// SPDX-License-Identifier: GPL-3.0-or-later
// What is read from a data file, element by element.
#include "tests/support/recordlists.h"
#include "tests/support/warnings.h"

#include <QTemporaryDir>
#include <QTest>

#include <utility>

using namespace Qt::Literals::StringLiterals;

class ReadingRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void batteriesAreReadByTheRules_data();
    void batteriesAreReadByTheRules();
    void modelsAreReadByTheRules_data();
    void modelsAreReadByTheRules();
    void locationsAreReadByTheRules_data();
    void locationsAreReadByTheRules();
    void theFiguresOfTheLastDischargeFollowTheHistory_data();
    void theFiguresOfTheLastDischargeFollowTheHistory();
    void cyclesTakeTheirAttributes_data();
    void cyclesTakeTheirAttributes();
    void flightsTakeTheirAttributes();
    void aHistoryOrALogMayComeInParts();
};

namespace {

QDateTime november(int day)
{
    return QDateTime(QDate(2026, 11, day), QTime(9, 0, 1));
}

/** Reads @p body as the content of the root element. */
void loadBody(RecordLists &catalogue, const QByteArray &body)
{
    QTemporaryDir directory;
    QVERIFY(Test::write(Test::dataFile(directory.path()), document(body)));
    catalogue.load(directory.path());
}

} // namespace

void ReadingRulesTest::init()
{
    Test::failOnWarnings();
}

void ReadingRulesTest::batteriesAreReadByTheRules_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("batteries");
    const auto row = [](const char *tag, const char *body, const QStringList &batteries) {
        QTest::newRow(tag) << QByteArray(body) << batteries;
    };
    row("children in any order",
        "<Battery><Cycles>3</Cycles><Charged>1</Charged><Name>A</Name><Capacity>5</Capacity></Battery>",
        {u"A 5 3 charged"_s});
    row("no children", "<Battery/><Battery></Battery>", {u" 0 0"_s, u" 0 0"_s});
    row("a later child of the same name wins",
        "<Battery><Name>A</Name><Capacity>5</Capacity><Name>B</Name></Battery>", {u"B 5 0"_s});
    row("a root element whose name merely contains the key",
        "<BatteryPack><Name>A</Name></BatteryPack><OldBattery><Name>B</Name></OldBattery>",
        {u"A 0 0"_s, u"B 0 0"_s});
    row("names are case-sensitive", "<battery><Name>A</Name></battery><BATTERY/>", {});
    row("other root elements are skipped",
        "<Extra><Battery><Name>no</Name></Battery></Extra>text<Battery><Name>A</Name></Battery><Model/>",
        {u"A 0 0"_s});
    row("the batteries of a model are no records", "<Model><Battery>no</Battery></Model><Battery/>",
        {u" 0 0"_s});
    row("a child whose name merely contains a key",
        "<Battery><ItsName>A</ItsName><CapacityNow>5</CapacityNow></Battery>", {u"A 5 0"_s});
    row("a child with the names of two keys: the second one reads no text",
        "<Battery><Capacity>5</Capacity><NameAndCapacity>A</NameAndCapacity></Battery>", {u"A 0 0"_s});
    row("an unknown text ends the record and the later ones",
        "<Battery><Name>A</Name><Colour>red</Colour><Capacity>5</Capacity></Battery>"
        "<Battery><Name>B</Name></Battery>",
        {u"A 0 0"_s});
    row("so does an unknown empty child",
        "<Battery><Name>A</Name><Colour/><Capacity>5</Capacity></Battery><Battery><Name>B</Name></Battery>",
        {u"A 0 0"_s});
    row("records before the unknown text are whole",
        "<Battery><Name>A</Name><Capacity>5</Capacity></Battery><Battery><Colour>red</Colour></"
        "Battery><Battery/>",
        {u"A 5 0"_s, u" 0 0"_s});
    row("an unknown child with elements is entered, and ends the record where it ends",
        "<Battery><Name>A</Name><More><Capacity>5</Capacity><Cycles>3</Cycles></More><Charged>1</Charged></"
        "Battery>"
        "<Battery><Name>B</Name></Battery>",
        {u"A 5 3"_s});
    row("white space, comments and instructions do not count",
        "<Battery> <!-- x --> <Name>A<!-- x -->B<?x y?></Name> <?x y?> <Capacity>5</Capacity> </Battery>",
        {u"AB 5 0"_s});
    row("character data in any form", "<Battery><Name>A<![CDATA[<&>]]>&#66;&lt;</Name></Battery>",
        {u"A<&>B< 0 0"_s});
    row("odd numbers read as 0",
        "<Battery><Name>A</Name><Capacity>-5</Capacity><Cycles>4294967296</Cycles></Battery>", {u"A 0 0"_s});
    row("the word true is not charged", "<Battery><Name>A</Name><Charged>true</Charged></Battery>",
        {u"A 0 0"_s});
    row("an empty history", "<Battery><Name>A</Name><Data/><Cycles>2</Cycles></Battery>", {u"A 0 2"_s});
    row("a history of white space", "<Battery><Name>A</Name><Data>\n  </Data><Cycles>2</Cycles></Battery>",
        {u"A 0 2"_s});
    row("a history",
        "<Battery><Data><Cycle Discharged=\"1\"/><Cycle Discharged=\"2\"/></Data><Name>A</Name></Battery>",
        {u"A 0 0 -1 -2"_s});
    row("two histories follow each other",
        "<Battery><Data><Cycle Discharged=\"1\"/></Data><Name>A</Name><Data><Cycle "
        "Discharged=\"2\"/></Data></Battery>",
        {u"A 0 0 -1 -2"_s});
    row("entries whose name merely contains the key, at any depth",
        "<Battery><Name>A</Name><Data><MyCycle Discharged=\"1\"/><Year><Cycle "
        "Discharged=\"2\">x</Cycle></Year>"
        "<Other Discharged=\"3\"/></Data></Battery>",
        {u"A 0 0 -1 -2"_s});
    row("a history ends at the next name that contains its own",
        "<Battery><Name>A</Name><Data><Cycle Discharged=\"1\"/><MetaData/><Cycle "
        "Discharged=\"2\"/></Data></Battery>",
        {u"A 0 0 -1"_s});
}

void ReadingRulesTest::batteriesAreReadByTheRules()
{
    QFETCH(QByteArray, body);
    RecordLists catalogue;
    loadBody(catalogue, body);
    QTEST(catalogue.batterySummary(), "batteries");
}

void ReadingRulesTest::modelsAreReadByTheRules_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("models");
    const auto row = [](const char *tag, const char *body, const QStringList &models) {
        QTest::newRow(tag) << QByteArray(body) << models;
    };
    row("no children", "<Model/><Model></Model>", {u" 0"_s, u" 0"_s});
    row("children in any order", "<Model><Battery>P</Battery><Weight>7</Weight><Name>M</Name></Model>",
        {u"M 7 [P]"_s});
    row("the same battery twice is held once",
        "<Model><Name>M</Name><Battery>P</Battery><Battery>p</Battery><Battery>P</Battery></Model>",
        {u"M 0 [P] [p]"_s});
    row("an empty battery name is a name", "<Model><Name>M</Name><Battery/></Model>", {u"M 0 []"_s});
    row("a root element whose name merely contains the key", "<RemoteModel><Name>M</Name></RemoteModel>",
        {u"M 0"_s});
    row("an unknown text ends the record and the later ones",
        "<Model><Name>M</Name><Colour>red</Colour><Weight>7</Weight></Model><Model><Name>N</Name></Model>",
        {u"M 0"_s});
    row("an unknown child with elements is entered",
        "<Model><Name>M</Name><More><Weight>7</Weight></More><Battery>P</Battery></Model><Model/>",
        {u"M 7"_s});
    row("the notes after two keys in one name are emptied",
        "<Model><Notes>x</Notes><NameNotes>M</NameNotes><FlightLog><LogData "
        "Notes=\"one\"/></FlightLog></Model>",
        {u"M 0 one"_s});
    row("an empty log", "<Model><Name>M</Name><FlightLog/><Weight>7</Weight></Model>", {u"M 7"_s});
    row("a log before other children",
        "<Model><FlightLog><LogData Notes=\"one\"/><LogData "
        "Notes=\"two\"/></FlightLog><Name>M</Name></Model>",
        {u"M 0 one two"_s});
    row("unknown batteries and batteries of the root do not matter",
        "<Battery><Colour>red</Colour></Battery><Model><Name>M</Name></Model>", {u"M 0"_s});
}

void ReadingRulesTest::modelsAreReadByTheRules()
{
    QFETCH(QByteArray, body);
    RecordLists catalogue;
    loadBody(catalogue, body);
    QTEST(catalogue.modelSummary(), "models");
}

void ReadingRulesTest::locationsAreReadByTheRules_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("locations");
    const auto row = [](const char *tag, const char *body, const QStringList &locations) {
        QTest::newRow(tag) << QByteArray(body) << locations;
    };
    const QString a = u"A"_s;
    const QString b = u"B"_s;
    row("none", "<Battery/>", {});
    row("empty container", "<Locations/>", {});
    row("container of white space", "<Locations>\n</Locations>", {});
    row("duplicates are kept", "<Locations><Location Name=\"A\"/><Location Name=\"A\"/></Locations>", {a, a});
    row("behind the records", "<Battery/><Model/><Locations><Location Name=\"A\"/></Locations>", {a});
    row("two containers",
        "<Locations><Location Name=\"A\"/></Locations><Locations><Location Name=\"B\"/></Locations>", {a, b});
    row("without a name", "<Locations><Location/><Location Place=\"A\"/></Locations>", {});
    row("every attribute whose name contains the key",
        "<Locations><Location Name=\"A\" Other=\"x\" NickName=\"B\"/></Locations>", {a, b});
    row("with content",
        "<Locations><Location Name=\"A\">text</Location><Location Name=\"B\"></Location></Locations>",
        {a, b});
    row("other elements in the container",
        "<Locations><Place Name=\"x\"/><MyLocation Name=\"A\"/></Locations>", {a});
    row("a single entry without a container gives none, and the entries behind it count",
        "<Location Name=\"A\"/><Location Name=\"B\"/>", {b});
    row("the locations of flights do not count",
        "<Model><FlightLog><LogData Location=\"x\"/></FlightLog></Model><Locations><Location "
        "Name=\"A\"/></Locations>",
        {a});
    row("a broken record does not matter",
        "<Battery><Colour>red</Colour></Battery><Locations><Location Name=\"A\"/></Locations>", {a});
}

void ReadingRulesTest::locationsAreReadByTheRules()
{
    QFETCH(QByteArray, body);
    RecordLists catalogue;
    loadBody(catalogue, body);
    QTEST(QStringList(catalogue.locations), "locations");
}

void ReadingRulesTest::theFiguresOfTheLastDischargeFollowTheHistory_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<unsigned int>("discharged");
    QTest::addColumn<unsigned int>("current");
    const auto row = [](const char *tag, const char *body, unsigned int discharged, unsigned int current) {
        QTest::newRow(tag) << QByteArray(body) << discharged << current;
    };
    row("no history", "<Name>A</Name>", 0, 0);
    row("the last entry counts",
        "<Name>A</Name><Data><Cycle Discharged=\"1\" Current=\"2\"/><Cycle Discharged=\"3\" "
        "Current=\"4\"/></Data>",
        3, 4);
    row("a child after the history sets them back",
        "<Data><Cycle Discharged=\"1\" Current=\"2\"/></Data><Name>A</Name>", 0, 0);
    row("so does an empty history after it",
        "<Data><Cycle Discharged=\"1\" Current=\"2\"/></Data><Data> </Data>", 0, 0);
}

void ReadingRulesTest::theFiguresOfTheLastDischargeFollowTheHistory()
{
    QFETCH(QByteArray, body);
    QFETCH(unsigned int, current);
    RecordLists catalogue;
    loadBody(catalogue, "<Battery>" + body + "</Battery>");
    QCOMPARE(catalogue.batteries.size(), 1);
    BatteryWidget *battery = catalogue.batteries.first();
    QTEST(battery->getBatteryLastDischarged(), "discharged");
    QCOMPARE(battery->getBatteryLastMaxCurrent(), current);
}

void ReadingRulesTest::cyclesTakeTheirAttributes_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QDateTime>("when");
    QTest::addColumn<unsigned int>("discharged");
    QTest::addColumn<unsigned int>("current");
    const QByteArray date = "Date=\"Sat Nov 7 09:00:01 2026\"";
    QTest::newRow("all") << "Discharged=\"1\" Current=\"2\" " + date << november(7) << 1U << 2U;
    QTest::newRow("in any order") << date + " Current=\"2\" Discharged=\"1\"" << november(7) << 1U << 2U;
    QTest::newRow("none") << QByteArray() << QDateTime() << 0U << 0U;
    QTest::newRow("no date") << QByteArray("Discharged=\"1\" Current=\"2\"") << QDateTime() << 1U << 2U;
    QTest::newRow("odd values") << QByteArray("Discharged=\"-1\" Current=\"2.5\" Date=\"2026/11/07\"")
                                << QDateTime() << 0U << 0U;
    QTest::newRow("a later attribute of the same key wins")
        << "Discharged=\"1\" DischargedNow=\"5\" MaxCurrent=\"2\" Date=\"x\" New" + date << november(7) << 5U
        << 2U;
    QTest::newRow("other attributes") << "Colour=\"1\" discharged=\"2\" " + date << november(7) << 0U << 0U;
}

void ReadingRulesTest::cyclesTakeTheirAttributes()
{
    QFETCH(QByteArray, attributes);
    RecordLists catalogue;
    loadBody(catalogue, "<Battery><Data><Cycle " + attributes + "/></Data></Battery>");
    QCOMPARE(catalogue.batteries.size(), 1);
    BatteryWidget *battery = catalogue.batteries.first();
    QCOMPARE(battery->getDates().size(), 1);
    QTEST(battery->getDates().first(), "when");
    QTEST(battery->getDischarges().first(), "discharged");
    QTEST(battery->getCurrents().first(), "current");
    QCOMPARE(battery->getDischarges().size(), 1);
    QCOMPARE(battery->getCurrents().size(), 1);
}

void ReadingRulesTest::flightsTakeTheirAttributes()
{
    RecordLists catalogue;
    loadBody(catalogue, "<Model><FlightLog><LogData/>"
                        "<LogData Temperature=\"4294967291\" Notes=\"x\" MyNotes=\"n\" Location=\"l\" "
                        "Duration=\"00:07:30\" Date=\"Sat Nov 7 09:00:01 2026\"/>"
                        "<LogData Temperature=\"-5\" Duration=\"long\" Date=\"today\"/></FlightLog></Model>");
    QCOMPARE(catalogue.models.size(), 1);
    const QList<LogData> &log = catalogue.models.first()->getLogData();
    QCOMPARE(log.size(), 3);
    QVERIFY(!log.at(0).date.isValid() && !log.at(0).duration.isValid());
    QVERIFY(log.at(0).location.isEmpty() && log.at(0).notes.isEmpty());
    QCOMPARE(log.at(0).temperature, 0);
    QCOMPARE(log.at(1).date, november(7));
    QCOMPARE(log.at(1).duration, QTime(0, 7, 30));
    QCOMPARE(log.at(1).location, u"l"_s);
    QCOMPARE(log.at(1).temperature, -5);
    QCOMPARE(log.at(1).notes, u"n"_s);
    QVERIFY(!log.at(2).date.isValid() && !log.at(2).duration.isValid());
    QCOMPARE(log.at(2).temperature, 0);
}

void ReadingRulesTest::aHistoryOrALogMayComeInParts()
{
    RecordLists catalogue;
    loadBody(catalogue,
             "<Battery><Data><Cycle Date=\"Sat Nov 7 09:00:01 2026\"/></Data>"
             "<Data><Cycle/><Cycle Date=\"Mon Nov 9 09:00:01 2026\"/></Data></Battery>"
             "<Model><FlightLog><LogData Date=\"Sat Nov 7 09:00:01 2026\"/></FlightLog>"
             "<FlightLog><LogData/><LogData Date=\"Mon Nov 9 09:00:01 2026\"/></FlightLog></Model>");
    const QList<QDateTime> dates{november(7), QDateTime(), november(9)};
    QCOMPARE(catalogue.batteries.size(), 1);
    QCOMPARE(catalogue.batteries.first()->getDates(), dates);
    QCOMPARE(catalogue.models.size(), 1);
    QList<QDateTime> flown;
    for (const LogData &flight : std::as_const(catalogue.models.first()->getLogData()))
        flown.append(flight.date);
    QCOMPARE(flown, dates);
}

QTEST_MAIN(ReadingRulesTest)
#include "tst_readingrules.moc"
