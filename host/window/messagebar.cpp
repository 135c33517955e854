// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/messagebar.h"

#include "host/window/breakable.h"
#include "host/window/flowlayout.h"

#include <QAccessible>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStringList>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

void nameClosing(QToolButton *closing)
{
    closing->setAccessibleName(MessageBar::tr("Close this message"));
    closing->setToolTip(MessageBar::tr("Close this message"));
}

QToolButton *makeClosing(QWidget *message)
{
    auto *closing = new QToolButton(message);
    closing->setText(u"×"_s); // a style's own icon may be dark on a dark palette
    // On a face of its own: the colour of a button's text is not made for the background of a message.
    closing->setAutoRaise(false);
    closing->setFocusPolicy(Qt::StrongFocus); // a tool button could not be reached by keyboard
    nameClosing(closing);
    QObject::connect(closing, &QToolButton::clicked, message, &QWidget::hide);
    return closing;
}

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QScrollArea(parent)
{
    auto *messages = new QWidget;
    m_layout = new QVBoxLayout(messages);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    setWidget(messages);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // only what is in it
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    hide();
}

bool MessageBar::eventFilter(QObject *watched, QEvent *event)
{
    const bool handled = QScrollArea::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        fit();
    return handled;
}

/** A message stays as it was said. */
void MessageBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        const QList<QToolButton *> closings = findChildren<QToolButton *>();
        for (QToolButton *closing : closings)
            nameClosing(closing);
    }
    QScrollArea::changeEvent(event);
}

void MessageBar::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

void MessageBar::fit()
{
    const int height = m_layout->hasHeightForWidth() ? m_layout->totalHeightForWidth(viewport()->width())
                                                     : m_layout->totalSizeHint().height();
    setFixedHeight(qMin(height, screen()->availableSize().height() / 3));
}

void MessageBar::tell(const QString &matter, const QString &text, const QList<Action> &actions)
{
    if (m_texts.value(matter) == text)
        return;
    retract(matter);
    QWidget *message = makeMessage(text, actions);
    m_texts.insert(matter, text);
    m_messages.insert(matter, message);
    m_layout->addWidget(message);
    message->show(); // a layout would wait for the event loop
    show();
    QAccessibleEvent alert(message, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    Q_EMIT told(text);
}

void MessageBar::retract(const QString &matter)
{
    m_texts.remove(matter);
    if (QWidget *message = m_messages.take(matter)) {
        message->hide();
        message->deleteLater(); // one of its own buttons may be what retracts it
    }
    setVisible(!m_messages.isEmpty());
}

void MessageBar::clear()
{
    const QStringList matters = m_messages.keys();
    for (const QString &matter : matters)
        retract(matter);
}

QWidget *MessageBar::makeMessage(const QString &text, const QList<Action> &actions)
{
    auto *message = new QFrame(widget());
    message->setObjectName(u"message"_s);
    message->setAccessibleName(text);
    message->setFrameShape(QFrame::StyledPanel);
    message->setAutoFillBackground(true);
    message->setBackgroundRole(QPalette::ToolTipBase);
    message->setForegroundRole(QPalette::ToolTipText);

    auto *label = new QLabel(breakable(text), message);
    label->setAccessibleName(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::ToolTipText);

    auto *rows = new QVBoxLayout(message);
    auto *top = new QHBoxLayout;
    top->addWidget(label, 1);
    rows->addLayout(top);
    if (actions.isEmpty()) {
        top->addWidget(makeClosing(message), 0, Qt::AlignTop);
        return message;
    }
    auto *buttons = new FlowLayout;
    for (const Action &action : actions) {
        auto *button = new QPushButton(action.caption, message);
        connect(button, &QPushButton::clicked, this, action.run);
        buttons->addWidget(button);
    }
    rows->addLayout(buttons);
    return message;
}

} // namespace Host
