// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/messagebar.h"

#include <QAccessible>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** The text with places where a line may end inside long paths, which would widen the window. */
QString breakable(QString text)
{
    constexpr qsizetype Long = 30;
    const bool hasLongWord = text.contains(QRegularExpression(u"\\S{%1,}"_s.arg(Long)));
    return hasLongWord ? text.replace(u"/"_s, u"/\u200B"_s).replace(u"-"_s, u"-\u200B"_s) : text;
}

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    hide();
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

QWidget *MessageBar::makeMessage(const QString &text, const QList<Action> &actions)
{
    auto *message = new QFrame(this);
    message->setObjectName(u"message"_s);
    message->setAccessibleName(text);
    message->setFrameShape(QFrame::StyledPanel);
    message->setAutoFillBackground(true);
    message->setBackgroundRole(QPalette::ToolTipBase);
    message->setForegroundRole(QPalette::ToolTipText);

    auto *label = new QLabel(breakable(text), message);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);

    auto *closing = new QToolButton(message);
    closing->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    closing->setAutoRaise(true);
    closing->setAccessibleName(tr("Close this message"));
    closing->setToolTip(tr("Close this message"));
    connect(closing, &QToolButton::clicked, message, &QWidget::hide);

    auto *rows = new QVBoxLayout(message);
    auto *top = new QHBoxLayout;
    top->addWidget(label, 1);
    top->addWidget(closing, 0, Qt::AlignTop);
    rows->addLayout(top);
    if (actions.isEmpty())
        return message;
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const Action &action : actions) {
        auto *button = new QPushButton(action.caption, message);
        connect(button, &QPushButton::clicked, this, action.run);
        buttons->addWidget(button);
    }
    rows->addLayout(buttons);
    return message;
}

} // namespace Host
