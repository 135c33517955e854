// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/breakable.h"

namespace Host {

QString breakable(const QString &text)
{
    constexpr qsizetype LongPiece = 12; // characters of a word in which no line may end
    constexpr QChar ZeroWidthSpace(0x200B);
    QString result;
    qsizetype piece = 0;
    for (const QChar character : text) {
        result += character;
        piece = character.isSpace() ? 0 : piece + 1;
        const bool mayEnd = character == u'/' || character == u'-' || character == u'_' || character == u'.';
        const bool mustEnd = piece >= 2 * LongPiece && !character.isHighSurrogate();
        if ((mayEnd && piece >= LongPiece) || mustEnd) {
            result += ZeroWidthSpace;
            piece = 0;
        }
    }
    return result;
}

} // namespace Host
