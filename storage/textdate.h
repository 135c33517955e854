// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringView>
#include <QTime>

/**
 * The text form of the dates and times that a logbook is full of: exactly that of Qt::TextDate,
 * "Sun Nov 15 12:04:22 2026" and "00:07:30".
 *
 * Valid local times in years of four digits and times of day of two digits each are written and read by hand,
 * which halves the time that a save takes; Qt does the rest. Text that holds no date or time reads as an
 * invalid one, and an invalid one writes an empty text.
 */
namespace TextDate {

QString fromDateTime(const QDateTime &when);
QDateTime toDateTime(QStringView text);

QString fromTime(QTime time);
QTime toTime(QStringView text);

} // namespace TextDate
