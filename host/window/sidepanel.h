// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QSet>
#include <QTabWidget>
#include <QTimer>

class QPushButton;

namespace Host {

class BatteriesTab;
class FlightsTab;
class OpenLogbook;
class PanelTab;
class Questions;
class StatisticsTab;
class TodayTab;

/** Everything that a pilot wants to see and correct, in tabs beside the logbook. */
class SidePanel final : public QTabWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SidePanel)

public:
    enum Tab { Today, Batteries, Flights, Statistics };

    /** @param logbook @param questions outlive the panel. */
    SidePanel(OpenLogbook &logbook, Questions &questions, QWidget *parent = nullptr);
    ~SidePanel() override;

    /** Brings the tab on show up to date at once. */
    void refreshNow();
    /** Shows everything anew, each tab when it is next seen. */
    void refreshAll();

    /** The names of the tabs, the same in every language, in their order. */
    static QStringList tabNames();

    /** Shows the first battery of this name on its tab. */
    void showBattery(const QString &name);

    QSize sizeHint() const override;

Q_SIGNALS:
    /** The user wants to give something another name. */
    void renameRequested();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void retranslate();
    void refreshIfSeen();
    void lookAtTheDay();
    void refreshLater();
    void putOffOrRead();

    OpenLogbook &m_logbook;
    TodayTab *m_today;
    BatteriesTab *m_batteries;
    FlightsTab *m_flights;
    StatisticsTab *m_statistics;
    QSet<int> m_stale;      ///< the tabs that show an earlier version
    QPushButton *m_reading; ///< puts off a reading that takes long, or does it
    bool m_isPutOff = false;
    int m_readingTime = 0; ///< of the last reading, in ms
    QTimer m_whenIdle;     ///< a click on a card does not wait for the tab beside it
    QTimer m_clock;        ///< looks whether another day has begun, however the computer slept meanwhile
    QDate m_day;           ///< that the figures were worked out for
};

} // namespace Host
