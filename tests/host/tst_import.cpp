// SPDX-License-Identifier: GPL-3.0-or-later
// The command that imports radio logs, as a process, with logs as a radio writes them.
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/safety/measuredstore.h"
#include "tests/host/support/importhome.h"
#include "tests/host/support/snapshot.h"

#include <QTest>

#include <memory>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

class ImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_home = std::make_unique<ImportHome>(); }
    void aDryRunTellsEverythingAndWritesNothing();
    void anImportFillsTheFlightAndKeepsCopies();
    void aSecondImportDoesNothingUnderAnyName();
    void aFileThatHasGrownGoesOn();
    void aDischargeGoesOnInALaterImport();
    void theOrderOfTheFilesDoesNotMatter();
    void whatIsNewNeedsABattery();
    void enteredValuesAreReplacedOnRequest();
    void theModelCanBeNamed();
    void columnsThatWereChosenInTheWindowAreRead();
    void namesThatAreNotThereAreRefused_data();
    void namesThatAreNotThereAreRefused();
    void goodFilesAreDoneBesideBadOnes_data();
    void goodFilesAreDoneBesideBadOnes();
    void aFolderStandsForTheLogsBelowIt();
    void theSampleIsMadeFirst();
    void aTableIsForTheEye();

private:
    std::unique_ptr<ImportHome> m_home;
    const QString m_log = ImportHome::log();
};

void ImportTest::aDryRunTellsEverythingAndWritesNothing()
{
    FolderLock lock; // of somebody else
    QCOMPARE(lock.take(m_home->folder()).problem, QString());
    const auto before = Test::snapshot(m_home->program().home());
    const Program::Result result = m_home->import({u"--dry-run"_s, u"--json"_s, m_log});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(Test::snapshot(m_home->program().home()), before);
    const QJsonObject log = QJsonDocument::fromJson(result.output.toUtf8())[u"files"_s][0].toObject();
    QCOMPARE(log.value(u"file"_s).toString(), m_log);
    QCOMPARE(log.value(u"status"_s).toString(), u"read"_s);
    QVERIFY(log.value(u"reason"_s).isNull());
    QCOMPARE(log.value(u"rows"_s).toInt(), 301);
    QCOMPARE(log.value(u"skipped_rows"_s).toInt(), 0);
    const QJsonObject session = log[u"sessions"_s][0].toObject();
    const QStringList keys{u"action"_s,
                           u"battery"_s,
                           u"capacity_mAh"_s,
                           u"cells"_s,
                           u"continues"_s,
                           u"counter_mAh"_s,
                           u"discharged_mAh"_s,
                           u"doubtful"_s,
                           u"duration_s"_s,
                           u"end"_s,
                           u"flight_start"_s,
                           u"integral_mAh"_s,
                           u"max_current_A"_s,
                           u"max_voltage_V"_s,
                           u"min_voltage_V"_s,
                           u"model"_s,
                           u"rejected_currents"_s,
                           u"rejected_voltages"_s,
                           u"resistance_mOhm"_s,
                           u"rest_after_V"_s,
                           u"rest_before_V"_s,
                           u"rows"_s,
                           u"start"_s,
                           u"time"_s};
    QCOMPARE(session.keys(), keys);
    QCOMPARE(session.value(u"action"_s).toString(), u"fill"_s);
    QCOMPARE(session.value(u"battery"_s).toString(), u"A"_s);
    QCOMPARE(session.value(u"model"_s).toString(), u"Skylark"_s);
    QCOMPARE(session.value(u"time"_s).toString(), u"2026-05-03T14:47:00"_s);
    QCOMPARE(session.value(u"flight_start"_s).toString(), u"2026-05-03T14:38:00"_s);
    QCOMPARE(session.value(u"end"_s).toString(), u"2026-05-03T14:43:00"_s);
    QCOMPARE(session.value(u"discharged_mAh"_s).toDouble(), 1500);
    QCOMPARE(session.value(u"duration_s"_s).toDouble(), 299);
    QVERIFY(session.value(u"continues"_s).isNull());
}

