// SPDX-License-Identifier: GPL-3.0-or-later
// What the data file looks like and what is read from one, element by element.
#include "storage/datafile.h"
#include "storage/textdate.h"
#include "storage/valuetext.h"
#include "tests/support/recordlists.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <climits>
#include <memory>

using namespace TextDate;
using namespace ValueText;

class DataFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theFileLiesInTheBaseDirectory();
    void theGoldenCatalogueIsWrittenByteForByte();
    void theGoldenFileIsReadFieldByField();
    void theGoldenFileIsWrittenAsItWasRead();
    void anEmptyCatalogueIsAnEmptyRoot();
    void emptyContainersAreNotWritten();
    void everyTextSurvivesInEveryField_data();
    void everyTextSurvivesInEveryField();
    void noKeyContainsAnotherOneOfItsLevel_data();
    void noKeyContainsAnotherOneOfItsLevel();
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
    void aFlightAndItsDischargeStayEqual();
    void millisecondsAreLost();
};

namespace {

const QString goldenPath = QStringLiteral(GOLDEN);

QDateTime november(int day, int milliseconds = 0)
{
    return QDateTime(QDate(2026, 11, day), QTime(9, 0, 1, milliseconds));
}

void addGoldenBatteries(RecordLists &catalogue)
{
    BatteryWidget *a = catalogue.addBattery(QStringLiteral("Pack A"));
    QDate purchase(2025, 3, 9);
    a->setBatteryCapacity(2200);
    a->setBatteryChargeRate(15);
    a->setBatteryRating(25);
    a->setDateOfPurchase(purchase);
    a->setBatteryCycles(3);
    a->setBatteryCharged(true, false);
    a->setLastUpdated(QDateTime(QDate(2026, 11, 15), QTime(12, 4, 22)));
    QDateTime flown = november(7, 250);
    QDateTime never;
    a->addFullEntry(flown, 1760, 5500, false);
    a->addSimpleEntry(never, false);
    a->addFullEntry(flown, UINT_MAX, 7, false);

    catalogue.addBattery(QString());

    BatteryWidget *large = catalogue.addBattery(QStringLiteral(u"Zelle „groß“ 🔋 'x' ]]>"));
    QDate early(999, 12, 31);
    large->setBatteryCapacity(UINT_MAX);
    large->setBatteryChargeRate(UINT_MAX);
    large->setBatteryRating(UINT_MAX);
    large->setDateOfPurchase(early);
    large->setBatteryCycles(UINT_MAX);
    large->setLastUpdated(QDateTime(QDate(9999, 12, 31), QTime(23, 59, 59, 999)));
}

void addGoldenModels(RecordLists &catalogue)
{
    ModelWidget *heli = catalogue.addModel(QStringLiteral("MyHeli"));
    heli->setModelType(QStringLiteral("Heli"));
    heli->setModelWeight(3250);
    heli->setModelSize(700);
    heli->setDateOfPurchase(QDate(2024, 2, 29));
    heli->setModelFlights(41);
    heli->setAdditionalNotes(QStringLiteral("first line\nsecond\tline & <more> \"quoted\""));
    heli->setLastUpdated(QDateTime(QDate(2026, 1, 1), QTime(0, 0)));
    heli->addBattery(QStringLiteral("Pack A"));
    heli->addBattery(QStringLiteral("no such pack"));
    LogData calm{november(7, 250), QTime(0, 7, 30), QStringLiteral("Long Meadow"), 21,
                 QStringLiteral("calm")};
    LogData odd{november(8), QTime(23, 59, 59), QString(), -20, QStringLiteral(u"<>&\"'\n\t🚁\r")};
    LogData empty;
    heli->addLogData(calm);
    heli->addLogData(odd);
    heli->addLogData(empty);

    catalogue.addModel(QString());
}

void addGoldenCatalogue(RecordLists &catalogue)
{
    catalogue.locations = {QStringLiteral("Long Meadow"), QStringLiteral("Hall & Garden <indoor> \"B\""),
                           QStringLiteral("Long Meadow"), QString()};
    addGoldenBatteries(catalogue);
    addGoldenModels(catalogue);
}

/** Reads @p body as the content of the root element. */
void loadBody(RecordLists &catalogue, const QByteArray &body)
{
    QTemporaryDir directory;
    QVERIFY(writeFile(dataFile(directory.path()), document(body)));
    catalogue.load(directory.path());
}

} // namespace

void DataFileTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void DataFileTest::theFileLiesInTheBaseDirectory()
{
    QCOMPARE(DataFile::pathIn(QStringLiteral("/some/where")), QStringLiteral("/some/where/voltbok.xml"));
    QCOMPARE(DataFile::pathIn(QStringLiteral("/some/where/")), QStringLiteral("/some/where/voltbok.xml"));
    QCOMPARE(DataFile::pathIn(QString()), QDir::current().absoluteFilePath(QStringLiteral("voltbok.xml")));
    QCOMPARE(DataFile::pathIn(QStringLiteral("data")),
             QDir::current().absoluteFilePath(QStringLiteral("data/voltbok.xml")));
}

void DataFileTest::theGoldenCatalogueIsWrittenByteForByte()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    addGoldenCatalogue(catalogue);
    catalogue.save(directory.path());
    QCOMPARE(contents(dataFile(directory.path())), contents(goldenPath));
}

void DataFileTest::theGoldenFileIsReadFieldByField()
{
    QTemporaryDir directory;
    QVERIFY(QFile::copy(goldenPath, dataFile(directory.path())));
    RecordLists expected;
    addGoldenCatalogue(expected);
    RecordLists read;
    read.load(directory.path());

    QCOMPARE(read.locations, expected.locations);
    QCOMPARE(read.batteries.size(), expected.batteries.size());
    for (qsizetype i = 0; i < read.batteries.size(); ++i) {
        BatteryWidget *left = read.batteries.at(i);
        BatteryWidget *right = expected.batteries.at(i);
        QCOMPARE(left->getBatteryName(), right->getBatteryName());
        QCOMPARE(left->getBatteryCapacity(), right->getBatteryCapacity());
        QCOMPARE(left->getBatteryChargeRate(), right->getBatteryChargeRate());
        QCOMPARE(left->getBatteryRating(), right->getBatteryRating());
        QCOMPARE(left->getdateOfPurchase(), right->getdateOfPurchase());
        QCOMPARE(left->getBatteryCycles(), right->getBatteryCycles());
        QCOMPARE(left->getBatteryCharged(), right->getBatteryCharged());
        QCOMPARE(fromDateTime(left->getBatteryLastUpdated()), fromDateTime(right->getBatteryLastUpdated()));
        QCOMPARE(left->getDates().size(), right->getDates().size());
        for (qsizetype entry = 0; entry < left->getDates().size(); ++entry)
            QCOMPARE(fromDateTime(left->getDates().at(entry)), fromDateTime(right->getDates().at(entry)));
        QCOMPARE(left->getDischarges(), right->getDischarges());
        QCOMPARE(left->getCurrents(), right->getCurrents());
        QCOMPARE(left->getBatteryLastDischarged(), right->getBatteryLastDischarged());
        QCOMPARE(left->getBatteryLastMaxCurrent(), right->getBatteryLastMaxCurrent());
    }
    QCOMPARE(read.models.size(), expected.models.size());
    for (qsizetype i = 0; i < read.models.size(); ++i) {
        ModelWidget *left = read.models.at(i);
        ModelWidget *right = expected.models.at(i);
        QCOMPARE(left->getModelName(), right->getModelName());
        QCOMPARE(left->getModelType(), right->getModelType());
        QCOMPARE(left->getModelWeight(), right->getModelWeight());
        QCOMPARE(left->getModelSize(), right->getModelSize());
        QCOMPARE(left->getDateOfPurchase(), right->getDateOfPurchase());
        QCOMPARE(left->getModelFlights(), right->getModelFlights());
        QCOMPARE(left->getAdditionalNotes(), right->getAdditionalNotes());
        QCOMPARE(left->getLastUpdated(), right->getLastUpdated());
        QCOMPARE(left->getBatteries(), right->getBatteries());
        QCOMPARE(left->getLogData().size(), right->getLogData().size());
        for (qsizetype entry = 0; entry < left->getLogData().size(); ++entry) {
            const LogData &flown = left->getLogData().at(entry);
            const LogData &wanted = right->getLogData().at(entry);
            QCOMPARE(fromDateTime(flown.date), fromDateTime(wanted.date));
            QCOMPARE(flown.duration, wanted.duration);
            QCOMPARE(flown.location, wanted.location);
            QCOMPARE(flown.temperature, wanted.temperature);
            QCOMPARE(flown.notes, wanted.notes);
        }
    }
}

