// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTranslator>

#include <algorithm>

namespace Test {

using namespace Qt::Literals::StringLiterals;

/** How a text reads in the foreign language: in brackets, but for what a mask must let in. */
inline QString foreign(const QString &source)
{
    const auto isOneOf = [&source](const QString &characters) {
        return !source.isEmpty() && std::all_of(source.cbegin(), source.cend(), [&](QChar character) {
            return characters.contains(character);
        });
    };
    if (isOneOf(u"0.-"_s)) // a mask gets another place
        return u'0' + source;
    if (!isOneOf(u"0123456789.-"_s))
        return u'[' + source + u']';
    QString number = source; // a mask must let it in: every digit is the next one
    for (QChar &character : number) {
        if (character.isDigit())
            character = QChar(u'0' + (character.digitValue() + 1) % 10);
    }
    return number;
}

/** A language in which every text of the window and of the cards reads as foreign() says. */
class ForeignLanguage : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        const bool ours = qstrcmp(context, "VoltbokGui") == 0 || qstrcmp(context, "BatteryWidget") == 0;
        return ours ? foreign(QString::fromUtf8(source)) : QString();
    }
};

} // namespace Test
