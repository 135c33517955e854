// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QLineEdit>
#include <QString>

/** Dates as the fields of the forms hold them: year-month-day. */
namespace DateInput {

inline QString text(QDate date)
{
    return date.toString(Qt::ISODate);
}

inline QString today()
{
    return text(QDate::currentDate());
}

/** The date in a field; invalid when it holds none. */
inline QDate dateIn(const QLineEdit *field)
{
    return QDate::fromString(field->text(), Qt::ISODate);
}

} // namespace DateInput
