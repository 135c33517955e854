// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "records/batterywidget.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <random>

using namespace Qt::Literals::StringLiterals;

/**
 * A user without a plan: clicks, types, turns the wheel and chooses on whatever is visible and enabled. The
 * same seed does the same things.
 */
class Monkey
{
public:
    explicit Monkey(unsigned int seed)
        : m_random(seed)
    {
    }

    /** A number from 0 on, below @p end; the same on every platform. */
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned int>(end)); }

    template <typename Items>
    auto oneOf(const Items &items)
    {
        return *(std::begin(items) + below(static_cast<int>(std::size(items))));
    }

    /** Does something to something on show, and tells what. */
    QString actOn(QWidget &window)
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            return actOnPopup(*popup);
        const QList<QWidget *> targets = someTargets(window);
        if (below(16) == 0)
            return pressKey(window.focusWidget() ? *window.focusWidget() : window);
        return actOnWidget(*oneOf(targets));
    }

    /** A name, a number, or something that no form is made for. */
    QString text()
    {
        const QString texts[] = {
            u"MyBattery"_s,      u"MyHeli"_s,
            u"MyLocation"_s,     u"1"_s,
            u"0.29"_s,           u"99999999999"_s,
            u"2026-02-30"_s,     u"<a b=\"c\">&amp;'"_s,
            u"]]><!--%1%2"_s,    u"  "_s,
            u"Å\u0301🔋\u202e"_s, u"\x01\x08\x0b"_s,
            u"\r\n\t\u2028"_s,   QString(QChar(0xD800)) + QChar(0xFFFF),
            QString(300, u'x'),
        };
        return oneOf(texts);
    }

private:
    /** Mixed so that the user comes around, fills in forms and often presses what takes effect. */
    QList<QWidget *> someTargets(const QWidget &window)
    {
        QList<QWidget *> targets = targetsIn(window);
        const QWidget *pages = window.findChild<QStackedWidget *>();
        const bool form = std::any_of(targets.cbegin(), targets.cend(), [](const QWidget *widget) {
            return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget);
        });
        const bool header = below(form ? 40 : 6) == 0;
        const bool home = below(8) == 0;
        const bool onlyButtons = below(form ? 8 : 2) == 0;
        targets.removeIf([&](const QWidget *widget) {
            const bool leadsOn = qobject_cast<const QPushButton *>(widget);
            return pages->isAncestorOf(widget) == header || (onlyButtons && !leadsOn) ||
                   (!home && widget->objectName() == u"pb_home"_s);
        });
        return targets.isEmpty() ? window.findChildren<QWidget *>(u"pb_options"_s) : targets;
    }

    static QList<QWidget *> targetsIn(const QWidget &window)
    {
        QList<QWidget *> targets;
        const auto widgets = window.findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            const bool part = qobject_cast<QAbstractSpinBox *>(widget->parent()) != nullptr;
            const bool toRead = widget->property("readOnly").toBool();
            if (widget->isVisible() && widget->isEnabled() && !part && !toRead && takesInput(widget))
                targets.append(widget);
        }
        return targets;
    }

    static bool takesInput(const QWidget *widget)
    {
        return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget) ||
               qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget) ||
               qobject_cast<const QAbstractSpinBox *>(widget);
    }

    /** The object name; that of the battery in front for the button of a card. */
    static QString nameOf(const QWidget &widget)
    {
        const auto *card = qobject_cast<const BatteryWidget *>(widget.parent());
        const QString owner = card ? card->getBatteryName() + u'/' : QString();
        return owner + (widget.objectName().isEmpty() ? QLatin1StringView(widget.metaObject()->className())
                                                      : widget.objectName());
    }

    QString actOnWidget(QWidget &widget)
    {
        if (qobject_cast<QAbstractButton *>(&widget))
            return below(8) == 0 ? pressKey(widget) : click(widget);
        if (qobject_cast<QPlainTextEdit *>(&widget) || qobject_cast<QLineEdit *>(&widget))
            return below(4) == 0 ? pressKey(widget) : enter(widget);
        switch (below(4)) { // a combo box or one of the spin boxes
        case 0:
            return click(widget);
        case 1:
            return turnWheel(widget);
        case 2:
            return qobject_cast<QAbstractSpinBox *>(&widget) ? enter(widget) : pressKey(widget);
        default:
            return pressKey(widget);
        }
    }

    QString actOnPopup(QWidget &popup)
    {
        QWidget *view = popup.findChild<QAbstractItemView *>();
        const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Return, Qt::Key_Escape};
        const Qt::Key key = oneOf(keys);
        QTest::keyClick(view ? view : &popup, key);
        return u"key %1 in a popup"_s.arg(key, 0, 16);
    }

    QString click(QWidget &widget)
    {
        const QString done = u"click "_s + nameOf(widget);
        const bool radio = widget.inherits("QRadioButton"); // its right part may be blank
        QTest::mouseClick(&widget, Qt::LeftButton, {}, radio ? QPoint(6, widget.height() / 2) : QPoint());
        return done;
    }

    QString turnWheel(QWidget &widget)
    {
        const int delta = below(2) == 0 ? 120 : -120;
        const QString done = u"wheel %1 on %2"_s.arg(delta).arg(nameOf(widget));
        const QPointF middle = widget.rect().center();
        QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, delta}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
        return done;
    }

    QString pressKey(QWidget &widget)
    {
        const Qt::Key keys[] = {Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Escape, Qt::Key_Return,
                                Qt::Key_Space,     Qt::Key_Up,      Qt::Key_Down,   Qt::Key_PageUp,
                                Qt::Key_Home,      Qt::Key_End,     Qt::Key_Delete, Qt::Key_Left,
                                Qt::Key_Backspace, Qt::Key_M,       Qt::Key_7};
        const Qt::Key key = oneOf(keys);
        const QString done = u"key %1 on %2"_s.arg(key, 0, 16).arg(nameOf(widget));
        QTest::keyClick(&widget, key);
        return done;
    }

    /** Pastes a text, mostly in place of what was there: no keyboard types all of them. */
    QString enter(QWidget &widget)
    {
        const QString pasted = text();
        const QString done = u"enter \"%1\" in %2"_s.arg(pasted, nameOf(widget));
        QApplication::clipboard()->setText(pasted);
        if (below(4) != 0)
            QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
        return done;
    }

    std::mt19937 m_random;
};
