// SPDX-License-Identifier: GPL-3.0-or-later
// The chart page: what it draws.
#include "tests/support/chartpage.h"
#include "tests/support/logbookwindow.h"
#include "tests/support/samples.h"

#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace Test;
using ChartPage::chart;
using ChartPage::points;

namespace {
constexpr double Infinity = std::numeric_limits<double>::infinity();

/** A history with these discharged capacities and currents. */
QList<Discharge> history(const QList<unsigned int> &discharges, const QList<unsigned int> &currents)
{
    QList<Discharge> result;
    for (qsizetype i = 0; i < discharges.size(); ++i)
        result.append({moment(static_cast<int>(i)), discharges.at(i), currents.at(i)});
    return result;
}

Battery boughtOn(QDate purchase)
{
    Battery battery{u"Nano"_s};
    battery.purchase = purchase;
    return battery;
}

void openChartOf(LogbookWindow &window, const QList<Battery> &batteries)
{
    window.load(document({batteries}));
    ChartPage::open(window);
}

QRadioButton *unitButton(LogbookWindow &window, const QString &text)
{
    for (QRadioButton *button : {window.ui().rb_showmAh, window.ui().rb_showAmps, window.ui().rb_showC}) {
        if (button->text() == text)
            return button;
    }
    return nullptr;
}

template <typename Axis = QValueAxis>
Axis *lastAxis(LogbookWindow &window, Qt::Orientation orientation)
{
    return qobject_cast<Axis *>(chart(window)->axes(orientation).last());
}
} // namespace

class ChartContentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSeriesHoldsOnePointForEachDischarge_data();
    void theSeriesHoldsOnePointForEachDischarge();
    void withoutACapacityTheMultiplesOfItAreInfinite();
    void anInfiniteChartIsPaintedResizedAndLeftAlone();
    void aHistoryWithoutMeasurementsAndCapacityHasUndefinedPoints();
    void aBatteryWithoutHistoryHasAnEmptyTitledChart();
    void asManyPointsAsDischarges();
    void aSingleDischargeIsADot();
    void aSingleDischargeThatNoAxisReachesIsNotPainted();
    void theTitleTellsTheAgeInYearsOf365Days_data();
    void theTitleTellsTheAgeInYearsOf365Days();
    void theBackgroundDarkensFromTopToBottom();
    void theLabelsOfBothAxesAreBright();
    void everythingElseKeepsTheChartsDefaults();
};

void ChartContentTest::theSeriesHoldsOnePointForEachDischarge_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<unsigned int>("capacity");
    QTest::addColumn<QList<unsigned int>>("discharges");
    QTest::addColumn<QList<unsigned int>>("currents");
    QTest::addColumn<QList<QPointF>>("expected");

    using Numbers = QList<unsigned int>;
    using Points = QList<QPointF>;
    QTest::newRow("mAh") << u"mAh"_s << 4500U << Numbers{1200, 1350, 0} << Numbers{1, 2, 3}
                         << Points{{1, 1200}, {2, 1350}, {3, 0}};
    QTest::newRow("A") << u"A"_s << 4500U << Numbers{1, 2} << Numbers{4550, 3000}
                       << Points{{1, 45.5}, {2, 30.0}};
    QTest::newRow("C") << u"C"_s << 4500U << Numbers{1} << Numbers{4500} << Points{{1, 10.0}};
    QTest::newRow("a fraction of an ampere")
        << u"A"_s << 4500U << Numbers{1} << Numbers{7} << Points{{1, 0.07}};
    QTest::newRow("a fraction of C") << u"C"_s << 2200U << Numbers{1, 1} << Numbers{1, 5500}
                                     << Points{{1, 10.0 / 2200}, {2, 25.0}};
    QTest::newRow("mAh beyond 31 bits")
        << u"mAh"_s << 1U << Numbers{4294967295U} << Numbers{0} << Points{{1, 4294967295.0}};
    QTest::newRow("C beyond 32 bits")
        << u"C"_s << 1U << Numbers{0} << Numbers{4294967295U} << Points{{1, 42949672950.0}};
    QTest::newRow("mAh without a capacity")
        << u"mAh"_s << 0U << Numbers{800} << Numbers{1} << Points{{1, 800}};
    QTest::newRow("A without a capacity") << u"A"_s << 0U << Numbers{1} << Numbers{800} << Points{{1, 8}};
}

