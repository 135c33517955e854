// SPDX-License-Identifier: GPL-3.0-or-later
// "voltbok report", judged by programs that read PDF files.
#include "host/data/cataloguefile.h"
#include "tests/host/support/plainlogbook.h"
#include "tests/host/support/program.h"
#include "tests/support/files.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

namespace {

/** So many flights with a battery each, every fifth of another model; and one without a time. */
Catalogue flown(int count)
{
    Catalogue catalogue;
    catalogue.batteries = {battery(u"4S 2200"_s)};
    catalogue.models = {model(u"Firebrand 550"_s, {}), model(u"Skylark"_s, {})};
    for (int i = count; i-- > 0;) { // the newest first: the book turns them round
        const QDateTime time = at(9, 0).addSecs(i * 3600LL);
        catalogue.models[i % 5 == 0 ? 1 : 0].log.append(
            {time, QTime(0, 5).addSecs(i), u"Club field %1"_s.arg(i), 18, u"note %1"_s.arg(i)});
        catalogue.batteries[0].discharges.append({time, 1000, 2000});
    }
    catalogue.models[1].log.append({{}, QTime(0, 4), u"Nowhere"_s, 0, u"undated"_s});
    return catalogue;
}

} // namespace

class ReportCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyFlightStandsInItInOrder();
    void eachPageSaysWhatItComesTo();
    void itIsLimitedToDaysAndModels();
    void otherProgramsTakeItForAWholeDocument();
    void paperIsA4OrLetter_data();
    void paperIsA4OrLetter();
    void longNotesWrapAndLoseNothing();
    void namesOfAnyScriptAreInIt();
    void anEmptyLogbookSaysSo();
    void theSampleNeedsNotHaveBeenOpened();
    void nothingThatExistsIsReplacedUnlessForced();
    void noBookTakesThePlaceOfALogbook();
    void whatCannotBeDoneIsOneLineAndLeavesNothing_data();
    void whatCannotBeDoneIsOneLineAndLeavesNothing();
    void aFolderThatIsNotThereIsNotMade();
    void aFullDiskKeepsWhatWasThere();

private:
    void put(const Catalogue &catalogue) const
    {
        QVERIFY(QDir(m_program->home()).mkpath(u"log"_s));
        QVERIFY(Test::write(m_program->home(u"log/voltbok.xml"_s), CatalogueFile::save(catalogue).document));
    }
    Program::Result report(const QStringList &options = {}) const
    {
        return m_program->run(QStringList{u"report"_s, u"--data"_s, u"log"_s, u"--output"_s, u"book.pdf"_s} +
                              options);
    }
    /** What another program says about the book. */
    QString ask(const QString &command) const
    {
        const Program::Result result = m_program->shell(command);
        return result.status == 0 ? result.output : u"not done: "_s + result.output + result.errors;
    }
    /** The lines of the book, with single blanks. */
    QStringList lines() const
    {
        QStringList lines;
        const QStringList all = ask(u"pdftotext -layout book.pdf -"_s).split(u'\n');
        for (const QString &line : all)
            lines.append(line.simplified());
        return lines;
    }
    QStringList files() const
    {
        return QDir(m_program->home()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<Program> m_program;
};

void ReportCommandTest::init()
{
    m_program = std::make_unique<Program>();
    m_program->environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
}

void ReportCommandTest::everyFlightStandsInItInOrder()
{
    constexpr int Count = 150;
    put(flown(Count));
    const Program::Result result = report();
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, QString());
    QCOMPARE(result.status, 0);
    const QStringList flights = lines().filter(QRegularExpression(u"Club field|Nowhere"_s));
    QCOMPARE(flights.size(), Count + 1);
    for (int i = 0; i < Count; ++i) {
        const QDateTime time = at(9, 0).addSecs(i * 3600LL);
        QCOMPARE(flights.at(i),
                 u"%1 %2 %3 4S 2200 Club field %4 note %4"_s.arg(
                     time.toString(u"yyyy-MM-dd HH:mm:ss"), QTime(0, 5).addSecs(i).toString(u"HH:mm:ss"),
                     i % 5 == 0 ? u"Skylark"_s : u"Firebrand 550"_s, QString::number(i)));
    }
    QCOMPARE(flights.last(), u"00:04:00 Skylark Nowhere undated"_s);
    QCOMPARE(files(), (QStringList{u"book.pdf"_s, u"log"_s}));
}

