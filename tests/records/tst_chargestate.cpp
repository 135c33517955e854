// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/batterywidget.h"
#include "tests/records/card.h"
#include "tests/support/foreignlanguage.h"
#include "tests/support/rawcard.h"
#include "tests/support/warnings.h"

#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ChargeStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theButtonIsFixedInSizeAndStartsRed();
    void theButtonShowsTheChargeState();
    void theButtonFollowsTheLanguage();
    void thePlaceholderOfTheButtonOutlivesAChangeOfLanguage();
};

namespace {

using Card::find;

const QString green = u"background-color: rgb(0, 255, 0);\ncolor: rgb(85, 170, 255);"_s;
const QString red = u"background-color: rgb(255, 50, 0);\ncolor: rgb(255, 255, 255);"_s;

} // namespace

void ChargeStateTest::init()
{
    Test::failOnWarnings();
}

void ChargeStateTest::theButtonIsFixedInSizeAndStartsRed()
{
    BatteryWidget card;
    const auto *button = find<QPushButton>(card, "pushButton");
    QCOMPARE(button->minimumSize(), QSize(100, 35));
    QCOMPARE(button->maximumSize(), QSize(100, 35));
    QCOMPARE(button->styleSheet(), red);
    QVERIFY(!card.getBatteryCharged());
    QCOMPARE(RawCard().pushButton->styleSheet(), red);
}

void ChargeStateTest::theButtonShowsTheChargeState()
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

void ChargeStateTest::theButtonFollowsTheLanguage()
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

void ChargeStateTest::thePlaceholderOfTheButtonOutlivesAChangeOfLanguage()
{
    BatteryWidget card;
    Test::ForeignLanguage translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    QCOMPARE(find<QPushButton>(card, "pushButton")->text(), u"Text"_s);
    QVERIFY(QCoreApplication::removeTranslator(&translator));
}

QTEST_MAIN(ChargeStateTest)
#include "tst_chargestate.moc"
