// SPDX-License-Identifier: GPL-3.0-or-later
// Files that break off, are no data files or hold odd things: what stands before the fault is read, nothing
// crashes.
#include "tests/support/recordlists.h"
#include "tests/support/warnings.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class BrokenFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void whatStandsBeforeTheFaultIsRead_data();
    void whatStandsBeforeTheFaultIsRead();
    void whatWasReadFromABrokenFileIsSavedWhole_data();
    void whatWasReadFromABrokenFileIsSavedWhole();
    void nullCharactersAreInNoTextThatIsRead();
    void aFileWithAnyByteChangedIsReadToAnEnd();
    void deepAndWideFilesAreReadToAnEnd_data();
    void deepAndWideFilesAreReadToAnEnd();
};

namespace {

struct Expected
{
    QStringList locations;
    QStringList batteries;
    QStringList models;
};

/** Every row of the table: a name, the bytes of the file and what must come out. */
void addBrokenFiles()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("locations");
    QTest::addColumn<QStringList>("batteries");
    QTest::addColumn<QStringList>("models");
    const auto row = [](const char *tag, const QByteArray &bytes, const Expected &expected = {}) {
        QTest::newRow(tag) << bytes << expected.locations << expected.batteries << expected.models;
    };
    const QString a = u"A"_s;
    const QString batteryA = u"A 0 0"_s;
    const QString modelM = u"M 0"_s;
    const QByteArray names = "<Battery><Name>A</Name></Battery><Model><Name>M</Name></Model>";

    row("empty file", "");
    row("white space", " \n\n ");
    row("null bytes", QByteArray(4096, '\0'));
    row("no XML at all", "Pack A;2200;25\n");
    row("bytes that are no UTF-8", "\xff\xfe\xfa<Voltbok/>");
    row("only the prolog", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE Voltbok>\n");
    row("another root", "<Other>" + names + "</Other>");
    row("a root in another case", "<voltbok>" + names + "</voltbok>");
    row("a root whose name contains the name", "<MyVoltbok2>" + names + "</MyVoltbok2>",
        {{}, {batteryA}, {modelM}});
    row("the root further in", "<A><Voltbok>" + names + "</Voltbok></A>", {{}, {batteryA}, {modelM}});
    row("two roots", "<Voltbok>" + names + "</Voltbok><Voltbok>" + names + "</Voltbok>",
        {{}, {batteryA}, {modelM}});
    row("text behind the root", document(names) + "x", {{}, {batteryA}, {modelM}});
    row("no prolog", "<Voltbok>" + names + "</Voltbok>", {{}, {batteryA}, {modelM}});
    row("a byte order mark", "\xef\xbb\xbf" + document(names), {{}, {batteryA}, {modelM}});
    row("other line ends", document(names).replace('\n', "\r\n"), {{}, {batteryA}, {modelM}});
    row("an unknown encoding",
        "<?xml version=\"1.0\" encoding=\"klingon\"?><Voltbok>" + names + "</Voltbok>");
    row("XML 1.1", "<?xml version=\"1.1\"?><Voltbok>" + names + "</Voltbok>");

    row("record cut in a text", "<Voltbok><Battery><Name>A</Name><Capacity>", {{}, {batteryA}, {}});
    row("record cut in a tag", "<Voltbok><Battery><Name>A</Name><Cap", {{}, {batteryA}, {}});
    row("record cut behind its start", "<Voltbok><Model>", {{}, {}, {u" 0"_s}});
    row("record cut in its start", "<Voltbok>" + names + "<Battery><Name>B</Name></Battery><Mod",
        {{}, {batteryA, u"B 0 0"_s}, {modelM}});
    row("an end tag that does not match", "<Voltbok><Battery><Name>A</Battery><Battery/></Voltbok>",
        {{}, {batteryA}, {}});
    row("records before and behind a fault", "<Voltbok>" + names + "<&>" + names + "</Voltbok>",
        {{}, {batteryA}, {modelM}});
    row("a fault before the records", "<Voltbok><x y></Voltbok>" + names);
    row("an element inside a text", "<Voltbok><Battery><Name>A<b/>B</Name></Battery><Battery/></Voltbok>",
        {{}, {batteryA}, {}});
    row("an undeclared entity", "<Voltbok><Battery><Name>A&nbsp;</Name></Battery><Battery/></Voltbok>",
        {{}, {batteryA}, {}});
    row("a declared entity",
        "<!DOCTYPE Voltbok [<!ENTITY a \"A\">]><Voltbok><Battery><Name>&a;</Name></Battery></Voltbok>",
        {{}, {batteryA}, {}});
    row("entities that swell",
        "<!DOCTYPE Voltbok [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
        "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\">]>"
        "<Voltbok><Battery><Cycles>5</Cycles><Name>&d;</Name></Battery></Voltbok>",
        {{}, {u" 0 5"_s}, {}});
    row("an entity of its own",
        "<!DOCTYPE Voltbok [<!ENTITY a \"&a;\">]><Voltbok><Battery><Name>&a;</Name></Battery></Voltbok>",
        {{}, {u" 0 0"_s}, {}});
    row("a control character",
        "<Voltbok><Battery><Name>A</Name><Cycles>\x01</Cycles></Battery><Battery/></Voltbok>",
        {{}, {batteryA}, {}});

    row("locations cut behind their start", "<Voltbok><Locations>");
    row("locations cut in white space", "<Voltbok><Locations>\n   ");
    row("locations cut behind an entry", "<Voltbok><Locations><Location Name=\"A\"/>", {{a}, {}, {}});
    row("locations cut in an entry", "<Voltbok><Locations><Location Name=\"A\"/><Location Name=\"B\"",
        {{a}, {}, {}});
    row("locations cut in a value", "<Voltbok><Locations><Location Name=\"A\"/><Location Name=\"B",
        {{a}, {}, {}});
    row("locations cut in their end", "<Voltbok><Locations><Location Name=\"A\"/></Loc", {{a}, {}, {}});
    row("an attribute twice",
        "<Voltbok><Locations><Location Name=\"A\"/><Location Name=\"B\" Name=\"C\"/></Locations></Voltbok>",
        {{a}, {}, {}});
    row("a value without quotes",
        "<Voltbok><Locations><Location Name=\"A\"/><Location Name=B/></Locations></Voltbok>", {{a}, {}, {}});
    row("locations that never end", "<Voltbok><Locations><Location Name=\"A\"/></Voltbok>" + names,
        {{a}, {}, {}});
    row("history cut behind its start", "<Voltbok><Battery><Name>A</Name><Data>", {{}, {batteryA}, {}});
    row("history cut in an entry",
        "<Voltbok><Battery><Name>A</Name><Data><Cycle Discharged=\"1\" Current=\"2\"/><Cycle "
        "Discharged=\"3\" Cur",
        {{}, {u"A 0 0 -1"_s}, {}});
    row("history cut behind an entry's slash",
        "<Voltbok><Battery><Name>A</Name><Data><Cycle Discharged=\"1\"/><Cycle Discharged=\"3\"/",
        {{}, {u"A 0 0 -1"_s}, {}});
    row("log cut behind its start", "<Voltbok><Model><Name>M</Name><FlightLog>", {{}, {}, {modelM}});
    row("log cut in an entry",
        "<Voltbok><Model><Name>M</Name><FlightLog><LogData Notes=\"n\"/><LogData Notes=\"o\" ",
        {{}, {}, {u"M 0 n"_s}});
    row("a broken entry after a good one",
        "<Voltbok><Model><Name>M</Name><FlightLog><LogData Notes=\"n\"/><LogData "
        "Notes=\"<\"/></FlightLog></Model></Voltbok>",
        {{}, {}, {u"M 0 n"_s}});
}

} // namespace

