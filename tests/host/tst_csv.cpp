// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/csv.h"

#include "host/exchange/exportfilter.h"
#include "tests/host/support/plainlogbook.h"

#include <QHash>
#include <QLocale>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace Host;

namespace {

using Files = QHash<QString, QByteArray>;

Files written(const Catalogue &catalogue, const CsvStyle &style = CsvStyle::plain(),
              const ExportFilter &filter = {})
{
    Files files;
    CsvWriter writer(style, [&files](const Table &table) {
        return [&files, name = table.name](const QByteArray &bytes) {
            files[name] += bytes;
            return true;
        };
    });
    if (!writeTables(filtered(catalogue, filter), catalogue, writer))
        qFatal("the tables were not written");
    return files;
}

/** The rows of locations.csv for one location. */
QByteArray cell(const QString &text, const CsvStyle &style = CsvStyle::plain())
{
    Catalogue catalogue;
    catalogue.locations = QStringList{text};
    return written(catalogue, style).value(u"locations"_s);
}

Catalogue oneOfEach()
{
    Battery battery;
    battery.name = u"3S 450 A"_s;
    battery.capacity = 450;
    battery.rating = 45;
    battery.chargeRate = 25;
    battery.cycles = 42;
    battery.charged = true;
    battery.purchase = QDate(2025, 3, 14);
    battery.lastUse = QDateTime(QDate(2026, 11, 10), QTime(21, 9, 54));
    battery.discharges = {{QDateTime(QDate(2025, 4, 6), QTime(16, 40, 28)), 376, 1317},
                          {QDateTime(QDate(2025, 4, 6), QTime(17, 0)), 360, 2025}, // what is preset for it
                          {QDateTime(), 0, 0}};
    battery.discharges[2].isMeasured = true; // but nothing was entered
    Model model;
    model.name = u"Skylark"_s;
    model.type = u"Glider"_s;
    model.weight = 114;
    model.size = 700;
    model.flights = 12;
    model.purchase = QDate(2024, 1, 2);
    model.notes = u"stalls, left"_s;
    model.lastUpdate = QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5));
    model.batteries = QStringList{battery.name, u"B"_s};
    model.log = {{battery.discharges.first().time, QTime(0, 5, 12), u"Club field"_s, -5, u"windy"_s},
                 {QDateTime(), QTime(), QString(), 0, QString()}};
    return {{u"Club field"_s, u"Hill"_s}, {battery}, {model}};
}

} // namespace

class CsvTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTableHasItsHeaderAndItsValues();
    void anEmptyLogbookGivesHeadersOnly();
    void numbersAreInTheirShortestForm_data();
    void numbersAreInTheirShortestForm();
    void textsAreQuotedWhereTheyMustBe_data();
    void textsAreQuotedWhereTheyMustBe();
    void aLocaleChoosesSignAndSeparator_data();
    void aLocaleChoosesSignAndSeparator();
    void whatLooksLikeAFormulaIsProtectedForSpreadsheetsOnly_data();
    void whatLooksLikeAFormulaIsProtectedForSpreadsheetsOnly();
    void aNegativeNumberIsNoFormula();
    void datesOfAnyYearAreWritten_data();
    void datesOfAnyYearAreWritten();
    void aFlightNamesEachOfItsBatteriesOnceInTheirOrder();
    void longTablesArriveWhole();
    void aSinkThatFailsEndsTheTables();
};

void CsvTest::everyTableHasItsHeaderAndItsValues()
{
    const Files files = written(oneOfEach());
    QCOMPARE(files.size(), 5);
    QCOMPARE(
        files.value(u"batteries"_s),
        "Name,Capacity (mAh),Discharge rating (C),Charge rating (C),Purchased,Cycles,Charged,Last use\r\n"
        "3S 450 A,450,45,2.5,2025-03-14,42,yes,2026-11-10 21:09:54\r\n");
    QCOMPARE(files.value(u"discharges"_s), "Battery,Time,Discharged (mAh),Maximum current (A),Source\r\n"
                                           "3S 450 A,2025-04-06 16:40:28,376,13.17,entered\r\n"
                                           "3S 450 A,2025-04-06 17:00:00,360,20.25,guessed\r\n"
                                           "3S 450 A,,0,0,none\r\n");
    QCOMPARE(files.value(u"models"_s),
             "Name,Type,Weight,Size,Purchased,Flights,Batteries,Notes,Last update\r\n"
             "Skylark,Glider,114,700,2024-01-02,12,3S 450 A; B,\"stalls, left\",2026-01-02 03:04:05\r\n");
    QCOMPARE(files.value(u"flights"_s),
             QByteArray("Model,Time,Duration (s),Location,Temperature (°C),Batteries,Notes\r\n"
                        "Skylark,2025-04-06 16:40:28,312,Club field,-5,3S 450 A,windy\r\n"
                        "Skylark,,,,0,,\r\n"));
    QCOMPARE(files.value(u"locations"_s), "Name\r\nClub field\r\nHill\r\n");
}

