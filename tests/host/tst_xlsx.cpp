// SPDX-License-Identifier: GPL-3.0-or-later
// Workbooks, read back by a spreadsheet that is not ours.
#include "host/exchange/xlsx.h"

#include "tests/host/support/nastylogbook.h"
#include "tests/host/support/spreadsheet.h"

#include <QTest>

#include <clocale>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

struct Workbook
{
    QByteArray bytes;
    Xlsx::Written written;
};

Workbook workbook(const Catalogue &catalogue, const Proceed &proceed = {})
{
    Workbook workbook;
    const auto sink = [&workbook](const QByteArray &bytes) {
        workbook.bytes += bytes;
        return true;
    };
    workbook.written = Xlsx::write(catalogue, catalogue, sink, proceed);
    return workbook;
}

using Sheets = QMap<QString, Spreadsheet::Sheet>;

Sheets read(const QByteArray &bytes, QStringList *names)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"book.xlsx"_s));
    if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        qFatal("the test cannot write a file");
    return Spreadsheet::read(file.fileName(), names);
}

/** Compares what was read with what was meant, cell by cell. */
class Comparison final : public TableWriter
{
public:
    explicit Comparison(const Sheets &sheets)
        : m_sheets(sheets)
    {
    }

    QStringList differences;
    int cells = 0;

    void beginTable(const Table &table) override
    {
        m_name = table.name;
        m_sheet = m_sheets.value(m_name);
        m_row = 0;
        m_column = 0;
        for (const Column &column : table.columns)
            addText(column.header);
        endRow();
    }
    void addText(const QString &text) override
    {
        QString cell = text.left(Xlsx::LongestText);
        if (!cell.isEmpty() && cell.back().isHighSurrogate())
            cell.chop(1);
        compare({cell, false});
    }
    void addNumber(qint64 number, int decimals = 0) override
    {
        const QString text = QString::number(number).rightJustified(decimals + 1, u'0');
        compareNumber((text.chopped(decimals) + u'.' + text.right(decimals)).toDouble());
    }
    void addDate(QDate date) override
    {
        if (date.year() < 1900)
            return addText(isoText(date));
        compareNumber(
            static_cast<double>(QDate(1900, 1, 1).daysTo(date) + (date < QDate(1900, 3, 1) ? 1 : 2)));
    }
    void addTime(const QDateTime &time) override
    {
        if (!time.isValid() || time.date().year() < 1900)
            return addText(isoText(time));
        const qint64 day = QDate(1900, 1, 1).daysTo(time.date()) + (time.date() < QDate(1900, 3, 1) ? 1 : 2);
        compareNumber(static_cast<double>(day) + QTime(0, 0).secsTo(time.time()) / 86'400.0);
    }
    void addNothing() override { compare({}); }
    void endRow() override
    {
        ++m_row;
        m_column = 0;
    }
    bool endTable() override
    {
        cells += static_cast<int>(m_sheet.cells.size());
        if (m_sheet.formulas > 0 || m_sheet.links > 0)
            differences.append(m_name + u": formulas or links"_s);
        if (!m_sheet.cells.isEmpty() && m_sheet.cells.lastKey().first >= qMax(m_row, 1))
            differences.append(m_name + u": too many rows"_s);
        return true;
    }

private:
    void compare(const Spreadsheet::Cell &meant)
    {
        const Spreadsheet::Cell found = m_sheet.cells.value({m_row, m_column});
        if (!(found == meant))
            add(meant.text, found.text);
        ++m_column;
    }
    void compareNumber(double meant)
    {
        const Spreadsheet::Cell found = m_sheet.cells.value({m_row, m_column});
        if (!found.isNumber || qAbs(found.text.toDouble() - meant) > qAbs(meant) * 1e-15)
            add(QString::number(meant, 'g', 17), found.text);
        ++m_column;
    }
    void add(const QString &meant, const QString &found)
    {
        differences.append(u"%1 %2:%3: \"%4\" is \"%5\""_s.arg(m_name).arg(m_row).arg(m_column).arg(
            meant.left(50), found.left(50)));
    }

    const Sheets m_sheets;
    QString m_name;
    Spreadsheet::Sheet m_sheet;
    int m_row = 0;
    int m_column = 0;
};

} // namespace

class XlsxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { std::setlocale(LC_ALL, "C.UTF-8"); }
    void everyCellIsReadAsItWasMeant_data();
    void everyCellIsReadAsItWasMeant();
    void headersAreFrozenAndFiltered();
    void daysAndTimesAreShownAsSuch();
    void longTextsAreCutAndCounted();
    void lineBreaksAreThoseOfACell();
    void theSameLogbookGivesTheSameBytes();
    void itCanBeStopped();
    void aSinkThatRefusesGetsNoMore();
};

void XlsxTest::everyCellIsReadAsItWasMeant_data()
{
    QTest::addColumn<Catalogue>("catalogue");
    QTest::addColumn<bool>("isGerman");
    for (const bool isGerman : {false, true}) {
        const QByteArray where = isGerman ? "German, " : "C, ";
        QTest::newRow(where + "empty") << Catalogue() << isGerman;
        QTest::newRow(where + "small") << PlainLogbook::logbook() << isGerman;
        QTest::newRow(where + "nasty") << NastyLogbook::logbook() << isGerman;
    }
}

