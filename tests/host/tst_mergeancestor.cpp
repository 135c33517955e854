// SPDX-License-Identifier: GPL-3.0-or-later
// Which of the earlier versions is the common ancestor: never one that makes entries go that nobody removed.
#include "host/data/merge.h"
#include "host/data/mergeancestor.h"
#include "tests/host/support/histories.h"

#include <QTest>

using namespace Host;
using namespace Histories;
using PlainLogbook::at;
using PlainLogbook::logbook;

namespace {

std::optional<Catalogue> found(const Catalogue &ours, const Catalogue &theirs,
                               const QList<Catalogue> &versions)
{
    AncestorSearch search(ours, theirs);
    for (const Catalogue &version : versions)
        search.add(version, false);
    return search.best();
}

Catalogue flown(Catalogue catalogue, int hour, int battery = 0)
{
    catalogue.batteries[battery].discharges.append({at(hour, 0), 1000, 2000});
    ++catalogue.batteries[battery].cycles;
    catalogue.models[0].log.append(PlainLogbook::flight(at(hour, 0)));
    ++catalogue.models[0].flights;
    return catalogue;
}

/** Everything with a time that both sides have entered since they parted, and have still. */
QString lostOf(const Catalogue &merged, const Catalogue &side, const Catalogue &parting)
{
    for (const Battery &battery : side.batteries) {
        for (const Discharge &discharge : battery.discharges) {
            const auto has = [&](const Catalogue &catalogue) {
                return std::any_of(
                    catalogue.batteries.cbegin(), catalogue.batteries.cend(), [&](const Battery &other) {
                        return std::any_of(
                            other.discharges.cbegin(), other.discharges.cend(), [&](const Discharge &one) {
                                return one.time == discharge.time && one.discharged == discharge.discharged;
                            });
                    });
            };
            if (!has(parting) && !has(merged))
                return battery.name + discharge.time.toString(u" yyyy-MM-dd HH:mm:ss"_s);
        }
    }
    return QString();
}

} // namespace

class MergeAncestorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutVersionsThereIsNone();
    void theVersionWhereBothPartedIsTaken();
    void neitherSideItselfIsOne();
    void aVersionOfOneSideAloneIsNone();
    void ofTheOldestVersionOnlyWhatStoodBeforeIsBelievedRemoved();
    void whatWasThereInEarlierVersionsIsBelievedRemoved();
    void whatBothEnteredByThemselvesMisleadsNobody();
    void whatWasMergedIsTheAncestorOfWhatFollows();
    void countersCountOnceWhatBothHaveSince();
    void nothingThatWasEnteredIsLost_data();
    void nothingThatWasEnteredIsLost();
};

void MergeAncestorTest::withoutVersionsThereIsNone()
{
    QVERIFY(!found(logbook(), flown(logbook(), 15), {}));
}

void MergeAncestorTest::theVersionWhereBothPartedIsTaken()
{
    const Catalogue first = logbook();
    const Catalogue parting = flown(first, 13);
    const Catalogue ours = flown(flown(parting, 14), 15);
    Catalogue theirs = flown(parting, 16, 1);
    theirs.batteries[0].capacity = 2000;
    const std::optional<Catalogue> ancestor = found(ours, theirs, {first, parting, flown(parting, 14)});
    QVERIFY(ancestor && *ancestor == parting);
    const Merge merged = merge(ours, theirs, ancestor);
    QVERIFY(merged.conflicts.isEmpty());
    QCOMPARE(merged.catalogue.batteries.at(0).capacity, 2000U);
}

void MergeAncestorTest::neitherSideItselfIsOne()
{
    const Catalogue ours = flown(logbook(), 15);
    Catalogue theirs = logbook();
    theirs.batteries[0].capacity = 2000;
    QVERIFY(!found(ours, theirs, {ours}));
    QVERIFY(!found(ours, theirs, {theirs})); // that the synchroniser brought
}

void MergeAncestorTest::aVersionOfOneSideAloneIsNone()
{
    const Catalogue ours = flown(flown(logbook(), 14), 15);
    const Catalogue theirs = flown(flown(logbook(), 16, 1), 17);
    QVERIFY(!found(ours, theirs, {flown(logbook(), 14)}));
    QVERIFY(!found(ours, theirs, {flown(logbook(), 16, 1)}));
    Catalogue edited = flown(logbook(), 14);
    edited.batteries[0].charged = false; // with nothing that came with it
    QVERIFY(!found(ours, theirs, {flown(logbook(), 14), edited}));
}

void MergeAncestorTest::ofTheOldestVersionOnlyWhatStoodBeforeIsBelievedRemoved()
{
    const Catalogue ours = flown(logbook(), 15);
    Catalogue theirs = flown(logbook(), 16, 1);
    theirs.batteries[0].discharges.removeFirst(); // others stand behind it
    theirs.batteries.removeAt(0);
    QVERIFY(found(ours, theirs, {logbook()}).has_value());
    theirs = flown(logbook(), 16, 1);
    theirs.locations.removeLast(); // nothing tells whether it had been there
    QVERIFY(!found(ours, theirs, {logbook()}));
    theirs = flown(logbook(), 16, 1);
    theirs.batteries[0].discharges.removeLast(); // but others are later
    QVERIFY(found(ours, theirs, {logbook()}).has_value());
    Catalogue late = logbook();
    late.batteries[0].discharges.append({at(8, 0), 1000, 2000}); // entered later than it was flown
    theirs = flown(logbook(), 16, 1);
    QVERIFY(!found(flown(late, 15), theirs, {late}));
}

