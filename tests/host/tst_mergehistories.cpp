// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for every merge, with histories that are made from seeds.
#include "host/data/merge.h"
#include "tests/host/support/histories.h"

#include <QJsonDocument>
#include <QProcess>
#include <QTest>

#include <functional>

using namespace Host;
using namespace Histories;

namespace {

constexpr quint32 Cases = 1000;

struct Case
{
    Catalogue ancestor;
    Catalogue ours;
    Catalogue theirs;

    explicit Case(quint32 seed)
        : ancestor(PlainLogbook::logbook())
    {
        Pilot(seed, 0).act(ancestor, 12);
        ours = theirs = ancestor;
        Pilot first(seed, 1);
        Pilot second(seed, 2);
        first.act(ours, static_cast<int>(first.bounded(10)));
        second.act(theirs, static_cast<int>(second.bounded(10)));
    }
};

/** Of each case. @param check returns what is wrong. */
QString wrongIn(const std::function<QString(const Case &)> &check)
{
    for (quint32 seed = 1; seed <= Cases; ++seed) {
        if (const QString wrong = check(Case(seed)); !wrong.isEmpty())
            return u"seed %1: %2"_s.arg(seed).arg(wrong);
    }
    return QString();
}

/** Everything that tells the entries and records of a logbook apart. */
QStringList elementsOf(const Catalogue &catalogue)
{
    QStringList elements = catalogue.locations;
    for (const Battery &battery : catalogue.batteries) {
        elements.append(u"battery "_s + battery.name);
        for (const Discharge &discharge : battery.discharges)
            elements.append(u"%1 %2 %3"_s.arg(battery.name, discharge.time.toString(Qt::ISODate))
                                .arg(discharge.time.isValid() ? 0 : discharge.discharged));
    }
    for (const Model &model : catalogue.models) {
        elements.append(u"model "_s + model.name);
        for (const Flight &flight : model.log)
            elements.append(
                u"%1 %2 %3"_s.arg(model.name, flight.time.toString(Qt::ISODate),
                                  flight.time.isValid() ? QString() : flight.notes + flight.location));
    }
    return elements;
}

QString lackingIn(const Catalogue &merged, const Catalogue &side)
{
    const QStringList there = elementsOf(merged);
    const QStringList wanted = elementsOf(side);
    for (const QString &element : wanted) {
        if (!there.contains(element))
            return element;
    }
    return QString();
}

bool areApart(const QList<QJsonValue> &entries)
{
    return std::none_of(entries.cbegin(), entries.cend(),
                        [&entries](const QJsonValue &entry) { return entries.count(entry) > 1; });
}

/** Whether no two entries are the same but for their values: the other program knows no pairs of them. */
bool isPlain(const Catalogue &catalogue)
{
    for (const Battery &battery : catalogue.batteries) {
        QList<QJsonValue> keys;
        for (const Discharge &discharge : battery.discharges)
            keys.append(discharge.time.isValid() ? jsonOf(discharge.time)
                                                 : QJsonValue(qint64(discharge.discharged)));
        if (!areApart(keys))
            return false;
    }
    return true;
}

} // namespace

class MergeHistoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOrderDoesNotMatterWhereThereIsNoConflict();
    void mergingTwiceChangesNothing();
    void whatOneSideDidAloneIsTakenAsItIs();
    void withoutAnAncestorNothingIsLost();
    void whatWasEnteredOnEitherSideIsThere();
    void anotherProgramComesToTheSame();
};

void MergeHistoriesTest::theOrderDoesNotMatterWhereThereIsNoConflict()
{
    int withoutConflict = 0;
    const QString wrong = wrongIn([&](const Case &one) {
        const Merge merged = merge(one.ours, one.theirs, one.ancestor);
        const Merge mirrored = merge(one.theirs, one.ours, one.ancestor);
        if (merged.conflicts.size() != mirrored.conflicts.size())
            return u"the conflicts differ"_s;
        if (!merged.conflicts.isEmpty())
            return QString();
        ++withoutConflict;
        return sorted(merged.catalogue) == sorted(mirrored.catalogue) ? QString() : u"they differ"_s;
    });
    QCOMPARE(wrong, QString());
    QVERIFY(withoutConflict > int(Cases) / 3);
}

void MergeHistoriesTest::mergingTwiceChangesNothing()
{
    const auto twice = [](const Catalogue &ours, const Catalogue &theirs,
                          const std::optional<Catalogue> &ancestor) {
        const Catalogue once = merge(ours, theirs, ancestor).catalogue;
        const Merge again = merge(once, theirs, ancestor);
        if (again.catalogue != once)
            return u"it changed"_s;
        if (again.changed + again.added.sum() + again.removed.sum() != 0)
            return u"it says that it changed"_s;
        // Nor does it where the other side has merged, too.
        const Merge both = merge(once, merge(theirs, ours, ancestor).catalogue, ancestor);
        return both.conflicts.isEmpty() && sorted(both.catalogue) != sorted(once) ? u"both differ"_s
                                                                                  : QString();
    };
    QCOMPARE(wrongIn([&](const Case &one) { return twice(one.ours, one.theirs, one.ancestor); }), QString());
    QCOMPARE(wrongIn([&](const Case &one) { return twice(one.ours, one.theirs, std::nullopt); }), QString());
}