void XlsxTest::everyCellIsReadAsItWasMeant()
{
    QFETCH(Catalogue, catalogue);
    QFETCH(bool, isGerman);
    if (isGerman) {
        const Spreadsheet::GermanLocale german;
        qputenv("LOCPATH", german.path().toLocal8Bit());
        QVERIFY(std::setlocale(LC_ALL, qPrintable(german.name())));
        QCOMPARE(std::localeconv()->decimal_point, ",");
        qunsetenv("LOCPATH");
    }
    const Workbook written = workbook(catalogue);
    QCOMPARE(written.written.problem, QString());
    QStringList names;
    const Sheets sheets = read(written.bytes, &names);
    QCOMPARE(names,
             QStringList({u"batteries"_s, u"discharges"_s, u"models"_s, u"flights"_s, u"locations"_s}));
    Comparison comparison(sheets);
    QVERIFY(writeTables(catalogue, catalogue, comparison));
    QCOMPARE(comparison.differences, QStringList());
    QVERIFY(comparison.cells >= 30); // the headers
}

void XlsxTest::headersAreFrozenAndFiltered()
{
    QStringList names;
    const Sheets sheets = read(workbook(PlainLogbook::logbook()).bytes, &names);
    for (const Spreadsheet::Sheet &sheet : sheets)
        QCOMPARE(sheet.unfrozen, u"A2"_s);
    QCOMPARE(sheets.value(u"batteries"_s).filter, u"A1:H4"_s);
    QCOMPARE(sheets.value(u"flights"_s).filter, u"A1:G6"_s);
    QCOMPARE(read(workbook({}).bytes, &names).value(u"locations"_s).filter, u"A1:A2"_s);
}

void XlsxTest::daysAndTimesAreShownAsSuch()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"book.xlsx"_s));
    QVERIFY(file.open(QFile::WriteOnly));
    Catalogue catalogue;
    catalogue.batteries = {PlainLogbook::battery(u"A"_s)};
    catalogue.batteries.first().purchase = QDate(2025, 3, 14);
    catalogue.batteries.first().lastUse = QDateTime(QDate(2026, 11, 10), QTime(21, 9, 54));
    file.write(workbook(catalogue).bytes);
    file.close();
    QProcess converter;
    converter.start(u"ssconvert"_s, {u"-T"_s, u"Gnumeric_stf:stf_assistant"_s, u"-O"_s, u"format=preserve"_s,
                                     file.fileName(), u"fd://1"_s});
    QVERIFY(converter.waitForFinished());
    const QByteArray shown = converter.readAllStandardOutput();
    QVERIFY2(shown.contains("\nA,2200,25,0,2025-03-14,10,yes,\"2026-11-10 21:09:54\"\n"), shown.constData());
}

void XlsxTest::longTextsAreCutAndCounted()
{
    Catalogue catalogue;
    const QString longest(Xlsx::LongestText, u'x');
    catalogue.locations = {longest, longest + u'y', QString(Xlsx::LongestText - 1, u'z') + u"🛩"_s};
    const Workbook written = workbook(catalogue);
    QCOMPARE(written.written.cutTexts, 2);
    QStringList names;
    const Spreadsheet::Sheet sheet = read(written.bytes, &names).value(u"locations"_s);
    QVERIFY(sheet.text(1, 0) == longest);
    QVERIFY(sheet.text(2, 0) == longest);
    QVERIFY(sheet.text(3, 0) == QString(Xlsx::LongestText - 1, u'z')); // not half a character
}

void XlsxTest::lineBreaksAreThoseOfACell()
{
    Catalogue catalogue;
    catalogue.locations = {u"a\r\nb\rc\nd"_s};
    QStringList names;
    QCOMPARE(read(workbook(catalogue).bytes, &names).value(u"locations"_s).text(1, 0), u"a\nb\nc\nd"_s);
}

void XlsxTest::theSameLogbookGivesTheSameBytes()
{
    const QByteArray first = workbook(PlainLogbook::logbook()).bytes;
    QTest::qWait(1100); // the clock has moved on
    QVERIFY(first == workbook(PlainLogbook::logbook()).bytes);
}

void XlsxTest::itCanBeStopped()
{
    Catalogue catalogue;
    for (int i = 0; i < 5000; ++i)
        catalogue.locations.append(QString::number(i));
    QList<qsizetype> told;
    const Workbook written = workbook(catalogue, [&told](qsizetype rows) {
        told.append(rows);
        return rows < 3000;
    });
    QVERIFY(written.written.isStopped);
    QCOMPARE(written.bytes, QByteArray());
    QCOMPARE(told, QList<qsizetype>({1000, 2000, 3000}));
}

void XlsxTest::aSinkThatRefusesGetsNoMore()
{
    int asked = 0;
    const Catalogue catalogue = NastyLogbook::logbook();
    const Xlsx::Written written = Xlsx::write(catalogue, catalogue, [&asked](const QByteArray &) {
        ++asked;
        return false;
    });
    QCOMPARE(written.problem, QString());
    QCOMPARE(asked, 1);
}

QTEST_GUILESS_MAIN(XlsxTest)
#include "tst_xlsx.moc"
