// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/mergedialog.h"

#include <QDialogButtonBox>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int WidestColumn = 40; // in characters; a long note would leave the rows no height

QString describe(const MergeConflict &conflict)
{
    const QString time = conflict.time.isValid() ? conflict.time.toString(u"yyyy-MM-dd HH:mm:ss"_s)
                                                 : MergeDialog::tr("without a time");
    switch (conflict.record) {
    case MergeConflict::OfBattery:
        return MergeDialog::tr("Battery %1").arg(conflict.name);
    case MergeConflict::OfModel:
        return MergeDialog::tr("Model %1").arg(conflict.name);
    case MergeConflict::OfDischarge:
        return MergeDialog::tr("Discharge of %1, %2").arg(conflict.name, time);
    default:
        return MergeDialog::tr("Flight of %1, %2").arg(conflict.name, time);
    }
}

QString captionOf(const QString &field)
{
    const QHash<QString, QString> captions{{u"capacity_mAh"_s, MergeDialog::tr("Capacity (mAh)")},
                                           {u"discharge_rating_C"_s, MergeDialog::tr("Discharge rating (C)")},
                                           {u"charge_rating_C"_s, MergeDialog::tr("Charge rating (C)")},
                                           {u"purchased"_s, MergeDialog::tr("Purchased")},
                                           {u"cycles"_s, MergeDialog::tr("Cycles")},
                                           {u"charged"_s, MergeDialog::tr("Charged")},
                                           {u"last_use"_s, MergeDialog::tr("Last use")},
                                           {u"discharged_mAh"_s, MergeDialog::tr("Discharged (mAh)")},
                                           {u"max_current_A"_s, MergeDialog::tr("Maximum current (A)")},
                                           {u"type"_s, MergeDialog::tr("Type")},
                                           {u"weight"_s, MergeDialog::tr("Weight")},
                                           {u"size"_s, MergeDialog::tr("Size")},
                                           {u"flights"_s, MergeDialog::tr("Flights")},
                                           {u"notes"_s, MergeDialog::tr("Notes")},
                                           {u"last_update"_s, MergeDialog::tr("Last update")},
                                           {u"duration_s"_s, MergeDialog::tr("Duration (s)")},
                                           {u"location"_s, MergeDialog::tr("Location")},
                                           {u"temperature_C"_s, MergeDialog::tr("Temperature (°C)")}};
    return captions.value(field, field);
}

QString shown(const MergeConflict &conflict, const QJsonValue &value)
{
    const bool isTime = conflict.field == "last_use"_L1 || conflict.field == "last_update"_L1;
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool() ? MergeDialog::tr("yes") : MergeDialog::tr("no");
    case QJsonValue::Double:
        return QLocale().toString(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    case QJsonValue::String:
        return isTime ? value.toString().replace(u'T', u' ') : value.toString();
    default:
        return MergeDialog::tr("none");
    }
}

QString listed(const MergeCounts &counts)
{
    QStringList parts;
    const auto add = [&parts](int count, const QString &text) {
        if (count > 0)
            parts.append(text);
    };
    add(counts.batteries, MergeDialog::tr("batteries: %1").arg(counts.batteries));
    add(counts.models, MergeDialog::tr("models: %1").arg(counts.models));
    add(counts.locations, MergeDialog::tr("locations: %1").arg(counts.locations));
    add(counts.discharges, MergeDialog::tr("discharges: %1").arg(counts.discharges));
    add(counts.flights, MergeDialog::tr("flights: %1").arg(counts.flights));
    return parts.join(u", "_s);
}

