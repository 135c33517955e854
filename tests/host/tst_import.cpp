// SPDX-License-Identifier: GPL-3.0-or-later
// The command that imports radio logs, as a process, with logs as a radio writes them.
#include "host/data/cataloguefile.h"
#include "host/safety/backups.h"
#include "host/safety/folderlock.h"
#include "host/safety/measuredstore.h"
#include "host/safety/wholefile.h"
#include "tests/host/support/flownsessions.h"
#include "tests/host/support/program.h"
#include "tests/host/support/snapshot.h"
#include "tests/support/brokendisk.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <memory>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

namespace {

/** Rows of one flight, each second one, without a header. */
QByteArray rows(const QDateTime &start, int seconds, double used, double from = 0)
{
    QByteArray bytes;
    for (int i = 0; i <= seconds; ++i) {
        const QDateTime time = start.addSecs(i);
        bytes += time.toString(u"yyyy-MM-dd,HH:mm:ss.000,").toLatin1() +
                 QByteArray::number(i < seconds ? used * 3.6 / seconds : 0.5, 'f', 2) + ',' +
                 QByteArray::number(from + used * i / seconds, 'f', 0) + ",11.9\n";
    }
    return bytes;
}

const QByteArray Header = "Date,Time,Curr(A),Capa(mAh),VFAS(V)\n";

} // namespace

class ImportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aDryRunTellsEverythingAndWritesNothing();
    void anImportFillsTheFlightAndKeepsCopies();
    void aSecondImportDoesNothingUnderAnyName();
    void aFileThatHasGrownGoesOn();
    void aDischargeGoesOnInALaterImport();
    void theOrderOfTheFilesDoesNotMatter();
    void whatIsNewNeedsABattery();
    void enteredValuesAreReplacedOnRequest();
    void theModelCanBeNamed();
    void namesThatAreNotThereAreRefused_data();
    void namesThatAreNotThereAreRefused();
    void goodFilesAreDoneBesideBadOnes_data();
    void goodFilesAreDoneBesideBadOnes();
    void aFolderStandsForTheLogsBelowIt();
    void theHolderOfTheLockIsNamed();
    void aFailureLeavesEverythingAsItWas_data();
    void aFailureLeavesEverythingAsItWas();
    void damagedMeasuredValuesAreSaidAndPutAside();
    void aFileOfALaterVersionIsNotWrittenTo();
    void theSampleIsMadeFirst();
    void aTableIsForTheEye();

private:
    QString path() const { return m_program->home(u"log"_s); }
    QString file(const QString &name) const { return m_program->home(name); }
    StorageFolder folder() const { return StorageFolder(path()); }
    bool put(const QString &name, const QByteArray &bytes) const
    {
        return WholeFile::write(file(name), bytes).isEmpty();
    }
    bool putLogbook(const Catalogue &catalogue) const
    {
        return put(u"log/voltbok.xml"_s, CatalogueFile::save(catalogue).document);
    }
    Program::Result import(const QStringList &arguments) const
    {
        return m_program->run(QStringList{u"--data"_s, path(), u"import"_s} + arguments);
    }
    Catalogue catalogue() const
    {
        return CatalogueFile::load(WholeFile::read(folder().dataFile()).bytes).catalogue;
    }
    static QStringList actions(const Program::Result &result);

    std::unique_ptr<Program> m_program;
    const QString m_log = u"Skylark-2026-05-03-143800.csv"_s;
};

void ImportTest::init()
{
    m_program = std::make_unique<Program>();
    QVERIFY(QDir(m_program->home()).mkpath(u"log"_s));
    QVERIFY(putLogbook(Flown::logbook()));
    QVERIFY(put(m_log, Header + rows(at(14, 38), 300, 1500)));
}

QStringList ImportTest::actions(const Program::Result &result)
{
    QStringList actions;
    const QJsonDocument document = QJsonDocument::fromJson(result.output.toUtf8());
    const QJsonArray files = document.object().value(u"files"_s).toArray();
    for (const QJsonValue &log : files) {
        const QJsonArray sessions = log[u"sessions"_s].toArray();
        for (const QJsonValue &session : sessions)
            actions.append(session[u"action"_s].toString());
    }
    return actions;
}

