// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/** The figures of a battery as its card writes them: plain decimal, the same in every language. */
namespace CardText {

/** "2200mAh" */
QString charge(unsigned int milliampereHours);

/** "30C", or "30C/1.5C" once there is a charge rate (in tenths of C; 0 stands for none). */
QString rates(unsigned int rating, unsigned int chargeRate);

/** "45.50A" for 4550 hundredths of an ampere; the fraction is not padded, so that 1205 gives "12.5A". */
QString current(unsigned int hundredths);

} // namespace CardText
