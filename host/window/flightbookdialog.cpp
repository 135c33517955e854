// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightbookdialog.h"

#include "host/safety/wholefile.h"
#include "host/window/flightbookpreview.h"
#include "host/window/flightfields.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPrinter>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int Steps = 100; // of a progress

/** Watches a work that a progress shows in steps. */
Watch stepsOf(Progress &progress)
{
    return [&progress, done = 0](double share) mutable {
        for (; done < static_cast<int>(Steps * share); ++done) {
            if (!progress.step())
                return false;
        }
        return true;
    };
}

} // namespace

void showFlightBook(OpenLogbook &logbook, Questions &questions, QWidget *parent)
{
    if (const std::shared_ptr<const Catalogue> catalogue = logbook.catalogue())
        FlightBookDialog(catalogue, questions, parent).exec();
}

FlightBookDialog::FlightBookDialog(std::shared_ptr<const Catalogue> catalogue, Questions &questions,
                                   QWidget *parent)
    : QDialog(parent)
    , m_catalogue(std::move(catalogue))
    , m_questions(questions)
    , m_models(new QListWidget)
    , m_paper(FlightFields::chooser({}))
    , m_preview(new FlightBookPreview)
    , m_page(new QSpinBox)
    , m_summary(new QLabel)
    , m_message(new QLabel)
{
    setWindowTitle(tr("Flight Book"));
    auto *columns = new QHBoxLayout;
    columns->addWidget(buildChoices());
    columns->addWidget(buildPreview(), 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    m_message->setWordWrap(true);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_message->hide();
    layout->addWidget(m_message);
    addButtons();
    connect(&m_layingOut, &QTimer::timeout, this, &FlightBookDialog::layOutNext);
    for (const QCheckBox *box : {m_isFrom, m_isTo})
        connect(box, &QCheckBox::toggled, this, &FlightBookDialog::work);
    for (const QDateEdit *day : {m_from, m_to})
        connect(day, &QDateEdit::dateChanged, this, &FlightBookDialog::work);
    connect(m_models, &QListWidget::itemChanged, this, &FlightBookDialog::work);
    connect(m_paper, &QComboBox::currentIndexChanged, this, &FlightBookDialog::work);
    connect(m_page, &QSpinBox::valueChanged, this, &FlightBookDialog::showPage);
    work();
}

FlightBookDialog::~FlightBookDialog() = default;

QWidget *FlightBookDialog::buildChoices()
{
    auto *choices = new QWidget;
    auto *form = new QFormLayout(choices);
    form->setContentsMargins(0, 0, 0, 0);
    addDate(*form, tr("&From:"), tr("First day"), m_isFrom, m_from);
    addDate(*form, tr("&To:"), tr("Last day"), m_isTo, m_to);
    m_from->setDate(QDate(QDate::currentDate().year(), 1, 1));
    m_to->setDate(QDate::currentDate());
    QStringList names = FlightFields::names(m_catalogue->models);
    names.removeDuplicates();
    for (const QString &name : std::as_const(names)) {
        auto *item = new QListWidgetItem(name, m_models);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    m_models->setCurrentRow(0);
    m_models->setAccessibleName(tr("Models in the book"));
    form->addRow(tr("&Models:"), m_models);
    m_paper->addItem(tr("A4"), QPageSize::A4);
    m_paper->addItem(tr("Letter"), QPageSize::Letter);
    m_paper->setAccessibleName(tr("Paper of the PDF file"));
    form->addRow(tr("P&aper:"), m_paper);
    m_summary->setWordWrap(true);
    form->addRow(m_summary);
    return choices;
}

/** A date that counts when its box is ticked. */
void FlightBookDialog::addDate(QFormLayout &form, const QString &caption, const QString &name,
                               QCheckBox *&box, QDateEdit *&edit)
{
    box = new QCheckBox(caption);
    box->setAccessibleName(tr("%1 is limited").arg(name));
    edit = FlightFields::date();
    edit->setAccessibleName(name);
    edit->setEnabled(false);
    form.addRow(box, edit);
    connect(box, &QCheckBox::toggled, edit, &QWidget::setEnabled);
}

QWidget *FlightBookDialog::buildPreview()
{
    auto *place = new QWidget;
    auto *layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_preview, 1);
    auto *row = new QHBoxLayout;
    auto *label = new QLabel(tr("Pa&ge:"));
    label->setBuddy(m_page);
    m_page->setAccessibleName(tr("Page that is shown"));
    m_page->setMinimum(1);
    row->addStretch();
    row->addWidget(label);
    row->addWidget(m_page);
    row->addStretch();
    layout->addLayout(row);
    return place;
}

void FlightBookDialog::addButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    m_print = buttons->addButton(tr("&Print…"), QDialogButtonBox::ActionRole);
    m_save = buttons->addButton(tr("&Save as PDF…"), QDialogButtonBox::ActionRole);
    connect(m_print, &QPushButton::clicked, this, &FlightBookDialog::print);
    connect(m_save, &QPushButton::clicked, this, &FlightBookDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
    m_save->setDefault(true);
}

DateRange FlightBookDialog::range() const
{
    DateRange range;
    if (m_isFrom->isChecked())
        range.from = m_from->date();
    if (m_isTo->isChecked())
        range.to = m_to->date();
    return range;
}

FlightBook FlightBookDialog::book() const
{
    QStringList models;
    for (int row = 0; row < m_models->count(); ++row) {
        if (m_models->item(row)->checkState() == Qt::Checked)
            models.append(m_models->item(row)->text());
    }
    const bool areAll = models.size() == m_models->count();
    return flightBookOf(*m_catalogue, range(), areAll ? std::nullopt : std::optional(models));
}

QPageSize::PageSizeId FlightBookDialog::paper() const
{
    return static_cast<QPageSize::PageSizeId>(m_paper->currentData().toInt());
}

/** Begins the preview anew. */
void FlightBookDialog::work()
{
    const DateRange chosen = range();
    const bool isPossible = !chosen.from || !chosen.to || *chosen.from <= *chosen.to;
    m_preview->show(nullptr, 0);
    m_pages.reset();
    m_print->setEnabled(isPossible);
    m_save->setEnabled(isPossible);
    m_page->setEnabled(isPossible);
    m_message->hide();
    if (!isPossible) {
        m_layingOut.stop();
        m_summary->setText(tr("The first day is after the last one."));
        return;
    }
    const FlightBook whole = book();
    const FlightBookTotals totals = whole.totals(0, whole.entries.size());
    m_summary->setText(tr("Flights: %1, time in the air: %2.")
                           .arg(QLocale().toString(totals.flights), FlightBookTexts::hours(totals.seconds)));
    m_pages = std::make_unique<FlightBookPages>(whole, QPageSize(paper()).size(QPageSize::Point), QLocale());
    layOutNext();
    m_layingOut.start(0);
}

/** Lays out one more page of the preview while nothing else is to be done. */
void FlightBookDialog::layOutNext()
{
    m_pages->layOutNext();
    m_page->setMaximum(m_pages->count());
    if (m_pages->isComplete()) {
        m_layingOut.stop();
        m_page->setSuffix(u' ' + tr("of %1").arg(QLocale().toString(m_pages->count())));
    } else {
        m_page->setSuffix(QString());
    }
    if (m_pages->count() == 1 || m_pages->isComplete())
        showPage();
}

void FlightBookDialog::showPage()
{
    if (m_pages)
        m_preview->show(m_pages.get(), m_page->value() - 1);
}

void FlightBookDialog::say(const QString &text)
{
    m_message->setText(text);
    m_message->setAccessibleName(text);
    m_message->show();
    QAccessibleEvent event(m_message, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void FlightBookDialog::print()
{
    m_message->hide();
    m_questions.print(FlightBookTexts::title(), [this](QPrinter &printer) {
        if (!printOn(printer))
            say(tr(
                "The flight book was not printed: the printer or the file for it cannot be written. Choose "
                "another one."));
    });
}

/** @return false when it was not the user who ended it. */
bool FlightBookDialog::printOn(QPrinter &printer)
{
    const std::unique_ptr<Progress> progress =
        m_questions.progress(tr("The flight book is printed…"), 2 * Steps);
    printer.setFullPage(true); // the pages bring their margins
    FlightBookPages pages(book(), printer.pageLayout().fullRectPoints().size(), QLocale());
    bool isCancelled = !pages.layOut(stepsOf(*progress));
    const bool isDone = !isCancelled && pages.print(printer, [&, watch = stepsOf(*progress)](double share) {
        isCancelled = !watch(share);
        return !isCancelled;
    });
    if (!isDone)
        printer.abort();
    return isCancelled || (isDone && printer.printerState() != QPrinter::Error);
}

QByteArray FlightBookDialog::pdf()
{
    const std::unique_ptr<Progress> progress = m_questions.progress(tr("The flight book is saved…"), Steps);
    return flightBookPdf(book(), paper(), QLocale(), stepsOf(*progress));
}

void FlightBookDialog::save()
{
    m_message->hide();
    const QString path = m_questions.chooseSaveFile(
        tr("Save the Flight Book"), FlightBookTexts::title() + u".pdf"_s, {tr("PDF document (*.pdf)")});
    const QByteArray document = path.isEmpty() ? QByteArray() : pdf();
    if (document.isEmpty())
        return;
    const QString problem = WholeFile::write(path, document);
    const QString place = QDir::toNativeSeparators(path);
    if (problem.isEmpty())
        say(tr("The flight book is saved in “%1”.").arg(place));
    else
        say(tr("The flight book was not saved in “%1”: %2. Choose another place for it.")
                .arg(place, problem));
}

} // namespace Host
