// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/backupsdialog.h"

#include "host/data/cataloguefile.h"
#include "host/data/difference.h"
#include "host/safety/copyrestoring.h"
#include "host/window/breakable.h"
#include "host/window/copiesmodel.h"
#include "host/window/copyreader.h"
#include "host/window/differencesmodel.h"
#include "host/window/openlogbook.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int Moment = 300; // ms, after which work shows how far it is

/** What both tables have in common. */
void setUp(QTableView &table, QAbstractItemModel *model, const QString &name)
{
    table.setModel(model);
    table.setAccessibleName(name);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setAlternatingRowColors(true);
    table.setTabKeyNavigation(false); // Tab leads on to what stands below
    table.setWordWrap(false);
    table.setShowGrid(false);
    table.verticalHeader()->hide();
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setStretchLastSection(true);
}

QLabel *text(const QString &words = QString())
{
    auto *label = new QLabel(words);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

/** A part of the dialog: what stands in it is below its caption. */
QWidget *part(QLabel *caption, QTableView *table)
{
    auto *widget = new QWidget;
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    caption->setBuddy(table);
    layout->addWidget(caption);
    layout->addWidget(table, 1);
    return widget;
}

QString madeOn(const Copy &copy)
{
    return copy.time.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss");
}

} // namespace

QString restoreByDialog(OpenLogbook &logbook, const StorageFolder &folder, QWidget *parent)
{
    BackupsDialog dialog(logbook, folder, parent);
    dialog.exec();
    return dialog.report();
}

BackupsDialog::BackupsDialog(OpenLogbook &logbook, const StorageFolder &folder, QWidget *parent)
    : QDialog(parent)
    , m_logbook(logbook)
    , m_folder(folder)
    , m_copies(new CopiesModel(this))
    , m_differences(new DifferencesModel(this))
    , m_reader(new CopyReader(folder, this))
    , m_table(new QTableView)
    , m_holds(text())
    , m_preview(new QTableView)
    , m_message(text())
    , m_progress(new QProgressBar)
{
    setWindowTitle(tr("Backups"));
    auto *parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    parts->addWidget(copiesPart());
    parts->addWidget(previewPart());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    m_restore = buttons->addButton(tr("&Restore"), QDialogButtonBox::AcceptRole);
    buttons->setFocusProxy(nullptr); // with its own, Tab would leave out what comes before
    connect(buttons, &QDialogButtonBox::accepted, this, &BackupsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_message->hide();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text(tr("Every version of the logbook is copied. Restoring a copy is one step, which "
                              "Undo takes back; the logbook as it is now is copied first.")));
    layout->addWidget(parts, 1);
    layout->addWidget(m_message);
    layout->addWidget(progressPart());
    layout->addWidget(buttons);
    connect(m_reader, &CopyReader::wasRead, this, &BackupsDialog::take);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) { choose(current.row()); });
    connect(&m_logbook, &OpenLogbook::possibilitiesChanged, this, &BackupsDialog::refresh);
    connect(&m_logbook, &OpenLogbook::changed, this, &BackupsDialog::list);
    list();
    m_table->setFocus();
    const QSize most = screen()->availableSize() * 9 / 10;
    resize(QSize(fontMetrics().averageCharWidth() * 120, fontMetrics().lineSpacing() * 34).boundedTo(most));
}

BackupsDialog::~BackupsDialog() = default;

QWidget *BackupsDialog::copiesPart()
{
    setUp(*m_table, m_copies, tr("Copies, the newest first"));
    const int digit = m_table->fontMetrics().horizontalAdvance(u'0');
    m_table->setColumnWidth(0, digit * 24);
    m_table->setColumnWidth(1, digit * 12);
    return part(new QLabel(tr("&Copies, the newest first:")), m_table);
}

QWidget *BackupsDialog::previewPart()
{
    setUp(*m_preview, m_differences, tr("What differs from the logbook now"));
    const int digit = m_preview->fontMetrics().horizontalAdvance(u'0');
    m_preview->setColumnWidth(0, digit * 14);
    m_preview->setColumnWidth(1, digit * 50);
    QWidget *widget = part(new QLabel(tr("&What differs from the logbook now:")), m_preview);
    qobject_cast<QVBoxLayout *>(widget->layout())->insertWidget(0, m_holds);
    return widget;
}

QWidget *BackupsDialog::progressPart()
{
    m_work = new QWidget;
    auto *layout = new QHBoxLayout(m_work);
    layout->setContentsMargins(0, 0, 0, 0);
    m_progress->setAccessibleName(tr("How many copies are compared"));
    auto *halt = new QPushButton(tr("&Stop"));
    halt->setAutoDefault(false);
    connect(halt, &QPushButton::clicked, this, &BackupsDialog::stop);
    layout->addWidget(m_progress, 1);
    layout->addWidget(halt);
    m_work->hide();
    return m_work;
}

