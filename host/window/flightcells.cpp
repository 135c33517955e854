// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the model of flights that a table asks for: what cells show, and how.
#include "host/data/sources.h"
#include "host/window/flightsmodel.h"

#include <QFont>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

constexpr double HundredthsOfAnAmpere = 100.0;

bool isFigure(FlightsModel::Column column)
{
    return column == FlightsModel::Discharged || column == FlightsModel::Current;
}

QString sourceText(Source source)
{
    switch (source) {
    case Source::None:
        return FlightsModel::tr("not entered");
    case Source::Guessed:
        return FlightsModel::tr("guessed: what a capture presets for the battery");
    case Source::Measured:
        return FlightsModel::tr("measured: from a radio's log");
    case Source::Entered:
        return FlightsModel::tr("entered");
    }
    return QString();
}

} // namespace

QVariant FlightsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const int row = index.row();
    const auto column = static_cast<Column>(index.column());
    const bool isNumber = isFigure(column) || column == Duration || column == Temperature;
    switch (role) {
    case Qt::DisplayRole:
        return display(row, column);
    case Qt::EditRole:
        return value(row, column);
    case SortRole:
        return isFigure(column) ? QVariant(sortKey(row, column)) : value(row, column);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::FontRole:
        return isFigure(column) ? font(row) : QVariant();
    case Qt::ToolTipRole:
        return isFigure(column) ? remark(row) : display(row, column);
    case Qt::AccessibleTextRole: {
        const QString text = display(row, column);
        const QString note = isFigure(column) ? remark(row) : QString();
        return note.isEmpty() ? text : tr("%1, %2").arg(text, note);
    }
    default:
        return QVariant();
    }
}

QString FlightsModel::display(int row, Column column) const
{
    const Flight &flight = flightAt(row);
    switch (column) {
    case Time:
        return flight.time.toString(u"yyyy-MM-dd HH:mm:ss");
    case Duration:
        return flight.duration.toString(u"HH:mm:ss");
    case Temperature:
        return QLocale().toString(flight.temperature);
    case Discharged:
    case Current:
        return figures(row, column);
    case Notes:
        return flight.notes.simplified();
    default:
        return texts(column).at(textOf(row, column));
    }
}

QVariant FlightsModel::value(int row, Column column) const
{
    const Flight &flight = flightAt(row);
    switch (column) {
    case Time:
        return flight.time;
    case Duration:
        return flight.duration;
    case Temperature:
        return flight.temperature;
    case Discharged:
    case Current: {
        const QList<DischargePlace> discharges = dischargesOf(row);
        if (discharges.size() != 1)
            return discharges.isEmpty() ? QVariant() : figures(row, column);
        const Discharge &discharge = dischargeAt(discharges.constFirst());
        return column == Current ? QVariant(discharge.current / HundredthsOfAnAmpere)
                                 : QVariant(discharge.discharged);
    }
    default:
        return texts(column).at(textOf(row, column));
    }
}

/** The figures of a flight's discharges in a column, one for each battery. */
QString FlightsModel::figures(int row, Column column) const
{
    const QLocale locale;
    QStringList figures;
    const QList<DischargePlace> discharges = dischargesOf(row);
    for (const DischargePlace &place : discharges) {
        const Discharge &discharge = dischargeAt(place);
        figures.append(column == Discharged
                           ? locale.toString(discharge.discharged)
                           : locale.toString(discharge.current / HundredthsOfAnAmpere, 'f', 2));
    }
    return figures.join(u"; "_s);
}

/** Where the figures of a row come from, in words. */
QString FlightsModel::remark(int row) const
{
    const QList<DischargePlace> discharges = dischargesOf(row);
    if (discharges.isEmpty())
        return tr("no discharge at the time of this flight");
    QStringList remarks;
    for (const DischargePlace &place : discharges)
        remarks.append(sourceText(sourceOf(m_catalogue->batteries.at(place.battery), dischargeAt(place))));
    remarks.removeDuplicates();
    return remarks.join(u"; "_s);
}

/** Guessed figures are slanted and measured ones bold, so that no colour is needed to tell them apart. */
QVariant FlightsModel::font(int row) const
{
    bool isGuessed = false;
    bool isMeasured = false;
    const QList<DischargePlace> discharges = dischargesOf(row);
    for (const DischargePlace &place : discharges) {
        const Source source = sourceOf(m_catalogue->batteries.at(place.battery), dischargeAt(place));
        isGuessed = isGuessed || source == Source::Guessed;
        isMeasured = isMeasured || source == Source::Measured;
    }
    if (!isGuessed && !isMeasured)
        return QVariant();
    QFont font;
    font.setItalic(isGuessed);
    font.setBold(isMeasured);
    return font;
}

QVariant FlightsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case Time:
        return tr("Time");
    case ModelName:
        return tr("Model");
    case Batteries:
        return tr("Batteries");
    case Duration:
        return tr("Duration");
    case Discharged:
        return tr("mAh");
    case Current:
        return tr("Max. A");
    case Location:
        return tr("Location");
    case Temperature:
        return tr("°C");
    case Notes:
        return tr("Notes");
    default:
        return QVariant();
    }
}

Qt::ItemFlags FlightsModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!m_editable || !index.isValid())
        return flags;
    const auto column = static_cast<Column>(index.column());
    const auto discharges = m_rows.at(static_cast<size_t>(index.row())).discharges;
    // Which of several batteries is meant is asked for by moving; figures need a discharge.
    const bool isEditable = column == Batteries ? discharges == 1 : !isFigure(column) || discharges > 0;
    return isEditable ? flags | Qt::ItemIsEditable : flags;
}

bool FlightsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !index.isValid())
        return false;
    Q_EMIT editRequested(placeOf(index.row()), index.column(), value);
    return false;
}

} // namespace Host
