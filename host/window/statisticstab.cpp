// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/statisticstab.h"

#include "host/window/openlogbook.h"
#include "host/window/plotbuttons.h"
#include "host/window/plotview.h"
#include "host/window/statisticschart.h"
#include "host/window/statisticsmodel.h"
#include "host/window/tablecolumns.h"
#include "host/window/tableprinting.h"

#include <QChart>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

bool hasFlight(const Catalogue &catalogue)
{
    const auto flew = [](const Model &model) { return !model.log.isEmpty(); };
    const auto discharged = [](const Battery &battery) { return !battery.discharges.isEmpty(); };
    return std::any_of(catalogue.models.cbegin(), catalogue.models.cend(), flew) ||
           std::any_of(catalogue.batteries.cbegin(), catalogue.batteries.cend(), discharged);
}

QString headingFor(const Catalogue &catalogue)
{
    if (catalogue.batteries.isEmpty() || catalogue.models.isEmpty())
        return StatisticsTab::tr("There is nothing to add up yet. Add a battery and a model first: press the "
                                 "menu button, then Edit.");
    return StatisticsTab::tr("There is nothing to add up yet. Record your first flight: click the card of a "
                             "charged battery.");
}

int flightsOf(const QList<GroupFigures> &groups)
{
    int flights = 0;
    for (const GroupFigures &group : groups)
        flights += group.flights;
    return flights;
}

} // namespace

StatisticsTab::StatisticsTab(OpenLogbook &logbook, Questions &questions, QWidget *parent)
    : PanelTab(parent)
    , m_logbook(logbook)
    , m_questions(questions)
    , m_heading(new QLabel)
    , m_content(new QWidget)
    , m_groupingLabel(new QLabel)
    , m_grouping(new QComboBox)
    , m_measureLabel(new QLabel)
    , m_measure(new QComboBox)
    , m_isFrom(new QCheckBox)
    , m_isTo(new QCheckBox)
    , m_summary(new QLabel)
    , m_table(new QTableView)
    , m_model(new StatisticsModel(this))
    , m_sorted(new QSortFilterProxyModel(this))
    , m_plot(new PlotView)
{
    m_heading->setWordWrap(true);
    m_heading->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    m_summary->setWordWrap(true);
    m_summary->setTextFormat(Qt::PlainText);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_heading);
    layout->addWidget(m_content, 1);
    auto *content = new QVBoxLayout(m_content);
    content->setContentsMargins(0, 0, 0, 0);
    content->addWidget(buildChoices());
    content->addWidget(m_summary);
    auto *splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    buildTable();
    splitter->addWidget(m_table);
    splitter->addWidget(buildPlot(questions));
    content->addWidget(splitter, 1);
    connect(m_buttons, &PlotButtons::tablePrintRequested, this, &StatisticsTab::print);
    retranslate();
    connect(m_grouping, &QComboBox::currentIndexChanged, this, &StatisticsTab::showGroups);
    connect(m_measure, &QComboBox::currentIndexChanged, this, &StatisticsTab::showPlot);
}

QWidget *StatisticsTab::buildChoices()
{
    auto *choices = new QWidget;
    auto *layout = new QGridLayout(choices);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnStretch(4, 1);
    const auto addChoice = [layout](int row, QLabel *label, QComboBox *box) {
        label->setBuddy(box);
        layout->addWidget(label, row, 0);
        layout->addWidget(box, row, 1);
    };
    for (const Grouping grouping : {Grouping::Month, Grouping::Model, Grouping::Location})
        m_grouping->addItem(QString(), static_cast<int>(grouping));
    addChoice(0, m_groupingLabel, m_grouping);
    addChoice(1, m_measureLabel, m_measure);
    m_from = addDay(layout, 0, m_isFrom);
    m_to = addDay(layout, 1, m_isTo);
    m_from->setDate(QDate(m_from->date().year(), 1, 1));
    return choices;
}

void StatisticsTab::retranslate()
{
    m_groupingLabel->setText(tr("Add up &by:"));
    m_grouping->setAccessibleName(tr("Add up by"));
    m_grouping->setItemText(static_cast<int>(Grouping::Month), tr("Month"));
    m_grouping->setItemText(static_cast<int>(Grouping::Model), tr("Model"));
    m_grouping->setItemText(static_cast<int>(Grouping::Location), tr("Location"));
    m_measureLabel->setText(tr("Pl&ot:"));
    m_measure->setAccessibleName(tr("What is plotted"));
    const auto nameDay = [](QCheckBox *box, QDateEdit *day, const QString &caption, const QString &name) {
        box->setText(caption);
        box->setAccessibleName(tr("%1 is limited").arg(name));
        day->setAccessibleName(name);
    };
    nameDay(m_isFrom, m_from, tr("&From:"), tr("First day"));
    nameDay(m_isTo, m_to, tr("&To:"), tr("Last day"));
    m_table->setAccessibleName(tr("Flights, added up"));
    offerMeasures();
}

