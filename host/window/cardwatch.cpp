// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/cardwatch.h"

#include "host/window/messagebar.h"
#include "host/window/openlogbook.h"

#include <QEvent>
#include <QThread>
#include <QWidget>

#include <atomic>
#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace Host {
namespace {

constexpr auto BetweenLooks = 3s;
constexpr unsigned long MostPatience = 2000; // ms

QString matterOf(const QString &id)
{
    return u"card:"_s + id;
}

} // namespace

/** What a thread looks for, and what it has found. */
struct CardWatch::Look
{
    Cards::Volumes volumes;
    Measured measured;
    QSet<QString> passedOver; ///< volumes that were looked into before
    std::atomic<bool> isStopped = false;
    QList<Card> cards;

    void run()
    {
        const QList<Volume> mounted = volumes();
        for (const Volume &volume : mounted) {
            Card card{volume, {}, !passedOver.contains(volume.id), {}};
            if (card.isLookedInto)
                card.folder = isStopped ? QString() : Cards::logsFolder(volume);
            if (!card.folder.isEmpty())
                card.unknown = Cards::unknownLogs(card.folder, measured, [this] { return !isStopped; });
            cards.append(card);
        }
    }
};

CardWatch::CardWatch(QWidget &window, MessageBar &messages, OpenLogbook &logbook)
    : m_window(window)
    , m_messages(messages)
    , m_logbook(logbook)
{
    m_timer.setInterval(BetweenLooks);
    connect(&m_timer, &QTimer::timeout, this, &CardWatch::look);
    connect(&m_logbook, &OpenLogbook::possibilitiesChanged, this, &CardWatch::showOffers);
    connect(&m_logbook, &OpenLogbook::changed, this, [this] { m_looksIntoAll = true; });
    m_window.installEventFilter(this);
    if (m_window.isActiveWindow())
        lookAgain();
}

/** A volume that does not answer holds up nobody: its thread is left alone then, with what it works on. */
CardWatch::~CardWatch()
{
    if (!m_thread)
        return;
    m_look->isStopped = true;
    if (m_thread->wait(MostPatience))
        return;
    QThread *left = m_thread.release();
    connect(left, &QThread::finished, left, &QObject::deleteLater); // should it answer after all
}

bool CardWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate)
        lookAgain();
    else if (event->type() == QEvent::WindowDeactivate)
        m_timer.stop();
    return QObject::eventFilter(watched, event);
}

void CardWatch::lookAgain()
{
    m_looksIntoAll = true;
    m_timer.start();
    look();
}

/** In a thread: a card may be slow. */
void CardWatch::look()
{
    if (m_thread)
        return;
    m_look = std::make_shared<Look>();
    m_look->volumes = m_volumes;
    m_look->measured = m_logbook.measured();
    if (!std::exchange(m_looksIntoAll, false))
        m_look->passedOver = QSet<QString>(m_offered.keyBegin(), m_offered.keyEnd());
    m_thread.reset(QThread::create([look = m_look] { look->run(); }));
    connect(m_thread.get(), &QThread::finished, this, [this] {
        m_thread->wait();
        m_thread.reset();
        take(*m_look);
    });
    m_thread->start(QThread::LowPriority);
}

void CardWatch::take(const Look &look)
{
    QSet<QString> mounted;
    for (const Card &card : look.cards) {
        mounted.insert(card.volume.id);
        if (card.isLookedInto)
            takeCard(card);
    }
    const QStringList known = m_offered.keys();
    for (const QString &id : known) {
        if (mounted.contains(id))
            continue;
        m_offered.remove(id);
        withdraw(id);
    }
    showOffers();
}

void CardWatch::takeCard(const Card &card)
{
    QSet<QString> &offered = m_offered[card.volume.id];
    if (!offered.contains(card.unknown))
        m_offers.insert(card.volume.id, card);
    else if (card.unknown.isEmpty()) // imported in another way
        withdraw(card.volume.id);
    offered.unite(card.unknown);
}

void CardWatch::withdraw(const QString &id)
{
    m_offers.remove(id);
    m_messages.retract(matterOf(id));
}

/** Only as long as logs can be imported. */
void CardWatch::showOffers()
{
    for (const Card &card : std::as_const(m_offers)) {
        const QString id = card.volume.id;
        if (!m_logbook.mayChange()) {
            m_messages.retract(matterOf(id));
            continue;
        }
        const auto logs = static_cast<int>(card.unknown.size());
        const QString text =
            logs == 1 ? tr("The card “%1” holds 1 radio log that is not imported yet.")
                      : tr("The card “%1” holds %n radio logs that are not imported yet.", nullptr, logs);
        const auto take = [this, id, folder = card.folder] {
            withdraw(id);
            Q_EMIT importRequested(folder);
        };
        m_messages.tell(matterOf(id), text.arg(card.volume.name),
                        {{tr("Import…"), take}, {tr("Not Now"), [this, id] { withdraw(id); }}});
    }
}

} // namespace Host
