// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/support/shownplot.h"

#include <QLegend>
#include <QLineSeries>
#include <QScatterSeries>
#include <QTableView>
#include <QValueAxis>

using namespace Qt::Literals::StringLiterals;
using Host::Battery;

class BatteryPlotTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void eachSourceHasMarksOfItsOwnShape();
    void theQuantityIsChosenByKeyboard_data();
    void theQuantityIsChosenByKeyboard();
    void withoutALimitThereIsNoLine();
    void itSaysInWordsWhatIsPlotted();
    void coloursFollowTheWindow();
    void fontsFollowTheWindow();
    void theTableShowsEveryDischarge();
    void withoutAPlotItSaysWhy_data();
    void withoutAPlotItSaysWhy();
    void tensOfThousandsOfDischargesAreDrawnAsFewMarks();
    void everythingIsReachedByKeyboard();

private:
    QXYSeries *series(const QString &name);
    std::unique_ptr<ShownPlot> m_shown;
};

void BatteryPlotTest::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
}

void BatteryPlotTest::init()
{
    m_shown = std::make_unique<ShownPlot>();
}

void BatteryPlotTest::cleanup()
{
    m_shown.reset();
    QApplication::setPalette(QPalette());
    QApplication::setFont(QFont());
}

QXYSeries *BatteryPlotTest::series(const QString &name)
{
    const auto all = m_shown->chart().series();
    for (QAbstractSeries *found : all) {
        if (found->name().startsWith(name))
            return qobject_cast<QXYSeries *>(found);
    }
    return nullptr;
}

void BatteryPlotTest::eachSourceHasMarksOfItsOwnShape()
{
    QSet<int> shapes;
    for (const QString &source : {u"Measured"_s, u"Entered"_s, u"Guessed"_s}) {
        auto *marks = qobject_cast<QScatterSeries *>(series(source));
        QVERIFY2(marks && marks->isVisible(), qPrintable(source));
        QCOMPARE(marks->count(), 1);
        QVERIFY(marks->markerSize() > 3.0);
        shapes.insert(marks->markerShape());
        const bool isHollow = marks->brush().color() == m_shown->view().palette().color(QPalette::Base);
        QCOMPARE(isHollow, source == u"Guessed"_s);
        QVERIFY(marks->pen().color() != m_shown->view().palette().color(QPalette::Base));
    }
    QCOMPARE(shapes.size(), 3);
    QCOMPARE(m_shown->chart().legend()->markerShape(), QLegend::MarkerShapeFromSeries);
    QVERIFY(m_shown->chart().legend()->isVisible());
}

void BatteryPlotTest::theQuantityIsChosenByKeyboard_data()
{
    QTest::addColumn<int>("steps");
    QTest::addColumn<QString>("title");
    QTest::addColumn<double>("entered");
    QTest::addColumn<QString>("limitName");
    QTest::addColumn<double>("limit");
    QTest::newRow("used") << 0 << u"Capacity used of Pack A"_s << 1400.0 << u"Capacity, 2,000 mAh"_s
                          << 2000.0;
    QTest::newRow("current") << 1 << u"Maximum current of Pack A"_s << 40.0
                             << u"Permitted by the rating, 50.0 A"_s << 50.0;
    QTest::newRow("load") << 2 << u"Highest load of Pack A"_s << 20.0 << u"Permitted by the rating, 25.0 C"_s
                          << 25.0;
}