void BrokenFileTest::init()
{
    Test::failOnWarnings();
}

void BrokenFileTest::whatStandsBeforeTheFaultIsRead_data()
{
    addBrokenFiles();
}

void BrokenFileTest::whatStandsBeforeTheFaultIsRead()
{
    QFETCH(QByteArray, bytes);
    QTemporaryDir directory;
    QVERIFY(Test::write(Test::dataFile(directory.path()), bytes));
    RecordLists catalogue;
    catalogue.load(directory.path());
    QTEST(QStringList(catalogue.locations), "locations");
    QTEST(catalogue.batterySummary(), "batteries");
    QTEST(catalogue.modelSummary(), "models");
    QCOMPARE(Test::contents(Test::dataFile(directory.path())), bytes); // and the file is not touched
}

void BrokenFileTest::whatWasReadFromABrokenFileIsSavedWhole_data()
{
    addBrokenFiles();
}

void BrokenFileTest::whatWasReadFromABrokenFileIsSavedWhole()
{
    QFETCH(QByteArray, bytes);
    QTemporaryDir directory;
    QVERIFY(Test::write(Test::dataFile(directory.path()), bytes));
    RecordLists catalogue;
    catalogue.load(directory.path());
    catalogue.save(directory.path());
    const QByteArray first = Test::contents(Test::dataFile(directory.path()));
    catalogue.load(directory.path());
    QTEST(QStringList(catalogue.locations), "locations");
    QTEST(catalogue.batterySummary(), "batteries");
    QTEST(catalogue.modelSummary(), "models");
    catalogue.save(directory.path());
    QCOMPARE(Test::contents(Test::dataFile(directory.path())), first);
}

