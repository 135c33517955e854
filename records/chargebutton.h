// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QPushButton>

/**
 * The button of a card; its style sheet costs nothing until it is polished.
 *
 * A push button answers a change of style with asking for its place in a layout, for which Qt works out all
 * rules of the style sheet, only to forget them when the button is polished. The colours of a card change
 * nothing of the place, so that answer is left out until then: it was a quarter of what building a card took.
 *
 * Inline as the generated form that makes it, which is compiled outside the library, too.
 */
class ChargeButton : public QPushButton // clazy:exclude=missing-qobject-macro
{
public:
    using QPushButton::QPushButton;

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::Polish)
            m_polished = true;
        if (event->type() == QEvent::StyleChange && !m_polished)
            return true;
        return QPushButton::event(event);
    }

private:
    bool m_polished = false;
};
