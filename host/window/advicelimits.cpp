// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/advicelimits.h"

#include "host/preferences/settings.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace Host {

#define TEXT(text) QT_TRANSLATE_NOOP("AdviceLimits", text)

const QList<LimitField> &limitFields()
{
    static const QList<LimitField> fields{
        {"storageNoticeDays", TEXT("Charged and not used, notice after"), TEXT(" days"),
         &AdviceLimits::storageNoticeDays, 1, 365},
        {"storageWarningDays", TEXT("Charged and not used, warning after"), TEXT(" days"),
         &AdviceLimits::storageWarningDays, 1, 365},
        {"deepPercent", TEXT("Deep discharge, notice over"), TEXT(" % of the capacity"),
         &AdviceLimits::deepPercent, 1, 100},
        {"veryDeepPercent", TEXT("Deep discharges, warning over"), TEXT(" % of the capacity"),
         &AdviceLimits::veryDeepPercent, 1, 100},
        {"veryDeepCount", TEXT("Deep discharges, warning from"), TEXT(" of them"),
         &AdviceLimits::veryDeepCount, 1, 10},
        {"lastDischarges", TEXT("Discharges that are looked at"), TEXT(" at last"),
         &AdviceLimits::lastDischarges, 1, 100},
        {"coldBelow", TEXT("Cold flight, below"), TEXT(" °C"), &AdviceLimits::coldBelow, -20, 30},
        {"coldDays", TEXT("Cold flight, within the last"), TEXT(" days"), &AdviceLimits::coldDays, 1, 365},
        {"idleDays", TEXT("Not used, notice after"), TEXT(" days"), &AdviceLimits::idleDays, 1, 3650},
        {"ageYears", TEXT("Old battery, notice after"), TEXT(" years"), &AdviceLimits::ageYears, 1, 30},
        {"timerPercent", TEXT("Timer, for a discharge of"), TEXT(" % of the capacity"),
         &AdviceLimits::timerPercent, 10, 100},
        {"timerFlights", TEXT("Timer, from so many flights on"), TEXT(" flights"),
         &AdviceLimits::timerFlights, 1, 100},
        {"timerStep", TEXT("Timer, rounded down to"), TEXT(" seconds"), &AdviceLimits::timerStep, 1, 60},
    };
    return fields;
}

#undef TEXT

AdviceLimits chosenLimits()
{
    const Settings settings;
    AdviceLimits limits;
    for (const LimitField &field : limitFields())
        limits.*field.value = qBound(
            field.least, settings.limit(QLatin1StringView(field.name), limits.*field.value), field.most);
    return limits;
}

} // namespace Host