void MergeAncestorTest::whatWasThereInEarlierVersionsIsBelievedRemoved()
{
    const Catalogue first = logbook();
    const Catalogue parting = flown(first, 13, 1);
    const Catalogue ours = flown(parting, 14);
    Catalogue theirs = parting;
    theirs.locations.removeLast();
    const std::optional<Catalogue> ancestor = found(ours, theirs, {first, parting});
    QVERIFY(ancestor && *ancestor == parting);
    const Merge merged = merge(ours, theirs, ancestor);
    QCOMPARE(merged.removed.locations, 1);
    QCOMPARE(merged.catalogue.locations, theirs.locations);
}

void MergeAncestorTest::whatBothEnteredByThemselvesMisleadsNobody()
{
    const Catalogue first = logbook();
    const Catalogue parting = flown(first, 13, 1);
    const Catalogue alone = flown(parting, 14);
    const Catalogue shared = flown(alone, 15); // from a log that both have imported
    const Catalogue theirs = flown(flown(parting, 15), 16, 1);
    const std::optional<Catalogue> ancestor =
        found(flown(shared, 17), theirs, {first, parting, alone, shared});
    QCOMPARE(lostOf(merge(flown(shared, 17), theirs, ancestor).catalogue, alone, parting), QString());
    QCOMPARE(ancestor->batteries.at(0).discharges, parting.batteries.at(0).discharges);
}

void MergeAncestorTest::whatWasMergedIsTheAncestorOfWhatFollows()
{
    const Catalogue ours = flown(logbook(), 14);
    const Catalogue theirs = flown(logbook(), 16, 1);
    const Catalogue merged = merge(ours, theirs, logbook()).catalogue;
    const auto search = [&](const Catalogue &next) {
        AncestorSearch versions(flown(merged, 18), next);
        versions.add(logbook(), false);
        versions.add(ours, false);
        versions.add(theirs, true);
        versions.add(merged, false);
        return versions.best();
    };
    const std::optional<Catalogue> next = search(flown(theirs, 17, 1));
    QVERIFY(next && *next == theirs);
    const std::optional<Catalogue> again = search(theirs);
    QVERIFY(again && *again == theirs);
    QVERIFY(merge(flown(merged, 18), theirs, again).catalogue == flown(merged, 18));
    // Not for somebody who has nothing of it.
    const std::optional<Catalogue> other = search(flown(logbook(), 17, 1));
    QVERIFY(other && *other == logbook());
}

void MergeAncestorTest::countersCountOnceWhatBothHaveSince()
{
    const Catalogue first = logbook();
    const Catalogue parting = flown(first, 13); // of which there is no copy
    const Merge merged =
        merge(flown(parting, 14), flown(parting, 15), found(flown(parting, 14), flown(parting, 15), {first}));
    QCOMPARE(merged.catalogue.batteries.at(0).cycles, first.batteries.at(0).cycles + 3);
    QCOMPARE(merged.catalogue.models.at(0).flights, first.models.at(0).flights + 3);
}

void MergeAncestorTest::nothingThatWasEnteredIsLost_data()
{
    QTest::addColumn<bool>("isShared");
    QTest::addColumn<int>("thinned");
    QTest::newRow("all versions of ours") << false << 0;
    QTest::newRow("half of them") << false << 2;
    QTest::newRow("few of them") << false << 5;
    QTest::newRow("those of both sides") << true << 0;
    QTest::newRow("half of those of both sides") << true << 2;
}

void MergeAncestorTest::nothingThatWasEnteredIsLost()
{
    QFETCH(bool, isShared);
    QFETCH(int, thinned);
    int withAncestor = 0;
    for (quint32 seed = 1; seed <= 400; ++seed) {
        Pilot before(seed, 0);
        Pilot first(seed, 1);
        Pilot second(seed, 2);
        QList<Catalogue> versions;
        const auto record = [&](const Catalogue &version) {
            if (thinned == 0 || before.bounded(static_cast<quint32>(thinned)) == 0)
                versions.append(version);
        };
        Catalogue parting = logbook();
        for (int i = 0; i < 8; ++i) {
            before.act(parting);
            record(parting);
        }
        Catalogue ours = parting;
        Catalogue theirs = parting;
        for (int i = 0; i < 6; ++i) {
            first.act(ours);
            second.act(theirs);
            if (i == 5)
                break; // the last ones are the two sides themselves
            record(ours);
            if (isShared)
                record(theirs);
        }
        const std::optional<Catalogue> ancestor = found(ours, theirs, versions);
        withAncestor += ancestor ? 1 : 0;
        const Catalogue merged = merge(ours, theirs, ancestor).catalogue;
        for (const Catalogue &side : {ours, theirs}) {
            // A battery may have been deleted on the other side, with all that nobody has touched.
            const QString lost = lostOf(merged, side, parting);
            QVERIFY2(lost.isEmpty(), qPrintable(u"seed %1: %2"_s.arg(seed).arg(lost)));
        }
    }
    QVERIFY2(withAncestor > 100, qPrintable(QString::number(withAncestor)));
}

QTEST_GUILESS_MAIN(MergeAncestorTest)
#include "tst_mergeancestor.moc"
