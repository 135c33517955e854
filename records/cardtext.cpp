// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/cardtext.h"

QString CardText::charge(unsigned int milliampereHours)
{
    return QStringLiteral("%1mAh").arg(milliampereHours);
}

QString CardText::rates(unsigned int rating, unsigned int chargeRate)
{
    if (chargeRate == 0)
        return QStringLiteral("%1C").arg(rating);
    return QStringLiteral("%1C/%2.%3C").arg(rating).arg(chargeRate / 10).arg(chargeRate % 10);
}

QString CardText::current(unsigned int hundredths)
{
    // Without a leading zero in the fraction, which is meant: 10005 reads "100.5A".
    return QStringLiteral("%1.%2A").arg(hundredths / 100).arg(hundredths % 100);
}
