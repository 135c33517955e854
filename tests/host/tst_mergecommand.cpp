// SPDX-License-Identifier: GPL-3.0-or-later
// The command that merges another version of the logbook, as a process.
#include "host/data/cataloguefile.h"
#include "host/data/moments.h"
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/safety/measuredstore.h"
#include "tests/host/support/plainlogbook.h"
#include "tests/host/support/program.h"
#include "tests/host/support/snapshot.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <memory>

using namespace Host;
using namespace PlainLogbook;

namespace {

/** A home with two versions of one logbook: ours flew A at 15:00, theirs at 16:00 and is of 2000 mAh. */
class Home
{
public:
    Home()
    {
        QDir(m_program.home()).mkpath(u"log"_s);
        ours = theirs = logbook();
        ours.batteries[0].discharges.append({at(15, 0), 1000, 2000});
        ours.batteries[0].cycles += 1;
        theirs.batteries[0].discharges.append({at(16, 0), 1100, 2100});
        theirs.batteries[0].cycles += 1;
        theirs.batteries[0].capacity = 2000;
        put(u"base.xml"_s, logbook());
        putAll();
    }

    void putAll() const
    {
        put(u"log/voltbok.xml"_s, ours);
        put(u"theirs.xml"_s, theirs);
    }
    void put(const QString &name, const Catalogue &catalogue) const
    {
        QVERIFY(Test::write(m_program.home(name), CatalogueFile::save(catalogue).document));
    }
    /** Among the copies. */
    void putCopy(const Catalogue &catalogue) const
    {
        QDir(folder().path()).mkdir(u"backups"_s);
        put(u"log/backups/voltbok-00000001-20260503-120000-000Z.xml"_s, catalogue);
    }

    Program::Result merge(const QStringList &arguments) const
    {
        return m_program.run(QStringList{u"merge"_s, u"--data"_s, folder().path()} + arguments);
    }
    Catalogue catalogue() const { return CatalogueFile::load(Test::contents(folder().dataFile())).catalogue; }
    StorageFolder folder() const { return StorageFolder(m_program.home(u"log"_s)); }
    const Program &program() const { return m_program; }

    Catalogue ours;
    Catalogue theirs;

private:
    Program m_program;
};

QJsonObject json(const Program::Result &result)
{
    return QJsonDocument::fromJson(result.output.toUtf8()).object();
}

QJsonObject counts(int batteries, int models, int locations, int discharges, int flights)
{
    return {{u"batteries"_s, batteries},
            {u"models"_s, models},
            {u"locations"_s, locations},
            {u"discharges"_s, discharges},
            {u"flights"_s, flights}};
}

} // namespace

class MergeCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<Home>(); }
    void itMergesByTheVersionThatIsNamed();
    void itFindsTheVersionAmongTheCopies();
    void withoutOneItKeepsOursAndSaysSo();
    void mergingTwiceTouchesNothing_data();
    void mergingTwiceTouchesNothing();
    void whatTheOtherDidLaterIsMergedToo();
    void aDryRunTellsEverythingAndWritesNothing();
    void copiesAreMadeBeforeAndAfter();
    void theLogbookItselfIsNothingToMerge();
    void aNewFolderTakesEverything();
    void filesThatCannotBeReadAreRefused_data();
    void filesThatCannotBeReadAreRefused();
    void theHolderOfTheLockIsNamed();
    void aFailureLeavesEverythingAsItWas();
    void measuredValuesComeAlong();
    void theSampleIsMadeFirst();
    void whatIsWrongWithoutLookingIsTwo();

private:
    std::unique_ptr<Home> m_home;
};

void MergeCommandTest::itMergesByTheVersionThatIsNamed()
{
    const Program::Result result =
        m_home->merge({u"../theirs.xml"_s, u"--base"_s, u"base.xml"_s, u"--json"_s});
    QCOMPARE(result.status, 1); // the names are those of the working folder
    const Program::Result merged = m_home->merge({u"theirs.xml"_s, u"--base"_s, u"base.xml"_s, u"--json"_s});
    QCOMPARE(merged.errors, QString());
    QCOMPARE(merged.status, 0);
    QCOMPARE(json(merged), (QJsonObject{{u"changed"_s, 2},
                                        {u"added"_s, counts(0, 0, 0, 1, 0)},
                                        {u"removed"_s, counts(0, 0, 0, 0, 0)},
                                        {u"conflicts"_s, QJsonArray()}}));
    const Battery battery = m_home->catalogue().batteries.at(0);
    QCOMPARE(battery.discharges.size(), 4);
    QCOMPARE(battery.cycles, 12U);
    QCOMPARE(battery.capacity, 2000U);
}