void ImportTest::aDryRunTellsEverythingAndWritesNothing()
{
    FolderLock lock; // of somebody else
    QCOMPARE(lock.take(folder()).problem, QString());
    const auto before = Test::snapshot(m_program->home());
    const Program::Result result = import({u"--dry-run"_s, u"--json"_s, m_log});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(Test::snapshot(m_program->home()), before);
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
    const QByteArray before = WholeFile::read(folder().dataFile()).bytes;
    const Program::Result result = import({u"--json"_s, m_log});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    QCOMPARE(actions(result), QStringList{u"fill"_s});
    Catalogue meant = Flown::logbook();
    meant.batteries[0].discharges = {{at(14, 38), 1500, 1800}};
    meant.models[0].log[0].time = at(14, 38);
    meant.models[0].log[0].duration = QTime(0, 4, 59);
    QVERIFY(catalogue() == meant);
    QVERIFY(result.output.contains(u"2026-05-03T14:47:00"_s)); // as it was before
    const QList<Copy> copies = Backups::list(folder());
    QCOMPARE(copies.size(), 2);
    QCOMPARE(WholeFile::read(folder().backups().filePath(copies.at(1).name)).bytes, before);
    QVERIFY(copies.at(0).beside > 0);
    QVERIFY(!QFileInfo::exists(folder().lock()));
    const QString listed =
        m_program->run({u"--data"_s, path(), u"list"_s, u"discharges"_s, u"--json"_s}).output;
    QCOMPARE(listed.count(u"\"measured\""_s), 1);
    const Measured measured = MeasuredStore::load(folder()).measured;
    QVERIFY(measured.find(u"A"_s, momentOf(at(14, 38))));
    QCOMPARE(measured.discharges.first().log, m_log);
}

void ImportTest::aSecondImportDoesNothingUnderAnyName()
{
    QCOMPARE(import({m_log}).status, 0);
    const auto before = Test::snapshot(path());
    const QString other = u"copied.csv"_s;
    QVERIFY(QFile::copy(file(m_log), file(other)));
    const Program::Result result =
        import({u"--json"_s, u"--battery"_s, u"C"_s, u"--replace-entered"_s, m_log, other});
    QCOMPARE(result.status, 0);
    QCOMPARE(actions(result), (QStringList{u"known"_s, u"known"_s}));
    QVERIFY(result.output.contains(u"\"discharged_mAh\": 1500"_s));
    QCOMPARE(Test::snapshot(path()), before);
}

void ImportTest::aFileThatHasGrownGoesOn()
{
    const QString day = u"Skylark-2026-05-03.csv"_s;
    const QByteArray first = Header + rows(at(14, 38), 300, 1500);
    QVERIFY(put(day, first));
    QCOMPARE(import({day}).status, 0);
    QVERIFY(put(day, first + rows(at(15, 50), 300, 1200)));
    const Program::Result result = import({u"--json"_s, day});
    QCOMPARE(actions(result), QStringList{u"fill"_s});
    QVERIFY(result.output.contains(u"\"rows\": 301"_s));
    QCOMPARE(catalogue().batteries.at(0).discharges, (QList<Discharge>{{at(14, 38), 1500, 1800}}));
    QCOMPARE(catalogue().batteries.at(1).discharges, (QList<Discharge>{{at(15, 50), 1200, 1440}}));
    QCOMPARE(actions(import({u"--json"_s, day})), (QStringList{u"known"_s, u"known"_s}));
    // Both forms of it in one import, in either order, tell of each flight once.
    for (const bool longFirst : {false, true}) {
        QVERIFY(putLogbook(Flown::logbook()));
        QFile::remove(folder().measuredFile());
        QVERIFY(put(u"short.csv"_s, first));
        const QStringList logs{longFirst ? day : u"short.csv"_s, longFirst ? u"short.csv"_s : day};
        QStringList found = actions(import(QStringList{u"--json"_s, u"--model"_s, u"Skylark"_s} + logs));
        QCOMPARE(found, (QStringList{u"fill"_s, u"fill"_s}));
    }
}

void ImportTest::aDischargeGoesOnInALaterImport()
{
    const QString later = u"Skylark-2026-05-03-144500.csv"_s;
    QVERIFY(put(later, Header + rows(at(14, 45), 60, 300, 1500)));
    QCOMPARE(import({m_log}).status, 0);
    const Program::Result result = import({u"--json"_s, later});
    QCOMPARE(result.status, 0);
    QCOMPARE(actions(result), QStringList{u"none"_s});
    QVERIFY(result.output.contains(u"\"continues\": \"2026-05-03T14:38:00\""_s));
    QCOMPARE(catalogue().batteries.at(0).discharges, (QList<Discharge>{{at(14, 38), 1800, 1800}}));
    QCOMPARE(catalogue().models.at(0).log.first().duration, QTime(0, 5, 58));
    const Catalogue apart = catalogue();
    QVERIFY(putLogbook(Flown::logbook()));
    QFile::remove(folder().measuredFile());
    QCOMPARE(import({later, m_log}).status, 0);
    QVERIFY(catalogue() == apart);
}

