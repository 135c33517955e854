// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/valuetext.h"

#include <algorithm>

namespace {

constexpr QStringView DatePattern = u"yyyy/MM/dd";

bool isXmlControl(char16_t unit)
{
    return unit == u'\t' || unit == u'\n' || unit == u'\r';
}

/** The number of code units from @p index on that make up a character XML can hold; 0 if there is none. */
qsizetype xmlCharacterLength(QStringView text, qsizetype index)
{
    const QChar unit = text.at(index);
    if (unit.isHighSurrogate())
        return index + 1 < text.size() && text.at(index + 1).isLowSurrogate() ? 2 : 0;
    if (unit.isLowSurrogate())
        return 0;
    const char16_t code = unit.unicode();
    return (code >= u' ' && code < 0xFFFE) || isXmlControl(code) ? 1 : 0;
}

} // namespace

QString ValueText::fromUnsigned(unsigned int value)
{
    return QString::number(value, 10);
}

unsigned int ValueText::toUnsigned(QStringView text)
{
    return text.toUInt();
}

QString ValueText::fromSigned(int value)
{
    // Intentional: the file knows unsigned numbers only, and the bits make the round trip.
    return fromUnsigned(static_cast<unsigned int>(value));
}

int ValueText::toSigned(QStringView text)
{
    return static_cast<int>(toUnsigned(text));
}

QString ValueText::fromBoolean(bool value)
{
    return QString::number(static_cast<int>(value));
}

bool ValueText::toBoolean(QStringView text)
{
    return toUnsigned(text) == 1;
}

QString ValueText::fromDate(QDate date)
{
    return date.toString(DatePattern);
}

QDate ValueText::toDate(const QString &text)
{
    return QDate::fromString(text, DatePattern);
}

QString ValueText::toText(QStringView value)
{
    return value.toString().remove(QChar::Null);
}

QString ValueText::xmlText(const QString &text)
{
    qsizetype index = 0;
    while (index < text.size()) {
        const qsizetype length = xmlCharacterLength(text, index);
        if (length == 0)
            break;
        index += length;
    }
    if (index == text.size()) // nearly every text: shared, not copied
        return text;

    QString kept = text.left(index);
    while (index < text.size()) {
        const qsizetype length = xmlCharacterLength(text, index);
        kept += QStringView(text).mid(index, length);
        index += std::max<qsizetype>(length, 1);
    }
    return kept;
}