void MergeHistoriesTest::whatOneSideDidAloneIsTakenAsItIs()
{
    const QString wrong = wrongIn([](const Case &one) {
        const Merge theirs = merge(one.ancestor, one.theirs, one.ancestor);
        if (!theirs.conflicts.isEmpty() || sorted(theirs.catalogue) != sorted(one.theirs))
            return u"theirs"_s;
        const Merge ours = merge(one.ours, one.ancestor, one.ancestor);
        return ours.conflicts.isEmpty() && ours.catalogue == one.ours ? QString() : u"ours"_s;
    });
    QCOMPARE(wrong, QString());
}

void MergeHistoriesTest::withoutAnAncestorNothingIsLost()
{
    const QString wrong = wrongIn([](const Case &one) {
        const Merge merged = merge(one.ours, one.theirs, std::nullopt);
        if (merged.removed.sum() != 0)
            return u"something was removed"_s;
        const QString lacking = lackingIn(merged.catalogue, one.ours);
        return lacking.isEmpty() ? lackingIn(merged.catalogue, one.theirs) : lacking;
    });
    QCOMPARE(wrong, QString());
}

void MergeHistoriesTest::whatWasEnteredOnEitherSideIsThere()
{
    const QString wrong = wrongIn([](const Case &one) {
        const QStringList there = elementsOf(merge(one.ours, one.theirs, one.ancestor).catalogue);
        const QStringList before = elementsOf(one.ancestor);
        for (const Catalogue &side : {one.ours, one.theirs}) {
            const QStringList elements = elementsOf(side);
            for (const QString &element : elements) {
                if (!before.contains(element) && !there.contains(element))
                    return element;
            }
        }
        return QString();
    });
    QCOMPARE(wrong, QString());
}

void MergeHistoriesTest::anotherProgramComesToTheSame()
{
    QJsonArray cases;
    QList<Merge> merges;
    for (quint32 seed = 1; seed <= Cases; ++seed) {
        const Case one(seed);
        if (!isPlain(one.ours) || !isPlain(one.theirs) || !isPlain(one.ancestor))
            continue;
        const bool hasAncestor = seed % 4 != 0;
        cases.append(QJsonObject{
            {u"ours"_s, jsonOf(one.ours)},
            {u"theirs"_s, jsonOf(one.theirs)},
            {u"base"_s, hasAncestor ? QJsonValue(jsonOf(one.ancestor)) : QJsonValue(QJsonValue::Null)}});
        merges.append(merge(one.ours, one.theirs, hasAncestor ? std::optional(one.ancestor) : std::nullopt));
    }
    QVERIFY(merges.size() > int(Cases) / 2);
    QProcess other;
    other.start(u"python3"_s, {QStringLiteral(OTHER_PROGRAM)});
    other.write(QJsonDocument(cases).toJson(QJsonDocument::Compact));
    other.closeWriteChannel();
    QVERIFY(other.waitForFinished(120'000));
    QCOMPARE(other.readAllStandardError(), "");
    const QJsonArray results = QJsonDocument::fromJson(other.readAllStandardOutput()).array();
    QCOMPARE(results.size(), merges.size());
    for (qsizetype i = 0; i < merges.size(); ++i) {
        const QJsonObject expected = results.at(i).toObject();
        if (jsonOf(merges.at(i).catalogue) != expected.value(u"merged"_s).toObject()) {
            qWarning().noquote() << QJsonDocument(cases.at(i).toObject()).toJson(QJsonDocument::Compact);
            QCOMPARE(QJsonDocument(jsonOf(merges.at(i).catalogue)).toJson(),
                     QJsonDocument(expected.value(u"merged"_s).toObject()).toJson());
        }
        QCOMPARE(merges.at(i).conflicts.size(), expected.value(u"conflicts"_s).toArray().size());
        for (qsizetype j = 0; j < merges.at(i).conflicts.size(); ++j) {
            const QJsonArray conflict = expected[u"conflicts"_s].toArray().at(j).toArray();
            QVERIFY(std::any_of(merges.at(i).conflicts.cbegin(), merges.at(i).conflicts.cend(),
                                [&conflict](const MergeConflict &one) {
                                    return one.name == conflict.at(1).toString() &&
                                           one.field == conflict.at(2).toString();
                                }));
        }
    }
}

QTEST_GUILESS_MAIN(MergeHistoriesTest)
#include "tst_mergehistories.moc"
