// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/jsonbytes.h"

#include <algorithm>
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
        return R"(\")"_ba;
    case '\\':
        return R"(\\)"_ba;
    case '\n':
        return R"(\n)"_ba;
    case '\r':
        return R"(\r)"_ba;
    case '\t':
        return R"(\t)"_ba;
    default:
        return R"(\u00)"_ba + QByteArray(1, character).toHex();
    }
}

/** Writes a number with so many digits at least. @return where it ends. */
char *digits(char *to, int value, int count)
{
    std::array<char, 12> room;
    const auto result = std::to_chars(room.data(), room.data() + room.size(), value);
    for (auto written = result.ptr - room.data(); written < count; ++written)
        *to++ = '0';
    return std::copy(room.data(), result.ptr, to);
}

/** "2026-11-10". */
char *day(char *to, QDate date)
{
    int year = 0;
    int month = 0;
    int dayOfMonth = 0;
    date.getDate(&year, &month, &dayOfMonth);
    to = digits(to, year, 4);
    *to++ = '-';
    to = digits(to, month, 2);
    *to++ = '-';
    return digits(to, dayOfMonth, 2);
}

/** Far more than any date and time takes. */
using Room = std::array<char, 64>;

void append(QByteArray &bytes, const Room &room, const char *end)
{
    bytes.append(room.data(), end - room.data());
}

/** Appends a text that is as it is in JSON, as most are. @return false for any other. */
bool appendPlain(QByteArray &bytes, const QString &text)
{
    constexpr char16_t LastOfAscii = 0x7e;
    const qsizetype start = bytes.size();
    bytes.resize(start + text.size() + 2);
    char *to = bytes.data() + start;
    *to++ = '"';
    for (const QChar character : text) {
        const auto narrow = static_cast<char>(character.unicode());
        if (character.unicode() > LastOfAscii || isSpecial(narrow)) {
            bytes.resize(start);
            return false;
        }
        *to++ = narrow;
    }
    *to = '"';
    return true;
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
    if (!appendPlain(bytes, text))
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
    Room room;
    char *to = room.data();
    *to++ = '"';
    to = day(to, date);
    *to++ = '"';
    append(bytes, room, to);
}

void JsonBytes::time(QByteArray &bytes, const QDateTime &time)
{
    if (!time.isValid()) {
        bytes += "null";
        return;
    }
    const QTime clock = time.time();
    Room room;
    char *to = room.data();
    *to++ = '"';
    to = day(to, time.date());
    *to++ = 'T';
    to = digits(to, clock.hour(), 2);
    *to++ = ':';
    to = digits(to, clock.minute(), 2);
    *to++ = ':';
    to = digits(to, clock.second(), 2);
    *to++ = '"';
    append(bytes, room, to);
}

} // namespace Host