void MergeCommandTest::itFindsTheVersionAmongTheCopies()
{
    m_home->putCopy(logbook());
    m_home->theirs.batteries.removeAt(1);
    m_home->putAll();
    const Program::Result result = m_home->merge({u"theirs.xml"_s, u"--json"_s});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(json(result).value(u"removed"_s).toObject(), counts(1, 0, 0, 2, 0));
    QCOMPARE(json(result).value(u"changed"_s).toInt(), 2);
    QCOMPARE(m_home->catalogue().batteries.size(), 2);
    QCOMPARE(m_home->catalogue().batteries.at(0).capacity, 2000U);
}

void MergeCommandTest::withoutOneItKeepsOursAndSaysSo()
{
    m_home->ours.batteries[0].chargeRate = 15;
    m_home->ours.models[0].lastUpdate = at(15, 0);
    m_home->putAll();
    const Program::Result result = m_home->merge({u"theirs.xml"_s, u"--json"_s});
    QCOMPARE(result.status, 0);
    const QJsonArray conflicts{QJsonObject{{u"record"_s, u"battery"_s},
                                           {u"name"_s, u"A"_s},
                                           {u"field"_s, u"capacity_mAh"_s},
                                           {u"ours"_s, 2200},
                                           {u"theirs"_s, 2000}},
                               QJsonObject{{u"record"_s, u"battery"_s},
                                           {u"name"_s, u"A"_s},
                                           {u"field"_s, u"charge_rating_C"_s},
                                           {u"ours"_s, 1.5},
                                           {u"theirs"_s, 0}},
                               QJsonObject{{u"record"_s, u"model"_s},
                                           {u"name"_s, u"Skylark"_s},
                                           {u"field"_s, u"last_update"_s},
                                           {u"ours"_s, u"2026-05-03T15:00:00"_s},
                                           {u"theirs"_s, QJsonValue::Null}}};
    QCOMPARE(json(result).value(u"conflicts"_s).toArray(), conflicts);
    const QStringList lines = result.errors.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), u"voltbok: Both have changed “capacity_mAh” of the battery “A”: 2200 stays, and "
                          "2000 is not taken."_s);
    QCOMPARE(m_home->catalogue().batteries.at(0).capacity, 2200U);
    QCOMPARE(m_home->catalogue().batteries.at(0).discharges.size(), 4);
}

void MergeCommandTest::mergingTwiceTouchesNothing_data()
{
    QTest::addColumn<QStringList>("base");
    QTest::addColumn<bool>("hasCopy");
    QTest::newRow("a version that is named") << QStringList{u"--base"_s, u"base.xml"_s} << false;
    QTest::newRow("a version among the copies") << QStringList() << true;
    QTest::newRow("no version") << QStringList() << false;
}

void MergeCommandTest::mergingTwiceTouchesNothing()
{
    QFETCH(QStringList, base);
    QFETCH(bool, hasCopy);
    if (hasCopy)
        m_home->putCopy(logbook());
    m_home->ours.models[0].notes = u"ours"_s;
    m_home->theirs.models[0].notes = u"theirs"_s;
    m_home->ours.locations.removeFirst();
    m_home->putAll();
    const Program::Result first = m_home->merge(QStringList{u"theirs.xml"_s} + base);
    QCOMPARE(first.status, 0);
    QVERIFY(m_home->catalogue() != m_home->ours);
    const auto before = Test::snapshot(m_home->folder().path());
    const QDateTime time = QFileInfo(m_home->folder().dataFile()).lastModified();
    QTest::qWait(20);
    const Program::Result again = m_home->merge(QStringList{u"theirs.xml"_s} + base);
    QCOMPARE(again.status, 0);
    QCOMPARE(again.output, u"There is nothing to merge.\n"_s);
    QCOMPARE(Test::snapshot(m_home->folder().path()), before);
    QCOMPARE(QFileInfo(m_home->folder().dataFile()).lastModified(), time);
}

