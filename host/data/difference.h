// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/data/catalogue.h"

#include <QList>
#include <QString>

#include <utility>

namespace Host {

enum class RecordKind { Flight, Discharge, Battery, Model, Location };

/** Where a record stands in a catalogue. */
struct RecordPlace
{
    qsizetype record = -1; ///< the battery, model or location; -1 where there is none
    qsizetype entry = -1;  ///< its discharge or flight

    bool isThere() const { return record >= 0; }
};

/** A record that a copy of a logbook holds otherwise than the logbook does now. */
struct DifferentRecord
{
    enum Change { Fewer, More, Changed, Charged, Discharged }; ///< what the copy has of it, against now

    RecordKind kind = RecordKind::Flight;
    Change change = Changed;
    RecordPlace copy;
    RecordPlace now;
    bool isImplied = false; ///< it follows from another difference, as a cycle does from a flight
};

struct Difference
{
    QList<DifferentRecord> records;
    bool isReordered = false; ///< the same records, in another order

    bool isNone() const { return records.isEmpty() && !isReordered; }
};

/**
 * What differs between a copy of a logbook and the logbook now. Records are paired by their names, flights
 * and discharges by their times; what is left of one model or battery, in its order. The rest are more or
 * fewer.
 */
Difference differenceOf(const Catalogue &copy, const Catalogue &now);

namespace DifferenceTexts {

/** "2 flights and 1 battery fewer", as the copy is against now. */
QString inWords(const Difference &difference);

/** "3 flights". */
QString counted(RecordKind kind, qsizetype count);

/** "12 batteries, 3 models and 120 flights". */
QString enumerated(const QStringList &parts);

/** How many records of each kind a catalogue has. */
QString contents(const Catalogue &catalogue);

/** "Flight". */
QString kindName(RecordKind kind);

/** What the copy and the logbook now say of a record: of one that both have only what differs. Empty where a
 * side does not have it. */
std::pair<QString, QString> sides(const DifferentRecord &record, const Catalogue &copy, const Catalogue &now);

} // namespace DifferenceTexts
} // namespace Host
