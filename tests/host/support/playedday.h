// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/host/support/makeradiolog.h"

#include <QDir>
#include <QFile>

/**
 * A day at the field with the sample logbook: three flights of the Firebrand, of which the pilot forgot to
 * click the last, and a short run of the motor on the bench. The radio logged all of it.
 */
namespace PlayedDay {

using namespace Qt::Literals::StringLiterals;

inline QDateTime at(int hour, int minute)
{
    return QDateTime(QDate(2026, 11, 14), QTime(hour, minute));
}

inline QString model()
{
    return u"Firebrand 550"_s;
}
inline QStringList batteries()
{
    return {u"6S 3700 No. 1"_s, u"6S 5000 No. 1"_s, u"6S 5000 No. 2"_s};
}
/** When each battery was plugged in. */
inline QList<QDateTime> starts()
{
    return {at(10, 4), at(11, 21), at(14, 7)};
}
/** When the pilot clicked the first two. */
inline QList<QDateTime> clicks()
{
    return {at(10, 13), at(11, 34)};
}
inline QDateTime evening()
{
    return at(19, 30);
}

inline QString logName(const QDateTime &start)
{
    return model() + start.toString(u"-yyyy-MM-dd-HHmmss"_s) + u".csv"_s;
}

inline void writeLog(const QString &folder, const QDateTime &start, double capacity, double current,
                     int seconds)
{
    const MadeLogs::Pack pack{6, capacity, 0.02, 1};
    MadeLogs::Plan plan;
    plan.start = start;
    plan.current = current;
    plan.flight = seconds;
    QFile file(QDir(folder).filePath(logName(start)));
    const QByteArray bytes = MadeLogs::Text().add(MadeLogs::flight(pack, plan)).bytes();
    if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("A log cannot be written.");
}

/** The radio's card. @return its folder of logs. */
inline QString writeCard(const QString &root)
{
    const QString folder = root + u"/LOGS"_s;
    if (!QDir().mkpath(folder))
        qFatal("A card cannot be made.");
    writeLog(folder, starts().at(0), 3700, 28, 312);
    writeLog(folder, starts().at(1), 5000, 31, 385);
    writeLog(folder, starts().at(2), 5000, 30, 405);
    writeLog(folder, at(15, 2), 3700, 6, 8); // on the bench
    return folder;
}

} // namespace PlayedDay