void BatteryPlotTest::theQuantityIsChosenByKeyboard()
{
    QFETCH(int, steps);
    QFETCH(QString, title);
    QFETCH(double, entered);
    QFETCH(QString, limitName);
    QFETCH(double, limit);
    auto *chooser = Panel::named<QComboBox>(m_shown->plot, u"What is plotted"_s);
    for (int step = 0; step < steps; ++step)
        QTest::keyClick(chooser, Qt::Key_Down);
    QCOMPARE(m_shown->chart().title(), title);
    QCOMPARE(series(u"Entered"_s)->at(0).y(), entered);
    QVERIFY(qobject_cast<QLineSeries *>(series(limitName)));
    QCOMPARE(series(limitName)->at(0).y(), limit);
    QVERIFY(series(limitName)->pen().style() != Qt::SolidLine);
    const auto *axis = qobject_cast<QValueAxis *>(m_shown->chart().axes(Qt::Vertical).constFirst());
    QVERIFY(axis->min() == 0.0 && axis->max() >= limit);
}

void BatteryPlotTest::withoutALimitThereIsNoLine()
{
    Battery battery = m_shown->flown();
    battery.capacity = 0;
    m_shown->show(battery);
    QVERIFY(!series(u"Capacity"_s));
    QVERIFY(series(u"Entered"_s));
}

void BatteryPlotTest::itSaysInWordsWhatIsPlotted()
{
    QCOMPARE(m_shown->view().accessibleName(), u"Capacity used of Pack A"_s);
    QCOMPARE(m_shown->view().accessibleDescription(),
             u"Capacity used of Pack A: 3 discharges from 01/01/2026 to 22/03/2026, 1,200 mAh (60 %) to "
             "1,600 mAh (80 %). Measured: 1. Entered: 1. Guessed: 1. Capacity, 2,000 mAh. 1 discharges "
             "without a time are in the table alone."_s);
}

void BatteryPlotTest::coloursFollowTheWindow()
{
    QCOMPARE(m_shown->chart().theme(), QChart::ChartThemeLight);
    QApplication::setPalette(m_shown->dark());
    QCoreApplication::processEvents();
    QCOMPARE(m_shown->chart().theme(), QChart::ChartThemeDark);
    QCOMPARE(m_shown->chart().backgroundBrush().color(), m_shown->dark().color(QPalette::Base));
    QCOMPARE(m_shown->chart().titleBrush().color(), m_shown->dark().color(QPalette::Text));
    QCOMPARE(m_shown->chart().legend()->labelColor(), m_shown->dark().color(QPalette::Text));
    QCOMPARE(m_shown->chart().axes().constFirst()->labelsColor(), m_shown->dark().color(QPalette::Text));
    QCOMPARE(series(u"Entered"_s)->pen().color(), m_shown->dark().color(QPalette::Text));
    const auto isHollow = [this] {
        return series(u"Guessed"_s)->brush().color() == m_shown->dark().color(QPalette::Base);
    };
    QVERIFY(isHollow());
    Panel::named<QComboBox>(m_shown->plot, u"What is plotted"_s)->setCurrentIndex(1);
    QCOMPARE(m_shown->chart().theme(), QChart::ChartThemeDark); // the next plot, too
    QVERIFY(isHollow());
    QApplication::setPalette(QPalette());
    QCoreApplication::processEvents();
    QCOMPARE(m_shown->chart().theme(), QChart::ChartThemeLight);
}

void BatteryPlotTest::fontsFollowTheWindow()
{
    const qreal before = qobject_cast<QScatterSeries *>(series(u"Entered"_s))->markerSize();
    QFont large = QApplication::font();
    large.setPointSize(large.pointSize() * 2);
    QApplication::setFont(large);
    QCoreApplication::processEvents();
    QCOMPARE(m_shown->chart().titleFont().pointSize(), large.pointSize());
    QCOMPARE(m_shown->chart().legend()->font().pointSize(), large.pointSize());
    QCOMPARE(m_shown->chart().axes().constFirst()->labelsFont().pointSize(), large.pointSize());
    QVERIFY(qobject_cast<QScatterSeries *>(series(u"Entered"_s))->markerSize() > before * 1.5);
}

