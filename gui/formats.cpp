// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui/formats.h"

#include <QDate>

QString Formats::current(unsigned int hundredths)
{
    // Meant as it is: the hundredths are not padded, and the separator is a comma, unlike on the battery
    // card.
    return QString::number(hundredths / 100) + u',' + QString::number(hundredths % 100);
}

QString Formats::temperature(int degrees)
{
    // Meant as it is: a negative temperature shows as its 32-bit two's complement.
    return QString::number(static_cast<unsigned int>(degrees)) + QChar(0xB0);
}

QString Formats::ageInYears(QDate purchase, QDate today)
{
    constexpr double DaysInAYear = 365.0;
    return QString::number(static_cast<double>(purchase.daysTo(today)) / DaysInAYear, 'f', 2);
}
