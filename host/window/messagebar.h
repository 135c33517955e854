// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QScrollArea>
#include <QString>

#include <functional>

class QBoxLayout;

namespace Host {

/**
 * The messages that need no answer, one below the other, each with buttons where they help. As high as they
 * are; only where they would take too much of the screen they scroll.
 */
class MessageBar final : public QScrollArea
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MessageBar)

public:
    struct Action
    {
        QString caption;
        std::function<void()> run;
    };

    explicit MessageBar(QWidget *parent = nullptr);

    /**
     * Shows a message in the place of the one about the same matter. The same text is not told again, even
     * when the user has closed it. One with actions cannot be closed: it stays until it is over.
     *
     * @param matter what it is about: a name that no user sees.
     */
    void tell(const QString &matter, const QString &text, const QList<Action> &actions = {});
    /** Takes the message about this matter away, if there is one: it is over, and will be told again. */
    void retract(const QString &matter);
    /** Takes all messages away. */
    void clear();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** A message is shown that was not shown before. */
    void told(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();
    QWidget *makeMessage(const QString &text, const QList<Action> &actions);

    QHash<QString, QString> m_texts;
    QHash<QString, QWidget *> m_messages;
    QBoxLayout *m_layout = nullptr;
};

} // namespace Host
