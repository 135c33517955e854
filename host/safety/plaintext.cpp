// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/plaintext.h"

namespace Host {
namespace {

/** Whether a terminal or a text field obeys this character instead of showing it. */
bool isCommand(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format: // such as those that turn the direction of a text
        return true;
    default:
        return false;
    }
}

} // namespace

QString plainLine(const QString &text)
{
    const QString line = text.simplified(); // line breaks become blanks
    QString plain;
    plain.reserve(line.size());
    const auto characters = line.toStdU32String();
    for (const char32_t character : characters) {
        if (!isCommand(character))
            plain += QChar::fromUcs4(character);
    }
    return plain.simplified();
}

} // namespace Host
