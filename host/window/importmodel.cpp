// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/importmodel.h"

#include "host/exchange/importtexts.h"
#include "host/exchange/sessionvalues.h"
#include "host/window/flightfields.h"

#include <QFileInfo>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

QString number(const std::optional<double> &value, int decimals)
{
    return value ? QLocale().toString(*value, 'f', decimals) : QString();
}

QString shownDuration(const std::optional<double> &duration)
{
    constexpr qint64 SecondsOfAMinute = 60;
    const qint64 seconds = std::llround(duration.value_or(0));
    return !duration ? QString()
                     : u"%1:%2"_s.arg(seconds / SecondsOfAMinute)
                           .arg(seconds % SecondsOfAMinute, 2, 10, QChar(u'0'));
}

} // namespace

ImportModel::ImportModel(QObject *parent)
    : QAbstractTableModel(parent)
    , m_catalogue(std::make_shared<const Catalogue>())
{
}

void ImportModel::setLogs(const QList<ImportedLog> &logs, std::shared_ptr<const Catalogue> catalogue,
                          const Measured &measured)
{
    m_logs = logs;
    m_catalogue = std::move(catalogue);
    m_measured = measured;
    refresh();
}

void ImportModel::setReplacingEntered(bool replaces)
{
    m_options.replacesEntered = replaces;
    refresh();
}

void ImportModel::setClockOffset(qint64 offset)
{
    m_options.clockOffset = offset;
    refresh();
}

/** A model that was chosen counts as if it had been remembered; a battery is tried alone. */
ImportPlan ImportModel::planned() const
{
    Measured measured = m_measured;
    for (auto chosen = m_models.cbegin(); chosen != m_models.cend(); ++chosen)
        measured.models.insert(chosen.key(), chosen.value());
    ImportPlan plan = matched(m_logs, *m_catalogue, measured, m_options);
    for (qsizetype i = 0; i < plan.discharges.size(); ++i) {
        MatchOptions options = m_options;
        options.battery = m_batteries.value(sessionId(plan.discharges.at(i).whole));
        if (!options.battery.isEmpty())
            plan.discharges[i] = matched(m_logs, *m_catalogue, measured, options).discharges.at(i);
    }
    return plan;
}

/** A discharge of several sessions is one row. */
QList<ImportModel::Row> ImportModel::rowsOf(const ImportPlan &plan) const
{
    QList<Row> rows;
    QSet<qsizetype> seen;
    for (qsizetype log = 0; log < plan.sessions.size(); ++log) {
        for (ImportedSession session : plan.sessions.at(log)) {
            if (session.discharge >= 0) {
                if (seen.contains(session.discharge))
                    continue;
                seen.insert(session.discharge);
                const ImportedDischarge &discharge = plan.discharges.at(session.discharge);
                session = {discharge.whole, discharge.action, discharge.reasons, session.discharge};
            }
            rows.append({session, log, sessionId(session.session)});
        }
    }
    std::stable_sort(rows.begin(), rows.end(), [](const Row &left, const Row &right) {
        return left.session.session.start < right.session.session.start;
    });
    return rows;
}

/** Where the rows stay the same ones, so does the user's place in them. */
void ImportModel::refresh()
{
    ImportPlan plan = planned();
    QList<Row> rows = rowsOf(plan);
    const bool areSame =
        !rows.isEmpty() && std::equal(rows.cbegin(), rows.cend(), m_rows.cbegin(), m_rows.cend(),
                                      [](const Row &left, const Row &right) { return left.id == right.id; });
    if (!areSame)
        beginResetModel();
    m_plan = std::move(plan);
    m_rows = std::move(rows);
    if (areSame)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    else
        endResetModel();
}

const ImportedDischarge *ImportModel::dischargeOf(const Row &row) const
{
    return row.session.discharge < 0 ? nullptr : &m_plan.discharges.at(row.session.discharge);
}

bool ImportModel::isTickable(const Row &row) const
{
    const ImportedDischarge *discharge = dischargeOf(row);
    return discharge && (discharge->action == ImportAction::Fill ||
                         (discharge->action == ImportAction::New && discharge->batteryIndex >= 0));
}

