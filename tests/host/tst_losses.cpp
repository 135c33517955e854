// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/cataloguefile.h"
#include "host/data/losses.h"
#include "host/safety/wholefile.h"
#include "tests/host/support/facts.h"
#include "tests/host/support/logbookfiles.h"
#include "tests/host/support/mutations.h"
#include "tests/host/support/snapshot.h"
#include "tests/support/datafile.h"
#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QStringEncoder>
#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

/** A small logbook. */
QByteArray small()
{
    const QDateTime first(QDate(2025, 4, 6), QTime(16, 40, 28));
    const QDateTime second(QDate(2025, 4, 21), QTime(12, 56, 7));
    const QDateTime lastUse(QDate(2026, 11, 10), QTime(21, 9, 54));
    const QList<Test::Discharge> history{{first, 376, 1317}, {second, 322, 786}};
    const Test::Flight calm{first, u"Süd"_s, {0, 5, 12}, 18, u"calm"_s};
    return Test::document({{{u"3S"_s, true, history, 450, 20, 45, 42, {2025, 3, 14}, lastUse},
                            {u"4S"_s, false, {}, 800, 20, 45, 0, {}, {}}},
                           {{u"Wing"_s,
                             {u"3S"_s, u"4S"_s},
                             {calm},
                             310,
                             550,
                             7,
                             u"Plane"_s,
                             u"one & two"_s,
                             {2024, 8, 20},
                             {}}},
                           {u"Süd"_s, u"Meadow"_s}});
}

QByteArray changed(const QByteArray &from, const QByteArray &to)
{
    QByteArray document = small();
    const qsizetype at = document.indexOf(from);
    return at < 0 ? QByteArray() : document.replace(at, from.size(), to);
}

QStringList lossesOf(const QByteArray &document)
{
    const CatalogueFile::Saved saved = CatalogueFile::loadAndSave(document);
    return saved.problem.isEmpty() ? losses(document, saved.document) : QStringList{saved.problem};
}

} // namespace

class LossesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileOfTheLibraryLosesNothing_data();
    void aFileOfTheLibraryLosesNothing();
    void anotherSpellingLosesNothing_data();
    void anotherSpellingLosesNothing();
    void whatIsDroppedIsSaid_data();
    void whatIsDroppedIsSaid();
    void anUnknownElementIsFoundBehindEveryTag();
    void aTimeInASkippedHourIsALoss();
    void eachOfManyLossesIsSaidOnce();
    void everyMutationIsJudgedAsByItsFacts_data();
    void everyMutationIsJudgedAsByItsFacts();
    void comparingAHundredThousandEntriesTakesNoLongerThanReadingThem();
    void nestingHasNoDepthThatCrashes();
};

void LossesTest::aFileOfTheLibraryLosesNothing_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("small") << small();
    QTest::newRow("sample") << Test::sample();
    QTest::newRow("golden") << Test::contents(QStringLiteral(GOLDEN));
}

void LossesTest::aFileOfTheLibraryLosesNothing()
{
    QFETCH(QByteArray, document);
    QCOMPARE(lossesOf(document), QStringList());
    QCOMPARE(losses(document + "\n", document), QStringList());
}

