// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/advicelimits.h"

#include "host/preferences/settings.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace Host {

const QList<LimitField> &limitFields()
{
    static const QList<LimitField> fields{
        {"storageNoticeDays", QT_TRANSLATE_NOOP("AdviceLimits", "Charged and not used, notice after"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " days"), &AdviceLimits::storageNoticeDays, 1, 365},
        {"storageWarningDays", QT_TRANSLATE_NOOP("AdviceLimits", "Charged and not used, warning after"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " days"), &AdviceLimits::storageWarningDays, 1, 365},
        {"deepPercent", QT_TRANSLATE_NOOP("AdviceLimits", "Deep discharge, notice over"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " % of the capacity"), &AdviceLimits::deepPercent, 1, 100},
        {"veryDeepPercent", QT_TRANSLATE_NOOP("AdviceLimits", "Deep discharges, warning over"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " % of the capacity"), &AdviceLimits::veryDeepPercent, 1, 100},
        {"veryDeepCount", QT_TRANSLATE_NOOP("AdviceLimits", "Deep discharges, warning from"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " of them"), &AdviceLimits::veryDeepCount, 1, 10},
        {"lastDischarges", QT_TRANSLATE_NOOP("AdviceLimits", "Newest discharges that are looked at"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " discharges"), &AdviceLimits::lastDischarges, 1, 100},
        {"coldBelow", QT_TRANSLATE_NOOP("AdviceLimits", "Cold flight, below"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " °C"), &AdviceLimits::coldBelow, -20, 30},
        {"coldDays", QT_TRANSLATE_NOOP("AdviceLimits", "Cold flight, within the last"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " days"), &AdviceLimits::coldDays, 1, 365},
        {"idleDays", QT_TRANSLATE_NOOP("AdviceLimits", "Not used, notice after"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " days"), &AdviceLimits::idleDays, 1, 3650},
        {"ageYears", QT_TRANSLATE_NOOP("AdviceLimits", "Old battery, notice after"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " years"), &AdviceLimits::ageYears, 1, 30},
        {"timerPercent", QT_TRANSLATE_NOOP("AdviceLimits", "Timer, for a discharge of"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " % of the capacity"), &AdviceLimits::timerPercent, 10, 100},
        {"timerFlights", QT_TRANSLATE_NOOP("AdviceLimits", "Timer, from so many flights on"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " flights"), &AdviceLimits::timerFlights, 1, 100},
        {"timerStep", QT_TRANSLATE_NOOP("AdviceLimits", "Timer, rounded down to"),
         QT_TRANSLATE_N_NOOP("AdviceLimits", " seconds"), &AdviceLimits::timerStep, 1, 60},
    };
    return fields;
}

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
