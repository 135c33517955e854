// SPDX-License-Identifier: GPL-3.0-or-later
// The button of a card as it is painted, and what a double click on it does.
#include "records/batterywidget.h"
#include "tests/support/warnings.h"

#include <QApplication>
#include <QProxyStyle>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyleFactory>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

const QColor Green(0, 255, 0);
const QColor LightBlue(85, 170, 255);
const QColor Red(255, 50, 0);
const QColor White(255, 255, 255);

/** Counts how often a button asks for its place in a layout. */
class AskedStyle : public QProxyStyle
{
public:
    AskedStyle()
        : QProxyStyle(u"Fusion"_s)
    {
    }
    QRect subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const override
    {
        asked += element == SE_PushButtonLayoutItem ? 1 : 0;
        return QProxyStyle::subElementRect(element, option, widget);
    }
    static inline int asked = 0;
};

/** Counts how often a widget is painted. */
class Paints : public QObject
{
public:
    explicit Paints(QObject &watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

/** Puts style and font of the application back when a test is over. */
class Look
{
public:
    explicit Look(const QString &style)
        : m_font(QApplication::font())
    {
        QApplication::setStyle(style);
    }
    ~Look()
    {
        QApplication::setStyle(u"Fusion"_s);
        QApplication::setFont(m_font);
    }
    Q_DISABLE_COPY_MOVE(Look)

private:
    QFont m_font;
};

/** A card on show, without the focus on its button. */
class ShownCard
{
public:
    explicit ShownCard(bool charged)
        : button(card.findChild<QPushButton *>(u"pushButton"_s))
    {
        card.setBatteryCharged(charged, false);
        other.setFocus();
        card.show();
        QVERIFY(QTest::qWaitForWindowExposed(&card));
        QTest::mouseMove(card.windowHandle(), QPoint(1, 1));
        QTRY_VERIFY(!button->underMouse());
        button->clearFocus();
    }

    /** As it is seen on the card: grabbed alone, the button would stand on a background of its own. */
    QImage picture() { return card.grab(QRect(button->mapTo(&card, QPoint()), button->size())).toImage(); }

    BatteryWidget card;
    QWidget other{&card};
    QPushButton *button;
};

int pixelsOf(const QImage &picture, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y).rgb() == color.rgb() ? 1 : 0;
    }
    return count;
}

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

/** The columns that hold something of the text's colour: first and last. */
std::pair<int, int> textColumns(const QImage &picture, const QColor &color)
{
    std::pair<int, int> columns(picture.width(), -1);
    for (int x = 0; x < picture.width(); ++x) {
        if (pixelsOf(picture.copy(x, 0, 1, picture.height()), color) > 0)
            columns = {std::min(columns.first, x), x};
    }
    return columns;
}

void addStates()
{
    QTest::addColumn<bool>("charged");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("text");
    QTest::addRow("charged") << true << Green << LightBlue;
    QTest::addRow("discharged") << false << Red << White;
}

void addStylesAndStates()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<bool>("charged");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("text");
    const QStringList styles = QStyleFactory::keys();
    for (const QString &style : styles) {
        QTest::addRow("charged in %s", qPrintable(style)) << style << true << Green << LightBlue;
        QTest::addRow("discharged in %s", qPrintable(style)) << style << false << Red << White;
    }
}

} // namespace

class ChargeButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void thereAreStylesToTry();
    void theColoursAreThoseOfTheStyleSheetInEveryStyle_data() { addStylesAndStates(); }
    void theColoursAreThoseOfTheStyleSheetInEveryStyle();
    void aChangeOfStateIsPainted();
    void theFocusIsSeen_data() { addStates(); }
    void theFocusIsSeen();
    void aPressedButtonIsDarker_data() { addStates(); }
    void aPressedButtonIsDarker();
    void aButtonBelowThePointerHasAnotherBorder_data() { addStylesAndStates(); }
    void aButtonBelowThePointerHasAnotherBorder();
    void aDisabledButtonIsPale_data() { addStates(); }
    void aDisabledButtonIsPale();
    void theWholeTextIsPaintedInALargeFont_data();
    void theWholeTextIsPaintedInALargeFont();
    void toEverybodyItIsAPushButton();
    void anotherStyleIsPaintedAndNotMeasured();
    void aDoubleClickIsOneClick();
    void twoClicksAreTwo();
    void theSecondPressOfADoubleClickElsewhereDoesNothing();
    void theSpaceKeyTwiceIsTwoClicks();
};

