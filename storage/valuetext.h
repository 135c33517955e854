// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

/**
 * How the data file writes a value as text and reads it back.
 *
 * Text that does not hold a value reads as 0, false or an invalid date; an invalid date writes an empty text.
 * Dates with a time have a place of their own, storage/textdate.h.
 */
namespace ValueText {

QString fromUnsigned(unsigned int value);
unsigned int toUnsigned(QStringView text);

/** The temperature, written as the unsigned number with the same 32 bits: -5 is "4294967291". */
QString fromSigned(int value);
int toSigned(QStringView text);

/** "1" or "0". */
QString fromBoolean(bool value);
/** True for the number 1 only: neither "true" nor "2" will do. */
bool toBoolean(QStringView text);

/** "2026/11/15" */
QString fromDate(QDate date);
QDate toDate(const QString &text);

/**
 * The text of an attribute, without null characters: in the name of an undeclared entity the reader lets them
 * through, there and nowhere else, and no file could hold what was loaded.
 */
QString toText(QStringView value);

/** The text without the characters that no XML 1.0 document can hold, not even escaped. */
QString xmlText(const QString &text);

} // namespace ValueText
