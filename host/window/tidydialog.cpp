// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/tidydialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace Host {
namespace {

QString describe(const Catalogue &catalogue, const Edits::Double &twice)
{
    const Model &model = catalogue.models.at(twice.kept.model);
    const QDateTime first = model.log.at(twice.kept.flight).time;
    const QDateTime second = model.log.at(twice.removed.flight).time;
    return TidyDialog::tr("%1: %2, and again at %3")
        .arg(model.name, first.toString(u"yyyy-MM-dd HH:mm:ss"), second.toString(u"HH:mm:ss"));
}

} // namespace

TidyDialog::TidyDialog(const Catalogue &catalogue, const QList<Edits::Double> &doubles, QWidget *parent)
    : QDialog(parent)
    , m_doubles(doubles)
    , m_list(new QListWidget)
{
    setWindowTitle(tr("Tidy Up"));
    auto *text =
        new QLabel(tr("These flights stand &twice, as a card leaves them that was clicked twice. The "
                      "second one of each that is ticked is removed, with its discharge and the cycle "
                      "of its battery."));
    text->setWordWrap(true);
    text->setBuddy(m_list);
    m_list->setAccessibleName(tr("Flights that stand twice"));
    for (const Edits::Double &twice : doubles) {
        auto *item = new QListWidgetItem(describe(catalogue, twice), m_list);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    m_list->setCurrentRow(0);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(tr("Remove"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->setFocusProxy(
        nullptr); // with its own, Tab would leave out what comes before the first that accepts
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
}

QList<FlightPlace> TidyDialog::chosen() const
{
    QList<FlightPlace> places;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->checkState() == Qt::Checked)
            places.append(m_doubles.at(row).removed);
    }
    return places;
}

} // namespace Host
