// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/daterange.h"
#include "host/safety/storagefolder.h"

#include <QDate>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace Host {

/** A command as the user asked for it: understood and free of contradictions, but nothing has been looked at.
 */
struct Invocation
{
    QString command;
    StorageFolder folder;                ///< where the logbook is kept; that of the sample for --demo
    bool isDemo = false;                 ///< the sample logbook is meant
    bool isDataGiven = false;            ///< the folder was named on the command line
    QStringList arguments;               ///< behind the command's name
    QHash<QString, QStringList> options; ///< the values of each option that was given, by its name

    bool has(const QString &option) const { return options.contains(option); }
    /** The value that was given last; a null text without one. */
    QString value(const QString &option) const;
    /** All values that were given, in their order. */
    QStringList values(const QString &option) const { return options.value(option); }
    std::optional<QDate> date(const QString &option) const;
    /** --from and --to. */
    DateRange range() const;
    /** --on; without it today. */
    QDate on() const;
};

/** "2026-03-14", and nothing else; an invalid date for anything that is no such day. */
QDate dateFrom(const QString &text);

} // namespace Host