void DataFileTest::theGoldenFileIsWrittenAsItWasRead()
{
    QTemporaryDir directory;
    QVERIFY(QFile::copy(goldenPath, dataFile(directory.path())));
    RecordLists catalogue;
    catalogue.load(directory.path());
    QVERIFY(QFile::remove(dataFile(directory.path())));
    catalogue.save(directory.path());
    QCOMPARE(contents(dataFile(directory.path())), contents(goldenPath));
}

void DataFileTest::anEmptyCatalogueIsAnEmptyRoot()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.save(directory.path());
    QCOMPARE(contents(dataFile(directory.path())),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE Voltbok>\n<Voltbok/>\n"));
    catalogue.load(directory.path());
    QVERIFY(catalogue.locations.isEmpty());
    QVERIFY(catalogue.batteries.isEmpty());
    QVERIFY(catalogue.models.isEmpty());
}

void DataFileTest::emptyContainersAreNotWritten()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.addBattery(QStringLiteral("A"));
    catalogue.addModel(QStringLiteral("M"));
    catalogue.save(directory.path());
    const QByteArray bytes = contents(dataFile(directory.path()));
    QVERIFY(bytes.contains("<Battery>"));
    QVERIFY(bytes.contains("<Model>"));
    QVERIFY(!bytes.contains("Locations"));
    QVERIFY(!bytes.contains("Data"));
    QVERIFY(!bytes.contains("FlightLog"));
}

void DataFileTest::everyTextSurvivesInEveryField_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read"); // what comes back
    const auto same = [](const char *tag, const QString &text) { QTest::newRow(tag) << text << text; };
    same("empty", QString(QLatin1String("")));
    same("markup", QStringLiteral("<Name>&amp;\"'</Name> ]]> <!-- & -->"));
    same("newlines and tabs", QStringLiteral("\n a\tb\n\n"));
    same("carriage returns", QStringLiteral("\ra\r\nb\r\r\n"));
    same("spaces at the ends", QStringLiteral("   a   "));
    same("only white space", QStringLiteral(" \n\t\r "));
    same("non-BMP", QStringLiteral(u"🚁🔋𝄞"));
    same("right to left", QStringLiteral(u"שלום مرحبا"));
    same("combining and invisible", QStringLiteral(u"e\u0301\u200b\ufeff\u2028\u0085\u00a0"));
    same("percent signs", QStringLiteral("%1 %2 %n"));
    same("ten thousand characters", QStringLiteral(u"äß<🚁").repeated(2000));
    QTest::newRow("controls") << QStringLiteral("a\x01\x1f\bb") << "ab";
    QTest::newRow("lone surrogate") << QStringLiteral("a") + QChar(0xDC00) << "a";
    QTest::newRow("noncharacter") << QStringLiteral("a") + QChar(0xFFFF) << "a";
}

void DataFileTest::everyTextSurvivesInEveryField()
{
    QFETCH(QString, text);
    QFETCH(QString, read);
    QTemporaryDir directory;
    {
        RecordLists catalogue;
        catalogue.locations = {text, QStringLiteral("after")};
        catalogue.addBattery(text);
        ModelWidget *model = catalogue.addModel(text);
        model->setModelType(text);
        model->setAdditionalNotes(text);
        model->addBattery(text);
        LogData flight;
        flight.location = text;
        flight.notes = text;
        model->addLogData(flight);
        catalogue.save(directory.path());
    }
    const QByteArray firstSave = contents(dataFile(directory.path()));

    RecordLists catalogue;
    catalogue.load(directory.path());
    QCOMPARE(catalogue.locations, (QList<QString>{read, QStringLiteral("after")}));
    QCOMPARE(catalogue.batteries.size(), 1);
    QCOMPARE(catalogue.batteries.first()->getBatteryName(), read);
    QCOMPARE(catalogue.models.size(), 1);
    ModelWidget *model = catalogue.models.first();
    QCOMPARE(model->getModelName(), read);
    QCOMPARE(model->getModelType(), read);
    QCOMPARE(model->getAdditionalNotes(), read);
    QCOMPARE(model->getBatteries(), QList<QString>{read});
    QCOMPARE(model->getLogData().size(), 1);
    QCOMPARE(model->getLogData().first().location, read);
    QCOMPARE(model->getLogData().first().notes, read);

    catalogue.save(directory.path());
    QCOMPARE(contents(dataFile(directory.path())), firstSave);
}

