// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/app/commands/invocation.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace Host {

QString Invocation::value(const QString &option) const
{
    const QStringList given = values(option);
    return given.isEmpty() ? QString() : given.last();
}

std::optional<QDate> Invocation::date(const QString &option) const
{
    return has(option) ? std::optional(dateFrom(value(option))) : std::nullopt;
}

DateRange Invocation::range() const
{
    return {date(u"from"_s), date(u"to"_s)};
}

QDate Invocation::on() const
{
    return date(u"on"_s).value_or(QDate::currentDate());
}

QDate dateFrom(const QString &text)
{
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(u"([0-9]{4})-([0-9]{2})-([0-9]{2})"_s));
    const QRegularExpressionMatch match = form.match(text);
    return match.hasMatch()
               ? QDate(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt())
               : QDate();
}

} // namespace Host
