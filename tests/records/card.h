// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QString>
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

} // namespace Card