void ChargeButtonTest::init()
{
    // The offscreen platform itself remarks on every window that is shown.
    Test::failOnWarnings();
}

void ChargeButtonTest::thereAreStylesToTry()
{
    QVERIFY(QStyleFactory::keys().contains(u"Fusion"_s));
    QVERIFY(QStyleFactory::keys().contains(u"Windows"_s));
}

void ChargeButtonTest::theColoursAreThoseOfTheStyleSheetInEveryStyle()
{
    QFETCH(QString, style);
    QFETCH(bool, charged);
    QFETCH(QColor, background);
    QFETCH(QColor, text);
    const Look look(style);
    QFont big = QApplication::font();
    big.setPixelSize(16);
    big.setBold(true); // so that some pixels are nothing but text
    QApplication::setFont(big);
    ShownCard shown(charged);
    const QImage picture = shown.picture();
    QCOMPARE(picture.size(), QSize(100, 35));
    for (const QPoint place : {QPoint(5, 5), QPoint(94, 5), QPoint(5, 29), QPoint(94, 29), QPoint(50, 4)})
        QCOMPARE(picture.pixelColor(place), background);
    QVERIFY(pixelsOf(picture, background) > 35 * 100 / 2);
    QVERIFY2(pixelsOf(picture, text) > 20, qPrintable(QString::number(pixelsOf(picture, text))));
}

void ChargeButtonTest::aChangeOfStateIsPainted()
{
    ShownCard shown(true);
    shown.card.setBatteryCharged(false, false);
    QCOMPARE(shown.picture().pixelColor(5, 5), Red);
    shown.card.setBatteryCharged(true, false);
    QCOMPARE(shown.picture().pixelColor(5, 5), Green);
}

void ChargeButtonTest::theFocusIsSeen()
{
    QFETCH(bool, charged);
    QFETCH(QColor, background);
    ShownCard shown(charged);
    const QImage without = shown.picture();
    shown.button->setFocus();
    QTRY_VERIFY(shown.button->hasFocus());
    const QImage with = shown.picture();
    int clear = 0;
    for (int x = 0; x < with.width(); ++x)
        clear += contrast(with.pixelColor(x, 4), background) >= 3.0 ? 1 : 0;
    QVERIFY2(clear > 80, qPrintable(QString::number(clear)));
    QCOMPARE(without.pixelColor(50, 4), background);
}

void ChargeButtonTest::aPressedButtonIsDarker()
{
    QFETCH(bool, charged);
    QFETCH(QColor, background);
    ShownCard shown(charged);
    QTest::mousePress(shown.button, Qt::LeftButton);
    const QColor pressed = shown.picture().pixelColor(8, 8);
    QVERIFY(contrast(pressed, background) > 1.3);
    QVERIFY(luminance(pressed) < luminance(background));
}

void ChargeButtonTest::aButtonBelowThePointerHasAnotherBorder()
{
    QFETCH(QString, style);
    QFETCH(bool, charged);
    QFETCH(QColor, background);
    const Look look(style);
    ShownCard shown(charged);
    QCOMPARE(shown.picture().pixelColor(50, 2), background);
    QTest::mouseMove(shown.card.windowHandle(), shown.button->mapTo(&shown.card, QPoint(50, 17)));
    QTRY_VERIFY(shown.picture().pixelColor(50, 2) != background);
}

void ChargeButtonTest::aDisabledButtonIsPale()
{
    QFETCH(bool, charged);
    QFETCH(QColor, background);
    ShownCard shown(charged);
    shown.card.setEnabled(false);
    const QColor pale = shown.picture().pixelColor(5, 5);
    QCOMPARE(background.hsvSaturation(), 255);
    QVERIFY2(pale.hsvSaturation() < 160, qPrintable(pale.name()));
}

