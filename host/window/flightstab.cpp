// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightstab.h"

#include "host/data/edits.h"
#include "host/window/filterbar.h"
#include "host/window/flightdialog.h"
#include "host/window/flighteditdialog.h"
#include "host/window/flightedits.h"
#include "host/window/flightstable.h"
#include "host/window/flowlayout.h"
#include "host/window/movedialog.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"
#include "host/window/tablecolumns.h"
#include "host/window/tidydialog.h"

#include <QAction>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace Host {

FlightsTab::FlightsTab(OpenLogbook &logbook, Questions &questions, QWidget *parent)
    : PanelTab(parent)
    , m_logbook(logbook)
    , m_questions(questions)
    , m_filter(m_flights)
    , m_bar(new FilterBar)
    , m_hint(new QLabel)
    , m_table(new FlightsTable(m_flights, m_filter))
    , m_count(new QLabel)
    , m_buttons(new FlowLayout)
    , m_add(addCommand(&FlightsTab::addFlight))
    , m_edit(addCommand(&FlightsTab::editFlight))
    , m_delete(addCommand(&FlightsTab::deleteFlights))
    , m_move(addCommand(&FlightsTab::moveFlights))
    , m_tidy(addCommand(&FlightsTab::tidyUp))
    , m_rename(addCommand(&FlightsTab::renameRequested))
{
    buildLayout();
    retranslate();
    m_edit->setShortcut(Qt::SHIFT | Qt::Key_F2); // F2 alone edits a cell
    m_edit->setShortcutContext(Qt::WidgetShortcut);
    m_delete->setShortcut(QKeySequence::Delete);
    m_delete->setShortcutContext(Qt::WidgetShortcut); // in a field it deletes a character
    connect(&m_logbook, &OpenLogbook::possibilitiesChanged, this, &FlightsTab::updateCommands);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FlightsTab::updateCommands);
    connect(&m_flights, &FlightsModel::editRequested, this, &FlightsTab::editLater);
    connect(m_bar, &FilterBar::changed, this, [this] {
        m_filter.setFilter(m_bar->filter());
        updateCount();
        updateCommands();
    });
    updateCommands();
}

FlightsTab::~FlightsTab()
{
    delete m_table; // it looks at the models, which are members
}

/** A command stands on a button and in the table's menu. */
QAction *FlightsTab::addCommand(void (FlightsTab::*run)())
{
    auto *action = new QAction(this);
    connect(action, &QAction::triggered, this, run);
    m_table->addAction(action);
    auto *button = new QPushButton;
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::changed, button, [action, button] {
        button->setText(action->text());
        button->setEnabled(action->isEnabled());
    });
    m_buttons->addWidget(button);
    return action;
}

void FlightsTab::retranslate()
{
    m_add->setText(tr("&Add…"));
    m_edit->setText(tr("Ed&it…"));
    m_delete->setText(tr("&Delete"));
    m_move->setText(tr("&Move…"));
    m_tidy->setText(tr("&Tidy Up…"));
    m_rename->setText(tr("&Rename…"));
}

void FlightsTab::buildLayout()
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_bar);
    layout->addWidget(m_hint);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_count);
    layout->addLayout(m_buttons);
    m_hint->setWordWrap(true);
    (new TableColumns(*m_table, u"flights"_s))->restore();
}

void FlightsTab::refresh()
{
    refreshWith({});
}

void FlightsTab::refreshWith(const QList<FlightPlace> &chosen)
{
    const std::shared_ptr<const Catalogue> catalogue = m_logbook.catalogue();
    if (catalogue && catalogue != m_flights.catalogue()) {
        m_bar->offer(*catalogue);
        m_table->showVersion(catalogue);
    }
    if (!chosen.isEmpty())
        m_table->choose(chosen);
    updateCount();
    updateCommands();
}

void FlightsTab::updateCount()
{
    const Catalogue *catalogue = m_flights.catalogue().get();
    const int all = m_flights.rowCount();
    if (catalogue && catalogue->models.isEmpty())
        m_hint->setText(tr("There is no model yet. Add your first one: press the menu button, then Edit."));
    else
        m_hint->setText(
            tr("There is no flight yet. Add one here, or click the card of a charged battery when "
               "you have flown it."));
    m_hint->setVisible(all == 0);
    m_bar->setEnabled(all > 0);
    const QLocale locale;
    const int shown = m_filter.rowCount();
    m_count->setText(shown == all
                         ? tr("Flights: %1").arg(locale.toString(all))
                         : tr("Flights: %1 of %2").arg(locale.toString(shown), locale.toString(all)));
}

