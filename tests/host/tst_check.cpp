// SPDX-License-Identifier: GPL-3.0-or-later
// What is found in a logbook's file.
#include "host/data/cataloguefile.h"
#include "host/data/findings.h"
#include "host/safety/wholefile.h"
#include "tests/host/support/facts.h"
#include "tests/host/support/logbookfiles.h"
#include "tests/host/support/mutations.h"
#include "tests/host/support/plainlogbook.h"
#include "tests/support/datafile.h"
#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

namespace {

/** A logbook in which nothing is to be found: each flight has a discharge, each discharge a flight. */
Catalogue faultless()
{
    Catalogue catalogue;
    catalogue.locations = {u"Meadow"_s, u"Hill"_s};
    catalogue.batteries = {battery(u"A"_s, {{at(9, 0), 1500, 3000}}),
                           battery(u"B"_s, {{at(9, 0), 1600, 3100}, {at(10, 0), 0, 0}})};
    catalogue.models = {model(u"Skylark"_s, {u"A"_s, u"B"_s}, {flight(at(9, 0))}),
                        model(u"Firebrand"_s, {u"B"_s}, {flight(at(10, 0))})};
    return catalogue;
}

QByteArray written(const Catalogue &catalogue)
{
    return CatalogueFile::save(catalogue).document;
}

/** The document without its other spelling of what stands for @p from, which is there once. */
QByteArray changed(const QByteArray &from, const QByteArray &to)
{
    QByteArray document = written(faultless());
    const qsizetype where = document.indexOf(from);
    return where < 0 ? QByteArray() : document.replace(where, from.size(), to);
}

/** The findings as the lines of a table: "unread: battery “A”: …". */
QStringList found(const QByteArray &document)
{
    const Findings findings = findingsOf(document);
    QStringList lines;
    for (const Finding &finding : findings.list)
        lines.append(findingKey(finding.kind) + u": "_s + finding.what);
    return findings.problem.isEmpty() ? lines : QStringList{findings.problem};
}

QStringList found(const Catalogue &catalogue)
{
    return found(written(catalogue));
}

} // namespace

class CheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsFoundInAFaultlessFile();
    void mereSpellingIsNothing_data();
    void mereSpellingIsNothing();
    void whatIsNotReadOrDroppedNamesItsRecordAndLine_data();
    void whatIsNotReadOrDroppedNamesItsRecordAndLine();
    void aTimeThatThisZoneDoesNotHaveIsDropped();
    void aTimeThatTheLoadersDoNotReachIsUnread();
    void aFlightWithoutADischargeIsFound();
    void aDischargeWithoutAFlightIsFound();
    void namesThatStandTwiceAreFoundOnce();
    void aNameMayLookLikeAPlaceholder();
    void linesAreThoseOfTheFileWhereEntriesWereDropped();
    void lossesAreFoundExactlyWhereLoadingAndSavingLoses_data();
    void lossesAreFoundExactlyWhereLoadingAndSavingLoses();
    void manyEntriesTakeNoLongerEach();
};

void CheckTest::nothingIsFoundInAFaultlessFile()
{
    QCOMPARE(found(faultless()), QStringList());
    QCOMPARE(found(CatalogueFile::emptyDocument()), QStringList());
}

void CheckTest::mereSpellingIsNothing_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("zeros before a number") << changed("<Capacity>2200", "<Capacity>0002200");
    QTest::newRow("white space") << changed("<Battery>", "<Battery>\n\n   ");
    QTest::newRow("order of attributes")
        << changed("Discharged=\"1500\" Current=\"3000\"", "Current=\"3000\" Discharged=\"1500\"");
    QTest::newRow("an empty value") << changed("<Purchase></Purchase>", "<Purchase/>");
    QTest::newRow("another weekday") << changed("LastUse>Sun", "LastUse>Mon");
    QTest::newRow("a character reference") << changed("<Name>A", "<Name>&#65;");
}

void CheckTest::mereSpellingIsNothing()
{
    QFETCH(QByteArray, document);
    QVERIFY(!document.isEmpty());
    QCOMPARE(found(document), QStringList());
}

