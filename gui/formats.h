// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QDate;

/** How the log book and the chart write their numbers. */
namespace Formats {

/** A current in hundredths of an ampere behind a comma, without padding: 1205 is 12,5 and 7 is 0,7. */
QString current(unsigned int hundredths);

/** A temperature as an unsigned number and a degree sign: -5 is 4294967291°. */
QString temperature(int degrees);

/** A battery's age in years of 365 days, two decimals; without a valid date of purchase 0.00. */
QString ageInYears(QDate purchase, QDate today);

} // namespace Formats
