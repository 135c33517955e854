// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/healthview.h"

#include "host/window/healthmodel.h"
#include "host/window/tablecolumns.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace Host {
namespace {

constexpr int FewestRows = 3; // in a low window

} // namespace

HealthView::HealthView(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel)
    , m_table(new QTableView)
    , m_model(new HealthModel(this))
{
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setAlternatingRowColors(true);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    QHeaderView *header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(HealthModel::Quantity, QHeaderView::Stretch);
    m_table->verticalHeader()->setMinimumSectionSize(0); // as low as its text
    m_table->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_table->hide(); // until there is something to show
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addWidget(m_table);
    retranslate();
}

void HealthView::retranslate()
{
    m_table->setAccessibleName(tr("Measured values of the battery"));
    TableColumns::retitle(*m_table);
}

void HealthView::setBattery(const Battery &battery, const Measured &measured)
{
    const MeasuredFigures figures = measuredFigures(battery, measured);
    m_model->setFigures(figures);
    m_text->setText(healthTexts(battery, figures).join(u'\n'));
    m_table->setVisible(figures.flights > 0);
    makeRoom();
}

/** Another width asks for another height. */
bool HealthView::event(QEvent *event)
{
    const bool isHandled = QWidget::event(event);
    if (event->type() == QEvent::Show || event->type() == QEvent::Resize)
        makeRoom();
    else if (event->type() == QEvent::LanguageChange)
        retranslate();
    return isHandled;
}

/** All lines are in sight, which a layout does not see to where a text wraps; and all rows where there is
 * room for them. */
void HealthView::makeRoom()
{
    if (!isVisible())
        return; // its width is none yet
    m_text->setMinimumHeight(std::max(m_text->heightForWidth(width()), 0));
    m_table->resizeRowsToContents();
    const int header = m_table->horizontalHeader()->sizeHint().height() + 2 * m_table->frameWidth();
    m_table->setMinimumHeight(header + FewestRows * m_table->rowHeight(0));
    m_table->setMaximumHeight(header + m_table->verticalHeader()->length());
}

} // namespace Host
