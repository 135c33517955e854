// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/difference.h"
#include "tests/support/growth.h"

#include <QTest>

#include <functional>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

QDateTime at(int day, int hour = 12)
{
    return QDateTime(QDate(2026, 5, day), QTime(hour, 0));
}

/** Two batteries, two models that fly both, three flights with their discharges, one on the bench. */
Catalogue logbook()
{
    Catalogue catalogue;
    catalogue.locations = {u"Club field"_s, u"Meadow"_s};
    catalogue.batteries.append({u"A"_s, 450, 45, 20, 7, true, QDate(2025, 3, 14), at(3), {}});
    catalogue.batteries.append({u"B"_s, 2200, 25, 50, 9, false, QDate(2025, 3, 14), at(3), {}});
    catalogue.batteries[0].discharges = {{at(1), 376, 1317}, {at(2), 300, 1000}, {at(4, 9), 50, 100}};
    catalogue.batteries[1].discharges = {{at(3), 1800, 4000}};
    Model model;
    model.name = u"Skylark"_s;
    model.batteries = {u"A"_s, u"B"_s};
    model.flights = 12;
    model.log = {{at(1), QTime(0, 5, 12), u"Club field"_s, 18, u"calm"_s},
                 {at(2), QTime(0, 5, 0), u"Club field"_s, 18, {}}};
    catalogue.models.append(model);
    model.name = u"Firebrand"_s;
    model.log = {{at(3), QTime(0, 6, 0), u"Meadow"_s, 21, {}}};
    catalogue.models.append(model);
    return catalogue;
}

void fly(Catalogue &catalogue, const QDateTime &time)
{
    Battery &battery = catalogue.batteries[1];
    battery.discharges.append({time, 1700, 3900});
    ++battery.cycles;
    battery.charged = false;
    battery.lastUse = time;
    Model &model = catalogue.models[0];
    model.log.append({time, QTime(0, 5, 0), u"Meadow"_s, 20, {}});
    ++model.flights;
    model.lastUpdate = time;
}

using Edit = std::function<void(Catalogue &)>;

QString words(const Catalogue &copy, const Catalogue &now)
{
    return DifferenceTexts::inWords(differenceOf(copy, now));
}

} // namespace

Q_DECLARE_METATYPE(Edit)

class DifferenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCopyIsToldFromTheLogbookNow_data();
    void aCopyIsToldFromTheLogbookNow();
    void theSameTheOtherWayRound();
    void aCopyOfAnEmptyLogbook();
    void bothSidesOfARecordAreTold_data();
    void bothSidesOfARecordAreTold();
    void whatIsImpliedIsListedAllTheSame();
    void recordsAreCountedInWords();
    void theTimeGrowsWithTheEntries();
};