void ChartContentTest::theSeriesHoldsOnePointForEachDischarge()
{
    QFETCH(QString, unit);
    QFETCH(unsigned int, capacity);
    QFETCH(QList<unsigned int>, discharges);
    QFETCH(QList<unsigned int>, currents);
    LogbookWindow window;
    openChartOf(window, {{u"Nano"_s, false, history(discharges, currents), capacity}});
    LogbookWindow::click(unitButton(window, unit));

    QTEST(points(window), "expected");
    QCOMPARE(chart(window)->series().size(), 1);
    const auto *x = lastAxis(window, Qt::Horizontal);
    const auto *y = lastAxis(window, Qt::Vertical);
    for (const QPointF &point : points(window))
        QVERIFY(point.x() >= x->min() && point.x() <= x->max() && point.y() >= y->min() &&
                point.y() <= y->max());
}

void ChartContentTest::withoutACapacityTheMultiplesOfItAreInfinite()
{
    LogbookWindow window;
    openChartOf(window, {{u"Nano"_s, false, history({1, 2, 3}, {4500, 1, 0}), 0}});
    LogbookWindow::click(window.ui().rb_showC);

    QCOMPARE(points(window).size(), 3);
    QCOMPARE(points(window).at(0).y(), Infinity);
    QCOMPARE(points(window).at(1).y(), Infinity);
    QVERIFY(qIsNaN(points(window).at(2).y()));
    QCOMPARE(points(window).at(2).x(), 3.0);
}

void ChartContentTest::anInfiniteChartIsPaintedResizedAndLeftAlone()
{
    LogbookWindow window;
    openChartOf(window, {{u"Nano"_s, false, history({1, 2, 3}, {4500, 0, 9}), 0}});
    LogbookWindow::click(window.ui().rb_showC);

    for (const QSize size : {QSize(350, 531), QSize(700, 1062), QSize(320, 500)}) {
        window->resize(size);
        QCoreApplication::processEvents();
        QVERIFY(!window->grab().isNull());
    }
    QTest::mouseMove(window->chartView->viewport(), QPoint(100, 100));
    const auto *x = lastAxis(window, Qt::Horizontal);
    QCOMPARE(x->min(), 1.0);
    QCOMPARE(x->max(), 3.0);
    const auto *y = lastAxis(window, Qt::Vertical);
    QVERIFY(qIsFinite(y->min()) && qIsFinite(y->max()) && y->min() < y->max());

    LogbookWindow::click(window.ui().rb_showAmps);
    QCOMPARE(points(window), QList<QPointF>({{1, 45}, {2, 0}, {3, 0.09}}));
}

void ChartContentTest::aHistoryWithoutMeasurementsAndCapacityHasUndefinedPoints()
{
    LogbookWindow window;
    openChartOf(window, {{u"Nano"_s, false, history({0, 0}, {0, 0}), 0}});
    LogbookWindow::click(window.ui().rb_showC);

    QCOMPARE(points(window).size(), 2);
    QVERIFY(qIsNaN(points(window).at(0).y()) && qIsNaN(points(window).at(1).y()));
    QVERIFY(!window->grab().isNull());
}

void ChartContentTest::aBatteryWithoutHistoryHasAnEmptyTitledChart()
{
    LogbookWindow window;
    openChartOf(window, {boughtOn(QDate::currentDate().addDays(-365))});

    for (QRadioButton *unit : {window.ui().rb_showmAh, window.ui().rb_showAmps, window.ui().rb_showC}) {
        LogbookWindow::click(unit);
        QCOMPARE(points(window).size(), 0);
        QCOMPARE(chart(window)->title(), u"Battery age: 1.00 years"_s);
        QVERIFY(lastAxis(window, Qt::Horizontal) && lastAxis(window, Qt::Vertical));
    }
}

void ChartContentTest::asManyPointsAsDischarges()
{
    QList<Discharge> discharges;
    for (int i = 0; i < 1000; ++i)
        discharges.append({moment(i), static_cast<unsigned int>(i), 0});
    LogbookWindow window;
    openChartOf(window, {{u"Nano"_s, false, discharges}});

    QCOMPARE(points(window).size(), 1000);
    QCOMPARE(points(window).first(), QPointF(1, 0));
    QCOMPARE(points(window).last(), QPointF(1000, 999));
}

