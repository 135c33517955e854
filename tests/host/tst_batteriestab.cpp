// SPDX-License-Identifier: GPL-3.0-or-later
// The tab of the batteries in the program's window.
#include "tests/host/support/flown.h"
#include "tests/host/support/panel.h"

#include "host/window/plotview.h"

#include <QTableView>

using namespace Qt::Literals::StringLiterals;
using Host::SidePanel;

class BatteriesTabTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyBatteryHasARow();
    void aMissingFigureIsAnEmptyCell();
    void aClickOnATitleSorts();
    void theChosenBatteryIsPlotted();
    void selectionAndOrderSurviveAChange();
    void theSecondOfTwoNamesakesStaysChosen();
    void aChosenBatteryThatIsGoneLeavesTheFirst();
    void anAdviceLeadsToItsBattery();
    void anEmptyLogbookSaysWhatToDoFirst();
    void everythingIsReachedByKeyboard();
    void fromRightToLeftTheFirstColumnIsAtTheRight();

private:
    static QTableView &table(const QWidget &tab);
    static QString chosen(const QWidget &tab);
    static QString plotted(const QWidget &tab);
    static void choose(const QWidget &tab, const QString &name);
};

void BatteriesTabTest::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English));
}

QTableView &BatteriesTabTest::table(const QWidget &tab)
{
    auto *view = Panel::named<QTableView>(tab, u"Batteries and their figures"_s);
    if (!view)
        qFatal("There is no table of batteries.");
    return *view;
}

QString BatteriesTabTest::chosen(const QWidget &tab)
{
    return table(tab).currentIndex().siblingAtColumn(0).data().toString();
}

QString BatteriesTabTest::plotted(const QWidget &tab)
{
    const auto *view = tab.findChild<Host::PlotView *>();
    return view->isVisible() ? view->accessibleName() : QString();
}

void BatteriesTabTest::choose(const QWidget &tab, const QString &name)
{
    QTableView &view = table(tab);
    const auto row = static_cast<int>(Panel::texts(view, u"Battery"_s).indexOf(name));
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.visualRect(view.model()->index(row, 0)).center());
    QCOMPARE(chosen(tab), name);
}

void BatteriesTabTest::everyBatteryHasARow()
{
    HostWindow window(Flown::logbook());
    const QTableView &view = table(Panel::open(window, SidePanel::Batteries));
    const auto texts = [&view](const QString &title) { return Panel::texts(view, title); };
    QCOMPARE(texts(u"Battery"_s), (QStringList{u"Pack A"_s, u"Pack B"_s, u"Pack C"_s}));
    QCOMPARE(texts(u"Discharges"_s), (QStringList{u"3"_s, u"1"_s, u"0"_s}));
    QCOMPARE(texts(u"Measured or entered"_s), (QStringList{u"2 of 3"_s, u"0 of 1"_s, u"0"_s}));
    QCOMPARE(texts(u"Full cycles"_s), (QStringList{u"2.0"_s, u"0.8"_s, u"0.0"_s}));
    QCOMPARE(texts(u"Median depth (%)"_s), (QStringList{u"60"_s, QString(), QString()}));
    QCOMPARE(texts(u"Deepest (%)"_s), (QStringList{u"70"_s, QString(), QString()}));
    QCOMPARE(texts(u"Highest load (C)"_s), (QStringList{u"20.0"_s, QString(), QString()}));
    QCOMPARE(texts(u"Flights"_s), (QStringList{u"3"_s, u"1"_s, u"0"_s}));
    QCOMPARE(texts(u"Minutes"_s), (QStringList{u"20.0"_s, u"9.0"_s, u"0.0"_s}));
    QCOMPARE(texts(u"mAh per minute"_s), (QStringList{u"200"_s, QString(), QString()}));
    QCOMPARE(texts(u"Total (mAh)"_s),
             (QStringList{u"4,000 (1,600 guessed)"_s, u"800 (800 guessed)"_s, u"0"_s}));
}

void BatteriesTabTest::aMissingFigureIsAnEmptyCell()
{
    HostWindow window(Flown::logbook());
    const QTableView &view = table(Panel::open(window, SidePanel::Batteries));
    const QModelIndex cell = view.model()->index(1, Panel::column(view, u"Deepest (%)"_s));
    QCOMPARE(cell.data().toString(), QString());
    QVERIFY(cell.data(Qt::ToolTipRole).toString().contains(u"guessed does not count"_s));
    const QModelIndex unused = view.model()->index(2, Panel::column(view, u"Days since use"_s));
    QCOMPARE(unused.data().toString(), QString());
    QVERIFY(unused.data(Qt::ToolTipRole).toString().contains(u"not used yet"_s));
}

void BatteriesTabTest::aClickOnATitleSorts()
{
    HostWindow window(Flown::logbook());
    const QTableView &view = table(Panel::open(window, SidePanel::Batteries));
    QHeaderView *header = view.horizontalHeader();
    const int column = Panel::column(view, u"Minutes"_s);
    const auto click = [&] {
        const QPoint place(header->sectionViewportPosition(column) + 20, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    };
    click();
    const QStringList once = Panel::texts(view, u"Minutes"_s);
    click();
    const QStringList twice = Panel::texts(view, u"Minutes"_s);
    const QStringList ascending{u"0.0"_s, u"9.0"_s, u"20.0"_s}; // a text of 20 stands before one of 9
    QCOMPARE(QSet<QString>({once.constFirst(), twice.constFirst()}), QSet<QString>({u"0.0"_s, u"20.0"_s}));
    QCOMPARE(once.constFirst() == u"0.0"_s ? once : twice, ascending);
}

void BatteriesTabTest::theChosenBatteryIsPlotted()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Batteries);
    QCOMPARE(chosen(tab), u"Pack A"_s);
    QCOMPARE(plotted(tab), u"Capacity used of Pack A"_s);
    QTest::keyClick(&table(tab), Qt::Key_Down);
    QCOMPARE(plotted(tab), u"Capacity used of Pack B"_s);
    choose(tab, u"Pack C"_s);
    QCOMPARE(plotted(tab), QString());
    QVERIFY(Panel::said(tab).contains(u"“Pack C” was never discharged"_s));
}