void LossesTest::anotherSpellingLosesNothing_data()
{
    QTest::addColumn<QByteArray>("document");

    const auto row = [](const char *name, const QByteArray &from, const QByteArray &to) {
        QTest::newRow(name) << changed(from, to);
    };
    QTest::newRow("no line breaks") << small().replace("\n", "").replace("    ", "");
    QTest::newRow("line ends of Windows") << small().replace("\n", "\r\n");
    QTest::newRow("line ends of old") << small().replace("\n", "\r");
    QTest::newRow("tabs") << small().replace("    ", "\t");
    row("order of attributes", "Discharged=\"376\" Current=\"1317\"", "Current=\"1317\" Discharged=\"376\"");
    row("quotes", "Name=\"Meadow\"", "Name='Meadow'");
    row("spaces in a tag", "<Location Name=\"Meadow\"/>", "<Location  Name = \"Meadow\" ></Location >");
    row("leading zeros", "<Capacity>450</Capacity>", "<Capacity>0000450</Capacity>");
    row("spaces around a number", "<Capacity>450</Capacity>", "<Capacity>\n 450 </Capacity>");
    row("a plus sign", "<Capacity>450</Capacity>", "<Capacity>+450</Capacity>");
    row("an empty number", "<Capacity>450</Capacity>", "<Capacity/>");
    row("an empty attribute", "Current=\"1317\"", "Current=\"\"");
    row("a missing element", "        <Capacity>450</Capacity>\n", "");
    row("a missing attribute", " Current=\"1317\"", "");
    row("CDATA", "one &amp; two", "<![CDATA[one & two]]>");
    row("half in CDATA", "one &amp; two", "one <![CDATA[& two]]>");
    row("an entity", "calm", "&#99;a&#x6C;m");
    row("self-closing elements", "<Purchase></Purchase>", "<Purchase/>");
    row("empty containers", "<Locations>", "<Locations/><Locations></Locations><Locations>");
    row("an empty history", "        <LastUse></LastUse>\n", "<LastUse></LastUse><Data/>");
    row("two containers", "Süd\"/>\n", "Süd\"/></Locations><Locations>");
    row("two histories", "2025\"/>\n            <Cycle", "2025\"/></Data><Data><Cycle");
    row("the history first", "<Battery>\n        <Name>3S</Name>",
        "<Battery><Data><Cycle Date=\"\"/></Data><Name>3S</Name>");
    row("a wrong weekday", "Sun Apr 6 16:40:28 2025", "Mon Apr 6 16:40:28 2025");
    row("a day with a zero", "Sun Apr 6 16:40:28 2025", "Sun Apr 06 16:40:28 2025");
    row("a time without seconds", "00:05:12", "05:12");
    row("no prolog", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE Voltbok>\n", "");
    row("another document type", "<!DOCTYPE Voltbok>", "<!DOCTYPE Voltbok SYSTEM \"voltbok.dtd\">");
    row("a carriage return", "one &amp; two", "one&#13;two&#13;\nthree");
    row("a carriage return in an attribute", "calm", "calm&#13;&#10;&#9;sunny");
    QByteArray models = small();
    const qsizetype model = models.indexOf("<Model>");
    const QByteArray last = models.mid(model, models.indexOf("</Voltbok>") - model);
    models.remove(model, last.size()).replace("<Voltbok>\n", "<Voltbok>\n" + last);
    QTest::newRow("models first") << models;
    const QString text = QString::fromUtf8(small());
    for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
        QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
        const QByteArray encoded = encoder(QString(text).replace(u"UTF-8"_s, u"UTF-16"_s));
        QTest::newRow(encoding == QStringConverter::Utf16LE ? "UTF-16LE" : "UTF-16BE") << encoded;
    }
    QTest::newRow("UTF-8 with a mark") << "\xEF\xBB\xBF" + small();
    QTest::newRow("ISO-8859-1") << QString(text).replace(u"UTF-8"_s, u"ISO-8859-1"_s).toLatin1();
}

void LossesTest::anotherSpellingLosesNothing()
{
    QFETCH(QByteArray, document);
    QVERIFY(WholeFile::isWhole(document));
    QCOMPARE(lossesOf(document), QStringList());
}

