// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightform.h"

#include "host/window/flightfields.h"
#include "host/window/flightsmodel.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace Host {
namespace {

QString captionOf(int column)
{
    switch (column) {
    case FlightsModel::Time:
        return FlightForm::tr("&Time");
    case FlightsModel::ModelName:
        return FlightForm::tr("&Model");
    case FlightsModel::Batteries:
        return FlightForm::tr("&Battery");
    case FlightsModel::Duration:
        return FlightForm::tr("&Duration");
    case FlightsModel::Discharged:
        return FlightForm::tr("D&ischarged");
    case FlightsModel::Current:
        return FlightForm::tr("Maximum &current");
    case FlightsModel::Location:
        return FlightForm::tr("&Location");
    case FlightsModel::Temperature:
        return FlightForm::tr("Tem&perature");
    default:
        return FlightForm::tr("&Notes");
    }
}

/** As it follows a number. */
QString unitOf(int column)
{
    switch (column) {
    case FlightsModel::Discharged:
        return FlightForm::tr(" mAh");
    case FlightsModel::Current:
        return FlightForm::tr(" A");
    case FlightsModel::Temperature:
        return FlightForm::tr(" °C");
    default:
        return QString();
    }
}

} // namespace

FlightForm::FlightForm(QDialog &dialog, const QString &command)
{
    auto *fields = new QWidget;
    m_fields = new QFormLayout(fields);
    auto *area = new QScrollArea; // at 200 % it is higher than some screens
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it follows its fields
    area->setWidget(fields);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(command, QDialogButtonBox::AcceptRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    buttons->setFocusProxy(
        nullptr); // with its own, Tab would leave out what comes before the first that accepts
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(area);
    layout->addWidget(buttons);
}

void FlightForm::add(int column, QWidget &field)
{
    QString caption = captionOf(column);
    const QString unit = unitOf(column);
    if (auto *whole = qobject_cast<QSpinBox *>(&field)) {
        whole->setSuffix(unit);
        whole->setAccessibleDescription(unit.trimmed());
    } else if (auto *decimal = qobject_cast<QDoubleSpinBox *>(&field)) {
        decimal->setSuffix(unit);
        decimal->setAccessibleDescription(unit.trimmed());
    } else if (!unit.isEmpty()) {
        caption = tr("%1 (%2)").arg(caption, unit.trimmed());
    } else if (auto *notes = qobject_cast<QPlainTextEdit *>(&field)) {
        notes->setMinimumHeight(notes->fontMetrics().lineSpacing() * 3);
    }
    m_fields->addRow(caption, &field);
    field.setAccessibleName(caption.remove(u'&'));
    if (auto *chooser = qobject_cast<QComboBox *>(&field); chooser && chooser->isEditable())
        chooser->lineEdit()->setAccessibleName(caption);
}

} // namespace Host