QLabel *paragraph(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

QString MergeDialog::summary(const Merge &plan)
{
    QStringList sentences;
    if (plan.added.sum() > 0)
        sentences.append(tr("Added are %1.").arg(listed(plan.added)));
    if (plan.removed.sum() > 0)
        sentences.append(tr("Removed, as they were there, are %1.").arg(listed(plan.removed)));
    if (plan.changed > 0)
        sentences.append(tr("Values changed: %1.").arg(plan.changed));
    return sentences.join(u' ');
}

MergeDialog::MergeDialog(const Merge &plan, bool hasAncestor, const QString &name, QWidget *parent)
    : QDialog(parent)
    , m_conflicts(new QTableWidget)
{
    setWindowTitle(tr("Merge"));
    auto *layout = new QVBoxLayout(this);
    const QString summed = summary(plan);
    const bool isNothing = summed.isEmpty() && plan.conflicts.isEmpty();
    layout->addWidget(paragraph(
        tr("“%1” is another version of this logbook, which was changed on another computer.").arg(name)));
    if (!summed.isEmpty())
        layout->addWidget(paragraph(summed));
    if (isNothing)
        layout->addWidget(paragraph(tr("This logbook holds everything that it holds.")));
    if (!hasAncestor && !isNothing)
        layout->addWidget(paragraph(tr("No earlier version was found that both come from. So nothing is "
                                       "removed, and you choose wherever the two differ.")));
    auto *choice = new QLabel(tr("Both have changed these &values. Tick those that are to be the other "
                                 "version’s; the others stay as they are in this logbook."));
    choice->setWordWrap(true);
    choice->setBuddy(m_conflicts);
    layout->addWidget(choice);
    layout->addWidget(m_conflicts, 1);
    fill(plan.conflicts);
    choice->setVisible(!plan.conflicts.isEmpty());
    m_conflicts->setVisible(!plan.conflicts.isEmpty());
    layout->addWidget(
        paragraph(tr("The other version is then kept among the copies of the logbook, and Undo in the menu "
                     "Edit takes the merge back.")));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(isNothing ? tr("Put Aside") : tr("Merge"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->setFocusProxy(
        nullptr); // with its own, Tab would leave out what comes before the first that accepts
    layout->addWidget(buttons);
}

void MergeDialog::fill(const QList<MergeConflict> &conflicts)
{
    m_conflicts->setAccessibleName(tr("Values that both have changed"));
    m_conflicts->setColumnCount(4);
    m_conflicts->setHorizontalHeaderLabels(
        {tr("Take the other’s"), tr("Value"), tr("This logbook"), tr("Other version")});
    m_conflicts->setRowCount(static_cast<int>(conflicts.size()));
    m_conflicts->verticalHeader()->hide();
    m_conflicts->setTabKeyNavigation(false);
    m_conflicts->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_conflicts->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (int row = 0; row < m_conflicts->rowCount(); ++row) {
        const MergeConflict &conflict = conflicts.at(row);
        const QStringList texts{describe(conflict), captionOf(conflict.field), shown(conflict, conflict.ours),
                                shown(conflict, conflict.theirs)};
        for (int column = 0; column < texts.size(); ++column) {
            auto *item = new QTableWidgetItem(texts.at(column));
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            item->setToolTip(texts.at(column)); // a note may be longer than its column
            m_conflicts->setItem(row, column, item);
        }
        m_conflicts->item(row, 0)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable |
                                            Qt::ItemIsUserCheckable);
        m_conflicts->item(row, 0)->setCheckState(Qt::Unchecked);
    }
    m_conflicts->horizontalHeader()->setMaximumSectionSize(fontMetrics().averageCharWidth() * WidestColumn);
    m_conflicts->resizeColumnsToContents();
    m_conflicts->horizontalHeader()->setStretchLastSection(true);
    m_conflicts->setCurrentCell(0, 0);
    // As wide as its columns are, so that the dialog shows all of them where the screen has the room.
    m_conflicts->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
}

QSet<qsizetype> MergeDialog::chosen() const
{
    QSet<qsizetype> chosen;
    for (int row = 0; row < m_conflicts->rowCount(); ++row) {
        if (m_conflicts->item(row, 0)->checkState() == Qt::Checked)
            chosen.insert(row);
    }
    return chosen;
}

} // namespace Host
