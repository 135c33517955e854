// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of measured discharges: its file, its copies, and how it goes along with the logbook.
#include "host/data/edits.h"
#include "host/safety/backups.h"
#include "host/safety/measuredstore.h"
#include "host/safety/wholefile.h"
#include "tests/host/support/plainlogbook.h"
#include "tests/host/support/snapshot.h"
#include "tests/support/brokendisk.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <functional>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

using Edit = std::function<QString(Catalogue &)>;
Q_DECLARE_METATYPE(Edit)

namespace {

const QDateTime Noon(QDate(2026, 11, 21), QTime(12, 0), Qt::UTC);

Measured known()
{
    Measured measured;
    MeasuredDischarge entry;
    entry.battery = u"A"_s;
    entry.moment = momentOf(at(9, 0));
    entry.log = u"Skylark-2026-05-03-090000.csv"_s;
    entry.sha256 = u"abc"_s;
    entry.counter = 1500;
    entry.integral = 1487.25;
    entry.rejectedCurrents = 2;
    entry.rejectedVoltages = 1;
    entry.restBefore = 12.58;
    entry.restAfter = 11.4;
    entry.minVoltage = 10.02;
    entry.resistance = 31.5;
    entry.capacity = 2050;
    entry.sessions = {u"abc:30"_s};
    measured.discharges = {entry};
    KnownLog log{u"x.csv"_s, u"abc"_s, 123'456'789'012, 400, 1, u"older"_s, {}, {}};
    log.sessions = {QJsonObject{{u"model"_s, u"Skylark"_s}, {u"start"_s, qint64(212'644'000'000'123)}}};
    measured.logs = {log};
    measured.models = {{u"SKYLK"_s, u"Skylark"_s}};
    measured.columns = {{u"key"_s, {u"Used(mAh)"_s, u"I(A)"_s, QString(), {}}}};
    return measured;
}

/** Battery and time of the entries: "A 09:00:00". */
QStringList entriesOf(const Measured &measured)
{
    QStringList entries;
    for (const MeasuredDischarge &entry : measured.discharges)
        entries.append(entry.battery + timeOf(entry.moment).toString(u" HH:mm:ss"));
    return entries;
}

} // namespace

class MeasuredTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsReadBack();
    void whatIsNotKnownIsKept();
    void aTimeIsWhatTheClockShowed();
    void whatIsOddCostsItselfAlone_data();
    void whatIsOddCostsItselfAlone();
    void measuredDischargesAreMarked();
    void entriesGoAlong_data();
    void entriesGoAlong();
    void aRenamedModelTakesItsLogsAlong();
    void aDamagedFileIsPutAsideBeforeItIsReplaced();
    void aFileOfALaterVersionIsLeftAlone();
    void whatCannotBeReadIsLeftAlone();
    void aFullDiskLeavesTheFileAsItWas();
    void nothingIsNoFile();
    void aCopyOfTheLogbookHasTheMeasuredValuesBesideIt();
    void aCopyIsGivenTheMeasuredValuesThatItLacks();
    void otherMeasuredValuesAreAnotherCopy();
    void theirLossHindersNoCopy();
    void theyGoWithTheirCopy();
};

void MeasuredTest::everythingIsReadBack()
{
    const QByteArray bytes = MeasuredFile::save(known());
    const MeasuredFile::Loaded loaded = MeasuredFile::load(bytes);
    QCOMPARE(loaded.problem, QString());
    QCOMPARE(MeasuredFile::save(loaded.measured), bytes);
    const Measured &read = loaded.measured;
    const MeasuredDischarge *entry = read.find(u"A"_s, momentOf(at(9, 0)));
    QVERIFY(entry);
    QVERIFY(!read.find(u"B"_s, momentOf(at(9, 0))));
    QVERIFY(!read.find(u"A"_s, momentOf(at(9, 0, 1))));
    QCOMPARE(entry->counter, 1500);
    QCOMPARE(entry->integral, 1487.25);
    QCOMPARE(entry->rejectedCurrents, 2);
    QCOMPARE(entry->rejectedVoltages, 1);
    QCOMPARE(entry->restBefore, 12.58);
    QCOMPARE(entry->restAfter, 11.4);
    QCOMPARE(entry->minVoltage, 10.02);
    QCOMPARE(entry->resistance, 31.5);
    QCOMPARE(entry->capacity, 2050);
    QCOMPARE(entry->sessions, QStringList{u"abc:30"_s});
    QCOMPARE(read.logOf(u"abc"_s)->bytes, 123'456'789'012);
    QCOMPARE(read.logOf(u"abc"_s)->beginsWith, u"older"_s);
    QCOMPARE(read.logOf(u"abc"_s)->sessions, known().logs.first().sessions);
    QCOMPARE(read.models.value(u"SKYLK"_s), u"Skylark"_s);
    QCOMPARE(read.columns.value(u"key"_s).current, u"I(A)"_s);
}

void MeasuredTest::whatIsNotKnownIsKept()
{
    QByteArray bytes = R"({"format": "voltbok-measured", "version": 1, "odd": [1],
        "discharges": [{"battery": "A", "time": "2026-05-03T09:00:00", "wind": {"ms": 3}}],
        "logs": [{"sha256": "abc", "card": 7, "sessions": [{"gps": true}]}],
        "columns": {"k": {"consumed": "C", "rpm": "R"}}})";
    const QByteArray saved = MeasuredFile::save(MeasuredFile::load(bytes).measured);
    const QJsonObject object = QJsonDocument::fromJson(saved).object();
    QCOMPARE(object.value(u"odd"_s).toArray().size(), 1);
    QCOMPARE(object[u"discharges"_s][0][u"wind"_s][u"ms"_s].toInt(), 3);
    QCOMPARE(object[u"logs"_s][0][u"card"_s].toInt(), 7);
    QCOMPARE(object[u"logs"_s][0][u"sessions"_s][0][u"gps"_s].toBool(), true);
    QCOMPARE(object[u"columns"_s][u"k"_s][u"rpm"_s].toString(), u"R"_s);
}

