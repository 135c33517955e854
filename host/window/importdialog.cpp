// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/importdialog.h"

#include "host/exchange/importing.h"
#include "host/window/breakable.h"
#include "host/window/flightedits.h"
#include "host/window/importdelegate.h"
#include "host/window/importmodel.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QThread>

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace Host {

QString importByDialog(OpenLogbook &logbook, Questions &questions, const QStringList &paths, QWidget *parent)
{
    ImportDialog dialog(logbook, questions, parent);
    if (!paths.isEmpty())
        dialog.add(paths);
    dialog.exec();
    return dialog.report();
}

ImportDialog::ImportDialog(OpenLogbook &logbook, Questions &questions, QWidget *parent)
    : QDialog(parent)
    , m_logbook(logbook)
    , m_questions(questions)
    , m_model(new ImportModel(this))
    , m_fields(new QWidget)
    , m_chooseFiles(new QPushButton(tr("Choose &Logs…")))
    , m_chooseFolder(new QPushButton(tr("Choose &Folder or Card…")))
    , m_table(new QTableView)
    , m_replaces(new QCheckBox(tr("&Replace values that were entered")))
    , m_corrects(new QCheckBox)
    , m_refusedCaption(new QLabel(tr("&Not imported:")))
    , m_refused(new QListWidget)
    , m_message(new QLabel)
    , m_progress(new QProgressBar)
{
    setWindowTitle(tr("Import Radio Logs"));
    buildTable();
    buildLayout();
    connect(m_chooseFiles, &QPushButton::clicked, this, [this] {
        add(m_questions.chooseFiles(tr("Choose Logs of Radios"), {tr("Logs (*.csv *.CSV)")}));
    });
    connect(m_chooseFolder, &QPushButton::clicked, this,
            [this] { add(QStringList(m_questions.chooseFolder(tr("Choose a Folder with Logs")))); });
    connect(m_replaces, &QCheckBox::toggled, m_model, &ImportModel::setReplacingEntered);
    connect(m_corrects, &QCheckBox::toggled, this,
            [this](bool corrects) { m_model->setClockOffset(corrects ? m_clockOffset : 0); });
    connect(m_model, &ImportModel::dataChanged, this, &ImportDialog::refresh);
    connect(m_model, &ImportModel::modelReset, this, &ImportDialog::refresh);
    connect(&m_logbook, &OpenLogbook::possibilitiesChanged, this, &ImportDialog::refresh);
    connect(&m_logbook, &OpenLogbook::changed, this, &ImportDialog::readAgain);
    say(tr("Choose logs that a radio with EdgeTX or OpenTX has written, or the folder or card that they are "
           "on. Nothing on a card is ever changed."));
    refresh();
    const QSize most = screen()->availableSize() * 9 / 10;
    resize(QSize(fontMetrics().averageCharWidth() * 160, fontMetrics().lineSpacing() * 28).boundedTo(most));
}

ImportDialog::~ImportDialog()
{
    hide(); // an editor that is open gives its value then
    m_isStopped = true;
    if (m_thread)
        m_thread->wait();
}

void ImportDialog::buildTable()
{
    m_table->setModel(m_model);
    m_table->setItemDelegate(new ImportDelegate(m_table));
    m_table->setAccessibleName(tr("Discharges in the logs"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                             QAbstractItemView::EditKeyPressed);
    m_table->setAlternatingRowColors(true);
    m_table->setTabKeyNavigation(false); // Tab leads on to what stands below
    m_table->setWordWrap(false);
    m_table->setShowGrid(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setStretchLastSection(true);
}

void ImportDialog::buildLayout()
{
    auto *choosing = new QHBoxLayout;
    choosing->addWidget(m_chooseFiles);
    choosing->addWidget(m_chooseFolder);
    choosing->addStretch();
    auto *fields = new QVBoxLayout(m_fields);
    fields->setContentsMargins(0, 0, 0, 0);
    fields->addLayout(choosing);
    fields->addWidget(m_table, 3);
    fields->addWidget(m_replaces);
    fields->addWidget(m_corrects);
    fields->addWidget(m_refusedCaption);
    fields->addWidget(m_refused, 1);
    m_corrects->hide();
    m_refusedCaption->setBuddy(m_refused);
    m_refusedCaption->hide();
    m_refused->setAccessibleName(tr("Files that are not imported"));
    m_refused->setWordWrap(true);
    m_refused->setSelectionMode(QAbstractItemView::NoSelection);
    m_refused->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_refused->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
    m_refused->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    m_refused->hide();
    m_message->setWordWrap(true);
    m_message->setTextFormat(Qt::PlainText);
    m_progress->setAccessibleName(tr("Progress of the reading"));
    m_progress->setRange(0, 0); // how much a log holds is known when it was read
    m_progress->hide();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_import = buttons->addButton(tr("&Import"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &ImportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImportDialog::reject);
    buttons->setFocusProxy(nullptr); // with its own, Tab would leave out what comes before the first button
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_fields, 1);
    layout->addWidget(m_message);
    layout->addWidget(m_progress);
    layout->addWidget(buttons);
}

/** A clock that is off by the same on all days is corrected when the user wants it. */
void ImportDialog::offerClock(const std::optional<qint64> &offset)
{
    constexpr qint64 Minute = qint64(60) * 1000;
    constexpr qint64 MinutesOfAnHour = 60;
    const bool isSame = offset.value_or(0) == m_clockOffset;
    m_clockOffset = offset.value_or(0);
    if (!isSame)
        m_corrects->setChecked(false);
    const qint64 minutes = std::abs(m_clockOffset) / Minute;
    const QString hours =
        u"%1:%2"_s.arg(minutes / MinutesOfAnHour).arg(minutes % MinutesOfAnHour, 2, 10, QChar(u'0'));
    m_corrects->setText(m_clockOffset > 0
                            ? tr("&Correct the radio's clock: it seems to be %1 h slow").arg(hours)
                            : tr("&Correct the radio's clock: it seems to be %1 h fast").arg(hours));
    m_corrects->setVisible(m_clockOffset != 0);
}

void ImportDialog::refresh()
{
    m_fields->setEnabled(!m_thread);
    m_import->setEnabled(!m_thread && m_logbook.mayChange() && !m_model->chosen().isEmpty());
}

void ImportDialog::say(const QString &text)
{
    m_message->setText(breakable(text));
    m_message->setAccessibleName(text);
    m_message->setVisible(!text.isEmpty());
}

void ImportDialog::accept()
{
    m_table->setFocus(); // what is being chosen there counts
    if (!m_import->isEnabled())
        return;
    const QList<qsizetype> chosen = m_model->chosen();
    const int logs = m_model->chosenLogs();
    const QString name = logs == 1 ? tr("Imported 1 radio log") : tr("Imported %n radio logs", nullptr, logs);
    m_isImporting = true;
    const QString problem =
        m_logbook.changeWhole(name, [&](Catalogue &catalogue, Measured &measured) -> QString {
            if (catalogue != *m_model->catalogue())
                return FlightEdits::changedMeanwhile();
            LogReading::remember(measured, m_mappings);
            return applyImport(catalogue, measured, m_model->logs(), m_model->plan(), chosen);
        });
    m_isImporting = false;
    if (!problem.isEmpty()) {
        if (m_model->catalogue() != m_logbook.catalogue())
            readAgain();
        return say(problem);
    }
    const auto filled = std::count_if(chosen.cbegin(), chosen.cend(), [this](qsizetype discharge) {
        return m_model->plan().discharges.at(discharge).action == ImportAction::Fill;
    });
    m_report = tr("%1. Flights filled: %2; discharges added: %3. Undo in the menu Edit takes all of it back.")
                   .arg(name)
                   .arg(filled)
                   .arg(chosen.size() - filled);
    QDialog::accept();
}

void ImportDialog::reject()
{
    if (!m_thread)
        QDialog::reject();
    m_isStopped = true;
}

} // namespace Host
