// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/wholefile.h"
#include "tests/host/support/snapshot.h"
#include "tests/support/files.h"

#include <QElapsedTimer>
#include <QStringEncoder>
#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class InspectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWholeLogbookIsCounted();
    void onlyRecordsInTheirPlaceAreCounted();
    void whatIsNoLogbookSaysWhy_data();
    void whatIsNoLogbookSaysWhy();
    void anotherFormOfALogbookIsWhole_data();
    void anotherFormOfALogbookIsWhole();
    void aDeclarationIsNoticedHoweverItIsWritten_data();
    void aDeclarationIsNoticedHoweverItIsWritten();
    void aCutIsNoticedAtEachByte();
    void aZeroIsNoticedAtEachByte();
    void aTrapTakesNoTime();
};

void InspectionTest::aWholeLogbookIsCounted()
{
    const Contents contents = WholeFile::inspect(Test::sample());
    QCOMPARE(contents.problem, QString());
    QCOMPARE(contents.locations, 6);
    QCOMPARE(contents.batteries, Test::sample().count("\n    <Battery>"));
    QCOMPARE(contents.discharges, Test::sample().count("<Cycle "));
    QCOMPARE(contents.models, Test::sample().count("<Model>"));
    QCOMPARE(contents.flights, Test::sample().count("<LogData "));
    QVERIFY(contents.batteries > 0 && contents.flights > 0 && contents.discharges > 0);
}

void InspectionTest::onlyRecordsInTheirPlaceAreCounted()
{
    const Contents contents =
        WholeFile::inspect("<Voltbok><x><Battery/><Model/><Location/></x><Cycle/><LogData/><Location/>"
                           "<Locations><Location/></Locations><Battery><Data><Cycle/><x><Cycle/></x></Data>"
                           "</Battery><Model><Battery/><FlightLog><LogData/></FlightLog></Model></Voltbok>");
    QCOMPARE(contents.problem, QString());
    QCOMPARE(contents.batteries, 1);
    QCOMPARE(contents.models, 1);
    QCOMPARE(contents.discharges, 1);
    QCOMPARE(contents.flights, 1);
    QCOMPARE(contents.locations, 2); // one below an element that a person would call a container
}

void InspectionTest::whatIsNoLogbookSaysWhy_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty") << QByteArray() << u"it is empty"_s;
    QTest::newRow("white space") << "\n \n"_ba << u"line 1 cannot be understood"_s;
    QTest::newRow("text") << "hello"_ba << u"line 1 cannot be understood"_s;
    QTest::newRow("a web page") << "<html/>"_ba << u"its root element is “html”"_s;
    QTest::newRow("another case") << "<voltbok/>"_ba << u"its root element is “voltbok”"_s;
    QTest::newRow("a picture") << "\x89PNG\r\n\x1a\n"_ba << u"cannot be understood"_s;
    QTest::newRow("two roots") << "<Voltbok/>\n<Voltbok/>"_ba << u"line 2 cannot be understood"_s;
    QTest::newRow("a tag that does not close")
        << "<Voltbok>\n<Battery>\n</Voltbok>"_ba << u"line 3 cannot be understood"_s;
    QTest::newRow("zeros") << QByteArray(4096, '\0') << u"it contains zero bytes"_s;
    QTest::newRow("zeros at the end") << "<Voltbok/>" + QByteArray(10, '\0') << u"it contains zero bytes"_s;
    QByteArray zeroed = Test::sample();
    zeroed.replace(4096, 512, QByteArray(512, '\0'));
    QTest::newRow("a bad sector") << zeroed << u"it contains zero bytes"_s;
    QTest::newRow("a long root") << "<" + QByteArray(1000, 'a') + "/>" << QString(100, u'a') + u'”';
}

void InspectionTest::whatIsNoLogbookSaysWhy()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, expected);
    const QString problem = WholeFile::inspect(document).problem;
    QVERIFY2(problem.contains(expected), qPrintable(problem));
    QVERIFY2(!problem.endsWith(u'.'), qPrintable(problem));
    QVERIFY(!WholeFile::isWhole(document));
}

void InspectionTest::anotherFormOfALogbookIsWhole_data()
{
    QTest::addColumn<QByteArray>("document");

    const QString text = u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n<Voltbok><Locations>"
                         "<Location Name=\"Süd\"/></Locations></Voltbok>"_s;
    QTest::newRow("UTF-16LE") << QByteArray(QStringEncoder(QStringConverter::Utf16LE)(text));
    QTest::newRow("UTF-16LE with a mark")
        << "\xFF\xFE" + QByteArray(QStringEncoder(QStringConverter::Utf16LE)(text));
    QTest::newRow("UTF-16BE with a mark")
        << "\xFE\xFF" + QByteArray(QStringEncoder(QStringConverter::Utf16BE)(text));
    QTest::newRow("UTF-8") << "<Voltbok><Locations><Location Name='S\xC3\xBC'/></Locations></Voltbok>"_ba;
    QTest::newRow("a document type with an address")
        << "<!DOCTYPE Voltbok SYSTEM 'voltbok.dtd'><Voltbok><Locations><Location/></Locations></Voltbok>"_ba;
}

