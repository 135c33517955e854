// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/texttable.h"
#include "tests/support/growth.h"

#include <QTest>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

class TextTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columnsStandBelowEachOther();
    void aTableWithoutRowsHasItsTitles();
    void whatATerminalWouldObeyIsLeftOut();
    void wideCharactersTakeTwoColumnsAndMarksNone_data();
    void wideCharactersTakeTwoColumnsAndMarksNone();
    void aVeryLongTextIsNotCutAndPushesItsOwnLineOnly();
    void largeTablesAreWrittenPieceByPiece();
    void nothingMoreIsWrittenWhenNobodyWantsIt();
};

void TextTableTest::columnsStandBelowEachOther()
{
    TextTable table({{u"Name"_s}, {u"Cycles"_s, true}, {u"Charged"_s}});
    table.addRow({u"3S 450 A"_s, u"7"_s, u"yes"_s});
    table.addRow({u"B"_s, u"1,042"_s, QString()});
    table.addRow({QString(), QString(), u"no"_s});
    QCOMPARE(table.bytes(), "Name      Cycles  Charged\n"
                            "3S 450 A       7  yes\n"
                            "B          1,042\n"
                            "                  no\n"_ba);
}

void TextTableTest::aTableWithoutRowsHasItsTitles()
{
    QCOMPARE(TextTable({{u"Name"_s}, {u"Cycles"_s, true}}).bytes(), "Name  Cycles\n"_ba);
}

void TextTableTest::whatATerminalWouldObeyIsLeftOut()
{
    TextTable table({{u"A"_s}, {u"B"_s}});
    table.addRow({u"two\nlines\r\u001b[31m\u202e"_s, u"tab\tand\u009bmore"_s});
    QCOMPARE(table.bytes(), "A               B\ntwo lines [31m  tab andmore\n"_ba);
}

void TextTableTest::wideCharactersTakeTwoColumnsAndMarksNone_data()
{
    QTest::addColumn<qsizetype>("width");
    QTest::newRow("") << qsizetype(0);
    QTest::newRow("Süd é") << qsizetype(5);
    QTest::newRow("e\u0301") << qsizetype(1);
    QTest::newRow("電池") << qsizetype(4);
    QTest::newRow("\U0001f681 x") << qsizetype(4);
}

void TextTableTest::wideCharactersTakeTwoColumnsAndMarksNone()
{
    QTEST(displayWidth(QString::fromUtf8(QTest::currentDataTag())), "width");
}

void TextTableTest::aVeryLongTextIsNotCutAndPushesItsOwnLineOnly()
{
    const QString longName(100'000, u'x');
    TextTable table({{u"Name"_s}, {u"Cycles"_s}});
    table.addRow({longName, u"1"_s});
    table.addRow({u"B"_s, u"2"_s});
    const QList<QByteArray> lines = table.bytes().split('\n');
    QCOMPARE(lines.at(1), longName.toLatin1() + "  1");
    QVERIFY2(lines.at(2).size() < 60, lines.at(2).constData());
}

void TextTableTest::largeTablesAreWrittenPieceByPiece()
{
    const auto write = [](int rows) {
        TextTable table({{u"Name"_s}, {u"Number"_s, true}});
        for (int i = 0; i < rows; ++i)
            table.addRow({u"Club field"_s, QString::number(i)});
        qsizetype lines = 0;
        qsizetype largest = 0;
        table.write([&](const QByteArray &piece) {
            lines += piece.count('\n');
            largest = qMax(largest, piece.size());
            return true;
        });
        QCOMPARE(lines, rows + 1);
        QVERIFY2(largest < 70'000, qPrintable(QString::number(largest)));
    };
    const double growth = Test::growth(write, 100'000);
    QVERIFY2(growth < 40, qPrintable(QString::number(growth)));
}

void TextTableTest::nothingMoreIsWrittenWhenNobodyWantsIt()
{
    TextTable table({{u"Name"_s}});
    for (int i = 0; i < 50'000; ++i)
        table.addRow({u"Club field"_s});
    int pieces = 0;
    table.write([&](const QByteArray &) {
        ++pieces;
        return false;
    });
    QCOMPARE(pieces, 1);
}

QTEST_GUILESS_MAIN(TextTableTest)
#include "tst_texttable.moc"
