// SPDX-License-Identifier: GPL-3.0-or-later
// What the tab of the batteries says of the chosen one from the logs of its flights.
#include "host/data/edits.h"
#include "host/exchange/importing.h"
#include "tests/host/support/flown.h"
#include "tests/host/support/makeradiolog.h"
#include "tests/host/support/panel.h"

#include "host/window/healthview.h"
#include "host/window/plotview.h"

#include <QScrollBar>
#include <QTableView>

#include <cmath>

using namespace Host;
using namespace Qt::Literals::StringLiterals;

namespace {

/** Pack A was clicked at noon, one Sunday after the other; Pack B never flew. */
QByteArray clicked(int flights)
{
    Test::Catalogue all;
    Test::Battery pack = Flown::battery(u"Pack A"_s, 2200, {});
    Test::Model swift = Flown::model(u"Swift"_s, {});
    for (int i = 0; i < flights; ++i) {
        const QDateTime noon = Flown::noon(2026, 3, 1).addDays(7 * i);
        pack.history.append({noon, 1760, 5500}); // as a quick capture guesses
        swift.flights.append(Flown::flight(noon, u"Meadow"_s, 5));
    }
    swift.batteries = QStringList{pack.name};
    all.batteries = {pack, Flown::battery(u"Pack B"_s, 1000, {})};
    all.models = {swift};
    return Test::document(all);
}

/** A window with the logbook, and the logs of its flights beside it. */
class Flights
{
public:
    explicit Flights(int flights)
        : window(clicked(flights))
    {
        for (int i = 0; i < flights; ++i)
            log(i);
    }

    /** Of a battery that loses 20 mAh with each flight, and gains a milliohm. */
    void log(int number)
    {
        MadeLogs::Plan plan;
        plan.start = Flown::noon(2026, 3, 1).addDays(7 * number).addSecs(-60);
        plan.seed = 50 + static_cast<unsigned int>(number);
        const MadeLogs::Pack pack{3, 2100.0 - 20 * number, 0.030 + 0.001 * number, 1};
        const QString path = window.place() + plan.start.toString(u"'/Swift-'yyyy-MM-dd-HHmmss'.csv'"_s);
        QVERIFY(Test::write(path, MadeLogs::Text().add(MadeLogs::flight(pack, plan)).bytes()));
        m_logs.append(path);
    }

    QString import()
    {
        return window.logbook().changeWhole(u"Imported"_s, [this](Catalogue &catalogue, Measured &measured) {
            const QList<ImportedLog> logs = LogReading::read(m_logs, measured);
            const ImportPlan plan = matched(logs, catalogue, measured);
            QList<qsizetype> all;
            for (qsizetype i = 0; i < plan.discharges.size(); ++i)
                all.append(i);
            return applyImport(catalogue, measured, logs, plan, all);
        });
    }

    HostWindow window;

private:
    QStringList m_logs;
};

} // namespace

class HealthTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }
    void anAgeingBatteryIsFoundInItsLogs();
    void aBatteryWithoutMeasuredFlightsSaysHowToGetThem();
    void aQuantityThatFewFlightsTellIsEmpty();
    void undoAndRenamingAreFollowed();
    void whatLogsTellIsPlotted();
    void withoutABatteryThereIsNothing();
    void everyCellCanBeReadOut();
    void itIsReachedByKeyboard();
    void aNarrowPanelShowsAllOfIt_data();
    void aNarrowPanelShowsAllOfIt();

private:
    static const QTableView *table(const QWidget &tab)
    {
        return Panel::named<QTableView>(tab, u"Measured values of the battery"_s);
    }
    static void choose(const QWidget &tab, int row)
    {
        auto *batteries = Panel::named<QTableView>(tab, u"Batteries and their figures"_s);
        batteries->setCurrentIndex(batteries->model()->index(row, 0));
    }
};

