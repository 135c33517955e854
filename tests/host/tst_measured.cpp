// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of measured discharges: its file, and how it goes along with the logbook.
#include "host/data/edits.h"
#include "host/data/measured.h"
#include "tests/host/support/plainlogbook.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <functional>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

using Edit = std::function<QString(Catalogue &)>;
Q_DECLARE_METATYPE(Edit)

namespace {

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

QTEST_GUILESS_MAIN(MeasuredTest)
#include "tst_measured.moc"
