// SPDX-License-Identifier: GPL-3.0-or-later
// When the data processor reads and writes, and what it leaves behind.
#include "tests/support/recordlists.h"

#include <QFileInfo>
#include <QMetaObject>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <ctime>

class DataProcessorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNewProcessorHasAnEmptyBasePathAndItsParent();
    void namingTheBasePathTouchesNothing();
    void withoutABasePathNothingIsWritten();
    void withoutABasePathTheWorkingDirectoryIsRead();
    void theFirstSaveCreatesTheDirectoryWithItsParents();
    void aSaveWritesOneFileAndNoOther();
    void aShorterCatalogueLeavesNothingOfALongerOne();
    void aSaveChangesNoRecordAndNoList();
    void oneProcessorSavesAgainAndAgain();
    void loadersAppendAndLookAtNothing();
    void theLocationsTellWhetherTheListHoldsAny_data();
    void theLocationsTellWhetherTheListHoldsAny();
    void newRecordsHaveNoParent();
    void equalNamesAreDifferentRecords();
    void loadingACardShowsItsFigures();
    void loadingACardChangesNothingOfIt();
    void whatCannotBeOpenedLoadsNothing_data();
    void whatCannotBeOpenedLoadsNothing();
    void whatCannotBeOpenedIsNotWritten();
    void aSaveAfterAFailedOneWorks();
    void aFullDiskCostsOnlyThatSave();
    void aVanishedDirectoryIsCreatedAgain();
    void aTextThatXmlCannotHoldCostsOnlyItself();
    void aMalformedFileDoesNotTroubleTheNextLoad();
    void theLoaderLetsGoOfTheFile();
    void everyRealTimeOfAClockChangeIsKept_data();
    void everyRealTimeOfAClockChangeIsKept();
    void aWholeSeasonSurvives();
};

namespace {

const QString packA = QStringLiteral("Pack A");

/** Sets the time zone of this process, and the one before it again at the end. */
class TimeZone
{
public:
    explicit TimeZone(const QByteArray &name)
        : before(qgetenv("TZ"))
    {
        set(name);
    }
    ~TimeZone() { set(before); }
    Q_DISABLE_COPY_MOVE(TimeZone)

private:
    static void set(const QByteArray &name)
    {
        qputenv("TZ", name);
        tzset();
    }

    QByteArray before;
};

QStringList asTheClocksShow(const QList<QDateTime> &moments)
{
    QStringList texts;
    for (const QDateTime &moment : moments)
        texts.append(moment.toString(Qt::ISODate));
    return texts;
}

} // namespace

void DataProcessorTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".?")));
}

void DataProcessorTest::aNewProcessorHasAnEmptyBasePathAndItsParent()
{
    QObject parent;
    auto *processor = new DataProcessor(&parent);
    QCOMPARE(processor->parent(), &parent);
    QVERIFY(processor->basePath.isEmpty());
    QVERIFY(!processor->basePath.isNull());
    const QMetaObject &meta = DataProcessor::staticMetaObject;
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void DataProcessorTest::namingTheBasePathTouchesNothing()
{
    QTemporaryDir directory;
    DataProcessor processor;
    processor.setBasePath(directory.filePath(QStringLiteral("new")));
    QCOMPARE(processor.basePath, directory.filePath(QStringLiteral("new")));
    QVERIFY(QDir(directory.path()).isEmpty());
}

void DataProcessorTest::withoutABasePathNothingIsWritten()
{
    QTemporaryDir directory;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(directory.path()));
    RecordLists catalogue;
    catalogue.addBattery(packA);
    catalogue.save(QString());
    catalogue.save(QStringLiteral(""));
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(QDir(directory.path()).isEmpty());
}

void DataProcessorTest::withoutABasePathTheWorkingDirectoryIsRead()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.addBattery(packA);
    catalogue.save(directory.path());
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(directory.path()));
    RecordLists read;
    read.load(QString());
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(read.batterySummary(), catalogue.batterySummary());
    QCOMPARE(read.batteries.size(), 1);
}

void DataProcessorTest::theFirstSaveCreatesTheDirectoryWithItsParents()
{
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("a/b c/ö"));
    RecordLists catalogue;
    catalogue.locations = {QStringLiteral("Field")};
    catalogue.save(path);
    QVERIFY(QFileInfo::exists(dataFile(path)));
    RecordLists read;
    read.load(path);
    QCOMPARE(read.locations, catalogue.locations);
}

