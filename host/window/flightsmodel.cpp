// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/flightsmodel.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

/** Which of a row's texts belongs to a column; -1 for none. */
constexpr int textIndex(FlightsModel::Column column)
{
    switch (column) {
    case FlightsModel::Batteries:
        return 0;
    case FlightsModel::Location:
        return 1;
    case FlightsModel::Notes:
        return 2;
    default:
        return -1;
    }
}

} // namespace

/** Numbers different texts in the order in which they come. */
class FlightsModel::Numbers
{
public:
    explicit Numbers(QStringList &texts)
        : m_texts(texts)
    {
        m_texts.clear();
    }

    int numberOf(const QString &text)
    {
        if (!m_texts.isEmpty() && text == m_texts.at(m_last)) // most repeat the one before
            return m_last;
        const auto found = m_numbers.constFind(text);
        m_last = found != m_numbers.cend() ? *found : add(text);
        return m_last;
    }

private:
    int add(const QString &text)
    {
        const auto number = static_cast<int>(m_texts.size());
        m_texts.append(text);
        m_numbers.insert(text, number);
        return number;
    }

    QStringList &m_texts;
    QHash<QString, int> m_numbers;
    int m_last = 0;
};

void FlightsModel::setCatalogue(std::shared_ptr<const Catalogue> catalogue)
{
    beginResetModel();
    m_catalogue = std::move(catalogue);
    m_rows.clear();
    m_firstRows.clear();
    m_discharges.clear();
    for (std::vector<int> &ranks : m_ranks)
        ranks.clear();
    for (QStringList &texts : m_texts)
        texts.clear();
    if (m_catalogue)
        addRows();
    endResetModel();
}

void FlightsModel::addRows()
{
    size_t count = 0;
    for (const Model &model : m_catalogue->models)
        count += static_cast<size_t>(model.log.size());
    m_rows.reserve(count);
    Numbers batteries(m_texts[Batteries]);
    Numbers locations(m_texts[Location]);
    Numbers notes(m_texts[Notes]);
    const Moments moments(*m_catalogue);
    for (qsizetype model = 0; model < m_catalogue->models.size(); ++model) {
        m_firstRows.push_back(static_cast<int>(m_rows.size()));
        m_texts[ModelName].append(m_catalogue->models.at(model).name);
        const QList<Flight> &log = m_catalogue->models.at(model).log;
        for (qsizetype flight = 0; flight < log.size(); ++flight) {
            const qint64 moment = momentOf(log.at(flight).time);
            const QList<DischargePlace> discharges =
                moment == NoMoment ? QList<DischargePlace>() : moments.firstDischargesAt(moment);
            QString names;
            for (const DischargePlace &place : discharges) {
                const QString &name = m_catalogue->batteries.at(place.battery).name;
                names = names.isEmpty() ? name : names + u"; "_s + name;
            }
            m_rows.push_back({static_cast<int>(model),
                              static_cast<int>(flight),
                              moment,
                              {batteries.numberOf(names), locations.numberOf(log.at(flight).location),
                               notes.numberOf(log.at(flight).notes)},
                              static_cast<int>(m_discharges.size()),
                              static_cast<int>(discharges.size())});
            m_discharges.append(discharges);
        }
    }
}

void FlightsModel::setEditable(bool editable)
{
    m_editable = editable;
}

FlightPlace FlightsModel::placeOf(int row) const
{
    const Row &there = m_rows.at(static_cast<size_t>(row));
    return {there.model, there.flight};
}

int FlightsModel::rowOf(const FlightPlace &place) const
{
    const bool isThere = m_catalogue && place.model >= 0 && place.model < m_catalogue->models.size() &&
                         place.flight >= 0 && place.flight < m_catalogue->models.at(place.model).log.size();
    return isThere ? m_firstRows.at(static_cast<size_t>(place.model)) + static_cast<int>(place.flight) : -1;
}

const Flight &FlightsModel::flightAt(int row) const
{
    const Row &there = m_rows.at(static_cast<size_t>(row));
    return m_catalogue->models.at(there.model).log.at(there.flight);
}

QList<DischargePlace> FlightsModel::dischargesOf(int row) const
{
    const Row &there = m_rows.at(static_cast<size_t>(row));
    return m_discharges.mid(there.firstDischarge, there.discharges);
}

const Discharge &FlightsModel::dischargeAt(const DischargePlace &place) const
{
    return m_catalogue->batteries.at(place.battery).discharges.at(place.discharge);
}

int FlightsModel::textOf(int row, Column column) const
{
    const Row &there = m_rows.at(static_cast<size_t>(row));
    return column == ModelName ? there.model : there.texts.at(static_cast<size_t>(textIndex(column)));
}

/** The places of a column's texts when they are sorted: as people sort names, "Heli 2" before "Heli 10". */
const std::vector<int> &FlightsModel::ranks(Column column) const
{
    std::vector<int> &ranks = m_ranks.at(column);
    const QStringList &all = texts(column);
    if (!ranks.empty() || all.isEmpty())
        return ranks;
    std::vector<int> order(static_cast<size_t>(all.size()));
    std::iota(order.begin(), order.end(), 0);
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(order.size());
    for (const QString &text : all)
        keys.push_back(collator.sortKey(text));
    const auto key = [&](int text) -> const QCollatorSortKey & { return keys.at(static_cast<size_t>(text)); };
    std::sort(order.begin(), order.end(), [&](int left, int right) { return key(left) < key(right); });
    ranks.resize(order.size());
    for (size_t i = 0; i < order.size(); ++i) { // equal names of two models are one place
        const bool isSame = i > 0 && all.at(order.at(i)) == all.at(order.at(i - 1));
        ranks.at(static_cast<size_t>(order.at(i))) =
            isSame ? ranks.at(static_cast<size_t>(order.at(i - 1))) : static_cast<int>(i);
    }
    return ranks;
}

qint64 FlightsModel::sortKey(int row, Column column) const
{
    const Row &there = m_rows.at(static_cast<size_t>(row));
    switch (column) {
    case Time:
        return there.moment;
    case Duration: {
        const Flight &flight = flightAt(row);
        return flight.duration.isValid() ? flight.seconds() : -1;
    }
    case Temperature:
        return flightAt(row).temperature;
    case Discharged:
    case Current: {
        qint64 key = -1;
        for (int i = 0; i < there.discharges; ++i) {
            const Discharge &discharge = dischargeAt(m_discharges.at(there.firstDischarge + i));
            key = column == Current ? std::max<qint64>(key, discharge.current)
                                    : std::max<qint64>(key, 0) + discharge.discharged;
        }
        return key;
    }
    default:
        return ranks(column).at(static_cast<size_t>(textOf(row, column)));
    }
}

int FlightsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int FlightsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

} // namespace Host
