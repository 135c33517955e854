// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/movedialog.h"

#include "host/window/flightedits.h"
#include "host/window/flightfields.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSet>

#include <algorithm>

namespace Host {
namespace {

/** The batteries that have a discharge at the time of one of these flights. */
QList<qsizetype> batteriesOf(const Catalogue &catalogue, const QList<FlightPlace> &places)
{
    const Moments moments(catalogue);
    QSet<qsizetype> batteries;
    for (const FlightPlace &place : places) {
        const qint64 moment = momentOf(catalogue.models.at(place.model).log.at(place.flight).time);
        const QList<DischargePlace> discharges = moments.dischargesAt(moment);
        for (const DischargePlace &discharge : discharges)
            batteries.insert(discharge.battery);
    }
    QList<qsizetype> sorted(batteries.cbegin(), batteries.cend());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

} // namespace

MoveDialog::MoveDialog(const Catalogue &catalogue, const QList<FlightPlace> &places, QWidget *parent)
    : QDialog(parent)
    , m_model(FlightFields::chooser(QStringList(tr("(Stay)")) + FlightFields::names(catalogue.models)))
    , m_from(FlightFields::chooser({}))
    , m_to(FlightFields::chooser(QStringList(tr("(Stay)")) + FlightFields::names(catalogue.batteries)))
{
    setWindowTitle(tr("Move Flights"));
    const QList<qsizetype> batteries = batteriesOf(catalogue, places);
    for (const qsizetype battery : batteries)
        m_from->addItem(catalogue.batteries.at(battery).name, battery);
    m_from->setEnabled(batteries.size() > 1);
    m_to->setEnabled(!batteries.isEmpty());
    auto *form = new QFormLayout(this);
    const auto add = [form](const QString &caption, QWidget *field) {
        form->addRow(caption, field);
        field->setAccessibleName(static_cast<QLabel *>(form->labelForField(field))->text().remove(u'&'));
    };
    add(tr("To the &model"), m_model);
    add(tr("&Discharges of the battery"), m_from);
    add(tr("To the &battery"), m_to);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(tr("Move"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->setFocusProxy(
        nullptr); // with its own, Tab would leave out what comes before the first that accepts
    form->addRow(buttons);
}

QString MoveDialog::apply(Catalogue &catalogue, QList<FlightPlace> &places) const
{
    if (m_to->currentIndex() > 0) {
        const QString problem = FlightEdits::moveDischarges(
            catalogue, places, m_from->currentData().value<qsizetype>(), m_to->currentIndex() - 1);
        if (!problem.isEmpty())
            return problem;
    }
    return m_model->currentIndex() > 0 ? Edits::moveFlights(catalogue, places, m_model->currentIndex() - 1)
                                       : QString();
}

} // namespace Host