void MeasuredTest::aTimeIsWhatTheClockShowed()
{
    const QByteArray saved = MeasuredFile::save(known());
    QVERIFY2(saved.contains("\"time\": \"2026-05-03T09:00:00\""), saved.constData());
}

void MeasuredTest::whatIsOddCostsItselfAlone_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isRead");
    QTest::addColumn<int>("discharges");
    const QByteArray begin = R"({"format": "voltbok-measured", "version": 1, "discharges": )";
    const QByteArray good = R"({"battery": "A", "time": "2026-05-03T09:00:00"})";
    QTest::newRow("nothing") << QByteArray() << true << 0;
    QTest::newRow("no JSON") << QByteArray("<xml/>") << false << 0;
    QTest::newRow("cut") << MeasuredFile::save(known()).chopped(9) << false << 0;
    QTest::newRow("a list") << QByteArray("[]") << false << 0;
    QTest::newRow("another format") << QByteArray(R"({"format": "voltbok-export"})") << false << 0;
    QTest::newRow("whole") << begin + "[" + good + "]}" << true << 1;
    QTest::newRow("an entry without a time") << begin + "[{\"battery\": \"A\"}, " + good + "]}" << true << 1;
    QTest::newRow("a time that is none")
        << begin + "[{\"battery\": \"A\", \"time\": \"2026-13-03T09:00:00\"}, 7, " + good + "]}" << true << 1;
    QTest::newRow("no list") << begin + "{\"a\": 1}}" << true << 0;
}

void MeasuredTest::whatIsOddCostsItselfAlone()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isRead);
    const MeasuredFile::Loaded loaded = MeasuredFile::load(bytes);
    QCOMPARE(loaded.problem.isEmpty(), isRead);
    QVERIFY(!loaded.isNewer);
    QTEST(static_cast<int>(loaded.measured.discharges.size()), "discharges");
}

void MeasuredTest::measuredDischargesAreMarked()
{
    Catalogue catalogue = logbook();
    MeasuredFile::mark(catalogue, known());
    QVERIFY(catalogue.batteries.at(0).discharges.at(0).isMeasured);
    QVERIFY(!catalogue.batteries.at(0).discharges.at(1).isMeasured);
    QVERIFY(!catalogue.batteries.at(1).discharges.at(0).isMeasured);
}

void MeasuredTest::entriesGoAlong_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QStringList>("entries");
    const auto row = [](const char *name, const Edit &edit, const QStringList &entries) {
        QTest::newRow(name) << edit << entries;
    };
    row("nothing", [](Catalogue &) { return QString(); }, {u"A 09:00:00"_s});
    row("renamed", [](Catalogue &c) { return Edits::renameBattery(c, 0, u"Z"_s); }, {u"Z 09:00:00"_s});
    row("a new time",
        [](Catalogue &c) {
            return Edits::editFlight(c, {0, 0}, flight(at(9, 15), u"Hill"_s));
        },
        {u"A 09:15:00"_s});
    row("another battery",
        [](Catalogue &c) {
            return Edits::moveDischarges(c, {{0, 0}}, 0, 2);
        },
        {u"C 09:00:00"_s});
    row("other values",
        [](Catalogue &c) {
            return Edits::editDischarge(c, {0, 0}, 1400, 2900);
        },
        {u"A 09:00:00"_s});
    row("the flight deleted",
        [](Catalogue &c) {
            return Edits::deleteFlights(c, {{0, 0}}, Edits::Discharges::Keep);
        },
        {u"A 09:00:00"_s});
    row("all deleted",
        [](Catalogue &c) {
            return Edits::deleteFlights(c, {{0, 0}}, Edits::Discharges::Delete);
        },
        {});
    row("another one deleted",
        [](Catalogue &c) {
            return Edits::deleteFlights(c, {{0, 1}}, Edits::Discharges::Delete);
        },
        {u"A 09:00:00"_s});
    row("moved to another model",
        [](Catalogue &c) {
            QList<FlightPlace> places{{0, 0}};
            return Edits::moveFlights(c, places, 1);
        },
        {u"A 09:00:00"_s});
    row("the battery deleted",
        [](Catalogue &c) {
            c.batteries.removeFirst();
            return QString();
        },
        {});
}

