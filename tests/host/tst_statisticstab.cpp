// SPDX-License-Identifier: GPL-3.0-or-later
// The tab of the statistics in the program's window.
#include "tests/host/support/flown.h"
#include "tests/host/support/panel.h"

#include "host/window/plotview.h"
#include "host/window/statisticschart.h"

#include <QAbstractBarSeries>
#include <QBarCategoryAxis>
#include <QBarSet>
#include <QChart>
#include <QDateEdit>
#include <QGraphicsTextItem>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;
using Host::GroupFigures;
using Host::Grouping;
using Host::Measure;
using Host::SidePanel;

class StatisticsTabTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void flightsAreAddedUp_data();
    void flightsAreAddedUp();
    void theBarsAreThoseOfTheTable();
    void aRangeLimitsEverything();
    void aRangeThatEndsBeforeItBeginsIsTold();
    void whatTheTableLeavesOutIsTold();
    void aClickOnATitleSorts();
    void choicesAndOrderSurviveAChange();
    void monthsWithoutAFlightHaveAPlace();
    void onlyTheNewestMonthsFit();
    void monthsAreReadInANarrowPanel();
    void onlyTheHighestBarsFit();
    void namesakesHaveBarsOfTheirOwn();
    void coloursFollowTheWindow();
    void itIsSaved();
    void anEmptyLogbookSaysWhatToDoFirst_data();
    void anEmptyLogbookSaysWhatToDoFirst();
    void everythingIsReachedByKeyboard();

private:
    static QTableView &table(const QWidget &tab);
    static QChart &chart(const QWidget &tab) { return *tab.findChild<Host::PlotView *>()->chart(); }
    static QList<double> bars(const QChart &chart);
    static void choose(const QWidget &tab, const QString &chooser, const QString &text);
    static void limit(const QWidget &tab, const QString &caption, const QString &name, QDate day);
};

void StatisticsTabTest::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English));
}

QTableView &StatisticsTabTest::table(const QWidget &tab)
{
    auto *view = Panel::named<QTableView>(tab, u"Flights, added up"_s);
    if (!view)
        qFatal("There is no table of flights.");
    return *view;
}

QList<double> StatisticsTabTest::bars(const QChart &chart)
{
    QList<double> values;
    const auto *series = qobject_cast<QAbstractBarSeries *>(chart.series().value(0));
    for (int i = 0; series && i < series->barSets().constFirst()->count(); ++i)
        values.append(series->barSets().constFirst()->at(i));
    return values;
}

void StatisticsTabTest::choose(const QWidget &tab, const QString &chooser, const QString &text)
{
    LogbookWindow::choose(Panel::named<QComboBox>(tab, chooser), text);
}

void StatisticsTabTest::limit(const QWidget &tab, const QString &caption, const QString &name, QDate day)
{
    auto *box = qobject_cast<QCheckBox *>(Panel::button(tab, caption));
    if (!box->isChecked())
        QTest::keyClick(box, Qt::Key_Space);
    auto *field = Panel::named<QDateEdit>(tab, name);
    QVERIFY(field->isEnabled());
    field->setFocus();
    field->setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClicks(field, day.toString(u"yyyyMMdd"_s));
    QCOMPARE(field->date(), day);
}

void StatisticsTabTest::flightsAreAddedUp_data()
{
    QTest::addColumn<QString>("grouping");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("flights");
    QTest::addColumn<QStringList>("minutes");
    QTest::newRow("months") << u"Month"_s << QStringList{u"2026-05"_s, u"2026-03"_s}
                            << QStringList{u"3"_s, u"1"_s} << QStringList{u"24.0"_s, u"5.0"_s};
    QTest::newRow("models") << u"Model"_s << QStringList{u"Kestrel"_s, u"Wren"_s}
                            << QStringList{u"3"_s, u"1"_s} << QStringList{u"20.0"_s, u"9.0"_s};
    QTest::newRow("locations") << u"Location"_s << QStringList{u"Meadow"_s, u"Hill"_s}
                               << QStringList{u"3"_s, u"1"_s} << QStringList{u"22.0"_s, u"7.0"_s};
}