void DataProcessorTest::aSaveWritesOneFileAndNoOther()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.addBattery(packA);
    catalogue.save(directory.path());
    catalogue.save(directory.path());
    QCOMPARE(QDir(directory.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList{QStringLiteral("voltbok.xml")});
}

void DataProcessorTest::aShorterCatalogueLeavesNothingOfALongerOne()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.save(directory.path());
    const QByteArray empty = contents(dataFile(directory.path()));
    for (int i = 0; i < 50; ++i)
        catalogue.locations.append(QString::number(i));
    catalogue.save(directory.path());
    QVERIFY(contents(dataFile(directory.path())).size() > empty.size());
    catalogue.clear();
    catalogue.save(directory.path());
    QCOMPARE(contents(dataFile(directory.path())), empty);
}

void DataProcessorTest::aSaveChangesNoRecordAndNoList()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.locations = {QStringLiteral("Field"), QStringLiteral("Field")};
    BatteryWidget *battery = catalogue.addBattery(packA);
    battery->setBatteryCharged(true, false);
    QDateTime when(QDate(2026, 7, 1), QTime(12, 0, 0, 500));
    battery->addFullEntry(when, 1, 2, false);
    catalogue.addModel(QStringLiteral("M"))->addBattery(packA);
    QSignalSpy batteryChanged(battery, &BatteryWidget::dataChanged);
    QSignalSpy modelChanged(catalogue.models.first(), &ModelWidget::dataChanged);
    const QStringList batteries = catalogue.batterySummary();
    const QStringList models = catalogue.modelSummary();

    catalogue.save(directory.path());

    QCOMPARE(catalogue.batterySummary(), batteries);
    QCOMPARE(catalogue.modelSummary(), models);
    QCOMPARE(catalogue.locations.size(), 2);
    QCOMPARE(battery->getDates().first(), when);
    QVERIFY(battery->getBatteryLastUpdated().isNull());
    QCOMPARE(batteryChanged.count() + modelChanged.count(), 0);
}

void DataProcessorTest::oneProcessorSavesAgainAndAgain()
{
    QTemporaryDir first;
    QTemporaryDir second;
    RecordLists catalogue;
    DataProcessor processor;
    for (int i = 0; i < 3; ++i) {
        catalogue.locations.append(QString::number(i));
        for (const QTemporaryDir *directory : {&first, &second}) {
            processor.setBasePath(directory->path());
            processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
            QList<QString> read;
            QVERIFY(processor.getLocationsFromData(read));
            QCOMPARE(read, catalogue.locations);
        }
    }
    QCOMPARE(contents(dataFile(first.path())), contents(dataFile(second.path())));
}

void DataProcessorTest::loadersAppendAndLookAtNothing()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.locations = {QStringLiteral("Field")};
    catalogue.addBattery(packA);
    catalogue.addModel(QStringLiteral("M"));
    catalogue.save(directory.path());

    DataProcessor processor;
    processor.setBasePath(directory.path());
    BatteryWidget *const oldBattery = catalogue.batteries.first();
    ModelWidget *const oldModel = catalogue.models.first();
    for (int count = 2; count < 4; ++count) {
        QVERIFY(processor.getLocationsFromData(catalogue.locations));
        processor.getBatteryWidgetsFromData(catalogue.batteries);
        processor.getModelWidgetsFromData(catalogue.models);
        QCOMPARE(catalogue.locations.size(), count);
        QCOMPARE(catalogue.batteries.size(), count);
        QCOMPARE(catalogue.models.size(), count);
    }
    QCOMPARE(catalogue.batteries.first(), oldBattery);
    QCOMPARE(catalogue.models.first(), oldModel);
    catalogue.batteries.append(nullptr); // a loader that looked at it would crash
    catalogue.models.append(nullptr);
    processor.getBatteryWidgetsFromData(catalogue.batteries);
    processor.getModelWidgetsFromData(catalogue.models);
    QCOMPARE(catalogue.batteries.removeAll(nullptr), 1);
    QCOMPARE(catalogue.models.removeAll(nullptr), 1);
}