void ImportTest::anImportFillsTheFlightAndKeepsCopies()
{
    const QByteArray before = WholeFile::read(m_home->folder().dataFile()).bytes;
    const Program::Result result = m_home->import({u"--json"_s, m_log});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(ImportHome::actions(result), QStringList{u"fill"_s});
    Catalogue meant = Flown::logbook();
    meant.batteries[0].discharges = {{at(14, 38), 1500, 1800}};
    meant.models[0].log[0].time = at(14, 38);
    meant.models[0].log[0].duration = QTime(0, 4, 59);
    QVERIFY(m_home->catalogue() == meant);
    QVERIFY(result.output.contains(u"2026-05-03T14:47:00"_s)); // as it was before
    const QList<Copy> copies = Backups::list(m_home->folder());
    QCOMPARE(copies.size(), 2);
    QCOMPARE(WholeFile::read(m_home->folder().backups().filePath(copies.at(1).name)).bytes, before);
    QVERIFY(copies.at(0).beside > 0);
    QVERIFY(!QFileInfo::exists(m_home->folder().lock()));
    const QString listed =
        m_home->program().run({u"--data"_s, m_home->path(), u"list"_s, u"discharges"_s, u"--json"_s}).output;
    QCOMPARE(listed.count(u"\"measured\""_s), 1);
    const Measured measured = MeasuredStore::load(m_home->folder()).measured;
    QVERIFY(measured.find(u"A"_s, momentOf(at(14, 38))));
    QCOMPARE(measured.discharges.first().log, m_log);
}

void ImportTest::aSecondImportDoesNothingUnderAnyName()
{
    QCOMPARE(m_home->import({m_log}).status, 0);
    const auto before = Test::snapshot(m_home->path());
    const QString other = u"copied.csv"_s;
    QVERIFY(QFile::copy(m_home->file(m_log), m_home->file(other)));
    const Program::Result result =
        m_home->import({u"--json"_s, u"--battery"_s, u"C"_s, u"--replace-entered"_s, m_log, other});
    QCOMPARE(result.status, 0);
    QCOMPARE(ImportHome::actions(result), (QStringList{u"known"_s, u"known"_s}));
    QVERIFY(result.output.contains(u"\"discharged_mAh\": 1500"_s));
    QCOMPARE(Test::snapshot(m_home->path()), before);
}

void ImportTest::aFileThatHasGrownGoesOn()
{
    const QString day = u"Skylark-2026-05-03.csv"_s;
    const QByteArray first = ImportHome::header() + ImportHome::rows(at(14, 38), 300, 1500);
    QVERIFY(m_home->put(day, first));
    QCOMPARE(m_home->import({day}).status, 0);
    QVERIFY(m_home->put(day, first + ImportHome::rows(at(15, 50), 300, 1200)));
    const Program::Result result = m_home->import({u"--json"_s, day});
    QCOMPARE(ImportHome::actions(result), QStringList{u"fill"_s});
    QVERIFY(result.output.contains(u"\"rows\": 301"_s));
    QCOMPARE(m_home->catalogue().batteries.at(0).discharges, (QList<Discharge>{{at(14, 38), 1500, 1800}}));
    QCOMPARE(m_home->catalogue().batteries.at(1).discharges, (QList<Discharge>{{at(15, 50), 1200, 1440}}));
    QCOMPARE(ImportHome::actions(m_home->import({u"--json"_s, day})), (QStringList{u"known"_s, u"known"_s}));
    // Both forms of it in one import, in either order, tell of each flight once.
    for (const bool longFirst : {false, true}) {
        QVERIFY(m_home->putLogbook(Flown::logbook()));
        QFile::remove(m_home->folder().measuredFile());
        QVERIFY(m_home->put(u"short.csv"_s, first));
        const QStringList logs{longFirst ? day : u"short.csv"_s, longFirst ? u"short.csv"_s : day};
        QStringList found =
            ImportHome::actions(m_home->import(QStringList{u"--json"_s, u"--model"_s, u"Skylark"_s} + logs));
        QCOMPARE(found, (QStringList{u"fill"_s, u"fill"_s}));
    }
}

