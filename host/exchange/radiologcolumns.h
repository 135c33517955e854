// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/exchange/radiolog.h"
#include "host/exchange/radiologheader.h"
#include "host/exchange/radiologrow.h"

#include <array>
#include <optional>
#include <vector>

namespace Host {

/** A column that may tell of the battery, or two whose sum does, and what its rows said so far. */
struct LogColumn
{
    QString name;
    std::vector<qsizetype> parts;
    double scale = 1; ///< to mAh, A or V
    bool isLastResort = false;
    bool saysSomething = false;
    bool hasFallen = false; ///< other than to 0
    double last = 0;

    double value(const LogFields &fields) const; ///< not a number where there is none
};

/** Currents and volts that no battery has come from broken frames of telemetry. */
bool isCurrent(double ampere);
bool isVoltage(double volt);

/**
 * Finds out by which columns a log is read: of each kind the first that exists and is not all zero. That
 * takes a look at the rows, as a rule at very few of them.
 */
class LogColumns
{
public:
    enum Kind { Consumed, Current, Volts };

    /** @param chosen by the user; null: the rule chooses. */
    LogColumns(const LogHeader &header, const ColumnMapping *chosen);

    /** Whether the unit of a column fits, or whether it has none. */
    static bool mayBe(Kind kind, const QString &column);

    void watch(const LogFields &fields);
    bool isSettled() const;                   ///< nothing that follows changes the choice
    qsizetype wanted() const;                 ///< how many fields of a row watch() looks at
    const LogColumn *choice(Kind kind) const; ///< nullptr for none
    ColumnMapping mapping() const;
    bool needsMapping() const { return m_needsMapping; }

private:
    void choose(const LogHeader &header, const ColumnMapping &chosen);
    void addKnown(const LogHeader &header, Kind kind);
    void addLastResorts(const LogHeader &header);
    void add(Kind kind, LogColumn column);
    bool isUnknown(const LogHeader &header, Kind kind) const;

    std::array<std::vector<LogColumn>, 3> m_candidates;
    bool m_needsMapping = false;
};

} // namespace Host