void ReportCommandTest::eachPageSaysWhatItComesTo()
{
    put(flown(150));
    QCOMPARE(report().status, 0);
    const QStringList pages = ask(u"pdftotext -layout book.pdf -"_s).split(u'\f', Qt::SkipEmptyParts);
    QVERIFY(pages.size() > 2);
    int flights = 0;
    int seconds = 0;
    const auto sum = [](int count, int time) {
        return u"%1 Flights: %2"_s.arg(QTime(0, 0).addSecs(time).toString(u"HH:mm:ss")).arg(count);
    };
    for (qsizetype i = 0; i < pages.size(); ++i) {
        static const QRegularExpression row(u"(\\d\\d:\\d\\d:\\d\\d) +(Skylark|Firebrand 550) "_s);
        int count = 0;
        int time = 0;
        for (auto match = row.globalMatch(pages.at(i)); match.hasNext(); ++count)
            time += QTime(0, 0).secsTo(QTime::fromString(match.next().captured(1), u"HH:mm:ss"_s));
        const QString page = pages.at(i).simplified();
        QVERIFY2(page.contains(u"Date Start Duration Model Batteries Location Notes"_s), qPrintable(page));
        QVERIFY2(page.contains(u"This page "_s + sum(count, time)), qPrintable(page));
        QVERIFY2(page.contains(u"Brought forward "_s + sum(flights, seconds)), qPrintable(page));
        flights += count;
        seconds += time;
        const bool isLast = i == pages.size() - 1;
        QVERIFY2(page.contains((isLast ? u"In all "_s : u"Carried forward "_s) + sum(flights, seconds)),
                 qPrintable(page));
        QVERIFY2(page.endsWith(u"Page %1 of %2"_s.arg(i + 1).arg(pages.size())), qPrintable(page));
        QCOMPARE(page.contains(u"Signature"_s), isLast);
    }
    QCOMPARE(flights, 151);
}

void ReportCommandTest::itIsLimitedToDaysAndModels()
{
    put(flown(50)); // on three days
    QCOMPARE(report({u"--from"_s, u"2026-05-04"_s, u"--to"_s, u"2026-05-04"_s}).status, 0);
    QStringList flights = lines().filter(u"field"_s);
    QCOMPARE(flights.size(), 24);
    QVERIFY(lines().filter(u"Nowhere"_s).isEmpty());
    QVERIFY(lines().contains(u"2026-05-04 to 2026-05-04"_s));
    QCOMPARE(report({u"--model"_s, u"Skylark"_s, u"--force"_s}).status, 0);
    flights = lines().filter(u"field"_s);
    QCOMPARE(flights.size(), 10);
    QCOMPARE(flights.filter(u"Skylark"_s).size(), 10);
    QCOMPARE(lines().filter(u"Nowhere"_s).size(), 1);
    QCOMPARE(report({u"--model"_s, u"Skylark"_s, u"--model"_s, u"Firebrand 550"_s, u"--force"_s}).status, 0);
    QCOMPARE(lines().filter(u"field"_s).size(), 50);
}

void ReportCommandTest::otherProgramsTakeItForAWholeDocument()
{
    put(flown(100));
    QCOMPARE(report().status, 0);
    QVERIFY2(ask(u"qpdf --check book.pdf"_s).contains(u"No syntax or stream encoding errors"_s),
             qPrintable(ask(u"qpdf --check book.pdf"_s)));
    const QStringList fonts = ask(u"pdffonts book.pdf | tail -n +3"_s).split(u'\n', Qt::SkipEmptyParts);
    QVERIFY(!fonts.isEmpty());
    for (const QString &font : fonts) // embedded, as a part, and with what each glyph means
        QVERIFY2(font.contains(QRegularExpression(u" yes +\\w+ +yes +\\d"_s)), qPrintable(font));
    const QString properties = ask(u"pdfinfo book.pdf"_s);
    QVERIFY2(properties.contains(QRegularExpression(u"Title: +Flight book\n"_s)), qPrintable(properties));
    QVERIFY2(properties.contains(QRegularExpression(u"Creator: +Voltbok"_s)), qPrintable(properties));
    const QString metadata = ask(u"pdfinfo -meta book.pdf"_s);
    QVERIFY2(metadata.contains(u">Flight book<"_s), qPrintable(metadata));
}

