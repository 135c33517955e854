// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QDate>
#include <QList>
#include <QString>

namespace Host {

/** What there is to do about a battery, in the order in which a list shows it. */
enum class AdviceKind { Storage, Deep, Load, Cold, Idle, Age, Timer };

enum class Severity { Notice, Warning };

struct Advice
{
    QString battery;
    QString model; ///< empty but for a timer
    AdviceKind kind;
    Severity severity;
    double value; ///< days, share of the capacity, C, °C or seconds, as the kind has it
    QString text; ///< what to do, and why
};

/** From when on there is something to say. The figures are customary among pilots, and the user's to change.
 */
struct AdviceLimits
{
    int storageNoticeDays = 2; ///< charged and not used for so long
    int storageWarningDays = 5;
    int deepPercent = 80; ///< of the capacity, for a notice
    int veryDeepPercent = 90;
    int veryDeepCount = 2; ///< so many very deep ones are worth a warning
    int lastDischarges = 10;
    int coldBelow = 10; ///< °C
    int coldDays = 30;
    int idleDays = 90;
    int ageYears = 3;
    int timerPercent = 80; ///< of the capacity that a timer leaves to be used
    int timerFlights = 3;  ///< so many are needed for it
    int timerStep = 15;    ///< seconds
};

/** What to do on a day, sorted; what happened after that day is not looked at. */
QList<Advice> adviceFor(const Catalogue &catalogue, QDate today, const AdviceLimits &limits = {});

/** "storage", "deep" and so on; "notice" or "warning": the same in every language. */
QString adviceKey(AdviceKind kind);
QString severityKey(Severity severity);

} // namespace Host