void DataFileTest::noKeyContainsAnotherOneOfItsLevel_data()
{
    namespace Key = DataFile::Key;
    QTest::addColumn<QStringList>("keys");
    const auto row = [](const char *tag, std::initializer_list<QStringView> keys) {
        QStringList list;
        for (QStringView key : keys)
            list.append(key.toString());
        QTest::newRow(tag) << list;
    };
    row("root", {Key::Locations, Key::Battery, Key::Model});
    row("battery", {Key::Name, Key::Capacity, Key::ChargeRate, Key::DischargeRate, Key::Purchase, Key::Cycles,
                    Key::Charged, Key::LastUse, Key::Data});
    row("cycle", {Key::Discharged, Key::Current, Key::Date});
    row("model", {Key::Name, Key::Type, Key::Weight, Key::Size, Key::Purchase, Key::Flights, Key::Notes,
                  Key::LastUpdate, Key::Battery, Key::FlightLog});
    row("flight", {Key::Date, Key::Location, Key::Duration, Key::Temperature, Key::Notes});
}

void DataFileTest::noKeyContainsAnotherOneOfItsLevel()
{
    QFETCH(QStringList, keys);
    for (const QString &key : qAsConst(keys)) {
        for (const QString &other : qAsConst(keys))
            QCOMPARE(key.contains(other), key == other);
    }
}

