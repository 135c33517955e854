// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

/** Single values as JSON in UTF-8, appended to what is written already. */
namespace Host::JsonBytes {

void text(QByteArray &bytes, const QString &text);
void number(QByteArray &bytes, qint64 value);
/** A number that is stored as tenths or hundredths, such as 1317 of 100 parts: 13.17. */
void share(QByteArray &bytes, unsigned int value, unsigned int parts);
/** "2026-11-10"; null for an invalid date. */
void date(QByteArray &bytes, QDate date);
/** "2026-11-10T21:09:54"; null for an invalid time. */
void time(QByteArray &bytes, const QDateTime &time);

/** A text with its quotation marks. */
QByteArray quoted(const QString &text);

} // namespace Host::JsonBytes
