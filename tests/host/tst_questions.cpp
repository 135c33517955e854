// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes themselves, on a small screen of a real platform.
#include "tests/host/support/xvfb.h"

#include "host/window/questions.h"

#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <functional>

using namespace Qt::Literals::StringLiterals;
using Host::Answer;
using Host::Question;

/** How a box is left. */
enum class Way { Button, Escape, Closing, Return, ReturnInTable };

class QuestionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyWayOutGivesItsAnswer_data();
    void everyWayOutGivesItsAnswer();
    void textsAreNeverMarkup();
    void aTextThatIsToldIsNeverMarkup();
    void aVersionIsChosenByKeyboard();
    void aVersionIsChosenByMouse();
    void everythingHasAName();
    void itFitsOnASmallScreen_data();
    void itFitsOnASmallScreen();
    void everythingIsInsideOfTheBox_data();
    void everythingIsInsideOfTheBox();

private:
    /** Asks, and lets somebody act on the box as soon as it is there. */
    static Answer ask(const Question &question, const std::function<void(QDialog &)> &act);
    static Question sample();
    static Question longOne(QAbstractItemModel *choices = nullptr);
};

namespace {

constexpr const char Markup[] = "<h1>Call</h1> <a href=\"http://example.org\">us</a>";

/** Three versions, of which the second cannot be chosen. */
std::unique_ptr<QStandardItemModel> versions()
{
    auto model = std::make_unique<QStandardItemModel>(3, 6);
    model->setHorizontalHeaderLabels(
        {u"Version"_s, u"Size"_s, u"Batteries"_s, u"Models"_s, u"Flights"_s, u"Discharges"_s});
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 6; ++column)
            model->setItem(row, column, new QStandardItem(u"%1.%2"_s.arg(row).arg(column)));
        model->item(row, 0)->setText(u"Copy of 2026-11-2%1 19:51:12"_s.arg(row));
    }
    for (int column = 0; column < 6; ++column)
        model->item(1, column)->setFlags(Qt::NoItemFlags);
    return model;
}

QPushButton *button(const QDialog &box, const QString &caption)
{
    const auto buttons = box.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == caption)
            return button;
    }
    return nullptr;
}

void pressKey(QDialog &box, Qt::Key key)
{
    QTest::keyClick(box.focusWidget() ? box.focusWidget() : &box, key);
}

} // namespace

void QuestionsTest::cleanup()
{
    QApplication::setFont(QFont());
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

Answer QuestionsTest::ask(const Question &question, const std::function<void(QDialog &)> &act)
{
    QTimer timer;
    connect(&timer, &QTimer::timeout, &timer, [&] {
        auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        timer.stop();
        act(*box);
        if (box->isVisible()) { // a box that is still there would wait for ever
            QTest::qFail("the box is still open", __FILE__, __LINE__);
            box->reject();
        }
    });
    timer.start(20);
    return Host::BoxQuestions().ask(question);
}

Question QuestionsTest::sample()
{
    Question question;
    question.text = u"The logbook is not saved."_s;
    question.details = u"What you recorded last would be lost."_s;
    question.answers = QStringList{u"Quit Anyway"_s, u"Wait"_s, u"Go Back"_s};
    question.preferred = 1;
    question.refusal = 2;
    return question;
}

Question QuestionsTest::longOne(QAbstractItemModel *choices)
{
    const QString path = u"/home/pilot"_s + u"/some-folder-of-a-long-name"_s.repeated(12) + u"/voltbok.xml"_s;
    Question question;
    question.text = u"The logbook file “%1” is damaged: line 3 cannot be understood."_s.arg(path);
    question.details =
        u"Whatever you choose, the damaged file is kept in the same folder, under a name that begins "
        "with “voltbok-broken-”. Choose the version to go on with; the newest is on top."_s;
    question.answers = QStringList{u"Quit"_s, u"Start with an Empty Logbook"_s, u"Restore"_s};
    question.preferred = 2;
    question.choices = choices;
    return question;
}

void QuestionsTest::everyWayOutGivesItsAnswer_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<int>("answer");
    const std::pair<const char *, Way> ways[] = {{"its button", Way::Button},
                                                 {"escape", Way::Escape},
                                                 {"closing", Way::Closing},
                                                 {"return", Way::Return},
                                                 {"return in the table", Way::ReturnInTable}};
    for (const auto &[name, way] : ways) {
        for (int answer = 0; answer < 3; ++answer)
            QTest::addRow("%s, %d", name, answer) << way << answer;
    }
}

void QuestionsTest::everyWayOutGivesItsAnswer()
{
    QFETCH(Way, way);
    QFETCH(int, answer);
    const auto table = versions();
    Question question = sample();
    if (way == Way::Escape || way == Way::Closing)
        question.refusal = answer;
    if (way == Way::Return || way == Way::ReturnInTable)
        question.preferred = answer;
    question.choices = way == Way::ReturnInTable ? table.get() : nullptr;
    const Answer given = ask(question, [&](QDialog &box) {
        if (way == Way::Button)
            QTest::mouseClick(button(box, question.answers.at(answer)), Qt::LeftButton);
        else if (way == Way::Closing)
            box.close();
        else
            pressKey(box, way == Way::Escape ? Qt::Key_Escape : Qt::Key_Return);
    });
    QCOMPARE(given.button, answer);
    QCOMPARE(given.row, question.choices ? 0 : -1);
}

