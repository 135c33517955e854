// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/exportdialog.h"

#include "host/window/breakable.h"
#include "host/window/exportformats.h"
#include "host/window/exportnames.h"
#include "host/window/exportpreview.h"
#include "host/window/flightfields.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QThread>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {

QString exportByDialog(OpenLogbook &logbook, Questions &questions, QWidget *parent)
{
    const std::shared_ptr<const Catalogue> catalogue = logbook.catalogue();
    if (!catalogue) {
        questions.tell(ExportDialog::tr("The logbook cannot be read now. Free some space, and try again."));
        return QString();
    }
    ExportDialog dialog(catalogue, questions, parent);
    dialog.exec();
    return dialog.report();
}

ExportDialog::ExportDialog(std::shared_ptr<const Catalogue> catalogue, Questions &questions, QWidget *parent)
    : QDialog(parent)
    , m_catalogue(std::move(catalogue))
    , m_questions(questions)
    , m_fields(new QWidget)
    , m_format(FlightFields::chooser({}))
    , m_explanation(new QLabel)
    , m_batteries(new ExportNames(tr("Only these &batteries"), FlightFields::names(m_catalogue->batteries)))
    , m_models(new ExportNames(tr("Only these &models"), FlightFields::names(m_catalogue->models)))
    , m_preview(new ExportPreview(m_catalogue))
    , m_message(new QLabel)
    , m_progress(new QProgressBar)
{
    setWindowTitle(tr("Export"));
    for (const ExportFormat format : ExportFormats::all())
        m_format->addItem(ExportFormats::name(format), static_cast<int>(format));
    buildFields();
    auto *area = new QScrollArea; // at 200 % it is higher than some screens
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it follows its fields
    area->setWidget(m_fields);
    m_message->setWordWrap(true);
    m_message->setTextFormat(Qt::PlainText);
    m_message->hide();
    m_progress->setAccessibleName(tr("Progress of the export"));
    m_progress->hide();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_export = buttons->addButton(tr("&Export…"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(area, 1);
    layout->addWidget(m_message);
    layout->addWidget(m_progress);
    layout->addWidget(buttons);
    for (const ExportNames *names : {m_batteries, m_models})
        connect(names, &ExportNames::changed, this, &ExportDialog::refresh);
    connect(m_format, &QComboBox::currentIndexChanged, this, &ExportDialog::refresh);
    refresh();
    const QSize most = screen()->availableSize() * 9 / 10;
    const int character = fontMetrics().averageCharWidth();
    resize(QSize(character * 160, fontMetrics().lineSpacing() * 32).boundedTo(most));
}

ExportDialog::~ExportDialog()
{
    m_isStopped = true;
    if (m_thread)
        m_thread->wait();
}

void ExportDialog::buildFields()
{
    auto *columns = new QHBoxLayout(m_fields);
    columns->setContentsMargins(0, 0, 0, 0);
    auto *choices = new QVBoxLayout;
    columns->addLayout(choices, 1);
    auto *form = new QFormLayout;
    choices->addLayout(form);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->addRow(tr("&Format"), m_format);
    m_format->setAccessibleName(tr("Format"));
    m_format->setSizeAdjustPolicy(QComboBox::AdjustToContents); // these names are read to their ends
    m_format->setMinimumContentsLength(0);
    m_explanation->setWordWrap(true);
    m_explanation->setTextFormat(Qt::PlainText);
    form->addRow(m_explanation);
    addDate(*form, tr("F&rom"), m_isFrom, m_from);
    addDate(*form, tr("&To"), m_isTo, m_to);
    choices->addWidget(m_batteries, 1);
    choices->addWidget(m_models, 1);
    auto *preview = new QVBoxLayout;
    columns->addLayout(preview, 2);
    auto *caption =
        new QLabel(tr("&Preview: the first %n rows of each table", nullptr, ExportPreview::MostRows));
    caption->setBuddy(m_preview);
    preview->addWidget(caption);
    preview->addWidget(m_preview, 1);
}

/** A date that counts when its box is ticked. */
void ExportDialog::addDate(QFormLayout &form, const QString &caption, QCheckBox *&box, QDateEdit *&edit)
{
    box = new QCheckBox(caption);
    edit = FlightFields::date();
    edit->setAccessibleName(QString(caption).remove(u'&'));
    edit->setEnabled(false);
    edit->setDate(QDate::currentDate());
    form.addRow(box, edit);
    connect(box, &QCheckBox::toggled, edit, &QWidget::setEnabled);
    connect(box, &QCheckBox::toggled, this, &ExportDialog::refresh);
    connect(edit, &QDateEdit::dateChanged, this, &ExportDialog::refresh);
}

ExportFormat ExportDialog::format() const
{
    return static_cast<ExportFormat>(m_format->currentData().toInt());
}

ExportFilter ExportDialog::filter() const
{
    const auto day = [](const QCheckBox &box, const QDateEdit &edit) {
        return box.isChecked() ? std::optional(edit.date()) : std::nullopt;
    };
    return {{day(*m_isFrom, *m_from), day(*m_isTo, *m_to)}, m_batteries->chosen(), m_models->chosen()};
}

/** Shows what the choices come to. */
void ExportDialog::refresh()
{
    m_explanation->setText(ExportFormats::explanation(format()));
    const ExportFilter chosen = filter();
    const bool isBackwards = chosen.range.from && chosen.range.to && *chosen.range.from > *chosen.range.to;
    m_export->setEnabled(!isBackwards);
    say(isBackwards ? tr("The first day is later than the last one. Change one of them.") : QString());
    m_preview->showRows(chosen);
}

void ExportDialog::say(const QString &text)
{
    m_message->setText(breakable(text));
    m_message->setAccessibleName(text);
    m_message->setVisible(!text.isEmpty());
}

QString ExportDialog::choosePath(ExportFormat format)
{
    if (format == ExportFormat::Xlsx)
        return m_questions.chooseSaveFile(tr("Export the Logbook"), u"voltbok.xlsx"_s,
                                          {tr("Workbook (*.xlsx)")});
    if (format == ExportFormat::Json)
        return m_questions.chooseSaveFile(tr("Export the Logbook"), u"voltbok.json"_s, {tr("JSON (*.json)")});
    return m_questions.chooseFolder(tr("Export Five Files into a Folder"));
}

/** Asks about files in a folder; for one file, that was asked when it was chosen. */
bool ExportDialog::mayReplace(const QStringList &files)
{
    if (files.isEmpty())
        return true;
    QStringList names;
    for (const QString &file : files)
        names.append(QFileInfo(file).fileName());
    enum { Replace, Cancel };
    Question question;
    question.text = tr("The folder has files of these names already.");
    question.details = tr("The export replaces %1.").arg(names.join(u", "_s));
    question.answers = QStringList{tr("Replace"), tr("Cancel")};
    question.preferred = Cancel;
    question.refusal = Cancel;
    return m_questions.ask(question).button == Replace;
}

void ExportDialog::accept()
{
    ExportOrder order;
    order.format = format();
    order.path = choosePath(order.format);
    if (order.path.isEmpty())
        return;
    const bool isFolder = order.format == ExportFormat::Csv || order.format == ExportFormat::CsvLocal;
    if (isFolder && !mayReplace(existingFiles(order.format, order.path)))
        return;
    order.filter = filter();
    order.replaces = true;
    order.localStyle = CsvStyle::forLocale(QLocale::system());
    start(order);
}

/** The thread gets values that nobody changes: the catalogue of one version of the file. */
void ExportDialog::start(const ExportOrder &order)
{
    say(QString());
    m_fields->setEnabled(false);
    m_export->setEnabled(false);
    m_isStopped = false;
    m_progress->setRange(0, static_cast<int>(countRows(filtered(*m_catalogue, order.filter))));
    m_progress->setValue(0);
    m_progress->show();
    m_thread.reset(QThread::create([this, catalogue = m_catalogue, order] {
        const Exported exported = exportLogbook(*catalogue, order, [this](qsizetype rows) {
            QMetaObject::invokeMethod(this, [this, rows] { showProgress(rows); });
            return !m_isStopped;
        });
        QMetaObject::invokeMethod(this, [this, order, exported] { finish(order, exported); });
    }));
    m_thread->start();
}

void ExportDialog::showProgress(qsizetype rows)
{
    constexpr qsizetype Step = 1000;
    if (rows == 0 || rows + Step > m_progress->maximum()) // what follows cannot be counted
        m_progress->setRange(0, 0);
    else
        m_progress->setValue(static_cast<int>(rows));
}

void ExportDialog::finish(const ExportOrder &order, const Exported &exported)
{
    m_thread->wait();
    m_thread.reset();
    m_progress->hide();
    m_fields->setEnabled(true);
    m_export->setEnabled(true);
    if (exported.isStopped)
        return say(tr("The export was stopped. Nothing was written."));
    if (!exported.problem.isEmpty())
        return say(exported.problem + u' ' +
                   tr("Choose another place, or free some space, and export again."));
    m_report = tr("The logbook was exported to “%1”.").arg(QDir::toNativeSeparators(order.path));
    if (exported.cutTexts > 0)
        m_report +=
            u' ' +
            tr("Texts that are too long for a cell (32,767 characters) were cut: %1.").arg(exported.cutTexts);
    QDialog::accept();
}

void ExportDialog::reject()
{
    if (!m_thread)
        QDialog::reject();
    m_isStopped = true;
}

} // namespace Host