void HealthTest::anAgeingBatteryIsFoundInItsLogs()
{
    constexpr int Count = 8;
    Flights flights(Count);
    QCOMPARE(flights.import(), QString());
    const QWidget &tab = Panel::open(flights.window, SidePanel::Batteries);
    const QString said = Panel::said(tab);
    QVERIFY2(said.contains(u" mAh of 2,200, from 8 flights, "_s), qPrintable(said));
    QVERIFY2(said.contains(u"Ageing: it has fallen by about "_s), qPrintable(said));
    const QTableView *values = table(tab);
    QVERIFY(values);
    QCOMPARE(
        Panel::texts(*values, u"Measured"_s),
        (QStringList{u"Counter (mAh)"_s, u"Current × time (mAh)"_s, u"At rest before (V)"_s,
                     u"At rest after (V)"_s, u"Lowest (V)"_s, u"Resistance (mΩ)"_s, u"Capacity (mAh)"_s}));
    QStringList counts(7, QString::number(Count));
#ifdef VOLTBOK_WITH_GSL
    QVERIFY2(said.contains(u"Ageing: it has risen by about "_s), qPrintable(said));
    const double resistance = Panel::texts(*values, u"Median"_s).at(5).toDouble();
    QVERIFY2(std::abs(resistance - 33.5) < 3.35, qPrintable(QString::number(resistance)));
#else
    counts[5] = u"0"_s;
#endif
    QCOMPARE(Panel::texts(*values, u"Flights"_s), counts);
    const QLocale locale;
    const double capacity = locale.toDouble(Panel::texts(*values, u"Median"_s).at(6));
    QVERIFY2(std::abs(capacity - 2030) < 203, qPrintable(QString::number(capacity)));
    QCOMPARE(locale.toDouble(Panel::texts(*values, u"Median"_s).at(2)), 12.6); // full
    QVERIFY(locale.toDouble(Panel::texts(*values, u"Spread (±)"_s).at(0)) > 0);
}

void HealthTest::aBatteryWithoutMeasuredFlightsSaysHowToGetThem()
{
    Flights flights(5);
    const QWidget &tab = Panel::open(flights.window, SidePanel::Batteries);
    QVERIFY(
        Panel::said(tab).contains(u"No flight of “Pack A” was measured yet: choose Import Radio Logs…"_s));
    QVERIFY(!table(tab));
    const auto *view = tab.findChild<HealthView *>();
    QTRY_COMPARE(view->height(), view->heightForWidth(view->width())); // the rest is the plot's
    QCOMPARE(flights.import(), QString());
    QTRY_VERIFY(table(tab));
    QVERIFY(!Panel::said(tab).contains(u"measured yet"_s));
    choose(tab, 1);
    QVERIFY(Panel::said(tab).contains(u"No flight of “Pack B” was measured yet"_s));
    QVERIFY(!table(tab));
}

void HealthTest::aQuantityThatFewFlightsTellIsEmpty()
{
    Flights flights(4);
    QCOMPARE(flights.import(), QString());
    const QWidget &tab = Panel::open(flights.window, SidePanel::Batteries);
    const QString said = Panel::said(tab);
    QVERIFY2(said.contains(u"Capacity: shown once five measured flights tell it; so far 4."_s),
             qPrintable(said));
    QVERIFY(!said.contains(u"geing"_s) && !said.contains(u"chance"_s));
    const QTableView &values = *table(tab);
    const QStringList medians = Panel::texts(values, u"Median"_s);
    const QStringList spreads = Panel::texts(values, u"Spread (±)"_s);
    for (int row = 0; row < 7; ++row) {
        QCOMPARE(medians.at(row).isEmpty(), row > 4);
        QCOMPARE(spreads.at(row).isEmpty(), row > 4);
    }
    QCOMPARE(Panel::texts(values, u"Flights"_s).last(), u"4"_s);
    const QModelIndex empty = values.model()->index(6, 1);
    QCOMPARE(empty.data(Qt::ToolTipRole).toString(), u"Shown once five measured flights tell it."_s);
}

void HealthTest::undoAndRenamingAreFollowed()
{
    Flights flights(5);
    QCOMPARE(flights.import(), QString());
    OpenLogbook &logbook = flights.window.logbook();
    const QWidget &tab = Panel::open(flights.window, SidePanel::Batteries);
    const QStringList medians = Panel::texts(*table(tab), u"Median"_s);
    const auto rename = [](Catalogue &catalogue) { return Edits::renameBattery(catalogue, 0, u"Pack Z"_s); };
    QCOMPARE(logbook.change(u"Renamed"_s, rename), QString());
    flights.window.settle();
    QVERIFY(table(tab));
    QCOMPARE(Panel::texts(*table(tab), u"Median"_s), medians);
    QCOMPARE(logbook.undo(), QString());
    flights.window.settle();
    QVERIFY(table(tab));
    QCOMPARE(logbook.undo(), QString());
    QTRY_VERIFY(!table(tab));
    QCOMPARE(logbook.redo(), QString());
    QTRY_VERIFY(table(tab));
    QCOMPARE(Panel::texts(*table(tab), u"Median"_s), medians);
}