void DataFileTest::batteriesAreReadByTheRules_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("batteries");
    const auto row = [](const char *tag, const char *body, const QStringList &batteries) {
        QTest::newRow(tag) << QByteArray(body) << batteries;
    };
    row("children in any order",
        "<Battery><Cycles>3</Cycles><Charged>1</Charged><Name>A</Name><Capacity>5</Capacity></Battery>",
        {QStringLiteral("A 5 3 charged")});
    row("no children", "<Battery/><Battery></Battery>", {QStringLiteral(" 0 0"), QStringLiteral(" 0 0")});
    row("a later child of the same name wins",
        "<Battery><Name>A</Name><Capacity>5</Capacity><Name>B</Name></Battery>", {QStringLiteral("B 5 0")});
    row("a root element whose name merely contains the key",
        "<BatteryPack><Name>A</Name></BatteryPack><OldBattery><Name>B</Name></OldBattery>",
        {QStringLiteral("A 0 0"), QStringLiteral("B 0 0")});
    row("names are case-sensitive", "<battery><Name>A</Name></battery><BATTERY/>", {});
    row("other root elements are skipped",
        "<Extra><Battery><Name>no</Name></Battery></Extra>text<Battery><Name>A</Name></Battery><Model/>",
        {QStringLiteral("A 0 0")});
    row("the batteries of a model are no records", "<Model><Battery>no</Battery></Model><Battery/>",
        {QStringLiteral(" 0 0")});
    row("a child whose name merely contains a key",
        "<Battery><ItsName>A</ItsName><CapacityNow>5</CapacityNow></Battery>", {QStringLiteral("A 5 0")});
    row("a child with the names of two keys: the second one reads no text",
        "<Battery><Capacity>5</Capacity><NameAndCapacity>A</NameAndCapacity></Battery>",
        {QStringLiteral("A 0 0")});
    row("an unknown text ends the record and the later ones",
        "<Battery><Name>A</Name><Colour>red</Colour><Capacity>5</Capacity></Battery>"
        "<Battery><Name>B</Name></Battery>",
        {QStringLiteral("A 0 0")});
    row("so does an unknown empty child",
        "<Battery><Name>A</Name><Colour/><Capacity>5</Capacity></Battery><Battery><Name>B</Name></Battery>",
        {QStringLiteral("A 0 0")});
    row("records before the unknown text are whole",
        "<Battery><Name>A</Name><Capacity>5</Capacity></Battery><Battery><Colour>red</Colour></"
        "Battery><Battery/>",
        {QStringLiteral("A 5 0"), QStringLiteral(" 0 0")});
    row("an unknown child with elements is entered, and ends the record where it ends",
        "<Battery><Name>A</Name><More><Capacity>5</Capacity><Cycles>3</Cycles></More><Charged>1</Charged></"
        "Battery>"
        "<Battery><Name>B</Name></Battery>",
        {QStringLiteral("A 5 3")});
    row("white space, comments and instructions do not count",
        "<Battery> <!-- x --> <Name>A<!-- x -->B<?x y?></Name> <?x y?> <Capacity>5</Capacity> </Battery>",
        {QStringLiteral("AB 5 0")});
    row("character data in any form", "<Battery><Name>A<![CDATA[<&>]]>&#66;&lt;</Name></Battery>",
        {QStringLiteral("A<&>B< 0 0")});
    row("odd numbers read as 0",
        "<Battery><Name>A</Name><Capacity>-5</Capacity><Cycles>4294967296</Cycles></Battery>",
        {QStringLiteral("A 0 0")});
    row("the word true is not charged", "<Battery><Name>A</Name><Charged>true</Charged></Battery>",
        {QStringLiteral("A 0 0")});
    row("an empty history", "<Battery><Name>A</Name><Data/><Cycles>2</Cycles></Battery>",
        {QStringLiteral("A 0 2")});
    row("a history of white space", "<Battery><Name>A</Name><Data>\n  </Data><Cycles>2</Cycles></Battery>",
        {QStringLiteral("A 0 2")});
    row("a history",
        "<Battery><Data><Cycle Discharged=\"1\"/><Cycle Discharged=\"2\"/></Data><Name>A</Name></Battery>",
        {QStringLiteral("A 0 0 -1 -2")});
    row("two histories follow each other",
        "<Battery><Data><Cycle Discharged=\"1\"/></Data><Name>A</Name><Data><Cycle "
        "Discharged=\"2\"/></Data></Battery>",
        {QStringLiteral("A 0 0 -1 -2")});
    row("entries whose name merely contains the key, at any depth",
        "<Battery><Name>A</Name><Data><MyCycle Discharged=\"1\"/><Year><Cycle "
        "Discharged=\"2\">x</Cycle></Year>"
        "<Other Discharged=\"3\"/></Data></Battery>",
        {QStringLiteral("A 0 0 -1 -2")});
    row("a history ends at the next name that contains its own",
        "<Battery><Name>A</Name><Data><Cycle Discharged=\"1\"/><MetaData/><Cycle "
        "Discharged=\"2\"/></Data></Battery>",
        {QStringLiteral("A 0 0 -1")});
}

void DataFileTest::batteriesAreReadByTheRules()
{
    QFETCH(QByteArray, body);
    RecordLists catalogue;
    loadBody(catalogue, body);
    QTEST(catalogue.batterySummary(), "batteries");
}

void DataFileTest::modelsAreReadByTheRules_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("models");
    const auto row = [](const char *tag, const char *body, const QStringList &models) {
        QTest::newRow(tag) << QByteArray(body) << models;
    };
    row("no children", "<Model/><Model></Model>", {QStringLiteral(" 0"), QStringLiteral(" 0")});
    row("children in any order", "<Model><Battery>P</Battery><Weight>7</Weight><Name>M</Name></Model>",
        {QStringLiteral("M 7 [P]")});
    row("the same battery twice is held once",
        "<Model><Name>M</Name><Battery>P</Battery><Battery>p</Battery><Battery>P</Battery></Model>",
        {QStringLiteral("M 0 [P] [p]")});
    row("an empty battery name is a name", "<Model><Name>M</Name><Battery/></Model>",
        {QStringLiteral("M 0 []")});
    row("a root element whose name merely contains the key", "<RemoteModel><Name>M</Name></RemoteModel>",
        {QStringLiteral("M 0")});
    row("an unknown text ends the record and the later ones",
        "<Model><Name>M</Name><Colour>red</Colour><Weight>7</Weight></Model><Model><Name>N</Name></Model>",
        {QStringLiteral("M 0")});
    row("an unknown child with elements is entered",
        "<Model><Name>M</Name><More><Weight>7</Weight></More><Battery>P</Battery></Model><Model/>",
        {QStringLiteral("M 7")});
    row("the notes after two keys in one name are emptied",
        "<Model><Notes>x</Notes><NameNotes>M</NameNotes><FlightLog><LogData "
        "Notes=\"one\"/></FlightLog></Model>",
        {QStringLiteral("M 0 one")});
    row("an empty log", "<Model><Name>M</Name><FlightLog/><Weight>7</Weight></Model>",
        {QStringLiteral("M 7")});
    row("a log before other children",
        "<Model><FlightLog><LogData Notes=\"one\"/><LogData "
        "Notes=\"two\"/></FlightLog><Name>M</Name></Model>",
        {QStringLiteral("M 0 one two")});
    row("unknown batteries and batteries of the root do not matter",
        "<Battery><Colour>red</Colour></Battery><Model><Name>M</Name></Model>", {QStringLiteral("M 0")});
}

