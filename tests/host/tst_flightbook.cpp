// SPDX-License-Identifier: GPL-3.0-or-later
// The rows and totals of the flight book, and where its pages end.
#include "host/exchange/flightbook.h"
#include "host/exchange/flightbookpages.h"
#include "tests/host/support/plainlogbook.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSizeF A4(595, 842);

/** The start of each flight of a book, as on a clock; "-" without one. */
QStringList starts(const FlightBook &book)
{
    QStringList starts;
    for (const FlightBookEntry &entry : book.entries)
        starts.append(entry.flight.time.isValid() ? entry.flight.time.toString(u"HH:mm") : u"-"_s);
    return starts;
}

/** A book of so many flights, a minute long each. */
FlightBook bookOf(int count, const QString &notes = u"calm"_s)
{
    FlightBook book;
    for (int i = 0; i < count; ++i)
        book.entries.append(
            {{at(9, 0).addSecs(i), QTime(0, 1), u"Meadow"_s, 18, notes}, u"Skylark"_s, {u"A"_s}});
    return book;
}

} // namespace

class FlightBookTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flightsStandInTheOrderOfTime();
    void ofEqualTimesTheFirstInTheFileStandsFirst();
    void anEntryNamesEachBatteryOnce();
    void itIsLimitedToDaysAndModels_data();
    void itIsLimitedToDaysAndModels();
    void totalsCountWhatHasADuration();
    void cellsAreInTheLocalesForm_data();
    void cellsAreInTheLocalesForm();
    void hoursGoBeyondADay();
    void longTextsGoOnInParts_data();
    void longTextsGoOnInParts();
    void whatCannotBePrintedIsReplaced();
    void everyFlightIsOnOnePageAndTheTotalsAddUp_data();
    void everyFlightIsOnOnePageAndTheTotalsAddUp();
    void whatFitsTogetherStaysTogether();
    void aBookWithoutFlightsHasOnePage();
    void layingOutCanBeCancelled();
    void paperIsWhiteWithBlackTextWhateverTheWindow();
    void theFirstColumnStandsWhereOneBeginsToRead();
    void eachPageTakesNoLonger();
};

void FlightBookTest::flightsStandInTheOrderOfTime()
{
    Catalogue catalogue = logbook();
    std::reverse(catalogue.models[0].log.begin(), catalogue.models[0].log.end());
    std::reverse(catalogue.models[1].log.begin(), catalogue.models[1].log.end()); // without a time first
    const FlightBook book = flightBookOf(catalogue, {});
    QCOMPARE(starts(book), (QStringList{u"09:00"_s, u"10:00"_s, u"11:00"_s, u"12:00"_s, u"-"_s}));
    QCOMPARE(book.entries.at(3).model, u"Firebrand"_s);
    QCOMPARE(book.entries.at(1).flight, catalogue.models[0].log[1]);
}

void FlightBookTest::ofEqualTimesTheFirstInTheFileStandsFirst()
{
    Catalogue catalogue = logbook();
    catalogue.models[0].log = {flight(at(9, 0), u"Hill"_s), flight(at(9, 0), u"Beach"_s)};
    catalogue.models[1].log = {flight(at(9, 0), u"Meadow"_s)};
    QStringList locations;
    const FlightBook book = flightBookOf(catalogue, {});
    for (const FlightBookEntry &entry : book.entries)
        locations.append(entry.flight.location);
    QCOMPARE(locations, (QStringList{u"Hill"_s, u"Beach"_s, u"Meadow"_s}));
}

void FlightBookTest::anEntryNamesEachBatteryOnce()
{
    Catalogue catalogue = logbook();
    catalogue.batteries[0].discharges.append({at(10, 0), 100, 200});
    const FlightBook book = flightBookOf(catalogue, {});
    QCOMPARE(book.entries.at(0).batteries, QStringList{u"A"_s});
    QCOMPARE(book.entries.at(1).batteries, (QStringList{u"A"_s, u"B"_s}));
    QCOMPARE(book.entries.at(2).batteries, QStringList());
    QCOMPARE(book.entries.at(4).batteries, QStringList()); // without a time
}