void ChartContentTest::aSingleDischargeIsADot()
{
    LogbookWindow window;
    openChartOf(window,
                {{u"Once"_s, false, history({900}, {100})}, {u"Twice"_s, false, history({1, 2}, {1, 2})}});
    QVERIFY(ChartPage::series(window)->pointsVisible()); // a line through one point would not be seen
    LogbookWindow::choose(window.ui().cb_batteryData, u"Twice"_s);
    QVERIFY(!ChartPage::series(window)->pointsVisible());
}

void ChartContentTest::aSingleDischargeThatNoAxisReachesIsNotPainted()
{
    LogbookWindow window;
    openChartOf(window,
                {{u"Nothing"_s, false, history({0}, {0}), 0}, {u"Infinite"_s, false, history({0}, {9}), 0}});
    LogbookWindow::click(window.ui().rb_showC);
    QVERIFY(!window->grab().isNull());
    LogbookWindow::choose(window.ui().cb_batteryData, u"Infinite"_s);
    QVERIFY(!window->grab().isNull());
}

void ChartContentTest::theTitleTellsTheAgeInYearsOf365Days_data()
{
    QTest::addColumn<QDate>("purchase");
    QTest::addColumn<QString>("title");

    const QDate today = QDate::currentDate();
    QTest::newRow("two years") << today.addDays(-730) << u"Battery age: 2.00 years"_s;
    QTest::newRow("one year") << today.addDays(-365) << u"Battery age: 1.00 years"_s;
    QTest::newRow("some days") << today.addDays(-100) << u"Battery age: 0.27 years"_s;
    QTest::newRow("today") << today << u"Battery age: 0.00 years"_s;
    QTest::newRow("no valid date") << QDate() << u"Battery age: 0.00 years"_s;
    QTest::newRow("in the future") << today.addDays(183) << u"Battery age: -0.50 years"_s;
}

void ChartContentTest::theTitleTellsTheAgeInYearsOf365Days()
{
    QFETCH(QDate, purchase);
    LogbookWindow window;
    openChartOf(window, {boughtOn(purchase)});

    QTEST(chart(window)->title(), "title");
}

void ChartContentTest::theBackgroundDarkensFromTopToBottom()
{
    LogbookWindow window;
    openChartOf(window, {Battery{u"Nano"_s}});

    const QBrush background = chart(window)->backgroundBrush();
    QCOMPARE(background.style(), Qt::LinearGradientPattern);
    const auto *gradient = static_cast<const QLinearGradient *>(background.gradient());
    QCOMPARE(gradient->coordinateMode(), QGradient::ObjectBoundingMode);
    QCOMPARE(gradient->start(), QPointF(0, 0));
    QCOMPARE(gradient->finalStop(), QPointF(0, 1));
    QCOMPARE(gradient->stops(), QGradientStops({{0.0, QColor(180, 180, 180)}, {1.0, QColor(76, 69, 71)}}));
    QVERIFY(chart(window)->isBackgroundVisible());
}

void ChartContentTest::theLabelsOfBothAxesAreBright()
{
    LogbookWindow window;
    openChartOf(window, {{u"Nano"_s, false, history({1, 2}, {1, 2})}});

    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        QCOMPARE(chart(window)->axes(orientation).size(), 1);
        QVERIFY(lastAxis(window, orientation));
        QCOMPARE(lastAxis(window, orientation)->labelsBrush(), QBrush(QColor(220, 220, 220)));
    }
}

void ChartContentTest::everythingElseKeepsTheChartsDefaults()
{
    LogbookWindow window;
    openChartOf(window, {{u"Nano"_s, false, history({1, 2}, {1, 2})}});

    QVERIFY(!chart(window)->legend()->isVisible());
    QVERIFY(window->chartView->renderHints().testFlag(QPainter::Antialiasing));
    QChart plain;
    auto *plainSeries = new QLineSeries;
    plain.addSeries(plainSeries);
    plain.createDefaultAxes();
    QCOMPARE(chart(window)->titleFont(), plain.titleFont());
    QCOMPARE(ChartPage::series(window)->color(), plainSeries->color());
    QCOMPARE(ChartPage::series(window)->name(), QString());
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        QCOMPARE(lastAxis(window, orientation)->titleText(), QString());
        QVERIFY(lastAxis(window, orientation)->isGridLineVisible());
        QCOMPARE(lastAxis(window, orientation)->gridLineColor(),
                 plain.axes(orientation).last()->gridLineColor());
    }
}

QTEST_MAIN(ChartContentTest)
#include "tst_chartcontent.moc"
