// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/** How many characters of a name or a place a card, a label or a chooser shows at most. */
inline constexpr qsizetype LongestShownText = 1000;

/**
 * The beginning of a text, as much of it as is laid out and painted. Qt's text layout takes minutes for a
 * name of a hundred megabytes, and breaks down beyond; the record keeps the whole.
 *
 * Inline as the generated forms that use it, which are compiled outside the library, too.
 */
inline QString shortText(const QString &text)
{
    if (text.size() <= LongestShownText)
        return text;
    const bool splitsACharacter = text.at(LongestShownText - 1).isHighSurrogate();
    return text.left(splitsACharacter ? LongestShownText - 1 : LongestShownText);
}

/** A tooltip that tells a name which does not fit where it stands. A name is never markup. */
inline QString wholeNameTip(const QString &name)
{
    using namespace Qt::Literals::StringLiterals;
    return u"<p>"_s + shortText(name).toHtmlEscaped() + u"</p>"_s;
}
