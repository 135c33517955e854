// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/plaintext.h"

namespace Host {

QString plainLine(const QString &text)
{
    QString line = text.simplified(); // line breaks become blanks
    line.removeIf(
        [](QChar c) { return c.category() == QChar::Other_Control || c.category() == QChar::Other_Format; });
    return line;
}

} // namespace Host
