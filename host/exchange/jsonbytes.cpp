// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/jsonbytes.h"

#include <array>
#include <charconv>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Whether a character may not stand in a quoted text itself. */
bool isSpecial(char character)
{
    constexpr unsigned char FirstPrintable = 0x20;
    return static_cast<unsigned char>(character) < FirstPrintable || character == '"' || character == '\\';
}

QByteArray escaped(char character)
{
    switch (character) {
    case '"':
        return "\\\""_ba;
    case '\\':
        return "\\\\"_ba;
    case '\n':
        return "\\n"_ba;
    case '\r':
        return "\\r"_ba;
    case '\t':
        return "\\t"_ba;
    default:
        return "\\u00"_ba + QByteArray(1, character).toHex();
    }
}

void digits(QByteArray &bytes, int value, int count)
{
    std::array<char, 12> room;
    const auto result = std::to_chars(room.data(), room.data() + room.size(), value);
    bytes.append(qMax(qsizetype(0), count - (result.ptr - room.data())), '0');
    bytes.append(room.data(), result.ptr - room.data());
}

void day(QByteArray &bytes, QDate date)
{
    int year = 0;
    int month = 0;
    int dayOfMonth = 0;
    date.getDate(&year, &month, &dayOfMonth);
    digits(bytes, year, 4);
    bytes += '-';
    digits(bytes, month, 2);
    bytes += '-';
    digits(bytes, dayOfMonth, 2);
}

} // namespace

QByteArray JsonBytes::quoted(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    QByteArray result;
    result.reserve(bytes.size() + 2);
    result += '"';
    qsizetype done = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (!isSpecial(bytes.at(i)))
            continue;
        result.append(bytes.constData() + done, i - done);
        result += escaped(bytes.at(i));
        done = i + 1;
    }
    result.append(bytes.constData() + done, bytes.size() - done);
    result += '"';
    return result;
}

void JsonBytes::text(QByteArray &bytes, const QString &text)
{
    bytes += quoted(text);
}

void JsonBytes::number(QByteArray &bytes, qint64 value)
{
    std::array<char, 20> room;
    const auto result = std::to_chars(room.data(), room.data() + room.size(), value);
    bytes.append(room.data(), result.ptr - room.data());
}

void JsonBytes::share(QByteArray &bytes, unsigned int value, unsigned int parts)
{
    constexpr unsigned int Base = 10;
    number(bytes, value / parts);
    unsigned int rest = value % parts;
    if (rest != 0)
        bytes += '.';
    for (unsigned int place = parts / Base; rest != 0; place /= Base) {
        number(bytes, rest / place);
        rest %= place;
    }
}

void JsonBytes::date(QByteArray &bytes, QDate date)
{
    if (!date.isValid()) {
        bytes += "null";
        return;
    }
    bytes += '"';
    day(bytes, date);
    bytes += '"';
}

void JsonBytes::time(QByteArray &bytes, const QDateTime &time)
{
    if (!time.isValid()) {
        bytes += "null";
        return;
    }
    const QTime clock = time.time();
    bytes += '"';
    day(bytes, time.date());
    bytes += 'T';
    digits(bytes, clock.hour(), 2);
    bytes += ':';
    digits(bytes, clock.minute(), 2);
    bytes += ':';
    digits(bytes, clock.second(), 2);
    bytes += '"';
}

} // namespace Host