/** A day that limits the range where its box is ticked. */
QDateEdit *StatisticsTab::addDay(QGridLayout *layout, int row, QCheckBox *box)
{
    auto *day = new QDateEdit(QDate::currentDate());
    day->setDisplayFormat(u"yyyy-MM-dd"_s);
    day->setCalendarPopup(true);
    day->setEnabled(false);
    layout->addWidget(box, row, 2);
    layout->addWidget(day, row, 3);
    connect(box, &QCheckBox::toggled, day, &QWidget::setEnabled);
    connect(box, &QCheckBox::toggled, this, &StatisticsTab::work);
    connect(day, &QDateEdit::dateChanged, this, &StatisticsTab::work);
    return day;
}

void StatisticsTab::buildTable()
{
    m_sorted->setSourceModel(m_model);
    m_sorted->setSortRole(StatisticsModel::SortRole);
    m_sorted->setSortLocaleAware(true);
    m_table->setModel(m_sorted);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(-1, Qt::AscendingOrder); // as they come, until the user wishes otherwise
    m_table->horizontalHeader()->setHighlightSections(false);
    m_columns = new TableColumns(*m_table, u"statistics"_s);
}

QWidget *StatisticsTab::buildPlot(Questions &questions)
{
    auto *place = new QWidget;
    auto *layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    m_buttons = new PlotButtons(*m_plot, questions);
    layout->addWidget(m_plot, 1);
    layout->addWidget(m_buttons);
    return place;
}

void StatisticsTab::refresh()
{
    const std::shared_ptr<const Catalogue> catalogue = m_logbook.catalogue();
    if (!catalogue)
        return;
    m_catalogue = catalogue;
    const bool isEmpty = !hasFlight(*catalogue);
    m_heading->setText(isEmpty ? headingFor(*catalogue) : QString());
    m_heading->setVisible(isEmpty);
    m_content->setVisible(!isEmpty);
    work();
}

void StatisticsTab::work()
{
    if (!m_catalogue)
        return;
    m_figures = figuresOf(*m_catalogue, range(), QDate::currentDate());
    showGroups();
}

DateRange StatisticsTab::range() const
{
    DateRange range;
    if (m_isFrom->isChecked())
        range.from = m_from->date();
    if (m_isTo->isChecked())
        range.to = m_to->date();
    return range;
}

/** What was discharged is known of months alone. */
void StatisticsTab::offerMeasures()
{
    const bool isMonth = m_grouping->currentData().toInt() == static_cast<int>(Grouping::Month);
    const int chosen = std::max(m_measure->currentIndex(), 0);
    const QSignalBlocker once(m_measure);
    m_measure->clear();
    for (const Measure measure : {Measure::Flights, Measure::Minutes, Measure::Discharged}) {
        if (measure != Measure::Discharged || isMonth)
            m_measure->addItem(nameOf(measure), static_cast<int>(measure));
    }
    m_measure->setCurrentIndex(chosen < m_measure->count() ? chosen : 0);
}

void StatisticsTab::showGroups()
{
    const auto grouping = static_cast<Grouping>(m_grouping->currentData().toInt());
    offerMeasures();
    m_model->setGroups(groupsOf(m_figures, grouping), grouping);
    if (!m_columns->restore())
        m_table->resizeColumnsToContents();
    m_summary->setText(summary());
    showPlot();
}

void StatisticsTab::showPlot()
{
    const auto grouping = static_cast<Grouping>(m_grouping->currentData().toInt());
    const auto measure = static_cast<Measure>(m_measure->currentData().toInt());
    const StatisticsPlot plot = plotOf(groupsOf(m_figures, grouping), grouping, measure);
    m_plot->setPlot(statisticsChart(plot), statisticsChartName(plot), statisticsChartDescription(plot));
    m_plot->setVisible(!plot.groups.isEmpty());
    m_buttons->setPlotShown(!plot.groups.isEmpty());
}

void StatisticsTab::print()
{
    const QString days = u"%1 – %2"_s.arg(m_isFrom->isChecked() ? m_from->text() : QString(),
                                          m_isTo->isChecked() ? m_to->text() : QString());
    const QString title = tr("%1: %2").arg(m_table->accessibleName(), m_grouping->currentText());
    printTable(*m_table, range().isLimited() ? u"%1, %2"_s.arg(title, days) : title, m_questions);
}

/** What everything in range comes to, and what the table leaves out of it. */
QString StatisticsTab::summary() const
{
    const DateRange chosen = range();
    if (chosen.from && chosen.to && *chosen.from > *chosen.to)
        return tr("The first day is after the last one.");
    const QLocale locale;
    const MonthFigures &total = m_figures.total;
    QString text = tr("In all: %Ln flights, %1 minutes, %2 mAh.", nullptr, total.flights)
                       .arg(locale.toString(total.minutes, 'f', 1), locale.toString(total.discharged));
    const auto grouping = static_cast<Grouping>(m_grouping->currentData().toInt());
    const int missing = total.flights - flightsOf(groupsOf(m_figures, grouping));
    if (missing > 0)
        text += u' ' + (grouping == Grouping::Month
                            ? tr("%Ln flights without a time are not in the table.", nullptr, missing)
                            : tr("%Ln flights without a location are not in the table.", nullptr, missing));
    return text;
}

} // namespace Host
