// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/filterbar.h"

#include "host/data/edits.h"
#include "host/window/flightfields.h"
#include "host/window/flowlayout.h"

#include <QCheckBox>
#include <QCollator>
#include <QDateEdit>
#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <algorithm>

namespace Host {

FilterBar::FilterBar(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLineEdit)
    , m_model(makeChooser())
    , m_battery(makeChooser())
    , m_location(makeChooser())
{
    auto *flow = new FlowLayout(this);
    flow->setContentsMargins(0, 0, 0, 0);
    m_text->setClearButtonEnabled(true);
    m_text->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    flow->addWidget(m_text);
    connect(m_text, &QLineEdit::textChanged, this, &FilterBar::changed);
    for (QComboBox *chooser : {m_model, m_battery, m_location})
        flow->addWidget(chooser);
    addDate(m_isFrom, m_from);
    addDate(m_isTo, m_to);
    retranslate();
    m_from->setDate(QDate::currentDate().addMonths(-1));
    m_to->setDate(QDate::currentDate());
}

void FilterBar::retranslate()
{
    m_text->setPlaceholderText(tr("Search flights"));
    m_text->setAccessibleName(tr("Search flights"));
    const auto nameChooser = [](QComboBox *chooser, const QString &name, const QString &all) {
        chooser->setAccessibleName(name);
        chooser->setToolTip(name);
        chooser->setItemText(0, all);
        chooser->setMinimumContentsLength(
            qMax(chooser->minimumContentsLength(), static_cast<int>(all.size())));
    };
    nameChooser(m_model, tr("Only flights of the model"), tr("All models"));
    nameChooser(m_battery, tr("Only flights with the battery"), tr("All batteries"));
    nameChooser(m_location, tr("Only flights at the location"), tr("All locations"));
    m_isFrom->setText(tr("From"));
    m_from->setAccessibleName(tr("From"));
    m_isTo->setText(tr("To"));
    m_to->setAccessibleName(tr("To"));
}

void FilterBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

/** The first entry stands for all of them. */
QComboBox *FilterBar::makeChooser()
{
    QComboBox *chooser = FlightFields::chooser({QString()});
    connect(chooser, &QComboBox::currentIndexChanged, this, [this] {
        if (!m_offering)
            Q_EMIT changed();
    });
    return chooser;
}

/** A date that counts when its box is ticked. */
void FilterBar::addDate(QCheckBox *&box, QDateEdit *&edit)
{
    auto *pair = new QWidget;
    auto *row = new QHBoxLayout(pair);
    row->setContentsMargins(0, 0, 0, 0);
    box = new QCheckBox;
    edit = FlightFields::date();
    edit->setEnabled(false);
    row->addWidget(box);
    row->addWidget(edit);
    layout()->addWidget(pair);
    connect(box, &QCheckBox::toggled, edit, &QWidget::setEnabled);
    connect(box, &QCheckBox::toggled, this, &FilterBar::changed);
    connect(edit, &QDateEdit::dateChanged, this, &FilterBar::changed);
}

void FilterBar::offer(const Catalogue &catalogue)
{
    const FlightFilter before = filter();
    {
        const QScopedValueRollback offering(m_offering, true);
        setOffer(m_model, FlightFields::names(catalogue.models));
        setOffer(m_battery, FlightFields::names(catalogue.batteries));
        setOffer(m_location, Edits::locationNames(catalogue));
    }
    if (!(filter() == before))
        Q_EMIT changed();
}

void FilterBar::setOffer(QComboBox *chooser, QStringList names)
{
    const QString chosen = chooser->currentIndex() > 0 ? chooser->currentText() : QString();
    names.removeDuplicates();
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(names.begin(), names.end(), collator);
    while (chooser->count() > 1)
        chooser->removeItem(1);
    chooser->addItems(names);
    chooser->setCurrentIndex(chosen.isEmpty() ? 0 : 1 + static_cast<int>(names.indexOf(chosen)));
}

FlightFilter FilterBar::filter() const
{
    const auto chosen = [](const QComboBox *chooser) {
        return chooser->currentIndex() > 0 ? std::optional(chooser->currentText()) : std::nullopt;
    };
    return {m_text->text(),
            chosen(m_model),
            chosen(m_battery),
            chosen(m_location),
            m_isFrom->isChecked() ? m_from->date() : QDate(),
            m_isTo->isChecked() ? m_to->date() : QDate()};
}

void FilterBar::clear()
{
    m_text->clear();
    for (QComboBox *chooser : {m_model, m_battery, m_location})
        chooser->setCurrentIndex(0);
    m_isFrom->setChecked(false);
    m_isTo->setChecked(false);
}

} // namespace Host