void ReportCommandTest::paperIsA4OrLetter_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("size");
    QTest::newRow("not named") << QStringList() << u"595 x 842 pts (A4)"_s;
    QTest::newRow("A4") << QStringList{u"--paper"_s, u"A4"_s} << u"595 x 842 pts (A4)"_s;
    QTest::newRow("Letter") << QStringList{u"--paper"_s, u"Letter"_s} << u"612 x 792 pts (letter)"_s;
}

void ReportCommandTest::paperIsA4OrLetter()
{
    QFETCH(QStringList, options);
    QFETCH(QString, size);
    put(flown(100));
    QCOMPARE(report(options).status, 0);
    const QString properties = ask(u"pdfinfo book.pdf"_s);
    QVERIFY2(properties.contains(size), qPrintable(properties));
    QVERIFY(lines().contains(u"Page 1 of 3"_s));
}

void ReportCommandTest::longNotesWrapAndLoseNothing()
{
    Catalogue catalogue = flown(3);
    QStringList words;
    for (int i = 0; i < 3000; ++i)
        words.append(u"word%1"_s.arg(i));
    catalogue.models[0].log[0].notes = words.join(u' ');
    put(catalogue);
    QCOMPARE(report().status, 0);
    const QString text = ask(u"pdftotext book.pdf -"_s).simplified();
    for (const QString &word : std::as_const(words))
        QVERIFY2(text.contains(word), qPrintable(word));
    QVERIFY(text.contains(u"Flights: 4"_s));
}

void ReportCommandTest::namesOfAnyScriptAreInIt()
{
    Catalogue catalogue = flown(2);
    catalogue.models[0].name = u"דאון כחול"_s;
    catalogue.models[1].name = u"Flügel fi fl №5 <b>&amp;</b>"_s;
    catalogue.models[1].log[0].notes = u"odd \uFDD0 \uFDD1"_s;
    put(catalogue);
    QCOMPARE(report().status, 0);
    const QString text = ask(u"pdftotext book.pdf -"_s).simplified();
    QVERIFY2(text.contains(u"דאון כחול"_s), qPrintable(text));
    QVERIFY2(text.contains(u"Flügel fi fl №5 <b>&amp;</b>"_s), qPrintable(text));
}

void ReportCommandTest::anEmptyLogbookSaysSo()
{
    QVERIFY(QDir(m_program->home()).mkpath(u"log"_s));
    QCOMPARE(report().status, 0);
    QVERIFY(lines().contains(u"There are no flights in this logbook yet."_s));
    QVERIFY(lines().contains(u"Page 1 of 1"_s));
    put(flown(3));
    QCOMPARE(report({u"--force"_s, u"--to"_s, u"1999-12-31"_s}).status, 0);
    QVERIFY(lines().contains(u"There are no flights within these limits."_s));
    QVERIFY(lines().contains(u"until 1999-12-31"_s));
}

void ReportCommandTest::theSampleNeedsNotHaveBeenOpened()
{
    const Program::Result result = m_program->run({u"--demo"_s, u"report"_s, u"--output=book.pdf"_s});
    QCOMPARE(result.status, 0);
    QVERIFY(lines().filter(QRegularExpression(u"^\\d{4}-"_s)).size() > 300);
    QCOMPARE(files(), QStringList{u"book.pdf"_s});
}

