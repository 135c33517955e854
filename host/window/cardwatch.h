// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/window/cards.h"

#include <QHash>
#include <QObject>
#include <QTimer>

#include <memory>

class QThread;

namespace Host {

class MessageBar;
class OpenLogbook;

/**
 * Notices cards with logs while a window is active, and offers each once as long as it is mounted: again only
 * where logs have come to it. Where a window has not been active, a card may have been taken away and back.
 */
class CardWatch final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CardWatch)

public:
    /** All of these outlive it. */
    CardWatch(QWidget &window, MessageBar &messages, OpenLogbook &logbook);
    ~CardWatch() override;

    /** Where it looks; at first in what the system has mounted. */
    void setVolumes(const Cards::Volumes &volumes) { m_volumes = volumes; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** The user wants the logs in this folder. */
    void importRequested(const QString &folder);

private:
    struct Look;

    void lookAgain();
    void look();
    void take(const Look &look);
    void takeCard(const Card &card);
    void withdraw(const QString &id);
    void showOffers();

    QWidget &m_window;
    MessageBar &m_messages;
    OpenLogbook &m_logbook;
    Cards::Volumes m_volumes = Cards::mounted;
    QTimer m_timer;
    bool m_looksIntoAll = true;              ///< also where it has looked before
    QHash<QString, QSet<QString>> m_offered; ///< the logs of each card, by the volume's id
    QHash<QString, Card> m_offers;           ///< that are open, likewise
    std::shared_ptr<Look> m_look;
    std::unique_ptr<QThread> m_thread; ///< while it is at work
};

} // namespace Host
