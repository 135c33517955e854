// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/safety/backups.h"

#include <QHash>
#include <QSet>

#include <chrono>

namespace Host {
namespace {

using namespace std::chrono_literals;

constexpr qint64 SlotMs = std::chrono::milliseconds(10min).count();
constexpr qint64 DayMs = std::chrono::milliseconds(24h).count();
constexpr int DailyDays = 31;

/** The first and the last copy, in the order in which they were made, of one slot, day or month. */
struct Ends
{
    QString first;
    QString last;
};

/** The copies in groups by age. Days and months are those of the clock on the wall. */
struct Groups
{
    QHash<qint64, Ends> slots10min;
    QHash<QDate, Ends> days;
    QHash<QDate, Ends> months;
};

qint64 slotOf(const Copy &copy)
{
    const qint64 ms = copy.time.toMSecsSinceEpoch();
    return (ms >= 0 ? ms : ms - SlotMs + 1) / SlotMs;
}

QDate dayOf(const Copy &copy)
{
    return copy.time.toLocalTime().date();
}

QDate monthOf(const Copy &copy)
{
    const QDate day = dayOf(copy);
    return QDate(day.year(), day.month(), 1);
}

template <typename Key>
void enter(QHash<Key, Ends> &groups, const Key &key, const QString &name)
{
    Ends &ends = groups[key];
    if (ends.last.isEmpty())
        ends.last = name; // the newest comes first
    ends.first = name;
}

Groups grouped(const QList<Copy> &newestFirst, const QDateTime &now)
{
    Groups groups;
    for (const Copy &copy : newestFirst) {
        if (copy.time > now)
            continue; // from a clock that was wrong: it stands for no real slot or day
        enter(groups.slots10min, slotOf(copy), copy.name);
        enter(groups.days, dayOf(copy), copy.name);
        enter(groups.months, monthOf(copy), copy.name);
    }
    return groups;
}

bool stays(const Copy &copy, const QDateTime &now, const Groups &groups)
{
    const qint64 age = copy.time.msecsTo(now);
    if (copy.kept || age <= SlotMs)
        return true;
    const Ends day = groups.days.value(dayOf(copy));
    const bool isEndOfDay = copy.name == day.first || copy.name == day.last;
    if (age <= DayMs)
        return isEndOfDay || copy.name == groups.slots10min.value(slotOf(copy)).last;
    if (dayOf(copy).daysTo(now.toLocalTime().date()) <= DailyDays)
        return isEndOfDay;
    return copy.name == groups.months.value(monthOf(copy)).last;
}

/** The newest copy and the newest before today: no limit takes them. */
QSet<QString> lastResorts(const QList<Copy> &newestFirst, QDate today)
{
    QSet<QString> names;
    if (!newestFirst.isEmpty())
        names.insert(newestFirst.first().name);
    for (const Copy &copy : newestFirst) {
        if (dayOf(copy) >= today)
            continue;
        names.insert(copy.name);
        break;
    }
    return names;
}

/** The oldest of @p newestFirst that make up what exceeds the limit. */
QStringList beyondLimit(const QList<Copy> &newestFirst, const QDateTime &now, qint64 limit)
{
    const QSet<QString> untouchable = lastResorts(newestFirst, now.toLocalTime().date());
    qint64 total = 0;
    for (const Copy &copy : newestFirst)
        total += copy.size + copy.beside;
    QStringList names;
    for (auto copy = newestFirst.crbegin(); copy != newestFirst.crend() && total > limit; ++copy) {
        if (copy->kept || copy->time > now || untouchable.contains(copy->name))
            continue;
        total -= copy->size + copy->beside;
        names.append(copy->name);
    }
    return names;
}

} // namespace

QStringList Backups::superfluous(const QList<Copy> &newestFirst, const QDateTime &now, qint64 limit)
{
    const Groups groups = grouped(newestFirst, now);
    QStringList names;
    QList<Copy> rest;
    for (const Copy &copy : newestFirst) {
        if (stays(copy, now, groups))
            rest.append(copy);
        else
            names.append(copy.name);
    }
    return names + beyondLimit(rest, now, limit);
}

bool Backups::agreesWithClock(const QList<Copy> &newestFirst, const QDateTime &now)
{
    return newestFirst.isEmpty() || qAbs(newestFirst.first().time.msecsTo(now)) <= DayMs;
}

} // namespace Host
