// SPDX-License-Identifier: GPL-3.0-or-later
// When the data processor reads and writes, and what it leaves behind.
#include "tests/support/recordlists.h"
#include "tests/support/warnings.h"

#include <QFileInfo>
#include <QMetaObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

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
    void theLoaderLetsGoOfTheFile();
    void aWholeSeasonSurvives();
};

namespace {

const QString packA = u"Pack A"_s;

} // namespace

void DataProcessorTest::init()
{
    Test::failOnWarnings();
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
    processor.setBasePath(directory.filePath(u"new"_s));
    QCOMPARE(processor.basePath, directory.filePath(u"new"_s));
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
    catalogue.save(u""_s);
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
    const QString path = directory.filePath(u"a/b c/ö"_s);
    RecordLists catalogue;
    catalogue.locations = {u"Field"_s};
    catalogue.save(path);
    QVERIFY(QFileInfo::exists(Test::dataFile(path)));
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
             QStringList{u"voltbok.xml"_s});
}

void DataProcessorTest::aShorterCatalogueLeavesNothingOfALongerOne()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.save(directory.path());
    const QByteArray empty = Test::contents(Test::dataFile(directory.path()));
    for (int i = 0; i < 50; ++i)
        catalogue.locations.append(QString::number(i));
    catalogue.save(directory.path());
    QVERIFY(Test::contents(Test::dataFile(directory.path())).size() > empty.size());
    catalogue.clear();
    catalogue.save(directory.path());
    QCOMPARE(Test::contents(Test::dataFile(directory.path())), empty);
}

void DataProcessorTest::aSaveChangesNoRecordAndNoList()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.locations = {u"Field"_s, u"Field"_s};
    BatteryWidget *battery = catalogue.addBattery(packA);
    battery->setBatteryCharged(true, false);
    QDateTime when(QDate(2026, 7, 1), QTime(12, 0, 0, 500));
    battery->addFullEntry(when, 1, 2, false);
    catalogue.addModel(u"M"_s)->addBattery(packA);
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
    QCOMPARE(Test::contents(Test::dataFile(first.path())), Test::contents(Test::dataFile(second.path())));
}

void DataProcessorTest::loadersAppendAndLookAtNothing()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.locations = {u"Field"_s};
    catalogue.addBattery(packA);
    catalogue.addModel(u"M"_s);
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
        QVERIFY(Test::write(Test::dataFile(directory.path()), bytes));
    DataProcessor processor;
    processor.setBasePath(directory.path());
    QList<QString> locations;
    if (filled)
        locations.append(u"before"_s);
    QTEST(processor.getLocationsFromData(locations), "expected");
}

void DataProcessorTest::newRecordsHaveNoParent()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.addBattery(packA);
    catalogue.addModel(u"M"_s);
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
    catalogue.addModel(u"M"_s)->setModelWeight(1);
    catalogue.addModel(u"M"_s)->setModelWeight(2);
    catalogue.save(directory.path());
    catalogue.load(directory.path());
    QCOMPARE(catalogue.batterySummary(), (QStringList{u"Pack A 1 0"_s, u"Pack A 2 0"_s}));
    QCOMPARE(catalogue.modelSummary(), (QStringList{u"M 1"_s, u"M 2"_s}));
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
    QCOMPARE(text("lbl_capacity"), u"2200mAh"_s);
    QCOMPARE(text("lbl_rate"), u"30C/1.5C"_s);
    QCOMPARE(text("lbl_cycles"), u"7"_s);
    QCOMPARE(text("lbl_dateTime"), u"Sun Nov 15 12:04:22 2026"_s);
    QCOMPARE(text("lbl_discharged"), u"1760mAh"_s);
    QCOMPARE(text("lbl_maxCurrent"), u"12.5A"_s);
    QCOMPARE(text("pushButton"), u"Charged"_s);
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
        QCOMPARE(catalogue.batterySummary(), QStringList{u"Pack A 0 4 charged"_s});
        QVERIFY(!catalogue.batteries.first()->getBatteryLastUpdated().isValid());
        catalogue.save(directory.path());
    }
}

void DataProcessorTest::theLoaderLetsGoOfTheFile()
{
    QTemporaryDir directory;
    QVERIFY(Test::write(Test::dataFile(directory.path()), document("<Battery/>")));
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

void DataProcessorTest::aWholeSeasonSurvives()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    for (int i = 0; i < 20; ++i) {
        BatteryWidget *battery = catalogue.addBattery(u"Pack %1"_s.arg(i));
        ModelWidget *model = catalogue.addModel(u"Model %1"_s.arg(i));
        model->addBattery(battery->getBatteryName());
        for (int entry = 0; entry < 100; ++entry) {
            QDateTime when(QDate(2026, 1, 1).addDays(entry), QTime(i, 0));
            battery->addFullEntry(when, static_cast<unsigned int>(entry * i), 4550, false);
            LogData flight{when, QTime(0, i, 30), u"Field"_s, i - 10, u"flight %1"_s.arg(entry)};
            model->addLogData(flight);
        }
    }
    catalogue.save(directory.path());
    const QByteArray first = Test::contents(Test::dataFile(directory.path()));
    RecordLists read;
    read.load(directory.path());
    QCOMPARE(read.batterySummary(), catalogue.batterySummary());
    QCOMPARE(read.modelSummary(), catalogue.modelSummary());
    read.save(directory.path());
    QCOMPARE(Test::contents(Test::dataFile(directory.path())), first);
}

QTEST_MAIN(DataProcessorTest)
#include "tst_dataprocessor.moc"