void CsvTest::anEmptyLogbookGivesHeadersOnly()
{
    const Files files = written({});
    QCOMPARE(files.size(), 5);
    for (const QByteArray &bytes : files)
        QCOMPARE(bytes.indexOf("\r\n"), bytes.size() - 2);
}

void CsvTest::numbersAreInTheirShortestForm_data()
{
    QTest::addColumn<unsigned int>("hundredths");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("two decimals") << 1317U << "13.17"_ba;
    QTest::newRow("one decimal") << 1320U << "13.2"_ba;
    QTest::newRow("none") << 1300U << "13"_ba;
    QTest::newRow("a zero behind the sign") << 1305U << "13.05"_ba;
    QTest::newRow("below one") << 5U << "0.05"_ba;
    QTest::newRow("the largest") << 4294967295U << "42949672.95"_ba;
    QTest::newRow("no exponent") << 4000000000U << "40000000"_ba;
}

void CsvTest::numbersAreInTheirShortestForm()
{
    QFETCH(unsigned int, hundredths);
    QFETCH(QByteArray, text);
    Catalogue catalogue;
    catalogue.batteries = {PlainLogbook::battery(u"A"_s, {{QDateTime(), 7, hundredths}})};
    QCOMPARE(written(catalogue).value(u"discharges"_s).split('\n').at(1), "A,,7," + text + ",entered\r");
}

void CsvTest::textsAreQuotedWhereTheyMustBe_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("cell");
    QTest::newRow("plain") << u"Hill's top; north"_s << "Hill's top; north"_ba;
    QTest::newRow("comma") << u"a,b"_s << "\"a,b\""_ba;
    QTest::newRow("quotes") << u"the \"Hill\""_s << "\"the \"\"Hill\"\"\""_ba;
    QTest::newRow("line break") << u"a\nb"_s << "\"a\nb\""_ba;
    QTest::newRow("carriage return") << u"a\rb"_s << "\"a\rb\""_ba;
    QTest::newRow("both") << u"a\r\nb"_s << "\"a\r\nb\""_ba;
    QTest::newRow("spaces") << u" a "_s << " a "_ba;
    QTest::newRow("formula") << u"=1+1"_s << "=1+1"_ba;
    QTest::newRow("no Latin") << u"東京 🛩"_s << u"東京 🛩"_s.toUtf8();
    QTest::newRow("half a character") << QString(QChar(0xD83D)) << "\xEF\xBF\xBD"_ba;
    QTest::newRow("nothing, alone in its line") << QString() << "\"\""_ba;
}

void CsvTest::textsAreQuotedWhereTheyMustBe()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, cell);
    QCOMPARE(::cell(text), "Name\r\n" + cell + "\r\n");
}

void CsvTest::aLocaleChoosesSignAndSeparator_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("C") << u"C"_s << "\"a;b,c\",,7,13.17,entered"_ba;
    QTest::newRow("United States") << u"en_US"_s << "\"a;b,c\",,7,13.17,entered"_ba;
    QTest::newRow("Germany") << u"de_DE"_s << "\"a;b,c\";;7;13,17;entered"_ba;
    QTest::newRow("France") << u"fr_FR"_s << "\"a;b,c\";;7;13,17;entered"_ba;
    QTest::newRow("Iran") << u"fa_IR"_s << u"\"a;b,c\",,7,13٫17,entered"_s.toUtf8();
}

void CsvTest::aLocaleChoosesSignAndSeparator()
{
    QFETCH(QString, locale);
    QFETCH(QByteArray, line);
    Catalogue catalogue;
    catalogue.batteries = {PlainLogbook::battery(u"a;b,c"_s, {{QDateTime(), 7, 1317}})};
    const Files files = written(catalogue, CsvStyle::forLocale(QLocale(locale)));
    const QByteArray bytes = files.value(u"discharges"_s);
    QVERIFY(bytes.startsWith("\xEF\xBB\xBF"
                             "Battery"));
    QCOMPARE(bytes.split('\n').at(1), line + '\r');
    QVERIFY(!files.value(u"locations"_s).contains("sep="));
}

