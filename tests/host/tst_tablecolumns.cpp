// SPDX-License-Identifier: GPL-3.0-or-later
// The columns of the panel's tables are as the user left them, and can be sorted without a mouse.
#include "tests/host/support/flown.h"
#include "tests/host/support/panel.h"

#include <QTableView>

using namespace Qt::Literals::StringLiterals;
using Host::SidePanel;

class TableColumnsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widthOrderAndSortingAreKept_data();
    void widthOrderAndSortingAreKept();
    void columnsThatNobodyTouchedAreNotKept();
    void aColumnIsSortedByWithoutAMouse_data() { addTables(); }
    void aColumnIsSortedByWithoutAMouse();

private:
    static void addTables();
    static QTableView &table(HostWindow &window);
    static void drag(const QHeaderView &header, int from, int to);
    static void click(const QHeaderView &header, int column);
};

void TableColumnsTest::addTables()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("name");
    QTest::newRow("batteries") << int(SidePanel::Batteries) << u"Batteries and their figures"_s;
    QTest::newRow("flights") << int(SidePanel::Flights) << u"Flights"_s;
    QTest::newRow("statistics") << int(SidePanel::Statistics) << u"Flights, added up"_s;
}

QTableView &TableColumnsTest::table(HostWindow &window)
{
    QFETCH(int, tab);
    QFETCH(QString, name);
    auto *view = Panel::named<QTableView>(Panel::open(window, static_cast<SidePanel::Tab>(tab)), name);
    if (!view)
        qFatal("There is no such table.");
    return *view;
}

/** Moves the mouse along the titles with its button pressed. */
void TableColumnsTest::drag(const QHeaderView &header, int from, int to)
{
    const int y = header.height() / 2;
    QTest::mousePress(header.viewport(), Qt::LeftButton, {}, {from, y});
    for (int step = 1; step <= 4; ++step) {
        const QPointF place(from + (to - from) * step / 4, y);
        QMouseEvent move(QEvent::MouseMove, place, header.viewport()->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(header.viewport(), &move);
    }
    QTest::mouseRelease(header.viewport(), Qt::LeftButton, {}, {to, y});
    QCoreApplication::processEvents();
}

void TableColumnsTest::click(const QHeaderView &header, int column)
{
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(column) + 20, header.height() / 2});
}

void TableColumnsTest::widthOrderAndSortingAreKept_data()
{
    addTables();
}

void TableColumnsTest::widthOrderAndSortingAreKept()
{
    HostWindow window(Flown::logbook());
    const QHeaderView *header = table(window).horizontalHeader();
    const int end = header->sectionViewportPosition(1) + header->sectionSize(1) - 1;
    const int width = header->sectionSize(1) + 37;
    drag(*header, end, end + 37);
    QCOMPARE(header->sectionSize(1), width);
    window.restart();
    header = table(window).horizontalHeader();
    QCOMPARE(header->sectionSize(1), width);

    drag(*header, 20, header->sectionViewportPosition(1) + width - 20); // the first behind the second
    QCOMPARE(header->visualIndex(0), 1);
    click(*header, 1);
    const Qt::SortOrder order = header->sortIndicatorOrder();
    const QStringList sorted =
        Panel::texts(table(window), header->model()->headerData(1, Qt::Horizontal).toString());
    window.restart();
    header = table(window).horizontalHeader();
    QCOMPARE(header->visualIndex(0), 1);
    QCOMPARE(header->sectionSize(1), width);
    QCOMPARE(header->sortIndicatorSection(), 1);
    QCOMPARE(header->sortIndicatorOrder(), order);
    QCOMPARE(Panel::texts(table(window), header->model()->headerData(1, Qt::Horizontal).toString()), sorted);
}

void TableColumnsTest::columnsThatNobodyTouchedAreNotKept()
{
    HostWindow window(Flown::logbook());
    for (const SidePanel::Tab tab : {SidePanel::Batteries, SidePanel::Flights, SidePanel::Statistics})
        Panel::open(window, tab);
    window.restart();
    QVERIFY(Host::Settings().tableColumns(u"flights-9"_s).isEmpty());
    QVERIFY(Host::Settings().tableColumns(u"batteries-13"_s).isEmpty());
    QVERIFY(Host::Settings().tableColumns(u"statistics-4"_s).isEmpty());
}

void TableColumnsTest::aColumnIsSortedByWithoutAMouse()
{
    HostWindow window(Flown::logbook());
    QTableView &view = table(window);
    view.setFocus();
    view.setCurrentIndex(view.model()->index(0, 1));
    QAction *sort = nullptr;
    for (QAction *action : view.actions()) {
        if (action->text().remove(u'&') == u"Sort by This Column"_s)
            sort = action;
    }
    QVERIFY(sort);
    QCOMPARE(view.contextMenuPolicy(), Qt::ActionsContextMenu);
    sort->trigger();
    QCOMPARE(view.horizontalHeader()->sortIndicatorSection(), 1);
    QCOMPARE(view.horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    sort->trigger();
    QCOMPARE(view.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    window.restart();
    QCOMPARE(table(window).horizontalHeader()->sortIndicatorSection(), 1);
    QCOMPARE(table(window).horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
}

QTEST_MAIN(TableColumnsTest)
#include "tst_tablecolumns.moc"
