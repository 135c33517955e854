// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/columnsdialog.h"

#include "host/exchange/radiologcolumns.h"
#include "host/window/breakable.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Whether a column of the log can be of this kind: by its unit or, without one, because it holds numbers. */
bool isOffered(const RadioLog &log, qsizetype column, size_t kind)
{
    const QString &name = log.columns.at(column);
    if (name.isEmpty() || !LogColumns::mayBe(static_cast<LogColumns::Kind>(kind), name))
        return false;
    return !unitOf(name).isEmpty() ||
           std::any_of(log.samples.cbegin(), log.samples.cend(), [column](const QStringList &sample) {
               return !std::isnan(logNumber(sample.at(column).toUtf8()));
           });
}

QTableWidgetItem *shown(const QString &text)
{
    auto *item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return item;
}

} // namespace

ColumnsDialog::ColumnsDialog(const RadioLog &log, const QString &name, int others, QWidget *parent)
    : QDialog(parent)
    , m_hint(new QLabel)
{
    setWindowTitle(tr("Columns of a Radio Log"));
    const QString files =
        others == 0 ? tr("“%1” has columns that are not known.").arg(name)
        : others == 1
            ? tr("“%1” and 1 more log have columns that are not known.").arg(name)
            : tr("“%1” and %n more logs have columns that are not known.", nullptr, others).arg(name);
    const QString text =
        tr("%1 Choose those that tell of the battery, or “None”. Your choice is remembered for all logs with "
           "these columns.")
            .arg(files);
    auto *introduction = new QLabel(breakable(text));
    introduction->setAccessibleName(text);
    introduction->setTextFormat(Qt::PlainText);
    introduction->setWordWrap(true);
    auto *form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    const std::array present{log.mapping.consumed, log.mapping.current, log.mapping.volts};
    const std::array captions{tr("C&onsumption (mAh):"), tr("C&urrent (A):"), tr("&Volts of the battery:")};
    for (size_t kind = 0; kind < m_choices.size(); ++kind) {
        m_choices.at(kind) = makeChoice(log, kind, present.at(kind));
        form->addRow(captions.at(kind), m_choices.at(kind)); // makes the caption its buddy, and its name
    }
    auto *samplesCaption = new QLabel(tr("Some &values of this log:"));
    QWidget *samples = makeSamples(log);
    samplesCaption->setBuddy(samples);
    m_hint->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_use = buttons->addButton(tr("Use &These"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->setFocusProxy(nullptr); // with its own, Tab would leave out what comes before the first button
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(introduction);
    layout->addLayout(form);
    layout->addWidget(samplesCaption);
    layout->addWidget(samples, 1);
    layout->addWidget(m_hint);
    layout->addWidget(buttons);
    refresh();
    const QSize most = screen()->availableSize() * 9 / 10;
    resize(QSize(fontMetrics().averageCharWidth() * 75, fontMetrics().lineSpacing() * 24).boundedTo(most));
}

QComboBox *ColumnsDialog::makeChoice(const RadioLog &log, size_t kind, const QString &present)
{
    auto *choice = new QComboBox;
    QStringList names;
    for (qsizetype column = 0; column < log.columns.size(); ++column) {
        if (isOffered(log, column, kind))
            names.append(log.columns.at(column));
    }
    if (!present.isEmpty())
        names.prepend(present); // two that are added are no column of the log
    names.removeDuplicates();
    choice->addItem(tr("None"));
    for (const QString &name : std::as_const(names))
        choice->addItem(name, name);
    choice->setCurrentIndex(std::max(0, choice->findData(present)));
    connect(choice, &QComboBox::currentIndexChanged, this, &ColumnsDialog::refresh);
    return choice;
}

QWidget *ColumnsDialog::makeSamples(const RadioLog &log)
{
    const int rows = static_cast<int>(log.columns.size());
    const int samples = static_cast<int>(log.samples.size());
    auto *table = new QTableWidget(rows, samples + 1);
    QStringList titles{tr("Column")};
    for (int sample = 1; sample <= samples; ++sample)
        titles.append(tr("Value %1").arg(sample));
    table->setHorizontalHeaderLabels(titles);
    for (int row = 0; row < rows; ++row) {
        table->setItem(row, 0, shown(log.columns.at(row)));
        for (int sample = 0; sample < samples; ++sample) {
            QTableWidgetItem *item = shown(log.samples.at(sample).at(row));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            table->setItem(row, sample + 1, item);
        }
    }
    table->setAccessibleName(tr("Some values of this log"));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setAlternatingRowColors(true);
    table->setTabKeyNavigation(false); // Tab leads on to the buttons
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setHighlightSections(false);
    table->resizeColumnsToContents();
    return table;
}

QString ColumnsDialog::chosen(size_t kind) const
{
    return m_choices.at(kind)->currentData().toString();
}

ColumnMapping ColumnsDialog::mapping() const
{
    return {chosen(LogColumns::Consumed), chosen(LogColumns::Current), chosen(LogColumns::Volts)};
}

/** A column tells one thing only. */
void ColumnsDialog::refresh()
{
    QStringList names;
    for (size_t kind = 0; kind < m_choices.size(); ++kind) {
        if (m_choices.at(kind) && !chosen(kind).isEmpty())
            names.append(chosen(kind));
    }
    const bool isTwice = names.removeDuplicates() > 0;
    m_hint->setText(isTwice ? tr("One column cannot tell two things.") : QString());
    m_hint->setVisible(isTwice);
    if (m_use)
        m_use->setEnabled(!isTwice);
}

} // namespace Host
