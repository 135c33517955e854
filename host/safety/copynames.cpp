// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/backups.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr QStringView DateFormat = u"yyyyMMdd";
constexpr QStringView TimeFormat = u"HHmmss-zzz";

/**
 * The moment at which clocks here showed this date and time, in UTC. An hour that they skipped is read as if
 * they had not been changed yet: a copy of another time zone must not vanish.
 */
QDateTime fromLocal(QDate date, QTime time)
{
    const QDateTime local(date, time);
    if (local.isValid() && local.date() == date && local.time() == time)
        return local.toUTC();
    const QDateTime asUtc(date, time, Qt::UTC);
    return asUtc.addSecs(-asUtc.addDays(-1).toLocalTime().offsetFromUtc());
}

} // namespace

std::optional<Copy> Backups::parse(const QString &fileName)
{
    // Twelve digits hold any number that a disk full of copies can reach, and can be counted on from.
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        u"voltbok-(?:([0-9]{8,12})-(kept-)?)?([0-9]{8})-([0-9]{6}-[0-9]{3})(Z?)\\.xml"_s));
    const QRegularExpressionMatch match = pattern.match(fileName);
    const bool numbered = match.hasCaptured(1);
    const bool utc = !match.captured(5).isEmpty();
    const QDate date = QDate::fromString(match.captured(3), DateFormat);
    const QTime time = QTime::fromString(match.captured(4), TimeFormat);
    if (!match.hasMatch() || (numbered && !utc) || !date.isValid() || !time.isValid())
        return std::nullopt;
    Copy copy;
    copy.name = fileName;
    copy.stamp = match.captured(3) + u'-' + match.captured(4) + match.captured(5);
    copy.number = match.captured(1).toULongLong();
    copy.time = utc ? QDateTime(date, time, Qt::UTC) : fromLocal(date, time);
    copy.kept = !match.captured(2).isEmpty();
    return copy;
}

QString Backups::fileName(const Copy &copy)
{
    const QDateTime time = copy.time.toUTC();
    return u"voltbok-%1-%2%3-%4Z.xml"_s.arg(
        QString::number(copy.number).rightJustified(8, u'0'), copy.kept ? u"kept-"_s : QString(),
        time.date().toString(DateFormat), time.time().toString(TimeFormat));
}

QString Backups::longStamp(const QString &copyName)
{
    return copyName.chopped(4).sliced(8); // without "voltbok-" and ".xml"
}

QString Backups::measuredName(const QString &copyName)
{
    return copyName.chopped(4) + u".json"_s; // instead of ".xml"
}

} // namespace Host
