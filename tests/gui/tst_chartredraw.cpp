// SPDX-License-Identifier: GPL-3.0-or-later
// The chart page: when it draws anew, and what becomes of the charts before.
#include "tests/support/chartpage.h"
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace Test;
using ChartPage::allViews;
using ChartPage::open;
using ChartPage::points;

namespace {
const QList<Battery> &twoBatteries()
{
    static const QList<Battery> batteries{
        {u"Nano"_s, false, {{moment(0), 1200, 100}, {moment(1), 1350, 200}}},
        {u"Power"_s, false, {{moment(2), 4100, 300}}}};
    return batteries;
}

void openChartOfTwoBatteries(LogbookWindow &window)
{
    window.load(document({twoBatteries()}));
    open(window);
}

QList<QChartView *> visibleViews(LogbookWindow &window)
{
    QList<QChartView *> views = allViews(window);
    views.removeIf([](const QChartView *view) { return !view->isVisible(); });
    return views;
}

QList<int> cellOf(LogbookWindow &window, QWidget *view)
{
    QGridLayout *grid = window.ui().layout_batteryData;
    int row = -1;
    int column = -1;
    int rowSpan = 0;
    int columnSpan = 0;
    if (grid->indexOf(view) >= 0)
        grid->getItemPosition(grid->indexOf(view), &row, &column, &rowSpan, &columnSpan);
    return {row, column, rowSpan, columnSpan};
}

int verticalSpacers(LogbookWindow &window)
{
    int spacers = 0;
    for (int i = 0; i < window.ui().layout_batteryData->count(); ++i) {
        const QSpacerItem *spacer = window.ui().layout_batteryData->itemAt(i)->spacerItem();
        spacers += spacer && spacer->expandingDirections().testFlag(Qt::Vertical);
    }
    return spacers;
}
} // namespace

class ChartRedrawTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theMenusButtonShowsAChartOfTheFirstBattery();
    void nothingIsDrawnBeforeThePageIsOpened();
    void pickingABatteryDrawsIt();
    void batteriesOfOneNameAreToldApartByTheirPlace();
    void everyUnitButtonDrawsAnew();
    void theCheckedUnitButtonDrawsAnewAllTheSame();
    void theUnitStaysCheckedWhileTheWindowLives();
    void oneChartIsVisibleRightAfterEachClick();
    void earlierChartsAreKeptInTheirCellOnPurpose();
    void theFirstChartReplacesThePlaceholder();
    void refillingTheChooserDrawsNothing();
    void aReloadIsDrawnByTheNextChoice();
    void withoutBatteriesThereIsNoWayToTheChart();
    void anIndexOutsideTheListDrawsNothing_data();
    void anIndexOutsideTheListDrawsNothing();
    void aNameOfABatteryThatIsGoneDrawsNothing();
    void lookingWritesNothing();
};

void ChartRedrawTest::theMenusButtonShowsAChartOfTheFirstBattery()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);

    QCOMPARE(window.ui().stackedWidget->currentWidget(), window.ui().dataView);
    QCOMPARE(window->currentPage, 3);
    QCOMPARE(window.ui().cb_batteryData->currentText(), u"Nano"_s);
    QCOMPARE(allViews(window).size(), 1);
    QCOMPARE(points(window), QList<QPointF>({{1, 1200}, {2, 1350}}));
}

void ChartRedrawTest::nothingIsDrawnBeforeThePageIsOpened()
{
    LogbookWindow window;
    QVERIFY(window.ui().rb_showmAh->isChecked());
    window.load(document({twoBatteries()}));

    QVERIFY(!window->chartView);
    QCOMPARE(allViews(window).size(), 0);
}

void ChartRedrawTest::pickingABatteryDrawsIt()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    LogbookWindow::choose(window.ui().cb_batteryData, u"Power"_s);

    QCOMPARE(allViews(window).size(), 2);
    QCOMPARE(points(window), QList<QPointF>({{1, 4100}}));
}

void ChartRedrawTest::batteriesOfOneNameAreToldApartByTheirPlace()
{
    LogbookWindow window;
    window.load(
        document({{{u"Nano"_s, false, {{moment(0), 1, 1}}}, {u"Nano"_s, false, {{moment(0), 2, 2}}}}}));
    open(window);
    QCOMPARE(points(window), QList<QPointF>({{1, 1}}));
    QTest::keyClick(window.ui().cb_batteryData, Qt::Key_Down);
    QCOMPARE(points(window), QList<QPointF>({{1, 2}}));
}

void ChartRedrawTest::everyUnitButtonDrawsAnew()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    LogbookWindow::click(window.ui().rb_showAmps);
    QCOMPARE(points(window), QList<QPointF>({{1, 1}, {2, 2}}));
    LogbookWindow::click(window.ui().rb_showC);
    QCOMPARE(points(window), QList<QPointF>({{1, 1000.0 / 2200}, {2, 2000.0 / 2200}}));
    LogbookWindow::click(window.ui().rb_showmAh);
    QCOMPARE(points(window), QList<QPointF>({{1, 1200}, {2, 1350}}));
    QCOMPARE(allViews(window).size(), 4);
}

void ChartRedrawTest::theCheckedUnitButtonDrawsAnewAllTheSame()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    const QChartView *before = window->chartView;
    LogbookWindow::click(window.ui().rb_showmAh);

    QVERIFY(window->chartView != before);
    QCOMPARE(allViews(window).size(), 2);
}

void ChartRedrawTest::theUnitStaysCheckedWhileTheWindowLives()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    LogbookWindow::click(window.ui().rb_showAmps);
    LogbookWindow::choose(window.ui().cb_batteryData, u"Power"_s);
    QCOMPARE(points(window), QList<QPointF>({{1, 3}}));

    window.load(window.fileBytes());
    open(window);
    QCOMPARE(points(window), QList<QPointF>({{1, 1}, {2, 2}}));
}

