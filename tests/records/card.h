// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QString>
#include <QTranslator>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

/** What the tests of a battery's card look for in it. */
namespace Card {

template <typename Widget = QLabel>
Widget *find(const QWidget &card, const char *name)
{
    auto *widget = card.findChild<Widget *>(QLatin1StringView(name));
    Q_ASSERT(widget);
    return widget;
}

/** Turns every text of the card into the same text in angle brackets. */
class BracketTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (qstrcmp(context, "BatteryWidget") != 0)
            return {};
        return u'<' + QLatin1StringView(text) + u'>';
    }
    bool isEmpty() const override { return false; }
};

} // namespace Card
