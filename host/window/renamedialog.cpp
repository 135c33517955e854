// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/renamedialog.h"

#include "host/data/edits.h"
#include "host/window/flightedits.h"
#include "host/window/flightfields.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace Host {

void renameRecord(OpenLogbook &logbook, Questions &questions, QWidget *parent)
{
    if (const std::shared_ptr<const Catalogue> catalogue = logbook.catalogue())
        RenameDialog(catalogue, logbook, questions, parent).exec();
}

RenameDialog::RenameDialog(std::shared_ptr<const Catalogue> catalogue, OpenLogbook &logbook,
                           Questions &questions, QWidget *parent)
    : QDialog(parent)
    , m_catalogue(std::move(catalogue))
    , m_logbook(logbook)
    , m_questions(questions)
    , m_kind(FlightFields::chooser({tr("Battery"), tr("Model"), tr("Location")}))
    , m_record(FlightFields::chooser({}))
    , m_name(new QLineEdit)
    , m_remark(new QLabel)
{
    setWindowTitle(tr("Rename"));
    auto *form = new QFormLayout(this);
    const auto add = [form](const QString &caption, QWidget *field) {
        form->addRow(caption, field);
        field->setAccessibleName(static_cast<QLabel *>(form->labelForField(field))->text().remove(u'&'));
    };
    add(tr("&What"), m_kind);
    add(tr("&Present name"), m_record);
    add(tr("&New name"), m_name);
    form->addRow(m_remark);
    m_remark->setWordWrap(true);
    m_remark->setTextFormat(Qt::PlainText);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    m_do = buttons->addButton(tr("Rename"), QDialogButtonBox::AcceptRole);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &RenameDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->setFocusProxy(
        nullptr); // with its own, Tab would leave out what comes before the first that accepts
    connect(m_kind, &QComboBox::currentIndexChanged, this, &RenameDialog::offerRecords);
    connect(m_record, &QComboBox::currentIndexChanged, this, &RenameDialog::offerName);
    offerRecords();
}

QStringList RenameDialog::names(const Catalogue &catalogue) const
{
    switch (m_kind->currentIndex()) {
    case OfBattery:
        return FlightFields::names(catalogue.batteries);
    case OfModel:
        return FlightFields::names(catalogue.models);
    default:
        return Edits::locationNames(catalogue);
    }
}

void RenameDialog::offerRecords()
{
    m_record->clear();
    m_record->addItems(names(*m_catalogue));
    offerName();
}

void RenameDialog::offerName()
{
    const QString name = m_record->currentText();
    const bool isAny = m_record->count() > 0;
    m_name->setText(name);
    m_name->selectAll();
    m_name->setEnabled(isAny);
    m_do->setEnabled(isAny);
    const bool isShared = names(*m_catalogue).count(name) > 1;
    if (!isAny)
        m_remark->setText(tr("There is none yet."));
    else if (isShared)
        m_remark->setText(
            tr("There are several of this name. Only the chosen one is renamed; models and flights "
               "that name it keep the other."));
    else
        m_remark->setText(tr("It is renamed everywhere at once."));
}

QString RenameDialog::stepName() const
{
    const QString name = m_record->currentText();
    switch (m_kind->currentIndex()) {
    case OfBattery:
        return tr("Battery %1 renamed").arg(name);
    case OfModel:
        return tr("Model %1 renamed").arg(name);
    default:
        return tr("Location %1 renamed").arg(name);
    }
}

QString RenameDialog::rename(Catalogue &catalogue) const
{
    if (names(catalogue) != names(*m_catalogue))
        return FlightEdits::changedMeanwhile();
    const int record = m_record->currentIndex();
    switch (m_kind->currentIndex()) {
    case OfBattery:
        return Edits::renameBattery(catalogue, record, m_name->text());
    case OfModel:
        return Edits::renameModel(catalogue, record, m_name->text());
    default:
        return Edits::renameLocation(catalogue, record, m_name->text());
    }
}

void RenameDialog::accept()
{
    const QString problem =
        m_logbook.change(stepName(), [this](Catalogue &catalogue) { return rename(catalogue); });
    if (problem.isEmpty()) {
        QDialog::accept();
        return;
    }
    m_questions.tell(problem);
    m_name->setFocus();
    m_name->selectAll();
}

} // namespace Host