void StatisticsTabTest::flightsAreAddedUp()
{
    QFETCH(QString, grouping);
    QFETCH(QStringList, names);
    QFETCH(QStringList, flights);
    QFETCH(QStringList, minutes);
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    choose(tab, u"Add up by"_s, grouping);
    QCOMPARE(Panel::texts(table(tab), grouping), names);
    QCOMPARE(Panel::texts(table(tab), u"Flights"_s), flights);
    QCOMPARE(Panel::texts(table(tab), u"Minutes"_s), minutes);
    const bool isMonth = grouping == u"Month"_s;
    QCOMPARE(Panel::column(table(tab), u"Discharged (mAh)"_s) >= 0, isMonth);
    if (isMonth)
        QCOMPARE(Panel::texts(table(tab), u"Discharged (mAh)"_s), (QStringList{u"3,800"_s, u"1,000"_s}));
    QVERIFY2(Panel::said(tab).contains(u"In all: 4 flights, 29.0 minutes, 4,800 mAh."_s),
             qPrintable(Panel::said(tab)));
}

void StatisticsTabTest::theBarsAreThoseOfTheTable()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    QCOMPARE(chart(tab).title(), u"Flights by month"_s);
    QCOMPARE(bars(chart(tab)), (QList<double>{1, 0, 3})); // April had none
    choose(tab, u"What is plotted"_s, u"Discharged (mAh)"_s);
    QCOMPARE(bars(chart(tab)), (QList<double>{1000, 0, 3800}));
    choose(tab, u"What is plotted"_s, u"Minutes"_s);
    choose(tab, u"Add up by"_s, u"Model"_s);
    QCOMPARE(chart(tab).title(), u"Minutes by model"_s);
    QCOMPARE(bars(chart(tab)), (QList<double>{9, 20})); // drawn from the bottom
    const auto *chooser = Panel::named<QComboBox>(tab, u"What is plotted"_s);
    QCOMPARE(chooser->findText(u"Discharged (mAh)"_s), -1);
    const auto *view = tab.findChild<Host::PlotView *>();
    QCOMPARE(view->accessibleDescription(), u"Minutes by model. Kestrel: 20; Wren: 9"_s);
}

void StatisticsTabTest::aRangeLimitsEverything()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    QVERIFY(!Panel::named<QDateEdit>(tab, u"First day"_s)->isEnabled());
    limit(tab, u"From:"_s, u"First day"_s, QDate(2026, 5, 1));
    QCOMPARE(Panel::texts(table(tab), u"Month"_s), QStringList{u"2026-05"_s});
    QCOMPARE(bars(chart(tab)), QList<double>{3});
    QVERIFY(Panel::said(tab).contains(u"3 flights, 24.0 minutes"_s));
    limit(tab, u"To:"_s, u"Last day"_s, QDate(2026, 5, 2));
    QVERIFY(Panel::said(tab).contains(u"2 flights, 15.0 minutes, 3,000 mAh"_s));
    auto *box = Panel::button(tab, u"From:"_s);
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(Panel::said(tab).contains(u"3 flights, 20.0 minutes"_s));
}

void StatisticsTabTest::aRangeThatEndsBeforeItBeginsIsTold()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    limit(tab, u"From:"_s, u"First day"_s, QDate(2026, 5, 2));
    limit(tab, u"To:"_s, u"Last day"_s, QDate(2026, 5, 1));
    QVERIFY(Panel::said(tab).contains(u"The first day is after the last one."_s));
    QCOMPARE(table(tab).model()->rowCount(), 0);
    QVERIFY(!tab.findChild<Host::PlotView *>()->isVisible());
    QVERIFY(!Panel::button(tab, u"Save Plot…"_s));
}

void StatisticsTabTest::whatTheTableLeavesOutIsTold()
{
    Test::Catalogue catalogue = Flown::catalogue();
    catalogue.models[0].flights[0].location.clear();
    catalogue.models[0].flights[1].date = QDateTime();
    HostWindow window(Test::document(catalogue));
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    QVERIFY(Panel::said(tab).contains(u"1 flights without a time are not in the table."_s));
    choose(tab, u"Add up by"_s, u"Location"_s);
    QVERIFY(Panel::said(tab).contains(u"1 flights without a location are not in the table."_s));
    choose(tab, u"Add up by"_s, u"Model"_s);
    QVERIFY(!Panel::said(tab).contains(u"not in the table"_s));
}