void MeasuredTest::entriesGoAlong()
{
    QFETCH(Edit, edit);
    Catalogue after = logbook();
    QCOMPARE(edit(after), QString());
    QTEST(entriesOf(MeasuredFile::followed(known(), logbook(), after)), "entries");
}

void MeasuredTest::aRenamedModelTakesItsLogsAlong()
{
    Catalogue after = logbook();
    QCOMPARE(Edits::renameModel(after, 0, u"Lark"_s), QString());
    const Measured followed = MeasuredFile::followed(known(), logbook(), after);
    QCOMPARE(followed.models.value(u"SKYLK"_s), u"Lark"_s);
    QCOMPARE(followed.models.value(u"Skylark"_s), u"Lark"_s); // as the radio goes on to call it
    QCOMPARE(followed.logs.first().sessions.first().value(u"model"_s).toString(), u"Lark"_s);
    const Measured back = MeasuredFile::followed(followed, after, logbook());
    QCOMPARE(back.logs.first().sessions.first().value(u"model"_s).toString(), u"Skylark"_s);
    QVERIFY(!back.models.contains(u"Skylark"_s));
}

namespace {

/** A folder of a logbook. */
struct Place
{
    QTemporaryDir root;
    StorageFolder folder = StorageFolder(root.path());

    QString path(const QString &name) const { return root.filePath(name); }
    bool put(const QString &name, const QByteArray &bytes) const
    {
        return WholeFile::write(path(name), bytes).isEmpty();
    }
    QByteArray measured() const { return Test::contents(folder.measuredFile()); }
};

} // namespace

void MeasuredTest::aDamagedFileIsPutAsideBeforeItIsReplaced()
{
    const Place place;
    QVERIFY(place.put(u"voltbok-measured.json"_s, "half of it"));
    const MeasuredStore::Stored stored = MeasuredStore::load(place.folder);
    QVERIFY2(stored.problem.contains(u"damaged"_s), qPrintable(stored.problem));
    QVERIFY(stored.measured.isEmpty());
    QVERIFY(stored.mayWrite);
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(place.measured(), MeasuredFile::save(known()));
    const QStringList asides = QDir(place.root.path()).entryList({u"voltbok-measured-broken-*Z.json"_s});
    QCOMPARE(asides.size(), 1);
    QCOMPARE(Test::contents(place.path(asides.first())), QByteArray("half of it"));
}

void MeasuredTest::aFileOfALaterVersionIsLeftAlone()
{
    const Place place;
    const QByteArray later = R"({"format": "voltbok-measured", "version": 2, "discharges": []})";
    QVERIFY(place.put(u"voltbok-measured.json"_s, later));
    const MeasuredStore::Stored stored = MeasuredStore::load(place.folder);
    QVERIFY2(stored.problem.contains(u"later version"_s), qPrintable(stored.problem));
    QVERIFY(!MeasuredStore::save(place.folder, known()).isEmpty());
    QCOMPARE(Test::snapshot(place.root.path()).size(), 1);
    QCOMPARE(place.measured(), later);
}

void MeasuredTest::whatCannotBeReadIsLeftAlone()
{
    const Place place;
    QVERIFY(QDir(place.root.path()).mkdir(u"voltbok-measured.json"_s));
    QVERIFY(MeasuredStore::load(place.folder).problem.contains(u"folder"_s));
    QVERIFY(!MeasuredStore::save(place.folder, known()).isEmpty());
    QVERIFY(QFileInfo(place.folder.measuredFile()).isDir());
}

void MeasuredTest::aFullDiskLeavesTheFileAsItWas()
{
    const Place place;
    QVERIFY(place.put(u"voltbok-measured.json"_s, "half of it"));
    {
        const FullDisk disk(4);
        QVERIFY(disk.works());
        QVERIFY(!MeasuredStore::save(place.folder, known()).isEmpty());
    }
    QCOMPARE(Test::snapshot(place.root.path()).size(), 1);
    QCOMPARE(place.measured(), QByteArray("half of it"));
}

