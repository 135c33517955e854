// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QDate;

/**
 * How cards, log book and chart write their figures: plain decimal, the same in every language.
 *
 * Intentional: fractions are never padded, so that 1205 hundredths read "12.5" and 7 read "0.7".
 */
namespace Figures {

/** "2200mAh" */
QString charge(unsigned int milliampereHours);

/** "30C", or "30C/1.5C" once there is a charge rate (in tenths of C; 0 stands for none). */
QString rates(unsigned int rating, unsigned int chargeRate);

/** A current as a card shows it: 4550 hundredths of an ampere are "45.50A". */
QString cardCurrent(unsigned int hundredths);

/** A current as the log book shows it. Intentional: the sign is a comma, unlike on the card: "45,50". */
QString logCurrent(unsigned int hundredths);

/** A temperature as an unsigned number and a degree sign. Intentional: -5 is "4294967291°". */
QString temperature(int degrees);

/** A battery's age in years of 365 days, two decimals; without a valid date of purchase "0.00". */
QString ageInYears(QDate purchase, QDate today);

} // namespace Figures