void StatisticsTabTest::aClickOnATitleSorts()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    QHeaderView *header = table(tab).horizontalHeader();
    const QPoint place(header->sectionViewportPosition(1) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    const QStringList once = Panel::texts(table(tab), u"Flights"_s);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    QVERIFY(once != Panel::texts(table(tab), u"Flights"_s));
}

void StatisticsTabTest::choicesAndOrderSurviveAChange()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    choose(tab, u"Add up by"_s, u"Model"_s);
    choose(tab, u"What is plotted"_s, u"Minutes"_s);
    table(tab).sortByColumn(0, Qt::DescendingOrder);
    window.logbook().change(u"More"_s, [](Host::Catalogue &catalogue) {
        catalogue.models[1].name = u"Zebra"_s;
        return QString();
    });
    QTRY_COMPARE(Panel::texts(table(tab), u"Model"_s), (QStringList{u"Zebra"_s, u"Kestrel"_s}));
    QCOMPARE(chart(tab).title(), u"Minutes by model"_s);
}

void StatisticsTabTest::monthsWithoutAFlightHaveAPlace()
{
    const Host::StatisticsPlot plot =
        Host::plotOf({{u"2026-02"_s, 4}, {u"2025-11"_s, 2}}, Grouping::Month, Measure::Flights);
    QStringList names;
    for (const GroupFigures &group : plot.groups)
        names.append(group.name);
    QCOMPARE(names, (QStringList{u"2025-11"_s, u"2025-12"_s, u"2026-01"_s, u"2026-02"_s}));
    QVERIFY(plot.isComplete);
}

void StatisticsTabTest::onlyTheNewestMonthsFit()
{
    QList<GroupFigures> months;
    for (QDate day(2026, 11, 1); months.size() < 30; day = day.addMonths(-1))
        months.append({day.toString(u"yyyy-MM"_s), 1});
    const Host::StatisticsPlot plot = Host::plotOf(months, Grouping::Month, Measure::Flights);
    QCOMPARE(plot.groups.size(), 24);
    QCOMPARE(plot.groups.constFirst().name, u"2024-12"_s);
    QCOMPARE(plot.groups.constLast().name, u"2026-11"_s);
    QCOMPARE(Host::statisticsChartName(plot), u"Flights by month, the newest 24 months"_s);
}

void StatisticsTabTest::monthsAreReadInANarrowPanel()
{
    Test::Catalogue catalogue = Flown::catalogue();
    for (int month = 1; month <= 12; ++month)
        for (int year : {2024, 2025})
            catalogue.models[0].flights.append(Flown::flight(Flown::noon(year, month, 1), u"Meadow"_s, 5));
    HostWindow window(Test::document(catalogue));
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    window.window().resize(900, 620);
    QCoreApplication::processEvents();
    QStringList shown;
    const auto items = tab.findChild<Host::PlotView *>()->scene()->items();
    for (const QGraphicsItem *item : items) {
        if (const auto *text = qgraphicsitem_cast<const QGraphicsTextItem *>(item))
            shown.append(text->toPlainText());
    }
    auto *axis = qobject_cast<QBarCategoryAxis *>(chart(tab).axes(Qt::Horizontal).constFirst());
    const QStringList months = axis->categories();
    QCOMPARE(months.size(), 24);
    for (const QString &month : months)
        QVERIFY2(shown.contains(month), qPrintable(month + u" in "_s + shown.join(u' ')));
}

