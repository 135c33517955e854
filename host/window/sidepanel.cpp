// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/sidepanel.h"

#include "host/window/batteriestab.h"
#include "host/window/flightstab.h"
#include "host/window/openlogbook.h"
#include "host/window/statisticstab.h"
#include "host/window/todaytab.h"

#include <QDate>
#include <QElapsedTimer>
#include <QPushButton>

#include <algorithm>
#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace Host {
namespace {

constexpr int Moment = 300; // ms; what takes longer can be put off

} // namespace

SidePanel::SidePanel(OpenLogbook &logbook, Questions &questions, QWidget *parent)
    : QTabWidget(parent)
    , m_logbook(logbook)
    , m_today(new TodayTab(logbook))
    , m_batteries(new BatteriesTab(logbook, questions))
    , m_flights(new FlightsTab(logbook, questions))
    , m_statistics(new StatisticsTab(logbook, questions))
    , m_reading(new QPushButton)
{
    insertTab(Today, m_today, QString());
    insertTab(Batteries, m_batteries, QString());
    insertTab(Flights, m_flights, QString());
    insertTab(Statistics, m_statistics, QString());
    retranslate();
    setUsesScrollButtons(false);
    setCornerWidget(m_reading);
    m_reading->hide();
    connect(m_reading, &QPushButton::clicked, this, &SidePanel::putOffOrRead);
    m_whenIdle.setSingleShot(true);
    connect(&m_whenIdle, &QTimer::timeout, this, &SidePanel::refreshIfSeen);
    connect(this, &QTabWidget::currentChanged, this, &SidePanel::refreshIfSeen);
    connect(&logbook, &OpenLogbook::changed, this, &SidePanel::refreshAll);
    connect(m_today, &TodayTab::batteryRequested, this, &SidePanel::showBattery);
    connect(m_flights, &FlightsTab::renameRequested, this, &SidePanel::renameRequested);
    connect(&m_clock, &QTimer::timeout, this, &SidePanel::lookAtTheDay);
    m_clock.start(1min);
    refreshAll();
}

SidePanel::~SidePanel() = default;

QStringList SidePanel::tabNames()
{
    return {u"today"_s, u"batteries"_s, u"flights"_s, u"statistics"_s};
}

void SidePanel::retranslate()
{
    setTabText(Today, tr("Today"));
    setTabText(Batteries, tr("Batteries"));
    setTabText(Flights, tr("Flights"));
    setTabText(Statistics, tr("Statistics"));
    setAccessibleName(tr("Side panel"));
}

/** Ages, days since use and advice are those of a day. */
void SidePanel::lookAtTheDay()
{
    if (m_day != QDate::currentDate())
        refreshAll();
}

void SidePanel::refreshAll()
{
    m_day = QDate::currentDate();
    m_stale = {Today, Batteries, Flights, Statistics};
    refreshLater();
}

/** Reading a long logbook waits until the user has paused for as long as it takes; he may put it off. */
void SidePanel::refreshLater()
{
    const bool isLong = m_readingTime > Moment && !m_logbook.isRead();
    m_isPutOff = false;
    m_reading->setVisible(isLong);
    m_reading->setText(tr("Not Now"));
    m_reading->setToolTip(tr("The panel is about to read the logbook, which is long. Press here to go on "
                             "without what is new."));
    m_whenIdle.start(isLong ? m_readingTime : 0);
}

void SidePanel::putOffOrRead()
{
    m_isPutOff = !m_isPutOff;
    if (!m_isPutOff)
        return refreshNow();
    m_whenIdle.stop();
    m_reading->setText(tr("Refresh"));
    m_reading->setToolTip(tr("The panel does not show yet what is new. Press here to read it."));
}

void SidePanel::refreshNow()
{
    m_isPutOff = false;
    m_reading->hide();
    if (!m_stale.remove(currentIndex()))
        return;
    QElapsedTimer reading;
    reading.start();
    m_logbook.catalogue();
    m_readingTime = std::max(m_readingTime, static_cast<int>(reading.elapsed()));
    static_cast<PanelTab *>(currentWidget())->refresh();
}

void SidePanel::refreshIfSeen()
{
    if (isVisible() && !m_isPutOff)
        refreshNow();
}

void SidePanel::showBattery(const QString &name)
{
    setCurrentIndex(Batteries);
    m_batteries->select(name);
}

QSize SidePanel::sizeHint() const
{
    // Wide enough for a table of flights, whatever the tab on show.
    constexpr int Characters = 90;
    return QSize(fontMetrics().averageCharWidth() * Characters, QTabWidget::sizeHint().height());
}

void SidePanel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        refreshAll();
    }
    QTabWidget::changeEvent(event);
}

void SidePanel::showEvent(QShowEvent *event)
{
    QTabWidget::showEvent(event);
    refreshLater();
}

} // namespace Host