void BatteriesTabTest::selectionAndOrderSurviveAChange()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Batteries);
    table(tab).sortByColumn(0, Qt::DescendingOrder);
    choose(tab, u"Pack B"_s);
    const QString problem = window.logbook().change(u"More"_s, [](Host::Catalogue &catalogue) {
        Host::Battery battery;
        battery.name = u"Pack 0"_s;
        catalogue.batteries.prepend(battery);
        return QString();
    });
    QCOMPARE(problem, QString());
    QTRY_COMPARE(table(tab).model()->rowCount(), 4);
    QCOMPARE(Panel::texts(table(tab), u"Battery"_s),
             (QStringList{u"Pack C"_s, u"Pack B"_s, u"Pack A"_s, u"Pack 0"_s}));
    QCOMPARE(chosen(tab), u"Pack B"_s);
    QCOMPARE(plotted(tab), u"Capacity used of Pack B"_s);
    QCOMPARE(table(tab).selectionModel()->selectedRows().size(), 1);
}

void BatteriesTabTest::theSecondOfTwoNamesakesStaysChosen()
{
    Test::Catalogue catalogue = Flown::catalogue();
    catalogue.batteries[1].name = catalogue.batteries[0].name;
    HostWindow window(Test::document(catalogue));
    const QWidget &tab = Panel::open(window, SidePanel::Batteries);
    QTest::keyClick(&table(tab), Qt::Key_Down);
    QCOMPARE(table(tab).currentIndex().row(), 1);
    window.addLocation(u"Dune"_s);
    window.settle();
    QCOMPARE(table(tab).currentIndex().row(), 1);
}

void BatteriesTabTest::aChosenBatteryThatIsGoneLeavesTheFirst()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Batteries);
    choose(tab, u"Pack B"_s);
    window.logbook().change(u"Less"_s, [](Host::Catalogue &catalogue) {
        catalogue.batteries.removeAt(1);
        return QString();
    });
    QTRY_COMPARE(table(tab).model()->rowCount(), 2);
    QCOMPARE(chosen(tab), u"Pack A"_s);
    QCOMPARE(plotted(tab), u"Capacity used of Pack A"_s);
}

void BatteriesTabTest::anAdviceLeadsToItsBattery()
{
    HostWindow window(Flown::logbook());
    Panel::open(window, SidePanel::Today);
    auto *panel = window.window().findChild<SidePanel *>();
    panel->showBattery(u"Pack C"_s);
    QCOMPARE(panel->currentIndex(), static_cast<int>(SidePanel::Batteries));
    QCOMPARE(chosen(*panel->currentWidget()), u"Pack C"_s);
    panel->showBattery(u"nobody knows it"_s);
    QCOMPARE(chosen(*panel->currentWidget()), u"Pack C"_s);
    window.logbook().change(u"More"_s, [](Host::Catalogue &catalogue) {
        Host::Battery battery;
        battery.name = u"Pack D"_s;
        catalogue.batteries.append(battery);
        return QString();
    });
    panel->showBattery(u"Pack D"_s); // at once, before the panel shows what is new
    QCOMPARE(chosen(*panel->currentWidget()), u"Pack D"_s);
}

void BatteriesTabTest::anEmptyLogbookSaysWhatToDoFirst()
{
    HostWindow window{QByteArray()};
    const QWidget &tab = Panel::open(window, SidePanel::Batteries);
    QVERIFY2(Panel::said(tab).contains(u"Add your first one"_s), qPrintable(Panel::said(tab)));
    QVERIFY(!Panel::named<QTableView>(tab, u"Batteries and their figures"_s));
    window.put(Flown::logbook());
    QTRY_VERIFY(Panel::named<QTableView>(tab, u"Batteries and their figures"_s));
    QVERIFY(!Panel::said(tab).contains(u"Add your first one"_s));
}

void BatteriesTabTest::everythingIsReachedByKeyboard()
{
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Batteries);
    window.window().activateWindow();
    const QList<QWidget *> reached = Panel::reachedByTab(&table(tab));
    QVERIFY(reached.contains(Panel::named<QComboBox>(tab, u"What is plotted"_s)));
    QVERIFY(reached.contains(Panel::button(tab, u"As a table"_s)));
    QVERIFY(reached.contains(Panel::button(tab, u"Print Plot…"_s)));
    QCOMPARE(Panel::nameless(tab), QStringList());
}

void BatteriesTabTest::fromRightToLeftTheFirstColumnIsAtTheRight()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    HostWindow window(Flown::logbook());
    const QWidget &tab = Panel::open(window, SidePanel::Batteries);
    const QHeaderView *header = table(tab).horizontalHeader();
    const bool isAtTheRight = header->sectionViewportPosition(0) > header->sectionViewportPosition(1);
    const auto *save = Panel::button(tab, u"Save Plot…"_s);
    const auto *copy = Panel::button(tab, u"Copy Plot"_s);
    const bool isBeside = save->x() > copy->x();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QVERIFY(isAtTheRight && isBeside);
}

QTEST_MAIN(BatteriesTabTest)
#include "tst_batteriestab.moc"
