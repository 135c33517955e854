// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/flightbook.h"

#include "host/data/moments.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr qsizetype LongestPart = 300; // characters
constexpr qsizetype MostLines = 20;    // of a part

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(FlightBook)
};

/** Whether a flight stands before another one; those without a time stand last. */
bool isEarlier(const FlightBookEntry &left, const FlightBookEntry &right)
{
    const QDateTime &one = left.flight.time;
    const QDateTime &other = right.flight.time;
    if (one.isValid() != other.isValid())
        return one.isValid();
    return momentOf(one) < momentOf(other);
}

QStringList batteriesAt(const Catalogue &catalogue, const Moments &moments, const QDateTime &time)
{
    QStringList names;
    const QList<DischargePlace> places = moments.firstDischargesAt(momentOf(time));
    for (const DischargePlace &place : places)
        names.append(catalogue.batteries.at(place.battery).name);
    return names;
}

bool isPrintable(char32_t character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
        return character == U'\n' || character == U'\t';
    case QChar::Other_NotAssigned: // among them what a text document keeps for its own structure
    case QChar::Other_Surrogate:
        return false;
    default:
        return character != QChar::ObjectReplacementCharacter;
    }
}

QString printable(QString text)
{
    if (std::all_of(text.cbegin(), text.cend(), [](QChar character) {
            return character.isPrint() && character != QChar::ObjectReplacementCharacter;
        }))
        return text;
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    QString result;
    result.reserve(text.size());
    const auto characters = text.toStdU32String();
    for (const char32_t character : characters)
        result +=
            isPrintable(character) ? QString::fromUcs4(&character, 1) : QString(QChar::ReplacementCharacter);
    return result;
}

/** How many characters of a text from @p from on make a part. */
qsizetype lengthOfPart(QStringView text)
{
    qsizetype lines = 0;
    for (qsizetype i = 0; i < qMin(text.size(), LongestPart); ++i) {
        if (text.at(i) == u'\n' && ++lines == MostLines)
            return i + 1;
    }
    if (text.size() <= LongestPart)
        return text.size();
    for (qsizetype i = LongestPart; i > LongestPart / 2; --i) { // between words, where there are any
        if (text.at(i - 1).isSpace())
            return i;
    }
    return text.at(LongestPart - 1).isHighSurrogate() ? LongestPart - 1 : LongestPart;
}

} // namespace

FlightBookTotals FlightBook::totals(qsizetype first, qsizetype count) const
{
    FlightBookTotals totals{count, 0};
    for (qsizetype i = first; i < first + count; ++i)
        totals.seconds += entries.at(i).flight.seconds();
    return totals;
}

FlightBook flightBookOf(const Catalogue &catalogue, const DateRange &range,
                        const std::optional<QStringList> &models)
{
    const Moments moments(catalogue);
    FlightBook book{range, models, {}};
    for (const Model &model : catalogue.models) {
        if (models && !models->contains(model.name))
            continue;
        for (const Flight &flight : model.log) {
            if (range.contains(flight.time))
                book.entries.append({flight, model.name, batteriesAt(catalogue, moments, flight.time)});
        }
    }
    std::stable_sort(book.entries.begin(), book.entries.end(), isEarlier);
    return book;
}

QString FlightBookTexts::title()
{
    return Text::tr("Flight book");
}

QString FlightBookTexts::limits(const FlightBook &book, const QLocale &locale)
{
    QStringList limits;
    const auto &[from, to] = book.range;
    if (from && to)
        limits.append(Text::tr("%1 to %2").arg(day(*from, locale), day(*to, locale)));
    else if (from)
        limits.append(Text::tr("from %1 on").arg(day(*from, locale)));
    else if (to)
        limits.append(Text::tr("until %1").arg(day(*to, locale)));
    if (book.models)
        limits.append(printable(book.models->join(u"; "_s)).simplified());
    return limits.join(u", "_s);
}

QStringList FlightBookTexts::headings()
{
    return {Text::tr("Date"),      Text::tr("Start"),    Text::tr("Duration"), Text::tr("Model"),
            Text::tr("Batteries"), Text::tr("Location"), Text::tr("Notes")};
}

QStringList FlightBookTexts::cells(const FlightBookEntry &entry, const QLocale &locale)
{
    const Flight &flight = entry.flight;
    return {day(flight.time.date(), locale),
            locale.toString(flight.time.time(), QLocale::ShortFormat),
            flight.duration.toString(u"HH:mm:ss"),
            entry.model,
            entry.batteries.join(u"; "_s),
            flight.location,
            flight.notes};
}

/** A date with all digits of its year, which short forms leave out; in the order of the data where the system
 * has no language. */
QString FlightBookTexts::day(QDate date, const QLocale &locale)
{
    if (locale.language() == QLocale::C)
        return date.toString(Qt::ISODate);
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(u"yyyy"_s))
        format.replace(u"yy"_s, u"yyyy"_s);
    return locale.toString(date, format);
}

QString FlightBookTexts::hours(qint64 seconds)
{
    constexpr qint64 Sixty = 60;
    const auto twoDigits = [](qint64 number) { return u"%1"_s.arg(number, 2, 10, QLatin1Char('0')); };
    return twoDigits(seconds / (Sixty * Sixty)) + u':' + twoDigits(seconds / Sixty % Sixty) + u':' +
           twoDigits(seconds % Sixty);
}

QStringList FlightBookTexts::parts(const QString &text)
{
    const QString whole = printable(text);
    QStringList parts;
    for (QStringView rest = whole; !rest.isEmpty();) {
        const qsizetype length = lengthOfPart(rest);
        parts.append(rest.left(length).trimmed().toString());
        rest = rest.mid(length);
    }
    return parts;
}

} // namespace Host