bool ImportModel::isTicked(const Row &row) const
{
    return isTickable(row) && m_ticks.value(row.id, row.session.action == ImportAction::Fill);
}

QList<qsizetype> ImportModel::chosen() const
{
    QList<qsizetype> chosen;
    for (const Row &row : m_rows) {
        if (isTicked(row))
            chosen.append(row.session.discharge);
    }
    return chosen;
}

int ImportModel::chosenLogs() const
{
    const QList<qsizetype> ticked = chosen();
    return static_cast<int>(
        std::count_if(m_plan.sessions.cbegin(), m_plan.sessions.cend(), [&](const auto &sessions) {
            return std::any_of(sessions.cbegin(), sessions.cend(), [&](const ImportedSession &session) {
                return ticked.contains(session.discharge);
            });
        }));
}

bool ImportModel::isAnyNew() const
{
    return std::any_of(m_rows.cbegin(), m_rows.cend(),
                       [](const Row &row) { return row.session.action == ImportAction::New; });
}

QStringList ImportModel::choices(const QModelIndex &index) const
{
    return index.column() == ModelName ? FlightFields::names(m_catalogue->models)
                                       : FlightFields::names(m_catalogue->batteries);
}

int ImportModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ImportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString ImportModel::text(const Row &row, int column) const
{
    const Session &session = row.session.session;
    const ImportedDischarge *discharge = dischargeOf(row);
    switch (column) {
    case Start:
        return clockText(session.start).replace(u'T', u' ');
    case ModelName:
        return session.model;
    case BatteryName:
        return discharge ? discharge->battery : QString();
    case Duration:
        return shownDuration(session.duration);
    case Discharged:
        return number(session.discharged, 0);
    case Current:
        return number(session.highestCurrent, 2);
    case Outcome:
        return importText(row.session, m_plan);
    default:
        return QFileInfo(m_logs.at(row.log).path).fileName();
    }
}

QVariant ImportModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Row &row = m_rows.at(index.row());
    const bool isFigure = index.column() >= Duration && index.column() <= Current;
    if (role == Qt::CheckStateRole && index.column() == Start && isTickable(row))
        return isTicked(row) ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::TextAlignmentRole && isFigure)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role == Qt::EditRole)
        return text(row, index.column());
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return QVariant();
    const QString shown = text(row, index.column());
    return shown.isEmpty() && flags(index).testFlag(Qt::ItemIsEditable) ? tr("Choose…") : shown;
}

/** What the user chooses for one row can change others: a model is that of all logs of this name. */
bool ImportModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const Row &row = m_rows.at(index.row());
    if (role == Qt::CheckStateRole && isTickable(row)) {
        m_ticks.insert(row.id, value.toInt() == Qt::Checked);
        Q_EMIT dataChanged(index, index);
        return true;
    }
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    if (index.column() == ModelName)
        m_models.insert(m_logs.at(row.log).log.model, value.toString());
    else
        m_batteries.insert(row.id, value.toString());
    refresh();
    return true;
}

QVariant ImportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    const QStringList titles{tr("Start"), tr("What will happen"), tr("Model"), tr("Battery"), tr("Duration"),
                             tr("mAh"),   tr("Maximum A"),        tr("Log")};
    return titles.value(section);
}

/** Also after the choice has made something else of what was new, so that it can be taken back. */
Qt::ItemFlags ImportModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    const Row &row = m_rows.at(index.row());
    const bool isNew = row.session.action == ImportAction::New;
    if (index.column() == Start && isTickable(row))
        flags |= Qt::ItemIsUserCheckable;
    const bool isModel =
        index.column() == ModelName && (isNew || m_models.contains(m_logs.at(row.log).log.model));
    const bool isBench = row.session.action == ImportAction::Bench;
    const bool isBattery =
        index.column() == BatteryName && (isNew || (isBench && m_batteries.contains(row.id)));
    if ((isModel || isBattery) && dischargeOf(row) && !choices(index).isEmpty())
        flags |= Qt::ItemIsEditable;
    return flags;
}

} // namespace Host