void CsvTest::whatLooksLikeAFormulaIsProtectedForSpreadsheetsOnly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("cell");
    QTest::newRow("equals") << u"=1+1"_s << "'=1+1"_ba;
    QTest::newRow("plus") << u"+49"_s << "'+49"_ba;
    QTest::newRow("minus") << u"-5 apples"_s << "'-5 apples"_ba;
    QTest::newRow("at") << u"@home"_s << "'@home"_ba;
    QTest::newRow("tab") << u"\t=1"_s << "'\t=1"_ba;
    QTest::newRow("carriage return") << u"\r=1"_s << "\"'\r=1\""_ba;
    QTest::newRow("quoted as well") << u"=1,\"2\""_s << "\"'=1,\"\"2\"\"\""_ba;
    QTest::newRow("behind the first character") << u"1=1"_s << "1=1"_ba;
    QTest::newRow("line feed") << u"\n=1"_s << "\"\n=1\""_ba;
}

void CsvTest::whatLooksLikeAFormulaIsProtectedForSpreadsheetsOnly()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, cell);
    QCOMPARE(::cell(text, CsvStyle::forLocale(QLocale::c())), "\xEF\xBB\xBFName\r\n" + cell + "\r\n");
    const QByteArray plain = QByteArray(cell).replace("'", "");
    QCOMPARE(::cell(text), "Name\r\n" + plain + "\r\n");
}

void CsvTest::aNegativeNumberIsNoFormula()
{
    const Files files = written(oneOfEach(), CsvStyle::forLocale(QLocale::c()));
    QVERIFY(files.value(u"flights"_s).contains(",Club field,-5,"));
}

void CsvTest::datesOfAnyYearAreWritten_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("long ago") << QDate(850, 1, 2) << "0850-01-02"_ba;
    QTest::newRow("before spreadsheets count") << QDate(1899, 12, 31) << "1899-12-31"_ba;
    QTest::newRow("leap day") << QDate(2024, 2, 29) << "2024-02-29"_ba;
    QTest::newRow("far away") << QDate(12345, 6, 7) << "12345-06-07"_ba;
    QTest::newRow("none") << QDate() << ""_ba;
}

void CsvTest::datesOfAnyYearAreWritten()
{
    QFETCH(QDate, date);
    QFETCH(QByteArray, text);
    Catalogue catalogue = oneOfEach();
    catalogue.batteries.first().purchase = date;
    QCOMPARE(written(catalogue).value(u"batteries"_s).split(',').at(11), text);
    QCOMPARE(isoText(date).toUtf8(), text);
}

void CsvTest::aFlightNamesEachOfItsBatteriesOnceInTheirOrder()
{
    Catalogue catalogue = PlainLogbook::logbook();
    catalogue.batteries.first().discharges.append({PlainLogbook::at(10, 0), 5, 5});
    const QList<QByteArray> lines = written(catalogue).value(u"flights"_s).split('\n');
    QCOMPARE(lines.at(2), "Skylark,2026-05-03 10:00:00,390,Hill,18,A; B,calm\r");
    QCOMPARE(lines.at(3), "Skylark,2026-05-03 11:00:00,390,Meadow,18,,calm\r");

    ExportFilter filter;
    filter.batteries = QStringList{u"C"_s};
    const Files files = written(catalogue, CsvStyle::plain(), filter);
    QCOMPARE(files.value(u"flights"_s).split('\n'), lines);
    QCOMPARE(files.value(u"discharges"_s).count('\n'), 1);
}

void CsvTest::longTablesArriveWhole()
{
    Catalogue catalogue;
    QByteArray expected = "Name\r\n";
    for (int i = 0; i < 50'000; ++i) {
        catalogue.locations.append(u"Location %1"_s.arg(i));
        expected += "Location " + QByteArray::number(i) + "\r\n";
    }
    catalogue.locations.append(QString(1'000'000, u'x'));
    expected += QByteArray(1'000'000, 'x') + "\r\n";
    QVERIFY(written(catalogue).value(u"locations"_s) == expected);
}

void CsvTest::aSinkThatFailsEndsTheTables()
{
    int asked = 0;
    CsvWriter writer(CsvStyle::plain(), [&asked](const Table &) {
        ++asked;
        return [](const QByteArray &) { return false; };
    });
    const Catalogue catalogue = oneOfEach();
    QVERIFY(!writeTables(catalogue, catalogue, writer));
    QCOMPARE(asked, 1);
}

QTEST_GUILESS_MAIN(CsvTest)
#include "tst_csv.moc"
