// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/radiologrow.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace Host {
namespace {

constexpr qint64 MillisecondsOfADay = 86'400'000;

QByteArrayView trimmed(QByteArrayView field)
{
    while (!field.isEmpty() && (field.front() == ' ' || field.front() == '\t'))
        field = field.sliced(1);
    while (!field.isEmpty() && (field.back() == ' ' || field.back() == '\t'))
        field.chop(1);
    return field;
}

/** Where the field that begins with a quote ends; -1 when its quote is never closed. */
qsizetype endOfQuoted(QByteArrayView line, qsizetype from)
{
    for (qsizetype quote = line.indexOf('"', from + 1); quote >= 0; quote = line.indexOf('"', quote + 1)) {
        if (quote + 1 < line.size() && line.at(quote + 1) == '"') {
            ++quote;
            continue;
        }
        if (quote + 1 == line.size() || line.at(quote + 1) == ',')
            return quote + 1;
    }
    return -1;
}

/** Reads as many digits as the field has, up to @p most; -1 when it begins with none. */
int digits(QByteArrayView field, qsizetype from, qsizetype count)
{
    int value = 0;
    for (qsizetype i = from; i < from + count; ++i) {
        const char digit = field.at(i);
        if (digit < '0' || digit > '9')
            return -1;
        value = value * 10 + (digit - '0');
    }
    return value;
}

/** The milliseconds of ".060"; of more than three digits the others are dropped; -1 for anything else. */
int fraction(QByteArrayView field)
{
    if (field.isEmpty())
        return 0;
    if (field.front() != '.' || field.size() > 10)
        return -1;
    int value = 0;
    for (qsizetype i = 1; i <= std::max(field.size() - 1, qsizetype(3)); ++i) {
        const int digit = i < field.size() ? digits(field, i, 1) : 0;
        if (digit < 0)
            return -1;
        if (i <= 3)
            value = value * 10 + digit;
    }
    return value;
}

} // namespace

void LogFields::split(QByteArrayView line, qsizetype wanted)
{
    m_fields.clear();
    if (!line.contains('"') || !splitQuoted(line, wanted))
        splitPlain(line, wanted);
}

bool LogFields::splitQuoted(QByteArrayView line, qsizetype wanted)
{
    m_count = 0;
    for (qsizetype begin = 0; begin <= line.size(); ++m_count) {
        const bool isQuoted = begin < line.size() && line.at(begin) == '"';
        qsizetype end = isQuoted ? endOfQuoted(line, begin) : line.indexOf(',', begin);
        if (end < 0 && isQuoted) {
            m_fields.clear();
            return false; // a quote is a sign like any other, or the row was cut
        }
        if (end < 0)
            end = line.size();
        if (m_count < wanted)
            m_fields.push_back(isQuoted ? line.sliced(begin + 1, end - begin - 2)
                                        : trimmed(line.sliced(begin, end - begin)));
        begin = end + 1;
    }
    return true;
}

void LogFields::splitPlain(QByteArrayView line, qsizetype wanted)
{
    const char *const end = line.data() + line.size();
    const char *begin = line.data();
    for (m_count = 0; m_count < wanted; ++m_count) {
        const char *const comma = std::find(begin, end, ',');
        m_fields.push_back(trimmed(QByteArrayView(begin, comma)));
        if (comma == end) {
            ++m_count;
            return;
        }
        begin = comma + 1;
    }
    m_count += std::count(begin, end, ',') + 1;
}

std::optional<double> logNumber(QByteArrayView field)
{
    static constexpr std::array<double, 16> Powers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const bool isNegative = !field.isEmpty() && field.front() == '-';
    qint64 value = 0;
    qsizetype count = 0;
    qsizetype decimals = -1;
    for (qsizetype i = isNegative ? 1 : 0; i < field.size(); ++i) {
        const char sign = field.at(i);
        if (sign == '.' && decimals < 0) {
            decimals = 0;
            continue;
        }
        if (sign < '0' || sign > '9' || ++count > 15)
            break;
        value = value * 10 + (sign - '0');
        decimals += decimals < 0 ? 0 : 1;
        if (i + 1 ==
            field.size()) { // all of it is this simple: fifteen digits are exact, and so is the quotient
            const double number =
                static_cast<double>(value) / Powers[static_cast<size_t>(std::max(decimals, qsizetype(0)))];
            return isNegative ? -number : number;
        }
    }
    bool isNumber = false;
    const double number = field.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<ClockTime> LogClock::read(QByteArrayView date, QByteArrayView time)
{
    const std::optional<ClockTime> midnight = day(date);
    if (!midnight || time.size() < 8 || time.at(2) != ':' || time.at(5) != ':')
        return std::nullopt;
    const int hours = digits(time, 0, 2);
    const int minutes = digits(time, 3, 2);
    const int seconds = digits(time, 6, 2);
    const int milliseconds = fraction(time.sliced(8));
    if (hours < 0 || hours > 23 || minutes < 0 || minutes > 59 || seconds < 0 || seconds > 59 ||
        milliseconds < 0)
        return std::nullopt;
    return *midnight + ((hours * 60LL + minutes) * 60 + seconds) * 1000 + milliseconds;
}

std::optional<ClockTime> LogClock::day(QByteArrayView date)
{
    if (date.size() != sizeof m_date)
        return std::nullopt;
    if (std::memcmp(date.data(), m_date, sizeof m_date) == 0)
        return m_midnight;
    if (date.at(4) != '-' || date.at(7) != '-')
        return std::nullopt;
    const QDate read(digits(date, 0, 4), digits(date, 5, 2), digits(date, 8, 2));
    if (!read.isValid() || read.year() < 1)
        return std::nullopt;
    m_midnight = read.toJulianDay() * MillisecondsOfADay;
    std::memcpy(m_date, date.data(), sizeof m_date);
    return m_midnight;
}

} // namespace Host