void MeasuredTest::nothingIsNoFile()
{
    const Place place;
    QVERIFY(MeasuredStore::load(place.folder).problem.isEmpty());
    QCOMPARE(MeasuredStore::save(place.folder, {}), QString());
    QCOMPARE(MeasuredStore::put(place.folder, {}), QString());
    QVERIFY(Test::snapshot(place.root.path()).isEmpty());
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(MeasuredStore::put(place.folder, {}), QString());
    QVERIFY(Test::snapshot(place.root.path()).isEmpty());
}

void MeasuredTest::aCopyOfTheLogbookHasTheMeasuredValuesBesideIt()
{
    const Place place;
    const QByteArray document = "<Voltbok/>\n";
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    const QString name = Backups::measuredName(Backups::list(place.folder).first().name);
    QCOMPARE(name, u"voltbok-00000001-20261121-120000-000Z.json"_s);
    QCOMPARE(Test::contents(place.folder.backups().filePath(name)), MeasuredFile::save(known()));
    QCOMPARE(Backups::list(place.folder).size(), 1);
}

void MeasuredTest::aCopyIsGivenTheMeasuredValuesThatItLacks()
{
    const Place place;
    const QByteArray document = "<Voltbok/>\n";
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    QCOMPARE(Backups::list(place.folder).size(), 1);
    const QString beside =
        place.folder.backups().filePath(Backups::measuredName(Backups::list(place.folder).first().name));
    QCOMPARE(Test::contents(beside), MeasuredFile::save(known()));
    QVERIFY(Test::write(beside, "half"));
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    QCOMPARE(Test::contents(beside), MeasuredFile::save(known()));
    // Nothing damaged is copied, and what is gone says nothing.
    QVERIFY(place.put(u"voltbok-measured.json"_s, "half"));
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    QVERIFY(QFile::remove(place.folder.measuredFile()));
    QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    QCOMPARE(Backups::list(place.folder).size(), 1);
    QCOMPARE(Test::contents(beside), MeasuredFile::save(known()));
}

/** A restore may have put others in their place: this copy is then the only place where they are. */
void MeasuredTest::otherMeasuredValuesAreAnotherCopy()
{
    const Place place;
    const QByteArray document = "<Voltbok/>\n";
    Measured later = known();
    later.models.clear();
    const QList<Measured> versions{known(), later, known()};
    for (const Measured &version : versions) {
        QCOMPARE(MeasuredStore::save(place.folder, version), QString());
        QCOMPARE(Backups::add(place.folder, document, Noon), QString());
    }
    const QList<Copy> copies = Backups::list(place.folder);
    QCOMPARE(copies.size(), versions.size());
    for (qsizetype i = 0; i < copies.size(); ++i) {
        const Backups::Held held = Backups::held(place.folder, copies.at(copies.size() - 1 - i));
        QCOMPARE(held.document, document);
        QCOMPARE(held.beside, MeasuredFile::save(versions.at(i)));
    }
}

void MeasuredTest::theirLossHindersNoCopy()
{
    const Place place;
    QVERIFY(QDir(place.root.path()).mkpath(u"voltbok-measured.json/below"_s));
    QVERIFY(QDir(place.root.path()).mkpath(u"backups/voltbok-00000002-20261121-120000-000Z.json"_s));
    QCOMPARE(Backups::add(place.folder, "<Voltbok/>\n", Noon), QString());
    QVERIFY(QDir(place.root.path()).rmdir(u"voltbok-measured.json/below"_s));
    QVERIFY(QDir(place.root.path()).rmdir(u"voltbok-measured.json"_s));
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(Backups::add(place.folder, "<Voltbok><a/></Voltbok>\n", Noon), QString());
    QCOMPARE(Backups::list(place.folder).size(), 2);
}

void MeasuredTest::theyGoWithTheirCopy()
{
    const Place place;
    QCOMPARE(MeasuredStore::save(place.folder, known()), QString());
    QCOMPARE(Backups::add(place.folder, "<Voltbok/>\n", Noon), QString());
    QCOMPARE(Backups::keepNewestWhole(place.folder), QString());
    QVERIFY(QFileInfo::exists(
        place.folder.backups().filePath(u"voltbok-00000001-kept-20261121-120000-000Z.json"_s)));
    for (int i = 1; i <= 3; ++i) {
        const QByteArray document = "<Voltbok><a x=\"" + QByteArray::number(i) + "\"/></Voltbok>\n";
        QCOMPARE(Backups::add(place.folder, document, Noon.addSecs(i)), QString());
    }
    Backups::thin(place.folder, Noon.addDays(40)); // the first is kept, the last is that of its month
    QCOMPARE(Backups::list(place.folder).size(), 2);
    QCOMPARE(place.folder.backups().entryList({u"*.json"_s}).size(), 2);
}

QTEST_GUILESS_MAIN(MeasuredTest)
#include "tst_measured.moc"
