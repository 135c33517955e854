// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightdialog.h"

#include "host/data/edits.h"
#include "host/data/sources.h"
#include "host/window/flightedits.h"
#include "host/window/flightfields.h"
#include "host/window/openlogbook.h"
#include "host/window/questions.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

namespace Host {
namespace {

constexpr double HundredthsOfAnAmpere = 100.0;

} // namespace

FlightDialog::FlightDialog(std::shared_ptr<const Catalogue> catalogue, OpenLogbook &logbook,
                           Questions &questions, QWidget *parent)
    : QDialog(parent)
    , m_catalogue(std::move(catalogue))
    , m_logbook(logbook)
    , m_questions(questions)
    , m_model(FlightFields::chooser(FlightFields::names(m_catalogue->models)))
    , m_time(FlightFields::time())
    , m_duration(FlightFields::duration())
    , m_battery(FlightFields::chooser(QStringList(tr("None")) + FlightFields::names(m_catalogue->batteries)))
    , m_discharged(FlightFields::discharged())
    , m_current(FlightFields::current())
    , m_location(FlightFields::location(*m_catalogue))
    , m_temperature(FlightFields::temperature())
    , m_notes(FlightFields::notes())
{
    setWindowTitle(tr("Add a Flight"));
    FlightFields::setMoment(*m_time, QDateTime::currentDateTime());
    m_location->setCurrentIndex(m_catalogue->locations.isEmpty() ? -1 : 0);
    m_discharged->setSuffix(tr(" mAh"));
    m_current->setSuffix(tr(" A"));
    m_temperature->setSuffix(tr(" °C"));
    m_discharged->setAccessibleDescription(m_discharged->suffix().trimmed());
    m_current->setAccessibleDescription(m_current->suffix().trimmed());
    m_temperature->setAccessibleDescription(m_temperature->suffix().trimmed());
    buildLayout();
    connect(m_battery, &QComboBox::currentIndexChanged, this, &FlightDialog::offerBattery);
    offerBattery();
}

void FlightDialog::buildLayout()
{
    auto *fields = new QWidget;
    auto *form = new QFormLayout(fields);
    const auto add = [form](const QString &caption, QWidget *field) {
        form->addRow(caption, field);
        field->setAccessibleName(static_cast<QLabel *>(form->labelForField(field))->text().remove(u'&'));
    };
    add(tr("&Model"), m_model);
    add(tr("&Time"), m_time);
    add(tr("&Duration"), m_duration);
    add(tr("&Battery"), m_battery);
    add(tr("D&ischarged"), m_discharged);
    add(tr("Maximum &current"), m_current);
    add(tr("&Location"), m_location);
    m_location->lineEdit()->setAccessibleName(m_location->accessibleName());
    add(tr("Tem&perature"), m_temperature);
    add(tr("&Notes"), m_notes);
    m_notes->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    auto *area = new QScrollArea; // at 200 % it is higher than some screens
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it follows its fields
    area->setWidget(fields);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(tr("Add"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &FlightDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->setFocusProxy(
        nullptr); // with its own, Tab would leave out what comes before the first that accepts
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(area);
    layout->addWidget(buttons);
}

/** Presets what a capture would, which is then known as guessed. */
void FlightDialog::offerBattery()
{
    const int battery = m_battery->currentIndex() - 1;
    m_discharged->setEnabled(battery >= 0);
    m_current->setEnabled(battery >= 0);
    const Battery chosen = battery >= 0 ? m_catalogue->batteries.at(battery) : Battery();
    m_discharged->setValue(static_cast<int>(presetDischarge(chosen)));
    m_current->setValue(presetCurrent(chosen) / HundredthsOfAnAmpere);
}

QString FlightDialog::add(Catalogue &catalogue)
{
    const int model = m_model->currentIndex();
    const int battery = m_battery->currentIndex() - 1;
    const bool isThere =
        FlightFields::names(catalogue.models) == FlightFields::names(m_catalogue->models) &&
        FlightFields::names(catalogue.batteries) == FlightFields::names(m_catalogue->batteries);
    if (!isThere || model < 0)
        return FlightEdits::changedMeanwhile();
    const Flight flight{timeOf(m_time->date(), m_time->time()), m_duration->time(), m_location->currentText(),
                        m_temperature->value(), m_notes->toPlainText()};
    std::optional<Edits::NewDischarge> discharge;
    if (battery >= 0)
        discharge =
            Edits::NewDischarge{battery, static_cast<unsigned int>(m_discharged->value()),
                                static_cast<unsigned int>(qRound(m_current->value() * HundredthsOfAnAmpere))};
    m_added = {model, catalogue.models.at(model).log.size()};
    return Edits::addFlight(catalogue, model, flight, discharge);
}

void FlightDialog::accept()
{
    const QString problem =
        m_logbook.change(tr("Flight added"), [this](Catalogue &catalogue) { return add(catalogue); });
    if (problem.isEmpty())
        QDialog::accept();
    else
        m_questions.tell(problem);
}

} // namespace Host
