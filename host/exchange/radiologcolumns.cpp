// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/exchange/radiologcolumns.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr double HighestReceiverVoltage = 5.5; // above, a receiver is fed by the battery itself

/** Names in the order in which they count; two with a "+" are summed. */
const QStringList &knownNames(LogColumns::Kind kind)
{
    static const std::array<QStringList, 3> names{
        QStringList{u"Capa(mAh)"_s, u"mAh(mAh)"_s, u"Cnsp(mAh)"_s, u"EscC(mAh)"_s, u"RB1C+RB2C"_s,
                    u"Consumption"_s},
        QStringList{u"Curr(A)"_s, u"EscA(A)"_s, u"ECUR(A)"_s, u"RB1A+RB2A"_s, u"Current"_s},
        QStringList{u"VFAS(V)"_s, u"Vbat(V)"_s, u"EscV(V)"_s, u"Cels(V)"_s, u"Vfas"_s}};
    return names.at(kind);
}

bool isSame(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/** The units that are read, and what makes mAh, A and V of them; a column without one has the first. */
const std::vector<std::pair<QString, double>> &unitsOf(LogColumns::Kind kind)
{
    using Units = std::vector<std::pair<QString, double>>;
    static const std::array<Units, 3> units{Units{{u"mAh"_s, 1}, {u"Ah"_s, 1000}},
                                            Units{{u"A"_s, 1}, {u"mA"_s, 0.001}},
                                            Units{{u"V"_s, 1}, {u"mV"_s, 0.001}}};
    return units.at(kind);
}

double scaleOf(LogColumns::Kind kind, const QString &column)
{
    for (const auto &[unit, scale] : unitsOf(kind)) {
        if (isSame(unitOf(column), unit))
            return scale;
    }
    return 1;
}

/** Whether a column bears a known name, milliamperes for amperes included. */
bool isNamed(const QString &column, const QString &known)
{
    const QString unit = unitOf(known);
    return isSame(labelOf(column), labelOf(known)) &&
           (isSame(unitOf(column), unit) || (unit == "A"_L1 && isSame(unitOf(column), u"mA"_s)));
}

/** What the receiver's own battery gave, never that of the motor. */
bool isOfTheReceiver(const QString &column)
{
    return isSame(labelOf(column), u"BCur"_s);
}

/** The columns of this label whatever their unit: half of a pair. */
std::vector<qsizetype> labelled(const LogHeader &header, const QString &label)
{
    std::vector<qsizetype> found;
    for (qsizetype i = 2; i < header.count(); ++i) {
        if (isSame(labelOf(header.name(i)), label))
            found.push_back(i);
    }
    return found;
}

bool saysSomething(LogColumns::Kind kind, const LogColumn &column, double value)
{
    if (kind == LogColumns::Current)
        return value != 0 && isCurrent(value);
    if (kind == LogColumns::Volts)
        return value > (column.isLastResort ? HighestReceiverVoltage : 0) && isVoltage(value);
    return value > 0;
}

} // namespace

bool isCurrent(double ampere)
{
    return ampere >= -50 && ampere <= 500;
}

bool isVoltage(double volt)
{
    return volt >= 0 && volt <= 80;
}

double LogColumn::value(const LogFields &fields) const
{
    double sum = 0;
    for (const qsizetype part : parts)
        sum += logNumber(fields.at(part));
    return sum * scale;
}

LogColumns::LogColumns(const LogHeader &header, const ColumnMapping *chosen)
{
    for (const Kind kind : {Consumed, Current, Volts})
        addKnown(header, kind);
    if (!chosen)
        m_needsMapping = isUnknown(header, Consumed) || isUnknown(header, Current);
    addLastResorts(header);
    if (chosen)
        choose(header, *chosen);
}

/** Puts what the user chose before what the rule knows, which counts where the choice says nothing. */
void LogColumns::choose(const LogHeader &header, const ColumnMapping &chosen)
{
    const std::array names{chosen.consumed, chosen.current, chosen.volts};
    for (const Kind kind : {Consumed, Current, Volts}) {
        const std::vector<LogColumn> known = std::exchange(m_candidates.at(kind), {});
        if (names.at(kind).isEmpty())
            continue;
        for (qsizetype i = 2; i < header.count(); ++i) {
            if (header.name(i) == names.at(kind))
                add(kind, {header.name(i), {i}, scaleOf(kind, header.name(i))});
        }
        for (const LogColumn &column : known)
            add(kind, column);
    }
}