void BatteryPlotTest::theTableShowsEveryDischarge()
{
    auto *box = Panel::button(m_shown->plot, u"As a table"_s);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
    const auto *table = Panel::named<QTableView>(m_shown->plot, u"Discharges"_s);
    QVERIFY(table);
    QVERIFY(!m_shown->view().isVisible());
    QCOMPARE(Panel::texts(*table, u"Source"_s),
             (QStringList{u"Measured"_s, u"Entered"_s, u"Guessed"_s, u"Not entered"_s, u"Entered"_s}));
    QCOMPARE(Panel::texts(*table, u"Used (mAh)"_s),
             (QStringList{u"1,200"_s, u"1,400"_s, u"1,600"_s, QString(), u"900"_s}));
    QCOMPARE(Panel::texts(*table, u"Used (%)"_s).constFirst(), u"60"_s);
    QCOMPARE(Panel::texts(*table, u"Current (A)"_s).constFirst(), u"30.00"_s);
    QCOMPARE(Panel::texts(*table, u"Load (C)"_s).constFirst(), u"15.0"_s);
    QCOMPARE(Panel::texts(*table, u"Time"_s).constFirst(), u"2026-01-01 12:00:00"_s);
    QCOMPARE(Panel::texts(*table, u"Time"_s).constLast(), QString());
    QTest::keyClick(box, Qt::Key_Space);
    QVERIFY(m_shown->view().isVisible());
}

void BatteryPlotTest::withoutAPlotItSaysWhy_data()
{
    QTest::addColumn<int>("discharges");
    QTest::addColumn<QString>("reason");
    QTest::newRow("never discharged") << 0 << u"“Pack A” was never discharged."_s;
    QTest::newRow("nothing entered") << 1 << u"there is nothing to plot"_s;
}

void BatteryPlotTest::withoutAPlotItSaysWhy()
{
    QFETCH(int, discharges);
    QFETCH(QString, reason);
    Battery battery = m_shown->flown();
    battery.discharges = battery.discharges.mid(3, discharges);
    m_shown->show(battery);
    QVERIFY2(Panel::said(m_shown->plot).contains(reason), qPrintable(Panel::said(m_shown->plot)));
    QVERIFY(!m_shown->view().isVisible());
    QVERIFY(!Panel::button(m_shown->plot, u"Save Plot…"_s));
    m_shown->show(m_shown->flown());
    QVERIFY(m_shown->view().isVisible());
    QVERIFY(Panel::button(m_shown->plot, u"Save Plot…"_s));
    m_shown->plot.setBattery(std::nullopt);
    QVERIFY(Panel::said(m_shown->plot).contains(u"Choose a battery"_s));
}

void BatteryPlotTest::tensOfThousandsOfDischargesAreDrawnAsFewMarks()
{
    Battery battery = m_shown->flown();
    battery.discharges.clear();
    for (int i = 0; i < 30'000; ++i)
        battery.discharges.append({QDateTime(QDate(2026, 1, 1), QTime(12, 0)).addSecs(i * 3600LL),
                                   1000U + static_cast<unsigned int>(i * 37 % 900), 3000});
    m_shown->show(battery);
    QVERIFY(series(u"Entered"_s)->count() <= 2000);
    QVERIFY(m_shown->view().accessibleDescription().contains(u"30,000 discharges"_s));
}

void BatteryPlotTest::everythingIsReachedByKeyboard()
{
    auto *chooser = Panel::named<QComboBox>(m_shown->plot, u"What is plotted"_s);
    const QList<QWidget *> reached = Panel::reachedByTab(chooser);
    for (const QString &caption : {u"As a table"_s, u"Save Plot…"_s, u"Copy Plot"_s, u"Print Plot…"_s})
        QVERIFY2(reached.contains(Panel::button(m_shown->plot, caption)), qPrintable(caption));
    QVERIFY(reached.contains(&m_shown->view()));
    QCOMPARE(Panel::nameless(m_shown->plot), QStringList());
}

QTEST_MAIN(BatteryPlotTest)
#include "tst_batteryplot.moc"