/** Shows the copies that there are, and has them compared with the logbook now. */
void BackupsDialog::list()
{
    if (m_isRestoring)
        return; // the dialog goes
    const QString chosen = m_shown;
    m_shown.clear();
    m_holds->clear();
    m_differences->clear();
    m_present = m_logbook.catalogue();
    const std::optional<QList<Copy>> copies = Backups::listed(m_folder);
    m_copies->show(copies.value_or(QList<Copy>()));
    if (!m_present)
        say(tr("The logbook cannot be read now. Free some space, and try again."));
    else if (!copies)
        say(tr("The copies in “%1” cannot be listed.").arg(m_folder.backups().path()));
    else
        say(copies->isEmpty() ? tr("There is no copy yet.") : QString());
    m_isStopped = !m_present;
    if (m_present)
        m_reader->read(copies.value_or(QList<Copy>()));
    m_table->selectRow(qMax(0, m_copies->rowOf(chosen)));
    refresh();
    QTimer::singleShot(Moment, this, &BackupsDialog::showProgress);
}

void BackupsDialog::take(const Copy &copy, const Backups::Held &held)
{
    const bool isCurrent = m_copies->rowOf(copy.name) == m_table->currentIndex().row();
    if (held.problem.isEmpty())
        compare(copy, held);
    else
        m_copies->setProblem(copy.name, held.problem);
    if (!held.problem.isEmpty() && isCurrent)
        choose(m_copies->rowOf(copy.name));
    m_reader->goOn();
    refresh();
}

/** One copy at a time: none takes longer than the window's own reading, and other events happen between. */
void BackupsDialog::compare(const Copy &copy, const Backups::Held &held)
{
    const CatalogueFile::Loaded loaded = CatalogueFile::load(held.document);
    if (!loaded.problem.isEmpty() || !m_present) {
        stop();
        return say(
            tr("The copies cannot be compared: %1. Free some space, and try again.").arg(loaded.problem));
    }
    const Difference difference = differenceOf(loaded.catalogue, *m_present);
    m_copies->setDifference(copy.name, DifferenceTexts::inWords(difference));
    if (m_copies->rowOf(copy.name) != m_table->currentIndex().row())
        return;
    m_shown = copy.name;
    m_holds->setText(
        tr("The copy of %1 holds %2.").arg(madeOn(copy), DifferenceTexts::contents(loaded.catalogue)));
    m_differences->show(std::make_shared<const Catalogue>(loaded.catalogue), m_present, difference);
}

void BackupsDialog::choose(int row)
{
    m_shown.clear();
    m_differences->clear();
    m_holds->setText(row < 0 || m_copies->isWhole(row)
                         ? QString()
                         : tr("This copy cannot be restored: %1.").arg(m_copies->problem(row)));
    if (row >= 0 && m_present && m_copies->isWhole(row))
        m_reader->readNext(m_copies->copy(row));
    refresh();
}

void BackupsDialog::refresh()
{
    const int row = m_table->currentIndex().row();
    const bool isShown = row >= 0 && m_copies->copy(row).name == m_shown;
    m_restore->setEnabled(isShown && m_logbook.mayChange());
    m_progress->setRange(0, m_copies->rowCount());
    m_progress->setValue(m_copies->known());
    if (m_isStopped || m_copies->known() == m_copies->rowCount())
        m_work->hide();
}

void BackupsDialog::showProgress()
{
    m_work->setVisible(!m_isStopped && m_copies->known() < m_copies->rowCount());
}

/** A copy that is chosen later is compared all the same. */
void BackupsDialog::stop()
{
    m_isStopped = true;
    m_reader->read({});
    refresh();
}

void BackupsDialog::say(const QString &text)
{
    m_message->setText(breakable(text));
    m_message->setAccessibleName(text);
    m_message->setVisible(!text.isEmpty());
}

void BackupsDialog::accept()
{
    const int row = m_table->currentIndex().row();
    if (!m_restore->isEnabled() || row < 0)
        return;
    const Copy copy = m_copies->copy(row);
    const Backups::Held held = Backups::held(m_folder, copy); // it may have changed since
    if (!held.problem.isEmpty()) {
        m_copies->setProblem(copy.name, held.problem);
        choose(row);
        return say(tr("This copy is not whole any more: %1. Choose another one.").arg(held.problem));
    }
    stop();
    m_isRestoring = true;
    const OpenLogbook::Restored restored = m_logbook.restore(held);
    m_isRestoring = false;
    if (restored.isThere)
        return say(tr("The logbook is as in this copy already. Nothing was changed."));
    if (!restored.problem.isEmpty()) {
        list();
        return say(restored.problem);
    }
    m_report = tr("The copy of %1 is restored. “Undo” in the menu Edit takes that back.").arg(madeOn(copy));
    if (const QString lost = CopyRestoring::besideLost(held); !lost.isEmpty())
        m_report += u' ' + lost;
    QDialog::accept();
}

} // namespace Host
