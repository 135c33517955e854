// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringView>
#include <QTime>

#include <optional>

/**
 * The text form of the dates and times that a logbook is full of, written and read by hand: a valid local
 * time in a year of four digits, a time of day in two digits each.
 *
 * It is what Qt::TextDate gives for them, at a fraction of the cost. For everything else there is nothing,
 * and Qt::TextDate itself has to be asked.
 */
namespace PlainDate {

std::optional<QString> fromDateTime(const QDateTime &when);
std::optional<QDateTime> toDateTime(QStringView text);

std::optional<QString> fromTime(QTime time);
std::optional<QTime> toTime(QStringView text);

} // namespace PlainDate
