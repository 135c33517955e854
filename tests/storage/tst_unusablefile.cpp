// SPDX-License-Identifier: GPL-3.0-or-later
// What the data processor does with a file that it cannot read or write.
#include "tests/support/recordlists.h"
#include "tests/support/warnings.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class UnusableFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatCannotBeOpenedLoadsNothing_data();
    void whatCannotBeOpenedLoadsNothing();
    void whatCannotBeOpenedIsNotWritten();
    void aSaveAfterAFailedOneWorks();
    void aFullDiskCostsOnlyThatSave();
    void aVanishedDirectoryIsCreatedAgain();
    void aTextThatXmlCannotHoldCostsOnlyItself();
    void aMalformedFileDoesNotTroubleTheNextLoad();
};

namespace {

const QString packA = u"Pack A"_s;

} // namespace

void UnusableFileTest::init()
{
    Test::failOnWarnings();
}

void UnusableFileTest::whatCannotBeOpenedLoadsNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no file") << QString();
    QTest::newRow("no directory") << u"missing"_s;
    QTest::newRow("a directory in the file's place") << u"occupied"_s;
    QTest::newRow("a file in the directory's place") << u"file"_s;
}

void UnusableFileTest::whatCannotBeOpenedLoadsNothing()
{
    QFETCH(QString, path);
    QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkpath(u"occupied/voltbok.xml"_s));
    QVERIFY(Test::write(directory.filePath(u"file"_s), "x"));
    RecordLists catalogue;
    catalogue.load(directory.filePath(path));
    QVERIFY(catalogue.locations.isEmpty());
    QVERIFY(catalogue.batteries.isEmpty());
    QVERIFY(catalogue.models.isEmpty());
}

void UnusableFileTest::whatCannotBeOpenedIsNotWritten()
{
    QTemporaryDir directory;
    const QString occupied = directory.filePath(u"voltbok.xml"_s);
    QVERIFY(QDir().mkpath(occupied));
    const QString file = directory.filePath(u"file"_s);
    QVERIFY(Test::write(file, "x"));
    RecordLists catalogue;
    catalogue.save(directory.path());
    catalogue.save(file);
    catalogue.save(file + u"/below"_s);
    QVERIFY(QFileInfo(occupied).isDir());
    QVERIFY(QDir(occupied).isEmpty());
    QCOMPARE(Test::contents(file), QByteArray("x"));
}

void UnusableFileTest::aSaveAfterAFailedOneWorks()
{
    QTemporaryDir directory;
    const QString occupied = directory.filePath(u"voltbok.xml"_s);
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

void UnusableFileTest::aFullDiskCostsOnlyThatSave()
{
    QTemporaryDir directory;
    const QString path = Test::dataFile(directory.path());
    // Where there is such a device, every write to the file fails; elsewhere the save works twice.
    if (QFileInfo::exists(u"/dev/full"_s))
        QVERIFY(QFile::link(u"/dev/full"_s, path));
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

void UnusableFileTest::aVanishedDirectoryIsCreatedAgain()
{
    QTemporaryDir directory;
    const QString path = directory.filePath(u"data"_s);
    RecordLists catalogue;
    catalogue.addBattery(packA);
    DataProcessor processor;
    processor.setBasePath(path);
    processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
    const QByteArray bytes = Test::contents(Test::dataFile(path));
    QVERIFY(QDir(path).removeRecursively());
    processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
    QCOMPARE(Test::contents(Test::dataFile(path)), bytes);
}

void UnusableFileTest::aTextThatXmlCannotHoldCostsOnlyItself()
{
    QTemporaryDir directory;
    RecordLists catalogue;
    catalogue.locations = {QString(QChar(0xD800)), QString(QChar(0)), u"Field"_s};
    catalogue.addBattery(packA);
    DataProcessor processor;
    processor.setBasePath(directory.path());
    for (int i = 0; i < 2; ++i) {
        processor.addData(catalogue.batteries, catalogue.models, catalogue.locations);
        RecordLists read;
        read.load(directory.path());
        QCOMPARE(read.locations, (QList<QString>{QString(), QString(), u"Field"_s}));
        QCOMPARE(read.batterySummary(), QStringList{u"Pack A 0 0"_s});
    }
}

void UnusableFileTest::aMalformedFileDoesNotTroubleTheNextLoad()
{
    QTemporaryDir directory;
    const QString path = Test::dataFile(directory.path());
    DataProcessor processor;
    processor.setBasePath(directory.path());
    QList<QString> locations;
    QVERIFY(Test::write(path, "<Voltbok><Locations><Location Name=\"A\"/><"));
    QVERIFY(processor.getLocationsFromData(locations));
    QVERIFY(Test::write(path, document("<Locations><Location Name=\"B\"/></Locations>")));
    QVERIFY(processor.getLocationsFromData(locations));
    QCOMPARE(locations, (QList<QString>{u"A"_s, u"B"_s}));
}

QTEST_MAIN(UnusableFileTest)
#include "tst_unusablefile.moc"
