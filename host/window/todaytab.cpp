// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/todaytab.h"

#include "host/statistics/advice.h"
#include "host/window/advicelimits.h"
#include "host/window/openlogbook.h"

#include <QDate>
#include <QLabel>
#include <QListWidget>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr int BatteryRole = Qt::UserRole;

QString headingFor(const Catalogue &catalogue, const QList<Advice> &advice)
{
    if (catalogue.batteries.isEmpty())
        return TodayTab::tr("There is no battery yet. Add your first one: press the menu button, then Edit.");
    if (advice.isEmpty())
        return TodayTab::tr("Nothing to do today.");
    return TodayTab::tr("What to do today. Click a line to see its battery.");
}

} // namespace

TodayTab::TodayTab(OpenLogbook &logbook, QWidget *parent)
    : PanelTab(parent)
    , m_logbook(logbook)
    , m_heading(new QLabel)
    , m_list(new QListWidget)
{
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_heading);
    layout->addWidget(m_list, 1);
    m_heading->setWordWrap(true);
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setBuddy(m_list);
    retranslate();
    m_list->setWordWrap(true);
    m_list->setAlternatingRowColors(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(m_list, &QListWidget::itemClicked, this, &TodayTab::choose);
    connect(m_list, &QListWidget::itemActivated, this, &TodayTab::choose); // by keyboard
}

void TodayTab::retranslate()
{
    m_list->setAccessibleName(tr("What to do today"));
}

void TodayTab::refresh()
{
    const std::shared_ptr<const Catalogue> catalogue = m_logbook.catalogue();
    if (!catalogue)
        return;
    const QList<Advice> advice = adviceFor(*catalogue, QDate::currentDate(), chosenLimits());
    m_heading->setText(headingFor(*catalogue, advice));
    m_list->setVisible(!advice.isEmpty());
    m_list->clear();
    for (const Advice &entry : advice)
        add(entry);
    static_cast<QVBoxLayout *>(layout())->setAlignment(m_heading,
                                                       advice.isEmpty() ? Qt::AlignTop : Qt::Alignment());
}

void TodayTab::add(const Advice &advice)
{
    const bool isWarning = advice.severity == Severity::Warning;
    const QIcon icon =
        style()->standardIcon(isWarning ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation);
    auto *item = new QListWidgetItem(icon, advice.text, m_list);
    item->setData(BatteryRole, advice.battery);
    item->setData(Qt::AccessibleTextRole,
                  (isWarning ? tr("Warning: %1") : tr("Notice: %1")).arg(advice.text));
    item->setToolTip(tr("Show “%1”").arg(advice.battery));
}

void TodayTab::choose(const QListWidgetItem *item)
{
    Q_EMIT batteryRequested(item->data(BatteryRole).toString());
}

} // namespace Host