void InspectionTest::anotherFormOfALogbookIsWhole()
{
    QFETCH(QByteArray, document);
    const Contents contents = WholeFile::inspect(document);
    QCOMPARE(contents.problem, QString());
    QCOMPARE(contents.locations, 1);
}

void InspectionTest::aDeclarationIsNoticedHoweverItIsWritten_data()
{
    QTest::addColumn<QByteArray>("subset");

    QTest::newRow("entity") << "[<!ENTITY a 'b'>]"_ba;
    QTest::newRow("parameter entity") << "[<!ENTITY % a 'b'>]"_ba;
    QTest::newRow("external entity") << "[<!ENTITY a SYSTEM 'file:///etc/passwd'>]"_ba;
    QTest::newRow("beside an address") << "SYSTEM 'x' [<!ENTITY a 'b'>]"_ba;
    QTest::newRow("beside a public name") << "PUBLIC '-//x' 'y' [<!ENTITY a 'b'>]"_ba;
    QTest::newRow("on lines of its own") << "\n\n[\n<!ENTITY\na\n'b'\n>\n]\n"_ba;
    QTest::newRow("behind a comment") << "[<!-- ] --><!ENTITY a 'b'>]"_ba;
    QTest::newRow("elements and attributes") << "[<!ELEMENT Voltbok ANY><!ATTLIST Voltbok a CDATA 'b'>]"_ba;
    QTest::newRow("nothing") << "[]"_ba;
}

void InspectionTest::aDeclarationIsNoticedHoweverItIsWritten()
{
    QFETCH(QByteArray, subset);
    const QByteArray document = "<!DOCTYPE Voltbok " + subset + "><Voltbok/>";
    const QString text = QString::fromUtf8(document);
    const QByteArray wide = QStringEncoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom)(text);
    // Zeros make it no better: it must still not be loaded.
    for (const QByteArray &form : {document, wide, document + QByteArray(1, '\0'), "\n" + document}) {
        const Contents contents = WholeFile::inspect(form);
        QCOMPARE(contents.problem, u"it brings a document type of its own"_s);
        QVERIFY(contents.declaresEntities);
    }
    const QByteArray used = QByteArray(document).replace("]>", " %a;]>");
    const QByteArray lowerCase = QByteArray(document).replace("DOCTYPE", "doctype");
    QVERIFY(!WholeFile::isWhole(lowerCase)); // no XML at all
    QVERIFY(!WholeFile::isWhole(used));
}

void InspectionTest::aCutIsNoticedAtEachByte()
{
    const QByteArray document = Test::sample().first(3000) + "</Data></Battery></Voltbok>\n";
    const qsizetype begin = document.lastIndexOf("/>", 3000) + 2;
    const QByteArray small = document.first(begin) + "</Data></Battery></Voltbok>\n";
    QVERIFY(WholeFile::isWhole(small));
    for (qsizetype size = 0; size < small.size() - 1; ++size)
        QVERIFY2(!WholeFile::isWhole(small.first(size)), qPrintable(QString::number(size)));
    QVERIFY(WholeFile::isWhole(small.first(small.size() - 1))); // without its last line end
}

void InspectionTest::aZeroIsNoticedAtEachByte()
{
    const QByteArray whole = Test::sample().first(200) + "\"/></Locations></Voltbok>";
    for (qsizetype at = 0; at < whole.size(); ++at) {
        QByteArray zeroed = whole;
        zeroed[at] = '\0';
        QVERIFY2(!WholeFile::isWhole(zeroed), qPrintable(QString::number(at)));
    }
    const QString text = u"<?xml version=\"1.0\"?><Voltbok><Location Name=\"x\"/></Voltbok>"_s;
    for (qsizetype at = 0; at < text.size(); ++at) {
        QString zeroed = text;
        zeroed[at] = u'\0';
        QVERIFY(!WholeFile::isWhole(
            QStringEncoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom)(zeroed)));
    }
}

void InspectionTest::aTrapTakesNoTime()
{
    QByteArray laughs =
        "<!DOCTYPE Voltbok [<!ENTITY a '" + QByteArray(4000, 'x') + "'>]><Voltbok><Battery><Name>";
    laughs += "&a;"_ba.repeated(100'000) + "</Name></Battery></Voltbok>";
    constexpr qsizetype Depth = 2'000'000;
    const QByteArray deep = "<Voltbok>" + "<a>"_ba.repeated(Depth) + "</a>"_ba.repeated(Depth) + "</Voltbok>";
    QElapsedTimer timer;
    timer.start();
    QVERIFY(WholeFile::inspect(laughs).declaresEntities);
    QVERIFY(timer.elapsed() < 1000);
    QVERIFY(WholeFile::isWhole(deep));
    QVERIFY(!WholeFile::isWhole(deep.first(deep.size() / 2)));
}

QTEST_GUILESS_MAIN(InspectionTest)
#include "tst_inspection.moc"
