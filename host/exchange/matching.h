// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"
#include "host/data/measured.h"
#include "host/data/moments.h"
#include "host/exchange/logreading.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace Host {

/** What an import would do with a discharge. */
enum class ImportAction {
    Fill,  ///< replace what a flight of the logbook says
    New,   ///< add a flight, when the user wants that
    Known, ///< nothing: an earlier import took the log
    Bench, ///< nothing: too short, or too little
    None,  ///< nothing: the log or the logbook leaves open what is right
};

/** "fill", "new", "known", "bench" or "none", the same in every language. */
QString actionKey(ImportAction action);

/** Why that, and what else the user should know. */
enum class ImportReason {
    GoesOn,        ///< an earlier import filled this flight, and the discharge went on
    PartOfAnother, ///< belongs to the discharge of another session, which tells of both
    ClockNeverSet,
    NothingMeasured, ///< neither counter nor current
    TooShort,
    TooLittle,
    Entered,          ///< the pilot entered the flight's values
    WithoutDischarge, ///< a flight, but no discharge at its time
    SeveralBatteries, ///< a flight, and which discharge is meant is open
    Twice,            ///< another log tells of the same session
    TwoFlights,       ///< earlier imports filled two flights from parts of what is one discharge
    Doubtful,         ///< counter and current contradict each other
    DischargeClamped, ///< more than the logbook takes
    CurrentClamped,
    NoSuchModel,
    NoBattery, ///< the model has none
};

/** One discharge of an import: all its sessions. */
struct ImportedDischarge
{
    ImportAction action = ImportAction::None;
    QList<ImportReason> reasons;
    Session whole;        ///< its first session, which tells of all
    QList<Session> parts; ///< all, in the order of time; of earlier imports, too
    QString model;
    QString battery;                   ///< that is filled, or proposed; empty without one
    QDateTime time;                    ///< of the flight that is filled, as it was before
    std::optional<FlightPlace> flight; ///< that is filled
    std::optional<DischargePlace> discharge;
    qsizetype batteryIndex = -1;

    // What the logbook gets; without a value that stays as it is
    std::optional<qint64> moment; ///< as momentOf() numbers it
    std::optional<QTime> duration;
    std::optional<unsigned int> discharged; ///< mAh
    std::optional<unsigned int> current;    ///< hundredths of an ampere
};

/** One session of a log, as a list shows it. */
struct ImportedSession
{
    Session session; ///< after joinDischarges()
    ImportAction action = ImportAction::None;
    QList<ImportReason> reasons;
    qsizetype discharge = -1; ///< index in ImportPlan::discharges; -1 where nothing could be done with it
};

/** What an import would do. */
struct ImportPlan
{
    QList<ImportedDischarge> discharges;    ///< in the order of time
    QList<QList<ImportedSession>> sessions; ///< of each log, in its order
};

struct MatchOptions
{
    QString model;   ///< of all logs; without it each log's name tells
    QString battery; ///< for what is new; without it one is proposed
    bool replacesEntered = false;
    qint64 clockOffset = 0; ///< ms to add to what the radio's clock showed
    /** Asked now and then by clockOffset(), which takes long; false ends it without a result. */
    std::function<bool()> goOn;
};

/**
 * Finds for each discharge the flight that it was. The order of the logs does not matter.
 *
 * @param catalogue whose measured discharges are marked.
 * @param measured what earlier imports knew.
 */
ImportPlan matched(const QList<ImportedLog> &logs, const Catalogue &catalogue, const Measured &measured,
                   const MatchOptions &options = {});

/** A model's name in the logbook, from the one in a log's name. */
QString modelOf(const QString &logged, const Catalogue &catalogue, const Measured &measured);

/**
 * By how many ms the radio's clock was behind on all of its days, where that can be told: two flights or more
 * match far better then. Nothing where the clock seems to be right.
 */
std::optional<qint64> clockOffset(const QList<ImportedLog> &logs, const Catalogue &catalogue,
                                  const Measured &measured, const MatchOptions &options = {});

} // namespace Host