void HealthTest::whatLogsTellIsPlotted()
{
    Flights flights(5);
    const QWidget &tab = Panel::open(flights.window, SidePanel::Batteries);
    auto *chooser = Panel::named<QComboBox>(tab, u"What is plotted"_s);
    QTest::keyClick(chooser, Qt::Key_End);
    QCOMPARE(chooser->currentText(), u"Measured capacity"_s);
    const auto *plot = tab.findChild<PlotView *>();
    QVERIFY(!plot->isVisible());
    QVERIFY(Panel::said(tab).contains(u"once the radio's logs of five flights with “Pack A” tell it."_s));
    QCOMPARE(flights.import(), QString());
    QTRY_VERIFY(plot->isVisible());
    QCOMPARE(plot->accessibleName(), u"Measured capacity of Pack A"_s);
    const QString description = plot->accessibleDescription();
    QVERIFY2(description.contains(u": 5 discharges from "_s) &&
                 description.contains(u"Measured: 5. Capacity, 2,200 mAh."_s),
             qPrintable(description));
#ifdef VOLTBOK_WITH_GSL
    QTest::keyClick(chooser, Qt::Key_Up);
    QCOMPARE(plot->accessibleName(), u"Internal resistance of Pack A"_s);
    QVERIFY2(plot->accessibleDescription().contains(u" mΩ to "_s), qPrintable(plot->accessibleDescription()));
#endif
}

void HealthTest::withoutABatteryThereIsNothing()
{
    HostWindow window{QByteArray()};
    const QWidget &tab = Panel::open(window, SidePanel::Batteries);
    QVERIFY(!table(tab));
    QVERIFY(!Panel::said(tab).contains(u"measured"_s));
}

void HealthTest::everyCellCanBeReadOut()
{
    Flights flights(5);
    QCOMPARE(flights.import(), QString());
    const QTableView &values = *table(Panel::open(flights.window, SidePanel::Batteries));
    const QAbstractItemModel &model = *values.model();
    QCOMPARE(model.index(2, 3).data(Qt::AccessibleTextRole).toString(), u"At rest before (V), Flights: 5"_s);
    for (int row = 0; row < model.rowCount(); ++row)
        QVERIFY(!model.index(row, 0).data(Qt::ToolTipRole).toString().isEmpty());
    for (int column = 0; column < model.columnCount(); ++column)
        QVERIFY(!model.headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString().isEmpty());
    QCOMPARE(model.index(0, 1).data(Qt::ToolTipRole).toString(), QString());
}

void HealthTest::itIsReachedByKeyboard()
{
    Flights flights(5);
    QCOMPARE(flights.import(), QString());
    const QWidget &tab = Panel::open(flights.window, SidePanel::Batteries);
    flights.window.window().activateWindow();
    auto *batteries = Panel::named<QTableView>(tab, u"Batteries and their figures"_s);
    const QList<QWidget *> reached = Panel::reachedByTab(batteries);
    const auto place = [&](const QWidget *widget) { return reached.indexOf(widget); };
    QVERIFY(place(table(tab)) >= 0);
    QVERIFY(place(table(tab)) < place(Panel::named<QComboBox>(tab, u"What is plotted"_s)));
    QCOMPARE(Panel::nameless(tab), QStringList());
}

void HealthTest::aNarrowPanelShowsAllOfIt_data()
{
    QTest::addColumn<int>("points");
    QTest::newRow("usual letters") << QApplication::font().pointSize();
    QTest::newRow("large letters") << 2 * QApplication::font().pointSize();
}

void HealthTest::aNarrowPanelShowsAllOfIt()
{
    QFETCH(int, points);
    Flights flights(5);
    QCOMPARE(flights.import(), QString());
    const QWidget &tab = Panel::open(flights.window, SidePanel::Batteries);
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPointSize(points);
    QApplication::setFont(font);
    QCoreApplication::processEvents();
    const QTableView &values = *table(tab);
    const QList<QLabel *> labels = tab.findChild<HealthView *>()->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 1);
    const auto isShown = [&](int lastRow) {
        return values.visualRect(values.model()->index(lastRow, 0)).bottom() < values.viewport()->height() &&
               labels.first()->height() >= labels.first()->heightForWidth(labels.first()->width());
    };
    flights.window.window().resize(flights.window.window().minimumSizeHint().width(), 1500);
    const bool isWhole =
        QTest::qWaitFor([&] { return isShown(6) && !values.verticalScrollBar()->isVisible(); });
    flights.window.window().resize(flights.window.window().minimumSizeHint());
    const bool isReadable = QTest::qWaitFor([&] { return isShown(2); });
    QApplication::setFont(usual);
    QVERIFY(isWhole);
    QVERIFY(isReadable);
}

QTEST_MAIN(HealthTest)

#include "tst_health.moc"