void QuestionsTest::textsAreNeverMarkup()
{
    Question question = sample();
    question.text = QString::fromLatin1(Markup);
    question.details = question.text;
    int texts = 0;
    ask(question, [&texts](QDialog &box) {
        const auto labels = box.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->text().isEmpty())
                continue;
            ++texts;
            QCOMPARE(label->textFormat(), Qt::PlainText);
            QVERIFY(!label->openExternalLinks());
            QVERIFY(label->text().contains(u"<h1>Call"_s));
            // A heading would be larger than a line or two of this font.
            QVERIFY(label->heightForWidth(2000) <= 2 * label->fontMetrics().lineSpacing());
        }
        pressKey(box, Qt::Key_Escape);
    });
    QCOMPARE(texts, 2);
}

void QuestionsTest::aTextThatIsToldIsNeverMarkup()
{
    int texts = 0;
    QTimer::singleShot(100, this, [&texts] {
        auto *box = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        QVERIFY(box);
        const auto labels = box->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            texts += label->textFormat() == Qt::PlainText && label->text().contains(u"<h1>"_s) ? 1 : 0;
        QCOMPARE(box->findChildren<QPushButton *>().size(), 1);
        pressKey(*box, Qt::Key_Return);
    });
    Host::BoxQuestions().tell(QString::fromLatin1(Markup));
    QCOMPARE(texts, 1);
}

void QuestionsTest::aVersionIsChosenByKeyboard()
{
    const auto table = versions();
    const Answer given = ask(longOne(table.get()), [](QDialog &box) {
        pressKey(box, Qt::Key_Down); // over the one that cannot be chosen
        pressKey(box, Qt::Key_Return);
    });
    QCOMPARE(given.button, 2);
    QCOMPARE(given.row, 2);

    const Answer byTab = ask(longOne(table.get()), [](QDialog &box) {
        QStringList reached;
        for (int step = 0; step < 4; ++step) {
            pressKey(box, Qt::Key_Tab);
            if (const auto *focused = qobject_cast<QPushButton *>(box.focusWidget()))
                reached.append(focused->text());
        }
        QCOMPARE(QSet<QString>(reached.cbegin(), reached.cend()).size(), 3);
        button(box, u"Start with an Empty Logbook"_s)->setFocus();
        pressKey(box, Qt::Key_Space);
    });
    QCOMPARE(byTab.button, 1);
}

void QuestionsTest::aVersionIsChosenByMouse()
{
    const auto table = versions();
    const auto click = [](const QDialog &box, int row) {
        const auto *view = box.findChild<QTableView *>();
        const QPoint place = view->visualRect(view->model()->index(row, 0)).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    };
    const Answer given = ask(longOne(table.get()), [&click](QDialog &box) {
        click(box, 2);
        click(box, 1); // cannot be chosen
        QTest::mouseClick(button(box, u"Restore"_s), Qt::LeftButton);
    });
    QCOMPARE(given.row, 2);
}

void QuestionsTest::everythingHasAName()
{
    const auto table = versions();
    const Question question = longOne(table.get());
    ask(question, [&question](QDialog &box) {
        QCOMPARE(QAccessible::queryAccessibleInterface(&box)->text(QAccessible::Name), question.text);
        QCOMPARE(QAccessible::queryAccessibleInterface(&box)->text(QAccessible::Description),
                 question.details);
        auto *view = box.findChild<QTableView *>();
        QCOMPARE(view->accessibleName(), question.text);
        QCOMPARE(box.focusWidget(), view);
        const auto buttons = box.findChildren<QPushButton *>();
        for (QPushButton *found : buttons)
            QVERIFY(question.answers.contains(
                QAccessible::queryAccessibleInterface(found)->text(QAccessible::Name)));
        pressKey(box, Qt::Key_Escape);
    });
}

void QuestionsTest::itFitsOnASmallScreen_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<bool>("withTable");
    for (const int points : {9, 16}) {
        QTest::addRow("%d points", points) << points << false;
        QTest::addRow("%d points, with versions", points) << points << true;
    }
}

void QuestionsTest::itFitsOnASmallScreen()
{
    QFETCH(int, points);
    QFETCH(bool, withTable);
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
    const auto table = versions();
    ask(longOne(withTable ? table.get() : nullptr), [](QDialog &box) {
        const QSize screen = box.screen()->size();
        QCOMPARE(screen, QSize(800, 600));
        QVERIFY2(box.width() <= 800 && box.height() <= 600,
                 qPrintable(u"%1x%2"_s.arg(box.width()).arg(box.height())));
        pressKey(box, Qt::Key_Escape);
    });
}

void QuestionsTest::everythingIsInsideOfTheBox_data()
{
    itFitsOnASmallScreen_data();
}

void QuestionsTest::everythingIsInsideOfTheBox()
{
    QFETCH(int, points);
    QFETCH(bool, withTable);
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
    const auto table = versions();
    ask(longOne(withTable ? table.get() : nullptr), [](QDialog &box) {
        const auto labels = box.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (!label->text().isEmpty())
                QVERIFY(label->height() >= label->heightForWidth(label->width()));
        }
        const auto buttons = box.findChildren<QPushButton *>();
        for (const QPushButton *found : buttons) {
            QVERIFY(found->width() >= found->minimumSizeHint().width());
            QVERIFY(box.rect().contains(QRect(found->mapTo(&box, QPoint()), found->size())));
        }
        pressKey(box, Qt::Key_Escape);
    });
}

int main(int argc, char *argv[])
{
    const Xvfb screen;
    QApplication application(argc, argv);
    QuestionsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_questions.moc"
