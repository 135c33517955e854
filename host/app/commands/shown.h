// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

#include <optional>

/** Values as the tables of the commands show them: numbers in the user's locale, times that can be sorted. */
namespace Host::Shown {

inline QString time(const QDateTime &time)
{
    return time.toString(u"yyyy-MM-dd HH:mm:ss");
}

inline QString date(QDate date)
{
    return date.toString(u"yyyy-MM-dd");
}

template <typename Number>
QString count(Number number)
{
    return QLocale().toString(number);
}

/** With as many decimals as it has. */
inline QString number(double number)
{
    return QLocale().toString(number, 'f', QLocale::FloatingPointShortest);
}

inline QString rounded(double number, int decimals)
{
    return QLocale().toString(number, 'f', decimals);
}

/** "-" for what is not known. */
template <typename Number, typename Show>
QString known(const std::optional<Number> &value, Show show)
{
    return value ? show(*value) : QString(u'-');
}

} // namespace Host::Shown
