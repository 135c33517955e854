// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/radiologrow.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace Host {
namespace {

constexpr qint64 MillisecondsOfADay = 86'400'000;

/** How many there are. Of so few that a byte can count them, a processor takes sixteen at once. */
qsizetype commas(const char *begin, const char *end)
{
    constexpr qsizetype Block = 255;
    qsizetype count = 0;
    while (begin < end) {
        const char *const blockEnd = begin + std::min<qsizetype>(Block, end - begin);
        quint8 inBlock = 0;
        for (; begin < blockEnd; ++begin)
            inBlock = static_cast<quint8>(inBlock + (*begin == ',' ? 1 : 0));
        count += inBlock;
    }
    return count;
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

QStringList LogFields::texts(const QList<qsizetype> &indexes) const
{
    QStringList texts;
    for (const qsizetype index : indexes)
        texts.append(QString::fromUtf8(at(index)));
    return texts;
}

void LogFields::split(QByteArrayView line, qsizetype wanted)
{
    if (const auto size = static_cast<size_t>(wanted); m_fields.size() < size)
        m_fields.resize(size);
    if (!line.contains('"') || !splitQuoted(line, wanted))
        splitPlain(line, wanted);
}

bool LogFields::splitQuoted(QByteArrayView line, qsizetype wanted)
{
    m_count = 0;
    for (qsizetype begin = 0; begin <= line.size(); ++m_count) {
        const bool isQuoted = begin < line.size() && line.at(begin) == '"';
        qsizetype end = isQuoted ? endOfQuoted(line, begin) : line.indexOf(',', begin);
        if (end < 0 && isQuoted)
            return false; // a quote is a sign like any other, or the row was cut
        if (end < 0)
            end = line.size();
        if (m_count < wanted)
            setField(line.data() + begin + (isQuoted ? 1 : 0), line.data() + end - (isQuoted ? 1 : 0));
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
        setField(begin, comma);
        if (comma == end) {
            ++m_count;
            return;
        }
        begin = comma + 1;
    }
    m_count += commas(begin, end) + 1;
}

double logNumber(QByteArrayView field)
{
    static constexpr std::array<double, 16> Powers{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const bool isNegative = !field.isEmpty() && field.front() == '-';
    const char *sign = field.data() + (isNegative ? 1 : 0);
    const char *const end = field.data() + field.size();
    const char *point = end;
    qint64 value = 0;
    // All but few numbers are this simple: fifteen digits are exact, and so is their quotient.
    if (sign != end && end - sign <= 15) {
        for (; sign != end; ++sign) {
            if (*sign >= '0' && *sign <= '9')
                value = value * 10 + (*sign - '0');
            else if (*sign == '.' && point == end && end - sign > 1)
                point = sign;
            else
                break;
        }
        if (sign == end) {
            const qsizetype decimals = point == end ? 0 : end - point - 1;
            const double number = static_cast<double>(value) / Powers[static_cast<size_t>(decimals)];
            return isNegative ? -number : number;
        }
    }
    bool isNumber = false;
    const double number = field.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? number : qQNaN();
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