void BrokenFileTest::nullCharactersAreInNoTextThatIsRead()
{
    // The reader takes a null character for a part of a name, that of an entity which may be declared
    // elsewhere, too.
    QByteArray bytes =
        R"(<!DOCTYPE Voltbok SYSTEM "x"><Voltbok><Locations><Location Name="A&b^c;"/></Locations>
        <Battery><Name>A&b^c;</Name></Battery>
        <Model><Name>M&b^c;</Name><Type>T&b^c;</Type><Notes>N&b^c;</Notes><Battery>A&b^c;</Battery>
        <FlightLog><LogData Location="L&b^c;" Notes="N&b^c;"/></FlightLog></Model></Voltbok>)";
    QTemporaryDir directory;
    QVERIFY(Test::write(Test::dataFile(directory.path()), bytes.replace('^', '\0')));
    RecordLists catalogue;
    for (const char *reading : {"what was found", "what was saved"}) {
        catalogue.load(directory.path());
        QVERIFY2(catalogue.locations == QStringList(u"A&bc;"_s), reading);
        QCOMPARE(catalogue.batterySummary(), QStringList(u"A 0 0"_s));
        QCOMPARE(catalogue.models.size(), 1);
        ModelWidget &model = *catalogue.models.constFirst();
        QCOMPARE(model.getModelName() + model.getModelType() + model.getAdditionalNotes(), u"MTN"_s);
        QCOMPARE(model.getBatteries(), QStringList(u"A"_s));
        QCOMPARE(model.getLogData().constFirst().location, u"L&bc;"_s);
        QCOMPARE(model.getLogData().constFirst().notes, u"N&bc;"_s);
        catalogue.save(directory.path());
    }
}

void BrokenFileTest::aFileWithAnyByteChangedIsReadToAnEnd()
{
    QTemporaryDir directory;
    const QString path = Test::dataFile(directory.path());
    const QByteArray bytes = Test::contents(QStringLiteral(GOLDEN));
    QVERIFY(Test::write(path, bytes));
    RecordLists whole;
    whole.load(directory.path());
    const QStringList batteries = whole.batterySummary();

    const QByteArray odd("<>&\"/x\0", 7);
    RecordLists read;
    for (qsizetype i = bytes.indexOf("<Voltbok>"); i < bytes.size(); ++i) {
        QByteArray changed = bytes;
        changed[i] = odd.at(i % odd.size());
        QVERIFY(Test::write(path, changed));
        read.load(directory.path());
        // A byte that spoils a character spoils the block it was read in.
        const bool decodable = static_cast<uchar>(bytes.at(i)) < 0x80;
        const qsizetype untouched = decodable ? bytes.left(i).count("\n    </Battery>\n") : 0;
        QVERIFY(read.batteries.size() >= untouched);
        QCOMPARE(read.batterySummary().first(untouched), batteries.first(untouched));
        QVERIFY(read.historiesAreParallel());

        read.save(directory.path());
        const QByteArray saved = Test::contents(path);
        read.load(directory.path());
        read.save(directory.path());
        QCOMPARE(Test::contents(path), saved);
    }
}

void BrokenFileTest::deepAndWideFilesAreReadToAnEnd_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<int>("batteryCount");
    const QByteArray levels = QByteArray("<a>").repeated(50000);
    const QByteArray back = QByteArray("</a>").repeated(50000);
    QTest::newRow("deep under the root") << levels + back + "<Battery/>" << 1;
    QTest::newRow("deep in a record") << "<Battery>" + levels + back + "</Battery>" << 1;
    QTest::newRow("deep in a history") << "<Battery><Data>" + levels + back + "</Data></Battery>" << 1;
    QTest::newRow("deep and cut") << "<Battery>" + levels << 1;
    QTest::newRow("many unknown elements") << QByteArray("<a/>").repeated(200000) + "<Battery/>" << 1;
    QTest::newRow("one endless text")
        << "<Battery><Name>" + QByteArray(5000000, 'x') + "</Name></Battery>" << 1;
    QTest::newRow("one endless value")
        << "<Locations><Location Name=\"" + QByteArray(5000000, 'x') + "\"/></Locations>" << 0;
}

void BrokenFileTest::deepAndWideFilesAreReadToAnEnd()
{
    QFETCH(QByteArray, body);
    QTemporaryDir directory;
    QVERIFY(Test::write(Test::dataFile(directory.path()), document(body)));
    RecordLists catalogue;
    catalogue.load(directory.path());
    QTEST(int(catalogue.batteries.size()), "batteryCount");
}

QTEST_MAIN(BrokenFileTest)
#include "tst_brokenfile.moc"
