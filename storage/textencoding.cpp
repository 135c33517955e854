// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/textencoding.h"

#include "storage/plaindate.h"

namespace {

constexpr QStringView datePattern = u"yyyy/MM/dd";

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

QString TextEncoding::fromUnsigned(unsigned int value)
{
    return QString::number(value, 10);
}

unsigned int TextEncoding::toUnsigned(QStringView text)
{
    return text.toUInt();
}

QString TextEncoding::fromSigned(int value)
{
    // Meant: the file knows unsigned numbers only, and the bits make the round trip.
    return fromUnsigned(static_cast<unsigned int>(value));
}

int TextEncoding::toSigned(QStringView text)
{
    return static_cast<int>(toUnsigned(text));
}

QString TextEncoding::fromBoolean(bool value)
{
    return QString::number(static_cast<int>(value));
}

bool TextEncoding::toBoolean(QStringView text)
{
    return toUnsigned(text) == 1;
}

QString TextEncoding::fromDate(QDate date)
{
    return date.toString(datePattern);
}

QDate TextEncoding::toDate(const QString &text)
{
    return QDate::fromString(text, datePattern);
}

QString TextEncoding::fromDateTime(const QDateTime &when)
{
    const auto plain = PlainDate::fromDateTime(when);
    return plain ? *plain : when.toString(Qt::TextDate);
}

QDateTime TextEncoding::toDateTime(QStringView text)
{
    const auto plain = PlainDate::toDateTime(text);
    return plain ? *plain : QDateTime::fromString(text, Qt::TextDate);
}

QString TextEncoding::fromTime(QTime time)
{
    const auto plain = PlainDate::fromTime(time);
    return plain ? *plain : time.toString(Qt::TextDate);
}

QTime TextEncoding::toTime(QStringView text)
{
    const auto plain = PlainDate::toTime(text);
    return plain ? *plain : QTime::fromString(text, Qt::TextDate);
}

QString TextEncoding::toText(QStringView value)
{
    return value.toString().remove(QChar::Null);
}

QString TextEncoding::xmlText(const QString &text)
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
        index += qMax(length, qsizetype(1));
    }
    return kept;
}
