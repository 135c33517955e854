// SPDX-License-Identifier: GPL-3.0-or-later
// The tables of the panel on paper.
#include "tests/host/support/flown.h"
#include "tests/host/support/panel.h"
#include "tests/support/files.h"

#include "host/window/tableprinting.h"

#include <QProcess>
#include <QStandardItemModel>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;
using Host::SidePanel;

class TablePrintingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }
    void theTableOfATabIsPrintedAsItIsSorted_data();
    void theTableOfATabIsPrintedAsItIsSorted();
    void manyRowsTakeSeveralPagesWithTheirTitles();
    void manyColumnsFitOnThePage();
    void whatCannotBePrintedIsTold();

private:
    static QStringList pages(const QString &path, const QStringList &options = {});
    static QString text(const QString &path) { return pages(path).join(u' ').simplified(); }

    QTemporaryDir m_folder;
};

/** What stands on each page of a PDF. */
QStringList TablePrintingTest::pages(const QString &path, const QStringList &options)
{
    QProcess reader;
    reader.start(u"pdftotext"_s, QStringList{u"-layout"_s} + options + QStringList{path, u"-"_s});
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f', Qt::SkipEmptyParts);
}

void TablePrintingTest::theTableOfATabIsPrintedAsItIsSorted_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("words"); // in their order
    QTest::newRow("batteries") << int(SidePanel::Batteries) << u"Batteries and their figures"_s
                               << QStringList{u"Batteries, "_s, u"Total"_s,  u"Pack C"_s,       u"Pack B"_s,
                                              u"800 guessed"_s, u"Pack A"_s, u"1,600 guessed"_s};
    QTest::newRow("statistics")
        << int(SidePanel::Statistics) << u"Flights, added up"_s
        << QStringList{
               u"Flights, added up: Month"_s, u"Minutes"_s, u"2026-05"_s, u"24.0"_s, u"2026-03"_s, u"5.0"_s};
}

void TablePrintingTest::theTableOfATabIsPrintedAsItIsSorted()
{
    QFETCH(int, tab);
    QFETCH(QString, name);
    QFETCH(QStringList, words);
    HostWindow window(Flown::logbook());
    const QWidget &shown = Panel::open(window, static_cast<SidePanel::Tab>(tab));
    Panel::named<QTableView>(shown, name)->sortByColumn(0, Qt::DescendingOrder);
    const QString path = m_folder.filePath(u"table.pdf"_s);
    window.questions.printTo(path);
    LogbookWindow::click(Panel::button(shown, u"Print Table…"_s));
    QVERIFY(window.questions.isDone() && window.questions.told().isEmpty());
    QVERIFY(window.questions.proposed().constFirst().startsWith(words.constFirst()));
    const QString printed = text(path);
    qsizetype place = 0;
    for (const QString &word : words) {
        const qsizetype found = printed.indexOf(word, place);
        QVERIFY2(found >= place, qPrintable(word + u" in "_s + printed));
        place = found + word.size();
    }
}

void TablePrintingTest::manyRowsTakeSeveralPagesWithTheirTitles()
{
    QStandardItemModel model(150, 2);
    model.setHorizontalHeaderLabels({u"Month"_s, u"Flights"_s});
    for (int row = 0; row < model.rowCount(); ++row)
        model.setItem(row, 0, new QStandardItem(u"row%1"_s.arg(row)));
    QTableView view;
    view.setModel(&model);
    ScriptedQuestions questions;
    const QString path = m_folder.filePath(u"many.pdf"_s);
    questions.printTo(path);
    Host::printTable(view, u"Many"_s, questions);
    const QStringList printed = pages(path);
    QVERIFY(printed.size() > 2 && printed.size() < 6);
    int rows = 0;
    for (qsizetype page = 0; page < printed.size(); ++page) {
        QVERIFY(printed.at(page).contains(u"Flights"_s));
        QVERIFY(printed.at(page).simplified().endsWith(u' ' + QString::number(page + 1)));
        rows += static_cast<int>(printed.at(page).count(u"row"_s));
    }
    QCOMPARE(rows, 150); // none is cut, and none stands twice
}

void TablePrintingTest::manyColumnsFitOnThePage()
{
    QStandardItemModel model(1, 14);
    for (int column = 0; column < model.columnCount(); ++column) {
        model.setHorizontalHeaderItem(column, new QStandardItem(u"Heading%1"_s.arg(column)));
        model.setItem(0, column, new QStandardItem(u"cell%1end"_s.arg(column)));
    }
    QTableView view;
    view.setModel(&model);
    view.hideColumn(3);
    view.horizontalHeader()->moveSection(0, 1);
    ScriptedQuestions questions;
    const QString path = m_folder.filePath(u"wide.pdf"_s);
    questions.printTo(path);
    Host::printTable(view, u"Wide"_s, questions);
    // What lies beyond the paper is no part of this area, A4 in points.
    const QString printed =
        pages(path, {u"-x"_s, u"0"_s, u"-y"_s, u"0"_s, u"-W"_s, u"595"_s, u"-H"_s, u"842"_s}).join(u' ');
    for (int column = 0; column < model.columnCount(); ++column)
        QCOMPARE(printed.contains(u"cell%1end"_s.arg(column)), column != 3);
    QVERIFY(printed.indexOf(u"cell1end"_s) < printed.indexOf(u"cell0end"_s));
}

void TablePrintingTest::whatCannotBePrintedIsTold()
{
    QStandardItemModel model(1, 1);
    QTableView view;
    view.setModel(&model);
    ScriptedQuestions questions;
    questions.printTo(m_folder.filePath(u"none/table.pdf"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"."_s));
    Host::printTable(view, u"Table"_s, questions);
    QCOMPARE(questions.told().size(), 1);
    QVERIFY(questions.told().constFirst().contains(u"was not printed"_s));
}

QTEST_MAIN(TablePrintingTest)
#include "tst_tableprinting.moc"
