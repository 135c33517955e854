// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/figures.h"

#include <QDate>

namespace {
QString fraction(unsigned int number, unsigned int whole, QChar sign)
{
    return QString::number(number / whole) + sign + QString::number(number % whole);
}
} // namespace

QString Figures::charge(unsigned int milliampereHours)
{
    return QString::number(milliampereHours) + QLatin1StringView("mAh");
}

QString Figures::rates(unsigned int rating, unsigned int chargeRate)
{
    const QString discharge = QString::number(rating) + u'C';
    if (chargeRate == 0)
        return discharge;
    return discharge + u'/' + fraction(chargeRate, 10, u'.') + u'C';
}

QString Figures::cardCurrent(unsigned int hundredths)
{
    return fraction(hundredths, 100, u'.') + u'A';
}

QString Figures::logCurrent(unsigned int hundredths)
{
    return fraction(hundredths, 100, u',');
}

QString Figures::temperature(int degrees)
{
    return QString::number(static_cast<unsigned int>(degrees)) + QChar(0xB0);
}

QString Figures::ageInYears(QDate purchase, QDate today)
{
    constexpr double DaysInAYear = 365.0;
    return QString::number(static_cast<double>(purchase.daysTo(today)) / DaysInAYear, 'f', 2);
}