void DataProcessorTest::theLocationsTellWhetherTheListHoldsAny_data()
{
    QTest::addColumn<QByteArray>("bytes"); // null: no file
    QTest::addColumn<bool>("filled");
    QTest::addColumn<bool>("expected");
    const QByteArray with = document("<Locations><Location Name=\"A\"/></Locations>");
    QTest::newRow("no file") << QByteArray() << false << false;
    QTest::newRow("no file, a list that holds one") << QByteArray() << true << true;
    QTest::newRow("no locations") << document("<Battery/>") << false << false;
    QTest::newRow("no locations, a list that holds one") << document("<Battery/>") << true << true;
    QTest::newRow("locations") << with << false << true;
    QTest::newRow("malformed") << QByteArray("<") << false << false;
    QTest::newRow("malformed behind a location") << with.left(with.indexOf("</Loc")) << false << true;
}

void DataProcessorTest::theLocationsTellWhetherTheListHoldsAny()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, filled);
    QTemporaryDir directory;
    if (!bytes.isNull())
        QVERIFY(writeFile(dataFile(directory.path()), bytes));
    DataProcessor processor;
    processor.setBasePath(directory.path());
    QList<QString> locations;
    if (filled)
        locations.append(QStringLiteral("before"));
    QTEST(processor.getLocationsFromData(locations), "expected");
}

void DataProcessorTest::newRecordsHaveNoParent()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.addBattery(packA);
    catalogue.addModel(QStringLiteral("M"));
    catalogue.save(directory.path());
    catalogue.load(directory.path());
    QCOMPARE(catalogue.batteries.first()->parent(), nullptr);
    QCOMPARE(catalogue.models.first()->parent(), nullptr);
    QVERIFY(!catalogue.batteries.first()->isVisible());
    QVERIFY(!catalogue.models.first()->isVisible());
    QCOMPARE(catalogue.batteries.first()->getViewMode(), BatteryWidget::Simple);
}

void DataProcessorTest::equalNamesAreDifferentRecords()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.addBattery(packA)->setBatteryCapacity(1);
    catalogue.addBattery(packA)->setBatteryCapacity(2);
    catalogue.addModel(QStringLiteral("M"))->setModelWeight(1);
    catalogue.addModel(QStringLiteral("M"))->setModelWeight(2);
    catalogue.save(directory.path());
    catalogue.load(directory.path());
    QCOMPARE(catalogue.batterySummary(),
             (QStringList{QStringLiteral("Pack A 1 0"), QStringLiteral("Pack A 2 0")}));
    QCOMPARE(catalogue.modelSummary(), (QStringList{QStringLiteral("M 1"), QStringLiteral("M 2")}));
}

void DataProcessorTest::loadingACardShowsItsFigures()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    BatteryWidget *battery = catalogue.addBattery(packA);
    battery->setBatteryCapacity(2200);
    battery->setBatteryRating(30);
    battery->setBatteryChargeRate(15);
    battery->setBatteryCycles(7);
    battery->setBatteryCharged(true, false);
    battery->setLastUpdated(QDateTime(QDate(2026, 11, 15), QTime(12, 4, 22)));
    QDateTime when(QDate(2026, 7, 1), QTime(12, 0));
    battery->addFullEntry(when, 900, 100, false);
    battery->addFullEntry(when, 1760, 1205, false);
    catalogue.save(directory.path());
    catalogue.load(directory.path());

    const auto text = [&catalogue](const char *name) {
        return catalogue.batteries.first()
            ->findChild<QWidget *>(QLatin1String(name))
            ->property("text")
            .toString();
    };
    QCOMPARE(text("lbl_name"), packA);
    QCOMPARE(text("lbl_capacity"), QStringLiteral("2200mAh"));
    QCOMPARE(text("lbl_rate"), QStringLiteral("30C/1.5C"));
    QCOMPARE(text("lbl_cycles"), QStringLiteral("7"));
    QCOMPARE(text("lbl_dateTime"), QStringLiteral("Sun Nov 15 12:04:22 2026"));
    QCOMPARE(text("lbl_discharged"), QStringLiteral("1760mAh"));
    QCOMPARE(text("lbl_maxCurrent"), QStringLiteral("12.5A"));
    QCOMPARE(text("pushButton"), QStringLiteral("Charged"));
}