void LossesTest::whatIsDroppedIsSaid_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("expected");

    const auto row = [](const char *name, const QByteArray &from, const QByteArray &to,
                        const QStringList &expected) {
        QTest::newRow(name) << changed(from, to) << expected;
    };
    row("an element in the root", "    <Model>", "<Colour/><Model>", {u"the element “Colour” in line 32"_s});
    row("an element in a container", "    </Locations>", "<Place/></Locations>",
        {u"the element “Place” in line 7"_s});
    row("an element in a history", "        </Data>", "<Note>x</Note></Data>",
        {u"the element “Note” in line 20"_s});
    row("an element in an entry", "Notes=\"calm\"/>", "Notes=\"calm\"><Wind/></LogData>",
        {u"the element “Wind” in line 44"_s});
    row("a location without a name", "<Location Name=\"Süd\"/>", "<Location/><Location Name=\"Süd\"/>",
        {u"the element “Location” in line 5"_s});
    row("a location with two names", "Name=\"Meadow\"", "Name=\"Meadow\" NameEn=\"Field\"",
        {u"the attribute “NameEn” (Field) of “Location” in line 6"_s});
    row("an attribute of the root", "<Voltbok>", "<Voltbok version=\"2\">",
        {u"the attribute “version” (2) of “Voltbok” in line 3"_s});
    row("a name space", "<Voltbok>", "<Voltbok xmlns=\"urn:x\">",
        {u"the attribute “xmlns” (urn:x) of “Voltbok” in line 3"_s});
    row("an attribute of a text", "<Name>3S", "<Name lang=\"en\">3S",
        {u"the attribute “lang” (en) of “Name” in line 9"_s});
    row("an unknown attribute without a value", "Notes=\"calm\"", "Notes=\"calm\" Wind=\"\"",
        {u"the attribute “Wind” () of “LogData” in line 44"_s});
    row("an attribute of a second container", "Süd\"/>\n", "Süd\"/></Locations><Locations sort=\"1\">",
        {u"the attribute “sort” (1) of “Locations” in line 4"_s});
    row("a comment", "    <Model>", "<!-- why --><Model>", {u"a comment in line 32"_s});
    row("a comment in a name", "<Name>3S", "<Name>3<!-- x -->S", {u"a comment in line 9"_s});
    row("a comment before the root", "<Voltbok>", "<!-- x --><Voltbok>", {u"a comment in line 3"_s});
    row("a comment behind the root", "</Voltbok>\n", "</Voltbok>\n<!-- x -->", {u"a comment in line 48"_s});
    row("an instruction", "<Voltbok>", "<?xml-stylesheet href=\"x\"?><Voltbok>",
        {u"an instruction to other programs in line 3"_s});
    row("a text in the root", "    <Model>", "hello<Model>", {u"the text “hello” of “Voltbok” in line 3"_s});
    row("a text in an entry", "Notes=\"calm\"/>", "Notes=\"calm\">hi</LogData>",
        {u"the text “hi” of “LogData” in line 44"_s});
    row("no number", "450", "abc", {u"the text “abc” of “Capacity” in line 10"_s});
    row("a negative number", "450", "-450", {u"the text “-450” of “Capacity” in line 10"_s});
    row("a number of 33 bits", "450", "4294967296", {u"the text “4294967296” of “Capacity” in line 10"_s});
    row("a word for a flag", "<Charged>1", "<Charged>true", {u"the text “true” of “Charged” in line 15"_s});
    row("two for a flag", "<Charged>1", "<Charged>2", {u"the text “2” of “Charged” in line 15"_s});
    row("an impossible day", "2025/03/14", "2025/02/30",
        {u"the text “2025/02/30” of “Purchase” in line 13"_s});
    row("an impossible time", "Sun Apr 6 16:40:28 2025", "Sun Apr 31 16:40:28 2025",
        {u"the attribute “Date” (Sun Apr 31 16:40:28 2025) of “Cycle” in line 18"_s});
    row("an impossible duration", "00:05:12", "00:65:12",
        {u"the attribute “Duration” (00:65:12) of “LogData” in line 44"_s});
    row("milliseconds", "00:05:12", "00:05:12.250",
        {u"the attribute “Duration” (00:05:12.250) of “LogData” in line 44"_s});
    row("a field that stands twice", "<Name>3S", "<Name>Old</Name><Name>3S",
        {u"the element “Name” in line 9"_s});
    row("a battery assigned twice", "<Battery>4S", "<Battery>3S</Battery><Battery>4S",
        {u"the element “Battery” in line 42"_s});
    row("a name that is read, but not written", "</Battery>\n    <Battery>",
        "</Battery><BatteryPack><Name>2S</Name></BatteryPack><Battery>",
        {u"the element “BatteryPack” in line 21"_s});
    row("an entity that nothing declares", "<!DOCTYPE Voltbok>", "<!DOCTYPE Voltbok SYSTEM \"x\">", {});
    QTest::newRow("a reference that leads nowhere")
        << changed("<Name>3S", "<Name>3S&x;").replace("Voltbok>\n<V", "Voltbok SYSTEM \"x\">\n<V")
        << QStringList{u"the text “3S(x)” of “Name” in line 9"_s};
    QTest::newRow("another root")
        << small().replace("<Voltbok>", "<MyVoltbok>").replace("</Voltbok>", "</MyVoltbok>")
        << QStringList{u"the element “MyVoltbok” in line 3"_s};
    QTest::newRow("a second root") << small() + "<Voltbok/>" << QStringList{u"everything from line 48 on"_s};
    QTest::newRow("batteries behind an unknown child")
        << changed("<Name>3S</Name>\n", "<Chemistry>LiPo</Chemistry><Name>3S</Name>")
        << QStringList{u"the element “Chemistry” in line 9"_s,
                       u"the text “3S” of “Name” in line 9"_s,
                       u"the text “450” of “Capacity” in line 9"_s,
                       u"the text “20” of “Chrgrate” in line 10"_s,
                       u"the text “45” of “Dischrgrate” in line 11"_s,
                       u"the text “2025/03/14” of “Purchase” in line 12"_s,
                       u"the text “42” of “Cycles” in line 13"_s,
                       u"the text “1” of “Charged” in line 14"_s,
                       u"the text “Tue Nov 10 21:09:54 2026” of “LastUse” in line 15"_s,
                       u"the element “Data” in line 16"_s,
                       u"the element “Battery” in line 21"_s};
    QTest::newRow("a zero in a name")
        << changed("<!DOCTYPE Voltbok>", "<!DOCTYPE Voltbok SYSTEM \"x\">")
               .replace("Meadow", QByteArray("&a\0b;", 5))
        << QStringList{u"the attribute “Name” ((ab)) of “Location” in line 6"_s};
}

