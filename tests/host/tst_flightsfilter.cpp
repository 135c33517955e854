// SPDX-License-Identifier: GPL-3.0-or-later
// Which flights are found, and in which order they stand.
#include "host/window/flightsfilter.h"
#include "tests/host/support/plainlogbook.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Host;
using namespace PlainLogbook;
using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(Host::FlightFilter)

class FlightsFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_flights.setCatalogue(std::make_shared<const Catalogue>(logbook())); }
    void flightsAreFound_data();
    void flightsAreFound();
    void rowsAreSortedStably_data();
    void rowsAreSortedStably();
    void anotherVersionIsFilteredAnew();
    void itIsAProperModel();

private:
    static QList<int> rows(const FlightsFilter &filter)
    {
        QList<int> rows;
        for (int row = 0; row < filter.rowCount(); ++row)
            rows.append(filter.mapToSource(filter.index(row, 0)).row());
        return rows;
    }

    FlightsModel m_flights;
};

void FlightsFilterTest::flightsAreFound_data()
{
    QTest::addColumn<FlightFilter>("filter");
    QTest::addColumn<QList<int>>("rows");
    const auto row = [](const char *name, const FlightFilter &filter, const QList<int> &rows) {
        QTest::newRow(name) << filter << rows;
    };
    const auto words = [&](const char *name, const QString &text, const QList<int> &rows) {
        FlightFilter filter;
        filter.text = text;
        row(name, filter, rows);
    };
    row("everything", {}, {0, 1, 2, 3, 4});
    words("a model, in any case", u"skyL"_s, {0, 1, 2});
    words("a location", u"beach"_s, {4});
    words("notes", u"CALM"_s, {0, 1, 2, 3, 4});
    words("two words in two columns", u" calm  hill "_s, {1});
    words("nothing", u"storm"_s, {});
    words("white space", u"  "_s, {0, 1, 2, 3, 4});
    FlightFilter filter;
    filter.model = u"Firebrand"_s;
    row("only a model", filter, {3, 4});
    filter.model = u"Fire"_s;
    row("the whole name of a model", filter, {});
    filter = {};
    filter.battery = u"B"_s;
    row("one of several batteries", filter, {1, 3});
    filter.battery = u""_s;
    row("a battery without a name", filter, {2, 4});
    filter = {};
    filter.location = u"Meadow"_s;
    row("a location alone", filter, {0, 2, 3});
    filter.model = u"Skylark"_s;
    filter.text = u"B"_s;
    row("all at once", filter, {});
    filter = {};
    filter.from = QDate(2026, 5, 3);
    row("from a day on", filter, {0, 1, 2, 3});
    filter.to = QDate(2026, 5, 3);
    row("a single day", filter, {0, 1, 2, 3});
    filter.from = QDate(2026, 5, 4);
    row("a day that ends before it begins", filter, {});
    filter = {};
    filter.to = QDate(2026, 5, 2);
    row("until the day before", filter, {});
}

void FlightsFilterTest::flightsAreFound()
{
    QFETCH(FlightFilter, filter);
    QFETCH(QList<int>, rows);
    FlightsFilter flights(m_flights);
    flights.setFilter(filter);
    QCOMPARE(FlightsFilterTest::rows(flights), rows);
    flights.setFilter({});
    QCOMPARE(flights.rowCount(), 5);
}

void FlightsFilterTest::rowsAreSortedStably_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QList<int>>("ascending");
    QTest::addColumn<QList<int>>("descending");
    const auto row = [](const char *name, int column, const QList<int> &up, const QList<int> &down) {
        QTest::newRow(name) << column << up << down;
    };
    row("time", FlightsModel::Time, {4, 0, 1, 2, 3}, {3, 2, 1, 0, 4});
    row("model", FlightsModel::ModelName, {3, 4, 0, 1, 2}, {0, 1, 2, 3, 4});
    row("batteries", FlightsModel::Batteries, {2, 4, 0, 1, 3}, {3, 1, 0, 2, 4});
    row("duration", FlightsModel::Duration, {0, 1, 2, 3, 4}, {0, 1, 2, 3, 4});
    row("mAh", FlightsModel::Discharged, {2, 4, 0, 3, 1}, {1, 3, 0, 2, 4});
    row("current", FlightsModel::Current, {2, 4, 0, 1, 3}, {3, 1, 0, 2, 4});
    row("location", FlightsModel::Location, {4, 1, 0, 2, 3}, {0, 2, 3, 1, 4});
}

void FlightsFilterTest::rowsAreSortedStably()
{
    QFETCH(int, column);
    QFETCH(QList<int>, ascending);
    QFETCH(QList<int>, descending);
    FlightsFilter flights(m_flights);
    flights.sort(column, Qt::AscendingOrder);
    QCOMPARE(rows(flights), ascending);
    flights.sort(column, Qt::DescendingOrder);
    QCOMPARE(rows(flights), descending);
}

void FlightsFilterTest::anotherVersionIsFilteredAnew()
{
    FlightsModel model;
    FlightsFilter flights(model);
    FlightFilter filter;
    filter.text = u"hill"_s;
    flights.setFilter(filter);
    flights.sort(FlightsModel::Time, Qt::DescendingOrder);
    QCOMPARE(flights.rowCount(), 0);
    model.setCatalogue(std::make_shared<const Catalogue>(logbook()));
    QCOMPARE(rows(flights), QList<int>{1});
    Catalogue catalogue = logbook();
    catalogue.models[0].log.prepend(flight(at(18, 0), u"Hilltop"_s));
    model.setCatalogue(std::make_shared<const Catalogue>(catalogue));
    QCOMPARE(rows(flights), (QList<int>{0, 2}));
}

void FlightsFilterTest::itIsAProperModel()
{
    FlightsModel model;
    FlightsFilter flights(model);
    const QAbstractItemModelTester tester(&flights, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setCatalogue(std::make_shared<const Catalogue>(logbook()));
    FlightFilter filter;
    filter.battery = u"A"_s;
    flights.setFilter(filter);
    QCOMPARE(flights.rowCount(), 2);
    flights.sort(FlightsModel::Location);
    flights.setFilter({});
    QCOMPARE(flights.rowCount(), 5);
}

QTEST_MAIN(FlightsFilterTest)
#include "tst_flightsfilter.moc"
