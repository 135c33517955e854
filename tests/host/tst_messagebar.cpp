// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/breakable.h"
#include "host/window/messagebar.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using Host::MessageBar;

class MessageBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aMessageIsToldOnceForAsLongAsItIsTheSame();
    void whatIsOverIsToldAgain();
    void messagesAboutOtherMattersStay();
    void oneWithoutButtonsCanBeClosed();
    void oneWithButtonsStaysUntilItIsOver();
    void aButtonMayTakeItsOwnMessageAway();
    void everythingCanBeDoneByKeyboard();
    void aScreenReaderReadsThePlainText();
    void textsAreNeverMarkup();
    void itFitsIntoANarrowWindow_data();
    void itFitsIntoANarrowWindow();
    void fromRightToLeftTheButtonsBeginAtTheRight();
    void linesEndInsideOfLongWordsOnly();

private:
    QStringList shown() const;
    QPushButton *button(const QString &caption) const;

    std::unique_ptr<QWidget> m_window;
    MessageBar *m_bar = nullptr;
};

void MessageBarTest::init()
{
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    m_bar = new MessageBar;
    layout->addWidget(m_bar);
    layout->addWidget(new QPushButton(u"below"_s));
    layout->addStretch();
    m_window->resize(350, 531);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void MessageBarTest::cleanup()
{
    QApplication::setLayoutDirection(Qt::LeftToRight);
    m_window.reset();
}

/** The texts of the messages on show, from top to bottom. */
QStringList MessageBarTest::shown() const
{
    QStringList texts;
    const auto frames = m_bar->findChildren<QFrame *>(u"message"_s);
    for (const QFrame *frame : frames) {
        if (frame->isVisible())
            texts.append(frame->accessibleName());
    }
    return texts;
}

QPushButton *MessageBarTest::button(const QString &caption) const
{
    const auto buttons = m_bar->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == caption && button->isVisible())
            return button;
    }
    return nullptr;
}

void MessageBarTest::aMessageIsToldOnceForAsLongAsItIsTheSame()
{
    QSignalSpy told(m_bar, &MessageBar::told);
    QVERIFY(!m_bar->isVisible());
    m_bar->tell(u"saving"_s, u"It is full."_s);
    m_bar->tell(u"saving"_s, u"It is full."_s);
    QCOMPARE(told.count(), 1);
    QCOMPARE(shown(), QStringList(u"It is full."_s));
    m_bar->tell(u"saving"_s, u"It is read-only."_s);
    QCOMPARE(told.count(), 2);
    QCOMPARE(shown(), QStringList(u"It is read-only."_s));
}

void MessageBarTest::whatIsOverIsToldAgain()
{
    QSignalSpy told(m_bar, &MessageBar::told);
    m_bar->tell(u"saving"_s, u"It is full."_s);
    m_bar->retract(u"saving"_s);
    m_bar->retract(u"saving"_s);
    QVERIFY(!m_bar->isVisible());
    QCOMPARE(shown(), QStringList());
    m_bar->tell(u"saving"_s, u"It is full."_s);
    QCOMPARE(told.count(), 2);
    QCOMPARE(shown(), QStringList(u"It is full."_s));
}

void MessageBarTest::messagesAboutOtherMattersStay()
{
    m_bar->tell(u"saving"_s, u"One."_s);
    m_bar->tell(u"copies"_s, u"Two."_s);
    QCOMPARE(shown(), QStringList({u"One."_s, u"Two."_s}));
    m_bar->retract(u"saving"_s);
    QCOMPARE(shown(), QStringList(u"Two."_s));
    m_bar->tell(u"saving"_s, u"One."_s);
    m_bar->clear();
    QCOMPARE(shown(), QStringList());
}

void MessageBarTest::oneWithoutButtonsCanBeClosed()
{
    QSignalSpy told(m_bar, &MessageBar::told);
    m_bar->tell(u"copies"_s, u"No copies."_s);
    auto *closing = m_bar->findChild<QToolButton *>();
    QVERIFY(!closing->accessibleName().isEmpty());
    QVERIFY(!closing->toolTip().isEmpty());
    QTest::mouseClick(closing, Qt::LeftButton);
    QCOMPARE(shown(), QStringList());
    m_bar->tell(u"copies"_s, u"No copies."_s);
    QCOMPARE(shown(), QStringList()); // the user has read it
    QCOMPARE(told.count(), 1);
    m_bar->tell(u"copies"_s, u"Still none, but for another reason."_s);
    QCOMPARE(shown(), QStringList(u"Still none, but for another reason."_s));
}

void MessageBarTest::oneWithButtonsStaysUntilItIsOver()
{
    m_bar->tell(u"saving"_s, u"It is full."_s, {{u"Try Again"_s, [] {}}});
    QVERIFY(!m_bar->findChild<QToolButton *>());
    QTest::mouseClick(button(u"Try Again"_s), Qt::LeftButton);
    QCOMPARE(shown(), QStringList(u"It is full."_s));
}