void DataFileTest::modelsAreReadByTheRules()
{
    QFETCH(QByteArray, body);
    RecordLists catalogue;
    loadBody(catalogue, body);
    QTEST(catalogue.modelSummary(), "models");
}

void DataFileTest::locationsAreReadByTheRules_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QStringList>("locations");
    const auto row = [](const char *tag, const char *body, const QStringList &locations) {
        QTest::newRow(tag) << QByteArray(body) << locations;
    };
    const QString a = QStringLiteral("A");
    const QString b = QStringLiteral("B");
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

void DataFileTest::locationsAreReadByTheRules()
{
    QFETCH(QByteArray, body);
    RecordLists catalogue;
    loadBody(catalogue, body);
    QTEST(QStringList(catalogue.locations), "locations");
}

void DataFileTest::theFiguresOfTheLastDischargeFollowTheHistory_data()
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

void DataFileTest::theFiguresOfTheLastDischargeFollowTheHistory()
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

void DataFileTest::cyclesTakeTheirAttributes_data()
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

void DataFileTest::cyclesTakeTheirAttributes()
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

void DataFileTest::flightsTakeTheirAttributes()
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
    QCOMPARE(log.at(1).location, QStringLiteral("l"));
    QCOMPARE(log.at(1).temperature, -5);
    QCOMPARE(log.at(1).notes, QStringLiteral("n"));
    QVERIFY(!log.at(2).date.isValid() && !log.at(2).duration.isValid());
    QCOMPARE(log.at(2).temperature, 0);
}

void DataFileTest::aHistoryOrALogMayComeInParts()
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
    for (const LogData &flight : qAsConst(catalogue.models.first()->getLogData()))
        flown.append(flight.date);
    QCOMPARE(flown, dates);
}

void DataFileTest::aFlightAndItsDischargeStayEqual()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    QDateTime when = november(7, 789);
    catalogue.addBattery(QStringLiteral("A"))->addFullEntry(when, 1200, 4550, false);
    LogData flight;
    flight.date = when;
    catalogue.addModel(QStringLiteral("M"))->addLogData(flight);
    catalogue.save(directory.path());
    catalogue.load(directory.path());

    LogData read;
    QCOMPARE(catalogue.models.first()->getLatestLog(read), 1);
    unsigned int discharged = 0;
    unsigned int current = 0;
    QVERIFY(catalogue.batteries.first()->getEvent(read.date, discharged, current));
    QCOMPARE(discharged, 1200U);
    QCOMPARE(current, 4550U);
}

void DataFileTest::millisecondsAreLost()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    QDateTime when = november(7, 789);
    catalogue.addBattery(QStringLiteral("A"))->addFullEntry(when, 1200, 4550, false);
    catalogue.batteries.first()->setLastUpdated(when);
    catalogue.save(directory.path());
    catalogue.load(directory.path());
    QCOMPARE(catalogue.batteries.first()->getDates().first(), november(7));
    QCOMPARE(catalogue.batteries.first()->getBatteryLastUpdated(), november(7));
}

QTEST_MAIN(DataFileTest)
#include "tst_datafile.moc"