void CheckTest::whatIsNotReadOrDroppedNamesItsRecordAndLine_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *name, const QByteArray &from, const QByteArray &to,
                        const QString &expected) {
        QTest::newRow(name) << changed(from, to) << QStringList{expected};
    };
    row("no number", "2200", "abc", u"unread: battery “A”: the text “abc” of “Capacity” in line 10"_s);
    row("a number that is too large", "2200", "4294967296",
        u"unread: battery “A”: the text “4294967296” of “Capacity” in line 10"_s);
    row("a word for a flag", "<Charged>1", "<Charged>true",
        u"unread: battery “A”: the text “true” of “Charged” in line 15"_s);
    row("no day", "<Purchase></Purchase>", "<Purchase>2025/02/30</Purchase>",
        u"unread: battery “A”: the text “2025/02/30” of “Purchase” in line 13"_s);
    row("no time", "<LastUse>Sun May 3", "<LastUse>Sun May 33",
        u"unread: battery “A”: the text “Sun May 33 08:00:00 2026” of “LastUse” in line 16"_s);
    row("no duration", "00:06:30", "00:66:30",
        u"unread: model “Skylark”: the attribute “Duration” (00:66:30) of “LogData” in line 47"_s);
    row("a minus", "Temperature=\"18\"", "Temperature=\"-18\"",
        u"unread: model “Skylark”: the attribute “Temperature” (-18) of “LogData” in line 47"_s);
    row("a part of a value", "00:06:30", "00:06:30.5",
        u"dropped: model “Skylark”: the attribute “Duration” (00:06:30.5) of “LogData” in line 47"_s);
    row("an element without a text", "Notes=\"calm\"/>", "Notes=\"calm\"/><Wind/>",
        u"dropped: model “Skylark”: the element “Wind” in line 47"_s);
    row("an element of the root", "<Model>", "<Glider><Name>K</Name></Glider><Model>",
        u"dropped: the element “Glider” in line 35"_s);
    QTest::newRow("all that follows an unknown element")
        << changed("<Cycles>10</Cycles>", "<Chemistry>LiPo</Chemistry><Cycles>10</Cycles>")
        << QStringList{
               u"dropped: battery “A”: the element “Chemistry” in line 14"_s,
               u"unread: battery “A”: the text “10” of “Cycles” in line 14"_s,
               u"unread: battery “A”: the text “1” of “Charged” in line 15"_s,
               u"unread: battery “A”: the text “Sun May 3 08:00:00 2026” of “LastUse” in line 16"_s,
               u"dropped: battery “A”: the element “Data” in line 17"_s,
               u"dropped: battery “B”: the element “Battery” in line 21"_s,
               u"flight without discharge: model “Skylark”: no battery has a discharge at the time of the "
               "flight of 2026-05-03 09:00:00 (line 47)"_s,
               u"flight without discharge: model “Firebrand”: no battery has a discharge at the time of the "
               "flight of 2026-05-03 10:00:00 (line 61)"_s};
    row("an attribute", "Notes=\"calm\"", "Notes=\"calm\" Wind=\"3\"",
        u"dropped: model “Skylark”: the attribute “Wind” (3) of “LogData” in line 47"_s);
    row("a comment", "<Model>", "<!-- mine --><Model>", u"dropped: a comment in line 35"_s);
    row("a comment in a record", "<Type>", "<!-- mine --><Type>",
        u"dropped: model “Skylark”: a comment in line 37"_s);
    row("a text", "Notes=\"calm\"/>", "Notes=\"calm\">hi</LogData>",
        u"dropped: model “Skylark”: the text “hi” of “LogData” in line 47"_s);
}

void CheckTest::whatIsNotReadOrDroppedNamesItsRecordAndLine()
{
    QFETCH(QByteArray, document);
    QVERIFY(!document.isEmpty());
    QTEST(found(document), "expected");
}

void CheckTest::aTimeThatThisZoneDoesNotHaveIsDropped()
{
    const Zone oslo("Europe/Oslo");
    const QByteArray document = changed("<LastUse>Sun May 3 08:00:00", "<LastUse>Sun Mar 29 02:30:00");
    QCOMPARE(
        found(document),
        QStringList{u"dropped: battery “A”: the text “Sun Mar 29 02:30:00 2026” of “LastUse” in line 16"_s});
    const Zone utc("UTC");
    QCOMPARE(found(document), QStringList());
}

void CheckTest::aTimeThatTheLoadersDoNotReachIsUnread()
{
    const QStringList lines = found(changed("<LastUse>", "<Chemistry/><LastUse>"));
    QVERIFY(
        lines.contains(u"unread: battery “A”: the text “Sun May 3 08:00:00 2026” of “LastUse” in line 16"_s));
    QVERIFY(lines.contains(u"dropped: battery “A”: the element “Chemistry” in line 16"_s));
}

void CheckTest::aFlightWithoutADischargeIsFound()
{
    Catalogue catalogue = faultless();
    catalogue.models[1].log[0].time = at(10, 0, 1);
    catalogue.models[1].log.append(flight(QDateTime()));
    catalogue.batteries[1].discharges.removeLast();
    QCOMPARE(found(catalogue),
             (QStringList{u"flight without discharge: model “Firebrand”: no battery has a discharge at the "
                          "time of the flight of 2026-05-03 10:00:01 (line 60)"_s,
                          u"flight without discharge: model “Firebrand”: a flight has no time, so that no "
                          "discharge belongs to it (line 61)"_s}));
}

void CheckTest::aDischargeWithoutAFlightIsFound()
{
    Catalogue catalogue = faultless();
    catalogue.batteries[1].discharges.append({QDateTime(), 100, 200});
    catalogue.models[1].log.clear();
    QCOMPARE(
        found(catalogue),
        (QStringList{u"discharge without flight: battery “B”: no model has a flight at the time of the "
                     "discharge of 2026-05-03 10:00:00 (line 32)"_s,
                     u"discharge without flight: battery “B”: a discharge has no time, so that no flight "
                     "belongs to it (line 33)"_s}));
}