void StatisticsTabTest::onlyTheHighestBarsFit()
{
    QList<GroupFigures> models;
    for (int i = 0; i < 20; ++i)
        models.append({u"Model %1"_s.arg(i), i, 100.0 - i});
    const Host::StatisticsPlot flights = Host::plotOf(models, Grouping::Model, Measure::Flights);
    QCOMPARE(flights.groups.size(), 12);
    QCOMPARE(flights.groups.constFirst().name, u"Model 19"_s);
    QCOMPARE(Host::statisticsChartName(flights), u"Flights by model, the 12 with the most"_s);
    const Host::StatisticsPlot minutes = Host::plotOf(models, Grouping::Model, Measure::Minutes);
    QCOMPARE(minutes.groups.constFirst().name, u"Model 0"_s);
}

void StatisticsTabTest::namesakesHaveBarsOfTheirOwn()
{
    const Host::StatisticsPlot plot =
        Host::plotOf({{u"Wren"_s, 4}, {u"Wren"_s, 2}, {QString(), 1}}, Grouping::Model, Measure::Flights);
    const auto chart = Host::statisticsChart(plot);
    QCOMPARE(bars(*chart), (QList<double>{1, 2, 4}));
    const auto *axis = qobject_cast<QBarCategoryAxis *>(chart->axes(Qt::Vertical).constFirst());
    QCOMPARE(axis->count(), 3);
    QCOMPARE(axis->at(0), u"(no name)"_s);
}

void StatisticsTabTest::coloursFollowTheWindow()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    QCOMPARE(chart(tab).theme(), QChart::ChartThemeLight);
    QPalette dark(QColor(40, 40, 40), QColor(20, 20, 20));
    dark.setColor(QPalette::Highlight, QColor(200, 100, 0));
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    const QChart::ChartTheme theme = chart(tab).theme();
    const auto *series = qobject_cast<QAbstractBarSeries *>(chart(tab).series().constFirst());
    const QColor colour = series->barSets().constFirst()->color();
    QApplication::setPalette(QPalette());
    QCOMPARE(theme, QChart::ChartThemeDark);
    QCOMPARE(colour, dark.color(QPalette::Highlight));
}

void StatisticsTabTest::itIsSaved()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    const QString path = window.place() + u"/plot.png"_s;
    window.questions.chooseFile(path);
    LogbookWindow::click(Panel::button(tab, u"Save Plot…"_s));
    QVERIFY(!QImage(path).isNull());
    QCOMPARE(window.questions.proposed(), QStringList{u"Flights by month.png"_s});
}

void StatisticsTabTest::anEmptyLogbookSaysWhatToDoFirst_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("advice");
    QTest::newRow("nothing at all") << QByteArray() << u"Add a battery and a model first"_s;
    QTest::newRow("no flight") << HostWindow::sample() << u"Record your first flight"_s;
}

void StatisticsTabTest::anEmptyLogbookSaysWhatToDoFirst()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, advice);
    HostWindow window(document);
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    QVERIFY2(Panel::said(tab).contains(advice), qPrintable(Panel::said(tab)));
    QVERIFY(!Panel::named<QTableView>(tab, u"Flights, added up"_s));
    window.put(Flown::logbook());
    QTRY_VERIFY(Panel::named<QTableView>(tab, u"Flights, added up"_s));
    QVERIFY(!Panel::said(tab).contains(u"yet"_s));
}

void StatisticsTabTest::everythingIsReachedByKeyboard()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Statistics);
    window.window().activateWindow();
    QTest::keyClick(Panel::button(tab, u"From:"_s), Qt::Key_Space);
    QTest::keyClick(Panel::button(tab, u"To:"_s), Qt::Key_Space);
    const QList<QWidget *> reached = Panel::reachedByTab(Panel::named<QComboBox>(tab, u"Add up by"_s));
    for (const QString &name : {u"First day"_s, u"Last day"_s})
        QVERIFY2(reached.contains(Panel::named<QDateEdit>(tab, name)), qPrintable(name));
    for (const QString &caption : {u"From:"_s, u"To:"_s, u"Save Plot…"_s, u"Print Plot…"_s})
        QVERIFY2(reached.contains(Panel::button(tab, caption)), qPrintable(caption));
    QVERIFY(reached.contains(&table(tab)));
    QCOMPARE(Panel::nameless(tab), QStringList());
}

QTEST_MAIN(StatisticsTabTest)
#include "tst_statisticstab.moc"
