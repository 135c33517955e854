// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "voltbok_export.h"

#include <QDateTime>
#include <QString>
#include <QTime>

/**
 * One flight of a model, copied by value.
 *
 * Which battery was flown is not stored: the battery's history holds a discharge with exactly the same
 * date-time.
 */
class VOLTBOK_EXPORT LogData
{
public:
    QDateTime date;      ///< date and start time of the flight
    QTime duration;      ///< flight duration, held as a time of day
    QString location;    ///< name of the flying location
    int temperature = 0; ///< ambient temperature in degrees
    QString notes;       ///< free text
};

Q_DECLARE_TYPEINFO(LogData, Q_RELOCATABLE_TYPE); // a list of flights grows without copying them one by one
