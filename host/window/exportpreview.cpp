// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/exportpreview.h"

#include "host/exchange/tables.h"

#include <QHeaderView>
#include <QLocale>
#include <QTableWidget>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Fills the tables' first rows. */
class Filler final : public TableWriter
{
public:
    explicit Filler(const QList<QTableWidget *> &tables)
        : m_next(tables.cbegin())
    {
    }

    void beginTable(const Table &) override
    {
        m_table = *m_next++;
        m_table->setRowCount(0);
        m_row = 0;
        m_column = 0;
    }
    void addText(const QString &text) override { add(text); }
    void addNumber(qint64 number, int decimals = 0) override
    {
        QString text = QString::number(number);
        if (decimals > 0) {
            double unit = 1.0;
            for (int i = 0; i < decimals; ++i)
                unit *= 10.0;
            text =
                QLocale().toString(static_cast<double>(number) / unit, 'f', QLocale::FloatingPointShortest);
        }
        add(text, Qt::AlignRight | Qt::AlignVCenter);
    }
    void addDate(QDate date) override { add(isoText(date)); }
    void addTime(const QDateTime &time) override { add(isoText(time)); }
    void addNothing() override { add(QString()); }
    void endRow() override
    {
        ++m_row;
        m_column = 0;
    }
    bool endTable() override
    {
        m_table->resizeColumnsToContents();
        return true;
    }

private:
    void add(const QString &text, Qt::Alignment alignment = Qt::AlignLeading | Qt::AlignVCenter)
    {
        const int column = m_column++;
        if (m_row >= ExportPreview::MostRows)
            return;
        if (column == 0)
            m_table->setRowCount(m_row + 1);
        constexpr qsizetype Enough = 80;
        auto *item = new QTableWidgetItem(text.left(Enough).replace(u'\n', u' '));
        item->setTextAlignment(alignment);
        m_table->setItem(m_row, column, item);
    }

    QList<QTableWidget *>::const_iterator m_next;
    QTableWidget *m_table = nullptr;
    int m_row = 0;
    int m_column = 0;
};

/** Leaves of all records and their entries about as many as are shown. */
template <typename Record, typename Entry>
void shorten(QList<Record> &records, QList<Entry> Record::*entries)
{
    qsizetype left = ExportPreview::MostRows;
    for (qsizetype i = 0; i < records.size(); ++i) {
        if (i >= ExportPreview::MostRows && left == 0) {
            records.resize(i);
            return;
        }
        QList<Entry> &all = records[i].*entries;
        all = all.first(qMin(left, all.size()));
        left -= all.size();
    }
}

QList<qsizetype> rowsOf(const Catalogue &catalogue)
{
    qsizetype discharges = 0;
    for (const Battery &battery : catalogue.batteries)
        discharges += battery.discharges.size();
    qsizetype flights = 0;
    for (const Model &model : catalogue.models)
        flights += model.log.size();
    return {catalogue.batteries.size(), discharges, catalogue.models.size(), flights,
            catalogue.locations.size()};
}

} // namespace

ExportPreview::ExportPreview(std::shared_ptr<const Catalogue> whole, QWidget *parent)
    : QTabWidget(parent)
    , m_whole(std::move(whole))
{
    setAccessibleName(tr("Preview"));
    for (const Table &table : exportTables()) {
        auto *view = new QTableWidget(0, static_cast<int>(table.columns.size()));
        QStringList headers;
        for (const Column &column : table.columns)
            headers.append(column.header);
        view->setHorizontalHeaderLabels(headers);
        view->setAccessibleName(tr("First rows of %1").arg(table.name));
        view->setEditTriggers(QAbstractItemView::NoEditTriggers);
        view->setSelectionBehavior(QAbstractItemView::SelectRows);
        view->setTabKeyNavigation(false);
        view->setWordWrap(false);
        view->verticalHeader()->hide();
        view->horizontalHeader()->setHighlightSections(false);
        view->horizontalHeader()->setMaximumSectionSize(fontMetrics().averageCharWidth() * 40);
        view->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
        m_tables.append(view);
        addTab(view, table.name);
    }
    setMinimumHeight(fontMetrics().lineSpacing() * 12);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // the tables scroll; the dialog need not
}

void ExportPreview::showRows(const ExportFilter &filter)
{
    Catalogue shown = filtered(*m_whole, filter);
    const QList<qsizetype> rows = rowsOf(shown);
    for (int i = 0; i < count(); ++i)
        setTabText(i, tr("%1 (%2)").arg(exportTables().at(i).name, locale().toString(rows.at(i))));
    shorten(shown.batteries, &Battery::discharges);
    shorten(shown.models, &Model::log);
    shown.locations.resize(qMin(shown.locations.size(), qsizetype(MostRows)));
    Filler filler(m_tables);
    writeTables(shown, *m_whole, filler);
}

} // namespace Host