void FlightsTab::updateCommands()
{
    const Catalogue *catalogue = m_flights.catalogue().get();
    const bool mayChange = catalogue && m_logbook.mayChange();
    const bool mayChangeChosen = mayChange && m_table->isAnyChosen();
    m_flights.setEditable(mayChange);
    m_add->setEnabled(mayChange && !catalogue->models.isEmpty());
    m_edit->setEnabled(mayChange && m_table->isOneChosen());
    m_delete->setEnabled(mayChangeChosen);
    m_move->setEnabled(mayChangeChosen);
    m_tidy->setEnabled(mayChange && m_flights.rowCount() > 0);
    m_rename->setEnabled(mayChange);
}

/** Shows what has become of a change. */
void FlightsTab::finish(const QString &problem, const QList<FlightPlace> &chosen)
{
    if (!problem.isEmpty())
        m_questions.tell(problem);
    refreshWith(problem.isEmpty() ? chosen : QList<FlightPlace>());
}

/** When the editor is gone: the table is then shown anew. */
void FlightsTab::editLater(const FlightPlace &place, int column, const QVariant &value)
{
    const std::shared_ptr<const Catalogue> shown = m_flights.catalogue();
    QTimer::singleShot(0, this, [this, shown, place, column, value] { edit(shown, place, column, value); });
}

void FlightsTab::edit(const std::shared_ptr<const Catalogue> &shown, const FlightPlace &place, int column,
                      const QVariant &value)
{
    FlightPlace edited = place;
    const QString problem = FlightEdits::edit(m_logbook, *shown, edited, {{column, value}});
    finish(problem, {edited});
}

void FlightsTab::addFlight()
{
    const std::shared_ptr<const Catalogue> catalogue = m_logbook.catalogue();
    if (!catalogue)
        return;
    FlightDialog dialog(catalogue, m_logbook, m_questions, this);
    if (dialog.exec() == QDialog::Accepted)
        finish(QString(), {dialog.added()});
}

void FlightsTab::editFlight()
{
    FlightEditDialog dialog(m_flights, m_table->chosen().constFirst(), m_logbook, m_questions, this);
    if (dialog.exec() == QDialog::Accepted)
        finish(QString(), {dialog.place()});
}

void FlightsTab::deleteFlights()
{
    enum { DeleteAll, DeleteFlights, Cancel };
    const std::shared_ptr<const Catalogue> shown = m_flights.catalogue();
    const QList<FlightPlace> places = m_table->chosen();
    const auto count = static_cast<int>(places.size());
    Question question;
    question.text = count == 1 ? tr("Delete this flight?") : tr("Delete these %n flights?", nullptr, count);
    question.details =
        tr("Discharges at the same times can be deleted with them; the cycles of the batteries "
           "are then reduced. The models' numbers of flights stay as they are. This can be "
           "undone.");
    question.answers = QStringList{tr("Delete With Discharges"), tr("Delete Flights Only"), tr("Cancel")};
    question.preferred = Cancel;
    question.refusal = Cancel;
    const int answer = m_questions.ask(question).button;
    if (answer == Cancel)
        return;
    const auto discharges = answer == DeleteAll ? Edits::Discharges::Delete : Edits::Discharges::Keep;
    const QString name = count == 1 ? tr("Flight deleted") : tr("%n flights deleted", nullptr, count);
    finish(m_logbook.change(name, [&](Catalogue &catalogue) {
        if (!FlightEdits::areThere(places, *shown, catalogue))
            return FlightEdits::changedMeanwhile();
        return Edits::deleteFlights(catalogue, places, discharges);
    }));
}

void FlightsTab::moveFlights()
{
    const std::shared_ptr<const Catalogue> shown = m_flights.catalogue();
    QList<FlightPlace> places = m_table->chosen();
    MoveDialog dialog(*shown, places, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString name = places.size() == 1
                             ? tr("Flight moved")
                             : tr("%n flights moved", nullptr, static_cast<int>(places.size()));
    const QString problem = m_logbook.change(name, [&](Catalogue &catalogue) {
        if (!FlightEdits::areThere(places, *shown, catalogue))
            return FlightEdits::changedMeanwhile();
        return dialog.apply(catalogue, places);
    });
    finish(problem, places);
}

void FlightsTab::tidyUp()
{
    const std::shared_ptr<const Catalogue> shown = m_flights.catalogue();
    const QList<Edits::Double> doubles = Edits::doubles(*shown);
    if (doubles.isEmpty()) {
        m_questions.tell(tr("No flight stands twice. A flight is taken for a double when it is at most 5 s "
                            "after another one of the same model and the same in everything else."));
        return;
    }
    TidyDialog dialog(*shown, doubles, this);
    if (dialog.exec() != QDialog::Accepted || dialog.chosen().isEmpty())
        return;
    const QList<FlightPlace> places = dialog.chosen();
    finish(m_logbook.change(tr("Flights that stood twice removed"), [&](Catalogue &catalogue) {
        if (!FlightEdits::areThere(places, *shown, catalogue))
            return FlightEdits::changedMeanwhile();
        return Edits::deleteFlights(catalogue, places, Edits::Discharges::Delete);
    }));
}

} // namespace Host
