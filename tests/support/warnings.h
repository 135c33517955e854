// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRegularExpression>
#include <QTest>

namespace Test {

using namespace Qt::Literals::StringLiterals;

/**
 * From here on, every warning fails the test function that made it. The offscreen platform complains of what
 * it cannot do; whatever else is said is ours.
 */
inline void failOnWarnings()
{
    QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s));
}

} // namespace Test