void ChartRedrawTest::oneChartIsVisibleRightAfterEachClick()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    QCOMPARE(visibleViews(window), QList<QChartView *>({window->chartView}));

    for (QRadioButton *unit : {window.ui().rb_showAmps, window.ui().rb_showC, window.ui().rb_showmAh}) {
        LogbookWindow::click(unit); // no event is processed between the click and the look
        QCOMPARE(visibleViews(window), QList<QChartView *>({window->chartView}));
    }
    LogbookWindow::choose(window.ui().cb_batteryData, u"Power"_s);
    QCOMPARE(visibleViews(window), QList<QChartView *>({window->chartView}));

    QCoreApplication::processEvents();
    QCOMPARE(visibleViews(window), QList<QChartView *>({window->chartView}));
    QVERIFY(window->chartView->height() > window.ui().dataView->height() / 2);
}

void ChartRedrawTest::earlierChartsAreKeptInTheirCellOnPurpose()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    QList<QChartView *> made{window->chartView};
    for (QRadioButton *unit : {window.ui().rb_showAmps, window.ui().rb_showC, window.ui().rb_showC}) {
        LogbookWindow::click(unit);
        made.append(window->chartView);
    }
    LogbookWindow::click(window.ui().pb_options);
    LogbookWindow::click(window.ui().pb_chart);
    made.append(window->chartView);

    QList<QChartView *> kept = allViews(window);
    QCOMPARE(kept.size(), made.size());
    for (QChartView *view : std::as_const(made)) {
        QVERIFY(kept.contains(view));
        QCOMPARE(cellOf(window, view), QList<int>({3, 0, 1, 7}));
        QCOMPARE(view->chart()->series().size(), 1);
    }
}

void ChartRedrawTest::theFirstChartReplacesThePlaceholder()
{
    LogbookWindow window;
    window.load(document({twoBatteries()}));
    const int items = window.ui().layout_batteryData->count();
    QCOMPARE(verticalSpacers(window), 1);

    open(window);
    QCOMPARE(verticalSpacers(window), 0);
    QCOMPARE(window.ui().layout_batteryData->count(), items);

    LogbookWindow::click(window.ui().rb_showAmps); // nothing is left to remove
    QCOMPARE(verticalSpacers(window), 0);
    QCOMPARE(window.ui().layout_batteryData->count(), items + 1);
}

void ChartRedrawTest::refillingTheChooserDrawsNothing()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    LogbookWindow::choose(window.ui().cb_batteryData, u"Power"_s);
    const QChartView *before = window->chartView;

    window.load(document({{Battery{u"Other"_s}, Battery{u"Another"_s}}}));

    QCOMPARE(window.ui().cb_batteryData->currentText(), u"Other"_s);
    QCOMPARE(window->chartView, before);
    QCOMPARE(allViews(window).size(), 2);
}

void ChartRedrawTest::aReloadIsDrawnByTheNextChoice()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    window.load(document({{{u"Other"_s}, {u"Another"_s, false, {{moment(0), 77, 0}}}}}));
    LogbookWindow::choose(window.ui().cb_batteryData, u"Another"_s);

    QCOMPARE(points(window), QList<QPointF>({{1, 77}}));
}

void ChartRedrawTest::withoutBatteriesThereIsNoWayToTheChart()
{
    LogbookWindow window;
    LogbookWindow::click(window.ui().pb_options);
    QVERIFY(!window.ui().pb_chart->isEnabled());

    window->on_pb_chart_clicked(); // a host may call the slot all the same
    QCOMPARE(window->currentPage, 3);
    for (QRadioButton *unit : {window.ui().rb_showmAh, window.ui().rb_showAmps, window.ui().rb_showC})
        LogbookWindow::click(unit);

    QVERIFY(!window->chartView);
    QCOMPARE(allViews(window).size(), 0);
    QCOMPARE(verticalSpacers(window), 1);
    QVERIFY(!window->grab().isNull());
}

void ChartRedrawTest::anIndexOutsideTheListDrawsNothing_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("none") << -1;
    QTest::newRow("just behind the last") << 2;
    QTest::newRow("far below") << std::numeric_limits<int>::min();
    QTest::newRow("far above") << std::numeric_limits<int>::max();
}

void ChartRedrawTest::anIndexOutsideTheListDrawsNothing()
{
    QFETCH(int, index);
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    const QChartView *before = window->chartView;
    window->on_cb_batteryData_currentIndexChanged(index);

    QCOMPARE(window->chartView, before);
    QCOMPARE(allViews(window).size(), 1);
    QVERIFY(window->chartView->isVisible());
}

void ChartRedrawTest::aNameOfABatteryThatIsGoneDrawsNothing()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    window.load(document({}));
    QCOMPARE(window.ui().cb_batteryData->count(), 2); // the chooser goes on offering them

    LogbookWindow::choose(window.ui().cb_batteryData, u"Power"_s);
    LogbookWindow::click(window.ui().rb_showAmps);

    QCOMPARE(allViews(window).size(), 1);
}

void ChartRedrawTest::lookingWritesNothing()
{
    LogbookWindow window;
    openChartOfTwoBatteries(window);
    const QByteArray before = window.fileBytes();
    LogbookWindow::click(window.ui().rb_showAmps);
    LogbookWindow::choose(window.ui().cb_batteryData, u"Power"_s);

    QCOMPARE(window.fileBytes(), before);
    QCOMPARE(RotavexPlugin::rotavexSettings->allKeys(), QStringList());
}

QTEST_MAIN(ChartRedrawTest)
#include "tst_chartredraw.moc"