void DataProcessorTest::loadingACardChangesNothingOfIt()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    BatteryWidget *battery = catalogue.addBattery(packA);
    battery->setBatteryCycles(4);
    battery->setBatteryCharged(true, false);
    catalogue.save(directory.path());
    for (int i = 0; i < 3; ++i) {
        catalogue.load(directory.path());
        QCOMPARE(catalogue.batterySummary(), QStringList{QStringLiteral("Pack A 0 4 charged")});
        QVERIFY(!catalogue.batteries.first()->getBatteryLastUpdated().isValid());
        catalogue.save(directory.path());
    }
}

void DataProcessorTest::whatCannotBeOpenedLoadsNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no file") << QString();
    QTest::newRow("no directory") << QStringLiteral("missing");
    QTest::newRow("a directory in the file's place") << QStringLiteral("occupied");
    QTest::newRow("a file in the directory's place") << QStringLiteral("file");
}

void DataProcessorTest::whatCannotBeOpenedLoadsNothing()
{
    QFETCH(QString, path);
    QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkpath(QStringLiteral("occupied/voltbok.xml")));
    QVERIFY(writeFile(directory.filePath(QStringLiteral("file")), "x"));
    RecordLists catalogue;
    catalogue.load(directory.filePath(path));
    QVERIFY(catalogue.locations.isEmpty());
    QVERIFY(catalogue.batteries.isEmpty());
    QVERIFY(catalogue.models.isEmpty());
}

void DataProcessorTest::whatCannotBeOpenedIsNotWritten()
{
    QTemporaryDir directory;
    const QString occupied = directory.filePath(QStringLiteral("voltbok.xml"));
    QVERIFY(QDir().mkpath(occupied));
    const QString file = directory.filePath(QStringLiteral("file"));
    QVERIFY(writeFile(file, "x"));
    RecordLists catalogue;
    catalogue.save(directory.path());
    catalogue.save(file);
    catalogue.save(file + QStringLiteral("/below"));
    QVERIFY(QFileInfo(occupied).isDir());
    QVERIFY(QDir(occupied).isEmpty());
    QCOMPARE(contents(file), QByteArray("x"));
}

void DataProcessorTest::aSaveAfterAFailedOneWorks()
{
    QTemporaryDir directory;
    const QString occupied = directory.filePath(QStringLiteral("voltbok.xml"));
    QVERIFY(QDir().mkpath(occupied));
    RecordLists catalogue;
    catalogue.addBattery(packA);
    DataProcessor processor;
    processor.setBasePath(directory.path());
    processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
    QVERIFY(QFileInfo(occupied).isDir());

    QVERIFY(QDir().rmdir(occupied));
    processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
    RecordLists read;
    read.load(directory.path());
    QCOMPARE(read.batterySummary(), catalogue.batterySummary());
}

void DataProcessorTest::aFullDiskCostsOnlyThatSave()
{
    QTemporaryDir directory;
    const QString path = dataFile(directory.path());
    // Where there is such a device, every write to the file fails; elsewhere the save works twice.
    if (QFileInfo::exists(QStringLiteral("/dev/full")))
        QVERIFY(QFile::link(QStringLiteral("/dev/full"), path));
    RecordLists catalogue;
    catalogue.locations = {QString(100000, QLatin1Char('x'))};
    DataProcessor processor;
    processor.setBasePath(directory.path());
    processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
    QVERIFY(QFile::remove(path));

    processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
    QList<QString> read;
    QVERIFY(processor.getLocationsFromData(read));
    QCOMPARE(read, catalogue.locations);
}

void DataProcessorTest::aVanishedDirectoryIsCreatedAgain()
{
    QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("data"));
    RecordLists catalogue;
    catalogue.addBattery(packA);
    DataProcessor processor;
    processor.setBasePath(path);
    processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
    const QByteArray bytes = contents(dataFile(path));
    QVERIFY(QDir(path).removeRecursively());
    processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
    QCOMPARE(contents(dataFile(path)), bytes);
}