void DifferenceTest::aCopyIsToldFromTheLogbookNow_data()
{
    QTest::addColumn<Edit>("since"); // what was done since the copy was made
    QTest::addColumn<QString>("told");
    const auto row = [](const char *name, const Edit &since, const QString &told) {
        QTest::newRow(name) << since << told;
    };
    row(
        "nothing", [](Catalogue &) {}, u"the same as now"_s);
    row(
        "a flight", [](Catalogue &c) { fly(c, at(5)); }, u"1 flight fewer"_s);
    row(
        "two flights and a battery",
        [](Catalogue &c) {
            fly(c, at(5));
            fly(c, at(6));
            c.batteries.append(Battery());
            c.models[1].batteries.append(u"C"_s);
        },
        u"2 flights and 1 battery fewer"_s);
    row(
        "a battery that flies", // which changes the model that it belongs to, and nothing else of it
        [](Catalogue &c) {
            c.batteries.append({u"C"_s, 450, 45, 20, 0, false, {}, {}, {}});
            c.models[1].batteries.append(u"C"_s);
        },
        u"1 battery fewer"_s);
    row(
        "a flight that was deleted",
        [](Catalogue &c) {
            c.models[0].log.removeFirst();
            c.batteries[0].discharges.removeFirst();
            --c.batteries[0].cycles;
        },
        u"1 flight more"_s);
    row(
        "a battery that was deleted", [](Catalogue &c) { c.batteries.removeFirst(); },
        u"3 discharges and 1 battery more"_s);
    row(
        "a discharge on the bench",
        [](Catalogue &c) {
            c.batteries[0].discharges.append({at(7), 10, 10});
        },
        u"1 discharge fewer"_s);
    row(
        "locations",
        [](Catalogue &c) {
            c.locations += {u"Slope"_s, u"Lake"_s};
        },
        u"2 locations fewer"_s);
    row(
        "a location with another name", [](Catalogue &c) { c.locations[1] = u"Lake"_s; },
        u"1 location changed"_s);
    row(
        "more and fewer",
        [](Catalogue &c) {
            fly(c, at(5));
            c.models.removeLast();
        },
        u"1 flight fewer, 1 flight and 1 model more"_s);
    row(
        "notes of flights",
        [](Catalogue &c) {
            c.models[0].log[0].notes.clear();
            c.models[1].log[0].notes = u"gusty"_s;
        },
        u"2 flights changed"_s);
    row(
        "a flight that moved with its discharge",
        [](Catalogue &c) {
            c.models[0].log[0].time = at(1, 13);
            c.batteries[0].discharges[0].time = at(1, 13);
        },
        u"1 flight changed"_s);
    row(
        "a flight of another model",
        [](Catalogue &c) { c.models[1].log.append(c.models[0].log.takeFirst()); }, u"1 flight changed"_s);
    row(
        "a discharge", [](Catalogue &c) { c.batteries[0].discharges[2].discharged = 60; },
        u"1 discharge changed"_s);
    row(
        "a battery that was charged", [](Catalogue &c) { c.batteries[1].charged = true; },
        u"1 battery discharged"_s);
    row(
        "a battery that was emptied",
        [](Catalogue &c) {
            c.batteries[0].charged = false;
            c.batteries[0].lastUse = at(8);
        },
        u"1 battery charged"_s);
    row(
        "charged and renamed",
        [](Catalogue &c) {
            c.batteries[1].charged = true;
            c.batteries[0].name = u"Z"_s;
            c.models[0].batteries[0] = u"Z"_s;
            c.models[1].batteries[0] = u"Z"_s;
        },
        u"1 battery changed, 1 battery discharged"_s);
    row(
        "cycles alone", [](Catalogue &c) { c.batteries[0].cycles = 70; }, u"1 battery changed"_s);
    row(
        "a model that was renamed", [](Catalogue &c) { c.models[0].name = u"Lark"_s; }, u"1 model changed"_s);
    row(
        "the count of a model", [](Catalogue &c) { c.models[0].flights = 99; }, u"1 model changed"_s);
    row(
        "a model without a battery", [](Catalogue &c) { c.models[0].batteries.removeFirst(); },
        u"1 model changed"_s);
    row(
        "a flight and a note",
        [](Catalogue &c) {
            fly(c, at(5));
            c.models[0].notes = u"new blades"_s;
            c.models[0].log[1].notes = u"gusty"_s;
        },
        u"1 flight fewer, 1 flight and 1 model changed"_s);
    row(
        "another order", [](Catalogue &c) { c.batteries.swapItemsAt(0, 1); },
        u"the same as now, in another order"_s);
    row(
        "flights in another order",
        [](Catalogue &c) {
            c.models[0].log.swapItemsAt(0, 1);
            ++c.models[0].flights;
        },
        u"1 model changed"_s);
}

void DifferenceTest::aCopyIsToldFromTheLogbookNow()
{
    QFETCH(Edit, since);
    Catalogue now = logbook();
    since(now);
    QTEST(words(logbook(), now), "told");
}

void DifferenceTest::theSameTheOtherWayRound()
{
    Catalogue copy = logbook();
    fly(copy, at(5));
    copy.batteries.append(Battery());
    QCOMPARE(words(copy, logbook()), u"1 flight and 1 battery more"_s);
}

void DifferenceTest::aCopyOfAnEmptyLogbook()
{
    QCOMPARE(words(Catalogue(), logbook()),
             u"3 flights, 1 discharge, 2 batteries, 2 models and 2 locations fewer"_s);
    QCOMPARE(words(Catalogue(), Catalogue()), u"the same as now"_s);
}