void ImportTest::aDischargeGoesOnInALaterImport()
{
    const QString later = u"Skylark-2026-05-03-144500.csv"_s;
    QVERIFY(m_home->put(later, ImportHome::header() + ImportHome::rows(at(14, 45), 60, 300, 1500)));
    QCOMPARE(m_home->import({m_log}).status, 0);
    const Program::Result result = m_home->import({u"--json"_s, later});
    QCOMPARE(result.status, 0);
    QCOMPARE(ImportHome::actions(result), QStringList{u"none"_s});
    QVERIFY(result.output.contains(u"\"continues\": \"2026-05-03T14:38:00\""_s));
    QCOMPARE(m_home->catalogue().batteries.at(0).discharges, (QList<Discharge>{{at(14, 38), 1800, 1800}}));
    QCOMPARE(m_home->catalogue().models.at(0).log.first().duration, QTime(0, 5, 58));
    const Catalogue apart = m_home->catalogue();
    QVERIFY(m_home->putLogbook(Flown::logbook()));
    QFile::remove(m_home->folder().measuredFile());
    QCOMPARE(m_home->import({later, m_log}).status, 0);
    QVERIFY(m_home->catalogue() == apart);
}

void ImportTest::theOrderOfTheFilesDoesNotMatter()
{
    const QString later = u"Skylark-2026-05-03-155000.csv"_s;
    QVERIFY(m_home->put(later, ImportHome::header() + ImportHome::rows(at(15, 50), 300, 1200)));
    QCOMPARE(m_home->import({m_log, later}).status, 0);
    const Catalogue inOrder = m_home->catalogue();
    QVERIFY(m_home->putLogbook(Flown::logbook()));
    QFile::remove(m_home->folder().measuredFile());
    QCOMPARE(m_home->import({later, m_log}).status, 0);
    QVERIFY(m_home->catalogue() == inOrder);
}

void ImportTest::whatIsNewNeedsABattery()
{
    const QString early = u"Skylark-2026-05-03-060000.csv"_s;
    QVERIFY(m_home->put(early, ImportHome::header() + ImportHome::rows(at(6, 0), 300, 1500)));
    const auto before = Test::snapshot(m_home->path());
    QCOMPARE(ImportHome::actions(m_home->import({u"--json"_s, early})), QStringList{u"new"_s});
    QCOMPARE(Test::snapshot(m_home->path()), before);
    QCOMPARE(ImportHome::actions(m_home->import({u"--json"_s, u"--battery"_s, u"C"_s, early})),
             QStringList{u"new"_s});
    QCOMPARE(m_home->catalogue().batteries.at(2).discharges, (QList<Discharge>{{at(6, 0), 1500, 1800}}));
    QCOMPARE(m_home->catalogue().batteries.at(2).cycles, 11U);
    QCOMPARE(m_home->catalogue().models.at(0).flights, 21U);
    QCOMPARE(m_home->catalogue().models.at(0).log.size(), 3);
}

void ImportTest::enteredValuesAreReplacedOnRequest()
{
    Catalogue entered = Flown::logbook();
    entered.batteries[0].discharges[0].discharged = 1400;
    QVERIFY(m_home->putLogbook(entered));
    QCOMPARE(ImportHome::actions(m_home->import({u"--json"_s, m_log})), QStringList{u"none"_s});
    QVERIFY(m_home->catalogue() == entered);
    QCOMPARE(ImportHome::actions(m_home->import({u"--json"_s, u"--replace-entered"_s, m_log})),
             QStringList{u"fill"_s});
    QCOMPARE(m_home->catalogue().batteries.at(0).discharges.first().discharged, 1500U);
}

void ImportTest::theModelCanBeNamed()
{
    const QString log = u"flight.csv"_s;
    QVERIFY(QFile::rename(m_home->file(m_log), m_home->file(log)));
    QCOMPARE(ImportHome::actions(m_home->import({u"--dry-run"_s, u"--json"_s, log})), QStringList{u"new"_s});
    QCOMPARE(ImportHome::actions(m_home->import({u"--json"_s, log, u"--model"_s, u"Skylark"_s})),
             QStringList{u"fill"_s});
}