void ImportTest::theOrderOfTheFilesDoesNotMatter()
{
    const QString later = u"Skylark-2026-05-03-155000.csv"_s;
    QVERIFY(put(later, Header + rows(at(15, 50), 300, 1200)));
    QCOMPARE(import({m_log, later}).status, 0);
    const Catalogue inOrder = catalogue();
    QVERIFY(putLogbook(Flown::logbook()));
    QFile::remove(folder().measuredFile());
    QCOMPARE(import({later, m_log}).status, 0);
    QVERIFY(catalogue() == inOrder);
}

void ImportTest::whatIsNewNeedsABattery()
{
    const QString early = u"Skylark-2026-05-03-060000.csv"_s;
    QVERIFY(put(early, Header + rows(at(6, 0), 300, 1500)));
    const auto before = Test::snapshot(path());
    QCOMPARE(actions(import({u"--json"_s, early})), QStringList{u"new"_s});
    QCOMPARE(Test::snapshot(path()), before);
    QCOMPARE(actions(import({u"--json"_s, u"--battery"_s, u"C"_s, early})), QStringList{u"new"_s});
    QCOMPARE(catalogue().batteries.at(2).discharges, (QList<Discharge>{{at(6, 0), 1500, 1800}}));
    QCOMPARE(catalogue().batteries.at(2).cycles, 11U);
    QCOMPARE(catalogue().models.at(0).flights, 21U);
    QCOMPARE(catalogue().models.at(0).log.size(), 3);
}

void ImportTest::enteredValuesAreReplacedOnRequest()
{
    Catalogue entered = Flown::logbook();
    entered.batteries[0].discharges[0].discharged = 1400;
    QVERIFY(putLogbook(entered));
    QCOMPARE(actions(import({u"--json"_s, m_log})), QStringList{u"none"_s});
    QVERIFY(catalogue() == entered);
    QCOMPARE(actions(import({u"--json"_s, u"--replace-entered"_s, m_log})), QStringList{u"fill"_s});
    QCOMPARE(catalogue().batteries.at(0).discharges.first().discharged, 1500U);
}

void ImportTest::theModelCanBeNamed()
{
    const QString log = u"flight.csv"_s;
    QVERIFY(QFile::rename(file(m_log), file(log)));
    QCOMPARE(actions(import({u"--dry-run"_s, u"--json"_s, log})), QStringList{u"new"_s});
    QCOMPARE(actions(import({u"--json"_s, log, u"--model"_s, u"Skylark"_s})), QStringList{u"fill"_s});
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
    const auto before = Test::snapshot(path());
    const Program::Result result = import(QStringList{m_log} + options);
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(u"“Nobody”"_s), qPrintable(result.errors));
    QCOMPARE(result.errors.count(u'\n'), 1);
    QCOMPARE(Test::snapshot(path()), before);
}

void ImportTest::goodFilesAreDoneBesideBadOnes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("status");
    QTest::addColumn<int>("exitStatus");
    QTest::newRow("missing") << QByteArray() << u"refused"_s << 1;
    QTest::newRow("another table") << QByteArray("a,b\n1,2\n") << u"not a radio log"_s << 1;
    QTest::newRow("a broken one") << Header + "2026-05-03,14:38:00.000,1\n2026-05-03,14:38:01.000,1\n"
                                  << u"refused"_s << 1;
    QTest::newRow("one without rows") << Header << u"empty"_s << 0;
}

void ImportTest::goodFilesAreDoneBesideBadOnes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, status);
    QVERIFY(bytes.isNull() || put(u"bad.csv"_s, bytes));
    const Program::Result result = import({u"--json"_s, u"bad.csv"_s, m_log});
    QTEST(result.status, "exitStatus");
    QCOMPARE(result.errors.count(u'\n'), result.status);
    QCOMPARE(QJsonDocument::fromJson(result.output.toUtf8())[u"files"_s][0][u"status"_s].toString(), status);
    QCOMPARE(catalogue().batteries.at(0).discharges.first().discharged, 1500U);
}