void FlightBookTest::itIsLimitedToDaysAndModels_data()
{
    QTest::addColumn<DateRange>("range");
    QTest::addColumn<std::optional<QStringList>>("models");
    QTest::addColumn<QStringList>("expected");
    const QDate day(2026, 5, 3);
    const QStringList all{u"09:00"_s, u"10:00"_s, u"11:00"_s, u"12:00"_s};
    const std::optional<QStringList> any;
    QTest::newRow("that day") << DateRange{day, day} << any << all;
    QTest::newRow("from the day after") << DateRange{day.addDays(1), {}} << any << QStringList();
    QTest::newRow("until the day before") << DateRange{{}, day.addDays(-1)} << any << QStringList();
    QTest::newRow("from that day") << DateRange{day, {}} << any << all;
    QTest::newRow("until that day") << DateRange{{}, day} << any << all;
    QTest::newRow("one model") << DateRange{} << std::optional(QStringList{u"Firebrand"_s})
                               << QStringList{u"12:00"_s, u"-"_s};
    QTest::newRow("one model that day")
        << DateRange{day, day} << std::optional(QStringList{u"Firebrand"_s}) << QStringList{u"12:00"_s};
    QTest::newRow("no model") << DateRange{} << std::optional(QStringList()) << QStringList();
}

void FlightBookTest::itIsLimitedToDaysAndModels()
{
    QFETCH(DateRange, range);
    QFETCH(std::optional<QStringList>, models);
    QTEST(starts(flightBookOf(logbook(), range, models)), "expected");
}

void FlightBookTest::totalsCountWhatHasADuration()
{
    Catalogue catalogue = logbook();
    catalogue.models[0].log[1].duration = QTime();
    const FlightBook book = flightBookOf(catalogue, {});
    QCOMPARE(book.totals(0, 5), (FlightBookTotals{5, 4 * 390}));
    QCOMPARE(book.totals(1, 1), (FlightBookTotals{1, 0}));
    QCOMPARE(book.totals(1, 2) + book.totals(3, 1), (FlightBookTotals{3, 2 * 390}));
}

void FlightBookTest::cellsAreInTheLocalesForm_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("start");
    QTest::newRow("none") << QLocale::c() << u"2026-05-03"_s << u"09:05:00"_s;
    QTest::newRow("German") << QLocale(QLocale::German) << u"03.05.2026"_s << u"09:05"_s;
    QTest::newRow("British") << QLocale(QLocale::English, QLocale::UnitedKingdom) << u"03/05/2026"_s
                             << u"09:05"_s;
    QTest::newRow("American")
        << QLocale(QLocale::English, QLocale::UnitedStates) << u"5/3/2026"_s
        << QLocale(QLocale::English, QLocale::UnitedStates).toString(QTime(9, 5), u"h:mm AP"_s);
}

void FlightBookTest::cellsAreInTheLocalesForm()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, date);
    QFETCH(QString, start);
    const FlightBookEntry entry{
        {at(9, 5), QTime(1, 6, 30), u"Meadow"_s, 18, u"calm\nwarm"_s}, u"Skylark"_s, {u"A"_s, u"B"_s}};
    QStringList cells = FlightBookTexts::cells(entry, locale);
    cells[1].replace(QChar(0x202F), u' '); // a narrow blank of newer tables
    QCOMPARE(cells, (QStringList{date, start, u"01:06:30"_s, u"Skylark"_s, u"A; B"_s, u"Meadow"_s,
                                 u"calm\nwarm"_s}));
    QCOMPARE(FlightBookTexts::cells({{}, u"Skylark"_s, {}}, locale),
             (QStringList{{}, {}, {}, u"Skylark"_s, {}, {}, {}}));
    QCOMPARE(FlightBookTexts::headings().size(), cells.size());
}