void CheckTest::namesThatStandTwiceAreFoundOnce()
{
    Catalogue catalogue = faultless();
    catalogue.locations = {u"Hill"_s, u"Meadow"_s, u"hill"_s, u"Hill"_s, u"Hill"_s};
    catalogue.batteries.append(battery(u"A"_s));
    catalogue.models.append(model(u"Firebrand"_s, {}));
    QCOMPARE(found(catalogue),
             (QStringList{u"equal names: several batteries are called “A” (lines 11, 38)"_s,
                          u"equal names: several models are called “Firebrand” (lines 63, 77)"_s,
                          u"equal names: several locations are called “Hill” (lines 5, 8, 9)"_s}));
}

void CheckTest::aNameMayLookLikeAPlaceholder()
{
    Catalogue catalogue = faultless();
    catalogue.locations = {u"%2%1"_s, u"%2%1"_s};
    catalogue.models[1].name = u"%2"_s;
    catalogue.batteries[1].discharges.removeLast();
    QCOMPARE(found(catalogue),
             (QStringList{u"flight without discharge: model “%2”: no battery has a discharge at the time of "
                          "the flight of 2026-05-03 10:00:00 (line 60)"_s,
                          u"equal names: several locations are called “%2%1” (lines 5, 6)"_s}));
}

void CheckTest::linesAreThoseOfTheFileWhereEntriesWereDropped()
{
    const QByteArray document =
        changed("<Locations>", "<!--\n\n\n--><Locations>\n")
            .replace("<Cycle Discharged=\"0\"", "<Cycle/>\n<Wind/>\n<Cycle Discharged=\"0\"")
            .replace("<LogData Date=\"Sun May 3 10:00:00 2026\"",
                     "\n<LogData Date=\"Sun May 3 12:00:00 2026\"");
    const auto lineOf = [&document](const QByteArray &text) {
        return u"(line %1)"_s.arg(document.left(document.indexOf(text)).count('\n') + 1);
    };
    const QStringList lines = found(document);
    QCOMPARE(lines.size(), 5);
    QVERIFY2(lines.at(0).startsWith(u"dropped: a comment"_s), qPrintable(lines.at(0)));
    QVERIFY2(lines.at(1).startsWith(u"dropped: battery “B”: the element “Wind”"_s), qPrintable(lines.at(1)));
    QVERIFY2(lines.at(2).endsWith(lineOf("Sun May 3 12:00:00")), qPrintable(lines.at(2)));
    QVERIFY2(lines.at(3).endsWith(lineOf("<Cycle/>")), qPrintable(lines.at(3)));
    QVERIFY2(lines.at(4).endsWith(lineOf("Sun May 3 10:00:00")), qPrintable(lines.at(4)));
}

void CheckTest::lossesAreFoundExactlyWhereLoadingAndSavingLoses_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::newRow("always the same") << 20261122U;
    QTest::newRow("others each time") << QRandomGenerator::global()->generate();
}

/** Compared as trees by another program text than the one that finds them. */
void CheckTest::lossesAreFoundExactlyWhereLoadingAndSavingLoses()
{
    QFETCH(quint32, seed);
    qInfo("seed %u", seed);
    Mutations mutations(seed);
    int lossy = 0;
    constexpr int Rounds = 500;
    for (int round = 0; round < Rounds; ++round) {
        const QByteArray document = mutations.mutate(written(faultless()));
        QVERIFY(WholeFile::isWhole(document));
        const QString missing =
            Facts(document).missingFrom(Facts(CatalogueFile::loadAndSave(document).document));
        const QStringList lost = found(document).filter(QRegularExpression(u"^(unread|dropped): "_s));
        QVERIFY2(lost.isEmpty() == missing.isEmpty(),
                 qPrintable(u"missing “%1”, found: %2\n%3"_s.arg(missing, lost.join(u"; "_s),
                                                                 QString::fromUtf8(document))));
        lossy += missing.isEmpty() ? 0 : 1;
    }
    QVERIFY2(lossy > Rounds / 4 && lossy < Rounds, qPrintable(QString::number(lossy)));
}

void CheckTest::manyEntriesTakeNoLongerEach()
{
    constexpr int Count = 50'000;
    Catalogue catalogue = faultless();
    for (int i = 0; i < Count; ++i)
        catalogue.models[0].log.append(flight(at(11, 0).addSecs(i)));
    QElapsedTimer timer;
    timer.start();
    const QByteArray document = written(catalogue);
    CatalogueFile::loadAndSave(document);
    const qint64 written = timer.restart();
    const Findings findings = findingsOf(document);
    qInfo("%lld ms, %lld ms", static_cast<long long>(written), static_cast<long long>(timer.elapsed()));
    QCOMPARE(findings.list.size(), Count);
    QVERIFY(timer.elapsed() < 5 * written);
}

QTEST_MAIN(CheckTest)
#include "tst_check.moc"