void DataProcessorTest::aTextThatXmlCannotHoldCostsOnlyItself()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.locations = {QString(QChar(0xD800)), QString(QChar(0)), QStringLiteral("Field")};
    catalogue.addBattery(packA);
    DataProcessor processor;
    processor.setBasePath(directory.path());
    for (int i = 0; i < 2; ++i) {
        processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
        RecordLists read;
        read.load(directory.path());
        QCOMPARE(read.locations, (QList<QString>{QString(), QString(), QStringLiteral("Field")}));
        QCOMPARE(read.batterySummary(), QStringList{QStringLiteral("Pack A 0 0")});
    }
}

void DataProcessorTest::aMalformedFileDoesNotTroubleTheNextLoad()
{
    QTemporaryDir directory;
    const QString path = dataFile(directory.path());
    DataProcessor processor;
    processor.setBasePath(directory.path());
    QList<QString> locations;
    QVERIFY(writeFile(path, "<Voltbok><Locations><Location Name=\"A\"/><"));
    QVERIFY(processor.getLocationsFromData(locations));
    QVERIFY(writeFile(path, document("<Locations><Location Name=\"B\"/></Locations>")));
    QVERIFY(processor.getLocationsFromData(locations));
    QCOMPARE(locations, (QList<QString>{QStringLiteral("A"), QStringLiteral("B")}));
}

void DataProcessorTest::theLoaderLetsGoOfTheFile()
{
    QTemporaryDir directory;
    QVERIFY(writeFile(dataFile(directory.path()), document("<Battery/>")));
    DataProcessor processor;
    processor.setBasePath(directory.path());
    QList<QString> locations;
    processor.getLocationsFromData(locations);
    QCOMPARE(processor.reader.device(), nullptr);
    QVERIFY(!processor.writer);
    QList<BatteryWidget *> batteries;
    QList<ModelWidget *> models;
    processor.addData(batteries, models, locations);
    QVERIFY(!processor.writer);
}

void DataProcessorTest::everyRealTimeOfAClockChangeIsKept_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDate>("day");
    QTest::newRow("spring in Berlin") << QByteArray("Europe/Berlin") << QDate(2026, 3, 29);
    QTest::newRow("autumn in Berlin") << QByteArray("Europe/Berlin") << QDate(2026, 10, 25);
    QTest::newRow("spring on Lord Howe Island") << QByteArray("Australia/Lord_Howe") << QDate(2026, 10, 4);
    QTest::newRow("midnight in Santiago") << QByteArray("America/Santiago") << QDate(2026, 9, 6);
    QTest::newRow("the date line in Samoa") << QByteArray("Pacific/Apia") << QDate(2011, 12, 29);
}

void DataProcessorTest::everyRealTimeOfAClockChangeIsKept()
{
    QFETCH(QByteArray, zone);
    QFETCH(QDate, day);
    const TimeZone timeZone(zone);
    QTemporaryDir directory;
    RecordLists catalogue;
    BatteryWidget *battery = catalogue.addBattery(packA);
    ModelWidget *model = catalogue.addModel(QStringLiteral("M"));
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

void DataProcessorTest::aWholeSeasonSurvives()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    for (int i = 0; i < 20; ++i) {
        BatteryWidget *battery = catalogue.addBattery(QStringLiteral("Pack %1").arg(i));
        ModelWidget *model = catalogue.addModel(QStringLiteral("Model %1").arg(i));
        model->addBattery(battery->getBatteryName());
        for (int entry = 0; entry < 100; ++entry) {
            QDateTime when(QDate(2026, 1, 1).addDays(entry), QTime(i, 0));
            battery->addFullEntry(when, static_cast<unsigned int>(entry * i), 4550, false);
            LogData flight{when, QTime(0, i, 30), QStringLiteral("Field"), i - 10,
                           QStringLiteral("flight %1").arg(entry)};
            model->addLogData(flight);
        }
    }
    catalogue.save(directory.path());
    const QByteArray first = contents(dataFile(directory.path()));
    RecordLists read;
    read.load(directory.path());
    QCOMPARE(read.batterySummary(), catalogue.batterySummary());
    QCOMPARE(read.modelSummary(), catalogue.modelSummary());
    read.save(directory.path());
    QCOMPARE(contents(dataFile(directory.path())), first);
}

QTEST_MAIN(DataProcessorTest)
#include "tst_dataprocessor.moc"