void LossesTest::whatIsDroppedIsSaid()
{
    QFETCH(QByteArray, document);
    QTEST(lossesOf(document), "expected");
}

/** Wherever it stands: in the sample there are some 2,000 places. */
void LossesTest::anUnknownElementIsFoundBehindEveryTag()
{
    const QByteArray document = small();
    int places = 0;
    for (qsizetype at = document.indexOf("<Voltbok>"); (at = document.indexOf('>', at)) >= 0;) {
        ++at;
        for (const QByteArray &planted :
             {"<Planted/>"_ba, "<Planted>1</Planted>"_ba, "<!-- Planted -->"_ba}) {
            QByteArray mutated = document;
            mutated.insert(at, planted);
            if (!WholeFile::isWhole(mutated))
                continue; // behind the root
            const QStringList found = lossesOf(mutated);
            QVERIFY2(!found.isEmpty(), mutated.constData());
            QVERIFY2(found.join(u'\n').contains(planted.startsWith("<!") ? u"comment"_s : u"Planted"_s),
                     qPrintable(found.join(u'\n')));
            ++places;
        }
    }
    QVERIFY2(places > 150, qPrintable(QString::number(places)));
}

void LossesTest::aTimeInASkippedHourIsALoss()
{
    const Zone oslo("Europe/Oslo");
    const QByteArray document = changed("Sun Apr 6 16:40:28 2025", "Sun Mar 29 02:30:00 2026");
    QCOMPARE(lossesOf(document),
             QStringList{u"the attribute “Date” (Sun Mar 29 02:30:00 2026) of “Cycle” in line 18"_s});
    // As a system saves it that moves such a time by the hour instead.
    QCOMPARE(losses(document, QByteArray(document).replace("02:30:00", "03:30:00")).size(), 1);
}

