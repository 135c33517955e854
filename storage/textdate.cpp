// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/textdate.h"

#include <algorithm>

namespace {

// "Sun Nov 15 12:04:22 2026"; with a day of one digit it is one character shorter.
constexpr QStringView DayNames = u"MonTueWedThuFriSatSun";
constexpr QStringView MonthNames = u"JanFebMarAprMayJunJulAugSepOctNovDec";
constexpr qsizetype NameLength = 3;
constexpr qsizetype TimeLength = 8;
constexpr qsizetype YearLength = 4;
constexpr qsizetype LengthWithoutDay = 22;
constexpr int FirstYear = 1000;
constexpr int LastYear = 9999;

/** Puts characters down at @p to and returns where the next ones belong. */
QChar *put(QChar *to, QStringView characters)
{
    return std::copy(characters.begin(), characters.end(), to);
}

/** Puts a number down with @p count digits. */
QChar *put(QChar *to, int number, qsizetype count)
{
    for (qsizetype i = count - 1; i >= 0; --i) {
        to[i] = QChar(u'0' + number % 10);
        number /= 10;
    }
    return to + count;
}

/**
 * The local time, in standard time where the clocks show it twice.
 *
 * The newer Qt asks the system about summer time unless it is told to prefer standard time, and where there
 * is no summer time the system searches its whole past for one: some hundred times as long as all the rest.
 */
QDateTime localTime(QDate date, QTime time)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    return QDateTime(date, time, QDateTime::TransitionResolution::PreferStandard);
#else
    return QDateTime(date, time);
#endif
}

QChar *put(QChar *to, QTime time)
{
    to = put(put(to, time.hour(), 2), u":");
    to = put(put(to, time.minute(), 2), u":");
    return put(to, time.second(), 2);
}

/** The name with this number in a list of names; the first has the number 1. */
QStringView name(QStringView names, int number)
{
    return names.mid((number - 1) * NameLength, NameLength);
}

/** The number of a name in a list of names; 0 if it is not there. */
int numberOf(QStringView name, QStringView names)
{
    for (qsizetype i = 0; i < names.size(); i += NameLength) {
        if (std::equal(name.begin(), name.end(), names.begin() + i))
            return static_cast<int>(i / NameLength) + 1;
    }
    return 0;
}

/** The number that plain digits spell; -1 if there is anything else among them. */
int number(QStringView digits)
{
    int value = 0;
    for (const QChar digit : digits) {
        if (digit < u'0' || digit > u'9')
            return -1;
        value = value * 10 + (digit.unicode() - u'0');
    }
    return value;
}

/** A valid local time in a year of four digits; null for anything else. */
QString plainText(const QDateTime &when)
{
    const QDate date = when.date();
    int year = 0;
    int month = 0;
    int day = 0;
    date.getDate(&year, &month, &day);
    if (!when.isValid() || when.timeSpec() != Qt::LocalTime || year < FirstYear || year > LastYear)
        return {};

    const qsizetype dayLength = day < 10 ? 1 : 2;
    QString text(LengthWithoutDay + dayLength, Qt::Uninitialized);
    QChar *end = text.data();
    end = put(put(end, name(DayNames, date.dayOfWeek())), u" ");
    end = put(put(end, name(MonthNames, month)), u" ");
    end = put(put(end, day, dayLength), u" ");
    end = put(put(end, when.time()), u" ");
    put(end, year, YearLength);
    return text;
}

/** The time that "12:04:22" spells; null for a text of another shape. */
QTime plainTime(QStringView text)
{
    if (text.size() != TimeLength || text.at(2) != u':' || text.at(5) != u':')
        return {};
    const QTime time(number(text.mid(0, 2)), number(text.mid(3, 2)), number(text.mid(6, 2)));
    return time.isValid() ? time : QTime();
}

/** The local time that a text of the usual shape spells; null for a text of another shape. */
QDateTime plainDateTime(QStringView text)
{
    const qsizetype dayLength = text.size() - LengthWithoutDay;
    if (dayLength != 1 && dayLength != 2)
        return {};
    const QStringView monthName = text.mid(NameLength + 1, NameLength);
    const QStringView day = text.mid(2 * (NameLength + 1), dayLength);
    const QStringView clock = text.last(TimeLength + 1 + YearLength).first(TimeLength);
    const QStringView year = text.last(YearLength);
    const bool spaced = *(monthName.begin() - 1) == u' ' && *monthName.end() == u' ' && *day.end() == u' ' &&
                        *clock.end() == u' ';
    if (!spaced || numberOf(text.first(NameLength), DayNames) == 0 || number(year) < FirstYear)
        return {};

    const QDate date(number(year), numberOf(monthName, MonthNames), number(day));
    const QTime time = plainTime(clock);
    if (!date.isValid() || time.isNull())
        return {};
    return localTime(date, time);
}

} // namespace

QString TextDate::fromDateTime(const QDateTime &when)
{
    const QString plain = plainText(when);
    return plain.isNull() ? when.toString(Qt::TextDate) : plain;
}

QDateTime TextDate::toDateTime(QStringView text)
{
    const QDateTime plain = plainDateTime(text);
    return plain.isNull() ? QDateTime::fromString(text, Qt::TextDate) : plain;
}

QString TextDate::fromTime(QTime time)
{
    if (!time.isValid())
        return time.toString(Qt::TextDate);
    QString text(TimeLength, Qt::Uninitialized);
    put(text.data(), time);
    return text;
}

QTime TextDate::toTime(QStringView text)
{
    const QTime plain = plainTime(text);
    return plain.isNull() ? QTime::fromString(text, Qt::TextDate) : plain;
}