void FlightBookTest::hoursGoBeyondADay()
{
    QCOMPARE(FlightBookTexts::hours(0), u"00:00:00"_s);
    QCOMPARE(FlightBookTexts::hours(59), u"00:00:59"_s);
    QCOMPARE(FlightBookTexts::hours(26 * 3600 + 5 * 60 + 12), u"26:05:12"_s);
    QCOMPARE(FlightBookTexts::hours(1'000'000 * 3600LL), u"1000000:00:00"_s);
}

void FlightBookTest::longTextsGoOnInParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("least");
    QTest::newRow("nothing") << QString() << 0;
    QTest::newRow("short") << u"calm"_s << 1;
    QTest::newRow("words") << u"windy "_s.repeated(500) << 10;
    QTest::newRow("one word") << u"x"_s.repeated(3000) << 10;
    QTest::newRow("lines") << u"a\n"_s.repeated(100) << 5;
    QTest::newRow("emoji") << QString::fromUcs4(U"😀").repeated(1000) << 6;
}

void FlightBookTest::longTextsGoOnInParts()
{
    QFETCH(QString, text);
    QFETCH(int, least);
    const QStringList parts = FlightBookTexts::parts(text);
    QVERIFY2(parts.size() >= least && parts.size() <= 2 * least, qPrintable(QString::number(parts.size())));
    const auto bare = [](QString whole) { return whole.remove(QRegularExpression(u"\\s"_s)); };
    QCOMPARE(bare(parts.join(QString())), bare(text));
    for (const QString &part : parts) {
        QVERIFY(part.size() <= 300 && part.count(u'\n') <= 20);
        QVERIFY(!part.back().isHighSurrogate() && !part.front().isLowSurrogate());
    }
    if (text.startsWith(u"windy"_s)) {
        for (const QString &part : parts)
            QVERIFY2(part.endsWith(u"windy"_s), qPrintable(part));
    }
}

void FlightBookTest::whatCannotBePrintedIsReplaced()
{
    const auto one = [](const QString &text) { return FlightBookTexts::parts(text).value(0); };
    QCOMPARE(one(u"a\r\nb\rc"_s), u"a\nb\nc"_s);
    QCOMPARE(one(u"a\tb"_s), u"a\tb"_s);
    // The first two are what a text document keeps for the ends of its tables.
    for (const char16_t odd : {u'\uFDD0', u'\uFDD1', u'\uFFFC', u'\u009B', u'\uFFFE'})
        QCOMPARE(one(u"a"_s + QChar(odd) + u"b"_s), u"a\uFFFDb"_s);
}

void FlightBookTest::everyFlightIsOnOnePageAndTheTotalsAddUp_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("notes");
    QTest::newRow("one") << 1 << u"calm"_s;
    for (const int count : {10, 39, 40, 41, 42, 43, 44, 45, 46, 47, 48, 49, 50, 100, 500})
        QTest::addRow("%d", count) << count << u"calm"_s;
    QTest::newRow("wrapped") << 100 << u"a note of some length "_s.repeated(6);
    QTest::newRow("longer than a page") << 5 << u"windy "_s.repeated(2000);
    QTest::newRow("one of many lines") << 1 << u"W\n"_s.repeated(400);
}

void FlightBookTest::everyFlightIsOnOnePageAndTheTotalsAddUp()
{
    QFETCH(int, count);
    QFETCH(QString, notes);
    FlightBookPages pages(bookOf(count, notes), A4, QLocale::c());
    QVERIFY(pages.layOut());
    size_t row = 0;
    FlightBookTotals sum;
    for (const auto &page : pages.m_pages) {
        QCOMPARE(page.firstRow, row);
        QVERIFY(page.rowCount > 0);
        QCOMPARE(page.before, sum);
        QCOMPARE(page.isLast, &page == &pages.m_pages.back());
        const std::vector<qreal> heights = pages.heights(page.firstRow);
        const qreal height = pages.body().height() - (page.isLast ? 24 * 1200 / 25.4 : 0);
        QVERIFY2(heights.at(page.rowCount - 1) <= height, qPrintable(QString::number(row)));
        row += page.rowCount;
        sum = sum + page.here;
    }
    QCOMPARE(row, pages.m_rows.size());
    QCOMPARE(sum, (FlightBookTotals{count, 60 * count}));
}