void DifferenceTest::bothSidesOfARecordAreTold_data()
{
    QTest::addColumn<Edit>("since");
    QTest::addColumn<QStringList>("told"); // kind, in the copy, now
    const auto row = [](const char *name, const Edit &since, const QStringList &told) {
        QTest::newRow(name) << since << told;
    };
    row("a flight that is gone",
        [](Catalogue &c) {
            c.models[0].log.removeFirst();
            c.batteries[0].discharges.removeFirst();
        },
        {u"Flight"_s, u"Skylark, 2026-05-01 12:00:00, 0:05:12, Club field, 18 °C, notes: calm"_s, QString()});
    row("notes of a flight", [](Catalogue &c) { c.models[0].log[0].notes.clear(); },
        {u"Flight"_s, u"Skylark, 2026-05-01 12:00:00, notes: calm"_s, u"Skylark, 2026-05-01 12:00:00, –"_s});
    row("a discharge", [](Catalogue &c) { c.batteries[0].discharges[2].current = 250; },
        {u"Discharge"_s, u"A, 2026-05-04 09:00:00, 1.00 A"_s, u"A, 2026-05-04 09:00:00, 2.50 A"_s});
    row("a battery", [](Catalogue &c) { c.batteries[0].cycles = 8; },
        {u"Battery"_s, u"A, cycles: 7"_s, u"A, cycles: 8"_s});
    row("a battery that is new",
        [](Catalogue &c) {
            c.batteries.append({u"C"_s, 450, 45, 20, 0, true, {}, {}, {}});
        },
        {u"Battery"_s, QString(),
         u"C, 450 mAh, discharge rate 45 C, charge rate 2.0 C, cycles: 0, charged"_s});
    row("a model", [](Catalogue &c) { c.models[1].notes = u"two\nlines"_s; },
        {u"Model"_s, u"Firebrand, –"_s, u"Firebrand, notes: two lines"_s});
    row("a location", [](Catalogue &c) { c.locations[0] = u"Lake"_s; },
        {u"Location"_s, u"Club field"_s, u"Lake"_s});
}

void DifferenceTest::bothSidesOfARecordAreTold()
{
    QFETCH(Edit, since);
    Catalogue now = logbook();
    since(now);
    const Difference difference = differenceOf(logbook(), now);
    const DifferentRecord record = difference.records.constFirst();
    const auto [copy, present] = DifferenceTexts::sides(record, logbook(), now);
    QTEST(QStringList({DifferenceTexts::kindName(record.kind), copy, present}), "told");
}

void DifferenceTest::whatIsImpliedIsListedAllTheSame()
{
    Catalogue now = logbook();
    fly(now, at(5));
    const Difference difference = differenceOf(logbook(), now);
    QList<RecordKind> kinds;
    for (const DifferentRecord &record : difference.records)
        kinds.append(record.kind);
    QCOMPARE(kinds,
             (QList{RecordKind::Flight, RecordKind::Discharge, RecordKind::Battery, RecordKind::Model}));
}

void DifferenceTest::recordsAreCountedInWords()
{
    QCOMPARE(DifferenceTexts::counted(RecordKind::Battery, 1), u"1 battery"_s);
    QCOMPARE(DifferenceTexts::counted(RecordKind::Battery, 0), u"0 batteries"_s);
    QCOMPARE(DifferenceTexts::enumerated({u"a"_s}), u"a"_s);
    QCOMPARE(DifferenceTexts::enumerated({u"a"_s, u"b"_s, u"c"_s}), u"a, b and c"_s);
}

/** Nothing of it may grow with the square of what differs, with or without times. */
void DifferenceTest::theTimeGrowsWithTheEntries()
{
    const auto compare = [](int entries) {
        Catalogue copy = logbook();
        Catalogue now = logbook();
        for (int i = 0; i < entries; ++i) {
            const QDateTime time = i % 2 ? at(1).addSecs(60LL * i) : QDateTime();
            copy.models[0].log.append({time, QTime(0, 5), QString(), i, {}});
            now.models[0].log.append({time, QTime(0, 6), QString(), i, {}});
        }
        QCOMPARE(words(copy, now), u"%1 flights changed"_s.arg(entries));
    };
    const double growth = Test::growth(compare, 100'000);
    QVERIFY2(growth < 40, qPrintable(QString::number(growth)));
}

QTEST_GUILESS_MAIN(DifferenceTest)
#include "tst_difference.moc"