void ReportCommandTest::nothingThatExistsIsReplacedUnlessForced()
{
    put(flown(3));
    QVERIFY(Test::write(m_program->home(u"book.pdf"_s), "mine"));
    const Program::Result refused = report();
    QCOMPARE(refused.status, 1);
    QCOMPARE(refused.errors,
             u"voltbok: “book.pdf” exists already. Nothing was written; “--force” replaces it.\n"_s);
    QCOMPARE(Test::contents(m_program->home(u"book.pdf"_s)), QByteArray("mine"));
    QCOMPARE(report({u"--force"_s}).status, 0);
    QVERIFY(Test::contents(m_program->home(u"book.pdf"_s)).startsWith("%PDF"));
}

void ReportCommandTest::noBookTakesThePlaceOfALogbook()
{
    put(flown(3));
    const QByteArray logbook = Test::contents(m_program->home(u"log/voltbok.xml"_s));
    QVERIFY(Test::write(m_program->home(u"book.pdf"_s), logbook.chopped(20))); // a broken one, too
    const Program::Result refused = report({u"--force"_s});
    QCOMPARE(refused.status, 1);
    QCOMPARE(refused.errors, u"voltbok: “book.pdf” is a logbook, and nothing takes its place. Choose another "
                             "name.\n"_s);
    QCOMPARE(Test::contents(m_program->home(u"book.pdf"_s)), logbook.chopped(20));
}

void ReportCommandTest::whatCannotBeDoneIsOneLineAndLeavesNothing_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("told");
    QTest::newRow("an unknown model") << QStringList{u"--model"_s, u"Kite"_s} << 1 << u"no model “Kite”"_s;
    QTest::newRow("a known one, too") << QStringList{u"--model"_s, u"Skylark"_s, u"--model"_s, u"skylark"_s}
                                      << 1 << u"no model “skylark”"_s;
    QTest::newRow("a model without a name") << QStringList{u"--model"_s, QString()} << 1 << u"no model “”"_s;
    QTest::newRow("no such logbook") << QStringList{u"--data"_s, u"none"_s} << 1 << u"no folder"_s;
    QTest::newRow("another paper") << QStringList{u"--paper"_s, u"A5"_s} << 2 << u"A5"_s;
    QTest::newRow("days the wrong way round")
        << QStringList{u"--from"_s, u"2026-02-01"_s, u"--to"_s, u"2026-01-01"_s} << 2 << u"--from"_s;
}

void ReportCommandTest::whatCannotBeDoneIsOneLineAndLeavesNothing()
{
    QFETCH(QStringList, options);
    QFETCH(int, status);
    QFETCH(QString, told);
    put(flown(3));
    const Program::Result result = report(options);
    QCOMPARE(result.status, status);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors.count(u'\n'), 1);
    QVERIFY2(result.errors.startsWith(u"voltbok: "_s) && result.errors.contains(told),
             qPrintable(result.errors));
    QCOMPARE(files(), QStringList{u"log"_s});
}

void ReportCommandTest::aFolderThatIsNotThereIsNotMade()
{
    put(flown(3));
    const Program::Result result =
        m_program->run({u"--data=log"_s, u"report"_s, u"--output"_s, u"none/book.pdf"_s});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, u"voltbok: “none/book.pdf” was not written: there is no such file.\n"_s);
    QCOMPARE(files(), QStringList{u"log"_s});
}

void ReportCommandTest::aFullDiskKeepsWhatWasThere()
{
    put(flown(3)); // smaller than its flight book
    const QString line = u"trap '' XFSZ; ulimit -f 8; \"$0\" report --data log --output book.pdf --force"_s;
    const Program::Result result = m_program->shell(line);
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, u"voltbok: “book.pdf” was not written: the file would be too large.\n"_s);
    QCOMPARE(files(), QStringList{u"log"_s});
    QVERIFY(Test::write(m_program->home(u"book.pdf"_s), "mine"));
    QCOMPARE(m_program->shell(line).status, 1);
    QCOMPARE(Test::contents(m_program->home(u"book.pdf"_s)), QByteArray("mine"));
}

QTEST_MAIN(ReportCommandTest)
#include "tst_reportcommand.moc"
