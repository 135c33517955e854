// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/cardtext.h"

namespace {
QString fraction(unsigned int number, unsigned int whole)
{
    return QString::number(number / whole) + u'.' + QString::number(number % whole);
}
} // namespace

QString CardText::charge(unsigned int milliampereHours)
{
    return QString::number(milliampereHours) + QLatin1StringView("mAh");
}

QString CardText::rates(unsigned int rating, unsigned int chargeRate)
{
    const QString discharge = QString::number(rating) + u'C';
    if (chargeRate == 0)
        return discharge;
    return discharge + u'/' + fraction(chargeRate, 10) + u'C';
}

QString CardText::current(unsigned int hundredths)
{
    // Without a leading zero in the fraction, which is meant: 10005 reads "100.5A".
    return fraction(hundredths, 100) + u'A';
}
