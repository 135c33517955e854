// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/batterywidget.h"
#include "tests/records/card.h"
#include "tests/support/foreignlanguage.h"
#include "tests/support/rawcard.h"
#include "tests/support/warnings.h"

#include <QApplication>
#include <QProxyStyle>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>

#include <utility>

using namespace Qt::Literals::StringLiterals;

class ChargeButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theButtonIsFixedInSizeAndStartsRed();
    void theButtonAnswersItsStyleOnceItIsShown();
    void theButtonLooksLikeAnyWithItsStyleSheet_data();
    void theButtonLooksLikeAnyWithItsStyleSheet();
    void theButtonShowsTheChargeState();
    void theButtonFollowsTheLanguage();
    void thePlaceholderOfTheButtonOutlivesAChangeOfLanguage();
};

namespace {

using Card::find;

const QString green = u"background-color: rgb(0, 255, 0);\ncolor: rgb(85, 170, 255);"_s;
const QString red = u"background-color: rgb(255, 50, 0);\ncolor: rgb(255, 255, 255);"_s;

/** Counts how often a button has asked for the place that it takes in a layout. */
class CountingStyle : public QProxyStyle
{
public:
    QRect subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const override
    {
        if (element == SE_PushButtonLayoutItem)
            ++count;
        return QProxyStyle::subElementRect(element, option, widget);
    }

    mutable int count = 0;
};

} // namespace

void ChargeButtonTest::init()
{
    Test::failOnWarnings();
}

void ChargeButtonTest::theButtonIsFixedInSizeAndStartsRed()
{
    BatteryWidget card;
    const auto *button = find<QPushButton>(card, "pushButton");
    QCOMPARE(button->minimumSize(), QSize(100, 35));
    QCOMPARE(button->maximumSize(), QSize(100, 35));
    QCOMPARE(button->styleSheet(), red);
    QVERIFY(!card.getBatteryCharged());
    QCOMPARE(RawCard().pushButton->styleSheet(), red);
}

void ChargeButtonTest::theButtonAnswersItsStyleOnceItIsShown()
{
    auto *style = new CountingStyle; // the application's from now on
    QApplication::setStyle(style);
    const auto restore = qScopeGuard([] { QApplication::setStyle(u"Fusion"_s); });
    QWidget window;
    const QPushButton plain(&window);
    const int made = std::exchange(style->count, 0);
    BatteryWidget card;
    auto *button = find<QPushButton>(card, "pushButton");
    QCOMPARE(style->count, made); // its style sheet changes nothing of its place
    card.setBatteryCharged(true, false);
    QCOMPARE(style->count, made);

    card.show();
    QVERIFY(QTest::qWaitForWindowExposed(&card));
    const int shown = style->count;
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(button, &change);
    QCOMPARE(style->count, shown + 1);
}

void ChargeButtonTest::theButtonLooksLikeAnyWithItsStyleSheet_data()
{
    QTest::addColumn<bool>("charged");
    QTest::newRow("charged") << true;
    QTest::newRow("discharged") << false;
}

void ChargeButtonTest::theButtonLooksLikeAnyWithItsStyleSheet()
{
    QFETCH(bool, charged);
    BatteryWidget card;
    auto *button = find<QPushButton>(card, "pushButton");
    button->setFocusPolicy(Qt::NoFocus); // a frame would show who has it
    card.setBatteryCharged(charged, false);
    card.show();
    QVERIFY(QTest::qWaitForWindowExposed(&card));
    card.setBatteryCharged(!charged, false); // a click away, and back
    card.setBatteryCharged(charged, false);
    QVERIFY(button->isVisible());
    const QImage picture = button->grab().toImage();
    card.hide();

    QWidget window;
    auto *plain = new QPushButton(charged ? u"Charged"_s : u"Discharged"_s, &window);
    plain->move(20, 20); // not below the mouse, which would show
    plain->setFixedSize(100, 35);
    plain->setFocusPolicy(Qt::NoFocus);
    plain->setStyleSheet(charged ? green : red);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(picture, plain->grab().toImage());
}

void ChargeButtonTest::theButtonShowsTheChargeState()
{
    BatteryWidget card;
    const auto *button = find<QPushButton>(card, "pushButton");
    card.setBatteryCharged(true, false);
    QCOMPARE(button->text(), u"Charged"_s);
    QCOMPARE(button->styleSheet(), green); // light blue on bright green is meant
    card.setBatteryCharged(false, false);
    QCOMPARE(button->text(), u"Discharged"_s);
    QCOMPARE(button->styleSheet(), red);
}

void ChargeButtonTest::theButtonFollowsTheLanguage()
{
    BatteryWidget card;
    const auto *button = find<QPushButton>(card, "pushButton");
    card.setBatteryCharged(true, false);

    Test::ForeignLanguage translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(button->text(), u"[Charged]"_s);
    QCOMPARE(button->styleSheet(), green);
    card.setBatteryCharged(false, false);
    QCOMPARE(button->text(), u"[Discharged]"_s);
    QVERIFY(QCoreApplication::removeTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(button->text(), u"Discharged"_s);
}

void ChargeButtonTest::thePlaceholderOfTheButtonOutlivesAChangeOfLanguage()
{
    BatteryWidget card;
    Test::ForeignLanguage translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(find<QPushButton>(card, "pushButton")->text(), u"Text"_s);
    QVERIFY(QCoreApplication::removeTranslator(&translator));
}

QTEST_MAIN(ChargeButtonTest)
#include "tst_chargebutton.moc"