void MessageBarTest::aButtonMayTakeItsOwnMessageAway()
{
    m_bar->tell(u"saving"_s, u"It is full."_s, {{u"Try Again"_s, [this] { m_bar->retract(u"saving"_s); }}});
    QTest::mouseClick(button(u"Try Again"_s), Qt::LeftButton);
    QCOMPARE(shown(), QStringList());
}

void MessageBarTest::everythingCanBeDoneByKeyboard()
{
    QStringList pressed;
    m_bar->tell(u"saving"_s, u"It is full."_s,
                {{u"Try Again"_s, [&] { pressed.append(u"again"_s); }},
                 {u"Keep Elsewhere"_s, [&] { pressed.append(u"elsewhere"_s); }}});
    m_bar->tell(u"copies"_s, u"No copies."_s);
    QSet<QWidget *> reached;
    for (int step = 0; step < 8; ++step) {
        QTest::keyClick(m_window->focusWidget() ? m_window->focusWidget() : m_window.get(), Qt::Key_Tab);
        QWidget *focus = m_window->focusWidget();
        if (!focus || reached.contains(focus))
            continue;
        reached.insert(focus);
        if (m_bar->isAncestorOf(focus))
            QTest::keyClick(focus, Qt::Key_Space);
    }
    QCOMPARE(pressed, QStringList({u"again"_s, u"elsewhere"_s}));
    QCOMPARE(shown(), QStringList(u"It is full."_s)); // the other one was closed
}

void MessageBarTest::aScreenReaderReadsThePlainText()
{
    m_bar->tell(u"saving"_s, u"It is <full>."_s, {{u"Try Again"_s, [] {}}});
    const auto *message = m_bar->findChild<QFrame *>(u"message"_s);
    QCOMPARE(message->accessibleName(), u"It is <full>."_s);
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(button(u"Try Again"_s));
    QCOMPARE(spoken->text(QAccessible::Name), u"Try Again"_s);
    const auto *label = m_bar->findChild<QLabel *>();
    QCOMPARE(label->accessibleName(), u"It is <full>."_s); // without the places for line ends
}

void MessageBarTest::textsAreNeverMarkup()
{
    m_bar->tell(u"saving"_s, u"<h1>Call</h1> <a href=\"http://example.org\">us</a>"_s);
    const auto *label = m_bar->findChild<QLabel *>();
    QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(label->text().contains(u"<h1>Call"_s));
}

void MessageBarTest::itFitsIntoANarrowWindow_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<QString>("path");
    const QString deep = u"/home/pilot"_s + u"/some-folder-of-a-long-name"_s.repeated(8);
    for (const int points : {9, 16}) {
        QTest::addRow("%d points, a long path", points) << points << deep;
        QTest::addRow("%d points, a long name", points) << points << u"/media/"_s + QString(100, u'w');
    }
}

void MessageBarTest::itFitsIntoANarrowWindow()
{
    QFETCH(int, points);
    QFETCH(QString, path);
    QFont font = m_window->font();
    font.setPointSize(points);
    m_window->setFont(font);
    m_bar->tell(u"saving"_s, u"The logbook is not saved in “%1”: permission denied."_s.arg(path),
                {{u"Try Again"_s, [] {}}, {u"Restore Last State"_s, [] {}}, {u"Keep Elsewhere…"_s, [] {}}});
    QCoreApplication::processEvents();
    m_window->resize(350, m_window->height());
    QCoreApplication::processEvents();
    QCOMPARE(m_window->width(), 350);
    const auto *label = m_bar->findChild<QLabel *>();
    QVERIFY(label->height() >= label->heightForWidth(label->width()));
    const QWidget *messages = m_bar->widget();
    QVERIFY(m_bar->height() <= m_window->screen()->availableSize().height() / 3);
    QVERIFY(messages->width() <= m_bar->width());
    for (const QString &caption : {u"Try Again"_s, u"Restore Last State"_s, u"Keep Elsewhere…"_s}) {
        const QPushButton *found = button(caption);
        QVERIFY(found->width() >= found->sizeHint().width());
        QVERIFY(messages->rect().contains(QRect(found->mapTo(messages, QPoint()), found->size())));
        QVERIFY(found->mapTo(m_bar, QPoint()).y() >= label->mapTo(m_bar, QPoint(0, label->height())).y());
    }
}

void MessageBarTest::fromRightToLeftTheButtonsBeginAtTheRight()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    m_bar->tell(u"saving"_s, u"It is full."_s, {{u"One"_s, [] {}}, {u"Two"_s, [] {}}});
    QTRY_VERIFY(button(u"One"_s)->x() > button(u"Two"_s)->x());
    QVERIFY(button(u"One"_s)->geometry().right() > m_bar->width() / 2);
}

void MessageBarTest::linesEndInsideOfLongWordsOnly()
{
    const QString plain = u"Nothing here, and no-one either: a Batterieeinstellung."_s;
    QCOMPARE(Host::breakable(plain), plain);
    QCOMPARE(Host::breakable(u"in /home/pilot/logbooks/2026"_s),
             u"in /home/\u200Bpilot/\u200Blogbooks/\u200B2026"_s);
    QCOMPARE(Host::breakable(QString(100, u'w')).count(QChar(0x200B)), 8);
}

QTEST_MAIN(MessageBarTest)
#include "tst_messagebar.moc"
