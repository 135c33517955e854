// SPDX-License-Identifier: GPL-3.0-or-later
// What the data file looks like, and what of it survives.
#include "storage/datafile.h"
#include "storage/textdate.h"
#include "storage/valuetext.h"
#include "tests/support/recordlists.h"
#include "tests/support/warnings.h"

#include <QTemporaryDir>
#include <QTest>

#include <climits>
#include <memory>

using namespace Qt::Literals::StringLiterals;

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
    BatteryWidget *a = catalogue.addBattery(u"Pack A"_s);
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

    BatteryWidget *large = catalogue.addBattery(u"Zelle „groß“ 🔋 'x' ]]>"_s);
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
    ModelWidget *heli = catalogue.addModel(u"MyHeli"_s);
    heli->setModelType(u"Heli"_s);
    heli->setModelWeight(3250);
    heli->setModelSize(700);
    heli->setDateOfPurchase(QDate(2024, 2, 29));
    heli->setModelFlights(41);
    heli->setAdditionalNotes(u"first line\nsecond\tline & <more> \"quoted\""_s);
    heli->setLastUpdated(QDateTime(QDate(2026, 1, 1), QTime(0, 0)));
    heli->addBattery(u"Pack A"_s);
    heli->addBattery(u"no such pack"_s);
    LogData calm{november(7, 250), QTime(0, 7, 30), u"Long Meadow"_s, 21, u"calm"_s};
    LogData odd{november(8), QTime(23, 59, 59), QString(), -20, u"<>&\"'\n\t🚁\r"_s};
    LogData empty;
    heli->addLogData(calm);
    heli->addLogData(odd);
    heli->addLogData(empty);

    catalogue.addModel(QString());
}

void addGoldenCatalogue(RecordLists &catalogue)
{
    catalogue.locations = {u"Long Meadow"_s, u"Hall & Garden <indoor> \"B\""_s, u"Long Meadow"_s, QString()};
    addGoldenBatteries(catalogue);
    addGoldenModels(catalogue);
}

} // namespace

void DataFileTest::init()
{
    Test::failOnWarnings();
}

void DataFileTest::theFileLiesInTheBaseDirectory()
{
    QCOMPARE(DataFile::pathIn(u"/some/where"_s), u"/some/where/voltbok.xml"_s);
    QCOMPARE(DataFile::pathIn(u"/some/where/"_s), u"/some/where/voltbok.xml"_s);
    QCOMPARE(DataFile::pathIn(QString()), QDir::current().absoluteFilePath(u"voltbok.xml"_s));
    QCOMPARE(DataFile::pathIn(u"data"_s), QDir::current().absoluteFilePath(u"data/voltbok.xml"_s));
}

void DataFileTest::theGoldenCatalogueIsWrittenByteForByte()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    addGoldenCatalogue(catalogue);
    catalogue.save(directory.path());
    QCOMPARE(Test::contents(Test::dataFile(directory.path())), Test::contents(goldenPath));
}

void DataFileTest::theGoldenFileIsReadFieldByField()
{
    QTemporaryDir directory;
    QVERIFY(QFile::copy(goldenPath, Test::dataFile(directory.path())));
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
    QVERIFY(QFile::copy(goldenPath, Test::dataFile(directory.path())));
    RecordLists catalogue;
    catalogue.load(directory.path());
    QVERIFY(QFile::remove(Test::dataFile(directory.path())));
    catalogue.save(directory.path());
    QCOMPARE(Test::contents(Test::dataFile(directory.path())), Test::contents(goldenPath));
}

void DataFileTest::anEmptyCatalogueIsAnEmptyRoot()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.save(directory.path());
    QCOMPARE(Test::contents(Test::dataFile(directory.path())),
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
    catalogue.addBattery(u"A"_s);
    catalogue.addModel(u"M"_s);
    catalogue.save(directory.path());
    const QByteArray bytes = Test::contents(Test::dataFile(directory.path()));
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
    same("markup", u"<Name>&amp;\"'</Name> ]]> <!-- & -->"_s);
    same("newlines and tabs", u"\n a\tb\n\n"_s);
    same("carriage returns", u"\ra\r\nb\r\r\n"_s);
    same("spaces at the ends", u"   a   "_s);
    same("only white space", u" \n\t\r "_s);
    same("non-BMP", u"🚁🔋𝄞"_s);
    same("right to left", u"שלום مرحبا"_s);
    same("combining and invisible", u"e\u0301\u200b\ufeff\u2028\u0085\u00a0"_s);
    same("percent signs", u"%1 %2 %n"_s);
    same("ten thousand characters", u"äß<🚁"_s.repeated(2000));
    QTest::newRow("controls") << u"a\x01\x1f\bb"_s << "ab";
    QTest::newRow("lone surrogate") << u"a"_s + QChar(0xDC00) << "a";
    QTest::newRow("noncharacter") << u"a"_s + QChar(0xFFFF) << "a";
}

void DataFileTest::everyTextSurvivesInEveryField()
{
    QFETCH(QString, text);
    QFETCH(QString, read);
    QTemporaryDir directory;
    {
        RecordLists catalogue;
        catalogue.locations = {text, u"after"_s};
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
    const QByteArray firstSave = Test::contents(Test::dataFile(directory.path()));

    RecordLists catalogue;
    catalogue.load(directory.path());
    QCOMPARE(catalogue.locations, (QList<QString>{read, u"after"_s}));
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
    QCOMPARE(Test::contents(Test::dataFile(directory.path())), firstSave);
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
    for (const QString &key : std::as_const(keys)) {
        for (const QString &other : std::as_const(keys))
            QCOMPARE(key.contains(other), key == other);
    }
}

void DataFileTest::aFlightAndItsDischargeStayEqual()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    QDateTime when = november(7, 789);
    catalogue.addBattery(u"A"_s)->addFullEntry(when, 1200, 4550, false);
    LogData flight;
    flight.date = when;
    catalogue.addModel(u"M"_s)->addLogData(flight);
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
    catalogue.addBattery(u"A"_s)->addFullEntry(when, 1200, 4550, false);
    catalogue.batteries.first()->setLastUpdated(when);
    catalogue.save(directory.path());
    catalogue.load(directory.path());
    QCOMPARE(catalogue.batteries.first()->getDates().first(), november(7));
    QCOMPARE(catalogue.batteries.first()->getBatteryLastUpdated(), november(7));
}

QTEST_MAIN(DataFileTest)
#include "tst_datafile.moc"
