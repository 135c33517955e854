// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/breakable.h"

#include <QStringList>

namespace Host {
namespace {

constexpr qsizetype LongWord = 24;  // characters; longer ones are paths, or as hard to place
constexpr qsizetype LongPiece = 12; // of a long word without punctuation

QString breakableWord(QStringView word)
{
    constexpr QChar ZeroWidthSpace(0x200B);
    QString result;
    qsizetype piece = 0;
    for (const QChar character : word) {
        result += character;
        ++piece;
        const bool mayEnd = QStringView(u"/\\-_.").contains(character) && piece >= LongPiece / 2;
        const bool mustEnd = piece >= LongPiece && !character.isHighSurrogate();
        if (mayEnd || mustEnd) {
            result += ZeroWidthSpace;
            piece = 0;
        }
    }
    return result;
}

} // namespace

QString breakable(const QString &text)
{
    QStringList words = text.split(u' ');
    for (QString &word : words) {
        if (word.size() > LongWord)
            word = breakableWord(word);
    }
    return words.join(u' ');
}

} // namespace Host