bool LogColumns::mayBe(Kind kind, const QString &column)
{
    const auto &units = unitsOf(kind);
    const QString unit = unitOf(column);
    return unit.isEmpty() || std::any_of(units.begin(), units.end(),
                                         [&unit](const auto &known) { return isSame(known.first, unit); });
}

void LogColumns::addKnown(const LogHeader &header, Kind kind)
{
    for (const QString &known : knownNames(kind)) {
        if (const QStringList pair = known.split(u'+'); pair.size() == 2) {
            const std::vector<qsizetype> first = labelled(header, pair.first());
            const std::vector<qsizetype> second = labelled(header, pair.last());
            std::vector<qsizetype> parts;
            for (const std::vector<qsizetype> &half : {first, second})
                parts.insert(parts.end(), half.begin(), half.begin() + (half.empty() ? 0 : 1));
            if (!parts.empty())
                add(kind, {known, parts, scaleOf(kind, header.name(parts.front()))});
            continue;
        }
        for (qsizetype i = 2; i < header.count(); ++i) {
            if (isNamed(header.name(i), known))
                add(kind, {header.name(i), {i}, scaleOf(kind, header.name(i))});
        }
    }
}

/** Counters of any name, and the receiver's voltage: where nothing better says anything. */
void LogColumns::addLastResorts(const LogHeader &header)
{
    for (qsizetype i = 2; i < header.count(); ++i) {
        const QString &name = header.name(i);
        if (isSame(unitOf(name), u"mAh"_s) && !isOfTheReceiver(name))
            add(Consumed, {name, {i}, 1, true});
        if (isSame(name, u"RxBt(V)"_s))
            add(Volts, {name, {i}, 1, true});
    }
}

void LogColumns::add(Kind kind, LogColumn column)
{
    m_candidates.at(kind).push_back(std::move(column));
}

/** Whether no column is known, but one may be it; one without a unit only where none has one. */
bool LogColumns::isUnknown(const LogHeader &header, Kind kind) const
{
    if (!m_candidates.at(kind).empty())
        return false;
    const QList<qsizetype> sensors = header.sensors();
    const bool haveUnits = std::any_of(sensors.begin(), sensors.end(),
                                       [&header](qsizetype i) { return !unitOf(header.name(i)).isEmpty(); });
    return std::any_of(sensors.begin(), sensors.end(), [&](qsizetype i) {
        const QString &name = header.name(i);
        return mayBe(kind, name) && !(haveUnits && unitOf(name).isEmpty()) && !isOfTheReceiver(name);
    });
}

void LogColumns::watch(const LogFields &fields)
{
    for (const Kind kind : {Consumed, Current, Volts}) {
        for (LogColumn &column : m_candidates.at(kind)) {
            if (column.saysSomething && !(column.isLastResort && kind == Consumed))
                continue;
            const double value = column.value(fields);
            if (std::isnan(value))
                continue;
            column.saysSomething = column.saysSomething || Host::saysSomething(kind, column, value);
            column.hasFallen = column.hasFallen || (value != 0 && value < column.last);
            column.last = value;
        }
    }
}

bool LogColumns::isSettled() const
{
    const auto isKnown = [this](Kind kind) {
        const std::vector<LogColumn> &candidates = m_candidates.at(kind);
        // A counter of any name may still fall.
        return candidates.empty() ||
               (candidates.front().saysSomething && !(kind == Consumed && candidates.front().isLastResort));
    };
    return isKnown(Consumed) && isKnown(Current) && isKnown(Volts);
}

qsizetype LogColumns::wanted() const
{
    qsizetype last = 1;
    for (const std::vector<LogColumn> &candidates : m_candidates) {
        for (const LogColumn &column : candidates)
            last = std::max(last, *std::max_element(column.parts.begin(), column.parts.end()));
    }
    return last + 1;
}

const LogColumn *LogColumns::choice(Kind kind) const
{
    for (const LogColumn &column : m_candidates.at(kind)) {
        if (column.saysSomething && !(kind == Consumed && column.isLastResort && column.hasFallen))
            return &column;
    }
    return nullptr;
}

ColumnMapping LogColumns::mapping() const
{
    const auto nameOf = [this](Kind kind) {
        const LogColumn *column = choice(kind);
        return column ? column->name : QString();
    };
    return {nameOf(Consumed), nameOf(Current), nameOf(Volts)};
}

} // namespace Host