void ImportTest::aFolderStandsForTheLogsBelowIt()
{
    QVERIFY(QDir(m_program->home()).mkpath(u"card/LOGS/old"_s));
    QVERIFY(QFile::rename(file(m_log), file(u"card/LOGS/old/"_s + m_log.toUpper())));
    QVERIFY(put(u"card/readme.txt"_s, "none"));
    const Program::Result result = import({u"--json"_s, u"--model"_s, u"Skylark"_s, u"card"_s});
    QCOMPARE(actions(result), QStringList{u"fill"_s});
    QVERIFY(result.output.contains(u"\"card/LOGS/old/"_s + m_log.toUpper()));
    QVERIFY(QDir(m_program->home()).mkpath(u"empty"_s));
    QCOMPARE(import({u"empty"_s}).status, 0);
}

void ImportTest::theHolderOfTheLockIsNamed()
{
    const auto before = catalogue();
    FolderLock lock;
    QCOMPARE(lock.take(folder()).problem, QString());
    const Program::Result result = import({m_log});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains(QString::number(QCoreApplication::applicationPid())),
             qPrintable(result.errors));
    QVERIFY(catalogue() == before);
    QCOMPARE(import({u"--dry-run"_s, m_log}).status, 0);
}

void ImportTest::aFailureLeavesEverythingAsItWas_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("full disk") << 0;
    QTest::newRow("no room for the measured values") << 1;
    QTest::newRow("read-only folder") << 2;
    QTest::newRow("no folder for copies") << 3;
    QTest::newRow("a folder that does not exist") << 4;
}

void ImportTest::aFailureLeavesEverythingAsItWas()
{
    QFETCH(int, kind);
    std::shared_ptr<void> fault;
    if (kind == 0)
        fault = std::make_shared<FullDisk>(2000);
    if (kind == 1)
        QVERIFY(QDir(path()).mkdir(u"voltbok-measured.json"_s));
    if (kind == 3)
        QVERIFY(put(u"log/backups"_s, "a file"));
    const QMap<QString, QByteArray> before = Test::snapshot(path());
    if (kind == 2)
        fault = std::make_shared<Permissions>(path(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther |
                                                          QFile::ExeOther);
    const Program::Result result =
        kind == 4 ? m_program->run({u"--data"_s, file(u"not"_s), u"import"_s, m_log}) : import({m_log});
    fault.reset();
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY(!result.errors.isEmpty());
    QMap<QString, QByteArray> after = Test::snapshot(path());
    after.removeIf([](auto entry) { return entry.key().startsWith(u"backups/"_s); });
    QCOMPARE(after, before);
    QVERIFY(!QFileInfo::exists(file(u"not"_s)));
}

void ImportTest::damagedMeasuredValuesAreSaidAndPutAside()
{
    QVERIFY(put(u"log/voltbok-measured.json"_s, "half"));
    const Program::Result result = import({m_log});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.errors.count(u'\n'), 1);
    QVERIFY2(result.errors.contains(u"damaged"_s), qPrintable(result.errors));
    QCOMPARE(QDir(path()).entryList({u"voltbok-measured-broken-*"_s}).size(), 1);
    QVERIFY(MeasuredStore::load(folder()).measured.find(u"A"_s, momentOf(at(14, 38))));
}

void ImportTest::aFileOfALaterVersionIsNotWrittenTo()
{
    const QByteArray later = R"({"format": "voltbok-measured", "version": 9})";
    QVERIFY(put(u"log/voltbok-measured.json"_s, later));
    const Program::Result result = import({m_log});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(u"later version"_s), qPrintable(result.errors));
    QCOMPARE(WholeFile::read(folder().measuredFile()).bytes, later);
    QVERIFY(catalogue() == Flown::logbook());
    QCOMPARE(import({u"--dry-run"_s, m_log}).status, 0);
}

void ImportTest::theSampleIsMadeFirst()
{
    QCOMPARE(m_program->run({u"--demo"_s, u"import"_s, m_log}).status, 0);
    QCOMPARE(QDir(m_program->home(u"data"_s)).entryList({u"*-demo"_s}, QDir::Dirs).size(), 1);
}

void ImportTest::aTableIsForTheEye()
{
    const QStringList lines = import({m_log}).output.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QVERIFY2(lines.at(1).contains(u"fills the flight of 14:47 with A"_s), qPrintable(lines.at(1)));
}

QTEST_MAIN(ImportTest)
#include "tst_import.moc"