void FlightBookTest::whatFitsTogetherStaysTogether()
{
    FlightBookPages pages(bookOf(200), A4, QLocale::c());
    QVERIFY(pages.layOut());
    QVERIFY2(pages.count() <= 6, qPrintable(QString::number(pages.count())));
    for (int page = 0; page + 2 < pages.count();
         ++page) { // the last one leaves it something to be signed for
        const auto &[first, rows, here, before, isLast] = pages.m_pages.at(static_cast<size_t>(page));
        QVERIFY(pages.heights(first).at(rows) > pages.body().height());
    }
}

void FlightBookTest::aBookWithoutFlightsHasOnePage()
{
    FlightBookPages pages(FlightBook(), A4, QLocale::c());
    QVERIFY(pages.layOut());
    QCOMPARE(pages.count(), 1);
}

void FlightBookTest::layingOutCanBeCancelled()
{
    FlightBookPages pages(bookOf(500), A4, QLocale::c());
    double last = 0;
    QVERIFY(!pages.layOut([&last](double share) {
        last = share;
        return share < 0.5;
    }));
    QVERIFY(last >= 0.5 && last < 0.7);
    QVERIFY(!pages.isComplete());
    QVERIFY(flightBookPdf(bookOf(500), QPageSize::A4, QLocale::c(), [](double share) {
                return share < 0.7;
            }).isEmpty());
    QVERIFY(pages.layOut([&last](double share) { return share >= std::exchange(last, share); }));
    QCOMPARE(last, 1.0);
}

void FlightBookTest::paperIsWhiteWithBlackTextWhateverTheWindow()
{
    QPalette dark;
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    QGuiApplication::setPalette(dark);
    FlightBookPages pages(bookOf(30), A4, QLocale::c());
    QVERIFY(pages.layOut());
    QImage image(595, 842, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(72.0 / FlightBookPages::UnitsPerInch, 72.0 / FlightBookPages::UnitsPerInch);
    pages.draw(0, painter);
    painter.end();
    qint64 ink = 0;
    for (int y = 100; y < 500; ++y) {
        for (int x = 60; x < 500; ++x)
            ink += qGray(image.pixel(x, y)) < 96 ? 1 : 0;
    }
    QVERIFY2(ink > 2000 && ink < 40'000, qPrintable(QString::number(ink)));
    QGuiApplication::setPalette(QPalette());
}

void FlightBookTest::theFirstColumnStandsWhereOneBeginsToRead()
{
    const auto textAt = [](int row, int column) {
        FlightBookPages pages(bookOf(2), A4, QLocale::c());
        pages.layOut();
        QTextDocument document;
        pages.fill(document, pages.m_pages.front());
        const auto *table = qobject_cast<QTextTable *>(document.rootFrame()->childFrames().constFirst());
        return table->cellAt(row, column).firstCursorPosition().block().text();
    };
    QCOMPARE(textAt(0, 0), u"Date"_s);
    QCOMPARE(textAt(1, 6), u"calm"_s);
    QCOMPARE(textAt(3, 2), u"00:02:00"_s);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(textAt(0, 6), u"Date"_s);
    QCOMPARE(textAt(1, 0), u"calm"_s);
    QCOMPARE(textAt(3, 6), u"This page"_s);
    QCOMPARE(textAt(3, 4), u"00:02:00"_s);
    QCOMPARE(textAt(3, 0), u"Flights: 2"_s);
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void FlightBookTest::eachPageTakesNoLonger()
{
    const auto took = [](int count) {
        QElapsedTimer timer;
        timer.start();
        FlightBookPages pages(bookOf(count), A4, QLocale::c());
        pages.layOut();
        return timer.elapsed();
    };
    took(100);
    const qint64 few = took(500);
    const qint64 many = took(5000);
    qInfo("%lld ms, %lld ms", static_cast<long long>(few), static_cast<long long>(many));
    QVERIFY(many < 25 * few);
}

QTEST_MAIN(FlightBookTest)
#include "tst_flightbook.moc"
