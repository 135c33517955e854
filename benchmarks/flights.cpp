// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks.h"
#include "measure.h"
#include "openwindow.h"
#include "report.h"

#include "host/data/cataloguefile.h"
#include "host/window/flightsfilter.h"
#include "host/window/flightstable.h"

#include <memory>

namespace {

/** The table of flights on show. */
class FlightsWindow
{
public:
    explicit FlightsWindow(const QByteArray &document)
        : catalogue(std::make_shared<const Host::Catalogue>(Host::CatalogueFile::load(document).catalogue))
        , filter(flights)
        , table(flights, filter)
    {
        table.resize(900, 700);
        table.show();
        open();
    }

    double open()
    {
        table.showVersion(nullptr);
        settle();
        return Measure::threadSeconds([this] {
            table.showVersion(catalogue);
            settle();
        });
    }

    /** What all tabs share, once for each version of the file. */
    static double read(const QByteArray &document)
    {
        Host::CatalogueFile::Loaded loaded;
        return Measure::threadSeconds([&] { loaded = Host::CatalogueFile::load(document); });
    }

    /** Each column in its turn, in either order. */
    double sort()
    {
        m_column = (m_column + 1) % Host::FlightsModel::ColumnCount;
        return Measure::threadSeconds([this] {
            table.sortByColumn(m_column, m_column % 2 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            settle();
        });
    }

    /** Looks for something else each time; what is found is scattered all over the table. */
    double search()
    {
        using Host::FlightFilter;
        FlightFilter text;
        text.text = QStringLiteral("motor loops");
        FlightFilter location;
        location.location = QStringLiteral("Gym");
        FlightFilter dates;
        dates.from = QDate(2010, 1, 1);
        const QList<FlightFilter> searches{text, FlightFilter(), location, dates, FlightFilter()};
        m_search = (m_search + 1) % searches.size();
        return Measure::threadSeconds([&] {
            filter.setFilter(searches.at(m_search));
            settle();
        });
    }

private:
    std::shared_ptr<const Host::Catalogue> catalogue;
    Host::FlightsModel flights;
    Host::FlightsFilter filter;
    Host::FlightsTable table;
    int m_column = 0;
    qsizetype m_search = 0;
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void Benchmarks::flights(Report &report, const Plan &plan)
{
    const QList<int> counts = plan.quick ? QList<int>{100'000} : QList<int>{100'000, 300'000};
    for (const int count : counts) {
        OpenWindow plain(Catalogue::withEntries(2 * count)); // a discharge for each flight
        const QByteArray document = contents(plain.path());
        FlightsWindow window(document);
        const Measure::Run reload = [&plain] {
            return Measure::threadSeconds([&plain] {
                plain->updateBatteryGui();
                settle();
            });
        };
        const auto compare = [&](const QString &work, const Measure::Run &run) {
            report.compare(QStringLiteral("%1 the table of flights, %2 flights").arg(work).arg(count),
                           QStringLiteral("the window's own reload"), plan.rounds(count), run, reload, 0.5);
        };
        report.compare(
            QStringLiteral("reading the catalogue of %1 flights as plain values").arg(count),
            QStringLiteral("the window's own reload"), plan.rounds(count),
            [&document] { return FlightsWindow::read(document); }, reload);
        compare(QStringLiteral("opening"), [&window] { return window.open(); });
        compare(QStringLiteral("sorting"), [&window] { return window.sort(); });
        compare(QStringLiteral("filtering"), [&window] { return window.search(); });
    }
}