void ChargeButtonTest::theWholeTextIsPaintedInALargeFont_data()
{
    QTest::addColumn<int>("points");
    for (const int points : {9, 16, 24, 48})
        QTest::addRow("%d points", points) << points;
}

void ChargeButtonTest::theWholeTextIsPaintedInALargeFont()
{
    QFETCH(int, points);
    const Look look(u"Fusion"_s);
    QFont font = QApplication::font();
    font.setPointSize(points);
    font.setBold(true);
    QApplication::setFont(font);
    ShownCard shown(false);
    const auto [first, last] = textColumns(shown.picture(), White);
    QVERIFY2(first >= 5 && last <= 94, qPrintable(u"%1 to %2"_s.arg(first).arg(last)));
    QVERIFY(last - first > 50); // smaller where it must be, but never tiny
    const auto [top, bottom] = textColumns(shown.picture().transformed(QTransform(0, 1, 1, 0, 0, 0)), White);
    QVERIFY2(top > 6 && bottom < 28, qPrintable(u"%1 to %2"_s.arg(top).arg(bottom))); // nothing is cut off
}

void ChargeButtonTest::toEverybodyItIsAPushButton()
{
    ShownCard shown(true);
    QCOMPARE(shown.button->metaObject()->className(), "QPushButton");
}

void ChargeButtonTest::anotherStyleIsPaintedAndNotMeasured()
{
    const Look look(u"Fusion"_s);
    QApplication::setStyle(new AskedStyle);
    ShownCard shown(true);
    QCoreApplication::processEvents();
    const Paints paints(*shown.button);
    AskedStyle::asked = 0;
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(shown.button, &change);
    QTRY_VERIFY(paints.count > 0);
    QCOMPARE(AskedStyle::asked, 0);
}

void ChargeButtonTest::aDoubleClickIsOneClick()
{
    ShownCard shown(false);
    const QSignalSpy changes(&shown.card, &BatteryWidget::dataChanged);
    const QSignalSpy discharges(&shown.card, &BatteryWidget::chargeBatteryClicked);
    QTest::mouseDClick(shown.card.windowHandle(), Qt::LeftButton, {},
                       shown.button->mapTo(&shown.card, shown.button->rect().center()));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(discharges.count(), 0);
    QVERIFY(shown.card.getBatteryCharged());
}

void ChargeButtonTest::twoClicksAreTwo()
{
    ShownCard shown(false);
    const QSignalSpy changes(&shown.card, &BatteryWidget::dataChanged);
    const QSignalSpy discharges(&shown.card, &BatteryWidget::chargeBatteryClicked);
    QTest::mouseClick(shown.button, Qt::LeftButton);
    QTest::mouseClick(shown.button, Qt::LeftButton);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(discharges.count(), 1);
}

void ChargeButtonTest::theSecondPressOfADoubleClickElsewhereDoesNothing()
{
    ShownCard shown(false); // it has come below the pointer after the first press
    const QSignalSpy changes(&shown.card, &BatteryWidget::dataChanged);
    const QPointF place = shown.button->rect().center();
    QMouseEvent second(QEvent::MouseButtonDblClick, place, shown.button->mapToGlobal(place), Qt::LeftButton,
                       Qt::LeftButton, {});
    QCoreApplication::sendEvent(shown.button, &second);
    QTest::mouseRelease(shown.button, Qt::LeftButton);
    QCOMPARE(changes.count(), 0);
    QVERIFY(!shown.card.getBatteryCharged());
}

void ChargeButtonTest::theSpaceKeyTwiceIsTwoClicks()
{
    ShownCard shown(false);
    const QSignalSpy changes(&shown.card, &BatteryWidget::dataChanged);
    const QSignalSpy discharges(&shown.card, &BatteryWidget::chargeBatteryClicked);
    QTest::keyClick(shown.button, Qt::Key_Space);
    QTest::keyClick(shown.button, Qt::Key_Space);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(discharges.count(), 1);
}

QTEST_MAIN(ChargeButtonTest)
#include "tst_chargebutton.moc"