void LossesTest::eachOfManyLossesIsSaidOnce()
{
    const QByteArray sample = Test::sample();
    QByteArray document = sample;
    document.replace("Temperature=", "Wind=\"3\" Temperature=");
    QCOMPARE(lossesOf(document).size(), sample.count("Temperature="));
    document = sample;
    document.replace("<Cycle ", "<!-- x --><Cycle ");
    QCOMPARE(lossesOf(document).size(), sample.count("<Cycle "));
}

void LossesTest::everyMutationIsJudgedAsByItsFacts_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<int>("rounds");
    QTest::newRow("always the same") << small() << 20261121U << 800;
    QTest::newRow("others each time") << small() << QRandomGenerator::global()->generate() << 800;
    QTest::newRow("of the sample") << Test::sample() << QRandomGenerator::global()->generate() << 100;
}

void LossesTest::everyMutationIsJudgedAsByItsFacts()
{
    QFETCH(QByteArray, document);
    QFETCH(quint32, seed);
    QFETCH(int, rounds);
    qInfo("seed %u", seed);
    Mutations mutations(seed);
    int lossy = 0;
    for (int round = 0; round < rounds; ++round) {
        const QByteArray mutated = mutations.mutate(document);
        const CatalogueFile::Saved saved = CatalogueFile::loadAndSave(mutated);
        QCOMPARE(saved.problem, QString());
        const QString missing = Facts(mutated).missingFrom(Facts(saved.document));
        const QStringList found = losses(mutated, saved.document);
        QVERIFY2(found.isEmpty() == missing.isEmpty(),
                 qPrintable(u"round %1, missing “%2”, found: %3\n%4"_s.arg(
                     QString::number(round), missing, found.join(u"; "), QString::fromUtf8(mutated))));
        lossy += missing.isEmpty() ? 0 : 1;
    }
    QVERIFY2(lossy > rounds / 4 && lossy < rounds, qPrintable(QString::number(lossy)));
}

void LossesTest::comparingAHundredThousandEntriesTakesNoLongerThanReadingThem()
{
    QByteArray document = Test::sample();
    const qsizetype begin = document.indexOf("<Cycle ");
    const QByteArray entry = document.mid(begin, document.indexOf("/>", begin) + 2 - begin);
    document.insert(begin, QByteArray(entry + "\n").repeated(100'000) + "<Wind/>");
    QElapsedTimer timer;
    timer.start();
    const CatalogueFile::Saved saved = CatalogueFile::loadAndSave(document);
    const qint64 loadedAndSaved = timer.restart();
    const QStringList found = losses(document, saved.document);
    const qint64 compared = timer.elapsed();
    qInfo("%lld ms, %lld ms", static_cast<long long>(loadedAndSaved), static_cast<long long>(compared));
    QCOMPARE(found.size(), 1);
    QVERIFY(compared < 3 * loadedAndSaved);
}

void LossesTest::nestingHasNoDepthThatCrashes()
{
    constexpr qsizetype Depth = 2'000'000;
    const QByteArray document =
        "<Voltbok>" + "<a>"_ba.repeated(Depth) + "</a>"_ba.repeated(Depth) + "</Voltbok>";
    QCOMPARE(losses(document, CatalogueFile::emptyDocument()), QStringList{u"the element “a” in line 1"_s});
    QCOMPARE(losses(document.first(document.size() / 2), CatalogueFile::emptyDocument()).size(), 2);
}

QTEST_MAIN(LossesTest)
#include "tst_losses.moc"