void ImportTest::columnsThatWereChosenInTheWindowAreRead()
{
    QByteArray bytes = ImportHome::header() + ImportHome::rows(at(14, 38), 300, 1500);
    bytes.replace("Curr(A),Capa(mAh),VFAS(V)", "Motor(A),Drawn,Pack(V)");
    QVERIFY(m_home->put(u"Skylark-2026-05-03-143800.csv"_s, bytes));
    const QStringList look{m_home->file(ImportHome::log()), u"--dry-run"_s, u"--json"_s};
    QCOMPARE(ImportHome::actions(m_home->import(look)), QStringList(u"none"_s));
    Measured measured;
    const QList<ImportedLog> logs = LogReading::read({m_home->file(ImportHome::log())}, measured);
    LogReading::remember(measured, {{logs.first().log.headerKey, {u"Drawn"_s, u"Motor(A)"_s, {}}}});
    QCOMPARE(MeasuredStore::save(m_home->folder(), measured), QString());
    QCOMPARE(ImportHome::actions(m_home->import(look)), QStringList(u"fill"_s));
    QCOMPARE(m_home->import({m_home->file(ImportHome::log())}).status, 0);
    QCOMPARE(m_home->catalogue().batteries.at(0).discharges.first().discharged, 1500U);
    QCOMPARE(MeasuredStore::load(m_home->folder()).measured.columns.size(), 1);
}

void ImportTest::namesThatAreNotThereAreRefused_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::newRow("a model") << QStringList{u"--model"_s, u"Nobody"_s};
    QTest::newRow("a battery") << QStringList{u"--battery"_s, u"Nobody"_s};
}

void ImportTest::namesThatAreNotThereAreRefused()
{
    QFETCH(QStringList, options);
    const auto before = Test::snapshot(m_home->path());
    const Program::Result result = m_home->import(QStringList{m_log} + options);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(u"“Nobody”"_s), qPrintable(result.errors));
    QCOMPARE(result.errors.count(u'\n'), 1);
    QCOMPARE(Test::snapshot(m_home->path()), before);
}

void ImportTest::goodFilesAreDoneBesideBadOnes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("status");
    QTest::addColumn<int>("exitStatus");
    QTest::newRow("missing") << QByteArray() << u"refused"_s << 1;
    QTest::newRow("another table") << QByteArray("a,b\n1,2\n") << u"not a radio log"_s << 1;
    QTest::newRow("a broken one") << ImportHome::header() +
                                         "2026-05-03,14:38:00.000,1\n2026-05-03,14:38:01.000,1\n"
                                  << u"refused"_s << 1;
    QTest::newRow("one without rows") << ImportHome::header() << u"empty"_s << 0;
}

void ImportTest::goodFilesAreDoneBesideBadOnes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, status);
    QVERIFY(bytes.isNull() || m_home->put(u"bad.csv"_s, bytes));
    const Program::Result result = m_home->import({u"--json"_s, u"bad.csv"_s, m_log});
    QTEST(result.status, "exitStatus");
    QCOMPARE(result.errors.count(u'\n'), result.status);
    QCOMPARE(QJsonDocument::fromJson(result.output.toUtf8())[u"files"_s][0][u"status"_s].toString(), status);
    QCOMPARE(m_home->catalogue().batteries.at(0).discharges.first().discharged, 1500U);
}

void ImportTest::aFolderStandsForTheLogsBelowIt()
{
    QVERIFY(QDir(m_home->program().home()).mkpath(u"card/LOGS/old"_s));
    QVERIFY(QFile::rename(m_home->file(m_log), m_home->file(u"card/LOGS/old/"_s + m_log.toUpper())));
    QVERIFY(m_home->put(u"card/readme.txt"_s, "none"));
    const Program::Result result = m_home->import({u"--json"_s, u"--model"_s, u"Skylark"_s, u"card"_s});
    QCOMPARE(ImportHome::actions(result), QStringList{u"fill"_s});
    QVERIFY(result.output.contains(u"\"card/LOGS/old/"_s + m_log.toUpper()));
    QVERIFY(QDir(m_home->program().home()).mkpath(u"empty"_s));
    QCOMPARE(m_home->import({u"empty"_s}).status, 0);
}

void ImportTest::theSampleIsMadeFirst()
{
    QCOMPARE(m_home->program().run({u"--demo"_s, u"import"_s, m_log}).status, 0);
    QCOMPARE(QDir(m_home->program().home(u"data"_s)).entryList({u"*-demo"_s}, QDir::Dirs).size(), 1);
}

void ImportTest::aTableIsForTheEye()
{
    const QStringList lines = m_home->import({m_log}).output.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.at(1).contains(u"fills the flight of 14:47 with A"_s), qPrintable(lines.at(1)));
}

QTEST_MAIN(ImportTest)
#include "tst_import.moc"