void MergeCommandTest::whatTheOtherDidLaterIsMergedToo()
{
    m_home->putCopy(logbook());
    QCOMPARE(m_home->merge({u"theirs.xml"_s}).status, 0);
    m_home->theirs.batteries[0].discharges.append({at(17, 0), 1200, 2200});
    m_home->theirs.batteries[0].cycles += 1;
    m_home->theirs.locations.removeFirst();
    m_home->put(u"theirs.xml"_s, m_home->theirs);
    QCOMPARE(m_home->merge({u"theirs.xml"_s}).errors, QString());
    const Battery battery = m_home->catalogue().batteries.at(0);
    QCOMPARE(battery.discharges.size(), 5);
    QCOMPARE(battery.cycles, 13U);
    QCOMPARE(m_home->catalogue().locations, QStringList(u"Hill"_s));
}

void MergeCommandTest::aDryRunTellsEverythingAndWritesNothing()
{
    FolderLock lock; // of somebody else
    QCOMPARE(lock.take(m_home->folder()).problem, QString());
    const auto before = Test::snapshot(m_home->program().home());
    const QStringList order{u"theirs.xml"_s, u"--base"_s, u"base.xml"_s, u"--json"_s};
    const Program::Result dry = m_home->merge(order + QStringList(u"--dry-run"_s));
    QCOMPARE(dry.errors, QString());
    QCOMPARE(dry.status, 0);
    QCOMPARE(Test::snapshot(m_home->program().home()), before);
    lock.release();
    QCOMPARE(m_home->merge(order).output, dry.output);
}

void MergeCommandTest::copiesAreMadeBeforeAndAfter()
{
    const QByteArray before = Test::contents(m_home->folder().dataFile());
    QCOMPARE(m_home->merge({u"theirs.xml"_s, u"--base"_s, u"base.xml"_s}).output,
             u"Added: batteries 0, models 0, locations 0, discharges 1, flights 0\n"
             "Removed: batteries 0, models 0, locations 0, discharges 0, flights 0\n"
             "Values changed: 2\n"_s);
    const QList<Copy> copies = Backups::list(m_home->folder());
    QCOMPARE(copies.size(), 2);
    const QDir folder = m_home->folder().backups();
    QCOMPARE(Test::contents(folder.filePath(copies.at(1).name)), before);
    QCOMPARE(Test::contents(folder.filePath(copies.at(0).name)), Test::contents(m_home->folder().dataFile()));
    QCOMPARE(m_home->folder().mergedVersions().size(), 1);
    QVERIFY(QFileInfo::exists(m_home->program().home(u"theirs.xml"_s)));
}

void MergeCommandTest::theLogbookItselfIsNothingToMerge()
{
    const auto before = Test::snapshot(m_home->folder().path());
    const Program::Result result = m_home->merge({m_home->folder().dataFile(), u"--json"_s});
    QCOMPARE(result.status, 0);
    QCOMPARE(json(result), (QJsonObject{{u"changed"_s, 0},
                                        {u"added"_s, counts(0, 0, 0, 0, 0)},
                                        {u"removed"_s, counts(0, 0, 0, 0, 0)},
                                        {u"conflicts"_s, QJsonArray()}}));
    QCOMPARE(Test::snapshot(m_home->folder().path()), before);
}

void MergeCommandTest::aNewFolderTakesEverything()
{
    QVERIFY(QFile::remove(m_home->folder().dataFile()));
    const Program::Result result = m_home->merge({u"theirs.xml"_s, u"--json"_s});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(json(result).value(u"added"_s).toObject(), counts(3, 2, 2, 5, 5));
    QVERIFY(m_home->catalogue() == m_home->theirs);
}

void MergeCommandTest::filesThatCannotBeReadAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("missing") << QStringList(u"none.xml"_s);
    QTest::newRow("a folder") << QStringList(u"log"_s);
    QTest::newRow("half") << QStringList(u"half.xml"_s);
    QTest::newRow("no logbook") << QStringList(u"text.xml"_s);
    QTest::newRow("the version that both come from")
        << QStringList{u"theirs.xml"_s, u"--base"_s, u"half.xml"_s};
    QTest::newRow("that one is missing") << QStringList{u"theirs.xml"_s, u"--base"_s, u"none.xml"_s};
}

void MergeCommandTest::filesThatCannotBeReadAreRefused()
{
    QFETCH(QStringList, arguments);
    const QByteArray whole = Test::contents(m_home->program().home(u"theirs.xml"_s));
    QVERIFY(Test::write(m_home->program().home(u"half.xml"_s), whole.left(whole.size() / 2)));
    QVERIFY(Test::write(m_home->program().home(u"text.xml"_s), "<html/>"));
    const auto before = Test::snapshot(m_home->folder().path());
    const Program::Result result = m_home->merge(arguments + QStringList(u"--json"_s));
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors.count(u'\n'), 1);
    QVERIFY2(result.errors.contains(arguments.last()), qPrintable(result.errors));
    QCOMPARE(Test::snapshot(m_home->folder().path()), before);
}

void MergeCommandTest::theHolderOfTheLockIsNamed()
{
    FolderLock lock;
    QCOMPARE(lock.take(m_home->folder()).problem, QString());
    const Program::Result result = m_home->merge({u"theirs.xml"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains(QString::number(QCoreApplication::applicationPid())),
             qPrintable(result.errors));
    QVERIFY(m_home->catalogue() == m_home->ours);
}

void MergeCommandTest::aFailureLeavesEverythingAsItWas()
{
    QVERIFY(Test::write(m_home->folder().path() + u"/backups"_s, "in the way"));
    const auto before = Test::snapshot(m_home->folder().path());
    const Program::Result result = m_home->merge({u"theirs.xml"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.startsWith(u"voltbok: Nothing was merged: “"_s), qPrintable(result.errors));
    QCOMPARE(result.errors.count(u'\n'), 1);
    QCOMPARE(Test::snapshot(m_home->folder().path()), before);
    QCOMPARE(m_home->merge({u"theirs.xml"_s, u"--data"_s, m_home->program().home(u"none"_s)}).status, 1);
    QVERIFY(!QFileInfo::exists(m_home->program().home(u"none"_s)));
}

void MergeCommandTest::measuredValuesComeAlong()
{
    Measured measured;
    MeasuredDischarge discharge;
    discharge.battery = u"A"_s;
    discharge.moment = momentOf(at(16, 0));
    discharge.log = u"theirs.csv"_s;
    measured.discharges.append(discharge);
    QDir(m_home->program().home()).mkdir(u"other"_s);
    const StorageFolder other(m_home->program().home(u"other"_s));
    m_home->put(u"other/voltbok.xml"_s, m_home->theirs);
    QVERIFY(Test::write(other.measuredFile(), MeasuredFile::save(measured)));
    QCOMPARE(m_home->merge({other.dataFile(), u"--base"_s, u"base.xml"_s}).status, 0);
    QVERIFY(MeasuredStore::load(m_home->folder()).measured.find(u"A"_s, momentOf(at(16, 0))));
    QVERIFY(QFileInfo::exists(other.measuredFile()));
}

void MergeCommandTest::theSampleIsMadeFirst()
{
    const Program::Result result =
        m_home->program().run({u"merge"_s, u"--demo"_s, u"theirs.xml"_s, u"--json"_s});
    QCOMPARE(result.status, 0);
    QCOMPARE(json(result).value(u"added"_s).toObject().value(u"batteries"_s).toInt(), 3);
}

void MergeCommandTest::whatIsWrongWithoutLookingIsTwo()
{
    QCOMPARE(m_home->merge({}).status, 2);
    QCOMPARE(m_home->merge({u"theirs.xml"_s, u"base.xml"_s}).status, 2);
    QCOMPARE(m_home->merge({u"theirs.xml"_s, u"--base"_s}).status, 2);
    QCOMPARE(m_home->merge({QString()}).status, 2);
    QCOMPARE(m_home->merge({u"theirs.xml"_s, u"--force"_s}).status, 2);
    QCOMPARE(
        m_home->merge({u"theirs.xml"_s, u"--base"_s, u"base.xml"_s, u"--base"_s, u"theirs.xml"_s}).status, 2);
    QVERIFY(m_home->catalogue() == m_home->ours);
}

QTEST_MAIN(MergeCommandTest)
#include "tst_mergecommand.moc"
